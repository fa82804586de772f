// Brings neighbouring shapes together before they are united: vertices that lie within
// a tolerance of another shape's vertex or edge are put onto it, so that partly shared,
// slanted and T-shaped contacts meet in the very same points.
#pragma once

#include <cstddef>
#include <span>

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// One corner of a shape, as handed in.
struct Formecke {
  XY ort;
  std::size_t form = 0;  ///< number of its shape
};

/// One corner of a shape after catching.
struct Fangecke {
  std::size_t ort = 0;    ///< the corner handed in whose place this one has
  std::size_t ecke = 0;   ///< the corner itself; for a corner put onto an edge, that edge's
  std::size_t kante = 0;  ///< the corner handed in at which the outgoing edge starts
  bool eingefuegt = false;
};

struct Fangergebnis {
  /// Per shape its ring, in the order handed in; empty when it has no area left.
  Liste<Liste<Fangecke>> ringe;
  /// Per corner handed in, meaningful for those that are a place: whether several shapes
  /// meet here.
  Liste<bool> treffpunkt;
};

/// @param ringe  per shape the numbers of its corners in counter-clockwise order, and
///               where the shape was handed in clockwise the edges' attributes follow
///               from Fangecke::kante.
/// @param kanten per shape and ring position the corner at which the outgoing edge
///               starts in the order handed in.
Fangergebnis FormenFangen(std::span<const Formecke> ecken,
                          std::span<const Liste<std::size_t>> ringe,
                          std::span<const Liste<std::size_t>> kanten, double tol,
                          Speicher speicher);

}  // namespace lintavo
