// Advance widths of a common sans-serif font, in thousandths of its size.
#include <cstddef>

#include "scene/Lettering_intern.h"
#include "scene/Utf8_intern.h"

namespace lintavo::drawing {
namespace {

// The characters from the blank to the tilde.
constexpr short kAscii[] = {
    278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,  // blank to /
    556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,  // 0 to ?
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,  // @ to O
    667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,  // P to _
    333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,  // ` to o
    556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};      // p to ~

// Accented letters are as wide as the plain ones, which stand here in their place.
constexpr char kPlainLatin1[] = "AAAAAA@CEEEEIIIIDNOOOOO+OUUUUYPBaaaaaamceeeeiiiionooooo+ouuuuypy";

constexpr short kOfOthers = 600;
constexpr short kOfIdeographs = 1000;
constexpr char32_t kFirstLatin1Letter = 0xC0;
constexpr char32_t kFirstIdeograph = 0x2E80;

short AdvanceOf(char32_t character) {
  if (character >= kFirstLatin1Letter && character < kFirstLatin1Letter + 64) {
    character = static_cast<unsigned char>(kPlainLatin1[character - kFirstLatin1Letter]);
  }
  if (character >= ' ' && character <= '~') return kAscii[character - ' '];
  return character < kFirstIdeograph ? kOfOthers : kOfIdeographs;
}

}  // namespace

double LetteringWidth(std::string_view text) {
  long thousandths = 0;
  for (std::size_t i = 0; i < text.size();) {
    char32_t character = 0;
    if (!DecodeUtf8(text, i, character))
      character = FromWindows1252(static_cast<unsigned char>(text[i++]));
    thousandths += AdvanceOf(character);
  }
  return static_cast<double>(thousandths) / 1000.0 / kDigitHeight;
}

}  // namespace lintavo::drawing
