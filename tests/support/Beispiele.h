// The example windows as test input, and windows built step by step.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

namespace lintavo::test {

/// Names of all macro files under examples/windows, without folder, sorted.
const std::vector<std::string>& BeispielNamen();

/// Path of one of them.
std::string BeispielPfad(const std::string& name);

/// Turns a file name into the name of a parametrised test.
std::string BeispielTestName(const testing::TestParamInfo<std::string>& info);

/// An example window, read and calculated. A failure fails the running test.
CMFenster Beispiel(const std::string& name);

/// The window's lines as they would be stored.
std::vector<std::string> Zeilen(const CMFenster& fenster);

/// Outlines of everything that a window draws: frame and sash parts, mullions,
/// extra parts, and bars on request.
std::vector<GEOM2_Polygon> Umrisse(const CMFenster& fenster, bool mitSprossen = true);

/// Whether two polygons agree vertex for vertex within `tol`.
bool GleichePunkte(const GEOM2_Polygon& a, const GEOM2_Polygon& b, double tol);

/// A grid of touching rectangular sashes, frame and sash templates set, not
/// calculated: `spalten` columns of `breite`, `zeilen` rows of `hoehe`.
CMFenster Raster(int spalten, int zeilen, double breite, double hoehe);

/// Lengths of the dimensions named "Breite" and "Hoehe"; false when one is
/// missing.
bool Gesamtmasze(const CMFenster& fenster, double& breite, double& hoehe);

/// Gives those two dimensions new lengths and calculates. False when one is
/// missing or the calculation fails.
bool Einpassen(CMFenster& fenster, double breite, double hoehe);

}  // namespace lintavo::test
