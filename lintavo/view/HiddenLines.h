// The view of a window, or of a sash alone, with hidden lines removed.
#pragma once

#include <vector>

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"
#include "lintavo/view/WindowView.h"

namespace lintavo {

/// A stretch of an edge that is seen.
struct VisibleEdge {
  XY from;
  XY to;
  const Piece* piece = nullptr;  ///< a piece of the view
  int side = 0;                  ///< it lies on the edge that begins at this corner of its outline
  int colour = 0;                ///< the piece's attribute a1, from outside a2
  int priority = 0;              ///< the piece's attribute a3, from outside a4
};

/// The edge as a segment with its colour and priority.
LINTAVO_API CMStrecke LineOf(const VisibleEdge& edge);

/// Replaces `edges` by those to be drawn (attribute 1) of all pieces, each cut away where a
/// piece nearer to the viewer covers it.
///
/// The window is a pile of layers, as `WindowView::order` has them: a sash covers what lies
/// behind it with its whole outline, glass included, the frame with its pieces. Where edges
/// coincide (within 0.001) that of the highest priority is drawn, of equals the nearer.
/// The edges point into the view, which must outlive them.
///
/// @return false, with no edges, when there would be more than 100,000.
LINTAVO_API bool FindVisibleEdges(const WindowView& view, ViewSide side,
                                  std::vector<VisibleEdge>& edges);

/// The same of a sash alone, seen from inside.
LINTAVO_API bool FindVisibleEdges(const Sash& sash, std::vector<VisibleEdge>& edges);

}  // namespace lintavo
