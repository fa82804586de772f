// What the outlines of all shapes have in common: the placement rectangle, the
// ends of a shared arch, and the check of the finished vertices.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

/// The placement rectangle of a sash, in drawing units.
struct PlazierungsBox {
  double xmin = 0.0;
  double ymin = 0.0;
  double xmax = 0.0;
  double ymax = 0.0;

  double Breite() const { return xmax - xmin; }
  double Hoehe() const { return ymax - ymin; }
};

/// How far the arch that a sash shares reaches beyond the sash on either side.
struct Ueberstand {
  double links = 0.0;
  double rechts = 0.0;
};

/// The box spanned by two opposite corners, given in any order. Throws 22 when
/// it has no area; so does a box that is not finite.
PlazierungsBox PlazierungsBoxVon(const XY& p1, const XY& p2);

/// Where the two reference points, given in any order, lie beyond the box.
/// Throws 46 or 47 when one lies inside it.
Ueberstand UeberstandDerBezugspunkte(const PlazierungsBox& box, const XY& p3, const XY& p4);

/// Throws 22 when a vertex is not finite: coefficients and rises come from
/// files and may hold anything.
void PruefeEndlich(const GEOM2_Polygon& outline);

}  // namespace lintavo
