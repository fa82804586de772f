// Scenes of the example windows, and what the tests ask of scenes.
#include "support/Szene.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>

#include <gtest/gtest.h>

#include "support/PictureFile.h"

using namespace lintavo::drawing;

namespace lintavo::testing {

std::vector<std::string> ExampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(LINTAVO_EXAMPLES_DIR "/windows")) {
    if (entry.path().extension() == ".aqz") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ExampleText(const std::string& name) {
  return ReadBytes(LINTAVO_EXAMPLES_DIR "/windows/" + name + ".aqz");
}

CFeApi Example(const std::string& name) {
  CFeApi window;
  EXPECT_EQ(window.ReadFromFile((LINTAVO_EXAMPLES_DIR "/windows/" + name + ".aqz").c_str()), 1);
  return window;
}

CFeApi WindowOf(const std::string& text) {
  std::string buffer;
  for (const char c : text) {
    const bool emptyLine = c == '\n' && (buffer.empty() || buffer.back() == '#');
    if (!emptyLine) buffer += c == '\n' ? '#' : c;
  }
  if (buffer.back() != '#') buffer += '#';
  CFeApi window;
  EXPECT_EQ(window.ReadFromBuffer(static_cast<long>(buffer.size()), buffer.data()), 1);
  return window;
}

CFeApi Changed(const std::string& name, const std::string& from, const std::string& to) {
  std::string text = ExampleText(name);
  const std::size_t place = text.find(from);
  EXPECT_NE(place, std::string::npos) << from;
  text.replace(place, from.size(), to);
  return WindowOf(text);
}

Scene SceneOf(const CFeApi& window, ViewSide side) {
  SceneOptions options;
  options.side = side;
  return BuildScene(window, options);
}

long PlaceOf(const Scene& scene, ShapeKind kind, long fluegel) {
  for (std::size_t i = 0; i < scene.shapes.size(); ++i) {
    if (scene.shapes[i].kind == kind && scene.shapes[i].fluegel == fluegel) {
      return static_cast<long>(i);
    }
  }
  return -1;
}

long Count(const Scene& scene, ShapeKind kind) {
  return std::count_if(scene.shapes.begin(), scene.shapes.end(),
                       [&](const Shape& shape) { return shape.kind == kind; });
}

long Count(const Scene& scene, LineKind kind, bool dashed) {
  return std::count_if(scene.lines.begin(), scene.lines.end(), [&](const Line& line) {
    return line.kind == kind && (!dashed || line.dashed);
  });
}

bool IsInside(const Shape& shape, const Point& p) {
  bool inside = false;
  for (std::size_t i = 0; i < shape.outline.size(); ++i) {
    const Point& a = shape.outline[i];
    const Point& b = shape.outline[(i + 1) % shape.outline.size()];
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

double DistanceToOutline(const Shape& shape, const Point& p) {
  double nearest = 1e300;
  for (std::size_t i = 0; i < shape.outline.size(); ++i) {
    const Point& a = shape.outline[i];
    const Point& b = shape.outline[(i + 1) % shape.outline.size()];
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = std::max(dx * dx + dy * dy, 1e-300);
    const double t = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0);
    nearest = std::min(nearest, std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy));
  }
  return nearest;
}

bool Touches(const Line& line, const Box& box) {
  constexpr int kSteps = 2000;
  for (int i = 0; i <= kSteps; ++i) {
    const double t = static_cast<double>(i) / kSteps;
    const double x = line.from.x + t * (line.to.x - line.from.x);
    const double y = line.from.y + t * (line.to.y - line.from.y);
    if (x > box.left && x < box.right && y > box.bottom && y < box.top) return true;
  }
  return false;
}

}  // namespace lintavo::testing
