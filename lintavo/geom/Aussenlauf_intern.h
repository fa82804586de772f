// The outer boundary of shapes: where edges cross they are cut, and then a walk along the
// edges always takes the outermost one. Shapes that share edges are never left apart, and
// where shapes only touch, the usual case, nothing but directions is compared.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// An edge of a counter-clockwise shape, between two numbered places.
struct Umrisskante {
  std::size_t von = 0;
  std::size_t nach = 0;
  std::size_t ecke = 0;   ///< what Ergebnisecke::ecke is to say
  std::size_t kante = 0;  ///< what Ergebnisecke::kante is to say
  std::size_t form = 0;   ///< number of its shape
};

/// The counter-clockwise outer boundary of every connected group, split where it touches
/// itself. Edges that two shapes share in opposite directions cancel each other; where
/// edges cross, the boundary has a corner without Ergebnisecke::ecke.
///
/// @param orte  the places.
/// @return nothing when a shape crosses itself, when there are too many crossings (20,000)
///         for this, or when a walk does not close.
std::optional<std::vector<Ergebnisring>> AussenUmlaufen(Liste<XY> orte, Liste<Umrisskante> kanten);

}  // namespace lintavo
