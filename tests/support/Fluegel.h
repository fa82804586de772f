// Single sashes without a window, and words for the lines that they draw.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/sash/CMFensterSatzRechteck.h"

namespace lintavo::test {

/// A sash whose frame of one width runs along the inside of an outline.
CMFensterSatzRechteck Fluegel(const GEOM2_Polygon& umriss, double rahmenbreite);

/// Segments from pairs of points: "(0,0) (10,0)  (10,0) (10,5)" are two.
std::vector<CMStrecke> Linien(const std::string& text);

/// The same segments within tol, in any order and either direction.
testing::AssertionResult GleicheLinien(const std::vector<CMStrecke>& erwartet,
                                       const std::vector<CMStrecke>& ist, double tol = 1e-9);

std::string Text(const std::vector<CMStrecke>& linien);

}  // namespace lintavo::test
