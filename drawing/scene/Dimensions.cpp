// Lines, extension lines and arrowheads of dimensions.
#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/view/DimensionLine.h"

#include "scene/Dimensions_intern.h"
#include "scene/Shapes_intern.h"

namespace lintavo::drawing {
namespace {

// Shares of the window's longer side.
constexpr double kTextShare = 0.023;
// Shares of a digit's height.
constexpr double kArrowLengthShare = 1.0;
constexpr double kArrowWidthShare = 0.4;
constexpr double kOverhangShare = 1.2;
constexpr double kGapShare = 0.4;
constexpr double kFirstRowShare = 4.0;
constexpr double kRowStepShare = 2.8;
// Height of a digit on a plan, in millimetres.
constexpr double kTextMillimetres = 2.5;
// Two arrowheads need a dimension as long as so many of them; outside of it the
// line goes on for so many.
constexpr double kArrowsInside = 3.0;
constexpr double kArrowsOutside = 2.0;
// A dimension farther away than this, in window sizes, would leave nothing of the
// window to be seen.
constexpr double kFarthest = 10.0;

// The number of the colour of lines and arrowheads.
constexpr long kAttributLinien = 1;

bool LiesNear(const Box& box, double extent, const Point& point) {
  const double reach = kFarthest * extent;
  return point.x >= box.left - reach && point.x <= box.right + reach &&
         point.y >= box.bottom - reach && point.y <= box.top + reach;
}

Line LineOf(LineKind kind, long masz, const Point& from, const Point& to) {
  Line line;
  line.kind = kind;
  line.masz = masz;
  line.attribut = kAttributLinien;
  line.from = from;
  line.to = to;
  return line;
}

// The coordinate across a dimension line.
double Point::*Across(const DrawnDimension& dimension) {
  return dimension.upright ? &Point::x : &Point::y;
}

// How much farther out a line beside the window lies when its distance is stretched.
double ShiftOf(const DrawnDimension& dimension, const Box& box, double factor) {
  const double place = dimension.from.*Across(dimension);
  const double low = dimension.upright ? box.left : box.bottom;
  const double high = dimension.upright ? box.right : box.top;
  if (place < low) return (factor - 1.0) * (place - low);
  return place > high ? (factor - 1.0) * (place - high) : 0.0;
}

// Draws the end of an extension line that points to the window out to it.
void ReachToWindow(const DrawnDimension& dimension, const Box& box, double gap, Line& line) {
  double Point::*const across = Across(dimension);
  const double low = (dimension.upright ? box.left : box.bottom) - gap;
  const double high = (dimension.upright ? box.right : box.top) + gap;
  double& smaller = line.from.*across < line.to.*across ? line.from.*across : line.to.*across;
  double& larger = line.from.*across < line.to.*across ? line.to.*across : line.from.*across;
  if (dimension.from.*across < low) larger = std::max(larger, low);
  if (dimension.from.*across > high) smaller = std::min(smaller, high);
}

Point ToPoint(const XY& p) {
  return {p.x, p.y};
}

void AddExtensionLines(const DrawnDimension& dimension, const Box& box, const DimensionSizes& sizes,
                       Scene& scene) {
  const auto lines = ExtensionLines(dimension.line, sizes.overhang);
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    XY from;
    XY to;
    (*lines)[i].GetPunkte(from, to);
    Line line = LineOf(LineKind::kHilfsLinie, dimension.masz, ToPoint(from), ToPoint(to));
    line.bauteil = static_cast<long>(i);
    line.from.*Across(dimension) += dimension.shift;
    line.to.*Across(dimension) += dimension.shift;
    ReachToWindow(dimension, box, sizes.gap, line);
    scene.lines.push_back(line);
  }
}

// The arrowhead mirrored at its tip, which is its first point.
std::vector<Point> TurnedRound(std::vector<Point> arrow) {
  for (std::size_t i = 1; i < arrow.size(); ++i) {
    arrow[i] = {2.0 * arrow[0].x - arrow[i].x, 2.0 * arrow[0].y - arrow[i].y};
  }
  return arrow;
}

void AddArrows(const DrawnDimension& dimension, const DimensionSizes& sizes, Scene& scene) {
  const auto arrows = Arrowheads(dimension.line, sizes.arrowLength, sizes.arrowWidth);
  if (!arrows) return;
  for (const GEOM2_Polygon& arrow : *arrows) {
    std::vector<Point> outline = ToOutline(arrow);
    for (Point& point : outline) point.*Across(dimension) += dimension.shift;
    if (dimension.arrowsOutside) outline = TurnedRound(std::move(outline));
    scene.shapes.push_back(
        {ShapeKind::kMaszPfeil, -1, dimension.masz, std::move(outline), kAttributLinien});
  }
}

void AddDimensionLine(const DrawnDimension& dimension, const DimensionSizes& sizes, Scene& scene) {
  Line line = LineOf(LineKind::kMaszLinie, dimension.masz, dimension.from, dimension.to);
  if (dimension.arrowsOutside) {
    double Point::*const along = dimension.upright ? &Point::y : &Point::x;
    line.from.*along -= kArrowsOutside * sizes.arrowLength;
    line.to.*along += kArrowsOutside * sizes.arrowLength;
  }
  scene.lines.push_back(line);
}

// A dimension that has a line of some length near the window.
bool ReadDimension(const Dimension& measured, const Box& box, const DimensionSizes& sizes,
                   DrawnDimension& dimension) {
  // Only a line of some length has extension lines.
  if (!measured.line || !ExtensionLines(*measured.line, sizes.overhang)) return false;
  dimension.line = *measured.line;
  XY from;
  XY to;
  dimension.line.GetPunkte(from, to);
  dimension.from = ToPoint(from);
  dimension.to = ToPoint(to);
  dimension.upright = !measured.horizontal;
  dimension.shift = ShiftOf(dimension, box, sizes.lineFactor);
  dimension.from.*Across(dimension) += dimension.shift;
  dimension.to.*Across(dimension) += dimension.shift;
  const double length = dimension.line.GetLaenge();
  dimension.arrowsOutside = length < kArrowsInside * sizes.arrowLength;
  dimension.length = std::abs(measured.length);
  const double extent = std::max(box.right - box.left, box.top - box.bottom);
  return LiesNear(box, extent, dimension.from) && LiesNear(box, extent, dimension.to);
}

}  // namespace

DimensionSizes SizesFor(double extent, const MeasureSizes& wanted, double unit, double millimetre) {
  const auto size = [&](double length, double usual) {
    return length > 0.0 ? std::min(length * unit, extent) : usual;
  };
  const bool onPaper = std::isfinite(millimetre) && millimetre > 0.0;
  const double text =
      size(wanted.textHeight, onPaper ? kTextMillimetres * millimetre : kTextShare * extent);
  return {text,
          size(wanted.arrowLength, kArrowLengthShare * text),
          size(wanted.arrowWidth, kArrowWidthShare * text),
          size(wanted.extensionLength, kOverhangShare * text),
          kGapShare * text,
          wanted.lineFactor > 0.0 ? wanted.lineFactor : 1.0,
          kFirstRowShare * text,
          kRowStepShare * text};
}

std::vector<DrawnDimension> AddDimensions(const WindowView& view, const Box& box,
                                          const DimensionSizes& sizes, bool chains, Scene& scene) {
  std::vector<DrawnDimension> dimensions;
  for (std::size_t i = 0; i < view.dimensions.size(); ++i) {
    DrawnDimension dimension;
    dimension.masz = static_cast<long>(i);
    if (ReadDimension(view.dimensions[i], box, sizes, dimension)) dimensions.push_back(dimension);
  }
  if (chains) ArrangeInRows(box, sizes, dimensions);
  for (const DrawnDimension& dimension : dimensions) {
    AddDimensionLine(dimension, sizes, scene);
    AddExtensionLines(dimension, box, sizes, scene);
    AddArrows(dimension, sizes, scene);
  }
  return dimensions;
}

}  // namespace lintavo::drawing
