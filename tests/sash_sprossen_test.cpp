// Glazing bars: patterns, single bars, and their cut to the inner contour.
#include <cmath>
#include <cstdio>

#include <gtest/gtest.h>

#include "lintavo/model/CMException.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

#include "support/Geometrie.h"
#include "support/Saetze.h"

namespace lintavo::test {
namespace {

// A sash 1000 by 800 with a frame of 50: the inner contour is 900 by 700 and
// starts at (50, 50).
CMFensterSatzRechteck Fluegel() {
  CMFensterSatzRechteck satz;
  satz.strName = "Links";
  satz.RahmenVorlage.dBreite = 50.0;
  EXPECT_TRUE(BaueRahmen(satz, {0, 0}, {1000, 800}));
  return satz;
}

void ErwarteAchse(const CMBauteil& bauteil, const XY& start, double winkel, double laenge) {
  EXPECT_TRUE(bauteil.IsSprosse());
  ASSERT_EQ(bauteil.lGetAnzAchsen(), 1);
  EXPECT_NEAR(bauteil.Achse(0).Start.x, start.x, 1e-6);
  EXPECT_NEAR(bauteil.Achse(0).Start.y, start.y, 1e-6);
  EXPECT_NEAR(bauteil.Achse(0).dWinkel, winkel, 1e-9);
  EXPECT_NEAR(bauteil.Achse(0).dLaenge, laenge, 1e-6);
}

}  // namespace

TEST(Sprossenbild, StandsOnTheBottomEdgeUnlessStretched) {
  CMFensterSatzRechteck satz = Fluegel();
  CIniFile pattern =
      Dokument({"[Allgemeines]", "Bereich=50", "Breite=2", "A1=0,-10,0,1000", "A2=-1000,10,1000,10",
                "A4=0,0,1,1", "D1=10,20,90,30", "D2=0,-100,0,50"});
  ASSERT_TRUE(satz.ErzeugeSprossenBild(7, pattern));
  ASSERT_EQ(satz.Sprossen.size(), 3U) << "number 3 is missing, and one bar lies outside";
  ErwarteAchse(satz.Sprossen[0], {500, 50}, 90, 700);
  ErwarteAchse(satz.Sprossen[1], {50, 70}, 0, 900);
  ErwarteAchse(satz.Sprossen[2], {520, 90}, 90, 60);
  for (const CMBauteil& sprosse : satz.Sprossen) {
    EXPECT_EQ(sprosse.dBreite, 4.0);
    EXPECT_EQ(sprosse.dDicke, 2.0) << "a default is not scaled";
    EXPECT_EQ(sprosse.lSprossenBild, 7);
  }
}

TEST(Sprossenbild, StretchedOverTheContourAndHalfABar) {
  CMFensterSatzRechteck satz = Fluegel();
  CIniFile pattern = Dokument({"[Allgemeines]", "Skalieren=1", "Bereich=100", "Breite=4",
                               "Dicke=1.5", "A1=50,0,50,100", "A2=0,100,100,100", "D1=10,50,0,50"});
  ASSERT_TRUE(satz.ErzeugeSprossenBild(1, pattern));
  ASSERT_EQ(satz.Sprossen.size(), 2U) << "the bar on the upper range lies beyond the contour";
  ErwarteAchse(satz.Sprossen[0], {500, 50}, 90, 700);
  ErwarteAchse(satz.Sprossen[1], {48 + 90.4, 400}, 0, 50);
  EXPECT_EQ(satz.Sprossen[0].dDicke, 1.5);
}

TEST(Sprossenbild, NoRangeNoContour) {
  CMFensterSatzRechteck satz = Fluegel();
  for (const char* bereich : {"Bereich=0", "Bereich=-5", "Bereich=nan", "Bereich=", "Breit=1"}) {
    CIniFile pattern = Dokument({"[Allgemeines]", bereich, "A1=0,0,0,100"});
    EXPECT_FALSE(satz.ErzeugeSprossenBild(1, pattern)) << bereich;
  }
  EXPECT_TRUE(satz.Sprossen.empty());

  CMFensterSatzRechteck leer;
  leer.strName = "Oben";
  CMFensterSatzRechteck eng = Fluegel();
  eng.strName = "Oben";
  for (CMBauteil& teil : eng.RahmenTeile) teil.dBreite = 600.0;
  for (CMFensterSatz* ohne : {&leer, &eng}) {
    CIniFile pattern = Dokument({"[Allgemeines]", "Bereich=100"});
    try {
      ohne->ErzeugeSprossenBild(1, pattern);
      ADD_FAILURE();
    } catch (const CMException& e) {
      EXPECT_EQ(e.iNummer, 53);
      EXPECT_GE(e.strText.Find("'Oben'"), 0);
    }
  }
}

TEST(Sprossenbild, HostilePatternsStayBounded) {
  CIniFile pattern = Dokument({"[Allgemeines]", "Bereich=100"});
  for (int i = 1; i <= 1100; ++i) {
    char line[64];
    std::snprintf(line, sizeof line, "A%d=-10,%d,10,%d", i, i % 500, i % 500);
    pattern.AddLine(line);
    std::snprintf(line, sizeof line, "D%d=0,%d,0,10", i, i % 500);
    pattern.AddLine(line);
  }
  CMFensterSatzRechteck satz = Fluegel();
  ASSERT_TRUE(satz.ErzeugeSprossenBild(1, pattern));
  EXPECT_LE(satz.Sprossen.size(), 2U * 999U);
  EXPECT_GE(satz.Sprossen.size(), 2U * 990U);

  CMFensterSatzRechteck ruhig = Fluegel();
  CIniFile boese =
      Dokument({"[Allgemeines]", "Bereich=1e-300", "Breite=nan", "Dicke=1e308", "Bereich=100",
                "A1=nan,0,1,1", "A2=1e308,-1e308,inf,0", "A3=0,0,0,0", "D1=0,10,nan,50",
                "D2=0,10,0,nan", "D3=0,10,0,inf", "D4=0,10,0,-50", "D5=0,10,1e300,0"});
  EXPECT_FALSE(ruhig.ErzeugeSprossenBild(1, boese)) << "the first range counts";
  CIniFile zahlen = Dokument({"[Allgemeines]", "Bereich=100", "A1=nan,0,1,1",
                              "A2=1e308,-1e308,inf,0", "A3=0,0,0,0", "D1=0,10,nan,50",
                              "D2=0,10,0,nan", "D3=0,10,0,inf", "D4=0,10,0,-50", "D5=0,10,0,0"});
  EXPECT_TRUE(ruhig.ErzeugeSprossenBild(1, zahlen));
  EXPECT_TRUE(ruhig.Sprossen.empty());
}

TEST(Sprosse, AddedAlongTwoPoints) {
  CMFensterSatzRechteck satz = Fluegel();
  GEOM2_Polygon contour = Rechteck(0, 0, 100, 100);
  contour.SetOrientierung(false);
  CMBauteil vorlage;
  vorlage.dBreite = 5.0;
  EXPECT_EQ(satz.AddSprosse(vorlage, {10, 10}, {10, 10}, contour), nullptr);
  EXPECT_EQ(satz.AddSprosse(vorlage, {200, 10}, {300, 10}, contour), nullptr);
  CMBauteil* sprosse = satz.AddSprosse(vorlage, {150, 40}, {-50, 40}, contour);
  ASSERT_NE(sprosse, nullptr);
  EXPECT_EQ(sprosse, &satz.Sprossen.back());
  ErwarteAchse(*sprosse, {100, 40}, 180, 100);
  EXPECT_EQ(sprosse->dBreite, 5.0);
  // A bar of the list may be the template of the next.
  for (int i = 0; i < 50; ++i) {
    ASSERT_NE(satz.AddSprosse(satz.Sprossen[0], {0, 50}, {100, 50}, contour), nullptr);
  }
  EXPECT_EQ(satz.lGetAnzahlSprossenBauteile(), 51);
}

TEST(Sprosse, CutToTheContourForGood) {
  CMFensterSatzRechteck satz;
  satz.RahmenVorlage.dBreite = 50.0;
  satz.SetFormBeiwertX(1, 400.0, true);
  satz.SetFormBeiwertY(1, 300.0, true);
  ASSERT_TRUE(BaueRahmen(satz, {0, 0}, {1000, 800}));
  const GEOM2_Polygon weit = Rechteck(-500, -500, 1500, 1500);
  CMBauteil vorlage;
  vorlage.dBreite = 20.0;
  satz.AddSprosse(vorlage, {-100, 400}, {1200, 400}, weit);
  satz.AddSprosse(vorlage, {-100, 650}, {1200, 650}, weit);
  satz.AddSprosse(vorlage, {750, -100}, {750, 1200}, weit);
  satz.AddSprosse(vorlage, {300, 300}, {400, 310}, weit);
  satz.AddSprosse(vorlage, {-400, 0}, {-400, 300}, weit);
  ASSERT_EQ(satz.Sprossen.size(), 5U);
  const CMBauteil innen = satz.Sprossen[3];
  satz.ClippSprossen();
  ErwarteAchse(satz.Sprossen[0], {50, 400}, 0, 900);
  ErwarteAchse(satz.Sprossen[3], {300, 300}, innen.Achse(0).dWinkel, innen.Achse(0).dLaenge);
  EXPECT_EQ(satz.Sprossen[4].Achse(0).dLaenge, 0.0) << "nothing of it inside";
  EXPECT_EQ(satz.lGetAnzahlSprossenBauteile(), 4);
  // The chamfer falls by 3 in 4: a horizontal bar that ends there is cut with
  // its lower left part reaching further, by atan(4/3) from the perpendicular.
  EXPECT_NEAR(satz.Sprossen[1].Achse(0).dWinkelEnde, -std::atan2(4.0, 3.0) * 180 / 3.14159265358979,
              1e-6);

  const std::vector<CMBauteil> einmal = satz.Sprossen;
  satz.ClippSprossen();
  for (std::size_t i = 0; i < einmal.size(); ++i) {
    const GEOM2_Achse& a = einmal[i].Achse(0);
    const GEOM2_Achse& b = satz.Sprossen[i].Achse(0);
    EXPECT_EQ(a.Start.x, b.Start.x);
    EXPECT_EQ(a.Start.y, b.Start.y);
    EXPECT_EQ(a.dLaenge, b.dLaenge);
    EXPECT_EQ(a.dWinkelAnfang, b.dWinkelAnfang);
    EXPECT_EQ(a.dWinkelEnde, b.dWinkelEnde);
  }
}

}  // namespace lintavo::test
