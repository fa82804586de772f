// The pieces of a window as filled shapes.
#pragma once

#include <vector>

#include "lintavo/drawing/Scene.h"
#include "lintavo/view/WindowView.h"

namespace lintavo::drawing {

/// Appends the pieces of one layer, given the nearest first, those that lie behind first.
void AddShapes(const std::vector<const Piece*>& nearestFirst, ViewSide side, Scene& scene);

/// The index of a piece in its id; -1 for a filling.
long NumberOf(const Piece& piece);

std::vector<Point> ToOutline(const GEOM2_Polygon& polygon);

}  // namespace lintavo::drawing
