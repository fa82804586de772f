// From the kernel's polygon to the one that crosses the boundary.
#pragma once

#include "lintavo/api/CFeApiPolygon.h"
#include "lintavo/geom/GEOM2_Polygon.h"

namespace lintavo {

/// Replaces what `to` holds by the points of `from`.
inline void KopierePolygon(const GEOM2_Polygon& from, CFeApiPolygon& to) {
  to.Delete();
  to.SetOrder(from.GetAnzahl());
  for (int i = 0; i < from.GetAnzahl(); ++i) from.GetPunkt(i, to.pdX[i], to.pdY[i]);
}

}  // namespace lintavo
