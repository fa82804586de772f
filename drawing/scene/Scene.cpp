// Builds the scene of a calculated window from what the façade hands out.
#include "lintavo/drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "paper/Paper_intern.h"
#include "scene/Ask_intern.h"
#include "scene/Dimensions_intern.h"
#include "scene/Layers_intern.h"
#include "scene/Lettering_intern.h"
#include "scene/Parts_intern.h"
#include "scene/Symbols_intern.h"

namespace lintavo::drawing {
namespace {

// The pixels of a picture without its margins.
constexpr double kPixelsAcross = kLongSidePixels * (1.0 - 2.0 * kMarginShare);
constexpr int kPixelRounds = 4;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Every layer's shapes, the farthest layer first, and then the symbols, each cut by
// the shapes of the layers in front of its own.
void AddLayers(const CFeApi& window, const SceneOptions& options, Scene& scene) {
  const std::vector<long> layers = LayersFromBehind(window, options.side);
  std::vector<std::size_t> ends;
  for (const long layer : layers) {
    if (layer == kRahmenEbene) {
      AddRahmenShapes(window, options.side, scene);
    } else {
      AddFluegelShapes(window, layer, options.side, scene);
    }
    ends.push_back(scene.shapes.size());
  }
  if (!options.symbols) return;
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (layers[i] != kRahmenEbene) AddSymbol(window, layers[i], options.side, ends[i], scene);
  }
}

double ExtentOf(const Box& box) {
  return std::max(box.right - box.left, box.top - box.bottom);
}

void AddMeasures(const CFeApi& window, const Box& box, const SceneOptions& options, double unit,
                 Scene& scene) {
  const DimensionSizes sizes = SizesFor(ExtentOf(box), options.sizes, unit, options.millimetre);
  AddDimensionTexts(AddDimensions(window, box, sizes, options.chains, scene), sizes, scene);
}

void AddMeasures(const CFeApi& window, const SceneOptions& options, Scene& scene) {
  Box box;
  if (!GetBox(scene, box)) return;
  if (!options.sizes.pixel) {
    AddMeasures(window, box, options, 1.0, scene);
    return;
  }
  // How large a pixel is depends on what the dimensions add to the picture, and the
  // other way round: a few rounds bring both together.
  const Scene bare = scene;
  Box whole = box;
  for (int round = 0; round < kPixelRounds; ++round) {
    scene = bare;
    AddMeasures(window, box, options, ExtentOf(whole) / kPixelsAcross, scene);
    if (!GetBox(scene, whole)) return;
  }
}

// A text of the façade, each of which is read by one of its members.
std::string TextOf(const CFeApi& window, long (CFeApi::*member)(long, char (&)[256]) const,
                   long fluegel) {
  char text[256];
  const long length = (window.*member)(fluegel, text);
  return ToDisplayText(text, length);
}

void Describe(const CFeApi& window, Scene& scene) {
  char name[256];
  const long length = window.GetFensterBezeichnung(name);
  scene.name = ToDisplayText(name, length);
  scene.breite = window.GetFensterBreite();
  scene.hoehe = window.GetFensterHoehe();
  for (long i = 0; i < window.GetAnzahlFluegel(); ++i) {
    scene.fluegel.push_back({TextOf(window, &CFeApi::GetFluegelGangart, i),
                             TextOf(window, &CFeApi::GetFluegelAnschlag, i),
                             TextOf(window, &CFeApi::GetFluegelOeffSeite, i)});
  }
}

// The opening without reveals is the frame's outline.
void AddUmriss(const CFeApi& window, Scene& scene) {
  if (scene.shapes.empty()) return;
  const CFeApiWandOeffnungsParameter none;
  CFeApiPolygon outline;
  if (Ask([&] { return window.GetWandOeffnung(none, outline); }) != 1) return;
  scene.umriss = ToOutline(outline);
}

// Widens a box; false for a point that is no finite one.
bool Widen(const Point& point, Box& box) {
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return false;
  box.left = std::min(box.left, point.x);
  box.right = std::max(box.right, point.x);
  box.bottom = std::min(box.bottom, point.y);
  box.top = std::max(box.top, point.y);
  return true;
}

}  // namespace

Scene BuildScene(const CFeApi& window, const SceneOptions& options) {
  Scene scene;
  scene.side = options.side;
  Describe(window, scene);
  AddLayers(window, options, scene);
  AddUmriss(window, scene);
  if (options.hiddenLine) {
    AddView(window, options.side, scene);
    scene.shapes.clear();
  }
  AddFittings(window, options.side, scene);
  if (options.dimensions) AddMeasures(window, options, scene);
  return scene;
}

Box GetBox(const Text& text) {
  const double length = LetteringWidth(text.inhalt) * text.hoehe;
  const double dx = (text.upright ? text.hoehe : length) / 2.0;
  const double dy = (text.upright ? length : text.hoehe) / 2.0;
  return {text.mitte.x - dx, text.mitte.y - dy, text.mitte.x + dx, text.mitte.y + dy};
}

bool GetBox(const Scene& scene, Box& box) {
  Box found{kInfinity, kInfinity, -kInfinity, -kInfinity};
  for (const Shape& shape : scene.shapes) {
    for (const Point& point : shape.outline) {
      if (!Widen(point, found)) return false;
    }
  }
  for (const Point& point : scene.umriss) {
    if (!Widen(point, found)) return false;
  }
  for (const Line& line : scene.lines) {
    if (!Widen(line.from, found) || !Widen(line.to, found)) return false;
  }
  for (const Text& text : scene.texts) {
    const Box own = GetBox(text);
    if (!Widen({own.left, own.bottom}, found) || !Widen({own.right, own.top}, found)) return false;
  }
  if (found.left > found.right) return false;
  box = found;
  return true;
}

}  // namespace lintavo::drawing
