// The scales of a sheet's windows.
#pragma once

#include <vector>

#include "lintavo/drawing/Plan.h"

namespace lintavo::drawing {

/// A size in millimetres on paper, or in the window's units.
struct Extent {
  double width = 0.0;
  double height = 0.0;
};

/// The largest usual scale at which a window of this size, with what stands around it, fits
/// into a place; 0 when there is none.
double ScaleFor(const Extent& window, const Extent& place, LengthUnit unit);

/// The largest usual scale at which every window fits into a place, those left aside that need
/// one below 1:1000.
double CommonScale(const std::vector<Extent>& windows, const Extent& place, LengthUnit unit);

}  // namespace lintavo::drawing
