// The strokes of digits and of the other characters that numbers are written with.
#include "Lettering_intern.h"

namespace lintavo::drawing {
namespace {

constexpr Letter kLetters[] = {
    {'0', 56.0,
     "M 28 0 C 10 0 0 20 0 50 C 0 80 10 100 28 100 C 46 100 56 80 56 50 C 56 20 46 0 28 0"},
    {'1', 34.0, "M 4 78 L 30 100 L 30 0"},
    {'2', 56.0,
     "M 2 74 C 2 90 13 100 28 100 C 43 100 54 90 54 75 C 54 65 50 58 43 50 L 0 0 L 56 0"},
    {'3', 56.0, "M 4 100 L 52 100 L 24 60 C 43 60 56 48 56 30 C 56 12 44 0 27 0 C 14 0 5 6 0 16"},
    {'4', 58.0, "M 42 0 L 42 100 L 0 28 L 58 28"},
    {'5', 56.0,
     "M 50 100 L 8 100 L 4 54 C 10 60 18 63 27 63 C 44 63 56 50 56 32 C 56 13 44 0 27 0 "
     "C 15 0 6 5 0 14"},
    {'6', 56.0,
     "M 44 100 C 18 84 0 58 0 31 C 0 12 12 0 28 0 C 44 0 56 12 56 30 C 56 48 44 60 28 60 "
     "C 14 60 4 51 1 40"},
    {'7', 56.0, "M 0 100 L 56 100 L 20 0"},
    {'8', 56.0,
     "M 28 53 C 14 53 4 62 4 76 C 4 90 14 100 28 100 C 42 100 52 90 52 76 C 52 62 42 53 28 53 "
     "C 12 53 0 42 0 27 C 0 11 12 0 28 0 C 44 0 56 11 56 27 C 56 42 44 53 28 53"},
    {'9', 56.0,
     "M 12 0 C 38 16 56 42 56 69 C 56 88 44 100 28 100 C 12 100 0 88 0 70 C 0 52 12 40 28 40 "
     "C 42 40 52 49 55 60"},
    {'.', 2.0, "M 0 0 L 2 0"},
    {'-', 40.0, "M 0 42 L 40 42"},
    {'+', 50.0, "M 0 42 L 50 42 M 25 67 L 25 17"},
    {'e', 46.0,
     "M 2 32 L 46 32 C 46 50 38 62 24 62 C 10 62 0 50 0 31 C 0 12 10 0 25 0 C 34 0 40 4 44 10"},
};

constexpr Letter kNone{' ', 0.0, ""};

constexpr double kHundredths = 100.0;

}  // namespace

const Letter& LetterOf(char character) {
  for (const Letter& letter : kLetters) {
    if (letter.letter == character) return letter;
  }
  return kNone;
}

double LetteringWidth(std::string_view text) {
  if (text.empty()) return 0.0;
  double width = kLetterGap * static_cast<double>(text.size() - 1);
  for (const char character : text) width += LetterOf(character).width;
  // The pen's middle runs within a height and a width less by the pen.
  return (1.0 - kPenWidth) * width / kHundredths + kPenWidth;
}

}  // namespace lintavo::drawing
