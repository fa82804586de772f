// The parts of every frame tile the ring between its outer and inner contour.
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Fluegel.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

// Relative to the ring's area.
constexpr double kFlaechenfehler = 1e-9;
// Points this close to an edge are on no definite side of it.
constexpr double kRand = 1e-3;

std::vector<GEOM2_Polygon> Teile(const CMFensterSatz& satz) {
  std::vector<GEOM2_Polygon> umrisse;
  for (const CMBauteil& teil : satz.RahmenTeile) {
    if (!teil.IsVorhanden()) continue;
    teil.GetUmrissPunkte(umrisse.emplace_back());
  }
  return umrisse;
}

std::vector<GEOM2_Polygon> Segmente(const CMFensterSatz& satz) {
  std::vector<GEOM2_Polygon> umrisse;
  for (const CMBauteil& teil : satz.RahmenTeile) {
    for (long i = 0; i < teil.lGetAnzAchsen(); ++i) {
      teil.GetUmrissPunkteAchsSegment(i, umrisse.emplace_back());
    }
  }
  return umrisse;
}

bool KeineSeiteVerschwunden(const CMFensterSatz& satz) {
  for (const CMBauteil& teil : satz.RahmenTeile) {
    for (const GEOM2_Achse& achse : teil.Achsen) {
      if (!achse.bLinkeSeite) return false;
    }
  }
  return true;
}

double Flaeche(const std::vector<GEOM2_Polygon>& polygone) {
  double summe = 0.0;
  for (const GEOM2_Polygon& polygon : polygone) summe += polygon.GetFlaeche();
  return summe;
}

// Crossings of a ray to the right. The outline of a part that closes in on
// itself, as around an ellipse, runs twice along one cut; the two passes cancel.
bool IstInnen(const GEOM2_Polygon& polygon, const XY& p) {
  bool innen = false;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    XY a;
    XY b;
    polygon.GetKante(i, a, b);
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) innen = !innen;
  }
  return innen;
}

int WieOftInnen(const std::vector<GEOM2_Polygon>& polygone, const XY& p) {
  int count = 0;
  for (const GEOM2_Polygon& polygon : polygone) count += IstInnen(polygon, p);
  return count;
}

bool NaheAmRand(const std::vector<GEOM2_Polygon>& polygone, const XY& p) {
  for (const GEOM2_Polygon& polygon : polygone) {
    if (polygon.IsAufRand(p, kRand)) return true;
  }
  return false;
}

// Area and point membership: every point of the ring lies in exactly one part,
// every other point in none.
void ErwarteParkett(const CMFensterSatz& satz, const std::string& was) {
  if (!satz.bMitRahmen) return;
  GEOM2_Polygon innen;
  ASSERT_TRUE(satz.ErzeugeRahmenInnenPolygon(false, innen)) << was;
  const GEOM2_Polygon& aussen = satz.RahmenPolygon;
  const double ring = aussen.GetFlaeche() - innen.GetFlaeche();
  const std::vector<GEOM2_Polygon> teile = Teile(satz);
  EXPECT_NEAR(Flaeche(teile), ring, ring * kFlaechenfehler) << was;
  if (KeineSeiteVerschwunden(satz)) {
    EXPECT_NEAR(Flaeche(Segmente(satz)), ring, ring * kFlaechenfehler) << was << ", segments";
  }

  XY low;
  XY high;
  aussen.GetMinMax(low, high);
  constexpr int kPunkteJeSeite = 60;
  for (int i = 0; i <= kPunkteJeSeite; ++i) {
    for (int j = 0; j <= kPunkteJeSeite; ++j) {
      const XY p{low.x + (high.x - low.x) * (i + 0.371) / kPunkteJeSeite,
                 low.y + (high.y - low.y) * (j + 0.613) / kPunkteJeSeite};
      if (NaheAmRand(teile, p) || aussen.IsAufRand(p, kRand) || innen.IsAufRand(p, kRand)) continue;
      const bool inRing = IstInnen(aussen, p) && !IstInnen(innen, p);
      ASSERT_EQ(WieOftInnen(teile, p), inRing ? 1 : 0) << was << " at " << p.x << ", " << p.y;
    }
  }
}

void ErwarteAlleParketts(const CMFenster& fenster, const std::string& was) {
  ErwarteParkett(*fenster.GetRahmenPtr(), was + ", frame");
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    ErwarteParkett(*fenster.GetFluegelPtr(i), was + ", sash " + std::to_string(i));
  }
}

class JedesBeispiel : public testing::TestWithParam<std::string> {};

TEST_P(JedesBeispiel, FramePartsTileTheirRingAtEverySize) {
  CMFenster fenster = Beispiel(GetParam());
  ErwarteAlleParketts(fenster, GetParam());
  XY size;
  fenster.GetSize(size);
  for (const auto& [fx, fy] : {std::pair{1.2, 1.1}, {0.93, 1.15}, {1.05, 0.95}}) {
    if (!Einpassen(fenster, size.x * fx, size.y * fy)) continue;
    ErwarteAlleParketts(fenster, GetParam() + " x " + std::to_string(fx));
  }
}

TEST_P(JedesBeispiel, SashesLieInsideTheFrameOutline) {
  const CMFenster fenster = Beispiel(GetParam());
  const GEOM2_Polygon& umriss = fenster.GetRahmenPtr()->RahmenPolygon;
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const GEOM2_Polygon& fluegel = fenster.GetFluegelPtr(i)->RahmenPolygon;
    for (int n = 0; n < fluegel.GetAnzahl(); ++n) {
      XY p;
      fluegel.GetPunkt(n, p.x, p.y);
      EXPECT_TRUE(umriss.IsInside(p, true, 1e-6)) << GetParam() << " sash " << i << " vertex " << n;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, JedesBeispiel, testing::ValuesIn(BeispielNamen()),
                         BeispielTestName);

// A frame whose parts have different widths at a corner: the mitre runs from
// corner to corner.
TEST(Rahmenteile, UnequalWidthsMeetFromCornerToCorner) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  ASSERT_TRUE(fenster.Berechne(false));
  CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  ASSERT_EQ(rahmen.RahmenTeile.size(), 4u);
  rahmen.RahmenTeile[0].dBreite = 12.0;  // bottom
  rahmen.RahmenTeile[1].dBreite = 4.0;   // right
  ASSERT_TRUE(fenster.Berechne(false));
  ErwarteAlleParketts(fenster, "unequal widths");

  // Bottom right: the inner corner lies 4 in and 12 up, so the bottom part's end
  // leans by -atan (4 / 12), the right part's start by atan (12 / 4).
  const double grad = 180.0 / 3.141592653589793;
  EXPECT_NEAR(rahmen.RahmenTeile[0].Achse(0).dWinkelEnde, -std::atan(4.0 / 12.0) * grad, 1e-9);
  EXPECT_NEAR(rahmen.RahmenTeile[1].Achse(0).dWinkelAnfang, std::atan(12.0 / 4.0) * grad, 1e-9);
}

// A chamfer of 2 by 2 in a frame 10 wide vanishes inside: its part is a
// triangle that ends where its neighbours meet.
TEST(Rahmenteile, AVanishedChamferReachesTheCommonInnerCorner) {
  CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  fenster.GetRahmenPtr()->SetRahmenDefaults(10.0, 6.8, 0.0, 1, 2);
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  fluegel.SetFormBeiwertX(1, 2.0, true);
  fluegel.SetFormBeiwertY(1, 2.0, true);
  ASSERT_TRUE(fenster.Berechne(false));
  const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  ASSERT_EQ(rahmen.RahmenPolygon.GetAnzahl(), 5);
  GEOM2_Polygon innen;
  ASSERT_TRUE(rahmen.ErzeugeRahmenInnenPolygon(innen));
  EXPECT_EQ(innen.GetAnzahl(), 4);
  ErwarteAlleParketts(fenster, "vanished chamfer");

  // The chamfer lies on the line x + y = 178; the inner corner is (90, 70).
  const CMBauteil& fase = rahmen.RahmenTeile[2];
  EXPECT_NEAR(fase.dBreite + fase.dUeberBreite, 18.0 / std::sqrt(2.0), 1e-9);
  GEOM2_Polygon umriss;
  ASSERT_TRUE(fase.GetUmrissPunkteAchsSegment(0, umriss));
  EXPECT_NEAR(umriss.GetEckpunkt(2).x, 90.0, 1e-9);
  EXPECT_NEAR(umriss.GetEckpunkt(2).y, 70.0, 1e-9);
}

// Beside a wide upright part the first segments of a narrow arch vanish inside; the
// arch's cut runs straight to the corner in which what is left of it starts.
TEST(Rahmenteile, AWideNeighbourSwallowsTheFootOfAnArch) {
  for (const double stich : {30.0, 50.0}) {
    CMFenster fenster;
    fenster.GetRahmenPtr()->SetRahmenDefaults(4.0, 6.8, 0.0, 1, 2);
    for (const double x : {0.0, 100.0}) fenster.GetAchsen().AddVerti(x);
    for (const double y : {0.0, 150.0}) fenster.GetAchsen().AddHori(y);
    CMFensterSatz& fluegel = *fenster.AddFluegel(eFormBogen, 0, CMKnoten(0, 0), CMKnoten(1, 1));
    fluegel.dStich = stich;
    fluegel.bKorbbogen = true;
    ASSERT_TRUE(fenster.Berechne(false));
    CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
    ASSERT_EQ(rahmen.RahmenTeile.size(), 4u);
    rahmen.RahmenTeile[1].dBreite = 9.0;  // right
    rahmen.RahmenTeile[3].dBreite = 6.0;  // left
    ASSERT_TRUE(fenster.Berechne(false));
    ErwarteAlleParketts(fenster, "rise " + std::to_string(stich));
    EXPECT_EQ(rahmen.RahmenTeile[2].lSeite, 2) << "the first side of the arch";
    EXPECT_EQ(rahmen.RahmenTeile[3].lSeite, rahmen.RahmenPolygon.GetAnzahl() - 1);
  }
}

// An arch, or a straight top where it has no rise, from the right end to the left one.
void BogenAnhaengen(GEOM2_Polygon& umriss, double rechts, double links, double y, double stich) {
  const double breite = (rechts - links) / 2;
  const int teile = stich > 0.0 ? 24 : 1;
  for (int k = 0; k <= teile; ++k) {
    const double winkel = 3.141592653589793 * k / teile;
    umriss.AddPunkt((rechts + links) / 2 + breite * std::cos(winkel), y + stich * std::sin(winkel));
  }
}

// One to three round, flat or straight tops beside each other at two heights: valleys that
// are needles, steps, and bent runs from one arch into the next.
GEOM2_Polygon Fassade(std::mt19937& zufall) {
  const auto zwischen = [&](int von, int bis) {
    return von + static_cast<double>(zufall() % 1000) * (bis - von) / 1000;
  };
  const int anzahl = 1 + static_cast<int>(zufall() % 3);
  std::vector<double> x{0.0};
  for (int i = 0; i < anzahl; ++i) x.push_back(x.back() + zwischen(70, 120));
  GEOM2_Polygon umriss;
  umriss.AddPunkt(0.0, 0.0);
  umriss.AddPunkt(x.back(), 0.0);
  const double stufe = zufall() % 2 ? zwischen(1, 30) : 0.0;
  for (auto i = static_cast<std::size_t>(anzahl); i > 0; --i) {
    const double voll = (x[i] - x[i - 1]) / 2;
    const double stiche[] = {0.0, voll, voll * zwischen(0, 1), voll};
    BogenAnhaengen(umriss, x[i], x[i - 1], 100.0 + (zufall() % 2 ? stufe : 0.0),
                   stiche[zufall() % 4]);
  }
  umriss.Bereinigen(1e-6);
  return umriss;
}

TEST(Rahmenteile, TileEveryFacadeWhateverTheirWidths) {
  int gekappt = 0;
  for (unsigned saat = 1; saat <= 150; ++saat) {
    SCOPED_TRACE("seed " + std::to_string(saat));
    std::mt19937 zufall(saat);
    GEOM2_Polygon umriss = Fassade(zufall);
    if (saat % 10 == 0) {
      umriss = Vieleck(32, 42.0);
      for (int i = 0; i < 32; ++i)
        umriss.SetPunkt(i, umriss.GetEckpunkt(i).x * 1.3, umriss.GetEckpunkt(i).y);
    }
    CMFensterSatzRechteck fluegel = Fluegel(umriss, 7.0);
    for (CMBauteil& teil : fluegel.RahmenTeile) {
      teil.dBreite = saat % 3 == 0 ? 7.0 : 1.0 + static_cast<double>(zufall() % 130) / 10;
    }
    ASSERT_TRUE(fluegel.ErzeugeRahmenBauteile());
    ErwarteParkett(fluegel, Text(umriss));
    for (const CMBauteil& teil : fluegel.RahmenTeile) {
      for (const GEOM2_Achse& achse : teil.Achsen) gekappt += achse.dTiefeEnde > 0.0 ? 1 : 0;
    }
  }
  EXPECT_GT(gekappt, 30);
}

// Below the valley of two round arches the inside ends a frame's width below it, and the
// mullion stands below that, from a frame's width above the bottom.
TEST(Rahmenteile, AMullionStandsBelowTheValleyOfTwoArches) {
  for (const double breite : {4.0, 5.5, 7.0}) {
    CMFenster fenster;
    for (const double x : {0.0, 80.0, 80.0}) fenster.GetAchsen().AddVerti(x);
    for (const double y : {0.0, 150.0}) fenster.GetAchsen().AddHori(y);
    CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
    rahmen.SetRahmenDefaults(breite, 6.8, 0.0, 1, 2);
    for (int i = 0; i < 2; ++i) {
      CMFensterSatz& fluegel =
          *fenster.AddFluegel(eFormBogen, 0, CMKnoten(i, 0), CMKnoten(i + 1, 1));
      fluegel.dStich = 40.0;
    }
    CMBauteil vorlage;
    vorlage.dBreite = 8.0;
    fenster.AddRahmenEinzelBauteil(CMKnoten(1, 0), CMKnoten(1, 1), vorlage);
    ASSERT_TRUE(fenster.Berechne(false));
    ErwarteAlleParketts(fenster, "width " + std::to_string(breite));
    GEOM2_Polygon pfosten;
    ASSERT_TRUE(rahmen.GetEinzelBauteilPtr(0)->GetUmrissPunkte(pfosten));
    EXPECT_TRUE(GleicherRing(Rechteck(76, breite, 84, 110 - breite), pfosten, 1e-6));
    // Its sashes stand upright beside it.
    for (long i = 0; i < 2; ++i) {
      const GEOM2_Polygon& fluegel = fenster.GetFluegelPtr(i)->RahmenPolygon;
      EXPECT_TRUE(fluegel.IsAufRand({i == 0 ? 76.0 : 84.0, breite + 1}, 1e-6));
    }
  }
}

TEST(Rahmenteile, NumberingMergesBentRunsButNeverVerticalSides) {
  GEOM2_Polygon polygon;
  polygon.AddPunkt(0.0, 0.0);
  polygon.AddPunkt(100.0, 0.0);
  polygon.AddPunkt(100.0, 50.0);  // vertical, shorter than the limit
  polygon.AddPunkt(95.0, 80.0);   // a run that turns by less than 25 degrees
  polygon.AddPunkt(84.0, 100.0);
  polygon.AddPunkt(0.0, 100.0);
  CMFensterSatz satz;
  EXPECT_EQ(satz.RahmenSegmenteZusammenfassen(60.0, 25.0, polygon), 5);
  const int expected[] = {0, 1, 2, 2, 3, 4};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(polygon.GetAttribut(i), expected[i]) << i;
  GEOM2_Polygon empty;
  EXPECT_EQ(satz.RahmenSegmenteZusammenfassen(60.0, 25.0, empty), -1);
}

TEST(Aussenteile, StayAtTheirSideWhereTheContourGoesOnBeyondAGap) {
  // Three rows, the middle one half as wide; below the gap there is more room to the right.
  CMFenster fenster = Raster(2, 3, 50.0, 50.0);
  fenster.GetAchsen().SetAchsAbstY(3, 30.0);
  fenster.DeleteFluegel(3);
  ASSERT_TRUE(fenster.Berechne(false));
  CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  CMBauteil unten;
  unten.dBreite = 20.0;
  CMBauteil oben;
  oben.dBreite = 10.0;
  oben.cAbschnittsTypAnfang = oben.cAbschnittsTypEnde = 4;
  ASSERT_NE(rahmen.AddZusatzteil(1, unten, true), nullptr);
  ASSERT_NE(rahmen.AddZusatzteil(5, oben, true), nullptr);
  ASSERT_TRUE(fenster.Berechne(false));
  GEOM2_Polygon umriss;
  ASSERT_TRUE(rahmen.GetEinzelBauteilPtr(1)->GetUmrissPunkte(umriss));
  EXPECT_TRUE(GleicherRing(Rechteck(100.0, 100.0, 110.0, 130.0), umriss, 1e-9));
}

TEST(Aussenteile, AreFittedAtTheCornersThatTheContourKeeps) {
  // A short riser between a flat top and a slope; the part on the slope swallows it.
  CMFenster fenster;
  for (const double x : {0.0, 50.0, 50.0}) fenster.GetAchsen().AddVerti(x);
  for (const double y : {0.0, 100.0, 30.0}) fenster.GetAchsen().AddHori(y);
  ASSERT_NE(fenster.AddFluegel(eFormRechteck, 0, CMKnoten(0, 0), CMKnoten(1, 1)), nullptr);
  fenster.AddFluegel(eFormRechteck, 0, CMKnoten(1, 0), CMKnoten(2, 2))
      ->SetFormBeiwertY(0, 35.0, true);
  ASSERT_TRUE(fenster.Berechne(false));
  CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  ASSERT_TRUE(
      GleicherRing(Poly("(0,0) (100,0) (100,130) (50,95) (50,100) (0,100)"), rahmen.RahmenPolygon));
  CMBauteil schraeg;
  schraeg.dBreite = 10.0;
  CMBauteil rechts;
  rechts.dBreite = 5.0;
  rechts.cAbschnittsTypAnfang = rechts.cAbschnittsTypEnde = 2;
  ASSERT_NE(rahmen.AddZusatzteil(2, schraeg, true), nullptr);
  ASSERT_NE(rahmen.AddZusatzteil(1, rechts, true), nullptr);
  ASSERT_TRUE(fenster.Berechne(false));
  GEOM2_Polygon aussen;
  ASSERT_TRUE(rahmen.ErzeugeRahmenAussenPolygon(aussen));
  ASSERT_EQ(aussen.GetAnzahl(), 5);
  GEOM2_Polygon umriss;
  ASSERT_TRUE(rahmen.GetEinzelBauteilPtr(1)->GetUmrissPunkte(umriss));
  // Up to the slope, 10 beyond the frame's.
  GEOM2_Polygon erwartet = Poly("(100,0) (105,0) (105,0) (100,130)");
  erwartet.SetPunkt(2, 105.0, 133.5 + 10.0 * std::hypot(1.0, 0.7));
  EXPECT_TRUE(GleicherRing(erwartet, umriss, 1e-6));
}

TEST(Rahmenteile, IndexPastTheEndGivesTheTemplate) {
  CMFensterSatz satz;
  EXPECT_EQ(satz.GetRahmenBauteilPtr(0), &satz.RahmenVorlage);
  EXPECT_EQ(satz.GetRahmenBauteilPtr(-1), nullptr);
  satz.bMitRahmen = false;
  EXPECT_EQ(satz.GetRahmenBauteilPtr(0), nullptr);
  satz.RahmenTeile.resize(3);
  EXPECT_TRUE(satz.ErzeugeRahmenBauteile());
  EXPECT_TRUE(satz.RahmenTeile.empty());
}

}  // namespace
}  // namespace lintavo::test
