// Which of a window's layers, its frame and its sashes, lies before which.
#pragma once

#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Scene.h"

namespace lintavo::drawing {

/// Stands for the window's frame in a list of layers, whose other numbers are sashes.
inline constexpr long kRahmenEbene = -1;

/// Frame and sashes, the farthest from the viewer first: the order of painting.
std::vector<long> LayersFromBehind(const CFeApi& window, ViewSide side);

/// Whether a sash opens to the side from which it is seen.
bool OpensTowards(const CFeApi& window, long fluegel, ViewSide side);

}  // namespace lintavo::drawing
