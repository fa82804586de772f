// Words for tests about geometry: polygons as short text, and assertions that print
// both shapes and the first difference.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/geom/GEOM2_Polygon.h"

namespace lintavo::test {

/// "(0,0) (10,0) (10,10)" as a polygon; a number after the coordinates is the vertex's
/// attribute: "(0,0,1) (10,0,2) ...". Ends the test run on anything else.
GEOM2_Polygon Poly(const std::string& text);
/// The same notation; attributes are written where one is not 0.
std::string Text(const GEOM2_Polygon& polygon);

GEOM2_Polygon Rechteck(double x0, double y0, double x1, double y1);
/// A regular polygon with its first corner at angle 0.
GEOM2_Polygon Vieleck(int ecken, double radius, const XY& mitte = {});
/// Turned about the origin.
GEOM2_Polygon Gedreht(const GEOM2_Polygon& polygon, double grad);
/// Mirrored at the y axis and reversed, so that the orientation stays.
GEOM2_Polygon Gespiegelt(const GEOM2_Polygon& polygon);
double Umfang(const GEOM2_Polygon& polygon);
/// No two edges that are not neighbours touch.
bool IstSchleifenfrei(const GEOM2_Polygon& polygon);

/// Equal vertex for vertex from some start vertex on, within tol; attributes are not
/// looked at.
testing::AssertionResult GleicherRing(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist,
                                      double tol = 1e-9);
/// Equal vertex for vertex, start vertex and attributes included.
testing::AssertionResult GleichesPolygon(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist,
                                         double tol = 1e-9);

}  // namespace lintavo::test
