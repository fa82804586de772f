// From the model's drawings to the records that cross the boundary.
#pragma once

#include <vector>

#include "lintavo/api/CFeApiPolygon.h"
#include "lintavo/api/CFeApiStrecken.h"
#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"

namespace lintavo {

/// Replaces what `to` holds by the points of `from`.
inline void KopierePolygon(const GEOM2_Polygon& from, CFeApiPolygon& to) {
  to.Delete();
  to.SetOrder(from.GetAnzahl());
  for (int i = 0; i < from.GetAnzahl(); ++i) from.GetPunkt(i, to.pdX[i], to.pdY[i]);
}

/// Replaces what `to` holds by the given segments.
inline void KopiereStrecken(const std::vector<CMStrecke>& from, CFeApiStrecken& to) {
  to.SetOrder(static_cast<int>(from.size()));
  for (int i = 0; i < to.lAnzahl; ++i) {
    const CMStrecke& strecke = from[static_cast<std::size_t>(i)];
    XY a;
    XY b;
    strecke.GetPunkte(a, b);
    to.pdX1[i] = a.x;
    to.pdY1[i] = a.y;
    to.pdX2[i] = b.x;
    to.pdY2[i] = b.y;
    to.piFarbe[i] = strecke.GetFarbe();
    to.piPrio[i] = strecke.GetPrio();
  }
}

}  // namespace lintavo
