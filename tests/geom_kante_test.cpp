// Edges cut to outlines: what lies inside, and what stays beside covering surfaces.
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "lintavo/geom/KanteClippen.h"

#include "support/Fluegel.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

using Polygone = std::vector<GEOM2_Polygon>;

std::vector<CMStrecke> Teile(const CMStrecke& kante, const Polygone& polys, bool innen) {
  std::vector<CMStrecke> teile;
  const bool any = ClippKanteAnPolys(kante, polys, teile, innen);
  EXPECT_EQ(any, !teile.empty());
  return teile;
}

TEST(ClippKante, KeepsTheLongestPieceInside) {
  const auto clipp = [](CMStrecke kante, const char* text) {
    EXPECT_TRUE(ClippKante(Poly(text), kante)) << text;
    return std::vector<CMStrecke>{kante};
  };
  const char* const kamm = "(0,0) (10,0) (10,10) (7,10) (7,2) (4,2) (4,10) (0,10)";
  EXPECT_TRUE(GleicheLinien(Linien("(0,5) (4,5)"), clipp({-5, 5, 20, 5}, kamm)));
  EXPECT_TRUE(GleicheLinien(Linien("(1,1) (9,1)"), clipp({1, 1, 9, 1}, kamm))) << "wholly inside";
  EXPECT_TRUE(GleicheLinien(Linien("(0,0) (10,0)"), clipp({0, 0, 10, 0}, kamm))) << "on the border";

  const GEOM2_Polygon polygon = Poly(kamm);
  CMStrecke draussen(20, 0, 30, 5);
  EXPECT_FALSE(ClippKante(polygon, draussen));
  EXPECT_TRUE(GleicheLinien(Linien("(20,0) (30,5)"), {draussen}));
  for (CMStrecke keine :
       {CMStrecke(5, 1, 5, 1), CMStrecke(5, 1, std::nan(""), 1), CMStrecke(5, 1, 1e300, 1)}) {
    EXPECT_FALSE(ClippKante(polygon, keine));
  }
  CMStrecke kante(0, 0, 1, 0);
  EXPECT_FALSE(ClippKante(GEOM2_Polygon(), kante));
}

TEST(ClippKanteAnPolys, TouchingPolygonsAreOneArea) {
  const Polygone kacheln{Rechteck(0, 0, 10, 10), Rechteck(10, 0, 20, 10)};
  const CMStrecke quer(-5, 5, 25, 5);
  EXPECT_TRUE(GleicheLinien(Linien("(0,5) (20,5)"), Teile(quer, kacheln, true)));
  EXPECT_TRUE(GleicheLinien(Linien("(-5,5) (0,5)  (20,5) (25,5)"), Teile(quer, kacheln, false)));
  // Along the joint, either way round, and with one polygon reversed.
  for (const CMStrecke& fuge : {CMStrecke(10, -5, 10, 15), CMStrecke(10, 15, 10, -5)}) {
    for (const Polygone& polys :
         {kacheln, Polygone{Poly("(0,0) (0,10) (10,10) (10,0)"), kacheln[1]}}) {
      EXPECT_TRUE(GleicheLinien(Linien("(10,0) (10,10)"), Teile(fuge, polys, true)));
      EXPECT_TRUE(
          GleicheLinien(Linien("(10,-5) (10,0)  (10,10) (10,15)"), Teile(fuge, polys, false)));
    }
  }
}

TEST(ClippKanteAnPolys, BorderOfTheAreaIsOutside) {
  const Polygone polys{Rechteck(0, 0, 10, 10), Rechteck(10, 3, 20, 7)};
  const CMStrecke rand(10, 0, 10, 10);
  EXPECT_TRUE(GleicheLinien(Linien("(10,0) (10,3)  (10,7) (10,10)"), Teile(rand, polys, false)));
  EXPECT_TRUE(GleicheLinien(Linien("(10,3) (10,7)"), Teile(rand, polys, true)));
  EXPECT_TRUE(GleicheLinien(Linien("(-3,10) (13,10)"), Teile({-3, 10, 13, 10}, polys, false)));
  // Through a corner only.
  EXPECT_TRUE(GleicheLinien(Linien("(-5,5) (5,-5)"), Teile({-5, 5, 5, -5}, polys, false)));
}

// The outline of a closed ring of parts runs twice along one cut.
TEST(ClippKanteAnPolys, OutlineMayTouchItself) {
  const Polygone ring{
      Poly("(0,0) (30,0) (30,30) (0,30) (0,0) (10,10) (10,20) (20,20) (20,10) "
           "(10,10)")};
  EXPECT_TRUE(GleicheLinien(Linien("(-5,15) (0,15)  (10,15) (20,15)  (30,15) (40,15)"),
                            Teile({-5, 15, 40, 15}, ring, false)));
  EXPECT_TRUE(
      GleicheLinien(Linien("(0,0) (10,10)  (20,20) (30,30)"), Teile({-5, -5, 40, 40}, ring, true)));
}

TEST(ClippKanteAnPolys, PiecesKeepColourPriorityAndDirection) {
  CMStrecke kante(20, 5, -20, 5);
  kante.SetFarbe(4);
  kante.SetPrio(9);
  std::vector<CMStrecke> teile{kante};
  EXPECT_TRUE(ClippKanteAnPolys(teile[0], {Rechteck(0, 0, 10, 10)}, teile, false));
  ASSERT_EQ(teile.size(), 3U);
  for (const CMStrecke& teil : teile) {
    double dx = 0.0;
    double dy = 0.0;
    teil.GetProjektionen(dx, dy);
    EXPECT_LT(dx, 0.0);
    EXPECT_EQ(teil.GetFarbe(), 4);
    EXPECT_EQ(teil.GetPrio(), 9);
  }
}

TEST(ClippKanteAnPolys, ShortAndUnusableInputGivesNothing) {
  const Polygone eins{Rechteck(0, 0, 10, 10)};
  EXPECT_TRUE(Teile({0, 0, 1e-7, 0}, eins, false).empty());
  EXPECT_TRUE(Teile({0, 0, std::nan(""), 0}, eins, false).empty());
  EXPECT_TRUE(Teile({0, 0, 1e300, 0}, {}, false).empty());
  // Of the edge 5e-7 stick out.
  EXPECT_TRUE(Teile({1, 5, 10.0000005, 5}, eins, false).empty());
  // Polygons that are no area cover nothing.
  GEOM2_Polygon kaputt = Rechteck(0, 0, 10, 10);
  kaputt.SetPunkt(2, std::numeric_limits<double>::infinity(), 3);
  EXPECT_TRUE(GleicheLinien(Linien("(1,5) (9,5)"),
                            Teile({1, 5, 9, 5}, {kaputt, Poly("(0,0) (10,10)")}, false)));
}

// Both answers together are the edge, and every piece is where it should be.
TEST(ClippKanteAnPolys, PiecesAgreeWithPointMembership) {
  constexpr unsigned kSeed = 20240607;
  std::mt19937 zufall(kSeed);
  std::uniform_real_distribution<double> ort(-50.0, 50.0);
  std::uniform_real_distribution<double> groesse(3.0, 40.0);
  for (int lauf = 0; lauf < 300; ++lauf) {
    Polygone polys;
    for (int i = 0; i < 4; ++i) {
      polys.push_back(Vieleck(3 + i, groesse(zufall), {ort(zufall), ort(zufall)}));
    }
    const CMStrecke kante(ort(zufall), ort(zufall), ort(zufall), ort(zufall));
    double laenge = 0.0;
    for (const bool innen : {true, false}) {
      for (const CMStrecke& teil : Teile(kante, polys, innen)) {
        laenge += teil.GetLaenge();
        bool drin = false;
        for (const GEOM2_Polygon& polygon : polys) drin = drin || teil.IsInside(polygon);
        EXPECT_EQ(drin, innen) << "seed " << kSeed << ", run " << lauf;
      }
    }
    EXPECT_NEAR(laenge, kante.GetLaenge(), 1e-5) << "seed " << kSeed << ", run " << lauf;
  }
}

}  // namespace
}  // namespace lintavo::test
