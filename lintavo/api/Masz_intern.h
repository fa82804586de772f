// Measures that hosts hand in.
#pragma once

#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMZusatzMasz.h"

namespace lintavo {

/// Whether a value can be a width, thickness or length.
inline bool IstMasz(double value) {
  return value >= kNullLaenge && std::isfinite(value);
}

/// Whether a value can be an overlap or an offset.
inline bool IstMaszOderNull(double value) {
  return value >= 0.0 && std::isfinite(value);
}

/// Gives a dimension a new length. It takes over the sign of the stored one,
/// which tells the side that the dimension is counted to.
inline void SetzeLaenge(CMZusatzMasz& masz, double length) {
  masz.dLaenge = masz.dLaenge < 0.0 ? -length : length;
}

}  // namespace lintavo
