// Sizes of paper and of pens that scenes, layout and writers agree on.
#pragma once

namespace lintavo::drawing {

/// The longer side of a picture of no scale in pixels, as sizes in pixels are meant.
inline constexpr double kLongSidePixels = 1600.0;

/// The same in points of a PDF.
inline constexpr double kLongSidePoints = 800.0;

/// What such a picture counts as for pens: the longer side of a sheet A4, in millimetres.
inline constexpr double kLongSideMillimetres = 297.0;

/// The margin on each side, as a share of the paper's longer side.
inline constexpr double kMarginShare = 0.04;

/// The margin of a picture to scale, in millimetres.
inline constexpr double kPlanMargin = 10.0;

/// The longest page in millimetres: more than any printer takes, and what PDF allows.
inline constexpr double kLongestPage = 5000.0;

inline constexpr double kMillimetresPerInch = 25.4;

/// Lengths of dashes and of the gaps between them, in millimetres on paper.
inline constexpr double kDash = 2.0;
inline constexpr double kDashGap = 1.2;

}  // namespace lintavo::drawing
