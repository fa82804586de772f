// What a host may hand in as a measure, and how a dimension takes it over.
#pragma once

#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMZusatzMasz.h"

namespace lintavo {

/// A width, thickness or length: finite and at least 1e-6.
inline bool IstMasz(double value) {
  return value >= kNullLaenge && std::isfinite(value);
}

/// A new length takes over the sign of the stored one, which tells the side that
/// the dimension is counted to.
inline void SetzeLaenge(CMZusatzMasz& masz, double length) {
  masz.dLaenge = masz.dLaenge < 0.0 ? -length : length;
}

}  // namespace lintavo
