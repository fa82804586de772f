// Writes a page as SVG that a web page can style and ask: every part and dimension is an
// element with an id and a class; looks are presentation attributes, which any style sheet
// overrides. A group states the look of its first figure, and the others what differs.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "lintavo/drawing/Text.h"

#include "paper/Paper_intern.h"
#include "scene/Lettering_intern.h"
#include "scene/Utf8_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr const char* kFonts = "Helvetica, Arial, 'Liberation Sans', 'Nimbus Sans', sans-serif";

constexpr int kDecimals = 3;
constexpr double kNarrowest = 1e-3;

std::string ToXml(std::string_view text) {
  const std::string clean = ToDisplayText(text);
  std::string xml;
  for (std::size_t i = 0; i < clean.size();) {
    char32_t character = 0;
    if (!DecodeUtf8(clean, i, character)) break;
    if (character == '&') {
      xml += "&amp;";
    } else if (character == '<') {
      xml += "&lt;";
    } else if (character == '>') {
      xml += "&gt;";
    } else if (character == '"') {
      xml += "&quot;";
    } else if (character != 0xFFFE && character != 0xFFFF) {  // which XML does not have
      AppendUtf8(xml, character);
    }
  }
  return xml;
}

std::string ToHex(const Colour& colour) {
  const auto byte = [](double share) {
    return static_cast<unsigned int>(std::lround(255.0 * std::clamp(share, 0.0, 1.0)));
  };
  char text[16];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", byte(colour.red), byte(colour.green),
                byte(colour.blue));
  return text;
}

// The presentation attributes that an element has or inherits.
struct Look {
  std::string fill = "none";
  std::string stroke = "none";
  std::string width = "1";
  std::string dashes = "none";
};

class SvgWriter {
 public:
  explicit SvgWriter(const Page& page)
      : page_(page),
        unit_(page.toScale ? 1.0 : kLongSidePixels / std::max(page.width, page.height)) {}

  std::string Write() {
    out_ =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\"";
    const char* const unit = page_.toScale ? "mm" : "";
    const double width = Whole(page_.width * unit_);
    const double height = Whole(page_.height * unit_);
    Attribute("width", Number(width) + unit);
    Attribute("height", Number(height) + unit);
    Attribute("viewBox", "0 0 " + Number(width) + ' ' + Number(height));
    Attribute("fill", "none");
    Attribute("stroke-linejoin", "round");
    Attribute("stroke-linecap", "round");
    Attribute("font-family", kFonts);
    out_ += ">\n";
    if (!page_.title.empty()) out_ += "<title>" + ToXml(page_.title) + "</title>\n";
    for (const View& view : page_.views) {
      view_ = &view;
      WriteGroup(view.content, Look());
    }
    return std::move(out_) + "</svg>\n";
  }

 private:
  // The sides of a picture that is not to scale are whole numbers.
  double Whole(double length) const {
    constexpr double kRounding = 1e-6;
    return page_.toScale ? length : std::ceil(length - kRounding);
  }

  static std::string Number(double number) {
    std::string text;
    AppendNumber(number, kDecimals, text);
    return text;
  }

  void Attribute(const char* name, const std::string& value) {
    out_.append(" ").append(name).append("=\"").append(value).append("\"");
  }

  void IdAndClass(const std::string& id, const char* klass) {
    if (!id.empty()) Attribute("id", ToXml(id));
    if (*klass != '\0') Attribute("class", klass);
  }

  Point ToSvg(const Point& point) const {
    const Point paper = OnPaper(*view_, point);
    return {paper.x * unit_, (page_.height - paper.y) * unit_};
  }

  Look LookOf(const Figure& figure) const {
    Look look;
    if (figure.fill) look.fill = ToHex(*figure.fill);
    if (figure.pen.width > 0.0) {
      look.stroke = ToHex(figure.pen.colour);
      look.width = Number(figure.pen.width * unit_);
      if (figure.pen.dashed) look.dashes = Number(kDash * unit_) + ' ' + Number(kDashGap * unit_);
    }
    return look;
  }

  // Writes what differs from what is inherited.
  void WriteLook(const Look& look, const Look& inherited) {
    if (look.fill != inherited.fill) Attribute("fill", look.fill);
    if (look.stroke != inherited.stroke) Attribute("stroke", look.stroke);
    if (look.stroke == "none") return;
    if (look.width != inherited.width) Attribute("stroke-width", look.width);
    if (look.dashes != inherited.dashes) Attribute("stroke-dasharray", look.dashes);
  }

  void WriteGroup(const Group& group, Look look) {
    out_ += "<g";
    IdAndClass(group.id, group.klass);
    if (!group.figures.empty()) {
      const Look own = LookOf(group.figures.front());
      WriteLook(own, look);
      look = own;
    }
    out_ += ">\n";
    for (const Figure& figure : group.figures) WriteFigure(figure, look);
    for (const Group& inner : group.groups) WriteGroup(inner, look);
    for (const Label& label : group.labels) WriteLabel(label, look);
    out_ += "</g>\n";
  }

  void WriteFigure(const Figure& figure, const Look& inherited) {
    Look look = LookOf(figure);
    if (figure.strokes.empty()) {
      WritePath(figure, figure.id, figure.traces, look, inherited);
      return;
    }
    Look filled = inherited;
    filled.fill = look.fill;
    filled.stroke = "none";
    WritePath(figure, figure.id, figure.traces, filled, inherited);
    look.fill = "none";
    WritePath(figure, "", figure.strokes, look, inherited);
  }

  void WritePath(const Figure& figure, const std::string& id, const std::vector<Trace>& traces,
                 const Look& look, const Look& inherited) {
    out_ += "<path";
    IdAndClass(id, figure.klass);
    if (figure.seite >= 0) Attribute("data-seite", std::to_string(figure.seite));
    WriteLook(look, inherited);
    out_ += " d=\"";
    for (const Trace& trace : traces) WriteTrace(trace);
    out_ += "\"/>\n";
  }

  void WriteTrace(const Trace& trace) {
    char before = 'M';
    for (const Point& point : trace.points) {
      const Point p = ToSvg(point);
      out_ += before;
      AppendNumber(p.x, kDecimals, out_);
      out_ += ' ';
      AppendNumber(p.y, kDecimals, out_);
      before = ' ';
    }
    if (trace.closed) out_ += 'Z';
  }

  void WriteLabel(const Label& label, const Look& inherited) {
    const double height = label.hoehe * view_->scale * unit_;
    const double width = label.width * view_->scale * unit_;
    if (label.text.empty() || width < kNarrowest) return;
    // The foot of the digits, half their height below the middle.
    const Point middle = ToSvg(label.mitte);
    const Point foot = label.upright ? Point{middle.x + height / 2.0, middle.y}
                                     : Point{middle.x, middle.y + height / 2.0};
    out_ += "<text";
    IdAndClass(label.id, label.klass);
    Attribute("x", Number(foot.x));
    Attribute("y", Number(foot.y));
    if (label.upright) {
      Attribute("transform", "rotate(-90 " + Number(foot.x) + ' ' + Number(foot.y) + ')');
    }
    if (!label.fromLeft) Attribute("text-anchor", "middle");
    Attribute("font-size", Number(height / kDigitHeight));
    Attribute("textLength", Number(width));
    Attribute("lengthAdjust", "spacingAndGlyphs");
    Attribute("fill", ToHex(label.colour));
    if (inherited.stroke != "none") Attribute("stroke", "none");
    out_ += '>' + ToXml(label.text) + "</text>\n";
  }

  const Page& page_;
  const double unit_;
  const View* view_ = nullptr;
  std::string out_;
};

}  // namespace

std::string WriteSvg(const Page& page) {
  return SvgWriter(page).Write();
}

}  // namespace lintavo::drawing
