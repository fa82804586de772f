// The range of axes that a window's sashes use, and the dimensions that span it.
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

/// Indices of the dimensions that drive the overall size, -1 for none: the first one-sided
/// ones between the outermost axes, both ends on the grid. One between corner points moves
/// corners, whatever axes these belong to.
struct Gesamtmasze {
  long breite = -1;
  long hoehe = -1;
};

Gesamtmasze SucheGesamtmasze(const CMFenster& fenster);

}  // namespace lintavo
