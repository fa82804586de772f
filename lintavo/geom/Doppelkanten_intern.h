// Edges that several parts have in common, drawn once.
#pragma once

#include <cstddef>
#include <vector>

#include "lintavo/geom/CMStrecke.h"

namespace lintavo {

/// A visible edge of a picture.
struct Bildkante {
  CMStrecke strecke;
  bool istFuellung = false;  ///< gives way to the edges of all else of the same Prio
  std::size_t quelle = 0;    ///< the caller's own number
};

/// The edges in their order, without what coincides with an edge that
/// goes before: one of higher Prio, of equals one that is no filling's, then the
/// earlier one. Two edges coincide where they are collinear within 0.001 (both ends of
/// the shorter one lie on the longer one's line) and share more than 0.001 of length
/// or half of the shorter one. Of a partly coinciding edge the rest stays; a rest up to
/// 0.001 long is none.
std::vector<Bildkante> OhneDoppelte(const std::vector<Bildkante>& kanten);

}  // namespace lintavo
