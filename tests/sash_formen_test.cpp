// The outlines of the four shapes: areas, mirror images, limits of the rises.
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMAchsen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/sash/CMFensterSatzBogen.h"
#include "lintavo/sash/CMFensterSatzEllipse.h"
#include "lintavo/sash/CMFensterSatzHalbBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

namespace lintavo::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
// Outlines are cleaned with 0.001; this much of an area of a metre's size may
// go with it.
constexpr double kFlaeche = 1.0;

GEOM2_Polygon Form(CMFensterSatz& satz, const XY& p1, const XY& p2, const XY& p3, const XY& p4) {
  GEOM2_Polygon outline;
  outline.AddPunkt(1.0, 1.0);
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

void ErwarteEcken(const GEOM2_Polygon& polygon, const std::vector<XY>& ecken) {
  ASSERT_EQ(polygon.GetAnzahl(), static_cast<int>(ecken.size()));
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const XY& ecke = ecken[static_cast<std::size_t>(i)];
    EXPECT_NEAR(polygon.GetEckpunkt(i).x, ecke.x, 1e-9) << "vertex " << i;
    EXPECT_NEAR(polygon.GetEckpunkt(i).y, ecke.y, 1e-9) << "vertex " << i;
  }
}

// Highest y of the outline at the given x, from its edges.
double HoeheBei(const GEOM2_Polygon& polygon, double x) {
  double hoehe = -kInf;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    XY a;
    XY b;
    polygon.GetKante(i, a, b);
    if (std::fabs(b.x - a.x) < 1e-9 || x < std::min(a.x, b.x) || x > std::max(a.x, b.x)) continue;
    hoehe = std::max(hoehe, a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x));
  }
  return hoehe;
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

void SetzeBogen(CMFensterSatz& satz, const Bogenfall& fall) {
  satz.dStich = fall.stich;
  satz.dStichUnten = fall.stichUnten;
  satz.bKorbbogen = fall.korbbogen;
}

class JederBogen : public testing::TestWithParam<Bogenfall> {};

}  // namespace

TEST(RechteckForm, CornersAndChamfers) {
  CMFensterSatzRechteck satz;
  const std::vector<XY> einfach = {{10, 20}, {1010, 20}, {1010, 820}, {10, 820}};
  ErwarteEcken(Form(satz, {10, 20}, {1010, 820}), einfach);
  ErwarteEcken(Form(satz, {1010, 20}, {10, 820}), einfach);
  EXPECT_EQ(satz.dBreite, 1000.0);
  EXPECT_EQ(satz.dHoehe, 800.0);

  satz.SetFormBeiwertX(0, 100.0, true);
  ErwarteEcken(Form(satz, {10, 20}, {1010, 820}), {{10, 20}, {1010, 20}, {1010, 820}, {110, 820}});

  // Every cut corner costs the triangle of its two coefficients.
  double dreiecke = 0.0;
  for (long i = 0; i < 4; ++i) {
    const double x = 100.0 + 10.0 * static_cast<double>(i);
    const double y = 70.0 + 20.0 * static_cast<double>(i);
    satz.SetFormBeiwertX(i, x, true);
    satz.SetFormBeiwertY(i, y, true);
    dreiecke += x * y / 2.0;
    const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 800});
    EXPECT_EQ(outline.GetAnzahl(), 5 + static_cast<int>(i));
    EXPECT_NEAR(outline.GetFlaeche(), 800000.0 - dreiecke, 1e-6);
    EXPECT_TRUE(outline.IsGegenUhrzeigersinn());
  }
}

TEST(RechteckForm, MovableCoefficientsFollowTheExtent) {
  CMAchsen achsen;
  achsen.AddHori(0.0);
  achsen.AddHori(500.0);
  achsen.AddVerti(0.0);
  achsen.AddVerti(400.0);
  achsen.AddVerti(800.0);
  CMFensterSatzRechteck satz;
  satz.Knoten1.Set(2, 0);
  satz.Knoten2.Set(0, 1);
  satz.SetFormBeiwertX(0, 100.0, false);
  satz.SetFormBeiwertX(1, 100.0, true);
  satz.SetFormBeiwertY(0, 100.0, false);
  // 1200 wide now, 800 before: two intervals grew by 200 each.
  satz.FormBeiwerteAnpassen(true, achsen, 0, 2, -200.0);
  EXPECT_NEAR(satz.FormBeiwertX[0].dWert, 100.0 * 1200.0 / 1600.0, 1e-9);
  EXPECT_EQ(satz.FormBeiwertX[1].dWert, 100.0);
  EXPECT_EQ(satz.FormBeiwertY[0].dWert, 100.0);
  satz.FormBeiwerteAnpassen(false, achsen, 0, 1, 500.0);
  EXPECT_EQ(satz.FormBeiwertY[0].dWert, 100.0) << "no extent before";
  satz.Knoten2.Set(2, 0);
  satz.FormBeiwerteAnpassen(true, achsen, 0, 2, 10.0);
  EXPECT_NEAR(satz.FormBeiwertX[0].dWert, 75.0, 1e-9) << "spans no interval";
}

TEST(EllipseForm, VerticesAreaAndReferencePoints) {
  CMFensterSatzEllipse satz;
  const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 600}, {-1, 0}, {1001, 0});
  EXPECT_EQ(outline.GetAnzahl(), 32);
  EXPECT_NEAR(outline.GetEckpunkt(0).x, 1000.0, 1e-9);
  EXPECT_NEAR(outline.GetEckpunkt(8).y, 600.0, 1e-9);
  EXPECT_NEAR(outline.GetFlaeche(), 500.0 * 300.0 * 16.0 * std::sin(kPi / 16.0), 1e-6);
  EXPECT_EQ(Fehler(satz, {0, 0}, {1000, 600}, {1, 0}, {1000, 0}), 46);
  EXPECT_EQ(Fehler(satz, {0, 0}, {1000, 600}, {0, 0}, {999, 0}), 47);
}

TEST(BogenForm, AreaAndHeights) {
  CMFensterSatzBogen satz;
  satz.dStich = 500.0;
  GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 1200});
  // A rectangle to the springing line, and 24 triangles of 7.5 degrees.
  EXPECT_NEAR(outline.GetFlaeche(),
              1000.0 * 700.0 + 24 * 0.5 * 500.0 * 500.0 * std::sin(kPi / 24.0), kFlaeche);
  EXPECT_NEAR(HoeheBei(outline, 500.0), 1200.0, 1e-6);

  // A segment with rise 100 over 600: radius 500, so 400 to the centre.
  satz.dStich = 100.0;
  outline = Form(satz, {0, 0}, {600, 1000});
  EXPECT_NEAR(HoeheBei(outline, 300.0), 1000.0, 1e-6);
  EXPECT_NEAR(HoeheBei(outline, 0.5), 900.0, 0.5);
  const double oeffnung = 2.0 * std::asin(0.6);
  EXPECT_NEAR(outline.GetFlaeche(),
              600.0 * 900.0 + 24 * 0.5 * 500.0 * 500.0 * std::sin(oeffnung / 24.0) - 300.0 * 400.0,
              kFlaeche);

  satz.bKorbbogen = true;
  outline = Form(satz, {0, 0}, {600, 1000});
  EXPECT_NEAR(outline.GetFlaeche(), 600.0 * 900.0 + 24 * 0.5 * 300.0 * 100.0 * std::sin(kPi / 24.0),
              kFlaeche);
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

  // A basket arch keeps what was given at the top, not at the bottom.
  satz.bKorbbogen = true;
  satz.dStich = satz.dStichUnten = 900.0;
  const GEOM2_Polygon outline = Form(satz, {0, 0}, {1000, 3000});
  EXPECT_EQ(satz.dStich, 900.0);
  EXPECT_EQ(satz.dStichUnten, 500.0);
  EXPECT_NEAR(HoeheBei(outline, 1.0), 2500.0, 40.0);

  CMFensterSatzHalbBogen halb;
  halb.bKorbbogen = true;
  halb.dStich = 900.0;
  Form(halb, {0, 0}, {500, 3000});
  EXPECT_EQ(halb.dStich, 500.0) << "a half arch keeps the bounded rise";
}

TEST(BogenForm, ReferencePointsLieOutside) {
  CMFensterSatzBogen satz;
  satz.dStich = 100.0;
  EXPECT_EQ(Fehler(satz, {0, 0}, {1000, 600}, {1, 0}, {1000, 0}), 46);
  EXPECT_EQ(Fehler(satz, {0, 0}, {1000, 600}, {0, 0}, {999, 0}), 47);
  EXPECT_EQ(Fehler(satz, {0, 0}, {1000, 600}, {1000, 0}, {0, 0}), 0) << "in either order";
  CMFensterSatzHalbBogen halb;
  EXPECT_EQ(Fehler(halb, {0, 0}, {1000, 600}, {500, 0}, {500, 0}), 0) << "not looked at";
}

TEST_P(JederBogen, PiecesAddUpToTheWhole) {
  CMFensterSatzBogen ganz;
  SetzeBogen(ganz, GetParam());
  const GEOM2_Polygon voll = Form(ganz, {0, 0}, {3000, 3000});
  // Cuts between vertices, through the crown (a vertex), and a narrow middle.
  for (const std::vector<double>& schnitte :
       {std::vector<double>{0, 1000, 2000, 3000}, {0, 1500, 3000}, {0, 137, 1499, 1501, 3000}}) {
    double summe = 0.0;
    for (std::size_t i = 0; i + 1 < schnitte.size(); ++i) {
      CMFensterSatzBogen stueck;
      SetzeBogen(stueck, GetParam());
      const double links = schnitte[i];
      const double rechts = schnitte[i + 1];
      const GEOM2_Polygon outline = Form(stueck, {rechts, 3000}, {links, 0}, {0, 0}, {3000, 0});
      XY min;
      XY max;
      outline.GetMinMax(min, max);
      EXPECT_NEAR(min.x, links, 0.001);
      EXPECT_NEAR(max.x, rechts, 0.001);
      EXPECT_TRUE(outline.IsGegenUhrzeigersinn());
      EXPECT_NEAR(HoeheBei(outline, (links + rechts) / 2), HoeheBei(voll, (links + rechts) / 2),
                  0.01);
      summe += outline.GetFlaeche();
    }
    EXPECT_NEAR(summe, voll.GetFlaeche(), 10.0);
  }
}

TEST_P(JederBogen, HalvesAreMirrorImages) {
  CMFensterSatzBogen ganz;
  CMFensterSatzHalbBogen links;
  CMFensterSatzHalbBogen rechts;
  for (CMFensterSatz* satz : std::initializer_list<CMFensterSatz*>{&ganz, &links, &rechts}) {
    SetzeBogen(*satz, GetParam());
  }
  rechts.bGespiegelt = true;
  const GEOM2_Polygon voll = Form(ganz, {-1500, 0}, {1500, 3000});
  const GEOM2_Polygon a = Form(links, {-1500, 0}, {0, 3000});
  const GEOM2_Polygon b = Form(rechts, {0, 0}, {1500, 3000});
  EXPECT_EQ(a.GetAnzahl(), b.GetAnzahl());
  EXPECT_NEAR(a.GetFlaeche() + b.GetFlaeche(), voll.GetFlaeche(), 1.0);
  for (double x = 10.0; x < 1500.0; x += 61.0) {
    EXPECT_NEAR(HoeheBei(a, -x), HoeheBei(b, x), 1e-6);
    EXPECT_NEAR(HoeheBei(a, -x), HoeheBei(voll, x), 0.01);
  }
}

TEST_P(JederBogen, CalculatingTwiceChangesNothing) {
  CMFensterSatzBogen satz;
  SetzeBogen(satz, GetParam());
  satz.dStich *= 10.0;
  const GEOM2_Polygon erst = Form(satz, {100, 0}, {900, 3000}, {0, 0}, {1200, 0});
  const GEOM2_Polygon dann = Form(satz, {100, 0}, {900, 3000}, {0, 0}, {1200, 0});
  ASSERT_EQ(erst.GetAnzahl(), dann.GetAnzahl());
  for (int i = 0; i < erst.GetAnzahl(); ++i) {
    EXPECT_EQ(erst.GetEckpunkt(i).x, dann.GetEckpunkt(i).x);
    EXPECT_EQ(erst.GetEckpunkt(i).y, dann.GetEckpunkt(i).y);
  }
}

INSTANTIATE_TEST_SUITE_P(Faelle, JederBogen, testing::ValuesIn(kBogenfaelle),
                         [](const auto& fall) { return std::string(fall.param.name); });

TEST(HalbBogenForm, QuarterCircle) {
  CMFensterSatzHalbBogen satz;
  satz.dStich = 500.0;
  const GEOM2_Polygon outline = Form(satz, {0, 0}, {500, 500});
  EXPECT_NEAR(outline.GetFlaeche(), 12 * 0.5 * 500.0 * 500.0 * std::sin(kPi / 24.0), kFlaeche);
  EXPECT_NEAR(HoeheBei(outline, 499.9), 500.0, 0.1);
  satz.bGespiegelt = true;
  EXPECT_NEAR(HoeheBei(Form(satz, {0, 0}, {500, 500}), 0.1), 500.0, 0.1);
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
    EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {0, 0}, {100, 0}), 0);
    EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {-50, 0}, {100, 0}), 0);
    EXPECT_EQ(Fehler(halb, {0, 0}, {100, 100}, {0, 0}, {100, 0}), 0);
  }
  bogen.dStich = 50.0;
  EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {-kInf, 0}, {100, 0}), 22);
  EXPECT_EQ(Fehler(bogen, {0, 0}, {100, 100}, {0, 0}, {kInf, 0}), 22);
  rechteck.SetFormBeiwertX(0, kNaN, true);
  EXPECT_EQ(Fehler(rechteck, {0, 0}, {100, 100}, {0, 0}, {100, 0}), 22);
}

TEST(Formen, AssignmentThroughTheBase) {
  CMFensterSatzBogen quelle;
  quelle.dStich = 12.0;
  quelle.EinzelTeile.resize(3);
  CMFensterSatzRechteck ziel;
  CMFensterSatz& basis = ziel;
  basis = quelle;
  EXPECT_EQ(ziel.dStich, 12.0);
  EXPECT_EQ(ziel.lForm, eFormBogen);
  EXPECT_EQ(ziel.EinzelTeile.size(), 3U);
  CMFensterSatzBogen zweiter;
  zweiter = quelle;
  EXPECT_EQ(zweiter.dStich, 12.0);
}

TEST(Stichanpassung, DimensionSetsTheRiseOnce) {
  CMFenster fenster;
  for (const double d : {0.0, 1000.0}) {
    fenster.GetAchsen().AddVerti(d);
    fenster.GetAchsen().AddHori(d);
  }
  fenster.GetAchsen().AddVerti(1000.0);
  const auto bogen = [&](int j) {
    auto* satz = fenster.AddFluegel(eFormBogen, 0, {j, 0}, {j + 1, 1}, {0, 0}, {2, 0});
    satz->dStich = 200.0;
    GEOM2_Polygon outline;
    XY p1, p2, p3, p4;
    satz->GetPlazierungsPunkte(fenster.GetAchsen(), p1, p2, p3, p4);
    satz->BerechneGrundform(p1, p2, p3, p4, outline);
    return satz;
  };
  CMFensterSatz* links = bogen(0);
  CMFensterSatz* rechts = bogen(1);
  // From the corner at (0,0) up to the springing line at 800, asked to be 700.
  CMZusatzMasz masz;
  CMKnoten fusz;
  CMKnoten ende;
  fusz.SetEckpu(0, 0, 0.0, 0.0);
  ende.SetEckpu(0, 0, 0.0, 800.0);
  masz.SetVertikal(fusz, ende);
  masz.strName = "Kaempfer";
  masz.dLaenge = 700.0;
  fenster.AddZusatzMasz(masz);

  EXPECT_TRUE(links->bStichAnpassen(fenster));
  EXPECT_NEAR(links->dStich, 300.0, 1e-9);
  EXPECT_NEAR(rechts->dStich, 300.0, 1e-9) << "the other piece of the arch follows";
  EXPECT_NEAR(fenster.GetZusatzMaszPtr(0)->kKnoten2.Y(), 700.0, 1e-9);
  EXPECT_FALSE(rechts->bStichAnpassen(fenster));
  EXPECT_FALSE(links->bStichAnpassen(fenster)) << "a second time nothing is to do";
  EXPECT_NEAR(links->dStich, 300.0, 1e-9);

  for (const double laenge : {1000.5, -500.0, 1e308}) {
    fenster.GetZusatzMaszPtr(0)->dLaenge = laenge;
    try {
      links->bStichAnpassen(fenster);
      ADD_FAILURE() << "length " << laenge;
    } catch (const CMException& e) {
      EXPECT_EQ(e.iNummer, 49);
      EXPECT_GE(e.strText.Find("Kaempfer"), 0);
    }
    EXPECT_NEAR(links->dStich, 300.0, 1e-9);
  }
}

TEST(Stichanpassung, OtherDimensionsChangeNothing) {
  CMFenster fenster;
  CMFensterSatzBogen satz;
  satz.dStich = 200.0;
  satz.dBreite = satz.dHoehe = 1000.0;
  EXPECT_FALSE(satz.bStichAnpassen(fenster)) << "a window without axes";
  fenster.GetAchsen().AddVerti(0.0);
  fenster.GetAchsen().AddHori(0.0);
  CMKnoten fusz;
  CMKnoten ende;
  fusz.SetEckpu(0, 0, 0.0, 0.0);
  ende.SetEckpu(0, 0, 0.0, 800.0);
  CMZusatzMasz waagrecht;
  waagrecht.SetHorizontal(fusz, ende);
  CMZusatzMasz zentrisch;
  zentrisch.SetVertikal(fusz, ende, ende);
  CMZusatzMasz aufAchse;
  aufAchse.SetVertikal(CMKnoten(0, 0), ende);
  CMZusatzMasz daneben;
  ende.SetY(801.0);
  daneben.SetVertikal(fusz, ende);
  for (CMZusatzMasz masz : {waagrecht, zentrisch, aufAchse, daneben}) {
    masz.dLaenge = 500.0;
    fenster.AddZusatzMasz(masz);
  }
  EXPECT_FALSE(satz.bStichAnpassen(fenster));
  EXPECT_EQ(satz.dStich, 200.0);
}

}  // namespace lintavo::test
