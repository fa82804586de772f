// The union of outlines: contacts of every kind, in every direction.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"

#include "tests/support/Geometrie.h"

using namespace lintavo::test;

namespace {

using Formen = std::vector<GEOM2_Polygon>;

GEOM2_Polygon Vereinigt(const Formen& formen) {
  GEOM2_Polygon umriss;
  double box[4];
  bPolygoneAddieren(formen, umriss, lintavo::kVereinigung, box);
  return umriss;
}

/// A rectangle with an arch of 24 sides on top, as sashes have it.
GEOM2_Polygon Bogen(double x0, double x1, double y0, double y1, double stich) {
  GEOM2_Polygon p = Poly("(0,0) (0,0)");
  p.SetPunkt(0, x0, y0);
  p.SetPunkt(1, x1, y0);
  for (int i = 0; i <= 24; ++i) {
    const double winkel = lintavo::kPi * i / 24;
    p.AddPunkt((x0 + x1) / 2 + (x1 - x0) / 2 * std::cos(winkel), y1 + stich * std::sin(winkel));
  }
  return p;
}

struct Anordnung {
  std::string name;
  Formen formen;
  int ecken;
  double flaeche;
};

void PrintTo(const Anordnung& anordnung, std::ostream* strom) {
  *strom << anordnung.name;
}

class JedeRichtung : public testing::TestWithParam<Anordnung> {};

/// Turning or mirroring all shapes turns or mirrors the outline: one ring, the same
/// vertices, the right area.
TEST_P(JedeRichtung, TurnsWithItsShapes) {
  const Anordnung& fall = GetParam();
  const GEOM2_Polygon gerade = Vereinigt(fall.formen);
  ASSERT_EQ(gerade.GetAnzahl(), fall.ecken) << Text(gerade);
  ASSERT_NEAR(gerade.GetFlaeche(), fall.flaeche, 0.001 * Umfang(gerade));
  ASSERT_TRUE(IstSchleifenfrei(gerade));
  for (int grad = 1; grad < 90; ++grad) {
    for (const bool spiegeln : {false, true}) {
      const auto bewegt = [&](const GEOM2_Polygon& p) {
        return Gedreht(spiegeln ? Gespiegelt(p) : p, grad);
      };
      Formen formen;
      for (const GEOM2_Polygon& form : fall.formen) formen.push_back(bewegt(form));
      ASSERT_TRUE(GleicherRing(bewegt(gerade), Vereinigt(formen), 1e-9))
          << grad << " degrees, mirrored: " << spiegeln;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Vereinigung, JedeRichtung,
    testing::Values(
        Anordnung{"SideBySide", {Rechteck(0, 0, 10, 10), Rechteck(10, 0, 20, 10)}, 4, 200},
        Anordnung{"TwoHeights", {Rechteck(0, 0, 10, 10), Rechteck(10, 0, 20, 5)}, 6, 150},
        Anordnung{"TJunction",
                  {Rechteck(0, 0, 10, 10), Rechteck(10, 0, 20, 4), Rechteck(10, 4, 20, 10)},
                  4,
                  200},
        Anordnung{"PartlyShared", {Rechteck(0, 0, 10, 10), Rechteck(10, 3, 20, 14)}, 8, 210},
        Anordnung{"SlantedContact",
                  {Poly("(0,0) (9,0) (0,9)"), Poly("(6,3) (9,6) (6,9) (3,6)")},
                  7,
                  58.5},
        Anordnung{"Crossing", {Rechteck(-1, -10, 1, 10), Rechteck(-10, -1, 10, 1)}, 12, 76},
        Anordnung{"CornersOverlap", {Rechteck(0, 0, 10, 10), Rechteck(5, 5, 20, 20)}, 8, 300},
        Anordnung{"OverlapAndSharedEdge",
                  {Rechteck(0, 0, 10, 10), Rechteck(5, 5, 15, 15), Rechteck(10, 0, 20, 5)},
                  8,
                  225},
        Anordnung{"OneInside", {Rechteck(0, 0, 10, 10), Rechteck(2, 2, 5, 5)}, 4, 100},
        Anordnung{"HoleIsDropped",
                  {Rechteck(0, 0, 30, 10), Rechteck(0, 10, 10, 20), Rechteck(20, 10, 30, 20),
                   Rechteck(0, 20, 30, 30)},
                  4,
                  900},
        Anordnung{"LargestOfSeparateGroups",
                  {Rechteck(50, 0, 60, 10), Rechteck(0, 0, 10, 10), Rechteck(10, 0, 25, 10)},
                  4,
                  250},
        Anordnung{"CornersTouch", {Rechteck(0, 0, 10, 10), Rechteck(10, 10, 20, 21)}, 4, 110},
        // Half of a regular 48-gon with semi-axes 10 and 3: 24 * 10 * 3 * sin(7.5 deg) / 2.
        Anordnung{"ArchOverTwo",
                  {Rechteck(0, 0, 10, 10), Rechteck(10, 0, 20, 10), Bogen(0, 20, 10, 12, 3)},
                  27,
                  240 + 360 * 0.13052619222005157},
        Anordnung{"TwoArches",
                  {Bogen(0, 20, 0, 10, 3), Bogen(20, 40, 0, 10, 3)},
                  51,
                  400 + 720 * 0.13052619222005157}),
    [](const auto& fall) { return fall.param.name; });

TEST(Vereinigung, UnitesNeighboursThatMissEachOtherByTheTolerance) {
  for (const double spalt : {0.001, 0.0005, -0.0005, -0.001}) {
    const double x = 10 + spalt;
    const GEOM2_Polygon u = Vereinigt({Rechteck(0, 0, 10, 10), Rechteck(x, 0, 20, 10),
                                       Rechteck(0, x, 10, 20), Rechteck(x, x, 20, 20)});
    EXPECT_TRUE(GleicherRing(Rechteck(0, 0, 20, 20), u, 0.0)) << spalt;
  }
  EXPECT_TRUE(GleicherRing(Rechteck(10.003, 0, 30, 10),
                           Vereinigt({Rechteck(0, 0, 10, 10), Rechteck(10.003, 0, 30, 10)}), 0.0));
}

TEST(Vereinigung, WhatSixDecimalsLoseDoesNotChooseBetweenEquals) {
  const GEOM2_Polygon erste = Rechteck(0, 0, 10, 10);
  for (const double rest : {-1e-6, 0.0, 1e-6}) {
    const GEOM2_Polygon zweite = Rechteck(50, 0, 60 + rest, 10);
    EXPECT_TRUE(GleicherRing(erste, Vereinigt({erste, zweite}), 0.0)) << rest;
    EXPECT_TRUE(GleicherRing(zweite, Vereinigt({zweite, erste}), 0.0)) << rest;
  }
  // Both begin in the vertex in which they touch.
  for (const double rest : {-1e-6, 0.0, 1e-6}) {
    const GEOM2_Polygon oben = Rechteck(10, 10, 20, 20);
    EXPECT_TRUE(GleicherRing(oben, Vereinigt({oben, Rechteck(rest, 0, 10, 10)}), 0.0)) << rest;
  }
  const GEOM2_Polygon groesser = Rechteck(50, 0, 60.001, 10);
  EXPECT_TRUE(GleicherRing(groesser, Vereinigt({erste, groesser}), 0.0));
}

TEST(Vereinigung, StartsAtTheFirstVertexThatTheOutlineHas) {
  // Vertex 0 of the first shape lies inside the outline, vertex 1 is a corner of it.
  const Formen formen{Poly("(10,5) (10,10) (0,10) (0,5)"), Rechteck(0, 0, 20, 5),
                      Rechteck(10, 5, 20, 9)};
  EXPECT_TRUE(
      GleichesPolygon(Poly("(10,10) (0,10) (0,0) (20,0) (20,9) (10,9)"), Vereinigt(formen), 0.0));
}

TEST(Vereinigung, EdgesKeepTheAttributeOfTheirSourceEdge) {
  // Attribute tens: the shape, ones: its side. The second shape runs clockwise.
  const Formen formen{Poly("(0,0,11) (10,0,12) (10,10,13) (0,10,14)"),
                      Poly("(10,0,21) (10,5,22) (20,5,23) (20,0,24)")};
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0,11) (20,0,23) (20,5,22) (10,5,12) (10,10,13) (0,10,14)"),
                              Vereinigt(formen), 0.0));
}

TEST(Vereinigung, VerticesKeepTheirFurtherValues) {
  GEOM2_Polygon a = Rechteck(0, 0, 10, 10);
  for (int i = 0; i < 4; ++i) {
    a.SetWert1(i, i + 0.5);
    a.SetWert2(i, -i);
  }
  const GEOM2_Polygon u = Vereinigt({a, Rechteck(10, 0, 20, 10)});
  ASSERT_EQ(u.GetAnzahl(), 4);
  EXPECT_EQ(u.GetEckpunkt(3).dWert1, 3.5);
  EXPECT_EQ(u.GetEckpunkt(3).dWert2, -3);
  EXPECT_EQ(u.GetEckpunkt(1).dWert1, 0);
}

TEST(Vereinigung, AFlatArchKeepsItsShape) {
  const GEOM2_Polygon flach = Bogen(0, 1000, 0, 500, 0.5);
  EXPECT_EQ(Vereinigt({flach}).GetAnzahl(), flach.GetAnzahl());
  EXPECT_EQ(Vereinigt({flach, Rechteck(1000, 0, 1500, 500)}).GetAnzahl(), flach.GetAnzahl() + 1);
}

TEST(Vereinigung, BoxTakesInEveryVertexAndNothingGivesFalse) {
  GEOM2_Polygon umriss = Rechteck(0, 0, 1, 1);
  double box[4];
  EXPECT_FALSE(bPolygoneAddieren({}, umriss, 0.001, box));
  EXPECT_EQ(umriss.GetAnzahl(), 0);
  EXPECT_EQ(box[0], 1e30);
  EXPECT_EQ(box[3], -1e30);
  EXPECT_TRUE(bPolygoneAddieren({Rechteck(0, 0, 9, 9), GEOM2_Polygon(), Rechteck(20, -3, 21, 1)},
                                umriss, 0.001, box));
  EXPECT_EQ(umriss.GetAnzahl(), 4);
  EXPECT_EQ(box[0], 0);
  EXPECT_EQ(box[1], -3);
  EXPECT_EQ(box[2], 21);
  EXPECT_EQ(box[3], 9);
}

TEST(Vereinigung, HostileCoordinatesGiveNoOutline) {
  for (const double wert : {std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::infinity(), 1e308, -1e308, 1e12}) {
    GEOM2_Polygon umriss = Rechteck(0, 0, 1, 1);
    double box[4];
    EXPECT_FALSE(
        bPolygoneAddieren({Rechteck(0, 0, 10, 10), Rechteck(10, 0, wert, 10)}, umriss, 0.001, box));
    EXPECT_EQ(umriss.GetAnzahl(), 0);
  }
}

TEST(Seitendeckung, NeedsACommonLineAndMoreThanATouch) {
  using lintavo::SeitenDecken;
  EXPECT_TRUE(SeitenDecken({0, 0}, {10, 0}, {12, 0.0009}, {5, 0.0009}));
  EXPECT_FALSE(SeitenDecken({0, 0}, {10, 0}, {12, 0.0011}, {5, 0.0011}));
  EXPECT_FALSE(SeitenDecken({0, 0}, {10, 0}, {10, 0}, {20, 0}));
  EXPECT_FALSE(SeitenDecken({0, 0}, {10, 0}, {9.9995, 0}, {20, 0}));
  EXPECT_TRUE(SeitenDecken({0, 0}, {10, 0}, {9.99, 0}, {20, 0}));
  EXPECT_FALSE(SeitenDecken({0, 0}, {10, 0}, {5, -5}, {5, 5}));
}

TEST(Ueberlappung, TouchingOutlinesDoNotOverlap) {
  const GEOM2_Polygon a = Rechteck(0, 0, 100, 100);
  const auto ueberlappt = [&](const GEOM2_Polygon& b, double grad) {
    return lintavo::PolygoneUeberlappen(Gedreht(a, grad), Gedreht(b, grad), 1e-4);
  };
  for (const double grad : {0.0, 17.0, 45.0}) {
    EXPECT_FALSE(ueberlappt(Rechteck(100, 0, 200, 100), grad));
    EXPECT_FALSE(ueberlappt(Rechteck(99.99995, 0, 200, 100), grad));
    EXPECT_TRUE(ueberlappt(Rechteck(99.999, 0, 200, 100), grad));
    EXPECT_TRUE(ueberlappt(Rechteck(99, 99, 200, 200), grad));
    EXPECT_TRUE(ueberlappt(Rechteck(40, 40, 50, 50), grad));
  }
}

}  // namespace
