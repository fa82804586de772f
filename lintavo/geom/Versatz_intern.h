// The offset of a polygon by one distance per edge, as a ring that remembers its sources.
#pragma once

#include "lintavo/geom/Eckenring_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// What GEOM2_Polygon::ParallelPolygon makes of the polygon when it cleans: the ring, or
/// one of fewer than 3 corners where nothing remains. A cut of a corner is marked, unless
/// the ring had to be taken apart.
Eckenring Versetzt(const GEOM2_Polygon& polygon, const double* abstaende, Speicher speicher);

}  // namespace lintavo
