// Hatching of areas.
#pragma once

#include <vector>

#include "lintavo/drawing/Scene.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// The pieces inside an outline of parallel lines that rise at 45°, `distance` apart. They
/// belong to one pattern, so neighbouring areas are hatched evenly. Nothing when there would
/// be more than some thousand lines.
std::vector<Trace> HatchingOf(const std::vector<Point>& outline, double distance);

}  // namespace lintavo::drawing
