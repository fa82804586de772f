// Dimension chains: dimension lines in rows outside of what is drawn.
#include <algorithm>
#include <cstddef>
#include <map>
#include <vector>

#include "lintavo/geom/Toleranzen.h"

#include "scene/Dimensions_intern.h"

namespace lintavo::drawing {
namespace {

// The rows on one side of the drawing, as the highest row that is taken at each stretch.
class Rows {
 public:
  // The row of a dimension that spans the range: the first outside of all that it overlaps.
  long Take(double from, double to) {
    const auto first = Cut(from + kNullLaenge);
    const auto last = Cut(to - kNullLaenge);
    long row = 0;
    for (auto stretch = first; stretch != last; ++stretch) row = std::max(row, stretch->second + 1);
    stretches_.erase(first, last);
    stretches_.emplace(from + kNullLaenge, row);
    return row;
  }

 private:
  using Stretches = std::map<double, long>;

  // The stretch that begins at a place; what spans the place is cut in two.
  Stretches::iterator Cut(double place) {
    auto next = stretches_.lower_bound(place);
    if (next != stretches_.end() && next->first == place) return next;  // exact: the same cut
    const long row = next == stretches_.begin() ? -1 : std::prev(next)->second;
    return stretches_.emplace_hint(next, place, row);
  }

  Stretches stretches_;  // where each begins, and its highest taken row; -1 for none
};

double LengthOf(const DrawnDimension& dimension) {
  return dimension.upright ? dimension.to.y - dimension.from.y : dimension.to.x - dimension.from.x;
}

void MoveTo(double place, DrawnDimension& dimension) {
  double Point::*const across = dimension.upright ? &Point::x : &Point::y;
  const double shift = place - dimension.from.*across;
  dimension.from.*across += shift;
  dimension.to.*across += shift;
  dimension.shift += shift;
}

}  // namespace

void ArrangeInRows(const Box& box, const DimensionSizes& sizes,
                   std::vector<DrawnDimension>& dimensions) {
  std::vector<std::size_t> order(dimensions.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return LengthOf(dimensions[a]) < LengthOf(dimensions[b]) - kNullLaenge;
  });
  Rows below;
  Rows left;
  for (const std::size_t i : order) {
    DrawnDimension& dimension = dimensions[i];
    const bool upright = dimension.upright;
    if (LengthOf(dimension) < 4.0 * kNullLaenge) continue;
    const long row = upright ? left.Take(dimension.from.y, dimension.to.y)
                             : below.Take(dimension.from.x, dimension.to.x);
    const double distance = sizes.firstRow + static_cast<double>(row) * sizes.rowStep;
    MoveTo((upright ? box.left : box.bottom) - distance, dimension);
  }
}

}  // namespace lintavo::drawing
