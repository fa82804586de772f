// Numbers as text, and sizes in pixels.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

// What a PNG may have on each side, and in all.
constexpr double kMostPixels = 30000.0;
constexpr double kLargestArea = 1.5e8;
constexpr double kRounding = 1e-6;

}  // namespace

void AppendNumber(double number, int decimals, std::string& out) {
  char buffer[400];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::fixed, decimals);
  const char* end = result.ptr;
  if (std::memchr(buffer, '.', static_cast<std::size_t>(end - buffer))) {
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
  }
  const bool minusZero = end - buffer == 2 && buffer[0] == '-' && buffer[1] == '0';
  const char* const begin = minusZero ? buffer + 1 : buffer;
  out.append(begin, static_cast<std::size_t>(end - begin));
}

PixelSize PixelsOf(const Page& page, double pixelsPerMillimetre) {
  const double width = std::max(1.0, std::ceil(page.width * pixelsPerMillimetre - kRounding));
  const double height = std::max(1.0, std::ceil(page.height * pixelsPerMillimetre - kRounding));
  if (!(width <= kMostPixels) || !(height <= kMostPixels) || width * height > kLargestArea)
    return {};
  return {static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace lintavo::drawing
