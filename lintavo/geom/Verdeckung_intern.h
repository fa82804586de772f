// Hiding: which stretches of an edge lie under surfaces that are nearer to the
// viewer.
#pragma once

#include <cstddef>
#include <vector>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Kastenbaum_intern.h"
#include "lintavo/geom/Seitenblick_intern.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

/// Surfaces that cover edges, each in a layer; layers count from the viewer.
class Verdeckung {
 public:
  /// Outlines with fewer than 3 vertices and those with coordinates that are no
  /// drawing cover nothing.
  void Hinzufuegen(const GEOM2_Polygon& umriss, std::size_t ebene);
  /// Call once after the last surface and before the first question.
  void Sortieren();
  /// Adds the surfaces in layers before `ebene` that may cover the edge ab to the
  /// view from that edge. True as soon as one of them covers all of it: what the others
  /// cover makes no difference then, and most of what is hidden lies under something large.
  bool Beschatten(const XY& a, const XY& b, std::size_t ebene, Seitenblick& blick) const;

 private:
  struct Flaeche {
    std::vector<XY> ring;
    std::size_t ebene;
  };

  std::vector<Flaeche> flaechen_;
  Kastenbaum baum_;
};

}  // namespace lintavo
