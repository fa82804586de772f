// Segments and the free point and line routines.
#include <gtest/gtest.h>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Geraden.h"

#include "tests/support/Geometrie.h"

using namespace lintavo::test;

namespace {

void ErwartePunkte(const CMStrecke& s, double x1, double y1, double x2, double y2) {
  XY a;
  XY b;
  s.GetPunkte(a, b);
  EXPECT_DOUBLE_EQ(a.x, x1);
  EXPECT_DOUBLE_EQ(a.y, y1);
  EXPECT_DOUBLE_EQ(b.x, x2);
  EXPECT_DOUBLE_EQ(b.y, y2);
}

TEST(Strecke, ShiftsToItsRight) {
  CMStrecke s(0, 0, 10, 0);
  EXPECT_TRUE(s.ParallelVerschieben(2));
  ErwartePunkte(s, 0, -2, 10, -2);
  s.SetLaengeP1_P2(4);
  ErwartePunkte(s, 0, -2, 4, -2);
}

TEST(Strecke, DegenerateOnesGetTheirFixedAnswers) {
  CMStrecke s(3, 3, 3 + 5e-7, 3);
  s.SetLaengeP1_P2(10);
  ErwartePunkte(s, 3, 3, 3 + 5e-7, 3);
  XY p{1, 1};
  s.GetPunktAufStrecke(1, p);
  EXPECT_EQ(p.x, 0);  // the origin, not P1
  EXPECT_EQ(p.y, 0);
  EXPECT_FALSE(s.ParallelVerschieben(1));
  bool innerhalb = true;
  XY fuss{8, 8};
  EXPECT_FALSE(s.GetLot({5, 5}, fuss, innerhalb));
  EXPECT_EQ(fuss.x, 8);
  EXPECT_EQ(s.GetLotAbstand({5, 5}, innerhalb), 0);
  EXPECT_FALSE(innerhalb);
}

TEST(Strecke, CrossesInTheMiddleButNotAtSharedEnds) {
  const CMStrecke s(0, 0, 10, 0);
  XY p;
  EXPECT_TRUE(s.IsCross(CMStrecke(5, -5, 5, 5), p));
  EXPECT_DOUBLE_EQ(p.x, 5);
  EXPECT_DOUBLE_EQ(p.y, 0);
  EXPECT_FALSE(s.IsCross(CMStrecke(10, 0, 10, 5)));
  EXPECT_TRUE(s.IsCross(CMStrecke(5, 0, 5, 5)));
  EXPECT_FALSE(s.IsCross(CMStrecke(0, 1, 10, 1)));
  EXPECT_FALSE(CMStrecke(0, 0, 0, 5).IsCross(CMStrecke(1, 0, 1, 5)));
  // The lines' intersection is written even where the segments miss it.
  EXPECT_FALSE(s.IsCross(CMStrecke(20, 1, 20, 5), p));
  EXPECT_DOUBLE_EQ(p.x, 20);
}

TEST(Strecke, OverlapsUpToAThousandthAndByTouching) {
  const CMStrecke s(0, 0, 10, 0);
  EXPECT_TRUE(s.IsUeberlagerung(CMStrecke(10, 0.0005, 20, 0.0005)));
  EXPECT_FALSE(s.IsUeberlagerung(CMStrecke(10, 0.002, 20, 0.002)));
  EXPECT_FALSE(s.IsUeberlagerung(CMStrecke(11, 0, 20, 0)));
  EXPECT_TRUE(s.IsUeberlagerung(CMStrecke(2, 0, 3, 0)));
  EXPECT_TRUE(CMStrecke(2, 0, 3, 0).IsUeberlagerung(s));
}

TEST(Strecke, PerpendicularTellsWhetherItsFootIsOnTheSegment) {
  const CMStrecke s(0, 0, 10, 0);
  bool innerhalb = false;
  EXPECT_DOUBLE_EQ(s.GetLotAbstand({5, 3}, innerhalb), 3);
  EXPECT_TRUE(innerhalb);
  EXPECT_DOUBLE_EQ(s.GetLotAbstand({11, 3}, innerhalb), 3);
  EXPECT_FALSE(innerhalb);
}

TEST(Strecke, ClippingKeepsTheLongestPieceAndIsAlwaysTrue) {
  const GEOM2_Polygon kerbe = Poly("(0,0) (20,0) (20,10) (8,10) (8,5) (6,5) (6,10) (0,10)");
  CMStrecke s(-5, 7, 25, 7);
  EXPECT_TRUE(s.Clipp(kerbe));
  ErwartePunkte(s, 8, 7, 20, 7);
  CMStrecke aussen(-5, 20, 5, 20);
  EXPECT_TRUE(aussen.Clipp(kerbe));
  ErwartePunkte(aussen, -5, 20, 5, 20);
  CMStrecke entlang(-5, 0, 25, 0);
  entlang.Clipp(kerbe);
  ErwartePunkte(entlang, 0, 0, 20, 0);
  EXPECT_TRUE(CMStrecke(4, 1, 6, 1).IsInside(kerbe));
  EXPECT_FALSE(CMStrecke(0, 0, 20, 0).IsInside(kerbe));
}

TEST(Geraden, IntersectionKnowsVerticalAndParallelLines) {
  XY p{9, 9};
  EXPECT_EQ(SchnittpunktGeraden({0, 0}, {0, 1}, {-1, 3}, {1, 5}, 1e-6, p), 1);
  EXPECT_DOUBLE_EQ(p.x, 0);
  EXPECT_DOUBLE_EQ(p.y, 4);
  EXPECT_EQ(SchnittpunktGeraden({-1, 3}, {1, 5}, {2, 0}, {2, 1}, 1e-6, p), 1);
  EXPECT_DOUBLE_EQ(p.y, 6);
  p = {9, 9};
  EXPECT_EQ(SchnittpunktGeraden({0, 0}, {0, 1}, {2, 0}, {2, 1}, 1e-6, p), 0);
  EXPECT_EQ(SchnittpunktGeraden({0, 0}, {1, 0}, {0, 2}, {1, 2}, 1e-6, p), 0);
  EXPECT_EQ(SchnittpunktGeraden({0, 0}, {1, 2}, {0, 2}, {1, 4}, 1e-6, p), 0);
  EXPECT_EQ(p.x, 9);
}

TEST(Geraden, DistanceIsPositiveOnTheLeft) {
  EXPECT_DOUBLE_EQ(AbstandPunktGerade({0, 0}, {10, 0}, {5, 3}), 3);
  EXPECT_DOUBLE_EQ(AbstandPunktGerade({0, 0}, {10, 0}, {5, -3}), -3);
  EXPECT_DOUBLE_EQ(AbstandPunktGerade({1, 1}, {1, 1}, {4, 5}), 5);
}

TEST(Geraden, FootComparesTheSquaredLengthWithTheTolerance) {
  XY fuss;
  double abstand = 9;
  bool innerhalb = true;
  LotFusspunkt({0.005, 1}, {0, 0}, {0.01, 0}, 1e-4, fuss, abstand, innerhalb);
  EXPECT_EQ(abstand, 0);
  EXPECT_FALSE(innerhalb);
  LotFusspunkt({0.005, 1}, {0, 0}, {0.01, 0}, 1e-6, fuss, abstand, innerhalb);
  EXPECT_DOUBLE_EQ(abstand, 1);
  EXPECT_TRUE(innerhalb);
}

TEST(Geraden, ParallelShiftOfAShortSegmentWritesNothing) {
  double x = 1, y = 2, u = 3, v = 4;
  EXPECT_EQ(StreckeParallel(0, 0, 1e-7, 0, 1, 1e-6, x, y, u, v), 0);
  EXPECT_EQ(x, 1);
  EXPECT_EQ(StreckeParallel(0, 0, 0, 5, 1, 1e-6, x, y, u, v), 1);
  EXPECT_DOUBLE_EQ(x, 1);  // right of "up"
  EXPECT_DOUBLE_EQ(v, 5);
}

}  // namespace
