// Puts a scene onto a Cairo surface: the layout on paper and the colours.
#include <algorithm>
#include <cmath>

#include "Painter_intern.h"

namespace lintavo::drawing {
namespace {

// Shares of the paper's longer side.
constexpr double kMarginShare = 0.04;
constexpr double kStrokeShare = 0.0009;

struct Colour {
  double red;
  double green;
  double blue;
};

constexpr Colour Rgb(int red, int green, int blue) {
  return {red / 255.0, green / 255.0, blue / 255.0};
}

constexpr Colour kInk = Rgb(0x4a, 0x44, 0x3c);

// The frame is the darkest wood, the sashes are lighter: what opens stands out.
Colour FillColour(ShapeKind kind) {
  switch (kind) {
    case ShapeKind::kRahmenteil:
      return Rgb(0xcb, 0xb5, 0x92);
    case ShapeKind::kEinzelteil:
      return Rgb(0xc1, 0xaa, 0x86);
    case ShapeKind::kGlas:
      return Rgb(0xdb, 0xea, 0xf3);
    case ShapeKind::kPaneel:
      return Rgb(0xe4, 0xe1, 0xda);
    case ShapeKind::kLamellen:
      return Rgb(0xd3, 0xd6, 0xd2);
    case ShapeKind::kFluegelteil:
      return Rgb(0xe9, 0xdc, 0xc4);
    case ShapeKind::kFluegelEinzelteil:
      return Rgb(0xde, 0xcf, 0xb4);
    case ShapeKind::kSprosse:
      return Rgb(0xf1, 0xe8, 0xd6);
  }
  return kInk;
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

void PaintScene(cairo_t* cairo, const Scene& scene, const Layout& layout) {
  cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_width(cairo, std::max(layout.width, layout.height) * kStrokeShare);
  for (const Shape& shape : scene.shapes) {
    TraceOutline(cairo, shape, layout);
    SetColour(cairo, FillColour(shape.kind));
    cairo_fill_preserve(cairo);
    SetColour(cairo, kInk);
    cairo_stroke(cairo);
  }
}

}  // namespace lintavo::drawing
