// Fillings and their slats, fittings, and the glass dimensions between bars.
#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/Fluegel.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr std::size_t kMaxLamellen = 1000;

// --- filling -----------------------------------------------------------------------

std::vector<CMBauteil> Lamellen(const GEOM2_Polygon& umriss, double breite, double luecke) {
  CMFensterSatzRechteck fluegel = Fluegel(umriss, 0.0);
  fluegel.Fuellung.SetLamellen(breite, 1.5);
  fluegel.Fuellung.D1 = luecke;
  GEOM2_Polygon contour;
  std::vector<CMBauteil> slats;
  EXPECT_TRUE(fluegel.GetFuellung(7, contour, slats));
  EXPECT_TRUE(GleicherRing(umriss, contour));
  return slats;
}

// Width and height of its middle for every slat.
std::vector<std::pair<double, double>> BreiteUndLage(const std::vector<CMBauteil>& slats) {
  std::vector<std::pair<double, double>> werte;
  for (const CMBauteil& lamelle : slats) {
    werte.emplace_back(lamelle.dBreite, lamelle.Achse(0).Start.y);
  }
  return werte;
}

using Paare = std::vector<std::pair<double, double>>;

TEST(Lamellen, FillTheHeightFromBelow) {
  const struct {
    const char* was;
    double hoehe, breite, luecke;
    Paare erwartet;
  } kFaelle[] = {
      {"the last one takes the rest", 100, 30, 0, {{30, 15}, {30, 45}, {30, 75}, {10, 95}}},
      {"0.05 of rest get none", 90.05, 30, 0, {{30, 15}, {30, 45}, {30, 75}}},
      {"0.25 get one", 90.25, 30, 0, {{30, 15}, {30, 45}, {30, 75}, {0.25, 90.125}}},
      {"60 / 30.25 is less than two, yet two fill the height exactly",
       60.5,
       30.25,
       0,
       {{30.25, 15.125}, {30.25, 45.375}}},
      {"a height below one is none; the rest is all of it", 0.75, 0.25, 0, {{0.75, 0.375}}},
      {"each lies behind its gap; the slat of the rest reaches past the top",
       90,
       20,
       5,
       {{20, 15}, {20, 40}, {20, 65}, {15, 87.5}}},
      {"the middle of the rest would lie above the contour",
       80,
       10,
       15,
       {{10, 20}, {10, 45}, {10, 70}}},
      {"wider than the contour: one as high as it", 100, 1e300, 0, {{100, 50}}},
  };
  for (const auto& fall : kFaelle) {
    const GEOM2_Polygon umriss = Rechteck(0, 0, 80, fall.hoehe);
    EXPECT_EQ(BreiteUndLage(Lamellen(umriss, fall.breite, fall.luecke)), fall.erwartet) << fall.was;
  }
}

// The height is a difference of two coordinates.
TEST(Lamellen, DoNotDependOnTheLastBitOfTheHeight) {
  for (const double unten : {0.0, 0.1, 12.2, 73.3}) {
    for (int zehntel = 5; zehntel < 80; ++zehntel) {
      const double hoehe = zehntel * 10.0;
      const std::vector<CMBauteil> slats =
          Lamellen(Rechteck(0, unten, 80, unten + hoehe), zehntel / 10.0, 0.0);
      EXPECT_EQ(slats.size(), 100U) << zehntel << " tenths from " << unten;
    }
  }
}

TEST(Lamellen, AreCutToTheContour) {
  // The slopes of the gable are y = 100 + 2x and y = 300 - 2x.
  const std::vector<CMBauteil> slats =
      Lamellen(Poly("(0,0) (100,0) (100,100) (50,200) (0,100)"), 50.0, 0.0);
  ASSERT_EQ(slats.size(), 4U);
  EXPECT_NEAR(slats[1].Achse(0).dLaenge, 100.0, 1e-9);
  EXPECT_NEAR(slats[1].Achse(0).dWinkelAnfang, 0.0, 1e-9);
  const double neigung = std::atan(0.5) * 180.0 / std::acos(-1.0);
  EXPECT_NEAR(slats[2].Achse(0).Start.x, 12.5, 1e-9);
  EXPECT_NEAR(slats[2].Achse(0).dLaenge, 75.0, 1e-9);
  EXPECT_NEAR(slats[2].Achse(0).dWinkelAnfang, neigung, 1e-6);
  EXPECT_NEAR(slats[2].Achse(0).dWinkelEnde, -neigung, 1e-6);
  EXPECT_NEAR(slats[3].Achse(0).Start.x, 37.5, 1e-9);
  EXPECT_NEAR(slats[3].Achse(0).dLaenge, 25.0, 1e-9);
}

TEST(Lamellen, ShowTheirStripOfTheContour) {
  CMFensterSatzRechteck fluegel = Fluegel(Poly("(0,0) (100,0) (100,100) (50,200) (0,100)"), 0.0);
  fluegel.Fuellung.SetLamellen(60.0, 1.5);
  fluegel.Fuellung.D1 = 10.0;
  const char* const erwartet[] = {"(0,10) (100,10) (100,70) (0,70)",
                                  "(0,80) (100,80) (100,100) (80,140) (20,140) (0,100)",
                                  "(25,150) (75,150) (50,200)"};
  ASSERT_EQ(fluegel.GetAnzahlLamellen(), 3);
  GEOM2_Polygon umriss;
  for (long i = 0; i < 3; ++i) {
    ASSERT_TRUE(fluegel.GetLamellenUmriss(i, umriss));
    EXPECT_TRUE(GleicherRing(Poly(erwartet[i]), umriss, 1e-9)) << i;
    for (int n = 0; n < umriss.GetAnzahl(); ++n) EXPECT_EQ(umriss.GetAttribut(n), 1);
  }
  EXPECT_FALSE(fluegel.GetLamellenUmriss(3, umriss));
  EXPECT_EQ(umriss.GetAnzahl(), 0);
}

TEST(Lamellen, CarryWhatTheFillingSays) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 80, 100), 10.0);
  fluegel.Fuellung.SetLamellen(40.0, 1.5);
  fluegel.Fuellung.I1 = 5;
  fluegel.Fuellung.I2 = 6;
  fluegel.Fuellung.I3 = 7;
  fluegel.Fuellung.I4 = 8;
  GEOM2_Polygon contour = Rechteck(0, 0, 1, 1);
  std::vector<CMBauteil> slats(1);
  ASSERT_TRUE(fluegel.GetFuellung(42, contour, slats));
  EXPECT_TRUE(GleicherRing(Rechteck(10, 10, 70, 90), contour));
  ASSERT_EQ(slats.size(), 3U) << "appended to what was there";
  const CMBauteil& lamelle = slats.back();
  EXPECT_TRUE(lamelle.IsLamelle());
  EXPECT_EQ(lamelle.lReferenz, 42);
  EXPECT_DOUBLE_EQ(lamelle.dDicke, 1.5);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(lamelle.lAttribut[i], 5 + i);
  GEOM2_Polygon umriss;
  ASSERT_TRUE(lamelle.GetUmrissPunkte(umriss));
  EXPECT_TRUE(GleicherRing(Rechteck(10, 50, 70, 90), umriss));
}

TEST(Lamellen, AreBoundedWhateverTheFillingSays) {
  const GEOM2_Polygon umriss = Rechteck(0, 0, 80, 100);
  for (const double breite : {0.0, -5.0, 1e-300, 1e-6, kNan, kInf, -kInf}) {
    EXPECT_TRUE(Lamellen(umriss, breite, 0.0).empty()) << breite;
  }
  for (const double luecke : {-30.0, -30.0 + 2e-6, -1e300, kNan, kInf, -kInf}) {
    EXPECT_TRUE(Lamellen(umriss, 30.0, luecke).empty()) << luecke;
  }
  EXPECT_EQ(Lamellen(umriss, 1e-5, 0.0).size(), kMaxLamellen);
  EXPECT_EQ(Lamellen(Rechteck(0, 0, 80, 999.5), 1.0, 0.0).size(), kMaxLamellen);
}

TEST(Fuellung, ContourHasNoShortEdges) {
  // The cut corner is 0.28 long.
  const GEOM2_Polygon umriss = Poly("(0,0) (100,0) (100,99.8) (99.8,100) (0,100)");
  CMFensterSatzRechteck fluegel = Fluegel(umriss, 0.0);
  const GEOM2_Polygon ohne = Poly("(0,0) (100,0) (99.8,100) (0,100)");
  for (const auto& [kante, erwartet] : {std::pair{0.5, ohne},
                                        {0.2, umriss},
                                        {0.0, umriss},
                                        {kNan, umriss},
                                        {-1.0, umriss},
                                        {kInf, umriss}}) {
    fluegel.Fuellung.D7 = kante;
    GEOM2_Polygon contour;
    std::vector<CMBauteil> slats;
    EXPECT_TRUE(fluegel.GetFuellung(0, contour, slats));
    EXPECT_TRUE(GleicherRing(erwartet, contour)) << kante;
    EXPECT_TRUE(slats.empty());
  }
}

TEST(Lamellen, OneByOneAreThoseOfTheWholeFilling) {
  // A convex contour, which lines cross at any height; one with a notch from above,
  // across which they are cut; one whose tip is thinner than a slat can be long.
  const GEOM2_Polygon formen[] = {Poly("(0,0) (100,0) (80,90) (20,90)"),
                                  Poly("(0,0) (100,0) (100,90) (50,40) (0,90)"),
                                  Poly("(0,0) (1e-6,-40) (100,0) (50,50)")};
  for (const GEOM2_Polygon& form : formen) {
    for (const double luecke : {0.0, 0.7, -1.0}) {
      CMFensterSatzRechteck fluegel = Fluegel(form, 0.0);
      fluegel.Fuellung.SetLamellen(3.3, 1.0);
      fluegel.Fuellung.D1 = luecke;
      GEOM2_Polygon contour;
      std::vector<CMBauteil> slats;
      ASSERT_TRUE(fluegel.GetFuellung(7, contour, slats));
      ASSERT_EQ(fluegel.GetAnzahlLamellen(), static_cast<long>(slats.size()));
      CMBauteil lamelle;
      // Backwards, so that no slat is laid on the way to the next.
      for (long i = fluegel.GetAnzahlLamellen() - 1; i >= 0; --i) {
        ASSERT_TRUE(fluegel.GetLamelle(7, i, lamelle));
        const CMBauteil& wie = slats[static_cast<std::size_t>(i)];
        EXPECT_EQ(lamelle.lReferenz, 7);
        EXPECT_EQ(lamelle.dBreite, wie.dBreite);
        EXPECT_EQ(lamelle.Achse(0).Start.y, wie.Achse(0).Start.y);
        EXPECT_EQ(lamelle.Achse(0).dLaenge, wie.Achse(0).dLaenge);
        EXPECT_EQ(lamelle.Achse(0).dWinkelEnde, wie.Achse(0).dWinkelEnde);
      }
      EXPECT_FALSE(fluegel.GetLamelle(7, static_cast<long>(slats.size()), lamelle));
      EXPECT_FALSE(fluegel.GetLamelle(7, -1, lamelle));
    }
  }
}

TEST(Fuellung, SashWithoutContourHasNone) {
  CMFensterSatzRechteck fluegel;
  GEOM2_Polygon contour = Rechteck(0, 0, 1, 1);
  std::vector<CMBauteil> slats;
  std::vector<CMStrecke> masze;
  EXPECT_FALSE(fluegel.GetFuellung(0, contour, slats));
  EXPECT_EQ(contour.GetAnzahl(), 0);
  fluegel = Fluegel(Rechteck(0, 0, 80, 100), 10.0);
  for (CMBauteil& teil : fluegel.RahmenTeile) teil.dBreite = 40.0;
  EXPECT_FALSE(fluegel.GetFuellung(0, contour, slats));
  EXPECT_EQ(contour.GetAnzahl(), 0);
  EXPECT_FALSE(fluegel.GetMaszeGlaslichteHori(masze));
  EXPECT_FALSE(fluegel.GetMaszeGlaslichteVert(masze));
  EXPECT_TRUE(masze.empty());
}

// --- glass dimensions --------------------------------------------------------------

double Summe(const std::vector<CMStrecke>& masze) {
  double summe = 0.0;
  for (const CMStrecke& masz : masze) summe += masz.GetLaenge();
  return summe;
}

TEST(Glaslichte, BarsDivideTheBoxOfTheContour) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  GEOM2_Polygon contour;
  ASSERT_TRUE(fluegel.ErzeugeRahmenInnenPolygon(contour));
  const auto sprosse = [&](const XY& a, const XY& b) {
    fluegel.AddSprosse(fluegel.SprossenVorlage, a, b, contour);
  };
  std::vector<CMStrecke> hori;
  std::vector<CMStrecke> vert;
  ASSERT_TRUE(fluegel.GetMaszeGlaslichteHori(hori));
  EXPECT_TRUE(GleicheLinien(Linien("(10,10) (110,10)"), hori)) << "no bar, one dimension";

  // A grid of 2 x 3, not in order and in every direction.
  sprosse({40, 300}, {40, -5});
  sprosse({0, 150}, {200, 150});
  sprosse({200, 70}, {0, 70});
  // In the same place again, half way, slanted, and gone: none divides anew.
  sprosse({40, 0}, {40, 100});
  sprosse({0, 0}, {120, 220});
  fluegel.Sprossen.emplace_back();
  hori.clear();
  ASSERT_TRUE(fluegel.GetMaszeGlaslichteHori(hori));
  ASSERT_TRUE(fluegel.GetMaszeGlaslichteVert(vert));
  EXPECT_TRUE(GleicheLinien(Linien("(10,10) (40,10)  (40,10) (110,10)"), hori));
  EXPECT_TRUE(GleicheLinien(Linien("(10,10) (10,70)  (10,70) (10,150)  (10,150) (10,210)"), vert));
  EXPECT_DOUBLE_EQ(Summe(hori), 100.0);
  EXPECT_DOUBLE_EQ(Summe(vert), 200.0);
}

TEST(Glaslichte, BarsBesideTheContourDivideNothing) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  for (const double x : {-50.0, 10.0, 110.0, 300.0, kNan, kInf}) {
    CMBauteil sprosse;
    GEOM2_Polygon::SetAchse({0, 20}, {0, 30}, sprosse.Achse(0));
    sprosse.Achse(0).Start.x = x;
    fluegel.Sprossen.push_back(sprosse);
  }
  std::vector<CMStrecke> hori;
  ASSERT_TRUE(fluegel.GetMaszeGlaslichteHori(hori));
  EXPECT_TRUE(GleicheLinien(Linien("(10,10) (110,10)"), hori));
}

// --- fittings ----------------------------------------------------------------------

// Part 0 runs along the bottom, part 1 up the right side; both are 10 wide.
TEST(Beschlag, DistancesAreBroughtIntoTheirRange) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  const auto abstaende = [&](eVermaszung mode, double d1, double d2) {
    const long i = fluegel.ErzeugeBeschlag(0, eBeschlagBand, mode, d1, mode, d2);
    const CMBeschlag* beschlag = fluegel.GetBeschlagPtr(i);
    return std::pair{beschlag->dAbstand1, beschlag->dAbstand2};
  };
  EXPECT_EQ(abstaende(eVermaszungAbsolut, 30.0, 4.0), (std::pair{30.0, 4.0}));
  EXPECT_EQ(abstaende(eVermaszungAbsolut, 150.0, 15.0), (std::pair{120.0, 10.0}));
  EXPECT_EQ(abstaende(eVermaszungProzent, 150.0, 120.0), (std::pair{100.0, 100.0}));
  EXPECT_EQ(abstaende(eVermaszungProzent, -1.0, kNan), (std::pair{0.0, 0.0}));
  EXPECT_EQ(abstaende(eVermaszungAbsolut, kInf, -kInf), (std::pair{120.0, 0.0}));

  const long griff =
      fluegel.ErzeugeBeschlag(1, eBeschlagGriff, eVermaszungAbsolut, 30.0, eVermaszungAbsolut, 4.0);
  EXPECT_EQ(griff, 5);
  EXPECT_EQ(fluegel.GetBeschlagPtr(griff)->eMasz2, eVermaszungProzent);
  EXPECT_DOUBLE_EQ(fluegel.GetBeschlagPtr(griff)->dAbstand2, 0.0);
  EXPECT_EQ(fluegel.GetBeschlagPtr(griff)->eMasz1, eVermaszungAbsolut);
}

TEST(Beschlag, NeedsAFramePart) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  const auto erzeuge = [&](long part) {
    return fluegel.ErzeugeBeschlag(part, eBeschlagBand, eVermaszungProzent, 50.0,
                                   eVermaszungProzent, 50.0);
  };
  EXPECT_EQ(erzeuge(4), -1);
  EXPECT_EQ(erzeuge(-1), -1);
  EXPECT_EQ(erzeuge(3), 0);
  EXPECT_EQ(fluegel.lGetAnzahlBeschlaege(), 1);
  EXPECT_EQ(fluegel.GetBeschlagPtr(1), nullptr);
  EXPECT_EQ(fluegel.GetBeschlagPtr(-1), nullptr);

  CMBeschlag beschlag = *fluegel.GetBeschlagPtr(0);
  XY p{1.0, 2.0};
  EXPECT_FALSE(beschlag.GetPunkt(nullptr, p));
  for (const int part : {4, -1, std::numeric_limits<int>::max()}) {
    beschlag.lBauteil = part;
    EXPECT_FALSE(beschlag.GetPunkt(&fluegel, p)) << part;
  }
  beschlag.lBauteil = 0;
  beschlag.eMasz1 = eVermaszungAbsolut;
  for (const double abstand : {kNan, -kInf}) {
    beschlag.dAbstand1 = abstand;
    EXPECT_FALSE(beschlag.GetPunkt(&fluegel, p)) << abstand;
  }
  EXPECT_DOUBLE_EQ(p.x, 1.0);
  fluegel.bMitRahmen = false;
  EXPECT_EQ(erzeuge(0), -1);
  beschlag.dAbstand1 = 1.0;
  EXPECT_FALSE(beschlag.GetPunkt(&fluegel, p));
}

TEST(Beschlag, SitsOnItsFramePart) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  const auto erwarte = [&](CMBeschlag& beschlag, double x, double y, double winkel) {
    XY p;
    double angle = 0.0;
    ASSERT_TRUE(beschlag.GetPunkt(&fluegel, p, angle));
    EXPECT_NEAR(p.x, x, 1e-9);
    EXPECT_NEAR(p.y, y, 1e-9);
    EXPECT_NEAR(angle, winkel, 1e-9);
  };
  CMBeschlag beschlag;
  beschlag.eTyp = eBeschlagBand;
  beschlag.dAbstand1 = 30.0;
  beschlag.eMasz2 = eVermaszungProzent;
  beschlag.dAbstand2 = 50.0;
  erwarte(beschlag, 30.0, 5.0, 0.0);
  beschlag.lBauteil = 1;
  erwarte(beschlag, 115.0, 30.0, 90.0);
  beschlag.lBauteil = 2;
  erwarte(beschlag, 90.0, 215.0, 180.0);
  beschlag.lBauteil = 3;
  beschlag.eMasz1 = eVermaszungProzent;
  beschlag.eMasz2 = eVermaszungAbsolut;
  beschlag.dAbstand1 = 25.0;
  beschlag.dAbstand2 = 4.0;
  erwarte(beschlag, 4.0, 165.0, -90.0);

  // Bounds are kept: the fitting does not go back when the part grows again.
  beschlag = {};
  beschlag.dAbstand1 = 1000.0;
  beschlag.dAbstand2 = 8.0;
  fluegel.RahmenTeile[0].dBreite = 5.0;
  erwarte(beschlag, 120.0, 5.0, 0.0);
  EXPECT_DOUBLE_EQ(beschlag.dAbstand1, 120.0);
  EXPECT_DOUBLE_EQ(beschlag.dAbstand2, 5.0);
  beschlag.eMasz1 = beschlag.eMasz2 = eVermaszungProzent;
  beschlag.dAbstand2 = 130.0;
  erwarte(beschlag, 120.0, 5.0, 0.0);
  EXPECT_DOUBLE_EQ(beschlag.dAbstand1, 100.0);
  EXPECT_DOUBLE_EQ(beschlag.dAbstand2, 100.0);
}

TEST(Beschlag, DrawingLiesAlongTheGivenDirection) {
  // A handle reaches 12 forward and 2 back, a hinge 4 to both sides. Of a handle forward
  // is never up; along a level part it is the part's own direction.
  const struct {
    eBeschlagTypen typ;
    double winkel;
    XY vor;
    double weite, zurueck;
  } kFaelle[] = {{eBeschlagGriff, 90, {0, -1}, 12, 2},   {eBeschlagGriff, -90, {0, -1}, 12, 2},
                 {eBeschlagGriff, 0, {1, 0}, 12, 2},     {eBeschlagGriff, 180, {-1, 0}, 12, 2},
                 {eBeschlagGriff, -180, {-1, 0}, 12, 2}, {eBeschlagBand, 90, {0, 1}, 4, 4}};
  for (const auto& fall : kFaelle) {
    CMBeschlag beschlag;
    beschlag.eTyp = fall.typ;
    std::vector<CMStrecke> lines;
    beschlag.GetZeichnung(lines, {10, -20}, fall.winkel);
    double weite = -kInf;
    double zurueck = -kInf;
    for (const CMStrecke& linie : lines) {
      XY p[2];
      linie.GetPunkte(p[0], p[1]);
      for (const XY& q : p) {
        const double vor = (q.x - 10) * fall.vor.x + (q.y + 20) * fall.vor.y;
        weite = std::max(weite, vor);
        zurueck = std::max(zurueck, -vor);
      }
    }
    EXPECT_NEAR(weite, fall.weite, 1e-9) << fall.winkel;
    EXPECT_NEAR(zurueck, fall.zurueck, 1e-9) << fall.winkel;
  }
  CMBeschlag anderer;
  anderer.eTyp = static_cast<eBeschlagTypen>(9);
  std::vector<CMStrecke> lines;
  anderer.GetZeichnung(lines, {1, 1}, 90.0);
  EXPECT_TRUE(GleicheLinien(Linien("(-1,-1) (3,3)  (-1,3) (3,-1)"), lines));
  anderer.GetZeichnung(lines, {kNan, 1}, 0.0);
  anderer.GetZeichnung(lines, {1, 1}, kInf);
  EXPECT_EQ(lines.size(), 2U);
}

}  // namespace
}  // namespace lintavo::test
