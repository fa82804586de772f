// Lines that stand on the parts of a window: opening symbols, fittings, visible edges.
#pragma once

#include <cstddef>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

/// Appends the opening symbol of a sash, cut where one of the scene's shapes from
/// `firstInFront` on covers it.
void AddSymbol(const CFeApi& window, long fluegel, ViewSide side, std::size_t firstInFront,
               Scene& scene);

/// Appends the fittings of all sashes that show them on that side.
void AddFittings(const CFeApi& window, ViewSide side, Scene& scene);

/// Appends the visible edges of the window, each with the part of the scene's shapes that it
/// belongs to.
void AddView(const CFeApi& window, ViewSide side, Scene& scene);

}  // namespace lintavo::drawing
