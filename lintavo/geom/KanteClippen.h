// Cutting edges to outlines: what of an edge lies inside, and what stays visible
// beside the surfaces that cover it.
#pragma once

#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Export.h"

/// Cuts an edge to its longest piece inside the polygon, the first of equals. A stretch
/// along the polygon's border counts as inside.
///
/// @return whether something of it lies inside. Else the edge stays as it is; so it
///         does when it is shorter than 1e-6, not finite or beyond 1e9, and when the
///         polygon is no area.
LINTAVO_API bool ClippKante(const GEOM2_Polygon& polygon, CMStrecke& kante);

/// Appends the pieces of an edge that lie inside any of the polygons (bInnen true) or
/// outside all of them (false), in the direction and with colour and priority of the
/// edge. Both together are the whole edge.
///
/// The polygons are one area: they may touch and overlap, run either way round, and
/// a point is inside one of them when a ray from it crosses its border an odd number of
/// times. A stretch is inside when the area lies on both of its sides, looked at within
/// 1e-5:
///
///        ____________
///       |     |      |        b  along the border of the area: outside, as a line on
///       |     j      |           the border of a surface is not covered by it
///       |_____|__b___|        j  along the joint of two polygons: inside
///
/// Pieces and gaps shorter than 1e-6 are none. An edge that is shorter than that, not
/// finite or beyond 1e9 has no pieces; polygons with fewer than 3 vertices or with such
/// coordinates have no inside.
///
/// @param teile may be any list; what it holds stays.
/// @return whether a piece was appended.
LINTAVO_API bool ClippKanteAnPolys(const CMStrecke& kante, const std::vector<GEOM2_Polygon>& polys,
                                   std::vector<CMStrecke>& teile, bool bInnen);
