// The example windows as test input, and windows built step by step.
#pragma once

#include <string>
#include <vector>

#include "lintavo/model/CMFenster.h"

namespace lintavo::test {

/// Names of all macro files under examples/windows, without folder, sorted.
const std::vector<std::string>& BeispielNamen();

/// Path of one of them.
std::string BeispielPfad(const std::string& name);

/// An example window, read and calculated. A failure fails the running test.
CMFenster Beispiel(const std::string& name);

/// The window's lines as they would be stored.
std::vector<std::string> Zeilen(const CMFenster& fenster);

/// A grid of touching rectangular sashes, frame and sash templates set, not
/// calculated: `spalten` columns of `breite`, `zeilen` rows of `hoehe`.
CMFenster Raster(int spalten, int zeilen, double breite, double hoehe);

/// Gives the overall width and height dimensions new lengths and calculates.
/// False when the window has none or the calculation fails.
bool Einpassen(CMFenster& fenster, double breite, double hoehe);

}  // namespace lintavo::test
