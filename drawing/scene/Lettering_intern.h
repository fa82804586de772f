// How wide text is: the advance widths of a common sans-serif font, so that a layout is the
// same with every font of a machine, which is squeezed into what the layout reserved.
#pragma once

#include <string_view>

namespace lintavo::drawing {

/// Height of a digit and of a capital letter in units of the font's size.
inline constexpr double kDigitHeight = 0.71;

/// How far letters such as "g" reach below the line that they stand on, in digit heights.
inline constexpr double kDescent = 0.3;

/// Width of a line of UTF-8 text in digit heights. Bytes that are no UTF-8 count as one
/// character each.
double LetteringWidth(std::string_view text);

}  // namespace lintavo::drawing
