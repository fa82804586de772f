// Puts a scene onto a Cairo surface: the layout on paper and the colours.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "lintavo/geom/Toleranzen.h"

#include "Lettering_intern.h"
#include "Painter_intern.h"
#include "Paper_intern.h"

namespace lintavo::drawing {
namespace {

// Shares of the paper's longer side.
constexpr double kStrokeShare = 0.0009;
constexpr double kDashShare = 0.008;
constexpr double kDashGapShare = 0.005;

constexpr double kQuarterTurn = -1.5707963267948966;

constexpr Colour Rgb(int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0};
}

constexpr Colour kInk = Rgb(0x4a, 0x44, 0x3c);
constexpr Colour kSymbolInk = Rgb(0x2f, 0x5d, 0x8a);
constexpr Colour kFittingInk = Rgb(0x26, 0x22, 0x1e);
constexpr Colour kMeasureInk = Rgb(0x33, 0x33, 0x33);

// The frame is the darkest wood, the sashes are lighter: what opens stands out.
Colour UsualFill(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return Rgb(0xcb, 0xb5, 0x92);
    case ShapeKind::kEinzelteil:
      return Rgb(0xc1, 0xaa, 0x86);
    case ShapeKind::kZusatzteil:
      return Rgb(0xb4, 0xb3, 0xac);
    case ShapeKind::kGlas:
      return Rgb(0xdb, 0xea, 0xf3);
    case ShapeKind::kPaneel:
      return Rgb(0xe4, 0xe1, 0xda);
    case ShapeKind::kLamellen:
      return Rgb(0x8d, 0x92, 0x8f);
    case ShapeKind::kLamelle:
      return Rgb(0xd8, 0xdb, 0xd6);
    case ShapeKind::kFluegelteil:
      return Rgb(0xe9, 0xdc, 0xc4);
    case ShapeKind::kFluegelEinzelteil:
      return Rgb(0xde, 0xcf, 0xb4);
    case ShapeKind::kSprosse:
      return Rgb(0xf1, 0xe8, 0xd6);
    case ShapeKind::kMaszPfeil:
      return kMeasureInk;
  }
  return kInk;
}

Colour ColourOf(const Palette& palette, long number, const Colour& usual) {
  if (number < 1 || static_cast<std::size_t>(number) > palette.size()) return usual;
  return palette[static_cast<std::size_t>(number - 1)];
}

Colour FillColour(const Shape& shape, const Style& style) {
  const bool masz = shape.kind == ShapeKind::kMaszPfeil;
  return ColourOf(masz ? style.masze : style.bauteile, shape.attribut, UsualFill(shape.kind));
}

struct Stroke {
  Colour colour;
  double width;  // as a share of the usual one
};

Stroke StrokeOf(const Line& line, const Style& style) {
  const Colour masz = ColourOf(style.masze, line.attribut, kMeasureInk);
  switch (line.kind) {
    case LineKind::kAnsicht:
      return {kInk, style.pens.rahmen};
    case LineKind::kOeffnungsSymbol:
      return {ColourOf(style.symbole, line.attribut, kSymbolInk), style.pens.symbole};
    case LineKind::kBeschlag:
      return {kFittingInk, 1.2 * style.pens.rahmen};
    case LineKind::kMaszLinie:
      return {masz, 0.8 * style.pens.masze};
    case LineKind::kHilfsLinie:
      return {masz, 0.6 * style.pens.masze};
  }
  return {kInk, 1.0};
}

Point ToPaper(const Layout& layout, const Point& point) {
  return {layout.margin + (point.x - layout.box.left) * layout.scale,
          layout.margin + (layout.box.top - point.y) * layout.scale};
}

void TraceOutline(cairo_t* cairo, const Shape& shape, const Layout& layout) {
  cairo_new_path(cairo);
  for (const Point& point : shape.outline) {
    const Point paper = ToPaper(layout, point);
    cairo_line_to(cairo, paper.x, paper.y);
  }
  cairo_close_path(cairo);
}

void SetColour(cairo_t* cairo, const Colour& colour) {
  cairo_set_source_rgb(cairo, colour.red, colour.green, colour.blue);
}

bool IsSame(const Point& a, const Point& b) {
  return std::abs(a.x - b.x) < kNullLaenge && std::abs(a.y - b.y) < kNullLaenge;
}

const Point& Corner(const Shape& shape, std::size_t i) {
  return shape.outline[i % shape.outline.size()];
}

// A part that closes round, as the frame of a circle, has an outline that runs along
// its outer side, across the seam, back along its inner side and across the seam again.
// Tells whether the edge from corner `i` is such a seam.
bool IsSeam(const Shape& shape, std::size_t i) {
  const std::size_t count = shape.outline.size();
  // The two passes lie half the outline apart.
  const std::size_t twin = i + count / 2;
  return count > 4 && count % 2 == 0 && IsSame(Corner(shape, i), Corner(shape, twin + 1)) &&
         IsSame(Corner(shape, i + 1), Corner(shape, twin));
}

bool HasSeam(const Shape& shape) {
  for (std::size_t i = 0; i < shape.outline.size() / 2; ++i) {
    if (IsSeam(shape, i)) return true;
  }
  return false;
}

void TraceWithoutSeam(cairo_t* cairo, const Shape& shape, const Layout& layout) {
  cairo_new_path(cairo);
  for (std::size_t i = 0; i < shape.outline.size(); ++i) {
    const Point from = ToPaper(layout, Corner(shape, i));
    const Point to = ToPaper(layout, Corner(shape, i + 1));
    if (IsSeam(shape, i)) continue;
    if (!cairo_has_current_point(cairo) || i == 0 || IsSeam(shape, i - 1)) {
      cairo_move_to(cairo, from.x, from.y);
    }
    cairo_line_to(cairo, to.x, to.y);
  }
}

void PaintShape(cairo_t* cairo, const Shape& shape, const Layout& layout, double longSide,
                const Style& style) {
  TraceOutline(cairo, shape, layout);
  SetColour(cairo, FillColour(shape, style));
  if (shape.kind == ShapeKind::kMaszPfeil) {
    cairo_fill(cairo);
    return;
  }
  if (HasSeam(shape)) {
    cairo_fill(cairo);
    TraceWithoutSeam(cairo, shape, layout);
  } else {
    cairo_fill_preserve(cairo);
  }
  const bool sprosse = shape.kind == ShapeKind::kSprosse;
  SetColour(cairo, kInk);
  cairo_set_line_width(
      cairo, longSide * kStrokeShare * (sprosse ? style.pens.sprossen : style.pens.rahmen));
  cairo_stroke(cairo);
}

void PaintLine(cairo_t* cairo, const Line& line, const Layout& layout, double longSide,
               const Style& style) {
  const Stroke stroke = StrokeOf(line, style);
  const double dashes[] = {longSide * kDashShare, longSide * kDashGapShare};
  const Point from = ToPaper(layout, line.from);
  const Point to = ToPaper(layout, line.to);
  SetColour(cairo, stroke.colour);
  cairo_set_line_width(cairo, longSide * kStrokeShare * stroke.width);
  cairo_set_dash(cairo, dashes, line.dashed ? 2 : 0, 0.0);
  cairo_move_to(cairo, from.x, from.y);
  cairo_line_to(cairo, to.x, to.y);
  cairo_stroke(cairo);
}

// Reads the numbers that follow a word of a letter's path.
template <std::size_t N>
std::array<double, N> ReadNumbers(std::string_view& path) {
  std::array<double, N> numbers{};
  for (double& number : numbers) {
    path.remove_prefix(std::min(path.find_first_not_of(' '), path.size()));
    const auto result = std::from_chars(path.data(), path.data() + path.size(), number);
    path.remove_prefix(static_cast<std::size_t>(result.ptr - path.data()));
  }
  return numbers;
}

// Adds a letter's strokes to the path, its lower left corner at the origin.
void TraceLetter(cairo_t* cairo, std::string_view path) {
  while (!path.empty()) {
    const char word = path.front();
    path.remove_prefix(1);
    if (word == 'M') {
      const auto p = ReadNumbers<2>(path);
      cairo_move_to(cairo, p[0], p[1]);
    } else if (word == 'L') {
      const auto p = ReadNumbers<2>(path);
      cairo_line_to(cairo, p[0], p[1]);
    } else if (word == 'C') {
      const auto p = ReadNumbers<6>(path);
      cairo_curve_to(cairo, p[0], p[1], p[2], p[3], p[4], p[5]);
    }
  }
}

void PaintText(cairo_t* cairo, const Text& text, const Layout& layout, double longSide,
               const Style& style) {
  const double height = text.hoehe * layout.scale;
  if (height * kLongSidePixels / longSide < style.sizes.smallestText) return;
  const double hundredth = height * (1.0 - kPenWidth) / 100.0;
  if (!std::isnormal(hundredth) || text.inhalt.empty()) return;
  const Point paper = ToPaper(layout, text.mitte);
  const double length = LetteringWidth(text.inhalt) * height;
  cairo_save(cairo);
  cairo_new_path(cairo);
  cairo_translate(cairo, paper.x, paper.y);
  if (text.upright) cairo_rotate(cairo, kQuarterTurn);
  cairo_translate(cairo, (kPenWidth * height - length) / 2.0, 50.0 * hundredth);
  cairo_scale(cairo, hundredth, -hundredth);
  for (const char character : text.inhalt) {
    const Letter& letter = LetterOf(character);
    TraceLetter(cairo, letter.path);
    cairo_translate(cairo, letter.width + kLetterGap, 0.0);
  }
  cairo_restore(cairo);
  SetColour(cairo, ColourOf(style.masze, text.attribut, kMeasureInk));
  cairo_set_dash(cairo, nullptr, 0, 0.0);
  cairo_set_line_width(cairo, kPenWidth * height);
  cairo_stroke(cairo);
}

}  // namespace

bool FitLayout(const Box& box, double longSide, Layout& layout) {
  const double width = box.right - box.left;
  const double height = box.top - box.bottom;
  const double margin = longSide * kMarginShare;
  const double scale = (longSide - 2.0 * margin) / std::max(width, height);
  if (!std::isfinite(width) || !std::isfinite(height)) return false;
  if (!std::isnormal(scale) || scale <= 0.0) return false;
  layout.margin = margin;
  layout.scale = scale;
  layout.width = std::ceil(2.0 * margin + width * scale);
  layout.height = std::ceil(2.0 * margin + height * scale);
  layout.box = box;
  return true;
}

void PaintScene(cairo_t* cairo, const Scene& scene, const Layout& layout, const Style& style) {
  const double longSide = std::max(layout.width, layout.height);
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
  for (const Shape& shape : scene.shapes) PaintShape(cairo, shape, layout, longSide, style);
  for (const Line& line : scene.lines) PaintLine(cairo, line, layout, longSide, style);
  for (const Text& text : scene.texts) PaintText(cairo, text, layout, longSide, style);
}

}  // namespace lintavo::drawing
