// Builds the scene of a calculated window from what the façade hands out.
#include "lintavo/drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "Dimensions_intern.h"
#include "Layers_intern.h"
#include "Lettering_intern.h"
#include "Paper_intern.h"
#include "Parts_intern.h"
#include "Symbols_intern.h"

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

void AddMeasures(const CFeApi& window, const Box& box, const DimensionSizes& sizes, Scene& scene) {
  const std::vector<Dimension> dimensions = AddDimensions(window, box, sizes, scene);
  AddDimensionTexts(dimensions, sizes, scene);
}

void AddMeasures(const CFeApi& window, const MeasureSizes& wanted, Scene& scene) {
  Box box;
  if (!GetBox(scene, box)) return;
  if (!wanted.pixel) {
    AddMeasures(window, box, SizesFor(ExtentOf(box), wanted, 1.0), scene);
    return;
  }
  // How large a pixel is depends on what the dimensions add to the picture, and the
  // other way round: a few rounds bring both together.
  const Scene bare = scene;
  Box whole = box;
  for (int round = 0; round < kPixelRounds; ++round) {
    scene = bare;
    const double unit = ExtentOf(whole) / kPixelsAcross;
    AddMeasures(window, box, SizesFor(ExtentOf(box), wanted, unit), scene);
    if (!GetBox(scene, whole)) return;
  }
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
  char name[256];
  const long length = window.GetFensterBezeichnung(name);
  scene.name = ToDisplayText(name, length);
  AddLayers(window, options, scene);
  if (options.hiddenLine) {
    scene.shapes.clear();
    AddView(window, options.side, scene);
  }
  AddFittings(window, options.side, scene);
  if (options.dimensions) AddMeasures(window, options.sizes, scene);
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
