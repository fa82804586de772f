// Cutting axes to outlines.
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Toleranzen.h"

#include "tests/support/Geometrie.h"

using namespace lintavo::test;

namespace {

GEOM2_Achse Achse(const XY& p1, const XY& p2) {
  GEOM2_Achse achse;
  GEOM2_Polygon::SetAchse(p1, p2, achse);
  return achse;
}

void ErwarteAchse(const GEOM2_Achse& achse, double x, double y, double laenge, double anfang,
                  double ende) {
  EXPECT_NEAR(achse.Start.x, x, 1e-9);
  EXPECT_NEAR(achse.Start.y, y, 1e-9);
  EXPECT_NEAR(achse.dLaenge, laenge, 1e-9);
  EXPECT_NEAR(achse.dWinkelAnfang, anfang, 1e-9);
  EXPECT_NEAR(achse.dWinkelEnde, ende, 1e-9);
}

TEST(AchseClippen, CutsTheEndsAlongTheOutline) {
  // Left side upright, right side falling back at 45 degrees.
  const GEOM2_Polygon trapez = Poly("(0,0) (20,0) (10,10) (0,10)");
  GEOM2_Achse achse = Achse({-5, 5}, {25, 5});
  EXPECT_TRUE(trapez.AchseClippen(achse, 2));
  ErwarteAchse(achse, 0, 5, 15, 0, -45);
  achse = Achse({25, 5}, {-5, 5});
  EXPECT_TRUE(trapez.AchseClippen(achse, 2));
  ErwarteAchse(achse, 15, 5, 15, -45, 0);
  EXPECT_DOUBLE_EQ(std::fabs(achse.dWinkel), 180);
}

TEST(AchseClippen, AtACornerTheCutRunsThroughBothParallels) {
  // The point of the roof lies on the axis: the parallels meet the slopes at equal depth.
  const GEOM2_Polygon spitze = Poly("(0,0) (10,0) (15,5) (10,10) (0,10)");
  GEOM2_Achse achse = Achse({-5, 5}, {25, 5});
  EXPECT_TRUE(spitze.AchseClippen(achse, 2));
  ErwarteAchse(achse, 0, 5, 15, 0, 0);
  // One lower the axis meets the lower slope at 14, the parallels at +-2 both lie 2 and 3
  // off the point: 13 above (v = 2, y = 6: x = 14) and 12 below (y = 2).
  achse = Achse({-5, 4}, {25, 4});
  EXPECT_TRUE(spitze.AchseClippen(achse, 2));
  ErwarteAchse(achse, 0, 4, 14, 0, std::atan(2.0 / 4.0) * lintavo::kGradJeRadiant);
}

TEST(AchseClippen, WhereAParallelMissesTheEdgeDecides) {
  GEOM2_Achse achse = Achse({-5, 1}, {25, 1});
  EXPECT_TRUE(Poly("(0,0) (20,0) (10,10) (0,10)").AchseClippen(achse, 2));
  ErwarteAchse(achse, 0, 1, 19, 0, -45);
}

TEST(AchseClippen, AParallelAlongAnEdgeEndsAtItsCorner) {
  // The parallel at +5 runs along the edge from (5,10) to (5,40).
  const GEOM2_Polygon stufe = Poly("(-20,0) (20,0) (20,10) (5,10) (5,40) (-20,40)");
  GEOM2_Achse achse = Achse({10, 0}, {10, 30});
  EXPECT_TRUE(stufe.AchseClippen(achse, 5));
  ErwarteAchse(achse, 10, 0, 10, 0, 0);
  achse = Achse({-10, 0}, {-10, 30});
  EXPECT_TRUE(Gespiegelt(stufe).AchseClippen(achse, 5));
  ErwarteAchse(achse, -10, 0, 10, 0, 0);
}

// The axis ends on a flat roof, over which the left parallel passes; the right one ends at
// the wall, 3 below and 3 behind: the cut does not follow the roof far past the wall.
TEST(AchseClippen, AFlatEdgeDoesNotSendTheCutPastItsNeighbour) {
  GEOM2_Achse achse = Achse({-5, 8}, {25, 8});
  EXPECT_TRUE(Poly("(0,0) (20,0) (20,7.7) (0,9.7)").AchseClippen(achse, 3));
  ErwarteAchse(achse, 0, 8, 17, 0, -45);
}

TEST(AchseClippen, KeepsTheLongestPieceAndNeverLengthens) {
  const GEOM2_Polygon kerbe = Poly("(0,0) (20,0) (20,10) (8,10) (8,5) (6,5) (6,10) (0,10)");
  GEOM2_Achse achse = Achse({-5, 7}, {25, 7});
  EXPECT_TRUE(kerbe.AchseClippen(achse, 1));
  ErwarteAchse(achse, 8, 7, 12, 0, 0);
  achse = Achse({2, 2}, {12, 2});
  achse.dWinkelAnfang = 30;
  EXPECT_TRUE(kerbe.AchseClippen(achse, 1));
  ErwarteAchse(achse, 2, 2, 10, 30, 0);
}

TEST(AchseClippen, KeepsThePieceAtAStretch) {
  const GEOM2_Polygon kerbe = Poly("(0,0) (20,0) (20,10) (8,10) (8,5) (6,5) (6,10) (0,10)");
  GEOM2_Achse achse = Achse({-5, 7}, {25, 7});
  EXPECT_TRUE(kerbe.AchseClippen(achse, 1, 8, 12));
  ErwarteAchse(achse, 0, 7, 6, 0, 0);
  achse = Achse({-5, 7}, {25, 7});
  EXPECT_TRUE(kerbe.AchseClippen(achse, 1, 9, 14)) << "more of it before the notch";
  ErwarteAchse(achse, 0, 7, 6, 0, 0);
  achse = Achse({-5, 7}, {25, 7});
  EXPECT_TRUE(kerbe.AchseClippen(achse, 1, 0, 2)) << "outside";
  ErwarteAchse(achse, 0, 7, 6, 0, 0);
  achse = Achse({-5, 12}, {25, 12});
  EXPECT_FALSE(kerbe.AchseClippen(achse, 1, 5, 10));
}

TEST(AchseClippen, NothingInsideLeavesLengthZero) {
  GEOM2_Achse achse = Achse({-5, 20}, {25, 20});
  EXPECT_FALSE(Rechteck(0, 0, 10, 10).AchseClippen(achse, 1));
  EXPECT_EQ(achse.dLaenge, 0);
  EXPECT_EQ(achse.Start.x, -5);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double wert : {nan, 1e308, -1e308, std::numeric_limits<double>::infinity()}) {
    achse = Achse({-5, 5}, {25, 5});
    achse.Start.x = wert;
    EXPECT_FALSE(Rechteck(0, 0, 10, 10).AchseClippen(achse, 1));
    achse = Achse({-5, 5}, {25, 5});
    achse.dWinkel = wert;
    EXPECT_TRUE(std::isfinite(achse.dLaenge));
    Rechteck(0, 0, 10, 10).AchseClippen(achse, wert);
    EXPECT_LE(achse.dLaenge, 30);
  }
}

TEST(AchseClippen, ShallowCutsStayBounded) {
  // Along the flat roof the edge leans by 89.4 degrees from the axis' perpendicular.
  const GEOM2_Polygon flach = Poly("(0,0) (100,0) (100,1) (0,0.01)");
  GEOM2_Achse achse = Achse({-5, 0.5}, {120, 0.5});
  EXPECT_TRUE(flach.AchseClippen(achse, 0.1));
  EXPECT_LE(std::fabs(achse.dWinkelAnfang), 85.0 + 1e-9);
  EXPECT_LE(std::fabs(achse.dWinkelEnde), 85.0 + 1e-9);
  // A short axis across a wedge: the two cuts must not cross beside it.
  GEOM2_Achse kurz = Achse({-5, 9}, {25, 9});
  EXPECT_TRUE(Poly("(0,0) (20,0) (10,10)").AchseClippen(kurz, 4));
  const double links = 4 * (std::tan(kurz.dWinkelEnde * lintavo::kRadiantJeGrad) -
                            std::tan(kurz.dWinkelAnfang * lintavo::kRadiantJeGrad));
  EXPECT_GE(kurz.dLaenge, std::fabs(links) - 1e-9);
}

TEST(AchseClippen, ASecondCutChangesNotASingleBit) {
  std::mt19937 zufall(4711);
  SCOPED_TRACE("seed 4711");
  std::uniform_real_distribution<> lage(-100, 100);
  int geschnitten = 0;
  for (int lauf = 0; lauf < 3000; ++lauf) {
    const GEOM2_Polygon p = Gedreht(Vieleck(3 + lauf % 9, 60), lage(zufall));
    GEOM2_Achse achse = Achse({lage(zufall), lage(zufall)}, {lage(zufall), lage(zufall)});
    const double d = std::fabs(lage(zufall)) / 10;
    if (!p.AchseClippen(achse, d)) continue;
    ++geschnitten;
    GEOM2_Achse nochmal = achse;
    ASSERT_TRUE(p.AchseClippen(nochmal, d));
    ASSERT_EQ(std::memcmp(&achse, &nochmal, sizeof achse), 0) << lauf;
  }
  EXPECT_GT(geschnitten, 500);
}

// As files keep it: six decimals of place, length and angle, no cuts.
GEOM2_Achse Gerundet(GEOM2_Achse achse) {
  for (double* wert : {&achse.Start.x, &achse.Start.y, &achse.dLaenge, &achse.dWinkel}) {
    *wert = std::round(*wert * 1e6) / 1e6;
  }
  achse.dWinkelAnfang = achse.dWinkelEnde = 0.0;
  return achse;
}

TEST(AchseClippen, AnAxisRoundedToSixDecimalsIsTheSameAtAnySize) {
  std::mt19937 zufall(815);
  SCOPED_TRACE("seed 815");
  std::uniform_real_distribution<> lage(-1, 1);
  int geschnitten = 0;
  for (int lauf = 0; lauf < 2000; ++lauf) {
    const double groesse = std::pow(10.0, 2.0 + 2.0 * lage(zufall));
    const GEOM2_Polygon p = Gedreht(Vieleck(3 + lauf % 6, groesse), 100 * lage(zufall));
    const XY von{2 * groesse * lage(zufall), 2 * groesse * lage(zufall)};
    const XY bis{2 * groesse * lage(zufall), 2 * groesse * lage(zufall)};
    const double d = 0.02 * groesse;
    GEOM2_Achse achse = Achse(von, bis);
    if (!p.AchseClippen(achse, d) || achse.dLaenge < groesse) continue;
    ++geschnitten;
    const GEOM2_Achse datei = Gerundet(achse);
    GEOM2_Achse gelesen = datei;
    ASSERT_TRUE(p.AchseClippen(gelesen, d));
    // Not moved by a bit, so that it is written again as it was read.
    EXPECT_EQ(gelesen.Start.x, datei.Start.x) << lauf;
    EXPECT_EQ(gelesen.Start.y, datei.Start.y) << lauf;
    EXPECT_EQ(gelesen.dLaenge, datei.dLaenge) << lauf;
    const double grad = 1e-3 + 1e-4 / d;
    EXPECT_NEAR(gelesen.dWinkelAnfang, achse.dWinkelAnfang, grad) << lauf << ", size " << groesse;
    EXPECT_NEAR(gelesen.dWinkelEnde, achse.dWinkelEnde, grad) << lauf << ", size " << groesse;
  }
  EXPECT_GT(geschnitten, 500);
}

// It has not met the outline where it ends; at a corner it meets the next edge.
TEST(AchseClippen, AlongAnEdgeOnlyACornerCuts) {
  for (const double winkel : {0.0, 17.3, 90.0, 141.9}) {
    const GEOM2_Polygon raute = Gedreht(Poly("(0,0) (100,0) (120,60) (30,60)"), winkel);
    XY a;
    XY b;
    raute.GetKante(0, a, b);
    for (const double bis : {0.3, 0.6, 1.0}) {
      GEOM2_Achse achse = Achse({a.x + 0.2 * (b.x - a.x), a.y + 0.2 * (b.y - a.y)},
                                {a.x + bis * (b.x - a.x), a.y + bis * (b.y - a.y)});
      ASSERT_TRUE(raute.AchseClippen(achse, 5));
      EXPECT_EQ(achse.dWinkelAnfang, 0.0) << winkel;
      const double ende = bis < 1.0 ? 0.0 : std::atan(20.0 / 60.0) * lintavo::kGradJeRadiant;
      EXPECT_NEAR(achse.dWinkelEnde, ende, 1e-9) << winkel << " to " << bis;
    }
  }
}

TEST(AchseClippen, NeitherDoesOneThatStartsBesideAnEdge) {
  // From the start to the edge y = -20 the axis runs beside it at about the tolerance.
  const GEOM2_Polygon zacken = Poly(
      "(0,-20) (-20,-20) (40,40) (-65.78,-10) (-20,-20) (30,-10) (89.9989,-20) (40,-20) (-300,-20) "
      "(-20,-20) (-22.44,-300) (-20,-20) (-20,40) (80,50) (40,60) (69.9989,80) (80,80) (80,291.1)");
  for (const double v : {1.9e-6, 1.999999999e-6, 2e-6, 2.000000001e-6, 2.1e-6}) {
    GEOM2_Achse achse;
    achse.Start = {20.0000003, -20.0 - v};
    achse.dWinkel = 30.0;
    achse.dLaenge = 90.0;
    ASSERT_TRUE(zacken.AchseClippen(achse, 30.0));
    GEOM2_Achse nochmal = achse;
    ASSERT_TRUE(zacken.AchseClippen(nochmal, 30.0));
    EXPECT_EQ(std::memcmp(&achse, &nochmal, sizeof achse), 0) << v;
  }
}

}  // namespace
