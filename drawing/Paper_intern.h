// The size of paper that scenes and pictures agree on.
#pragma once

namespace lintavo::drawing {

/// The longer side of a picture in pixels, as sizes in pixels are meant.
inline constexpr double kLongSidePixels = 1600.0;

/// The margin on each side, as a share of the paper's longer side.
inline constexpr double kMarginShare = 0.04;

}  // namespace lintavo::drawing
