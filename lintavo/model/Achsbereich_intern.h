// The range of axes that a window's sashes use.
#pragma once

#include "lintavo/model/CMFenster.h"

namespace lintavo {

/// Lowest and highest index of each direction. A window without sashes leaves the
/// presets, of which no minimum is an axis.
struct Achsbereich {
  long minJ = CMFenster::kKleinsterIndexStart;
  long maxJ = 0;
  long minK = CMFenster::kKleinsterIndexStart;
  long maxK = 0;
};

inline Achsbereich BenutzteAchsen(const CMFenster& fenster) {
  Achsbereich bereich;
  fenster.GetMinMaxAchsIndizes(bereich.minJ, bereich.maxJ, bereich.minK, bereich.maxK);
  return bereich;
}

}  // namespace lintavo
