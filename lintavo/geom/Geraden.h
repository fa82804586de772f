// The free point and line routines on which segments and polygons rest. None of
// them throws; degenerate input gets the fixed answers named here.
#pragma once

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

/// Intersects line a1a2 with line b1b2, both infinite.
///
/// Works with slopes: a line whose |dx| is at most tol counts as vertical, lines
/// whose slopes differ by less than tol as parallel.
/// The result lies exactly on line A's equation, so for a steep but not vertical
/// line its y is only as good as slope * |x| * 1e-16: pass the flatter line as A,
/// and coordinates near the origin, where more is needed.
///
/// @return 1 and the point in p; 0 with p untouched for parallel lines.
LINTAVO_API int SchnittpunktGeraden(const XY& a1, const XY& a2, const XY& b1, const XY& b2,
                                    double tol, XY& p);

/// True when p lies in the box of segment ab grown by tol and within tol of its
/// line; all bounds inclusive.
LINTAVO_API bool IsPunktAufStrecke(const XY& p, const XY& a, const XY& b, double tol);

/// Signed distance of p from the line ab, positive to the left of a->b. The plain
/// distance |p - a| when a and b coincide (within 1e-6 in both coordinates).
LINTAVO_API double AbstandPunktGerade(const XY& a, const XY& b, const XY& p);

/// Foot of the perpendicular from p onto the line ab.
///
/// @param tol       compared with the *squared* length of ab: at or below it the
///                  foot is a, the distance 0 and bInnerhalb false. It also widens
///                  the segment, as a fraction of its length.
/// @param bInnerhalb whether the foot lies on the segment.
LINTAVO_API void LotFusspunkt(const XY& p, const XY& a, const XY& b, double tol, XY& fuss,
                              double& dAbstand, bool& bInnerhalb);

/// Shifts the segment (x1,y1)-(x2,y2) by d to its right-hand side.
///
/// @return 1 and the shifted ends; 0 with the outputs untouched when the segment is
///         shorter than tol.
LINTAVO_API int StreckeParallel(double x1, double y1, double x2, double y2, double d, double tol,
                                double& x1n, double& y1n, double& x2n, double& y2n);
