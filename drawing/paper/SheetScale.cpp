// Chooses among the usual scales.
#include <algorithm>

#include "paper/Layout_intern.h"
#include "paper/SheetScale_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kUsual[] = {1.0,  2.0,  2.5,   5.0,   10.0,  15.0, 20.0,
                             25.0, 50.0, 100.0, 200.0, 250.0, 500.0};
constexpr double kSmallestCommon = 1000.0;
// Beyond the usual ones come powers of ten, to this.
constexpr double kLast = 1e12;
// What two rows of dimensions take beside a window, in millimetres.
constexpr double kAround = 20.0;

bool Fits(const Extent& window, const Extent& place, double perUnit) {
  return window.width * perUnit + kAround <= place.width &&
         window.height * perUnit + kAround <= place.height;
}

}  // namespace

double ScaleFor(const Extent& window, const Extent& place, LengthUnit unit) {
  for (const double scale : kUsual) {
    if (Fits(window, place, MillimetresPerUnit(scale, unit))) return scale;
  }
  double scale = kSmallestCommon;
  while (scale <= kLast && !Fits(window, place, MillimetresPerUnit(scale, unit))) scale *= 10.0;
  return scale <= kLast ? scale : 0.0;
}

double CommonScale(const std::vector<Extent>& windows, const Extent& place, LengthUnit unit) {
  double common = kUsual[0];
  for (const Extent& window : windows) {
    const double scale = ScaleFor(window, place, unit);
    if (scale <= kSmallestCommon) common = std::max(common, scale);
  }
  return common;
}

}  // namespace lintavo::drawing
