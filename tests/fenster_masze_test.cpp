// Dimensions drive the grid, the corners of the frame and the shapes of sashes.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"

namespace lintavo::test {
namespace {

CMZusatzMasz Masz(const char* name, bool horizontal, int from, int to, double length) {
  CMZusatzMasz masz;
  masz.strName = name;
  masz.dLaenge = length;
  if (horizontal) {
    masz.SetHorizontal(CMKnoten(from, 0), CMKnoten(to, 0));
  } else {
    masz.SetVertikal(CMKnoten(0, from), CMKnoten(0, to));
  }
  return masz;
}

CMZusatzMasz Zentrisch(const char* name, int centre, int low, int high, double length) {
  CMZusatzMasz masz;
  masz.strName = name;
  masz.dLaenge = length;
  masz.SetHorizontal(CMKnoten(centre, 0), CMKnoten(low, 0), CMKnoten(high, 0));
  return masz;
}

void ErwarteX(const CMFenster& fenster, std::initializer_list<double> positions) {
  int j = 0;
  for (const double x : positions) {
    EXPECT_NEAR(fenster.GetAchsen().dGetPosVerti(j), x, 1e-9) << "axis " << j;
    ++j;
  }
}

void ErwarteFehler(const CMFenster& fenster, long number, const std::string& name) {
  CString text;
  EXPECT_EQ(fenster.GetFehler(text), number);
  EXPECT_NE(std::string(text.View()).find("'" + name + "'"), std::string::npos) << text;
}

TEST(Zusatzmasz, SpreadsItsChangeEvenlyOverMovableAxes) {
  CMFenster fenster = Raster(4, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Breite", true, 0, 4, 240.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 60.0, 120.0, 180.0, 240.0});
}

TEST(Zusatzmasz, LeavesAxesThatEarlierOnesFixed) {
  CMFenster fenster = Raster(4, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Links", true, 0, 1, 30.0));
  fenster.AddZusatzMasz(Masz("Breite", true, 0, 4, 230.0));
  ASSERT_TRUE(fenster.Berechne(false));
  // 30 is missing at the end: axes 2, 3 and 4 take 10, 20 and 30 of it.
  ErwarteX(fenster, {0.0, 30.0, 110.0, 170.0, 230.0});
}

TEST(Zusatzmasz, ARowOfDimensionsSetsEveryAxis) {
  CMFenster fenster = Raster(3, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("A", true, 0, 1, 40.0));
  fenster.AddZusatzMasz(Masz("B", true, 1, 2, 70.0));
  fenster.AddZusatzMasz(Masz("C", true, 2, 3, 90.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 40.0, 110.0, 200.0});
}

TEST(Zusatzmasz, ACentredOneMovesBothSides) {
  CMFenster fenster = Raster(4, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Zentrisch("Mitte", 2, 1, 3, 120.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 40.0, 100.0, 160.0, 200.0});
}

TEST(Zusatzmasz, ANegativeLengthRunsAgainstTheAxes) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Rechts", true, 2, 1, -30.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 70.0, 100.0});
}

TEST(Zusatzmasz, AZeroLengthMovesNothing) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Nichts", true, 0, 2, 0.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 50.0, 100.0});
}

TEST(Zusatzmasz, WhoseEndIsFixedFailsWithItsName) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Breite", true, 0, 2, 120.0));
  fenster.AddZusatzMasz(Masz("Links", true, 0, 1, 40.0));
  fenster.AddZusatzMasz(Masz("Rechts", true, 1, 2, 90.0));
  EXPECT_FALSE(fenster.Berechne(false));
  ErwarteFehler(fenster, 24, "Rechts");
}

TEST(Zusatzmasz, ThatBreaksTheOrderOfAxesFailsWithTheNameOfTheLastMover) {
  CMFenster fenster = Raster(3, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Links", true, 0, 1, 120.0));
  fenster.AddZusatzMasz(Masz("Hoehe", false, 0, 1, 90.0));
  // Axis 1 at 120 is past axis 2 at 100; a second calculation finds it there.
  for (int run = 0; run < 2; ++run) {
    EXPECT_FALSE(fenster.Berechne(false));
    ErwarteFehler(fenster, 49, "Links");
  }
  fenster.GetZusatzMaszPtr(0)->dLaenge = 60.0;
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 60.0, 100.0, 150.0});
}

TEST(Zusatzmasz, MayOvertakeWhatALaterOneStillMoves) {
  CMFenster fenster = Raster(2, 1, 50.0, 100.0);
  fenster.AddZusatzMasz(Masz("Links", true, 0, 1, 130.0));
  fenster.AddZusatzMasz(Masz("Breite", true, 0, 2, 200.0));
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteX(fenster, {0.0, 130.0, 200.0});
}

TEST(Zusatzmasz, HostileIndicesAndLengthsEndInMessage49) {
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double length : {inf, -inf, nan}) {
    CMFenster fenster = Raster(2, 1, 50.0, 100.0);
    fenster.AddZusatzMasz(Masz("X", true, 0, 2, length));
    EXPECT_FALSE(fenster.Berechne(false));
    ErwarteFehler(fenster, 49, "X");
  }
  for (const int j : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 3, -1}) {
    CMFenster fenster = Raster(2, 1, 50.0, 100.0);
    fenster.AddZusatzMasz(Masz("X", true, 0, j, 70.0));
    EXPECT_FALSE(fenster.Berechne(false)) << j;
    ErwarteFehler(fenster, 49, "X");
  }
}

TEST(Zusatzmasz, BetweenCornerPointsMovesTheFrameCorner) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  CMZusatzMasz masz;
  masz.strName = "Schräge";
  CMKnoten corner;
  corner.SetEckpu(0, 0, 100.0, 80.0);
  masz.SetVertikal(CMKnoten(0, 0), corner);
  masz.dLaenge = 110.0;
  fenster.AddZusatzMasz(masz);
  for (int run = 0; run < 2; ++run) {
    ASSERT_TRUE(fenster.Berechne(false));
    // The top right corner rises by 30: a triangle of 100 x 30 / 2 is added.
    EXPECT_NEAR(fenster.GetRahmenPtr()->RahmenPolygon.GetFlaeche(), 8000.0 + 1500.0, 1e-9);
    XY size;
    fenster.GetSize(size);
    EXPECT_NEAR(size.y, 110.0, 1e-9);
  }
  fenster.GetZusatzMaszPtr(0)->kKnoten2.SetEckpu(0, 0, 70.0, 80.0);
  EXPECT_FALSE(fenster.Berechne(false));
  ErwarteFehler(fenster, 24, "Schräge");
}

// Two sashes under one straight edge: the left one keeps its top, so the edge bends.
TEST(Zusatzmasz, ACornerThatMovesBendsTheSideThatSashesShare) {
  CMFenster fenster = Raster(2, 1, 50.0, 80.0);
  CMKnoten corner;
  corner.SetEckpu(2, 1, 100.0, 80.0);
  CMZusatzMasz masz;
  masz.SetVertikal(CMKnoten(0, 0), corner);
  masz.dLaenge = 60.0;
  fenster.AddZusatzMasz(masz);
  ASSERT_TRUE(fenster.Berechne(false));
  // 50 x 80 and a trapezium 50 wide, 80 and 60 high.
  EXPECT_NEAR(fenster.GetRahmenPtr()->RahmenPolygon.GetFlaeche(), 4000.0 + 3500.0, 1e-9);
}

TEST(Zusatzmasz, TheSizeFollowsCornersThatMoveInwards) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  for (const double x : {0.0, 100.0}) {
    CMKnoten corner;
    corner.SetEckpu(0, 0, x, 80.0);
    CMZusatzMasz masz;
    masz.SetVertikal(CMKnoten(0, 0), corner);
    masz.dLaenge = 60.0;
    fenster.AddZusatzMasz(masz);
  }
  ASSERT_TRUE(fenster.Berechne(false));
  XY size;
  fenster.GetSize(size);
  EXPECT_NEAR(size.y, 60.0, 1e-9);
}

TEST(Zusatzmasz, AfterAFailureEverythingStillFollowsTheAxes) {
  CMFenster fenster = Raster(2, 1, 50.0, 80.0);
  fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), CMBauteil());
  CMKnoten corner;
  corner.SetEckpu(2, 1, 100.0, 80.0);
  CMZusatzMasz masz = Masz("Schräge", false, 0, 1, 90.0);
  masz.kKnoten2 = corner;
  fenster.AddZusatzMasz(masz);
  ASSERT_TRUE(fenster.Berechne(false));
  // The width is set twice: axes move before the second one fails.
  fenster.AddZusatzMasz(Masz("Breite", true, 0, 2, 160.0));
  fenster.AddZusatzMasz(Masz("Nochmals", true, 0, 2, 100.0));
  EXPECT_FALSE(fenster.Berechne(false));
  ErwarteFehler(fenster, 24, "Nochmals");
  fenster.DeleteZusatzMasz(2);
  ASSERT_TRUE(fenster.Berechne(false));
  XY a;
  XY b;
  ASSERT_TRUE(fenster.GetRahmenEinzelBauteilPtr(0)->GetAchspunkte(a, b));
  EXPECT_NEAR(a.x, 80.0, 1e-9);
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(0)->kKnoten2.X(), 160.0, 1e-9);
}

TEST(Zusatzmasz, OnlyOneShiftOfACornerAtATime) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  std::vector<GEOM2_Polygon> forms;
  EXPECT_THROW(fenster.RahmenEckpunktVerschieben(CMKnoten(), 0, 1.0, 1.0, forms), CMException);
}

TEST(Zusatzmasz, AutomaticWidthAndHeightReplaceAllAndAnswerFalse) {
  CMFenster fenster = Raster(3, 2, 50.0, 60.0);
  fenster.AddZusatzMasz(Masz("Alt", true, 0, 1, 50.0));
  EXPECT_FALSE(fenster.ZusatzMaszeFuerBreiteUndHoeheAutomatisch(20.0));
  ASSERT_EQ(fenster.GetAnzahlZusatzMasze(), 2);
  EXPECT_EQ(fenster.GetZusatzMaszPtr(0)->strName, "Breite");
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(0)->dLaenge, 150.0, 1e-9);
  EXPECT_EQ(fenster.GetZusatzMaszPtr(1)->strName, "Hoehe");
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(1)->dLaenge, 120.0, 1e-9);
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(1)->dAbstand, 20.0, 1e-9);
  CMFenster empty;
  EXPECT_THROW(empty.ZusatzMaszeFuerBreiteUndHoeheAutomatisch(1.0), CMException);
}

}  // namespace
}  // namespace lintavo::test
