// Whether two sides, or two whole outlines, cover each other: the questions that the
// window model asks when it fits sashes to their frame.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// True when the sides a1a2 and b1b2, in either direction, are collinear within 0.001
/// (both ends of the shorter one lie on the longer one's line) and share more than
/// 0.001 of length. Sides that merely touch at their ends do not cover each other.
LINTAVO_API bool SeitenDecken(const XY& a1, const XY& a2, const XY& b1, const XY& b2);

/// True when the insides of two outlines overlap by more than tol: some piece that they
/// have in common is wider than tol on average. Outlines that touch do not overlap, nor
/// do outlines with fewer than 3 vertices or coordinates that are no drawing. Outlines so
/// entangled that more than 300,000 pairs of edges touch count as overlapping.
LINTAVO_API bool PolygoneUeberlappen(const GEOM2_Polygon& a, const GEOM2_Polygon& b, double tol);

}  // namespace lintavo
