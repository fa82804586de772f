// Printing results so that two builds of the library can be compared bit for bit.
#pragma once

#include <cstdio>

#include "lintavo/geom/GEOM2_Polygon.h"

namespace lintavo::bench {

/// A number with all of its bits.
inline void Print(double value) {
  std::printf(" %a", value);
}

inline void Print(const GEOM2_Polygon& polygon) {
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& p = polygon.GetEckpunkt(i);
    for (const double value : {p.x, p.y, p.dWert1, p.dWert2}) Print(value);
    std::printf(" %d;", p.Attribut);
  }
  std::printf("\n");
}

/// What the geometry makes of random outlines, loops and degenerate ones among them.
void PrintGeometry();
/// What documents answer when they are asked in random order.
void PrintDocuments();

}  // namespace lintavo::bench
