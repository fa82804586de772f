// Laws of what is seen: in a mirror, from the other side, and inside a sash.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/geom/Geraden.h"

#include "support/Ansicht.h"
#include "support/Beispiele.h"
#include "support/Geometrie.h"
#include "support/Gesetze.h"

namespace lintavo::test {
namespace {

Fensterentwurf OhneNummern(Fensterentwurf entwurf) {
  entwurf.rahmenteile.clear();
  entwurf.aussenteile.clear();
  for (Fluegelentwurf& fluegel : entwurf.fluegel) {
    fluegel.teile.clear();
    fluegel.innenteile.clear();
    fluegel.beschlaege.clear();
    // Of a short edge the vertex in which it starts is dropped from the contour to which
    // slats are cut: in a mirror that is the other one.
    fluegel.fuellung.art = 0;
  }
  return entwurf;
}

GEOM2_Polygon Gespiegelt(const GEOM2_Polygon& polygon, double breite) {
  GEOM2_Polygon bild = lintavo::test::Gespiegelt(polygon);
  bild.Transformieren(1.0, 0.0, breite, 0.0);
  return bild;
}

std::vector<Strecke> Gespiegelt(std::vector<Strecke> strecken, double breite) {
  for (Strecke& s : strecken) {
    s.a.x = breite - s.a.x;
    s.b.x = breite - s.b.x;
  }
  return strecken;
}

bool LiegtAuf(const XY& p, const std::vector<Strecke>& strecken, double tol) {
  return std::any_of(strecken.begin(), strecken.end(),
                     [&](const Strecke& s) { return IsPunktAufStrecke(p, s.a, s.b, tol); });
}

double Laenge(const std::vector<Strecke>& strecken) {
  double summe = 0.0;
  for (const Strecke& s : strecken) summe += s.Laenge();
  return summe;
}

// The same lines, however they are cut into pieces.
void ErwarteGleicheStrecken(const std::vector<Strecke>& erwartet, const std::vector<Strecke>& ist,
                            const char* was) {
  constexpr double kTol = 2e-3;
  EXPECT_NEAR(Laenge(erwartet), Laenge(ist), kTol * (1.0 + static_cast<double>(ist.size()))) << was;
  for (const auto* von : {&erwartet, &ist}) {
    const std::vector<Strecke>& nach = von == &ist ? erwartet : ist;
    for (const Strecke& s : *von) {
      for (const double u : {0.0, 0.27, 0.73, 1.0}) {
        const XY p = s.Punkt(u * s.Laenge());
        EXPECT_TRUE(LiegtAuf(p, nach, kTol))
            << was << (von == &ist ? " has" : " misses") << " a line at " << p.x << ", " << p.y;
      }
    }
  }
}

// Two are left out: the diagonal of fixed glazing always rises to the right, and the zigzag
// of a folding sash is turned, not mirrored.
std::vector<Strecke> Symbole(const CMFenster& fenster) {
  std::vector<CMStrecke> linien;
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    if (fluegel.lGangart == eGangartFest || fluegel.lGangart == eGangartFalt) continue;
    fluegel.GetOeffSymbol(linien);
  }
  return Strecken(linien);
}

void ErwarteSpiegelbild(const CMFensterSatz& satz, const CMFensterSatz& bild, double breite,
                        const std::string& was) {
  EXPECT_TRUE(GleicherRing(Gespiegelt(satz.RahmenPolygon, breite), bild.RahmenPolygon, 1e-6))
      << was;
  for (const bool mitTeilen : {false, true}) {
    GEOM2_Polygon innen;
    GEOM2_Polygon innenBild;
    EXPECT_TRUE(satz.ErzeugeRahmenInnenPolygon(mitTeilen, innen));
    EXPECT_TRUE(bild.ErzeugeRahmenInnenPolygon(mitTeilen, innenBild));
    EXPECT_TRUE(GleicherRing(Gespiegelt(innen, breite), innenBild, 1e-6)) << was;
  }
  ASSERT_EQ(satz.Sprossen.size(), bild.Sprossen.size()) << was;
  for (std::size_t i = 0; i < satz.Sprossen.size(); ++i) {
    XY a, b, aBild, bBild;
    if (!satz.Sprossen[i].IsVorhanden()) continue;
    EXPECT_TRUE(satz.Sprossen[i].GetAchspunkte(a, b) &&
                bild.Sprossen[i].GetAchspunkte(aBild, bBild));
    EXPECT_NEAR(std::hypot(breite - a.x - aBild.x, a.y - aBild.y), 0.0, 1e-6) << was << ' ' << i;
    EXPECT_NEAR(std::hypot(breite - b.x - bBild.x, b.y - bBild.y), 0.0, 1e-6) << was << ' ' << i;
  }
}

// Contours, symbols and the axes of bars of the mirrored window are the mirrored ones.
// Which parts a bent frame falls into depends on where its outline starts; and how the end
// of a bar is cut, where a parallel of it runs along an edge, on the side of that edge.
// Left out are windows whose dimensions move axes, which they count from one side, and
// mullions set by the calculation: of those that cross or end in each other the first one
// found runs through.
TEST(Gesetze, TheMirroredWindowGivesTheMirroredResult) {
  JedesFenster([](const Fensterentwurf& gezogen, CMFenster&) {
    if (gezogen.achsenBewegt || gezogen.pfostenAutomatisch) return;
    const Fensterentwurf entwurf = OhneNummern(gezogen);
    const CMFenster fenster = Berechnet(entwurf);
    const CMFenster bild = Berechnet(lintavo::test::Gespiegelt(entwurf));
    const double breite = Breite(entwurf);
    ErwarteSpiegelbild(*fenster.GetRahmenPtr(), *bild.GetRahmenPtr(), breite, "frame");
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      ErwarteSpiegelbild(*fenster.GetFluegelPtr(i), *bild.GetFluegelPtr(i), breite,
                         "sash " + std::to_string(i));
    }
    ErwarteGleicheStrecken(Gespiegelt(Symbole(fenster), breite), Symbole(bild), "symbols");
  });
}

// --- pictures ----------------------------------------------------------------------

// Sashes that open to the other side, seen from there, look the same.
TEST(Gesetze, OpenedToTheOtherSideTheSidesChangePlaces) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    Fensterentwurf gewendet = entwurf;
    for (Fluegelentwurf& fluegel : gewendet.fluegel) fluegel.nachAussen = !fluegel.nachAussen;
    const CMFenster anders = Berechnet(gewendet);
    for (const bool vonAussen : {false, true}) {
      ErwarteGleicheStrecken(Bild(fenster, vonAussen), Bild(anders, !vonAussen),
                             vonAussen ? "outside" : "inside");
    }
  });
}

// Edges that a window may show: of all its parts, slats included, and of its panes.
std::vector<Strecke> Kanten(const CMFenster& fenster) {
  std::vector<GEOM2_Polygon> umrisse = Umrisse(fenster);
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    GEOM2_Polygon verglast;
    std::vector<CMBauteil> lamellen;
    EXPECT_TRUE(fluegel.GetFuellung(0, verglast, lamellen));
    EXPECT_TRUE(fluegel.ErzeugeRahmenInnenPolygon(true, verglast));
    umrisse.push_back(verglast);
    for (std::size_t n = 0; n < lamellen.size(); ++n) {
      EXPECT_TRUE(fluegel.GetLamellenUmriss(static_cast<long>(n), umrisse.emplace_back()));
    }
  }
  std::vector<Strecke> kanten;
  for (const GEOM2_Polygon& umriss : umrisse) {
    for (int n = 0; n < umriss.GetAnzahl(); ++n) {
      Strecke& kante = kanten.emplace_back();
      umriss.GetKante(n, kante.a, kante.b);
    }
  }
  return kanten;
}

TEST(Gesetze, EveryLineOfAPictureLiesOnAnEdge) {
  JedesFenster([](const Fensterentwurf&, CMFenster& fenster) {
    const std::vector<Strecke> kanten = Kanten(fenster);
    for (const bool vonAussen : {false, true}) {
      for (const Strecke& s : Bild(fenster, vonAussen)) {
        const XY mitte = s.Punkt(0.5 * s.Laenge());
        EXPECT_TRUE(LiegtAuf(mitte, kanten, 2e-3)) << "at " << mitte.x << ", " << mitte.y;
      }
    }
  });
}

// --- inside a sash -----------------------------------------------------------------

void ErwarteKette(const std::vector<CMStrecke>& masze, double von, double bis, bool hori) {
  double ende = von;
  for (const CMStrecke& masz : masze) {
    XY a;
    XY b;
    masz.GetPunkte(a, b);
    EXPECT_NEAR(hori ? a.x : a.y, ende, 1e-9);
    ende = hori ? b.x : b.y;
  }
  EXPECT_NEAR(ende, bis, 1e-9);
}

// Bars end inside the inner contour, and the glass dimensions are a chain across its box.
TEST(Gesetze, BarsAndGlassDimensionsKeepToTheContour) {
  JedesFenster([](const Fensterentwurf&, CMFenster& fenster) {
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
      GEOM2_Polygon innen;
      EXPECT_TRUE(fluegel.ErzeugeRahmenInnenPolygon(true, innen));
      for (const CMBauteil& sprosse : fluegel.Sprossen) {
        XY a;
        XY b;
        if (!sprosse.IsVorhanden()) continue;
        sprosse.GetAchspunkte(a, b);
        EXPECT_TRUE(innen.IsInside(a, true, 1e-5) && innen.IsInside(b, true, 1e-5)) << "sash " << i;
      }
      XY low;
      XY high;
      innen.GetMinMax(low, high);
      std::vector<CMStrecke> hori;
      std::vector<CMStrecke> vert;
      EXPECT_TRUE(fluegel.GetMaszeGlaslichteHori(hori) && fluegel.GetMaszeGlaslichteVert(vert));
      ErwarteKette(hori, low.x, high.x, true);
      ErwarteKette(vert, low.y, high.y, false);
    }
  });
}

}  // namespace
}  // namespace lintavo::test
