// Outlines of parts that close round.
#pragma once

#include <vector>

#include "lintavo/drawing/Scene.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// What a pen follows of the outline of a part that closes round, as the frame of a circle:
/// its outer and its inner side without the seam between them. Empty for any other outline,
/// which the pen follows whole.
std::vector<Trace> WithoutSeam(const std::vector<Point>& outline);

}  // namespace lintavo::drawing
