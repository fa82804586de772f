// Cutting a segment at the outline of a polygon: where on its way it is inside.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// A stretch of a segment, by the lengths from its start.
struct Streckenstueck {
  double von = 0.0;
  double bis = 0.0;
  bool innen = false;
};

/// Cuts the segment ab into stretches that lie inside the polygon and stretches that lie
/// outside, in order and taking turns; together they are the whole segment. Points within
/// tol of an edge count as inside, and a cut within tol of an end of the segment is that
/// end, exactly. A segment shorter than tol, not finite or beyond kGroessteKoordinate
/// gives no stretches; a polygon that is no area has nothing inside.
Liste<Streckenstueck> StreckeTeilen(const XY& a, const XY& b, const GEOM2_Polygon& polygon,
                                    double tol, Speicher speicher);
/// The same for what starts at a and runs for a length in a direction, a unit vector. What
/// is near the start then does not depend on where the end is, to the last bit.
Liste<Streckenstueck> StreckeTeilen(const XY& a, const XY& richtung, double laenge,
                                    const GEOM2_Polygon& polygon, double tol, Speicher speicher);

}  // namespace lintavo
