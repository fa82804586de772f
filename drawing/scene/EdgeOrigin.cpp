// Finds the sides of parts on which the edges of the view lie: the view itself tells no more
// than where they are.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

#include "lintavo/geom/Toleranzen.h"

#include "scene/EdgeOrigin_intern.h"

namespace lintavo::drawing {
namespace {

Box BoxOf(const Shape& shape) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Box box{kInfinity, kInfinity, -kInfinity, -kInfinity};
  for (const Point& p : shape.outline) {
    box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
           std::max(box.top, p.y)};
  }
  return box;
}

bool IsNear(const Box& box, const Point& p) {
  return p.x > box.left - kUeberlagerung && p.x < box.right + kUeberlagerung &&
         p.y > box.bottom - kUeberlagerung && p.y < box.top + kUeberlagerung;
}

// Whether a point lies on the segment from a to b.
bool LiesOn(const Point& a, const Point& b, const Point& p) {
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  if (length < kNullLaenge) return false;
  const double along = ((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) / length;
  const double across = ((p.x - a.x) * (b.y - a.y) - (p.y - a.y) * (b.x - a.x)) / length;
  return std::abs(across) < kUeberlagerung && along > -kUeberlagerung &&
         along < length + kUeberlagerung;
}

// The side of an outline on which a line lies, -1 for none.
long SideWith(const std::vector<Point>& outline, const Line& line) {
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point& a = outline[i];
    const Point& b = outline[(i + 1) % outline.size()];
    if (LiesOn(a, b, line.from) && LiesOn(a, b, line.to)) return static_cast<long>(i);
  }
  return -1;
}

}  // namespace

void TraceBack(Scene& scene) {
  std::vector<Box> boxes;
  for (const Shape& shape : scene.shapes) boxes.push_back(BoxOf(shape));
  for (Line& line : scene.lines) {
    if (line.kind != LineKind::kAnsicht) continue;
    for (std::size_t i = scene.shapes.size(); i-- > 0 && line.seite < 0;) {
      if (!IsNear(boxes[i], line.from) || !IsNear(boxes[i], line.to)) continue;
      const Shape& shape = scene.shapes[i];
      line.seite = SideWith(shape.outline, line);
      if (line.seite < 0) continue;
      line.fluegel = shape.fluegel;
      line.bauteil = shape.bauteil;
      line.teil = shape.kind;
    }
  }
}

}  // namespace lintavo::drawing
