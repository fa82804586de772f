// The outer boundary of shapes that touch but do not cross: a walk along their edges,
// always taking the outermost one. Needs no reckoning with coordinates beyond comparing
// directions, so it is exact, and it is the usual case: sashes do not overlap.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "lintavo/geom/Flaechenrechnung_intern.h"

namespace lintavo {

/// An edge of a counter-clockwise shape, between two numbered places.
struct Umrisskante {
  std::size_t von = 0;
  std::size_t nach = 0;
  std::size_t ecke = 0;   ///< what Ergebnisecke::ecke is to say
  std::size_t kante = 0;  ///< what Ergebnisecke::kante is to say
};

/// The counter-clockwise outer boundary of every connected group, split where it touches
/// itself. Edges that two shapes share in opposite directions cancel each other.
///
/// @param orte  the places; edges must meet only in places of theirs.
/// @return nothing when they do not, or when a walk does not close.
std::optional<std::vector<Ergebnisring>> AussenUmlaufen(const std::vector<XY>& orte,
                                                        std::vector<Umrisskante> kanten);

}  // namespace lintavo
