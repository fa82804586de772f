// Dimensions in scenes of the example windows: where their lines and texts stand, and how
// large they are.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Text.h"

#include "support/Szene.h"

namespace lintavo::drawing {
namespace {

using namespace lintavo::testing;

class EveryExampleMeasured : public ::testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Windows, EveryExampleMeasured, ::testing::ValuesIn(ExampleNames()),
                         [](const auto& tested) { return tested.param; });

TEST_P(EveryExampleMeasured, WritesEveryDimensionWhereNothingElseIs) {
  const CFeApi window = Example(GetParam());
  const Scene scene = SceneOf(window);
  ASSERT_EQ(scene.texts.size(), static_cast<std::size_t>(window.GetAnzahlZusatzMasze()));
  EXPECT_EQ(Count(scene, LineKind::kMaszLinie), window.GetAnzahlZusatzMasze());
  EXPECT_EQ(Count(scene, LineKind::kHilfsLinie), 2 * window.GetAnzahlZusatzMasze());
  EXPECT_EQ(Count(scene, ShapeKind::kMaszPfeil), 2 * window.GetAnzahlZusatzMasze());
  for (const Text& text : scene.texts) {
    EXPECT_EQ(text.inhalt, LengthText(std::abs(window.GetZMaszLaenge(text.masz))));
    const Box box = GetBox(text);
    for (const Line& line : scene.lines) EXPECT_FALSE(Touches(line, box)) << text.inhalt;
    for (const Shape& shape : scene.shapes) {
      EXPECT_FALSE(IsInside(shape, text.mitte)) << text.inhalt;
    }
    for (const Text& other : scene.texts) {
      const Box second = GetBox(other);
      EXPECT_TRUE(&other == &text || second.left >= box.right || second.right <= box.left ||
                  second.bottom >= box.top || second.top <= box.bottom)
          << text.inhalt << " and " << other.inhalt;
    }
  }
}

// In rows every line lies outside of what is drawn, and no two of one row overlap.
TEST_P(EveryExampleMeasured, ChainsLieBelowAndLeftOfTheDrawing) {
  const CFeApi window = Example(GetParam());
  SceneOptions options;
  options.dimensions = false;
  Box drawn;
  ASSERT_TRUE(GetBox(BuildScene(window, options), drawn));
  options.dimensions = options.chains = true;
  PlanOptions plan;
  plan.scale = 20.0;
  options.millimetre = UnitsPerMillimetre(plan);
  const Scene scene = BuildScene(window, options);
  EXPECT_EQ(Count(scene, LineKind::kMaszLinie), window.GetAnzahlZusatzMasze());
  for (const Text& text : scene.texts) EXPECT_LE(text.hoehe, 2.5 * 2.0 + 1e-9);
  for (const Line& line : scene.lines) {
    if (line.kind != LineKind::kMaszLinie) continue;
    const bool upright = line.from.x == line.to.x;
    // Four text heights of 2.5 mm, each of two units.
    const double nearest = upright ? drawn.left - line.from.x : drawn.bottom - line.from.y;
    EXPECT_GE(nearest, 20.0 - 1e-9);
    for (const Line& other : scene.lines) {
      if (other.kind != LineKind::kMaszLinie || &other == &line) continue;
      if (upright != (other.from.x == other.to.x)) continue;
      const bool oneRow = upright ? std::abs(line.from.x - other.from.x) < 1e-9
                                  : std::abs(line.from.y - other.from.y) < 1e-9;
      if (!oneRow) continue;
      const double Point::*along = upright ? &Point::y : &Point::x;
      EXPECT_TRUE(line.to.*along <= other.from.*along + 1e-4 ||
                  other.to.*along <= line.from.*along + 1e-4);
    }
  }
}

TEST(SceneDimensions, LieWhereTheFilePutsThem) {
  const Scene scene = SceneOf(Example("drehkipp_einfluegelig"));
  const auto line = std::find_if(scene.lines.begin(), scene.lines.end(), [](const Line& l) {
    return l.kind == LineKind::kMaszLinie && l.masz == 0;
  });
  ASSERT_NE(line, scene.lines.end());
  EXPECT_NEAR(line->from.x, 0.0, 1e-9);
  EXPECT_NEAR(line->to.x, 100.0, 1e-9);
  EXPECT_NEAR(line->from.y, -20.0, 1e-9);
  // Above the middle of its line; that of the height to the left, reading upwards.
  EXPECT_NEAR(scene.texts[0].mitte.x, 50.0, 1e-9);
  EXPECT_GT(scene.texts[0].mitte.y, -20.0);
  EXPECT_FALSE(scene.texts[0].upright);
  EXPECT_NEAR(scene.texts[1].mitte.y, 65.0, 1e-9);
  EXPECT_LT(scene.texts[1].mitte.x, -20.0);
  EXPECT_TRUE(scene.texts[1].upright);
}

TEST(SceneDimensions, InsideTheWindowAvoidItsLines) {
  // The breast rail's height is measured on the frame's outer edge.
  const Scene scene = SceneOf(Changed("raster_3x3", "Laenge=60,-30", "Laenge=60,0"));
  const auto text = std::find_if(scene.texts.begin(), scene.texts.end(),
                                 [](const Text& t) { return t.masz == 4; });
  ASSERT_NE(text, scene.texts.end());
  for (const Line& line : scene.lines) EXPECT_FALSE(Touches(line, GetBox(*text)));
  for (const Shape& shape : scene.shapes) {
    for (std::size_t i = 0; i < shape.outline.size(); ++i) {
      Line edge;
      edge.from = shape.outline[i];
      edge.to = shape.outline[(i + 1) % shape.outline.size()];
      EXPECT_FALSE(Touches(edge, GetBox(*text)));
    }
  }
}

TEST(SceneDimensions, ThatAreShortHaveTheirArrowsOutside) {
  // A dimension of 0.5 beside the window, which is 100 wide.
  std::string text = ExampleText("drehkipp_einfluegelig");
  text.replace(text.find("X1=100"), 6, "X1=100\nX2=0.5");
  text.insert(text.find("[Rahmen]"),
              "[Masz3]\nName=Nut\nLaenge=0.5,-10\nRichtung=1\nKnoten1=1,0\nKnoten2=2,0\n");
  const Scene narrow = SceneOf(WindowOf(text));
  ASSERT_EQ(narrow.texts.size(), 3u);
  for (const Shape& shape : narrow.shapes) {
    if (shape.kind != ShapeKind::kMaszPfeil || shape.bauteil != 2) continue;
    // The tip lies on an end, the rest of the head outside of the span 100 to 100.5.
    const bool left = shape.outline[0].x < 100.25;
    for (const Point& p : shape.outline) {
      EXPECT_TRUE(left ? p.x <= 100.0 + 1e-9 : p.x >= 100.5 - 1e-9) << p.x;
    }
  }
  EXPECT_TRUE(narrow.texts[2].mitte.x < 100.0 || narrow.texts[2].mitte.x > 100.5);
}

// The smaller side of the box around a shape.
double SmallerSide(const Shape& shape) {
  Box box{1e9, 1e9, -1e9, -1e9};
  for (const Point& p : shape.outline) {
    box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
           std::max(box.top, p.y)};
  }
  return std::min(box.right - box.left, box.top - box.bottom);
}

TEST(SceneDimensions, TakeTheSizesThatAreAskedFor) {
  const CFeApi window = Example("drehkipp_einfluegelig");
  SceneOptions options;
  options.sizes.textHeight = 5.0;
  options.sizes.arrowWidth = 1.25;
  options.sizes.lineFactor = 2.0;
  const Scene usual = BuildScene(window);
  const Scene scene = BuildScene(window, options);
  ASSERT_FALSE(scene.texts.empty());
  for (const Text& text : scene.texts) EXPECT_DOUBLE_EQ(text.hoehe, 5.0);
  for (const Shape& shape : scene.shapes) {
    if (shape.kind != ShapeKind::kMaszPfeil) continue;
    EXPECT_NEAR(SmallerSide(shape), 1.25, 1e-9);
  }
  // The window begins at 0, so a line below or left of it lies twice as far out.
  const auto farthest = [](const Scene& s, double Point::*across) {
    double least = 0.0;
    for (const Line& line : s.lines) {
      if (line.kind == LineKind::kMaszLinie) least = std::min(least, line.from.*across);
    }
    return least;
  };
  ASSERT_LT(farthest(usual, &Point::x) + farthest(usual, &Point::y), 0.0);
  EXPECT_NEAR(farthest(scene, &Point::x), 2.0 * farthest(usual, &Point::x), 1e-9);
  EXPECT_NEAR(farthest(scene, &Point::y), 2.0 * farthest(usual, &Point::y), 1e-9);
}

TEST(SceneDimensions, PixelsAreThoseOfThePicture) {
  SceneOptions options;
  options.sizes.pixel = true;
  options.sizes.textHeight = 30.0;
  const Scene scene = BuildScene(Example("drehkipp_einfluegelig"), options);
  Box box;
  ASSERT_TRUE(GetBox(scene, box));
  // 1600 pixels less a margin of 64 on each side.
  const double pixel = std::max(box.right - box.left, box.top - box.bottom) / 1472.0;
  for (const Text& text : scene.texts) EXPECT_NEAR(text.hoehe, 30.0 * pixel, 0.1 * pixel);
}

TEST(SceneDimensions, SizesBeyondReasonStayWithinTheWindow) {
  for (const double size : {1e300, HUGE_VAL, std::nan(""), -1.0}) {
    for (const bool pixel : {false, true}) {
      SceneOptions options;
      options.sizes = {pixel, size, size, size, size, size, size};
      const Scene scene = BuildScene(Example("drehkipp_einfluegelig"), options);
      Box box;
      ASSERT_TRUE(GetBox(scene, box)) << size;
      EXPECT_LT(std::max(box.right - box.left, box.top - box.bottom), 130.0 * 30.0) << size;
    }
  }
}

TEST(SceneDimensions, OutOfReachAreLeftOut) {
  for (const char* distance : {"1e300", "-1400", "nan"}) {
    const CFeApi window =
        Changed("drehkipp_einfluegelig", "Laenge=100,-20", std::string("Laenge=100,") + distance);
    const Scene scene = SceneOf(window);
    Box box;
    ASSERT_TRUE(GetBox(scene, box));
    EXPECT_LT(box.right - box.left, 1000.0);
    EXPECT_LE(scene.texts.size(), 2u);
  }
}

}  // namespace
}  // namespace lintavo::drawing
