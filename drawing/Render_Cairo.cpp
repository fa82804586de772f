// Draws a scene into memory as SVG, PDF or PNG, by Cairo.
#include <memory>

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include "lintavo/drawing/Picture.h"

#include "Painter_intern.h"
#include "Paper_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kLongSidePoints = 800.0;

struct SurfaceDeleter {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;

struct ContextDeleter {
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using Context = std::unique_ptr<cairo_t, ContextDeleter>;

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

cairo_status_t PaintOnto(cairo_surface_t* surface, const Scene& scene, const Layout& layout,
                         const Style& style, bool whiteGround) {
  const Context cairo(cairo_create(surface));
  if (whiteGround) {
    cairo_set_source_rgb(cairo.get(), 1.0, 1.0, 1.0);
    cairo_paint(cairo.get());
  }
  PaintScene(cairo.get(), scene, layout, style);
  return cairo_status(cairo.get());
}

PictureStatus RenderVector(Surface surface, const Scene& scene, const Layout& layout,
                           const Style& style) {
  const cairo_status_t painted = PaintOnto(surface.get(), scene, layout, style, false);
  if (painted != CAIRO_STATUS_SUCCESS) return ToStatus(painted);
  cairo_surface_finish(surface.get());
  return ToStatus(cairo_surface_status(surface.get()));
}

PictureStatus RenderSvg(const Scene& scene, const Layout& layout, const Style& style,
                        std::string& bytes) {
  Surface surface(
      cairo_svg_surface_create_for_stream(AppendBytes, &bytes, layout.width, layout.height));
  cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
  return RenderVector(std::move(surface), scene, layout, style);
}

PictureStatus RenderPdf(const Scene& scene, const Layout& layout, const Style& style,
                        std::string& bytes) {
  Surface surface(
      cairo_pdf_surface_create_for_stream(AppendBytes, &bytes, layout.width, layout.height));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, scene.name.c_str());
  return RenderVector(std::move(surface), scene, layout, style);
}

PictureStatus RenderPng(const Scene& scene, const Layout& layout, const Style& style,
                        std::string& bytes) {
  const Surface surface(cairo_image_surface_create(
      CAIRO_FORMAT_RGB24, static_cast<int>(layout.width), static_cast<int>(layout.height)));
  const cairo_status_t painted = PaintOnto(surface.get(), scene, layout, style, true);
  if (painted != CAIRO_STATUS_SUCCESS) return ToStatus(painted);
  return ToStatus(cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &bytes));
}

bool HasPoint(const Scene& scene) {
  if (!scene.lines.empty() || !scene.texts.empty()) return true;
  for (const Shape& shape : scene.shapes) {
    if (!shape.outline.empty()) return true;
  }
  return false;
}

}  // namespace

PictureStatus RenderPicture(const Scene& scene, PictureFormat format, std::string& bytes,
                            const Style& style) {
  if (!HasPoint(scene)) return PictureStatus::kEmpty;
  Box box;
  if (!GetBox(scene, box)) return PictureStatus::kUnbounded;
  Layout layout;
  const bool paged = format == PictureFormat::kPdf;
  if (!FitLayout(box, paged ? kLongSidePoints : kLongSidePixels, layout)) {
    return PictureStatus::kUnbounded;
  }
  std::string drawn;
  PictureStatus status = PictureStatus::kFailed;
  switch (format) {
    case PictureFormat::kSvg:
      status = RenderSvg(scene, layout, style, drawn);
      break;
    case PictureFormat::kPdf:
      status = RenderPdf(scene, layout, style, drawn);
      break;
    case PictureFormat::kPng:
      status = RenderPng(scene, layout, style, drawn);
      break;
  }
  if (status == PictureStatus::kOk) bytes = std::move(drawn);
  return status;
}

}  // namespace lintavo::drawing
