// Opening symbols, fittings and visible edges.
#include <algorithm>
#include <utility>
#include <vector>

#include "lintavo/geom/KanteClippen.h"
#include "lintavo/view/HiddenLines.h"

#include "scene/Shapes_intern.h"
#include "scene/Symbols_intern.h"

namespace lintavo::drawing {
namespace {

void AddLine(const CMStrecke& strecke, const Line& kind, Scene& scene) {
  XY from;
  XY to;
  strecke.GetPunkte(from, to);
  Line& line = scene.lines.emplace_back(kind);
  line.from = {from.x, from.y};
  line.to = {to.x, to.y};
}

bool IsApart(const Box& box, const std::vector<Point>& outline) {
  const auto all = [&](auto test) { return std::all_of(outline.begin(), outline.end(), test); };
  return all([&](const Point& p) { return p.x < box.left; }) ||
         all([&](const Point& p) { return p.x > box.right; }) ||
         all([&](const Point& p) { return p.y < box.bottom; }) ||
         all([&](const Point& p) { return p.y > box.top; });
}

GEOM2_Polygon ToPolygon(const std::vector<Point>& outline) {
  GEOM2_Polygon polygon;
  for (const Point& point : outline) polygon.AddPunkt(point.x, point.y);
  return polygon;
}

Box BoxOf(const std::vector<CMStrecke>& strecken) {
  constexpr double kFar = 1e300;
  Box box{kFar, kFar, -kFar, -kFar};
  for (const CMStrecke& strecke : strecken) {
    XY p;
    XY q;
    strecke.GetPunkte(p, q);
    box.left = std::min({box.left, p.x, q.x});
    box.right = std::max({box.right, p.x, q.x});
    box.bottom = std::min({box.bottom, p.y, q.y});
    box.top = std::max({box.top, p.y, q.y});
  }
  return box;
}

// The shapes in front that may cover something of a symbol.
std::vector<GEOM2_Polygon> CoversOf(const std::vector<CMStrecke>& strecken,
                                    std::size_t firstInFront, const Scene& scene) {
  const Box box = BoxOf(strecken);
  std::vector<GEOM2_Polygon> covers;
  for (std::size_t i = firstInFront; i < scene.shapes.size(); ++i) {
    const std::vector<Point>& outline = scene.shapes[i].outline;
    if (!IsApart(box, outline)) covers.push_back(ToPolygon(outline));
  }
  return covers;
}

// Whether the lines of a sash look the same from both sides: it is fixed or slides
// in its own plane.
bool StaysInItsPlane(const Sash& sash) {
  const OpeningKind kind = sash.opening.kind;
  return kind == OpeningKind::kFixed || kind == OpeningKind::kSlide ||
         kind == OpeningKind::kLiftSlide;
}

}  // namespace

void AddSymbol(const Sash& sash, long fluegel, ViewSide side, std::size_t firstInFront,
               Scene& scene) {
  Line kind;
  kind.kind = LineKind::kOeffnungsSymbol;
  kind.fluegel = fluegel;
  kind.dashed = !OpensTowards(sash, side) && !StaysInItsPlane(sash);
  kind.attribut = OpensTowards(sash, ViewSide::kOutside) ? 2 : 1;
  const std::vector<GEOM2_Polygon> covers = CoversOf(sash.symbol, firstInFront, scene);
  std::vector<CMStrecke> visible;
  for (const CMStrecke& strecke : sash.symbol) ClippKanteAnPolys(strecke, covers, visible, false);
  for (const CMStrecke& strecke : visible) AddLine(strecke, kind, scene);
}

void AddFittings(const WindowView& view, ViewSide side, Scene& scene) {
  for (std::size_t i = 0; i < view.sashes.size(); ++i) {
    const Sash& sash = view.sashes[i];
    if (side == ViewSide::kOutside && !OpensTowards(sash, side)) continue;
    Line kind;
    kind.kind = LineKind::kBeschlag;
    kind.fluegel = static_cast<long>(i);
    for (std::size_t j = 0; j < sash.fittings.size(); ++j) {
      kind.bauteil = static_cast<long>(j);
      const Fitting& fitting = sash.fittings[j];
      for (const CMStrecke& strecke : fitting.lines) AddLine(strecke, kind, scene);
      if (fitting.outline.GetAnzahl() < 3) continue;
      scene.beschlaege.push_back({kind.fluegel, kind.bauteil, ToOutline(fitting.outline)});
    }
  }
}

void CutAtFittings(Scene& scene) {
  const std::vector<FittingShape> fittings = std::exchange(scene.beschlaege, {});
  const std::vector<Line> whole = std::exchange(scene.lines, {});
  for (const Line& line : whole) {
    const CMStrecke strecke(line.from.x, line.from.y, line.to.x, line.to.y);
    const Box box = BoxOf({strecke});
    std::vector<GEOM2_Polygon> covers;
    for (const FittingShape& fitting : fittings) {
      const bool isOver = line.kind != LineKind::kBeschlag && !IsApart(box, fitting.outline);
      if (isOver) covers.push_back(ToPolygon(fitting.outline));
    }
    if (covers.empty()) {
      scene.lines.push_back(line);
      continue;
    }
    std::vector<CMStrecke> visible;
    ClippKanteAnPolys(strecke, covers, visible, false);
    for (const CMStrecke& stueck : visible) AddLine(stueck, line, scene);
  }
}

void AddVisibleEdges(const WindowView& view, ViewSide side, Scene& scene) {
  std::vector<VisibleEdge> edges;
  FindVisibleEdges(view, side, edges);
  for (const VisibleEdge& edge : edges) {
    Line& line = scene.lines.emplace_back();
    line.from = {edge.from.x, edge.from.y};
    line.to = {edge.to.x, edge.to.y};
    line.fluegel = edge.piece->sash;
    line.bauteil = NumberOf(*edge.piece);
    line.teil = KindOf(*edge.piece);
    line.seite = edge.side;
  }
}

}  // namespace lintavo::drawing
