// Scenes of the example windows: what they show, in which order, and where the
// dimensions stand.
#include "lintavo/drawing/Scene.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Picture.h"

#include "support/PictureFile.h"
#include "support/Szene.h"

namespace lintavo::drawing {
namespace {

using namespace lintavo::testing;

std::string Render(const Scene& scene, PictureFormat format) {
  std::string bytes;
  EXPECT_EQ(RenderPicture(scene, format, bytes), PictureStatus::kOk);
  return bytes;
}

constexpr ViewSide kBothSides[] = {ViewSide::kInside, ViewSide::kOutside};

// What is seen at a point: the shape painted last of those that it lies in.
const Shape* Topmost(const Scene& scene, const Point& p) {
  for (auto shape = scene.shapes.rbegin(); shape != scene.shapes.rend(); ++shape) {
    if (IsInside(*shape, p)) return &*shape;
  }
  return nullptr;
}

class EveryExample : public ::testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Windows, EveryExample, ::testing::ValuesIn(ExampleNames()),
                         [](const auto& tested) { return tested.param; });

TEST_P(EveryExample, ShowsEachPartOnce) {
  const CFeApi window = Example(GetParam());
  long expected = window.GetAnzahlRahmenBauteile(1) + window.GetAnzahlRahmenBauteile(2);
  for (long i = 0; i < window.GetAnzahlFluegel(); ++i) {
    expected += 1 + window.GetFluegelAnzahlLamellen(i);
    for (const long art : {1L, 2L, 3L}) expected += window.GetFluegelAnzahlBauteile(art, i);
  }
  for (const ViewSide side : kBothSides) {
    SceneOptions options;
    options.side = side;
    options.dimensions = false;
    const Scene scene = BuildScene(window, options);
    std::set<std::tuple<ShapeKind, long, long>> parts;
    for (const Shape& shape : scene.shapes) {
      parts.insert({shape.kind, shape.fluegel, shape.bauteil});
    }
    EXPECT_EQ(scene.shapes.size(), static_cast<std::size_t>(expected));
    EXPECT_EQ(parts.size(), scene.shapes.size());
  }
}

// Where the view with hidden lines removed has an edge, one of the two shapes that
// are seen beside it must end there: both cover in the same order.
TEST_P(EveryExample, CoversAsTheViewWithHiddenLinesRemoved) {
  const CFeApi window = Example(GetParam());
  for (const ViewSide side : kBothSides) {
    const Scene scene = SceneOf(window, side);
    CFeApiStrecken view;
    ASSERT_EQ(window.GetAnsicht(side == ViewSide::kOutside ? 1 : 0, view), 1);
    for (int i = 0; i < view.lAnzahl; ++i) {
      const double dx = view.pdX2[i] - view.pdX1[i];
      const double dy = view.pdY2[i] - view.pdY1[i];
      const double length = std::hypot(dx, dy);
      if (length < 0.1) continue;
      const Point middle{view.pdX1[i] + 0.47 * dx, view.pdY1[i] + 0.47 * dy};
      bool ends = false;
      for (const double off : {0.02, -0.02}) {
        const Shape* seen =
            Topmost(scene, {middle.x - off * dy / length, middle.y + off * dx / length});
        ends = ends || (seen != nullptr && DistanceToOutline(*seen, middle) < 0.01);
      }
      EXPECT_TRUE(ends) << "edge at " << middle.x << ", " << middle.y << " from side "
                        << static_cast<int>(side);
    }
  }
}

// The lines of a handle or a hinge lie on its surface, and no edge shows through it.
TEST_P(EveryExample, FittingsCoverWhatLiesBehind) {
  const CFeApi window = Example(GetParam());
  SceneOptions options;
  options.dimensions = false;
  const Scene filled = BuildScene(window, options);
  options.hiddenLine = true;
  const Scene edges = BuildScene(window, options);
  EXPECT_TRUE(edges.beschlaege.empty());
  for (const FittingShape& fitting : filled.beschlaege) {
    Shape surface;
    surface.outline = fitting.outline;
    for (const Line& line : filled.lines) {
      if (line.kind != LineKind::kBeschlag || line.fluegel != fitting.fluegel) continue;
      if (line.bauteil != fitting.beschlag) continue;
      for (const Point& p : {line.from, line.to}) {
        EXPECT_TRUE(IsInside(surface, p) || DistanceToOutline(surface, p) < 1e-6);
      }
    }
    for (const Line& line : edges.lines) {
      if (line.kind == LineKind::kBeschlag) continue;
      const Point middle{(line.from.x + line.to.x) / 2.0, (line.from.y + line.to.y) / 2.0};
      EXPECT_TRUE(!IsInside(surface, middle) || DistanceToOutline(surface, middle) < 1e-3);
    }
  }
}

// Every visible edge lies on the side of the part that it names.
TEST_P(EveryExample, VisibleEdgesKnowTheirPartsAndSides) {
  const CFeApi window = Example(GetParam());
  for (const ViewSide side : kBothSides) {
    const Scene filled = SceneOf(window, side);
    SceneOptions options;
    options.side = side;
    options.hiddenLine = true;
    for (const Line& line : BuildScene(window, options).lines) {
      if (line.kind != LineKind::kAnsicht) continue;
      const auto part =
          std::find_if(filled.shapes.begin(), filled.shapes.end(), [&](const Shape& shape) {
            return shape.kind == line.teil && shape.fluegel == line.fluegel &&
                   shape.bauteil == line.bauteil;
          });
      ASSERT_NE(part, filled.shapes.end());
      const auto count = static_cast<long>(part->outline.size());
      ASSERT_TRUE(line.seite >= 0 && line.seite < count);
      Shape edge;
      edge.outline = {part->outline[static_cast<std::size_t>(line.seite)],
                      part->outline[static_cast<std::size_t>((line.seite + 1) % count)]};
      EXPECT_LT(DistanceToOutline(edge, line.from), 0.002);
      EXPECT_LT(DistanceToOutline(edge, line.to), 0.002);
    }
  }
}

TEST_P(EveryExample, StaysOnThePage) {
  const CFeApi window = Example(GetParam());
  for (const bool hiddenLine : {false, true}) {
    SceneOptions options;
    options.hiddenLine = hiddenLine;
    options.side = ViewSide::kOutside;
    const Scene scene = BuildScene(window, options);
    auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
    double width = 0.0;
    double height = 0.0;
    ASSERT_EQ(std::sscanf(svg.viewBox.c_str(), "0 0 %lf %lf", &width, &height), 2);
    EXPECT_TRUE(svg.wellFormed);
    // A panel is hatched besides; a part that closes round is filled and outlined by two paths,
    // a handle or hinge too.
    std::size_t items = scene.shapes.size() + scene.lines.size() + scene.texts.size() + 1;
    for (const FittingShape& fitting : scene.beschlaege) {
      items += 2;
      for (const Line& line : scene.lines) {
        items -= line.fluegel == fitting.fluegel && line.kind == LineKind::kBeschlag &&
                 line.bauteil == fitting.beschlag;
      }
    }
    const long paths = svg.Count() - svg.Count("schraffur");
    EXPECT_GE(paths, static_cast<long>(items));
    EXPECT_LE(paths, static_cast<long>(items) + 2);
    std::sort(svg.ids.begin(), svg.ids.end());
    EXPECT_EQ(std::adjacent_find(svg.ids.begin(), svg.ids.end()), svg.ids.end());
    EXPECT_GT(svg.left, 0.0);
    EXPECT_GT(svg.top, 0.0);
    EXPECT_LT(svg.right, width);
    EXPECT_LT(svg.bottom, height);
  }
}

TEST(Examples, ShowEveryOpeningKindEverySideAndEveryFilling) {
  std::set<std::string> seen;
  for (const std::string& name : ExampleNames()) {
    const CFeApi window = Example(name);
    for (long i = 0; i < window.GetAnzahlFluegel(); ++i) {
      char text[256];
      seen.insert(std::string(text, static_cast<std::size_t>(window.GetFluegelGangart(i, text))));
      seen.insert(std::string(text, static_cast<std::size_t>(window.GetFluegelOeffSeite(i, text))));
      seen.insert("Fuellung " + std::to_string(window.GetFluegelFuellungArt(i)));
    }
  }
  const std::set<std::string> all{"Fe", "Dr", "Ki",         "Kl",         "DK",        "HD",
                                  "Sw", "We", "Sc",         "HS",         "Fa",        "HSK",
                                  "In", "Au", "Fuellung 0", "Fuellung 1", "Fuellung 2"};
  EXPECT_EQ(seen, all);
}

TEST(SceneSides, SashesCoverTheFrameOnTheSideToWhichTheyOpen) {
  const CFeApi window = Example("raster_3x3");
  constexpr long kInwards = 3;   // turn and tilt
  constexpr long kOutwards = 7;  // top hung
  constexpr long kPane = 4;      // without a sash frame
  for (const ViewSide side : kBothSides) {
    const Scene scene = SceneOf(window, side);
    const long frame = PlaceOf(scene, ShapeKind::kRahmenteil, -1);
    const bool inside = side == ViewSide::kInside;
    EXPECT_EQ(PlaceOf(scene, ShapeKind::kFluegelteil, kInwards) > frame, inside);
    EXPECT_EQ(PlaceOf(scene, ShapeKind::kFluegelteil, kOutwards) < frame, inside);
    EXPECT_LT(PlaceOf(scene, ShapeKind::kGlas, kPane), frame);
  }
}

TEST(SceneSides, LeavesLieOverEachOtherTheOtherWayRoundFromOutside) {
  // In one plane the leaf that opens first lies over the other; in two planes the
  // nearer one does.
  for (const char* name : {"zweifluegelig_stulp", "hebeschiebetuer"}) {
    const CFeApi window = Example(name);
    for (const ViewSide side : kBothSides) {
      const Scene scene = SceneOf(window, side);
      EXPECT_EQ(
          PlaceOf(scene, ShapeKind::kFluegelteil, 0) > PlaceOf(scene, ShapeKind::kFluegelteil, 1),
          side == ViewSide::kInside)
          << name;
    }
  }
  // Where the second leaf opens first, it is the one on top.
  std::string text = ExampleText("zweifluegelig_stulp");
  const std::string first = "ZuerstAufgehend=1";
  const std::size_t left = text.find(first);
  text.replace(text.find("ZuerstAufgehend=0", left), first.size(), first);
  text.replace(left, first.size(), "ZuerstAufgehend=0");
  const Scene scene = SceneOf(WindowOf(text));
  EXPECT_LT(PlaceOf(scene, ShapeKind::kFluegelteil, 0), PlaceOf(scene, ShapeKind::kFluegelteil, 1));
}

TEST(SceneSymbols, AreDashedWhereTheSashOpensAwayFromTheViewer) {
  constexpr LineKind kSymbol = LineKind::kOeffnungsSymbol;
  struct Case {
    const char* name;
    long lines;
    long dashedInside;
    long dashedOutside;
  };
  // Turn and tilt have two lines each, fixed two, a sliding arrow four, the folding
  // lines two; fixed and sliding ones are never dashed.
  for (const Case& c :
       {Case{"drehkipp_einfluegelig", 4, 0, 4}, Case{"dreiteilig_mit_oberlicht", 12, 0, 10},
        Case{"raster_3x3", 4 + 4 + 2 + 2 + 2 + 2, 2, 4 + 4 + 2 + 2},
        Case{"schiebefenster_zweifluegelig", 8, 0, 0}, Case{"falttuer_dreifluegelig", 6, 6, 0},
        Case{"klappladen_zweifluegelig", 0, 0, 0}}) {
    const CFeApi window = Example(c.name);
    EXPECT_EQ(Count(SceneOf(window), kSymbol), c.lines) << c.name;
    EXPECT_EQ(Count(SceneOf(window), kSymbol, true), c.dashedInside) << c.name;
    EXPECT_EQ(Count(SceneOf(window, ViewSide::kOutside), kSymbol, true), c.dashedOutside) << c.name;
    SceneOptions without;
    without.symbols = false;
    EXPECT_EQ(Count(BuildScene(window, without), kSymbol), 0) << c.name;
  }
}

TEST(SceneSymbols, EndWhereALeafInFrontCoversThem) {
  // From outside the fixed sash lies in front. Its stile is made so wide that it
  // reaches 85 beyond the axis at 160, to X 75. The glass behind spans X 16.5 to 155,
  // so the arrow in its middle, 30 long, begins at X 70.75.
  const CFeApi window =
      Changed("hebeschiebetuer", "R4=10,5,1,3,1,3,7.8\nX1=0,1", "R4=90,85,1,3,1,3,7.8\nX1=0,1");
  double left = 1e300;
  double right = -1e300;
  for (const Line& line : SceneOf(window, ViewSide::kOutside).lines) {
    if (line.kind != LineKind::kOeffnungsSymbol || line.fluegel != 0) continue;
    left = std::min({left, line.from.x, line.to.x});
    right = std::max({right, line.from.x, line.to.x});
  }
  EXPECT_NEAR(left, 70.75, 1e-6);
  EXPECT_NEAR(right, 75.0, 1e-6);
}

TEST(SceneFittings, AreSeenFromInsideAndFromTheSideToWhichTheirSashOpens) {
  constexpr LineKind kFitting = LineKind::kBeschlag;
  // A handle has eleven lines, a hinge six.
  const CFeApi inwards = Example("drehkipp_einfluegelig");
  EXPECT_EQ(Count(SceneOf(inwards), kFitting), 11 + 2 * 6);
  EXPECT_EQ(Count(SceneOf(inwards, ViewSide::kOutside), kFitting), 0);
  const CFeApi outwards = Example("falttuer_dreifluegelig");
  EXPECT_EQ(Count(SceneOf(outwards), kFitting), 11 + 9 * 6);
  EXPECT_EQ(Count(SceneOf(outwards, ViewSide::kOutside), kFitting), 11 + 9 * 6);
}

TEST(SceneParts, TellMullionsExtraPartsAndSlatsApart) {
  const Scene parts = SceneOf(Example("sprossen_und_zusatzteile"));
  EXPECT_EQ(Count(parts, ShapeKind::kEinzelteil), 1);
  EXPECT_EQ(Count(parts, ShapeKind::kZusatzteil), 5);
  EXPECT_EQ(Count(parts, ShapeKind::kFluegelEinzelteil), 2);
  // Between the leaves' bottom and top rails lie 138 - 2 * 9 = 120: twenty slats of 5
  // with gaps of 1 in each.
  const Scene slats = SceneOf(Example("klappladen_zweifluegelig"));
  EXPECT_EQ(Count(slats, ShapeKind::kLamelle), 2 * 20);
  EXPECT_EQ(Count(slats, ShapeKind::kLamellen), 2);
}

TEST(SceneHiddenLine, HasTheEdgesOfTheViewAndNothingFilled) {
  const CFeApi window = Example("dreiteilig_mit_oberlicht");
  SceneOptions options;
  options.hiddenLine = true;
  options.dimensions = false;
  const Scene scene = BuildScene(window, options);
  EXPECT_TRUE(scene.shapes.empty());
  EXPECT_EQ(Count(scene, LineKind::kOeffnungsSymbol), 12);
  // From outside no fitting covers an edge.
  options.side = ViewSide::kOutside;
  CFeApiStrecken view;
  ASSERT_EQ(window.GetAnsicht(1, view), 1);
  EXPECT_EQ(Count(BuildScene(window, options), LineKind::kAnsicht), view.lAnzahl);
}

TEST(Scene, OfAnEmptyWindowIsEmpty) {
  for (const bool hiddenLine : {false, true}) {
    SceneOptions options;
    options.hiddenLine = hiddenLine;
    const Scene scene = BuildScene(CFeApi(), options);
    EXPECT_TRUE(scene.shapes.empty() && scene.lines.empty() && scene.texts.empty());
  }
}

}  // namespace
}  // namespace lintavo::drawing
