// Hiding: which stretches of an edge lie under surfaces that are nearer to the
// viewer.
//
// An edge is hidden where there is a nearer surface on both sides of it, so an edge
// along the border of a surface stays, and one along the joint of two surfaces does
// not. Both sides are looked at a little beside the edge:
//
//      left   ......xxxxxxxxxxxxx......      x covered, h hidden
//      edge   ---------hhhhhhhhhh------
//      right  .........xxxxxxxxxxxxxxxx
#pragma once

#include <cstddef>
#include <vector>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/model/Kastenbaum_intern.h"

namespace lintavo {

/// A stretch of an edge, by the lengths from its start.
struct Spanne {
  double von = 0.0;
  double bis = 0.0;
};

/// The stretches of one edge that surfaces cover, on its left and on its right,
/// gathered in any order.
struct Schatten {
  std::vector<Spanne> links;
  std::vector<Spanne> rechts;

  void Leeren();
};

/// Surfaces that cover edges, each in a layer; layers count from the viewer. A
/// point is inside a surface when a ray from it crosses the outline an odd number of
/// times, so an outline may touch itself, as that of a closed ring of parts does.
class Verdeckung {
 public:
  /// Outlines with fewer than 3 vertices and those with coordinates that are no
  /// drawing cover nothing.
  void Hinzufuegen(const GEOM2_Polygon& umriss, std::size_t ebene);
  /// Call once after the last surface and before the first question.
  void Sortieren();
  /// Adds what the surfaces in layers before `ebene` cover of the edge ab, which must
  /// be longer than 1e-6 and have coordinates of a drawing.
  void Beschatten(const XY& a, const XY& b, std::size_t ebene, Schatten& schatten) const;

 private:
  struct Flaeche {
    std::vector<XY> ring;
    std::size_t ebene;
  };

  std::vector<Flaeche> flaechen_;
  Kastenbaum baum_;
};

/// What the shadow leaves of an edge of the given length: its visible stretches in
/// order. Stretches and gaps below 1e-6 are none. Sorts the shadow.
std::vector<Spanne> SichtbareSpannen(double laenge, Schatten& schatten);

}  // namespace lintavo
