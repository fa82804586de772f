// Dimension lines of a window, and where their lengths are written.
#pragma once

#include <vector>

#include "lintavo/drawing/Scene.h"
#include "lintavo/view/WindowView.h"

namespace lintavo::drawing {

/// A dimension as it is drawn, ready to have its length written beside it.
struct DrawnDimension {
  long masz = -1;
  CMStrecke line;        ///< where the file puts it
  bool upright = false;  ///< it measures a height
  Point from;            ///< the ends of what it measures, the left or lower one first
  Point to;
  bool arrowsOutside = false;
  double length = 0.0;  ///< what is written
  double shift = 0.0;   ///< by which it is drawn farther out than the file puts it
};

/// Sizes of what belongs to a dimension, in the window's units.
struct DimensionSizes {
  double text;         ///< height of a digit
  double arrowLength;  ///< along the dimension line
  double arrowWidth;
  double overhang;    ///< by which extension lines cross the dimension line
  double gap;         ///< between the window and an extension line, a line and its text
  double lineFactor;  ///< stretches the distance of dimension lines from the window
  double firstRow;    ///< from what is drawn to the nearest row of dimensions
  double rowStep;     ///< from row to row
};

/// The sizes for a window whose longer side is `extent`: what is wanted, in units of
/// `unit`, and for the rest what suits the window, or the paper when a millimetre on it is
/// known.
DimensionSizes SizesFor(double extent, const MeasureSizes& wanted, double unit, double millimetre);

/// Appends the lines and arrowheads of all dimensions around a window that fills
/// `box`, in rows if `chains`; returns what has to be written.
std::vector<DrawnDimension> AddDimensions(const WindowView& view, const Box& box,
                                          const DimensionSizes& sizes, bool chains, Scene& scene);

/// Moves the dimensions into rows below and left of the box, each outside of the shorter ones
/// that it overlaps.
void ArrangeInRows(const Box& box, const DimensionSizes& sizes,
                   std::vector<DrawnDimension>& dimensions);

/// Writes the lengths, each beside its line where it meets no line, shape's edge
/// or text of the scene.
void AddDimensionTexts(const std::vector<DrawnDimension>& dimensions, const DimensionSizes& sizes,
                       Scene& scene);

}  // namespace lintavo::drawing
