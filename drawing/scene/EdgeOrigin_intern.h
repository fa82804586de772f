// Which part, and which of its sides, a visible edge belongs to.
#pragma once

#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

/// Gives the visible edges among the scene's lines the part and side of the scene's shapes on
/// which they lie: of several the one that is painted last.
void TraceBack(Scene& scene);

}  // namespace lintavo::drawing
