// Cuts the sides of figures where figures that are painted later cover them.
#include <algorithm>
#include <limits>

#include "lintavo/geom/KanteClippen.h"

#include "writers/Visible_intern.h"

namespace lintavo::drawing {
namespace {

Box BoxOf(const std::vector<Point>& points) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Box box{kInfinity, kInfinity, -kInfinity, -kInfinity};
  for (const Point& p : points) {
    box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
           std::max(box.top, p.y)};
  }
  return box;
}

bool Meet(const Box& a, const Box& b) {
  return a.left <= b.right && b.left <= a.right && a.bottom <= b.top && b.bottom <= a.top;
}

GEOM2_Polygon ToPolygon(const std::vector<Point>& outline) {
  GEOM2_Polygon polygon;
  for (const Point& point : outline) polygon.AddPunkt(point.x, point.y);
  return polygon;
}

bool IsWholeStrecke(const CMStrecke& a, const CMStrecke& b) {
  XY a1;
  XY a2;
  XY b1;
  XY b2;
  a.GetPunkte(a1, a2);
  b.GetPunkte(b1, b2);
  return a1.x == b1.x && a1.y == b1.y && a2.x == b2.x && a2.y == b2.y;  // exact: uncut
}

}  // namespace

bool CoversOthers(const Figure& figure) {
  return figure.fill && figure.pen.width > 0.0 && !figure.traces.empty();
}

Covers::Covers(const Group& content) {
  struct Collector {
    std::vector<Cover>& covers;
    void operator()(const Figure& figure) const {
      if (!CoversOthers(figure)) return;
      const std::vector<Point>& outline = figure.traces.front().points;
      covers.push_back({BoxOf(outline), outline});
    }
    void operator()(const Label&) const {}
  };
  ForEach(content, Collector{covers_});
}

bool Covers::IsWhole(const Trace& trace, std::size_t place, std::vector<Piece>& pieces) const {
  const Box box = BoxOf(trace.points);
  std::vector<const Cover*> near;
  for (std::size_t i = place; i < covers_.size(); ++i) {
    if (Meet(covers_[i].box, box)) near.push_back(&covers_[i]);
  }
  if (near.empty()) return true;
  bool whole = true;
  const std::size_t count = trace.points.size();
  for (std::size_t i = 0; i + (trace.closed ? 0 : 1) < count; ++i) {
    const Point& a = trace.points[i];
    const Point& b = trace.points[(i + 1) % count];
    const CMStrecke side(a.x, a.y, b.x, b.y);
    std::vector<GEOM2_Polygon> polygons;
    for (const Cover* cover : near) {
      if (Meet(cover->box, BoxOf({a, b}))) polygons.push_back(ToPolygon(cover->outline));
    }
    std::vector<CMStrecke> visible;
    ClippKanteAnPolys(side, polygons, visible, false);
    whole = whole && visible.size() == 1 && IsWholeStrecke(visible.front(), side);
    for (const CMStrecke& piece : visible) {
      XY from;
      XY to;
      piece.GetPunkte(from, to);
      pieces.push_back({{from.x, from.y}, {to.x, to.y}, static_cast<long>(i)});
    }
  }
  return whole;
}

}  // namespace lintavo::drawing
