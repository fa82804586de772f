// Builds the scene of a calculated window from its view.
#include "lintavo/drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"
#include "lintavo/model/CMFenster.h"

#include "paper/Paper_intern.h"
#include "scene/Dimensions_intern.h"
#include "scene/Lettering_intern.h"
#include "scene/Shapes_intern.h"
#include "scene/Symbols_intern.h"

namespace lintavo::drawing {
namespace {

// The pixels of a picture without its margins.
constexpr double kPixelsAcross = kLongSidePixels * (1.0 - 2.0 * kMarginShare);
constexpr int kPixelRounds = 4;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Every layer's shapes, the farthest layer first, and then the symbols, each cut by
// the shapes of the layers in front of its own.
void AddLayers(const WindowView& view, const SceneOptions& options, Scene& scene) {
  const std::vector<int>& order = view.Order(options.side);
  std::vector<std::size_t> ends;
  for (auto layer = order.rbegin(); layer != order.rend(); ++layer) {
    AddShapes(*layer == kFrameRecord ? FromNearest(view.frame)
                                     : FromNearest(view.sashes[static_cast<std::size_t>(*layer)]),
              options.side, scene);
    ends.push_back(scene.shapes.size());
  }
  if (!options.symbols) return;
  auto end = ends.begin();
  for (auto layer = order.rbegin(); layer != order.rend(); ++layer, ++end) {
    if (*layer == kFrameRecord) continue;
    AddSymbol(view.sashes[static_cast<std::size_t>(*layer)], *layer, options.side, *end, scene);
  }
}

double ExtentOf(const Box& box) {
  return std::max(box.right - box.left, box.top - box.bottom);
}

void AddMeasures(const WindowView& view, const Box& box, const SceneOptions& options, double unit,
                 Scene& scene) {
  const DimensionSizes sizes = SizesFor(ExtentOf(box), options.sizes, unit, options.millimetre);
  AddDimensionTexts(AddDimensions(view, box, sizes, options.chains, scene), sizes, scene);
}

void AddMeasures(const WindowView& view, const SceneOptions& options, Scene& scene) {
  Box box;
  if (!GetBox(scene, box)) return;
  if (!options.sizes.pixel) {
    AddMeasures(view, box, options, 1.0, scene);
    return;
  }
  // How large a pixel is depends on what the dimensions add to the picture, and the
  // other way round: a few rounds bring both together.
  const Scene bare = scene;
  Box whole = box;
  for (int round = 0; round < kPixelRounds; ++round) {
    scene = bare;
    AddMeasures(view, box, options, ExtentOf(whole) / kPixelsAcross, scene);
    if (!GetBox(scene, whole)) return;
  }
}

void Describe(const WindowView& view, Scene& scene) {
  scene.name = ToDisplayText(view.name);
  scene.breite = view.width;
  scene.hoehe = view.height;
  for (const Sash& sash : view.sashes) {
    const Opening& opening = sash.opening;
    scene.fluegel.push_back(
        {ShortText(opening.kind), ShortText(opening.hinge), ShortText(opening.side)});
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

Scene BuildScene(const WindowView& view, const SceneOptions& options) {
  Scene scene;
  scene.side = options.side;
  Describe(view, scene);
  AddLayers(view, options, scene);
  if (!scene.shapes.empty()) scene.umriss = ToOutline(view.outer);
  if (options.hiddenLine) {
    AddVisibleEdges(view, options.side, scene);
    scene.shapes.clear();
  }
  AddFittings(view, options.side, scene);
  if (options.hiddenLine) CutAtFittings(scene);
  if (options.dimensions) AddMeasures(view, options, scene);
  return scene;
}

Scene BuildScene(const CFeApi& window, const SceneOptions& options) {
  const CMFenster* const fenster = window.GetFensterPtr();
  if (!fenster || fenster->GetFehler() != 0) return BuildScene(WindowView(), options);
  return BuildScene(fenster->View(), options);
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
