// Random valid windows: the same seed gives the same window on every machine.
//
// What comes out is a window that a drawing program could have made: a grid of 1 to 7
// columns and rows, sashes that divide it, all shapes where they may stand, mullions,
// bars, extra parts, fillings, fittings and dimensions. Each can be calculated.
#pragma once

#include <cstdint>
#include <string>

#include "tests/support/Fensterentwurf.h"

namespace lintavo::test {

/// The description of the window of a seed.
Fensterentwurf Zufallsentwurf(std::uint64_t seed);

/// The same window as the text of a macro file.
inline std::string ZufallsMakro(std::uint64_t seed) {
  return MakroText(Zufallsentwurf(seed));
}

}  // namespace lintavo::test
