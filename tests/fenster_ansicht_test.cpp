// The front view with hidden lines removed: against a plain account of what covers
// what on every example, and against views worked out by hand.
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Ansicht.h"
#include "support/Beispiele.h"

namespace lintavo::test {
namespace {

class JedeAnsicht : public testing::TestWithParam<std::string> {};

TEST_P(JedeAnsicht, ShowsEveryVisibleEdgeOnceAndNothingElse) {
  CMFenster fenster = Beispiel(GetParam());
  ErwarteBildRichtig(fenster);
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    fluegel.lOeffSeite = 1 - fluegel.lOeffSeite;
  }
  XY size;
  fenster.GetSize(size);
  // Where the window cannot grow it is looked at as it was.
  Einpassen(fenster, 1.13 * size.x, 1.07 * size.y);
  SCOPED_TRACE("opening the other way, stretched");
  if (fenster.GetFehler() == 0) ErwarteBildRichtig(fenster);
}

TEST_P(JedeAnsicht, IsTheSameAgainAndForACopy) {
  const CMFenster fenster = Beispiel(GetParam());
  const CMFenster kopie = fenster;
  for (const bool vonAussen : {false, true}) {
    std::vector<CMStrecke> erste;
    std::vector<CMStrecke> zweite(3);
    ASSERT_TRUE(fenster.GetHiddenLineBild(erste, vonAussen));
    ASSERT_TRUE(kopie.GetHiddenLineBild(zweite, vonAussen));
    ASSERT_EQ(erste.size(), zweite.size());
    const std::vector<Strecke> e = Strecken(erste);
    const std::vector<Strecke> z = Strecken(zweite);
    for (std::size_t i = 0; i < erste.size(); ++i) {
      EXPECT_TRUE(e[i].a.x == z[i].a.x && e[i].a.y == z[i].a.y && e[i].b.x == z[i].b.x &&
                  e[i].b.y == z[i].b.y);
      EXPECT_EQ(erste[i].GetFarbe(), zweite[i].GetFarbe());
      EXPECT_EQ(erste[i].GetPrio(), zweite[i].GetPrio());
    }
  }
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  return info.param.substr(0, info.param.find('.'));
}

INSTANTIATE_TEST_SUITE_P(Windows, JedeAnsicht, testing::ValuesIn(BeispielNamen()), TestName);

// --- views worked out by hand -----------------------------------------------------

bool IstGleich(const Strecke& s, const Strecke& t) {
  const auto nah = [](const XY& p, const XY& q) { return std::hypot(p.x - q.x, p.y - q.y) < 1e-6; };
  return (nah(s.a, t.a) && nah(s.b, t.b)) || (nah(s.a, t.b) && nah(s.b, t.a));
}

bool Enthaelt(const std::vector<Strecke>& bild, const Strecke& s) {
  return std::any_of(bild.begin(), bild.end(), [&](const Strecke& t) { return IstGleich(s, t); });
}

void ErwarteEnthalten(const std::vector<Strecke>& bild, const std::vector<Strecke>& erwartet) {
  for (const Strecke& s : erwartet) {
    EXPECT_TRUE(Enthaelt(bild, s))
        << "missing (" << s.a.x << "," << s.a.y << ")-(" << s.b.x << "," << s.b.y << ")";
  }
}

void ErwarteBild(const std::vector<Strecke>& bild, const std::vector<Strecke>& erwartet) {
  EXPECT_EQ(bild.size(), erwartet.size());
  ErwarteEnthalten(bild, erwartet);
}

void AddRechteck(double x0, double y0, double x1, double y1, std::vector<Strecke>& strecken) {
  strecken.insert(
      strecken.end(),
      {{{x0, y0}, {x1, y0}}, {{x1, y0}, {x1, y1}}, {{x1, y1}, {x0, y1}}, {{x0, y1}, {x0, y0}}});
}

// A frame of 7 around sashes of 7.8 that overlap it by 1.5.
TEST(Ansicht, SashCoversTheFrameOnTheSideToWhichItOpens) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  std::vector<Strecke> offen;
  AddRechteck(0.0, 0.0, 100.0, 80.0, offen);
  AddRechteck(13.3, 13.3, 86.7, 66.7, offen);
  std::vector<Strecke> verdeckt = offen;
  AddRechteck(5.5, 5.5, 94.5, 74.5, offen);
  AddRechteck(7.0, 7.0, 93.0, 73.0, verdeckt);
  ErwarteBild(Bild(fenster, false), offen);
  ErwarteBild(Bild(fenster, true), verdeckt);

  fenster.GetFluegelPtr(0L)->lOeffSeite = 1;
  ErwarteBild(Bild(fenster, false), verdeckt);
  ErwarteBild(Bild(fenster, true), offen);
}

// A pane without a sash frame that reaches 1.5 into the rebate of the frame.
TEST(Ansicht, FrameCoversAPaneFromBothSides) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  fenster.GetFluegelPtr(0L)->bMitRahmen = false;
  ASSERT_TRUE(fenster.Berechne(false));
  std::vector<Strecke> erwartet;
  AddRechteck(0.0, 0.0, 100.0, 80.0, erwartet);
  AddRechteck(7.0, 7.0, 93.0, 73.0, erwartet);
  ErwarteBild(Bild(fenster, false), erwartet);
  ErwarteBild(Bild(fenster, true), erwartet);
}

// Two sashes without a mullion reach over each other, the left one to 51.5, the
// right one to 48.5. Seen where only one of the two lines is.
class Paar : public testing::Test {
 protected:
  Paar() : fenster(Raster(2, 1, 50.0, 80.0)) {
    EXPECT_TRUE(fenster.Berechne(false));
    links = fenster.GetFluegelPtr(0L);
    rechts = fenster.GetFluegelPtr(1L);
  }

  void ErwarteStosz(double xVonInnen, double xVonAussen) {
    for (const bool vonAussen : {false, true}) {
      const std::vector<Strecke> bild = Bild(fenster, vonAussen);
      const double rand = vonAussen ? 7.0 : 5.5;
      for (const double x : {48.5, 51.5}) {
        EXPECT_EQ(Enthaelt(bild, {{x, rand}, {x, 80.0 - rand}}),
                  x == (vonAussen ? xVonAussen : xVonInnen))
            << x << (vonAussen ? " from outside" : " from inside");
      }
    }
    ErwarteBildRichtig(fenster);
  }

  CMFenster fenster;
  CMFensterSatz* links;
  CMFensterSatz* rechts;
};

TEST_F(Paar, TheEarlierOneLiesWhereTheyOpen) {
  ErwarteStosz(51.5, 48.5);
}

TEST_F(Paar, TheOneThatOpensFirstLiesWhereTheyOpen) {
  rechts->bZuerstAufgehend = true;
  ErwarteStosz(48.5, 51.5);
}

TEST_F(Paar, DepthGoesBeforeTheOrderOfOpening) {
  links->bZuerstAufgehend = true;
  links->dZVersatz = 0.4;
  ErwarteStosz(48.5, 51.5);
  links->dZVersatz = -0.4;
  ErwarteStosz(51.5, 48.5);
}

// A sash whose clear opening is 13.3 to 86.7 by 13.3 to 66.7, with bars 4 wide; its
// own lines and those of the frame are 12.
class Stabwerk : public testing::Test {
 protected:
  Stabwerk() : fenster(Raster(1, 1, 100.0, 80.0)) {
    EXPECT_TRUE(fenster.Berechne(false));
    EXPECT_TRUE(fenster.GetFluegelPtr(0L)->ErzeugeRahmenInnenPolygon(innen));
  }

  void Lege(const XY& a, const XY& b) {
    CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
    CMBauteil stab = fluegel.SprossenVorlage;
    stab.dBreite = 4.0;
    ASSERT_TRUE(fluegel.AddSprosse(stab, a, b, innen));
  }

  void ErwarteStaebe(const std::vector<Strecke>& erwartet) {
    const std::vector<Strecke> bild = Bild(fenster, true);
    EXPECT_EQ(bild.size(), 12u + erwartet.size());
    ErwarteEnthalten(bild, erwartet);
  }

  CMFenster fenster;
  GEOM2_Polygon innen;
};

TEST_F(Stabwerk, TheEarlierOfTwoCrossingBarsRunsThrough) {
  Lege({0.0, 40.0}, {100.0, 40.0});
  Lege({50.0, 0.0}, {50.0, 80.0});
  ErwarteStaebe({{{13.3, 38.0}, {86.7, 38.0}},
                 {{13.3, 42.0}, {86.7, 42.0}},
                 {{48.0, 13.3}, {48.0, 38.0}},
                 {{52.0, 13.3}, {52.0, 38.0}},
                 {{48.0, 42.0}, {48.0, 66.7}},
                 {{52.0, 42.0}, {52.0, 66.7}}});
}

// The sides of the second bar meet y = 38 and 42 at x = 50 + (y - 40) -+ 2 sqrt (2).
TEST_F(Stabwerk, SlantedBarsAreCutExactlyAtTheSidesTheyMeet) {
  Lege({0.0, 40.0}, {100.0, 40.0});
  Lege({35.0, 25.0}, {65.0, 55.0});
  const double d = 2.0 * std::sqrt(2.0);
  const double e = std::sqrt(2.0);
  ErwarteStaebe({{{13.3, 38.0}, {86.7, 38.0}},
                 {{13.3, 42.0}, {86.7, 42.0}},
                 {{35.0 + e, 25.0 - e}, {48.0 + d, 38.0}},
                 {{35.0 - e, 25.0 + e}, {48.0 - d, 38.0}},
                 {{52.0 + d, 42.0}, {65.0 + e, 55.0 - e}},
                 {{52.0 - d, 42.0}, {65.0 - e, 55.0 + e}}});
}

// The ends of the first two bars lie on the sides of the third: although they are
// nearer, the joint is drawn, since they cover only one side of it.
TEST_F(Stabwerk, EdgeAlongTheBorderOfANearerPartStays) {
  Lege({0.0, 40.0}, {48.0, 40.0});
  Lege({52.0, 40.0}, {100.0, 40.0});
  Lege({50.0, 0.0}, {50.0, 80.0});
  ErwarteStaebe({{{13.3, 38.0}, {48.0, 38.0}},
                 {{13.3, 42.0}, {48.0, 42.0}},
                 {{52.0, 38.0}, {86.7, 38.0}},
                 {{52.0, 42.0}, {86.7, 42.0}},
                 {{48.0, 13.3}, {48.0, 66.7}},
                 {{52.0, 13.3}, {52.0, 66.7}}});
}

// The second bar passes under the end of the first, its right side exactly below it.
TEST_F(Stabwerk, EdgeBelowTheEndOfANearerPartStays) {
  Lege({0.0, 40.0}, {48.0, 40.0});
  Lege({46.0, 0.0}, {46.0, 80.0});
  ErwarteStaebe({{{13.3, 38.0}, {48.0, 38.0}},
                 {{13.3, 42.0}, {48.0, 42.0}},
                 {{44.0, 13.3}, {44.0, 38.0}},
                 {{44.0, 42.0}, {44.0, 66.7}},
                 {{48.0, 13.3}, {48.0, 66.7}}});
}

// Bars one above the other: 0.0005 apart they share the line between them, and of
// the longer one's side the rest is drawn; 0.002 apart each has its own.
TEST_F(Stabwerk, EdgesThatCoincideWithinTheToleranceAreDrawnOnce) {
  Lege({20.0, 30.0}, {60.0, 30.0});
  Lege({20.0, 34.0005}, {80.0, 34.0005});
  Lege({20.0, 38.0025}, {80.0, 38.0025});
  ErwarteStaebe({{{20.0, 28.0}, {60.0, 28.0}},
                 {{20.0, 32.0}, {60.0, 32.0}},
                 {{60.0, 32.0005}, {80.0, 32.0005}},
                 {{20.0, 36.0005}, {80.0, 36.0005}},
                 {{20.0, 36.0025}, {80.0, 36.0025}},
                 {{20.0, 40.0025}, {80.0, 40.0025}}});
}

// Slats of 6 behind gaps of 1 in a clear height of 20: two whole ones at 1 to 7 and
// 8 to 14, and one of 6 at 15 to 21, whose top the sash's frame covers.
TEST(Ansicht, SashFrameCoversSlatsThatReachUnderIt) {
  CMFenster fenster = Raster(1, 1, 100.0, 20.0 + 2 * 13.3);
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  fluegel.Fuellung.SetLamellen(6.0, 1.0);
  fluegel.Fuellung.D1 = 1.0;
  ASSERT_TRUE(fenster.Berechne(false));
  const std::vector<Strecke> bild = Bild(fenster, false);
  EXPECT_EQ(bild.size(), 12u + 5u);
  for (const double y : {1.0, 7.0, 8.0, 14.0, 15.0}) {
    EXPECT_TRUE(Enthaelt(bild, {{13.3, 13.3 + y}, {86.7, 13.3 + y}})) << y;
  }
}

// A pane set straight into the frame has its contour in common with it.
TEST(Ansicht, CommonEdgeIsDrawnByTheHigherPrioOfTheViewersSide) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  fluegel.bMitRahmen = false;
  fluegel.SetRahmenDefaults(7.8, 6.8, 0.0, 1, 3);
  // Frame: colour 20 at Prio 2 from inside, colour 21 at Prio 5 from outside.
  fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 2, 20, 5, 21);
  fluegel.Fuellung.I1 = 30;
  fluegel.Fuellung.I2 = 31;
  fluegel.Fuellung.I3 = 3;
  fluegel.Fuellung.I4 = 5;
  ASSERT_TRUE(fenster.Berechne(false));
  const auto farbeInnen = [&](bool vonAussen, int& prio) {
    std::vector<CMStrecke> lines;
    EXPECT_TRUE(fenster.GetHiddenLineBild(lines, vonAussen));
    EXPECT_EQ(lines.size(), 8u);
    for (const CMStrecke& line : lines) {
      XY a;
      XY b;
      line.GetPunkte(a, b);
      if (a.x < 6.9 || b.x < 6.9 || a.x > 93.1 || a.y < 6.9 || a.y > 73.1) continue;
      prio = line.GetPrio();
      return line.GetFarbe();
    }
    return -1;
  };
  int prio = -1;
  EXPECT_EQ(farbeInnen(false, prio), 30);
  EXPECT_EQ(prio, 3);
  EXPECT_EQ(farbeInnen(true, prio), 21);  // at equal Prio the filling gives way
  EXPECT_EQ(prio, 5);
}

std::vector<Strecke> Gespiegelt(std::vector<Strecke> strecken, double breite) {
  for (Strecke& s : strecken) {
    s.a.x = breite - s.a.x;
    s.b.x = breite - s.b.x;
  }
  return strecken;
}

TEST(Ansicht, MirroredWindowGivesTheMirroredPicture) {
  for (const bool vonAussen : {false, true}) {
    ErwarteBild(Bild(Beispiel("halbbogen_rechts.aqz"), vonAussen),
                Gespiegelt(Bild(Beispiel("halbbogen_links.aqz"), vonAussen), 100.0));
  }
  // Three sashes side by side, the second overlapping the first, mullions at will:
  // the list's order is the same in both windows.
  const auto build = [](const double(&breiten)[3], const int(&orte)[3]) {
    CMFenster fenster = Raster(0, 0, 0.0, 0.0);
    for (const double b : breiten) fenster.GetAchsen().AddVerti(b);
    fenster.GetAchsen().AddHori(80.0);
    for (const int j : orte) {
      fenster.AddFluegel(eFormRechteck, 0, CMKnoten(j, 0), CMKnoten(j + 1, 1))
          ->SetRahmenDefaults(7.8, 6.8, 1.5, 1, 3);
    }
    return fenster;
  };
  for (const bool pfosten : {false, true}) {
    CMFenster links = build({40.0, 55.0, 60.0}, {1, 0, 2});
    CMFenster rechts = build({60.0, 55.0, 40.0}, {1, 2, 0});
    ASSERT_TRUE(links.Berechne(pfosten));
    ASSERT_TRUE(rechts.Berechne(pfosten));
    for (const bool vonAussen : {false, true}) {
      ErwarteBild(Bild(rechts, vonAussen), Gespiegelt(Bild(links, vonAussen), 155.0));
    }
  }
}

// n x n sashes between mullions of 6 that run through and cross. Outside: frame,
// glass edges, the mullions, of which one family is cut n - 1 times. Inside: the outer
// frame, the sashes, and what shows in the gaps of 3 between them.
TEST(Ansicht, LinesGrowWithTheSashes) {
  for (const std::size_t n : {1u, 2u, 5u, 20u}) {
    CMFenster fenster = Raster(static_cast<int>(n), static_cast<int>(n), 60.0, 50.0);
    ASSERT_TRUE(fenster.Berechne(true));
    EXPECT_EQ(Bild(fenster, true).size(), 8 + 4 * n * n + 2 * (n - 1) + 2 * (n - 1) * n);
    EXPECT_EQ(Bild(fenster, false).size(), 4 + 8 * n * n + 4 * (n - 1) + 2 * (n - 1) * (n - 1));
  }
}

// --- odd and hostile windows --------------------------------------------------------

TEST(Ansicht, NothingBeforeTheCalculation) {
  std::vector<CMStrecke> lines(3);
  EXPECT_FALSE(CMFenster().GetHiddenLineBild(lines, false));
  EXPECT_TRUE(lines.empty());
  EXPECT_FALSE(Raster(2, 2, 50.0, 50.0).GetHiddenLineBild(lines, true));
}

TEST(Ansicht, PartsThatAreNoDrawingAreLeftOut) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double wert : {nan, 1e308, -1e12, std::numeric_limits<double>::infinity()}) {
    CMBauteil stab = fluegel.SprossenVorlage;
    stab.Achse(0).dLaenge = 50.0;
    stab.Achse(0).Start = {wert, 40.0};
    fluegel.Sprossen.push_back(stab);
    stab.Achse(0) = {};
    stab.Achse(0).dLaenge = wert;
    fluegel.Sprossen.push_back(stab);
    fluegel.dZVersatz = wert;
    EXPECT_EQ(Bild(fenster, true).size(), 12u);
    EXPECT_EQ(Bild(fenster, false).size(), 12u);
  }
}

// Crossing bars cost lines with the square of their number; a picture has a bound.
TEST(Ansicht, NoPictureOfMoreThanAMillionLines) {
  CMFenster fenster = Raster(1, 1, 10000.0, 10000.0);
  ASSERT_TRUE(fenster.Berechne(false));
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  CMBauteil stab = fluegel.SprossenVorlage;
  stab.lTyp = eSprosse;
  stab.dBreite = 1.0;
  stab.Achse(0).dLaenge = 8000.0;
  const auto legen = [&](int anzahl) {
    fluegel.Sprossen.clear();
    for (int i = 0; i < anzahl; ++i) {
      stab.Achse(0).Start = {100.0, 110.0 + 10.0 * i};
      stab.Achse(0).dWinkel = 0.0;
      fluegel.Sprossen.push_back(stab);
    }
    for (int i = 0; i < anzahl; ++i) {
      stab.Achse(0).Start = {110.0 + 10.0 * i, 100.0};
      stab.Achse(0).dWinkel = 90.0;
      fluegel.Sprossen.push_back(stab);
    }
  };
  std::vector<CMStrecke> lines;
  legen(100);
  EXPECT_TRUE(fenster.GetHiddenLineBild(lines, true));
  EXPECT_EQ(lines.size(), 12u + 2u * 100u + 2u * 100u * 101u);
  legen(750);
  EXPECT_FALSE(fenster.GetHiddenLineBild(lines, true));
  EXPECT_TRUE(lines.empty());
}

}  // namespace
}  // namespace lintavo::test
