// The lettering of dimensions: strokes of a pen, as on a technical drawing.
//
// Pictures use no font of the machine: they need none, and come out the same everywhere.
#pragma once

#include <string_view>

namespace lintavo::drawing {

/// The width of the pen, in letter heights.
inline constexpr double kPenWidth = 0.1;

/// A letter in hundredths of its height, from the middle of the pen: x to the right
/// from its left edge, y upwards from the line that it stands on.
struct Letter {
  char letter;
  double width;
  /// Words of a path: "M x y" begins a stroke, "L x y" draws a straight line,
  /// "C x1 y1 x2 y2 x y" a cubic curve.
  std::string_view path;
};

/// The letter of a character that occurs in numbers; an empty one for any other.
const Letter& LetterOf(char character);

/// Hundredths of the height between two letters.
inline constexpr double kLetterGap = 24.0;

/// Width of a line of text, pen included, in letter heights.
double LetteringWidth(std::string_view text);

}  // namespace lintavo::drawing
