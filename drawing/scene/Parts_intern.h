// The parts of one layer of a window as filled shapes.
#pragma once

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

/// Appends the parts of the window's frame, those that lie behind first.
void AddRahmenShapes(const CFeApi& window, ViewSide side, Scene& scene);

/// Appends the parts of a sash, those that lie behind first, its filling leading.
void AddFluegelShapes(const CFeApi& window, long fluegel, ViewSide side, Scene& scene);

/// The points of an outline that the façade has handed out.
std::vector<Point> ToOutline(const CFeApiPolygon& polygon);

}  // namespace lintavo::drawing
