// Laws of what is seen: from the other side, of every edge, and inside a sash.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "support/Ansicht.h"
#include "support/Beispiele.h"
#include "support/Gesetze.h"

namespace lintavo::test {
namespace {

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

// Bars at any angle may leave stubs of any length.
TEST(Gesetze, EveryPictureShowsWhatIsSeen) {
  JedesFenster([](const Fensterentwurf&, CMFenster& fenster) { ErwarteBildRichtig(fenster, 0.0); },
               100);
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
