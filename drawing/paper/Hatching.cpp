// Hatching: lines x - y = c for every c that is a multiple of their step, each cut at the
// sides of the outline; the pieces between an odd crossing and the next are inside.
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "paper/Hatching_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kMostLines = 5000.0;

// Where the line x - y = c crosses the side from a to b, as x. A side that ends on the
// line counts as crossed by one of its two ends only, so that corners count once.
void AddCrossing(const Point& a, const Point& b, double c, std::vector<double>& crossings) {
  const double da = a.x - a.y - c;
  const double db = b.x - b.y - c;
  if ((da < 0.0) == (db < 0.0)) return;
  crossings.push_back(a.x + (b.x - a.x) * da / (da - db));
}

void AddPieces(const std::vector<Point>& outline, double c, std::vector<Trace>& pieces) {
  std::vector<double> crossings;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    AddCrossing(outline[i], outline[(i + 1) % outline.size()], c, crossings);
  }
  std::sort(crossings.begin(), crossings.end());
  for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
    const double from = crossings[i];
    const double to = crossings[i + 1];
    pieces.push_back({{{from, from - c}, {to, to - c}}, false});
  }
}

}  // namespace

std::vector<Trace> HatchingOf(const std::vector<Point>& outline, double distance) {
  std::vector<Trace> pieces;
  if (outline.empty()) return pieces;
  const auto across = [](const Point& p) { return p.x - p.y; };
  double least = across(outline[0]);
  double most = least;
  for (const Point& p : outline) {
    least = std::min(least, across(p));
    most = std::max(most, across(p));
  }
  const double step = distance * std::sqrt(2.0);
  const double first = std::ceil(least / step);
  const double last = std::floor(most / step);
  if (!(step > 0.0) || !(last - first < kMostLines)) return pieces;
  const int lines = static_cast<int>(last - first) + 1;
  for (int k = 0; k < lines; ++k) AddPieces(outline, (first + k) * step, pieces);
  return pieces;
}

}  // namespace lintavo::drawing
