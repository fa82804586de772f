// Vanishing sides: what polygon offsets and the joined outlines of bent components
// share. A row of shifted sides is intersected neighbour by neighbour; sides that
// the shift turned round are dropped one at a time and their neighbours are
// intersected anew, until none is left.
//
//      \      /            \      /
//   p   \    /  q           \    /
//        \__/         ->     \  /        side i between p and q is turned round:
//        /i \                 \/         p and q meet before it
//
// One at a time, in any order, is exact for convex outlines: a side that is turned round
// between neighbours whose turn is below a half turn is implied by them, and where the
// turn reaches a half turn nothing is left of the outline. Other outlines are followed by
// Versatzfront_intern.h.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// An infinite line.
struct Gerade {
  XY punkt;
  XY richtung;  ///< need not have length 1
};

/// One side of the chain. Usually a single line; a side that joins several carries the
/// line that its start corner is cut on and the one for its end corner.
struct Kettenseite {
  Gerade vorn;
  Gerade hinten;
  XY richtung;  ///< the way from start to end corner while the side is not turned round

  Kettenseite() = default;
  explicit Kettenseite(const Gerade& gerade)
      : vorn(gerade), hinten(gerade), richtung(gerade.richtung) {}
  Kettenseite(const Gerade& anfang, const Gerade& ende, const XY& weg)
      : vorn(anfang), hinten(ende), richtung(weg) {}
};

struct Kettenecke {
  XY punkt;
  std::size_t seite = 0;  ///< index of the side that starts here
};

/// What is left of a closed chain.
struct GeschlosseneKette {
  Liste<Kettenecke> ecken;  ///< in order; empty when the outline vanished
  bool gedreht = false;     ///< turned sides remain (never for convex outlines)
};

/// Whether the ways round an outline turn to one side only (umlauf +1 left, -1 right), and
/// once round.
bool SindKonvex(std::span<const XY> wege, int umlauf);

/// Whether a side is turned round: side i runs from ecken[i] to the next corner, against
/// wege[i].
bool HatGedrehteSeite(std::span<const XY> ecken, std::span<const XY> wege);

/// Whether a side is turned round or has no length left.
bool HatVerschwundeneSeite(std::span<const XY> ecken, std::span<const XY> wege);

/// Intersects two lines; false, p untouched, when they are parallel.
bool GeradenSchneiden(const Gerade& a, const Gerade& b, XY& p);

/// Drops the vanished sides of a convex outline, in time n log n or better.
///
/// @param seiten  the shifted sides in order.
/// @param ecken   ecken[i] is where side i starts, that is its corner with the side
///                before it; as many as sides.
/// @param umlauf  +1 for a counter-clockwise outline, -1 for a clockwise one.
GeschlosseneKette VerschwundeneSeitenLoeschen(const Liste<Kettenseite>& seiten,
                                              std::span<const XY> ecken, int umlauf);

/// The same for the sides between two fixed cut lines, which are seiten.front() and
/// seiten.back() and are never dropped. The first corner lies on the first cut line and
/// the last one on the last, whose index it carries; when every side has vanished one
/// corner remains, where the cut lines meet. Sides whose neighbours are parallel stay,
/// even turned round; neighbouring sides on one line are joined under the first one's
/// index. Empty when there is no corner at all (fewer than 2 lines, parallel cut lines).
Liste<Kettenecke> OffeneKetteSchneiden(const Liste<Kettenseite>& seiten);

}  // namespace lintavo
