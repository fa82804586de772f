// Finds the sides of parts on which the edges of the view lie: the view itself tells no more
// than where they are.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
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

// The shapes whose boxes reach into each cell of a grid over all of them, in the order in
// which they are painted.
class ShapeGrid {
 public:
  explicit ShapeGrid(const std::vector<Box>& boxes) : cells_(kCells * kCells) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    Box all{kInfinity, kInfinity, -kInfinity, -kInfinity};
    for (const Box& box : boxes) {
      all = {std::min(all.left, box.left), std::min(all.bottom, box.bottom),
             std::max(all.right, box.right), std::max(all.top, box.top)};
    }
    all_ = all;
    for (std::size_t i = 0; i < boxes.size(); ++i) Add(boxes[i], static_cast<std::uint32_t>(i));
  }

  const std::vector<std::uint32_t>& At(const Point& p) const {
    return cells_[Cell(p.y, all_.bottom, all_.top) * kCells + Cell(p.x, all_.left, all_.right)];
  }

 private:
  static constexpr std::size_t kCells = 64;

  static std::size_t Cell(double place, double from, double to) {
    const double cell = (place - from) / (to - from) * static_cast<double>(kCells);
    return cell > 0.0 ? static_cast<std::size_t>(std::min(cell, static_cast<double>(kCells - 1)))
                      : 0;
  }

  void Add(const Box& box, std::uint32_t i) {
    if (!(box.left <= box.right)) return;
    const std::size_t left = Cell(box.left - kUeberlagerung, all_.left, all_.right);
    const std::size_t right = Cell(box.right + kUeberlagerung, all_.left, all_.right);
    const std::size_t top = Cell(box.top + kUeberlagerung, all_.bottom, all_.top);
    for (std::size_t y = Cell(box.bottom - kUeberlagerung, all_.bottom, all_.top); y <= top; ++y) {
      for (std::size_t x = left; x <= right; ++x) cells_[y * kCells + x].push_back(i);
    }
  }

  Box all_{};
  std::vector<std::vector<std::uint32_t>> cells_;
};

}  // namespace

void TraceBack(Scene& scene) {
  std::vector<Box> boxes;
  for (const Shape& shape : scene.shapes) boxes.push_back(BoxOf(shape));
  const ShapeGrid grid(boxes);
  for (Line& line : scene.lines) {
    if (line.kind != LineKind::kAnsicht) continue;
    const std::vector<std::uint32_t>& near = grid.At(line.from);
    for (auto place = near.rbegin(); place != near.rend() && line.seite < 0; ++place) {
      const std::uint32_t i = *place;
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
