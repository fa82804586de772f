// Paints pages by Cairo: PDF and PNG.
#include <algorithm>
#include <cmath>
#include <memory>

#include <cairo-pdf.h>
#include <cairo.h>

#include "paper/Paper_intern.h"
#include "scene/Lettering_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kPointsPerMillimetre = 72.0 / kMillimetresPerInch;
constexpr double kQuarterTurn = -1.5707963267948966;
// A sans-serif font of every system answers to this name, if only as its nearest kin.
constexpr const char* kFont = "Helvetica";
// Smaller letters are no more than dust, larger ones more than a font machine takes.
constexpr double kSmallestFont = 0.05;
constexpr double kLargestFont = 20000.0;

struct SurfaceDeleter {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;

struct ContextDeleter {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using Context = std::unique_ptr<cairo_t, ContextDeleter>;

struct FontOptionsDeleter {
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
using FontOptions = std::unique_ptr<cairo_font_options_t, FontOptionsDeleter>;

// Cairo hands out a file's bytes in pieces. It is C: nothing may be thrown through it.
cairo_status_t AppendBytes(void* closure, const unsigned char* data, unsigned int length) {
  try {
    static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (...) {
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

PictureStatus ToStatus(cairo_status_t status) {
  return status == CAIRO_STATUS_SUCCESS ? PictureStatus::kOk : PictureStatus::kFailed;
}

// Paints one page, whose millimetre is `unit` of the surface's.
class Painter {
 public:
  Painter(cairo_t* cairo, const Page& page, double unit)
      : cairo_(cairo), page_(page), unit_(unit) {}

  void Paint() {
    cairo_set_line_join(cairo_, CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_ROUND);
    cairo_select_font_face(cairo_, kFont, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    // Letters stand where the layout put them, not where pixels would like them.
    const FontOptions options(cairo_font_options_create());
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_set_font_options(cairo_, options.get());
    for (const View& view : page_.views) {
      view_ = &view;
      ForEach(view.content, [this](const auto& thing) { Paint(thing); });
    }
  }

 private:
  Point ToSurface(const Point& point) const {
    const Point paper = OnPaper(*view_, point);
    return {paper.x * unit_, (page_.height - paper.y) * unit_};
  }

  void Follow(const std::vector<Trace>& traces) {
    cairo_new_path(cairo_);
    for (const Trace& trace : traces) {
      cairo_new_sub_path(cairo_);
      for (const Point& point : trace.points) {
        const Point p = ToSurface(point);
        cairo_line_to(cairo_, p.x, p.y);
      }
      if (trace.closed) cairo_close_path(cairo_);
    }
  }

  void SetColour(const Colour& colour) {
    cairo_set_source_rgb(cairo_, colour.red, colour.green, colour.blue);
  }

  void Paint(const Figure& figure) {
    Follow(figure.traces);
    if (figure.fill) {
      SetColour(*figure.fill);
      cairo_fill_preserve(cairo_);
    }
    if (!(figure.pen.width > 0.0)) return;
    if (!figure.strokes.empty()) Follow(figure.strokes);
    const double dashes[] = {kDash * unit_, kDashGap * unit_};
    cairo_set_dash(cairo_, dashes, figure.pen.dashed ? 2 : 0, 0.0);
    cairo_set_line_width(cairo_, figure.pen.width * unit_);
    SetColour(figure.pen.colour);
    cairo_stroke(cairo_);
  }

  void Paint(const Label& label) {
    const double height = label.hoehe * view_->scale * unit_;
    const double width = label.width * view_->scale * unit_;
    const double size = height / kDigitHeight;
    if (label.text.empty() || !(size > kSmallestFont) || !(size < kLargestFont)) return;
    cairo_set_font_size(cairo_, size);
    cairo_text_extents_t extents;
    cairo_text_extents(cairo_, label.text.c_str(), &extents);
    if (!(extents.x_advance > 0.0) || !std::isfinite(extents.x_advance)) return;
    const double squeeze = std::min(1.0, width / extents.x_advance);
    const Point middle = ToSurface(label.mitte);
    cairo_save(cairo_);
    cairo_translate(cairo_, middle.x, middle.y);
    if (label.upright) cairo_rotate(cairo_, kQuarterTurn);
    cairo_scale(cairo_, squeeze, 1.0);
    cairo_move_to(cairo_, label.fromLeft ? 0.0 : -extents.x_advance / 2.0, height / 2.0);
    SetColour(label.colour);
    cairo_show_text(cairo_, label.text.c_str());
    cairo_restore(cairo_);
  }

  cairo_t* cairo_;
  const Page& page_;
  const double unit_;
  const View* view_ = nullptr;
};

cairo_status_t PaintOnto(cairo_surface_t* surface, const Page& page, double unit,
                         bool whiteGround) {
  const Context cairo(cairo_create(surface));
  if (whiteGround) {
    cairo_set_source_rgb(cairo.get(), 1.0, 1.0, 1.0);
    cairo_paint(cairo.get());
  }
  Painter(cairo.get(), page, unit).Paint();
  cairo_show_page(cairo.get());
  return cairo_status(cairo.get());
}

double PointsOf(const Page& page) {
  if (page.toScale) return kPointsPerMillimetre;
  return kLongSidePoints / std::max(page.width, page.height);
}

// The sides of a page that is not to scale are whole points.
double Whole(const Page& page, double points) {
  constexpr double kRounding = 1e-6;
  return page.toScale ? points : std::ceil(points - kRounding);
}

}  // namespace

PictureStatus WritePdf(const std::vector<Page>& pages, std::string& bytes) {
  if (pages.empty()) return PictureStatus::kEmpty;
  Surface surface(cairo_pdf_surface_create_for_stream(AppendBytes, &bytes, 1.0, 1.0));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE,
                                 pages.front().title.c_str());
  for (const Page& page : pages) {
    const double unit = PointsOf(page);
    cairo_pdf_surface_set_size(surface.get(), Whole(page, page.width * unit),
                               Whole(page, page.height * unit));
    const cairo_status_t painted = PaintOnto(surface.get(), page, unit, false);
    if (painted != CAIRO_STATUS_SUCCESS) return ToStatus(painted);
  }
  cairo_surface_finish(surface.get());
  return ToStatus(cairo_surface_status(surface.get()));
}

PictureStatus WritePng(const Page& page, double pixelsPerMillimetre, std::string& bytes) {
  const PixelSize size = PixelsOf(page, pixelsPerMillimetre);
  if (size.width == 0) return PictureStatus::kTooLarge;
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height));
  const cairo_status_t painted = PaintOnto(surface.get(), page, pixelsPerMillimetre, true);
  if (painted != CAIRO_STATUS_SUCCESS) return ToStatus(painted);
  return ToStatus(cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &bytes));
}

}  // namespace lintavo::drawing
