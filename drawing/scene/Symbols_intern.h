// Lines that stand on the pieces of a window: opening symbols, fittings, visible edges.
#pragma once

#include <cstddef>

#include "lintavo/drawing/Scene.h"
#include "lintavo/view/WindowView.h"

namespace lintavo::drawing {

/// Appends the opening symbol of sash `fluegel`, cut where one of the scene's shapes from
/// `firstInFront` on covers it.
void AddSymbol(const Sash& sash, long fluegel, ViewSide side, std::size_t firstInFront,
               Scene& scene);

/// Appends the fittings of all sashes that show them on that side.
void AddFittings(const WindowView& view, ViewSide side, Scene& scene);

/// Cuts the scene's edges and symbols where its handles and hinges cover them, and drops the
/// surfaces of these.
void CutAtFittings(Scene& scene);

/// Appends the visible edges of the window, each with the piece that it belongs to.
void AddVisibleEdges(const WindowView& view, ViewSide side, Scene& scene);

}  // namespace lintavo::drawing
