// Polygons: vertices, orientation, inside and boundary tests, clean-up of short edges.
#include <gtest/gtest.h>

#include "lintavo/geom/GEOM2_Polygon.h"

#include "tests/support/Geometrie.h"

using namespace lintavo::test;

namespace {

const char* const kQuadrat = "(0,0) (10,0) (10,10) (0,10)";

TEST(Polygon, ReversingKeepsVertexZeroAndARepeatedClosingVertex) {
  GEOM2_Polygon p = Poly("(0,0,1) (10,0,2) (10,10,3) (0,10,4)");
  EXPECT_TRUE(p.IsGegenUhrzeigersinn());
  p.SetOrientierung(false);
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0,1) (0,10,4) (10,10,3) (10,0,2)"), p, 0.0));
  EXPECT_FALSE(p.IsGegenUhrzeigersinn());
  EXPECT_DOUBLE_EQ(p.GetFlaeche(), -100);

  GEOM2_Polygon geschlossen = Poly("(0,0) (10,0) (10,10) (0,10) (0,0)");
  geschlossen.Umkehren();
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0) (0,10) (10,10) (10,0) (0,0)"), geschlossen, 0.0));
}

TEST(Polygon, InsideTestTellsBoundaryFromInside) {
  const GEOM2_Polygon p = Poly(kQuadrat);
  const auto innen = [&](double x, double y, bool rand) { return p.IsInside({x, y}, rand, 1e-5); };
  EXPECT_TRUE(innen(5, 5, true) && innen(5, 5, false));
  EXPECT_TRUE(innen(10, 5, true));
  EXPECT_FALSE(innen(10, 5, false));
  EXPECT_TRUE(innen(5, 10.000001, true));
  EXPECT_FALSE(innen(5, 10.000001, false));
  EXPECT_FALSE(innen(15, 5, true));
  // The ray through the top corner of a diamond meets it once.
  EXPECT_TRUE(Poly("(5,0) (10,5) (5,10) (0,5)").IsInside({5, 4}, false, 1e-5));
  EXPECT_FALSE(Poly("(0,0) (10,0)").IsInside({5, 1}, true, 1e-5));
}

TEST(Polygon, BadIndicesAreAnsweredAndTheRecordFormIsFatal) {
  GEOM2_Polygon p = Poly(kQuadrat);
  double x = 1;
  double y = 1;
  EXPECT_FALSE(p.GetPunkt(4, x, y));
  EXPECT_EQ(x, 0);
  EXPECT_EQ(y, 0);
  XY a{7, 7};
  XY b;
  EXPECT_FALSE(p.GetKante(-1, a, b));
  EXPECT_EQ(a.x, 7);
  EXPECT_EQ(p.GetKantenLaenge(4), 0);
  EXPECT_FALSE(p.SetPunkt(4, 1, 1));
  EXPECT_FALSE(p.SetAnzahl(-1));
  p.SetAttribut(9, 1);
  EXPECT_EQ(p.GetAttribut(9), 0);
  GEOM2_Punkt punkt;
  EXPECT_DEATH(p.GetPunkt(4, punkt), "");
  EXPECT_DEATH(p.GetEckpunkt(-1), "");
}

TEST(Polygon, BoxOfAnEmptyPolygonKeepsItsStartValues) {
  XY min;
  XY max;
  EXPECT_FALSE(GEOM2_Polygon().GetMinMax(min, max));
  EXPECT_EQ(min.x, 1e30);
  EXPECT_EQ(max.y, -1e30);
  EXPECT_TRUE(Poly("(3,-2) (-1,8)").GetMinMax(min, max));
  EXPECT_EQ(min.x, -1);
  EXPECT_EQ(max.y, 8);
}

TEST(Polygon, ShortEdgesGoButNotForTheClosingEdgeAlone) {
  GEOM2_Polygon p = Poly("(0,0) (10,0) (10,0.5) (10,10) (0,10)");
  EXPECT_TRUE(p.KurzeKantenEntfernen(1));
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0) (10,0.5) (10,10) (0,10)"), p, 0.0));
  GEOM2_Polygon nurSchluss = Poly("(0,0) (10,0) (10,10) (0,0.5)");
  EXPECT_TRUE(nurSchluss.KurzeKantenEntfernen(1));
  EXPECT_EQ(nurSchluss.GetAnzahl(), 4);
}

TEST(Achse, IsLaidFromTwoPointsAndKeepsOnlyTheLengthOfCoincidentOnes) {
  GEOM2_Achse achse;
  EXPECT_TRUE(GEOM2_Polygon::SetAchse({0, 0}, {0, 5}, achse));
  EXPECT_DOUBLE_EQ(achse.dLaenge, 5);
  EXPECT_DOUBLE_EQ(achse.dWinkel, 90);
  EXPECT_FALSE(GEOM2_Polygon::SetAchse({3, 3}, {3, 3}, achse));
  EXPECT_EQ(achse.dLaenge, 0);
  EXPECT_DOUBLE_EQ(achse.dWinkel, 90);
}

}  // namespace
