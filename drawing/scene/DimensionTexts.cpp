// Finds for the length of every dimension a place where it can be read: beside the
// middle of its line, else along it, on its other side, smaller or beyond its end.
#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/drawing/Text.h"

#include "scene/Dimensions_intern.h"

namespace lintavo::drawing {
namespace {

// Tried one after the other, as shares of the usual height and of the line's length
// from its middle.
constexpr double kHeights[] = {1.0, 0.8, 0.65};
constexpr double kPlaces[] = {0.0, 0.15, -0.15, 0.3, -0.3, 0.42, -0.42};
// How many digit heights a text may stand off its line where it would lie on another.
constexpr double kStandOff[] = {0.0, 0.7, 1.4};
// How many arrowheads beyond the end of a short dimension its text begins.
constexpr double kBeyondArrow = 2.3;

// The number of the colour of texts.
constexpr long kAttributTexte = 2;

struct Segment {
  Point from;
  Point to;
};

Box Widened(const Box& box, double d) {
  return {box.left - d, box.bottom - d, box.right + d, box.top + d};
}

bool Overlap(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

// Cuts the range [enter, leave] of a segment's parameter to one slab of a box.
bool CutToSlab(double start, double step, double low, double high, double& enter, double& leave) {
  if (step == 0.0) return start > low && start < high;  // exact: runs along the slab
  double a = (low - start) / step;
  double b = (high - start) / step;
  if (a > b) std::swap(a, b);
  enter = std::max(enter, a);
  leave = std::min(leave, b);
  return enter < leave;
}

bool Crosses(const Segment& segment, const Box& box) {
  double enter = 0.0;
  double leave = 1.0;
  return CutToSlab(segment.from.x, segment.to.x - segment.from.x, box.left, box.right, enter,
                   leave) &&
         CutToSlab(segment.from.y, segment.to.y - segment.from.y, box.bottom, box.top, enter,
                   leave);
}

std::vector<Segment> SegmentsOf(const Scene& scene) {
  std::vector<Segment> segments;
  for (const Shape& shape : scene.shapes) {
    for (std::size_t i = 0; i < shape.outline.size(); ++i) {
      segments.push_back(
          {shape.outline[i], shape.outline[i + 1 < shape.outline.size() ? i + 1 : 0]});
    }
  }
  for (const Line& line : scene.lines) segments.push_back({line.from, line.to});
  return segments;
}

// Places texts one after the other; each keeps clear of the scene and of those before.
class Placer {
 public:
  Placer(const DimensionSizes& sizes, const Scene& scene)
      : sizes_(sizes), segments_(SegmentsOf(scene)) {}

  Text Place(const DrawnDimension& dimension) {
    best_ = {};
    fewest_ = -1;
    const std::vector<Segment> near = SegmentsNear(dimension);
    Text text;
    text.masz = dimension.masz;
    text.attribut = kAttributTexte;
    text.upright = dimension.upright;
    text.inhalt = LengthText(dimension.length);
    TryAll(dimension, text, near);
    taken_.push_back(GetBox(best_));
    return best_;
  }

 private:
  // Only what lies within reach of a text has to be looked at again and again.
  std::vector<Segment> SegmentsNear(const DrawnDimension& dimension) const {
    const double reach = 20.0 * sizes_.text;
    const Box box =
        Widened({dimension.from.x, dimension.from.y, dimension.to.x, dimension.to.y}, reach);
    std::vector<Segment> near;
    for (const Segment& segment : segments_) {
      if (Crosses(segment, box)) near.push_back(segment);
    }
    return near;
  }

  // Stops at the first place that is free; where none is, that with the fewest
  // lines under it is taken.
  void TryAll(const DrawnDimension& dimension, Text text, const std::vector<Segment>& near) {
    const double length =
        dimension.upright ? dimension.to.y - dimension.from.y : dimension.to.x - dimension.from.x;
    for (const double standOff : kStandOff) {
      for (const double height : kHeights) {
        text.hoehe = height * sizes_.text;
        if (TryAlong(dimension, length, standOff * text.hoehe, text, near)) return;
      }
    }
    text.hoehe = sizes_.text;
    const double beyond = HalfLength(text) + kBeyondArrow * sizes_.arrowLength;
    if (TryOnLine(dimension, length + beyond, text, near)) return;
    if (TryOnLine(dimension, -beyond, text, near)) return;
    if (TryBothSides(dimension, length + beyond, 0.0, text, near)) return;
    TryBothSides(dimension, -beyond, 0.0, text, near);
  }

  // The places between the ends of the line, from its middle outwards.
  bool TryAlong(const DrawnDimension& dimension, double length, double standOff, Text& text,
                const std::vector<Segment>& near) {
    const double half = HalfLength(text);
    if (2.0 * half > length) return false;
    for (const double place : kPlaces) {
      const double along = length * (0.5 + place);
      if (along < half || along > length - half) continue;
      if (TryBothSides(dimension, along, standOff, text, near)) return true;
    }
    return false;
  }

  // Above the line, then below it; left of an upright one, then to its right.
  bool TryBothSides(const DrawnDimension& dimension, double along, double standOff, Text& text,
                    const std::vector<Segment>& near) {
    const double across = sizes_.gap + text.hoehe / 2.0 + standOff;
    return Try(dimension, along, across, text, near) || Try(dimension, along, -across, text, near);
  }

  bool TryOnLine(const DrawnDimension& dimension, double along, Text& text,
                 const std::vector<Segment>& near) {
    return Try(dimension, along, 0.0, text, near);
  }

  bool Try(const DrawnDimension& dimension, double along, double across, Text& text,
           const std::vector<Segment>& near) {
    text.mitte = dimension.upright ? Point{dimension.from.x - across, dimension.from.y + along}
                                   : Point{dimension.from.x + along, dimension.from.y + across};
    const Box box = Widened(GetBox(text), sizes_.gap / 2.0);
    long count = 0;
    for (const Segment& segment : near) count += Crosses(segment, box) ? 1 : 0;
    for (const Box& taken : taken_) count += Overlap(taken, box) ? kTextWeight : 0;
    if (fewest_ < 0 || count < fewest_) {
      fewest_ = count;
      best_ = text;
    }
    return count == 0;
  }

  static double HalfLength(const Text& text) {
    const Box box = GetBox(text);
    return (text.upright ? box.top - box.bottom : box.right - box.left) / 2.0;
  }

  // Two texts on each other are worse than any number of lines through one.
  static constexpr long kTextWeight = 10'000'000;

  const DimensionSizes& sizes_;
  std::vector<Segment> segments_;
  std::vector<Box> taken_;
  Text best_;
  long fewest_ = -1;
};

}  // namespace

void AddDimensionTexts(const std::vector<DrawnDimension>& dimensions, const DimensionSizes& sizes,
                       Scene& scene) {
  Placer placer(sizes, scene);
  for (const DrawnDimension& dimension : dimensions) scene.texts.push_back(placer.Place(dimension));
}

}  // namespace lintavo::drawing
