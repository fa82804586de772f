// What stands at the ends of a dimension line.
#pragma once

#include <array>
#include <optional>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// The extension lines: each crosses an end of the line at a right angle, is `length` long and
/// halved by it. None for a line shorter than 1e-6.
LINTAVO_API std::optional<std::array<CMStrecke, 2>> ExtensionLines(const CMStrecke& line,
                                                                   double length);

/// The arrowheads: counter-clockwise triangles whose tips, their first corners, lie on the ends
/// of the line and point outwards. None for a line shorter than 1e-6.
LINTAVO_API std::optional<std::array<GEOM2_Polygon, 2>> Arrowheads(const CMStrecke& line,
                                                                   double length, double width);

}  // namespace lintavo
