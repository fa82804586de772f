// Rings of bare points: which corners are needed, and whether a ring is free of
// loops. Shared by clean-up, offset and union.
#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// Indices, ascending, of the corners that a ring cannot do without; empty when fewer
/// than 3 remain.
///
/// A corner goes when it coincides with the one after it within tolDeckung, when it is
/// the tip of a fold, or when it and every corner that went beside it lie within their
/// tolerances of the line of the remaining neighbours, so a flat arc of many short
/// sides is never worn away step by step.
///
/// @param tolLinie  one tolerance per corner.
Liste<std::size_t> NoetigeEcken(std::span<const XY> ring, std::span<const double> tolLinie,
                                double tolDeckung, Speicher speicher = {});

/// An edge between two numbered places.
struct Verbindung {
  XY a;
  XY b;
  std::size_t von = 0;
  std::size_t nach = 0;
};

/// The pairs of edges, by index, that come within tol of each other, an end place with the
/// same number apart; stops when there are more than hoechstens. tol 0 leaves rounding.
std::vector<std::pair<std::size_t, std::size_t>> Beruehrungen(std::span<const Verbindung> kanten,
                                                              std::size_t hoechstens,
                                                              double tol = 0.0);

/// The edges of a ring; its places are numbered from ersterOrt on.
void VerbindungenAnhaengen(std::span<const XY> ring, std::size_t ersterOrt,
                           std::vector<Verbindung>& kanten);

/// True when the ring, of 3 corners or more, turns one way only, at every corner, and comes round
/// once: such a ring has no loops.
bool IstKonvex(std::span<const XY> ring);

/// True when no two edges of the ring come within 1e-6 of each other, except neighbours in
/// their common corner.
bool IstEinfach(std::span<const XY> ring);

/// Splits a closed walk over numbered places wherever it comes back to a place: each part
/// holds indices into orte. Parts with fewer than 3 corners are left out.
std::vector<std::vector<std::size_t>> AnBeruehrungenTeilen(std::span<const std::size_t> orte);

/// Signed area, positive for counter-clockwise order.
double Ringflaeche(std::span<const XY> ring);

/// Twice the area over the perimeter: the width of a narrow strip; 0 without an area.
double Ringbreite(std::span<const XY> ring);

/// What chooses one of several rings.
struct Ringwahl {
  double flaeche = 0.0;
  double umfang = 0.0;
  std::vector<std::size_t> quellen;  ///< numbers that its corners come from, ascending
};

Ringwahl RingwahlVon(std::span<const XY> ring, std::vector<std::size_t> quellen);

/// Index of the ring with the largest area, of equals the one with the earliest sources;
/// one past the end when none has an area.
std::size_t Groesster(std::span<const Ringwahl> ringe);

}  // namespace lintavo
