// The pieces of a window as filled shapes.
#include <cstddef>
#include <utility>

#include "scene/Shapes_intern.h"

namespace lintavo::drawing {
namespace {

// The colour of a piece from a side. What is seen between slats has none: the attributes are
// the slats'.
long ColourOf(const Piece& piece, ViewSide side) {
  if (piece.kind == PieceKind::kSlatGround) return 0;
  return piece.attributes[side == ViewSide::kInside ? 0 : 1];
}

}  // namespace

long NumberOf(const Piece& piece) {
  return piece.kind < PieceKind::kGlass ? piece.index : -1;
}

std::vector<Point> ToOutline(const GEOM2_Polygon& polygon) {
  std::vector<Point> outline;
  outline.reserve(polygon.GetEcken().size());
  for (const GEOM2_Eckpunkt& corner : polygon.GetEcken()) outline.push_back({corner.x, corner.y});
  return outline;
}

// Of pieces of one kind that cross, such as two bars, the earlier one runs through: it is
// painted last.
void AddShapes(const std::vector<const Piece*>& nearestFirst, ViewSide side, Scene& scene) {
  for (auto it = nearestFirst.rbegin(); it != nearestFirst.rend(); ++it) {
    const Piece& piece = **it;
    if (piece.outline.GetAnzahl() < 3) continue;
    scene.shapes.push_back({KindOf(piece), piece.sash, NumberOf(piece), ToOutline(piece.outline),
                            ColourOf(piece, side)});
  }
}

}  // namespace lintavo::drawing
