// The picture of one sash: which edges are visible, and that each is drawn once.
#include <gtest/gtest.h>

#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Fluegel.h"
#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

std::vector<CMStrecke> Bild(const CMFensterSatz& fluegel, bool mitSymbol = false) {
  std::vector<CMStrecke> lines;
  const bool any = fluegel.GetFluegelBild2D(lines, mitSymbol);
  EXPECT_EQ(any, !lines.empty());
  return lines;
}

const char* const kRahmen =
    "(0,0) (120,0)  (120,0) (120,220)  (120,220) (0,220)  (0,220) (0,0)"
    "(10,10) (110,10)  (110,10) (110,210)  (110,210) (10,210)  (10,210) (10,10)";

TEST(Fluegelbild, FrameIsTwoRingsWithoutMitres) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  EXPECT_TRUE(GleicheLinien(Linien(kRahmen), Bild(fluegel)));
  EXPECT_TRUE(Bild(CMFensterSatz()).empty());
  // The symbol comes on top.
  fluegel.lGangart = eGangartKipp;
  std::vector<CMStrecke> erwartet = Linien(kRahmen);
  fluegel.GetOeffSymbol(erwartet);
  EXPECT_TRUE(GleicheLinien(erwartet, Bild(fluegel, true)));
}

TEST(Fluegelbild, EarlierBarRunsThrough) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  GEOM2_Polygon contour;
  fluegel.ErzeugeRahmenInnenPolygon(contour);
  fluegel.SprossenVorlage.dBreite = 4.0;
  fluegel.AddSprosse(fluegel.SprossenVorlage, {0, 100}, {200, 100}, contour);
  fluegel.AddSprosse(fluegel.SprossenVorlage, {50, 0}, {50, 300}, contour);
  std::vector<CMStrecke> erwartet = Linien(
      "(10,98) (110,98)  (10,102) (110,102)  (48,10) (48,98)  (48,102) (48,210)"
      "(52,10) (52,98)  (52,102) (52,210)");
  for (const CMStrecke& linie : Linien(kRahmen)) erwartet.push_back(linie);
  EXPECT_TRUE(GleicheLinien(erwartet, Bild(fluegel)));
}

TEST(Fluegelbild, BarsCoverSlatsAndSlatsEndAtThePane) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 120), 10.0);
  fluegel.Fuellung.SetLamellen(80.0, 1.0);
  fluegel.Fuellung.D1 = 5.0;
  GEOM2_Polygon contour;
  fluegel.ErzeugeRahmenInnenPolygon(contour);
  fluegel.SprossenVorlage.dBreite = 20.0;
  fluegel.AddSprosse(fluegel.SprossenVorlage, {60, 0}, {60, 120}, contour);
  // One slat from 15 to 95, one of 15 from 100 to 115, of which 10 are inside.
  std::vector<CMStrecke> erwartet = Linien(
      "(0,0) (120,0)  (120,0) (120,120)  (120,120) (0,120)  (0,120) (0,0)"
      "(10,10) (110,10)  (110,10) (110,110)  (110,110) (10,110)  (10,110) (10,10)"
      "(50,10) (50,110)  (70,10) (70,110)"
      "(10,15) (50,15)  (70,15) (110,15)  (10,95) (50,95)  (70,95) (110,95)"
      "(10,100) (50,100)  (70,100) (110,100)");
  EXPECT_TRUE(GleicheLinien(erwartet, Bild(fluegel)));
}

TEST(Fluegelbild, CoincidingEdgesGoToTheHighestPriority) {
  CMFensterSatzRechteck fluegel = Fluegel(Rechteck(0, 0, 120, 220), 10.0);
  for (CMBauteil& teil : fluegel.RahmenTeile) {
    teil.lAttribut[0] = 11;
    teil.lAttribut[2] = 2;
  }
  fluegel.Fuellung.I1 = 22;
  const auto innereFarbe = [&](int prio) {
    fluegel.Fuellung.I3 = prio;
    const std::vector<CMStrecke> lines = Bild(fluegel);
    EXPECT_EQ(lines.size(), 8U);
    int farbe = 0;
    for (const CMStrecke& linie : lines) {
      if (linie.GetLaenge() < 100.5) farbe = linie.GetFarbe();
    }
    return farbe;
  };
  EXPECT_EQ(innereFarbe(1), 11);
  EXPECT_EQ(innereFarbe(2), 11);
  EXPECT_EQ(innereFarbe(3), 22);
}

// Crossings of a ray to the right.
bool IsBedeckt(const XY& p, const GEOM2_Polygon& polygon) {
  if (polygon.IsAufRand(p, 1e-3)) return false;
  bool innen = false;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    XY a, b;
    polygon.GetKante(i, a, b);
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) innen = !innen;
  }
  return innen;
}

class BildJedesBeispiels : public testing::TestWithParam<std::string> {};

TEST_P(BildJedesBeispiels, NoLineIsCoveredOrDrawnTwice) {
  const CMFenster fenster = Beispiel(GetParam());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    std::vector<GEOM2_Polygon> rahmen;
    for (const CMBauteil& teil : fluegel.RahmenTeile) {
      for (long k = 0; k < teil.lGetAnzAchsen(); ++k) {
        teil.GetUmrissPunkteAchsSegment(k, rahmen.emplace_back());
      }
    }
    const std::vector<CMStrecke> lines = Bild(fluegel);
    for (std::size_t k = 0; k < lines.size(); ++k) {
      XY a, b;
      lines[k].GetPunkte(a, b);
      for (const GEOM2_Polygon& segment : rahmen) {
        EXPECT_FALSE(IsBedeckt({(a.x + b.x) / 2, (a.y + b.y) / 2}, segment))
            << Text(std::vector<CMStrecke>{lines[k]}) << " in " << Text(segment);
      }
      for (std::size_t l = 0; l < k; ++l) {
        XY c, d;
        lines[l].GetPunkte(c, d);
        EXPECT_FALSE(SeitenDecken(a, b, c, d)) << Text(std::vector<CMStrecke>{lines[k], lines[l]});
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, BildJedesBeispiels, testing::ValuesIn(BeispielNamen()),
                         [](const auto& fall) {
                           return fall.param.substr(0, fall.param.find('.'));
                         });

}  // namespace
}  // namespace lintavo::test
