// Opening symbols, fittings and visible edges from the segments that the façade
// hands out.
#include <algorithm>
#include <string_view>

#include "lintavo/geom/KanteClippen.h"

#include "scene/Ask_intern.h"
#include "scene/EdgeOrigin_intern.h"
#include "scene/Layers_intern.h"
#include "scene/Symbols_intern.h"

namespace lintavo::drawing {
namespace {

std::vector<CMStrecke> ToStrecken(const CFeApiStrecken& record) {
  std::vector<CMStrecke> strecken;
  for (int i = 0; i < record.lAnzahl; ++i) {
    strecken.emplace_back(record.pdX1[i], record.pdY1[i], record.pdX2[i], record.pdY2[i]);
  }
  return strecken;
}

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
bool StaysInItsPlane(const CFeApi& window, long fluegel) {
  char text[256];
  const long length = window.GetFluegelGangart(fluegel, text);
  const std::string_view gangart(text, static_cast<std::size_t>(std::clamp(length, 0L, 256L)));
  return gangart == "Fe" || gangart == "Sc" || gangart == "HS";
}

}  // namespace

void AddSymbol(const CFeApi& window, long fluegel, ViewSide side, std::size_t firstInFront,
               Scene& scene) {
  CFeApiStrecken record;
  if (Ask([&] { return window.GetFluegelOeffnungsSymbol(fluegel, record); }) != 1) return;
  Line kind;
  kind.kind = LineKind::kOeffnungsSymbol;
  kind.fluegel = fluegel;
  kind.dashed = !OpensTowards(window, fluegel, side) && !StaysInItsPlane(window, fluegel);
  kind.attribut = OpensTowards(window, fluegel, ViewSide::kOutside) ? 2 : 1;
  const std::vector<CMStrecke> whole = ToStrecken(record);
  const std::vector<GEOM2_Polygon> covers = CoversOf(whole, firstInFront, scene);
  std::vector<CMStrecke> visible;
  for (const CMStrecke& strecke : whole) ClippKanteAnPolys(strecke, covers, visible, false);
  for (const CMStrecke& strecke : visible) AddLine(strecke, kind, scene);
}

void AddFittings(const CFeApi& window, ViewSide side, Scene& scene) {
  for (long i = 0; i < window.GetAnzahlFluegel(); ++i) {
    if (side == ViewSide::kOutside && !OpensTowards(window, i, side)) continue;
    Line kind;
    kind.kind = LineKind::kBeschlag;
    kind.fluegel = i;
    for (long j = 0; j < window.GetAnzahlBeschlaege(i); ++j) {
      CFeApiStrecken record;
      if (Ask([&] { return window.GetBeschlagZeichnung(i, j, record); }) != 1) continue;
      kind.bauteil = j;
      for (const CMStrecke& strecke : ToStrecken(record)) AddLine(strecke, kind, scene);
    }
  }
}

void AddView(const CFeApi& window, ViewSide side, Scene& scene) {
  CFeApiStrecken record;
  const int fromOutside = side == ViewSide::kOutside ? 1 : 0;
  if (Ask([&] { return window.GetAnsicht(fromOutside, record); }) != 1) return;
  for (const CMStrecke& strecke : ToStrecken(record)) AddLine(strecke, Line(), scene);
  TraceBack(scene);
}

}  // namespace lintavo::drawing
