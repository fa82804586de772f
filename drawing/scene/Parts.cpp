// Filled shapes of a window's parts from the outlines that the façade hands out.
//
// Of parts of one kind that cross, such as two bars, the earlier one runs through:
// each kind is appended from its last part to its first.
#include <cstddef>
#include <utility>

#include "scene/Ask_intern.h"
#include "scene/Parts_intern.h"

namespace lintavo::drawing {
namespace {

// The façade's numbers for the kinds of components.
constexpr long kArtRahmenteile = 1;
constexpr long kArtEinzelteile = 2;

// Outer extra parts among them.
constexpr long kTypAussen = 3;
constexpr long kArtSprossen = 3;

// The façade's segment number for the joined outline of a bent part.
constexpr long kAlleSegmente = -1;

// The number of the attribute that is a part's colour from a side.
long FarbNummer(ViewSide side) {
  return side == ViewSide::kInside ? 1 : 2;
}

void AddShape(Scene& scene, ShapeKind kind, long fluegel, long bauteil,
              const CFeApiPolygon& polygon, long attribut) {
  std::vector<Point> outline = ToOutline(polygon);
  if (outline.size() < 3) return;
  scene.shapes.push_back({kind, fluegel, bauteil, std::move(outline), attribut});
}

bool RahmenUmriss(const CFeApi& window, long art, long i, CFeApiPolygon& outline) {
  double length = 0.0;
  double start = 0.0;
  double end = 0.0;
  return Ask([&] {
           return window.GetRahmenBauteilUmriss(art, i, kAlleSegmente, outline, length, start, end);
         }) == 1;
}

void AddFluegelBauteile(const CFeApi& window, long fluegel, long art, ShapeKind kind, ViewSide side,
                        Scene& scene) {
  for (long i = window.GetFluegelAnzahlBauteile(art, fluegel) - 1; i >= 0; --i) {
    CFeApiPolygon outline;
    double length = 0.0;
    double start = 0.0;
    double end = 0.0;
    const int found = Ask([&] {
      return window.GetFluegelBauteilUmriss(art, fluegel, i, kAlleSegmente, outline, length, start,
                                            end);
    });
    if (found != 1) continue;
    AddShape(scene, kind, fluegel, i, outline,
             window.GetFluegelBauteilAttribut(art, fluegel, i, FarbNummer(side)));
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

// The filling's own contour lacks short edges, so on an arch it would leave gaps:
// the sash's inner outline is what it fills.
void AddFuellung(const CFeApi& window, long fluegel, ViewSide side, Scene& scene) {
  CFeApiPolygon outline;
  if (Ask([&] { return window.GetFluegelInnenPolygon(fluegel, 0.0, outline); }) != 1) return;
  const ShapeKind kind = FuellungKind(window.GetFluegelFuellungArt(fluegel));
  // What is seen between slats has no material: the attributes are the slats'.
  const long attribut = kind == ShapeKind::kLamellen
                            ? 0
                            : window.GetFluegelFuellungAttribut(fluegel, FarbNummer(side));
  AddShape(scene, kind, fluegel, -1, outline, attribut);
}

void AddLamellen(const CFeApi& window, long fluegel, ViewSide side, Scene& scene) {
  if (window.GetFluegelFuellungArt(fluegel) != eFeApiFuellungLamellen) return;
  const long attribut = window.GetFluegelFuellungAttribut(fluegel, FarbNummer(side));
  const long count = Ask([&] { return window.GetFluegelAnzahlLamellen(fluegel); });
  for (long i = count - 1; i >= 0; --i) {
    CFeApiPolygon outline;
    if (Ask([&] { return window.GetFluegelLamellenUmriss(fluegel, i, outline); }) == 1) {
      AddShape(scene, ShapeKind::kLamelle, fluegel, i, outline, attribut);
    }
  }
}

// Mullions and transoms, or the extra parts around the frame.
void AddEinzelteile(const CFeApi& window, bool aussen, ViewSide side, Scene& scene) {
  for (long i = window.GetAnzahlRahmenBauteile(kArtEinzelteile) - 1; i >= 0; --i) {
    if ((window.GetRahmenBauteilTyp(kArtEinzelteile, i) == kTypAussen) != aussen) continue;
    CFeApiPolygon polygon;
    if (!RahmenUmriss(window, kArtEinzelteile, i, polygon)) continue;
    AddShape(scene, aussen ? ShapeKind::kZusatzteil : ShapeKind::kEinzelteil, -1, i, polygon,
             window.GetRahmenBauteilAttribut(kArtEinzelteile, i, FarbNummer(side)));
  }
}

}  // namespace

std::vector<Point> ToOutline(const CFeApiPolygon& polygon) {
  std::vector<Point> outline;
  if (polygon.lAnzahl <= 0 || polygon.pdX == nullptr || polygon.pdY == nullptr) return outline;
  outline.reserve(static_cast<std::size_t>(polygon.lAnzahl));
  for (int i = 0; i < polygon.lAnzahl; ++i) outline.push_back({polygon.pdX[i], polygon.pdY[i]});
  return outline;
}

void AddRahmenShapes(const CFeApi& window, ViewSide side, Scene& scene) {
  AddEinzelteile(window, false, side, scene);
  for (long i = window.GetAnzahlRahmenBauteile(kArtRahmenteile) - 1; i >= 0; --i) {
    CFeApiPolygon outline;
    if (RahmenUmriss(window, kArtRahmenteile, i, outline)) {
      AddShape(scene, ShapeKind::kRahmenteil, -1, i, outline,
               window.GetRahmenBauteilAttribut(kArtRahmenteile, i, FarbNummer(side)));
    }
  }
  AddEinzelteile(window, true, side, scene);
}

void AddFluegelShapes(const CFeApi& window, long fluegel, ViewSide side, Scene& scene) {
  AddFuellung(window, fluegel, side, scene);
  AddLamellen(window, fluegel, side, scene);
  AddFluegelBauteile(window, fluegel, kArtSprossen, ShapeKind::kSprosse, side, scene);
  AddFluegelBauteile(window, fluegel, kArtEinzelteile, ShapeKind::kFluegelEinzelteil, side, scene);
  AddFluegelBauteile(window, fluegel, kArtRahmenteile, ShapeKind::kFluegelteil, side, scene);
}

}  // namespace lintavo::drawing
