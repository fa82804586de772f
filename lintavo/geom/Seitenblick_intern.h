// An area as an edge sees it: which stretches of the edge have the area on both
// sides.
//
// Both sides are looked at a little beside the edge, so an edge along the border of
// the area is outside it, and one along the joint of two surfaces is not:
//
//      left   ......xxxxxxxxxxxxx......      x area, i inside
//      edge   ---------iiiiiiiiii------
//      right  .........xxxxxxxxxxxxxxxx
#pragma once

#include <vector>

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

/// Gathers the surfaces of an area from the view of one edge after another.
class Seitenblick {
 public:
  /// Looks from the edge ab, which must be longer than 1e-6 and have coordinates of a
  /// drawing; what was seen from the edge before is forgotten.
  void Richten(const XY& a, const XY& b);
  /// Adds a surface. A point is inside it when a ray from it crosses the ring an odd
  /// number of times, so a ring may touch itself, as that of a closed row of parts does.
  /// True when the whole edge is inside this surface alone.
  bool Hinzufuegen(const std::vector<XY>& ring);
  /// The stretches inside the area, in order; they may reach past the edge's ends.
  Abschnitte Innen();

 private:
  bool SeiteHinzufuegen(double v, Abschnitte& seite);
  bool IstGanz(double von, double bis) const;

  XY a_;
  XY richtung_;
  double laenge_ = 0.0;
  std::vector<XY> gesehen_;
  std::vector<double> schnitte_;
  Abschnitte links_;
  Abschnitte rechts_;
};

/// The stretches of an edge of the given length as points on it, ends within 1e-6 of
/// the edge's own ends being these exactly.
struct Teilstueck {
  XY a;
  XY b;
};
Teilstueck TeilDerKante(const XY& a, const XY& b, double laenge, const Abschnitt& abschnitt);

}  // namespace lintavo
