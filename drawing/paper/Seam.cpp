// A part that closes round has an outline that runs along its outer side, across the seam,
// back along its inner side and across the seam again.
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "lintavo/geom/Toleranzen.h"

#include "paper/Seam_intern.h"

namespace lintavo::drawing {
namespace {

using Outline = std::vector<Point>;

bool IsSame(const Point& a, const Point& b) {
  return std::abs(a.x - b.x) < kNullLaenge && std::abs(a.y - b.y) < kNullLaenge;
}

const Point& Corner(const Outline& outline, std::size_t i) {
  return outline[i % outline.size()];
}

// Whether the side from corner `i` is such a seam.
bool IsSeam(const Outline& outline, std::size_t i) {
  const std::size_t count = outline.size();
  // The two passes lie half the outline apart.
  const std::size_t twin = i + count / 2;
  return count > 4 && count % 2 == 0 && IsSame(Corner(outline, i), Corner(outline, twin + 1)) &&
         IsSame(Corner(outline, i + 1), Corner(outline, twin));
}

// The closed ring of corners first to last, the last of which repeats the first.
Trace Ring(const Outline& outline, std::size_t first, std::size_t last) {
  Trace ring{{}, true};
  for (std::size_t i = first; i < last; ++i) ring.points.push_back(Corner(outline, i));
  if (!ring.points.empty() && !IsSame(ring.points.front(), Corner(outline, last))) {
    ring.points.push_back(Corner(outline, last));
  }
  return ring;
}

}  // namespace

std::vector<Trace> WithoutSeam(const Outline& outline) {
  const std::size_t half = outline.size() / 2;
  for (std::size_t i = 0; i < half; ++i) {
    if (IsSeam(outline, i)) {
      return {Ring(outline, i + 1, i + half), Ring(outline, i + half + 1, i + 2 * half)};
    }
  }
  return {};
}

}  // namespace lintavo::drawing
