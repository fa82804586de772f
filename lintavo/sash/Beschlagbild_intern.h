// What a fitting covers.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/sash/CMBeschlag.h"

namespace lintavo {

/// The outline of a handle or a hinge as `CMBeschlag::GetZeichnung` draws it; empty for any
/// other fitting and where nothing is drawn.
GEOM2_Polygon BeschlagUmriss(const CMBeschlag& beschlag, const XY& p, double angle);

}  // namespace lintavo
