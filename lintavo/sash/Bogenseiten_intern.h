// Which sides of an outline belong to a bent frame part.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// For every side whether it is merged with such neighbours into one part: a side shorter
/// than maxLength, and not vertical, that turns from its neighbour before or to the one
/// after it by less than maxAngle degrees to the left.
Liste<bool> Bogenseiten(const GEOM2_Polygon& polygon, double maxLength, double maxAngle,
                        Speicher speicher);

/// The same of side i alone.
bool IstBogenseite(const GEOM2_Polygon& polygon, int i, double maxLength, double maxAngle);

}  // namespace lintavo
