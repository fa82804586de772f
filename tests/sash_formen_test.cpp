// The outlines of the four shapes: areas, mirror images, limits of the rises.
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMAchsen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/sash/CMFensterSatzBogen.h"
#include "lintavo/sash/CMFensterSatzEllipse.h"
#include "lintavo/sash/CMFensterSatzHalbBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

#include "support/Geometrie.h"
#include "support/Gesetze.h"
#include "support/Wuerfel.h"

namespace lintavo::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
// The clean-up of arches moves edges by up to 0.001.
constexpr double kBereinigt = 0.001;

GEOM2_Polygon Form(CMFensterSatz& satz, const XY& p1, const XY& p2, const XY& p3, const XY& p4) {
  GEOM2_Polygon outline = Rechteck(1, 2, 3, 4);
  EXPECT_TRUE(satz.BerechneGrundform(p1, p2, p3, p4, outline));
  return outline;
}

GEOM2_Polygon Form(CMFensterSatz& satz, const XY& p1, const XY& p2) {
  return Form(satz, p1, p2, p1, p2);
}

int Fehler(CMFensterSatz& satz, const XY& p1, const XY& p2, const XY& p3, const XY& p4) {
  GEOM2_Polygon outline;
  try {
    satz.BerechneGrundform(p1, p2, p3, p4, outline);
  } catch (const CMException& e) {
    return e.iNummer;
  }
  return 0;
}

// What of a convex ring lies between two plumb lines.
GEOM2_Polygon Streifen(const GEOM2_Polygon& ring, double x1, double x2) {
  const auto halb = [](const GEOM2_Polygon& von, double x, int sinn) {
    GEOM2_Polygon rest;
    for (int i = 0; i < von.GetAnzahl(); ++i) {
      XY p, q;
      von.GetKante(i, p, q);
      const double hier = sinn * (p.x - x);
      const double dort = sinn * (q.x - x);
      if (hier >= 0) rest.AddPunkt(p.x, p.y);
      if (hier * dort < 0) rest.AddPunkt(x, p.y + (q.y - p.y) * (hier / (hier - dort)));
    }
    return rest;
  };
  return halb(halb(ring, std::min(x1, x2), 1), std::max(x1, x2), -1);
}

// The same area but for what the clean-up may move.
testing::AssertionResult DeckenSich(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist) {
  const auto liegtAuf = [](const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
    for (int i = 0; i < a.GetAnzahl(); ++i) {
      const GEOM2_Eckpunkt& ecke = a.GetEckpunkt(i);
      if (!b.IsAufRand({ecke.x, ecke.y}, 3 * kBereinigt)) return false;
    }
    return true;
  };
  if (liegtAuf(erwartet, ist) && liegtAuf(ist, erwartet) && IstSchleifenfrei(ist)) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "should be " << Text(erwartet) << "\n  is " << Text(ist);
}

struct Bogenfall {
  const char* name;
  double stich;
  double stichUnten;
  bool korbbogen;
};

const Bogenfall kBogenfaelle[] = {{"Segment", 300, 0, false},      {"Halbkreis", 1500, 0, false},
                                  {"Korb", 700, 0, true},          {"BeideKreise", 400, 350, false},
                                  {"BeideKoerbe", 400, 350, true}, {"NurUnten", 0, 600, false},
                                  {"Flach", 0, 0, false},          {"Volle", 1500, 1500, false}};

class JederBogen : public testing::TestWithParam<Bogenfall> {
 protected:
  template <class Satz>
  Satz Neu() const {
    Satz satz;
    satz.dStich = GetParam().stich;
    satz.dStichUnten = GetParam().stichUnten;
    satz.bKorbbogen = GetParam().korbbogen;
    return satz;
  }
};

}  // namespace

TEST(RechteckForm, CornersAndChamfers) {
  CMFensterSatzRechteck satz;
  EXPECT_TRUE(GleichesPolygon(Rechteck(10, 20, 1010, 820), Form(satz, {1010, 20}, {10, 820})));
  EXPECT_EQ(satz.dBreite, 1000.0);
  EXPECT_EQ(satz.dHoehe, 800.0);
  satz.SetFormBeiwertX(0, 100.0, true);
  EXPECT_TRUE(GleichesPolygon(Poly("(10,20) (1010,20) (1010,820) (110,820)"),
                              Form(satz, {10, 20}, {1010, 820})));

  // Every cut corner costs the triangle of its two coefficients.
  double dreiecke = 0.0;
  for (long i = 0; i < 4; ++i) {
    const double x = 100.0 + 10.0 * static_cast<double>(i);
    satz.SetFormBeiwertX(i, x, true);
    satz.SetFormBeiwertY(i, 2.0 * x, true);
    dreiecke += x * x;
    const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 800});
    EXPECT_EQ(outline.GetAnzahl(), 5 + i);
    EXPECT_NEAR(outline.GetFlaeche(), 800000.0 - dreiecke, 1e-6);
  }
}

TEST(RechteckForm, MovableCoefficientsFollowTheExtent) {
  CMAchsen achsen;
  achsen.AddHori(0.0);
  for (const double d : {0.0, 400.0, 800.0}) achsen.AddVerti(d);
  CMFensterSatzRechteck satz;
  satz.Knoten1.Set(2, 0);
  satz.Knoten2.Set(0, 0);
  satz.SetFormBeiwertX(0, 100.0, false);
  satz.SetFormBeiwertX(1, 100.0, true);
  satz.SetFormBeiwertY(0, 100.0, false);
  // 1200 wide now, 1600 before both intervals lost 200 each.
  satz.FormBeiwerteAnpassen(true, achsen, 0, 2, -200.0);
  satz.FormBeiwerteAnpassen(false, achsen, 0, 1, 10.0);  // spans no interval
  satz.FormBeiwerteAnpassen(true, achsen, 0, 2, 600.0);  // no extent before
  EXPECT_NEAR(satz.FormBeiwertX[0].dWert, 75.0, 1e-9);
  EXPECT_EQ(satz.FormBeiwertX[1].dWert, 100.0);
  EXPECT_EQ(satz.FormBeiwertY[0].dWert, 100.0);
}

TEST(EllipseForm, VerticesOnTheEllipse) {
  CMFensterSatzEllipse satz;
  const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 600}, {-1, 0}, {1001, 0});
  EXPECT_EQ(outline.GetAnzahl(), 32);
  EXPECT_NEAR(outline.GetEckpunkt(8).y, 600.0, 1e-9);
  EXPECT_NEAR(outline.GetFlaeche(), 500.0 * 300.0 * 16.0 * std::sin(kPi / 16.0), 1e-6);
}

TEST(BogenForm, AreaOfSegmentAndBasket) {
  // Rise 100 over 600: radius 500, the centre 400 below the springing line. 24
  // triangles from the centre, without the one below the chord.
  CMFensterSatzBogen satz;
  satz.dStich = 100.0;
  const double oeffnung = 2.0 * std::asin(0.6);
  const double segment = 12 * 500.0 * 500.0 * std::sin(oeffnung / 24.0) - 300.0 * 400.0;
  GEOM2_Polygon outline = Form(satz, {0, 0}, {600, 1000});
  EXPECT_NEAR(outline.GetFlaeche(), 600.0 * 900.0 + segment, kBereinigt);
  EXPECT_TRUE(outline.IsAufRand({300, 1000}, 1e-6));
  EXPECT_TRUE(outline.IsAufRand({600, 900}, 1e-6));

  satz.dStichUnten = 100.0;
  EXPECT_NEAR(Form(satz, {0, 0}, {600, 1000}).GetFlaeche(), 600.0 * 800.0 + 2 * segment,
              kBereinigt);
  satz.bKorbbogen = true;
  EXPECT_NEAR(Form(satz, {0, 0}, {600, 1000}).GetFlaeche(),
              600.0 * 800.0 + 2 * 12 * 300.0 * 100.0 * std::sin(kPi / 24.0), kBereinigt);
}

TEST(BogenForm, RisesAreBounded) {
  CMFensterSatzBogen satz;
  satz.dStich = 900.0;
  Form(satz, {0, 0}, {1000, 2000});
  EXPECT_EQ(satz.dStich, 500.0);
  satz.dStich = satz.dStichUnten = 600.0;
  Form(satz, {0, 0}, {1000, 1000});
  EXPECT_EQ(satz.dStich, 500.0);
  EXPECT_EQ(satz.dStichUnten, 500.0);

  satz.bKorbbogen = true;
  satz.dStich = satz.dStichUnten = 900.0;
  const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 3000});
  EXPECT_TRUE(outline.IsAufRand({0, 2500}, 1e-6)) << "drawn with 500";
  EXPECT_EQ(satz.dStich, 900.0) << "a basket arch keeps what was given at the top";
  EXPECT_EQ(satz.dStichUnten, 500.0);

  CMFensterSatzHalbBogen halb;
  halb.bKorbbogen = true;
  halb.dStich = 900.0;
  Form(halb, {0, 0}, {500, 3000});
  EXPECT_EQ(halb.dStich, 500.0) << "a half arch does not";
}

// Any rises over any sash; as a file would have rounded them, too.
TEST(BogenForm, BuiltAgainItIsTheSame) {
  Wuerfel wuerfel(8);
  const auto pruefe = [&](CMFensterSatz& satz) {
    satz.dStich = wuerfel.Laenge(0.0, 150.0);
    satz.dStichUnten = wuerfel.Laenge(0.0, 150.0);
    satz.bKorbbogen = wuerfel.Mit(50);
    const XY ecke{wuerfel.Laenge(20.0, 300.0) / 3.0, wuerfel.Laenge(20.0, 200.0) / 3.0};
    const GEOM2_Polygon einmal = Form(satz, {0, 0}, ecke);
    for (const bool gerundet : {false, true}) {
      for (double* stich : {&satz.dStich, &satz.dStichUnten}) {
        if (gerundet) *stich = std::round(*stich * 1e6) / 1e6;
      }
      const double oben = satz.dStich;
      const double unten = satz.dStichUnten;
      EXPECT_TRUE(GleichesPolygon(einmal, Form(satz, {0, 0}, ecke), gerundet ? 2e-6 : 0.0));
      EXPECT_EQ(satz.dStich, oben);
      EXPECT_EQ(satz.dStichUnten, unten);
    }
  };
  for (int i = 0; i < 1000; ++i) {
    CMFensterSatzBogen bogen;
    pruefe(bogen);
    CMFensterSatzHalbBogen halb;
    pruefe(halb);
  }
  CMFensterSatzBogen korb;
  korb.bKorbbogen = true;
  korb.dStich = 30.0;
  korb.dStichUnten = 80.0;
  Form(korb, {0, 0}, {200, 100});
  EXPECT_EQ(korb.dStich, 50.0) << "raised to half the height";
  EXPECT_EQ(korb.dStichUnten, 50.0);
}

TEST_P(JederBogen, HalvesAreMirrorImages) {
  auto ganz = Neu<CMFensterSatzBogen>();
  auto links = Neu<CMFensterSatzHalbBogen>();
  auto rechts = Neu<CMFensterSatzHalbBogen>();
  rechts.bGespiegelt = true;
  const GEOM2_Polygon a = Form(links, {-1500, 0}, {0, 3000});
  const GEOM2_Polygon b = Form(rechts, {0, 0}, {1500, 3000});
  EXPECT_TRUE(GleicherRing(Gespiegelt(a), b, 1e-6));
  EXPECT_NEAR(2.0 * a.GetFlaeche(), Form(ganz, {-1500, 0}, {1500, 3000}).GetFlaeche(), kBereinigt);
  // The crown stands over the common edge.
  EXPECT_TRUE(a.IsAufRand({0, 3000}, 1e-6));
}

INSTANTIATE_TEST_SUITE_P(Faelle, JederBogen, testing::ValuesIn(kBogenfaelle),
                         [](const auto& fall) { return std::string(fall.param.name); });

// The outermost points lie on the cuts, and no other within the clean-up's reach of one.
bool StehtLotrecht(const GEOM2_Polygon& ring, double links, double rechts) {
  XY min, max;
  ring.GetMinMax(min, max);
  const auto gehoertHin = [&](const GEOM2_Eckpunkt& ecke) {
    const double abstand = std::min(ecke.x - links, rechts - ecke.x);
    return abstand < kNullLaenge || abstand > kBereinigt;
  };
  return std::fabs(min.x - links) + std::fabs(max.x - rechts) < kNullLaenge &&
         std::all_of(ring.GetEcken().begin(), ring.GetEcken().end(), gehoertHin);
}

// The piece of a sash is what a plain cut leaves of the whole arch, upright at its cuts, and
// in the mirror its image. Cuts lie anywhere, on or beside a vertex, and at the ends, where a
// rise at the bottom may fill the height.
TEST(BogenForm, PieceIsCutFromTheWholeArch) {
  JederWurf([](Wuerfel& wuerfel) {
    const double spanne = wuerfel.RundeLaenge(10, 300);
    const double hoehe = wuerfel.RundeLaenge(10, 300);
    CMFensterSatzBogen ganz;
    const auto stich = [&] { return wuerfel.Mit(30) ? 0.0 : wuerfel.RundeLaenge(0, 400); };
    ganz.dStich = stich();
    ganz.dStichUnten = wuerfel.Mit(20) ? hoehe : stich();
    ganz.bKorbbogen = wuerfel.Mit(50);
    CMFensterSatzBogen bogen;
    CMFensterSatzHalbBogen halb;
    static_cast<CMFensterSatz&>(bogen) = ganz;
    static_cast<CMFensterSatz&>(halb) = ganz;
    const GEOM2_Polygon voll = Form(ganz, {0, 0}, {spanne, hoehe});
    const auto schnitt = [&] {
      if (wuerfel.Mit(30)) return wuerfel.Laenge(0, spanne);
      constexpr double kDaneben[] = {0, 0, 0, 1e-7, 1e-5, 0.0005, 0.00065, 0.00099, 0.0015, 0.002};
      const double daneben = kDaneben[wuerfel.Zahl(0, 9)] * (wuerfel.Mit(50) ? 1 : -1);
      const int ecke = wuerfel.Zahl(0, voll.GetAnzahl() - 1);
      return std::clamp(voll.GetEckpunkt(ecke).x + daneben, 0.0, spanne);
    };
    halb.bGespiegelt = wuerfel.Mit(50);
    const bool haelfte = wuerfel.Mit(25);
    double links = schnitt();
    double rechts = schnitt();
    if (haelfte) links = halb.bGespiegelt ? spanne / 2 : 0;
    if (haelfte) rechts = links + spanne / 2;
    if (links > rechts) std::swap(links, rechts);
    if (rechts - links < 0.5) return;
    const auto stueck = [&](double von, double bis, double anfang) {
      return haelfte ? Form(halb, {von, 0}, {bis, hoehe})
                     : Form(bogen, {von, 0}, {bis, hoehe}, {anfang, 0}, {anfang + spanne, 0});
    };
    const GEOM2_Polygon hier = stueck(links, rechts, 0);
    halb.bGespiegelt = !halb.bGespiegelt;
    const GEOM2_Polygon imSpiegel = stueck(-rechts, -links, -spanne);
    EXPECT_TRUE(DeckenSich(Streifen(voll, links, rechts), hier) &&
                StehtLotrecht(hier, links, rechts) &&
                GleicherRing(Gespiegelt(hier), imSpiegel, kBereinigt))
        << spanne << 'x' << hoehe << " rises " << ganz.dStich << ' ' << ganz.dStichUnten
        << " basket " << ganz.bKorbbogen << " from " << links << " to " << rechts << '\n'
        << Text(hier) << '\n'
        << Text(imSpiegel);
  });
}

TEST(Formen, ReferencePointsLieOutside) {
  CMFensterSatzBogen bogen;
  CMFensterSatzEllipse ellipse;
  for (CMFensterSatz* satz : std::initializer_list<CMFensterSatz*>{&bogen, &ellipse}) {
    EXPECT_EQ(Fehler(*satz, {0, 0}, {1000, 600}, {1, 0}, {1000, 0}), 46);
    EXPECT_EQ(Fehler(*satz, {0, 0}, {1000, 600}, {999, 0}, {0, 0}), 47);
    EXPECT_EQ(Fehler(*satz, {0, 0}, {1000, 600}, {kNaN, 0}, {kNaN, 0}), 46);
  }
  CMFensterSatzHalbBogen halb;
  EXPECT_EQ(Fehler(halb, {0, 0}, {1000, 600}, {500, 0}, {500, 0}), 0) << "not looked at";
}

TEST(Formen, HostileNumbers) {
  CMFensterSatzRechteck rechteck;
  CMFensterSatzBogen bogen;
  CMFensterSatzHalbBogen halb;
  CMFensterSatzEllipse ellipse;
  for (CMFensterSatz* satz :
       std::initializer_list<CMFensterSatz*>{&rechteck, &bogen, &halb, &ellipse}) {
    satz->dBreite = 7.0;
    for (const double x : {0.0, 5e-7, kNaN, kInf, -kInf}) {
      EXPECT_EQ(Fehler(*satz, {0, 0}, {x, 100}, {0, 0}, {x, 0}), 22);
      EXPECT_EQ(Fehler(*satz, {0, 0}, {100, x}, {0, 0}, {100, 0}), 22);
    }
    EXPECT_EQ(satz->dBreite, 7.0) << "no area, no width";
    EXPECT_EQ(Fehler(*satz, {-1.7e308, 0}, {1.7e308, 100}, {-1.7e308, 0}, {1.7e308, 0}), 22);
  }
  for (const double wert : {kNaN, kInf, 1e308, -1e308, -5.0}) {
    bogen.dStich = bogen.dStichUnten = halb.dStich = halb.dStichUnten = wert;
    EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {-50, 0}, {100, 0}), 0);
    EXPECT_EQ(Fehler(halb, {0, 0}, {100, 100}, {0, 0}, {100, 0}), 0);
  }
  EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {-kInf, 0}, {100, 0}), 22);
  rechteck.SetFormBeiwertX(0, kNaN, true);
  EXPECT_EQ(Fehler(rechteck, {0, 0}, {100, 100}, {0, 0}, {100, 0}), 22);
}

TEST(Stichanpassung, DimensionSetsTheRiseOnce) {
  CMFenster fenster;
  EXPECT_FALSE(CMFensterSatzBogen().bStichAnpassen(fenster)) << "a window without axes";
  for (const double d : {0.0, 1000.0, 1000.0}) fenster.GetAchsen().AddVerti(d);
  for (const double d : {0.0, 1000.0}) fenster.GetAchsen().AddHori(d);
  CMFensterSatz* boegen[2];
  for (int j = 0; j < 2; ++j) {
    boegen[j] = fenster.AddFluegel(eFormBogen, 0, {j, 0}, {j + 1, 1}, {0, 0}, {2, 0});
    boegen[j]->dStich = 200.0;
  }
  // From the corner at (0,0) up to the springing line at 800.
  CMKnoten fusz;
  CMKnoten ende;
  fusz.SetEckpu(0, 0, 0.0, 0.0);
  ende.SetEckpu(0, 0, 0.0, 800.0);
  const auto addMasz = [&](double laenge) {
    CMZusatzMasz masz;
    masz.strName = "Kaempfer";
    masz.SetVertikal(fusz, ende);
    masz.dLaenge = laenge;
    return fenster.GetZusatzMaszPtr(fenster.AddZusatzMasz(masz));
  };
  const auto erwarte = [&](double stich) {
    for (const CMFensterSatz* bogen : boegen) EXPECT_NEAR(bogen->dStich, stich, 1e-9);
  };
  addMasz(800.0);
  EXPECT_FALSE(boegen[0]->bStichAnpassen(fenster)) << "it fits already";

  // The first that does not fit counts, for both pieces of the arch; one that
  // asks for another height loses, and goes on losing.
  addMasz(700.0);
  addMasz(650.0);
  EXPECT_TRUE(boegen[0]->bStichAnpassen(fenster));
  erwarte(300.0);
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(1)->kKnoten2.Y(), 700.0, 1e-9);
  for (CMFensterSatz* bogen : boegen) EXPECT_FALSE(bogen->bStichAnpassen(fenster));
  erwarte(300.0);

  for (const double laenge : {1000.5, -500.0, 1e308}) {
    fenster.GetZusatzMaszPtr(1)->dLaenge = laenge;
    try {
      boegen[0]->bStichAnpassen(fenster);
      ADD_FAILURE() << "length " << laenge;
    } catch (const CMException& e) {
      EXPECT_EQ(e.iNummer, 49);
      EXPECT_GE(e.strText.Find("Kaempfer"), 0);
    }
    erwarte(300.0);
  }
}

TEST(Stichanpassung, AnEndOnAnAxisMovesWithTheSpringingLine) {
  CMFenster fenster;
  for (const double d : {0.0, 160.0}) fenster.GetAchsen().AddVerti(d);
  for (const double d : {0.0, 60.0, 80.0}) fenster.GetAchsen().AddHori(d);
  CMFensterSatz* bogen = fenster.AddFluegel(eFormBogen, 0, {0, 0}, {1, 2});
  bogen->dStich = 80.0;
  CMKnoten fusz;
  fusz.SetEckpu(0, 0, 0.0, 0.0);
  CMZusatzMasz masz;
  masz.SetVertikal(fusz, CMKnoten(0, 1));
  masz.dLaenge = 90.0;
  fenster.AddZusatzMasz(masz);
  // The frame's corners stay: the dimension has its length on the arch alone,
  // also after the window was stored and read again.
  for (const bool neuLaden : {false, false, true}) {
    fenster.Invalidiere(neuLaden);
    ASSERT_TRUE(fenster.Berechne(false));
    EXPECT_NEAR(fenster.GetFluegelPtr(0L)->dStich, 50.0, 1e-9);
    XY low;
    XY high;
    fenster.GetRahmenPtr()->RahmenPolygon.GetMinMax(low, high);
    EXPECT_NEAR(low.y, 0.0, 1e-9);
    EXPECT_NEAR(high.y, 140.0, 1e-9);
  }
}

}  // namespace lintavo::test
