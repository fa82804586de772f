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
#include "lintavo/drawing/Text.h"

#include "support/PictureFile.h"

namespace lintavo::drawing {
namespace {

using lintavo::testing::ParseSvg;

std::string Render(const Scene& scene, PictureFormat format) {
  std::string bytes;
  EXPECT_EQ(RenderPicture(scene, format, bytes), PictureStatus::kOk);
  return bytes;
}

constexpr ViewSide kBothSides[] = {ViewSide::kInside, ViewSide::kOutside};

std::vector<std::string> ExampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(LINTAVO_EXAMPLES_DIR "/windows")) {
    if (entry.path().extension() == ".aqz") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string ExampleText(const std::string& name) {
  return lintavo::testing::ReadBytes(LINTAVO_EXAMPLES_DIR "/windows/" + name + ".aqz");
}

CFeApi Example(const std::string& name) {
  CFeApi window;
  EXPECT_EQ(window.ReadFromFile((LINTAVO_EXAMPLES_DIR "/windows/" + name + ".aqz").c_str()), 1);
  return window;
}

// The window of a macro file's text, in the façade's form for buffers.
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

// An example with one piece of its file replaced.
CFeApi Changed(const std::string& name, const std::string& from, const std::string& to) {
  std::string text = ExampleText(name);
  const std::size_t place = text.find(from);
  EXPECT_NE(place, std::string::npos) << from;
  text.replace(place, from.size(), to);
  return WindowOf(text);
}

Scene SceneOf(const CFeApi& window, ViewSide side = ViewSide::kInside) {
  SceneOptions options;
  options.side = side;
  return BuildScene(window, options);
}

// Index of the first shape of a kind and sash in the order of painting, -1 for none.
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

long Count(const Scene& scene, LineKind kind, bool dashed = false) {
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

TEST_P(EveryExample, WritesEveryDimensionWhereNothingElseIs) {
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
    // A panel is hatched besides; a part that closes round is filled and outlined by two paths.
    const std::size_t items = scene.shapes.size() + scene.lines.size() + scene.texts.size() + 1;
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

TEST(SceneHiddenLine, HasTheEdgesOfTheViewAndNothingFilled) {
  const CFeApi window = Example("dreiteilig_mit_oberlicht");
  SceneOptions options;
  options.hiddenLine = true;
  options.dimensions = false;
  const Scene scene = BuildScene(window, options);
  CFeApiStrecken view;
  ASSERT_EQ(window.GetAnsicht(0, view), 1);
  EXPECT_TRUE(scene.shapes.empty());
  EXPECT_EQ(Count(scene, LineKind::kAnsicht), view.lAnzahl);
  EXPECT_EQ(Count(scene, LineKind::kOeffnungsSymbol), 12);
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
