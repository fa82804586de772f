// Builds the scene of a calculated window from what the façade hands out.
#include "lintavo/drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

namespace lintavo::drawing {
namespace {

// The façade's numbers for the kinds of components.
constexpr long kArtRahmenteile = 1;
constexpr long kArtEinzelteile = 2;
constexpr long kArtSprossen = 3;

// The façade's segment number for the joined outline of a bent part.
constexpr long kAlleSegmente = -1;

std::vector<Point> ToOutline(const CFeApiPolygon& polygon) {
  std::vector<Point> outline;
  if (polygon.lAnzahl <= 0 || polygon.pdX == nullptr || polygon.pdY == nullptr) return outline;
  outline.reserve(static_cast<std::size_t>(polygon.lAnzahl));
  for (int i = 0; i < polygon.lAnzahl; ++i) outline.push_back({polygon.pdX[i], polygon.pdY[i]});
  return outline;
}

void AddShape(Scene& scene, ShapeKind kind, long fluegel, long bauteil,
              const CFeApiPolygon& polygon) {
  std::vector<Point> outline = ToOutline(polygon);
  if (outline.size() < 3) return;
  scene.shapes.push_back({kind, fluegel, bauteil, std::move(outline)});
}

void AddRahmenBauteile(const CFeApi& window, long art, ShapeKind kind, Scene& scene) {
  const long count = window.GetAnzahlRahmenBauteile(art);
  for (long i = 0; i < count; ++i) {
    CFeApiPolygon outline;
    double length = 0.0;
    double start = 0.0;
    double end = 0.0;
    if (window.GetRahmenBauteilUmriss(art, i, kAlleSegmente, outline, length, start, end) == 1) {
      AddShape(scene, kind, -1, i, outline);
    }
  }
}

void AddFluegelBauteile(const CFeApi& window, long fluegel, long art, ShapeKind kind,
                        Scene& scene) {
  const long count = window.GetFluegelAnzahlBauteile(art, fluegel);
  for (long i = 0; i < count; ++i) {
    CFeApiPolygon outline;
    double length = 0.0;
    double start = 0.0;
    double end = 0.0;
    if (window.GetFluegelBauteilUmriss(art, fluegel, i, kAlleSegmente, outline, length, start,
                                       end) == 1) {
      AddShape(scene, kind, fluegel, i, outline);
    }
  }
}

ShapeKind FuellungKind(eFeApiFuellArten art) {
  switch (art) {
    case eFeApiFuellungGlas:
      return ShapeKind::kGlas;
    case eFeApiFuellungKonstant:
      return ShapeKind::kPaneel;
    case eFeApiFuellungLamellen:
      return ShapeKind::kLamellen;
  }
  return ShapeKind::kGlas;
}

void AddFuellung(const CFeApi& window, long fluegel, Scene& scene) {
  CFeApiPolygon outline;
  if (window.GetFluegelInnenPolygon(fluegel, 0.0, outline) != 1) return;
  AddShape(scene, FuellungKind(window.GetFluegelFuellungArt(fluegel)), fluegel, -1, outline);
}

}  // namespace

Scene BuildScene(const CFeApi& window) {
  Scene scene;
  char name[256];
  const long length = window.GetFensterBezeichnung(name);
  scene.name = ToDisplayText(name, length);
  AddRahmenBauteile(window, kArtRahmenteile, ShapeKind::kRahmenteil, scene);
  AddRahmenBauteile(window, kArtEinzelteile, ShapeKind::kEinzelteil, scene);
  const long count = window.GetAnzahlFluegel();
  for (long i = 0; i < count; ++i) {
    AddFuellung(window, i, scene);
    AddFluegelBauteile(window, i, kArtSprossen, ShapeKind::kSprosse, scene);
    AddFluegelBauteile(window, i, kArtRahmenteile, ShapeKind::kFluegelteil, scene);
    AddFluegelBauteile(window, i, kArtEinzelteile, ShapeKind::kFluegelEinzelteil, scene);
  }
  return scene;
}

bool GetBox(const Scene& scene, Box& box) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Box found{kInfinity, kInfinity, -kInfinity, -kInfinity};
  bool any = false;
  for (const Shape& shape : scene.shapes) {
    for (const Point& point : shape.outline) {
      if (!std::isfinite(point.x) || !std::isfinite(point.y)) return false;
      found.left = std::min(found.left, point.x);
      found.right = std::max(found.right, point.x);
      found.bottom = std::min(found.bottom, point.y);
      found.top = std::max(found.top, point.y);
      any = true;
    }
  }
  if (any) box = found;
  return any;
}

}  // namespace lintavo::drawing
