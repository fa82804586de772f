// The union of outlines.
#pragma once

#include <vector>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Export.h"

/// The outer boundary of the union of shapes, counter-clockwise.
///
/// Shapes may touch, overlap or miss each other by up to tol; contacts may be partial,
/// slanted or T-shaped. Each shape may run either way round. The outline's vertices are
/// the shapes' own, with their coordinates and further values; where edges truly cross
/// it has the crossing, with the further values of the edge's start. The attribute of an
/// edge is that of the source edge on which it lies. Holes are dropped, and of several
/// separate outlines the one with the largest area remains. Where shapes meet, vertices
/// within tol of the line of their neighbours are dropped, others only within 1e-6. The
/// outline starts at the first vertex, in the order of the shapes, that it has.
///
/// @param polygone shapes with fewer than 3 vertices are ignored.
/// @param umriss   emptied when the result is false; may be one of the shapes.
/// @param tol      0.001 for sashes.
/// @param box      xmin, ymin, xmax, ymax of all vertices of all shapes; starts at +1e30
///                 and -1e30 and stays there where there are none.
/// @return false without any outline: no shapes, no area, coordinates that are not
///         finite or beyond 1e9, more than 300,000 pairs of crossing edges.
LINTAVO_API bool bPolygoneAddieren(const std::vector<GEOM2_Polygon>& polygone,
                                   GEOM2_Polygon& umriss, double tol, double box[4]);
