// Offset and clean-up of outlines.
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Toleranzen.h"

#include "tests/support/Geometrie.h"

using namespace lintavo::test;

namespace {

GEOM2_Polygon Versetzt(const GEOM2_Polygon& p, const std::vector<double>& abstaende,
                       bool bereinigen = true) {
  GEOM2_Polygon ergebnis = Rechteck(7, 7, 8, 8);
  const bool ok = p.ParallelPolygon(abstaende.data(), ergebnis, bereinigen);
  EXPECT_EQ(ok, ergebnis.GetAnzahl() >= 3);
  EXPECT_TRUE(ok || ergebnis.GetAnzahl() == 0);
  return ergebnis;
}

GEOM2_Polygon Versetzt(const GEOM2_Polygon& p, double d, bool bereinigen = true) {
  return Versetzt(p, std::vector<double>(static_cast<std::size_t>(p.GetAnzahl()), d), bereinigen);
}

TEST(Versatz, PositiveIsRightOfTheEdgeWhateverTheOrientation) {
  const GEOM2_Polygon quadrat = Poly("(0,0,1) (10,0,2) (10,10,3) (0,10,4)");
  EXPECT_TRUE(
      GleichesPolygon(Poly("(-1,-1,1) (11,-1,2) (11,11,3) (-1,11,4)"), Versetzt(quadrat, 1)));
  EXPECT_TRUE(GleichesPolygon(Poly("(1,1,1) (9,1,2) (9,9,3) (1,9,4)"), Versetzt(quadrat, -1)));
  const GEOM2_Polygon uhrzeiger = Poly("(0,0,1) (0,10,2) (10,10,3) (10,0,4)");
  EXPECT_TRUE(GleichesPolygon(Poly("(1,1,1) (1,9,2) (9,9,3) (9,1,4)"), Versetzt(uhrzeiger, 1)));
  EXPECT_TRUE(GleichesPolygon(Poly("(-4,-1,1) (-4,12,2) (13,12,3) (13,-1,4)"),
                              Versetzt(uhrzeiger, {-4, -2, -3, -1})));
}

TEST(Versatz, DropsCornersOfParallelNeighboursAndOfEdgesWithoutLength) {
  EXPECT_TRUE(GleichesPolygon(Rechteck(0, 0, 10, 10),
                              Versetzt(Poly("(0,0) (5,0) (10,0) (10,10) (0,10)"), 0, false), 0.0));
  EXPECT_TRUE(GleichesPolygon(Poly("(-1,-1) (11,11) (-1,11)"),
                              Versetzt(Poly("(0,0) (10,0) (10,0) (10,10) (0,10)"), 1, false)));
  EXPECT_EQ(Versetzt(Poly("(0,0) (10,0) (5,0)"), 1).GetAnzahl(), 0);
}

TEST(Versatz, BareCornersFoldOverAndCleanOnesVanish) {
  // Both pairs of sides turn round, so the bare ring winds the same way again.
  EXPECT_TRUE(GleichesPolygon(Poly("(6,6) (4,6) (4,4) (6,4)"),
                              Versetzt(Rechteck(0, 0, 10, 10), -6, false)));
  for (const double d : {-5.0, -6.0, -11.0, -1e6}) {
    EXPECT_EQ(Versetzt(Rechteck(0, 0, 10, 10), d).GetAnzahl(), 0) << d;
  }
  GEOM2_Polygon bisher = Rechteck(1, 2, 3, 4);
  Rechteck(0, 0, 10, 10).ParallelPolygon(-6.0, bisher);
  EXPECT_TRUE(GleichesPolygon(Rechteck(1, 2, 3, 4), bisher, 0.0));
}

TEST(Versatz, VanishedSidesAreDroppedWithTheirAttribute) {
  // The roof's flat top, 2 wide between 45 degree slopes, shrinks by 2 tan(22.5) per unit.
  const GEOM2_Polygon dach = Poly("(0,0,1) (12,0,2) (12,10,3) (7,15,4) (5,15,5) (0,10,6)");
  // The slopes meet over x = 6 at y = 16; moved in by 3 they meet 3 * sqrt(2) lower.
  const GEOM2_Polygon innen = Versetzt(dach, -3);
  const double knick = 10 - 3 * std::tan(22.5 * lintavo::kPi / 180);
  GEOM2_Polygon erwartet = Poly("(3,3,1) (9,3,2) (9,0,3) (6,0,5) (3,0,6)");
  erwartet.SetPunkt(2, 9, knick);
  erwartet.SetPunkt(3, 6, 16 - 3 * std::sqrt(2.0));
  erwartet.SetPunkt(4, 3, knick);
  EXPECT_TRUE(GleichesPolygon(erwartet, innen));
}

TEST(Versatz, ConcaveOutlinesComeOutWithoutLoops) {
  const GEOM2_Polygon u = Poly("(0,0) (30,0) (30,20) (21,20) (21,5) (10,5) (10,20) (0,20)");
  EXPECT_TRUE(GleicherRing(Poly("(1,1) (29,1) (29,19) (22,19) (22,4) (9,4) (9,19) (1,19)"),
                           Versetzt(u, -1)));
  // The base is 5 thick: both arms are left, 10 and 9 wide; the wider one stays.
  EXPECT_TRUE(GleicherRing(Rechteck(3, 3, 7, 17), Versetzt(u, -3)));
  // The notch closes.
  EXPECT_TRUE(GleicherRing(Rechteck(-6, -6, 36, 26), Versetzt(u, 6)));
  EXPECT_EQ(Versetzt(u, -5.1).GetAnzahl(), 0);

  GEOM2_Polygon l = Poly("(0,0,1) (40,0,2) (40,4,3) (20,4,4) (20,30,5) (0,30,6)");
  EXPECT_TRUE(GleichesPolygon(Poly("(3,3,1) (17,3,4) (17,27,5) (3,27,6)"), Versetzt(l, -3)));
  l.Umkehren();
  EXPECT_TRUE(GleicherRing(Poly("(3,3) (3,27) (17,27) (17,3)"), Versetzt(l, 3)));
}

TEST(Versatz, OfTwoEqualPiecesItIsAlwaysTheSame) {
  // A dumbbell whose bridge vanishes; where it lies must not choose the piece.
  for (const double x : {0.0, 0.1, 3.7, -1e-6, 12345.678}) {
    GEOM2_Polygon hantel = Poly("(0,0) (100,0) (100,50) (60,50) (60,10) (40,10) (40,50) (0,50)");
    hantel.Transformieren(1.0, 0.0, x, 0.0);
    EXPECT_TRUE(GleicherRing(Rechteck(66 + x, 6, 94 + x, 44), Versetzt(hantel, -6), 1e-6)) << x;
  }
}

TEST(Versatz, ThereAndBackIsTheIdentityInEveryDirection) {
  const GEOM2_Polygon haus = Poly("(0,0,1) (800,0,2) (800,500,3) (400,900,4) (0,500,5)");
  for (const double grad : {0.0, 1.0, 33.0, 45.0, 89.0, 89.9, 89.99, 89.999, 90.0, 123.0}) {
    const GEOM2_Polygon p = Gedreht(haus, grad);
    EXPECT_TRUE(GleichesPolygon(p, Versetzt(Versetzt(p, 60), -60), 1e-8)) << grad;
    EXPECT_TRUE(GleichesPolygon(p, Versetzt(p, 0), 0.0)) << grad;
    EXPECT_TRUE(GleichesPolygon(Gedreht(Versetzt(haus, -60), grad), Versetzt(p, -60), 1e-8))
        << grad;
  }
  GEOM2_Polygon selbst = haus;
  selbst.ParallelPolygon(5.0, selbst);
  EXPECT_TRUE(GleichesPolygon(Versetzt(haus, 5), selbst, 0.0));
}

/// Cuts away what lies to the right of each edge moved by its distance: the definition of
/// the inward offset of a convex outline.
double FlaecheDerHalbebenen(const GEOM2_Polygon& p, const std::vector<double>& abstaende) {
  GEOM2_Polygon rest = Rechteck(-1e4, -1e4, 1e4, 1e4);
  for (int i = 0; i < p.GetAnzahl(); ++i) {
    XY a, b;
    p.GetKante(i, a, b);
    const double l = p.GetKantenLaenge(i);
    const XY n{(b.y - a.y) / l, (a.x - b.x) / l};
    const double c = n.x * a.x + n.y * a.y + abstaende[static_cast<std::size_t>(i)];
    GEOM2_Polygon neu;
    for (int k = 0; k < rest.GetAnzahl(); ++k) {
      XY s, t;
      rest.GetKante(k, s, t);
      const double fs = n.x * s.x + n.y * s.y - c;
      const double ft = n.x * t.x + n.y * t.y - c;
      if (fs <= 0) neu.AddPunkt(s.x, s.y);
      if ((fs < 0) != (ft < 0)) {
        neu.AddPunkt(s.x + (t.x - s.x) * fs / (fs - ft), s.y + (t.y - s.y) * fs / (fs - ft));
      }
    }
    rest = neu;
  }
  return rest.GetFlaeche();
}

TEST(Versatz, OfConvexOutlinesIsExact) {
  std::mt19937 zufall(20240611);
  SCOPED_TRACE("seed 20240611");
  std::uniform_real_distribution<> eins(0, 1);
  int leer = 0;
  for (int lauf = 0; lauf < 1000; ++lauf) {
    const int n = 3 + static_cast<int>(eins(zufall) * 10);
    GEOM2_Polygon p;
    std::vector<double> abstaende;
    for (int i = 0; i < n; ++i) {
      const double winkel = 2 * lintavo::kPi * (i + 0.8 * eins(zufall)) / n;
      p.AddPunkt(50 * std::cos(winkel), 30 * std::sin(winkel));
      abstaende.push_back(-25 * eins(zufall) + (lauf % 3));
    }
    const double flaeche = FlaecheDerHalbebenen(p, abstaende);
    const GEOM2_Polygon innen = Versetzt(p, abstaende);
    leer += innen.GetAnzahl() == 0 ? 1 : 0;
    ASSERT_NEAR(innen.GetFlaeche(), flaeche, 1e-5) << Text(p);
    ASSERT_TRUE(IstSchleifenfrei(innen));
  }
  EXPECT_GT(leer, 10);
  EXPECT_LT(leer, 500);
}

// ---- outlines that are not convex, with a distance per edge ----------------------------

using Zufall = std::mt19937;

double Zwischen(Zufall& zufall, double von, double bis) {
  return von + (bis - von) * static_cast<double>(zufall()) / 4294967296.0;
}

/// Steps, flat arches and gaps between them over one base, from the right to the left.
GEOM2_Polygon Silhouette(Zufall& zufall, bool mitBoegen) {
  GEOM2_Polygon p = Poly("(0,0) (240,0)");
  double x = 240;
  while (x > 0.0) {
    const double breite = std::min(x, Zwischen(zufall, 15, 120));
    const double y = std::round(Zwischen(zufall, 20, 100));
    const double stich = mitBoegen ? breite * Zwischen(zufall, 0.02, 0.3) : 0.0;
    const int teile = stich > 0.0 ? 12 : 1;
    for (int k = 0; k <= teile; ++k) {
      const double u = static_cast<double>(k) / teile;
      p.AddPunkt(x - breite * u, y + stich * 4 * u * (1 - u));
    }
    x = x - breite < 15 ? 0.0 : x - breite;
    if (x <= 0.0) p.SetPunkt(p.GetAnzahl() - 1, 0, y);
  }
  p.Bereinigen(1e-6);
  return p;
}

GEOM2_Polygon Stern(Zufall& zufall) {
  GEOM2_Polygon p;
  const int n = 5 + static_cast<int>(zufall() % 10);
  for (int i = 0; i < n; ++i) {
    const double winkel = 2 * lintavo::kPi * (i + 0.8 * Zwischen(zufall, 0, 1)) / n;
    const double r = Zwischen(zufall, 40, 100);
    p.AddPunkt(r * std::cos(winkel), r * std::sin(winkel));
  }
  return p;
}

/// Whether no reentrant corner can reach the mitre limit, which makes leaps.
bool IstMild(const GEOM2_Polygon& p) {
  for (int i = 0; i < p.GetAnzahl(); ++i) {
    XY a, b, c;
    p.GetKante(i, a, b);
    p.GetKante((i + 1) % p.GetAnzahl(), b, c);
    const double kreuz = (b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x);
    const double skalar = (b.x - a.x) * (c.x - b.x) + (b.y - a.y) * (c.y - b.y);
    const double grad = std::atan2(kreuz, skalar) * 180 / lintavo::kPi;
    if (grad < 0 && (grad > -20 || grad < -140)) return false;
  }
  return true;
}

/// Whether some side of an offset, named by its attribute, runs against its edge.
bool HatGedrehte(const GEOM2_Polygon& versetzt, const GEOM2_Polygon& quelle) {
  for (int i = 0; i < versetzt.GetAnzahl(); ++i) {
    XY a, b, c, d;
    versetzt.GetKante(i, a, b);
    quelle.GetKante(versetzt.GetAttribut(i), c, d);
    if ((b.x - a.x) * (d.x - c.x) + (b.y - a.y) * (d.y - c.y) < 0) return true;
  }
  return false;
}

/// How many places along the edges of a lie in b, a hair beside its edge included.
int Innen(const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
  int innen = 0;
  for (int i = 0; i < 4 * a.GetAnzahl(); ++i) {
    XY von, bis;
    a.GetKante(i / 4, von, bis);
    const double u = 0.25 * (i % 4);
    const XY p{von.x + (bis.x - von.x) * u, von.y + (bis.y - von.y) * u};
    innen += b.IsAufRand(p, 1e-4) || b.IsInside(p, true, 1e-9) ? 1 : 0;
  }
  return innen;
}

TEST(Versatz, ObeysItsLawsOnOutlinesOfAllKinds) {
  int mitErgebnis = 0;
  int gewachsen = 0;
  for (unsigned saat = 1; saat <= 1500; ++saat) {
    SCOPED_TRACE("seed " + std::to_string(saat));
    Zufall zufall(saat);
    GEOM2_Polygon p = saat % 3 == 0 ? Stern(zufall) : Silhouette(zufall, saat % 3 == 1);
    if (!IstMild(p) || !IstSchleifenfrei(p) || p.GetFlaeche() <= 0) continue;
    const double groesster = Zwischen(zufall, 1, 25);
    std::vector<double> abstaende;
    for (int i = 0; i < p.GetAnzahl(); ++i) {
      p.SetAttribut(i, i);
      const bool bogen = i > 0 && p.GetKantenLaenge(i) < 14;
      abstaende.push_back(bogen ? abstaende.back() : -groesster * Zwischen(zufall, 0.2, 1));
    }
    const GEOM2_Polygon ist = Versetzt(p, abstaende);
    const double flaeche = ist.GetFlaeche();
    mitErgebnis += flaeche > 0 ? 1 : 0;

    // It never leaves the source and has no loop; the bare ring stays where no side of it
    // has vanished.
    ASSERT_TRUE(ist.GetAnzahl() == 0 || IstSchleifenfrei(ist)) << Text(p);
    ASSERT_EQ(Innen(ist, p), 4 * ist.GetAnzahl()) << Text(p);
    const GEOM2_Polygon bloss = Versetzt(p, abstaende, false);
    if (IstSchleifenfrei(bloss) && bloss.GetFlaeche() > 0 && !HatGedrehte(bloss, p)) {
      ASSERT_NEAR(flaeche, bloss.GetFlaeche(), 1e-6) << Text(p);
    }
    // What is left of the smallest offset by one distance lies in one of its pieces.
    const GEOM2_Polygon kleinstes =
        Versetzt(p, *std::min_element(abstaende.begin(), abstaende.end()));
    ASSERT_GE(flaeche, kleinstes.GetFlaeche() - 1e-6) << Text(p);
    const int gemeinsam = Innen(kleinstes, ist);
    ASSERT_TRUE(gemeinsam == 0 || gemeinsam == 4 * kleinstes.GetAnzahl()) << Text(p);
    // It does not grow with a distance, unless it has a step that has come to fall the
    // other way.
    std::vector<double> mehr = abstaende;
    mehr[zufall() % mehr.size()] *= 1.1;
    if (!HatGedrehte(ist, p)) {
      gewachsen += Versetzt(p, mehr).GetFlaeche() > flaeche + 1e-6 ? 1 : 0;
    }
    // Turned or walked the other way round it is the same.
    ASSERT_NEAR(Versetzt(Gedreht(p, 37), abstaende).GetFlaeche(), flaeche, 1e-5) << Text(p);
    GEOM2_Polygon zurueck = p;
    zurueck.Umkehren();
    for (double& d : abstaende) d = -d;
    std::reverse(abstaende.begin(), abstaende.end());
    ASSERT_NEAR(-Versetzt(zurueck, abstaende).GetFlaeche(), flaeche, 1e-6) << Text(p);
  }
  EXPECT_GT(mitErgebnis, 700);
  EXPECT_EQ(gewachsen, 0);
}

TEST(Versatz, StepsTowersAndWingsThatVanish) {
  // The narrow part's step falls the other way: 79 - 9 is below 78 - 5.
  EXPECT_TRUE(
      GleichesPolygon(Poly("(5,5,1) (95,5,2) (95,70,3) (57,70,4) (57,73,5) (5,73,6)"),
                      Versetzt(Poly("(0,0,1) (100,0,2) (100,79,3) (50,79,4) (50,78,5) (0,78,6)"),
                               {-5, -5, -9, -7, -5, -5})));
  // The tower at the left is 10 wide and loses 28 and 6.
  EXPECT_TRUE(
      GleichesPolygon(Poly("(6,20,1) (180,20,2) (180,40,3) (6,40,6)"),
                      Versetzt(Poly("(0,0,1) (200,0,2) (200,50,3) (10,50,4) (10,60,5) (0,60,6)"),
                               {-20, -20, -10, -28, -25, -6})));
  // The wing collapses to exactly nothing; the sides that stay keep their numbers.
  EXPECT_TRUE(GleichesPolygon(
      Poly("(50,10,1) (90,10,2) (90,50,3) (50,50,4)"),
      Versetzt(Poly("(0,0,1) (100,0,2) (100,60,3) (40,60,4) (40,20,5) (0,20,6)"), -10)));
}

TEST(Versatz, ReentrantCornersHaveAMitreLimit) {
  // A notch of half angle b with tan b = 1/12: 4 / sin b = 48.2 is beyond 3 * 4, so it is
  // cut 4 below its tip, (1 - sin b) / cos b * 4 to both sides. Its flanks reach the edge
  // above, moved down by 4, 4 / cos b beside the notch, which is 2 * 56 / 12 wide there.
  const GEOM2_Polygon kerbe = Poly(
      "(0,0,1) (100,0,2) (100,100,3) (55,100,4) (50,40,5) (45,100,6)"
      " (0,100,7)");
  const double hypotenuse = std::sqrt(145.0);
  const double unten = 4 * (hypotenuse - 1) / 12;
  const double oben = 56.0 / 12 + 4 * hypotenuse / 12;
  GEOM2_Polygon erwartet = Poly(
      "(4,4,1) (96,4,2) (96,96,3) (0,96,4) (0,36,5) (0,36,5) (0,96,6)"
      " (4,96,7)");
  erwartet.SetPunkt(3, 50 + oben, 96);
  erwartet.SetPunkt(4, 50 + unten, 36);
  erwartet.SetPunkt(5, 50 - unten, 36);
  erwartet.SetPunkt(6, 50 - oben, 96);
  EXPECT_TRUE(GleichesPolygon(erwartet, Versetzt(kerbe, -4)));
  // Below it the base is 40 thick: what a spike would have cut in two stays whole.
  EXPECT_NEAR(Versetzt(Gedreht(kerbe, 71), -4).GetFlaeche(), erwartet.GetFlaeche(), 1e-6);
  // Outwards the notch closes where it is narrower than twice the distance.
  EXPECT_TRUE(GleicherRing(Rechteck(-6, -6, 106, 106), Versetzt(kerbe, 6)));

  // Two slopes that hardly turn, 9 and 7 deep: they would meet 100 beside their joint. The
  // step between them stands in the joint.
  const GEOM2_Polygon tal = Poly("(-50,0) (50,0) (50,80.5) (0,80) (-50,80.5)");
  const GEOM2_Polygon innen = Versetzt(tal, {-5, -5, -9, -7, -5});
  const double laenge = std::hypot(50.0, 0.5) / 50;
  EXPECT_TRUE(innen.IsAufRand({0, 80 - 9 * laenge}, 1e-9));
  EXPECT_TRUE(innen.IsAufRand({0, 80 - 7 * laenge}, 1e-9));
  EXPECT_TRUE(innen.IsAufRand({45, 80.45 - 9 * laenge}, 1e-9));
  EXPECT_EQ(innen.GetAnzahl(), 6);
}

TEST(Versatz, HostileDistancesGiveNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Versetzt(Rechteck(0, 0, 10, 10), {nan, 1, 1, 1}).GetAnzahl(), 0);
  EXPECT_EQ(Versetzt(Rechteck(0, 0, 10, 10), 1e308).GetAnzahl(), 0);
  EXPECT_EQ(Versetzt(Rechteck(0, 0, nan, 10), 1).GetAnzahl(), 0);
  EXPECT_EQ(Versetzt(GEOM2_Polygon(), {}).GetAnzahl(), 0);
}

// A notch and a chamfer that vanishes: the outline is put together anew, but the corners
// of the flat arc, whose sides turn by 0.6 degrees, stay exact: 1000 - 10 / cos (0.3).
TEST(Offset, CornersOfAFlatArcStayExactWhereASideVanishes) {
  GEOM2_Polygon p = Poly("(0,2) (2,0) (40,0) (40,5) (60,5) (60,0) (100,0)");
  const XY mitte{50, -900};
  std::vector<XY> erwartet;
  for (int k = 0; k < 9; ++k) {
    const double winkel = (87.6 + 0.6 * k) * lintavo::kPi / 180;
    p.AddPunkt(mitte.x + 1000 * std::cos(winkel), mitte.y + 1000 * std::sin(winkel));
    const double radius = 1000 - 10 / std::cos(0.3 * lintavo::kPi / 180);
    if (k == 0 || k == 8) continue;  // beside other sides
    erwartet.push_back({mitte.x + radius * std::cos(winkel), mitte.y + radius * std::sin(winkel)});
  }
  const GEOM2_Polygon innen = Versetzt(p, std::vector<double>(16, -10.0));
  for (const XY& ecke : erwartet) {
    double naechste = 1e30;
    for (int i = 0; i < innen.GetAnzahl(); ++i) {
      const GEOM2_Eckpunkt& q = innen.GetEckpunkt(i);
      naechste = std::min(naechste, std::hypot(q.x - ecke.x, q.y - ecke.y));
    }
    EXPECT_LT(naechste, 1e-9) << ecke.x << ", " << ecke.y;
  }
}

TEST(Bereinigen, DropsRepeatedAndCollinearVertices) {
  GEOM2_Polygon p = Poly("(0,0,1) (5,0,2) (10,0,3) (10,0,4) (10,10,5) (0,10,6) (0,0,7)");
  EXPECT_TRUE(p.Bereinigen(1e-6));
  // Of the two vertices at (10,0) and of the closing pair the later one stays.
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0,1) (10,0,4) (10,10,5) (0,10,6)"), p, 0.0));
  EXPECT_TRUE(p.Bereinigen(1e-6));
  EXPECT_EQ(p.GetAnzahl(), 4);

  GEOM2_Polygon strich = Poly("(0,0) (10,0) (5,0)");
  EXPECT_FALSE(strich.Bereinigen(1e-6));
  EXPECT_EQ(strich.GetAnzahl(), 0);
  GEOM2_Polygon punkt = Poly("(1,1)");
  EXPECT_FALSE(punkt.Bereinigen(1e-6));
  EXPECT_EQ(punkt.GetAnzahl(), 1);
}

TEST(Bereinigen, CutsOffLoopsAndFolds) {
  // A small loop of the other winding hangs on the corner (10,10).
  GEOM2_Polygon schleife = Poly("(0,0,1) (10,0,2) (10,12,3) (12,12,4) (12,10,5) (0,10,6)");
  EXPECT_TRUE(schleife.Bereinigen(1e-6));
  EXPECT_TRUE(GleichesPolygon(Poly("(0,0,1) (10,0,2) (10,10,5) (0,10,6)"), schleife));
  GEOM2_Polygon falte = Poly("(0,0) (10,0) (10,10) (5,10) (5,20) (5,10) (0,10)");
  EXPECT_TRUE(falte.Bereinigen(1e-6));
  EXPECT_TRUE(GleicherRing(Rechteck(0, 0, 10, 10), falte));
  GEOM2_Polygon uhrzeiger = Poly("(0,0) (0,10) (12,10) (12,12) (10,12) (10,0)");
  EXPECT_TRUE(uhrzeiger.Bereinigen(1e-6));
  EXPECT_TRUE(GleicherRing(Poly("(0,0) (0,10) (10,10) (10,0)"), uhrzeiger));
}

TEST(Bereinigen, NeverWearsAFineArcAway) {
  // 20000 sides; each corner alone strays by 100 * (pi / 20000)^2 / 2 = 1.2e-6.
  GEOM2_Polygon kreis = Vieleck(20000, 100);
  EXPECT_TRUE(kreis.Bereinigen(1e-4, false));
  EXPECT_LT(kreis.GetAnzahl(), 20000);
  EXPECT_NEAR(kreis.GetFlaeche(), lintavo::kPi * 100 * 100, 2e-4 * 200 * lintavo::kPi);
}

}  // namespace
