// Laws of sameness: calculated again, read again, fitted there and back, shifted, enlarged.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"

#include "support/Beispiele.h"
#include "support/Geometrie.h"
#include "support/Gesetze.h"
#include "support/Wuerfel.h"

namespace lintavo::test {
namespace {

// Everything that a host sees of a window, piece by piece.
struct Bestand {
  std::vector<GEOM2_Polygon> umrisse;
  std::vector<GEOM2_Polygon> konturen;  // of frame and sashes, outside and inside
};

Bestand BestandVon(const CMFenster& fenster, bool mitSprossen = true) {
  Bestand bestand;
  bestand.umrisse = Umrisse(fenster, mitSprossen);
  const auto add = [&](const CMFensterSatz& satz) {
    bestand.konturen.push_back(satz.RahmenPolygon);
    EXPECT_TRUE(satz.ErzeugeRahmenInnenPolygon(true, bestand.konturen.emplace_back()));
  };
  add(*fenster.GetRahmenPtr());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) add(*fenster.GetFluegelPtr(i));
  for (const auto* polygone : {&bestand.umrisse, &bestand.konturen}) {
    for (const GEOM2_Polygon& polygon : *polygone)
      EXPECT_TRUE(std::isfinite(polygon.GetFlaeche())) << Text(polygon);
  }
  return bestand;
}

void ErwarteGleich(const std::vector<GEOM2_Polygon>& erwartet,
                   const std::vector<GEOM2_Polygon>& ist, double tol, const char* was) {
  ASSERT_EQ(erwartet.size(), ist.size()) << was;
  for (std::size_t n = 0; n < ist.size(); ++n) {
    EXPECT_TRUE(GleichePunkte(ist[n], erwartet[n], tol))
        << was << ' ' << n << "\n  expected " << Text(erwartet[n]) << "\n  is       "
        << Text(ist[n]);
  }
}

void ErwarteGleich(const Bestand& erwartet, const Bestand& ist, double tol) {
  ErwarteGleich(erwartet.umrisse, ist.umrisse, tol, "outline");
  ErwarteGleich(erwartet.konturen, ist.konturen, tol, "contour");
}

TEST(Gesetze, CalculatingAgainChangesNothing) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    const Bestand vorher = BestandVon(fenster);
    const std::vector<std::string> zeilen = Zeilen(fenster);
    Berechne(fenster, entwurf.pfostenAutomatisch);
    EXPECT_EQ(Zeilen(fenster), zeilen);
    // To the last bit.
    ErwarteGleich(vorher, BestandVon(fenster), 0.0);
  });
}

// Whatever lies on what: members are piled up, cross, nest and have no length; and others
// are set by themselves along what they leave.
TEST(Gesetze, MembersInAnyPileRestAfterOneCalculation) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    Wuerfel wuerfel(entwurf.seed);
    const auto knoten = [&] {
      return CMKnoten{wuerfel.Zahl(0, static_cast<int>(entwurf.spalten.size())),
                      wuerfel.Zahl(0, static_cast<int>(entwurf.zeilen.size()))};
    };
    for (int i = wuerfel.Zahl(1, 12); i > 0; --i) {
      CMBauteil vorlage;
      vorlage.dBreite = wuerfel.Laenge(0.5, 15.0);
      const CMKnoten von = knoten();
      const CMKnoten bis = wuerfel.Mit(70) ? CMKnoten(knoten().J(), von.K()) : knoten();
      fenster.AddRahmenEinzelBauteil(von, bis, vorlage);
    }
    const bool automatisch = wuerfel.Mit(50);
    // Sashes may be left no room; that too is to be the same again.
    const bool gut = fenster.Berechne(automatisch);
    const std::vector<GEOM2_Polygon> vorher = Umrisse(fenster);
    EXPECT_EQ(fenster.Berechne(automatisch), gut);
    ErwarteGleich(vorher, Umrisse(fenster), 0.0, "outline");
  });
}

CMFenster Gelesen(const std::vector<std::string>& zeilen) {
  CIniFile document;
  for (const std::string& zeile : zeilen) document.AddLine(zeile);
  CMFenster fenster;
  EXPECT_TRUE(fenster.ReadFromBuffer(document));
  Berechne(fenster);
  return fenster;
}

// Files have six decimals, of angles too: what is read from them may differ by that much.
constexpr double kDateirundung = 2e-5;

// A frame part without a side is not stored, and with it go those behind it in the list.
bool HatTeilOhneSeite(const CMFenster& fenster) {
  const auto hat = [](const CMFensterSatz& satz) {
    return std::any_of(satz.RahmenTeile.begin(), satz.RahmenTeile.end(),
                       [](const CMBauteil& teil) { return !teil.IsVorhanden(); });
  };
  bool gefunden = hat(*fenster.GetRahmenPtr());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    gefunden = gefunden || hat(*fenster.GetFluegelPtr(i));
  }
  return gefunden;
}

TEST(Gesetze, ReadWriteReadIsTheSameBytes) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    if (HatTeilOhneSeite(fenster)) return;
    const std::vector<std::string> zeilen = Zeilen(fenster);
    const CMFenster wieder = Gelesen(zeilen);
    EXPECT_EQ(Zeilen(wieder), zeilen);
    // In a file mullions stand before extra parts, so that those set last come out in
    // another order; and it has but their nodes, which are not where slanted edges end.
    const bool andere = !entwurf.aussenteile.empty() || !entwurf.nurRechtecke;
    if (entwurf.pfostenAutomatisch && andere) return;
    // A dimension that runs backwards has moved the first axis, and a file begins at 0.
    XY beginn;
    fenster.GetAchsen().GetPunkt(0, 0, beginn);
    if (beginn.x != 0.0 || beginn.y != 0.0) return;
    const double tol = kDateirundung * std::max(1.0, entwurf.maszstab);
    ErwarteGleich(BestandVon(fenster), BestandVon(wieder), tol);
  });
}

// Start, end and both cuts of an outer extra part whose ends may be left as placed.
CMBauteil Aussenteil(Fensterentwurf entwurf, std::size_t i, bool anfang, bool ende) {
  if (!anfang) entwurf.aussenteile[i].anfang = 0;
  if (!ende) entwurf.aussenteile[i].ende = 0;
  const CMFenster fenster = Berechnet(entwurf);
  for (const CMBauteil& teil : fenster.GetRahmenPtr()->EinzelTeile) {
    if (teil.IsZusatzteilAussen() && i-- == 0) return teil;
  }
  return {};
}

// An end that would come to lie behind the other is not fitted: the part stays as placed.
TEST(Gesetze, FittingOneEndOfAnOuterPartLeavesTheOther) {
  JedesFenster(
      [](const Fensterentwurf& entwurf, CMFenster&) {
        for (std::size_t i = 0; i < entwurf.aussenteile.size(); ++i) {
          const CMBauteil ganz = Aussenteil(entwurf, i, true, true);
          const CMBauteil gelegt = Aussenteil(entwurf, i, false, false);
          if (!gelegt.IsVorhanden()) continue;
          const auto erwarte = [&](const CMBauteil& anfang, const CMBauteil& ende,
                                   const CMBauteil& ist) {
            XY p[6];
            anfang.GetAchspunkte(p[0], p[4]);
            ende.GetAchspunkte(p[5], p[1]);
            ist.GetAchspunkte(p[2], p[3]);
            EXPECT_LT(std::hypot(p[2].x - p[0].x, p[2].y - p[0].y), 1e-9) << "start of " << i;
            EXPECT_LT(std::hypot(p[3].x - p[1].x, p[3].y - p[1].y), 1e-9) << "end of " << i;
            EXPECT_NEAR(ist.Achse(0).dWinkelAnfang, anfang.Achse(0).dWinkelAnfang, 1e-6);
            EXPECT_NEAR(ist.Achse(0).dWinkelEnde, ende.Achse(0).dWinkelEnde, 1e-6);
          };
          XY p[4];
          gelegt.GetAchspunkte(p[0], p[1]);
          ganz.GetAchspunkte(p[2], p[3]);
          const auto liegtVor = [&](const XY& von, const XY& bis) {
            return (bis.x - von.x) * (p[1].x - p[0].x) + (bis.y - von.y) * (p[1].y - p[0].y) > 0.0;
          };
          erwarte(liegtVor(p[2], p[1]) ? ganz : gelegt, gelegt,
                  Aussenteil(entwurf, i, true, false));
          erwarte(gelegt, liegtVor(p[0], p[3]) ? ganz : gelegt,
                  Aussenteil(entwurf, i, false, true));
        }
      },
      100);
}

// Files round the angles of bars, which at the far end of a long one is more than the
// roundings of lengths.
TEST(Gesetze, BarsAtAnyAngleKeepTheirCutsInAFile) {
  JedesFenster(
      [](const Fensterentwurf& entwurf, CMFenster&) {
        if (entwurf.maszstab != 1.0) return;
        Wuerfel wuerfel(entwurf.seed);
        // Of three decimals, as all lengths, so that files keep the window itself exactly.
        const double faktor = std::round(std::pow(10.0, wuerfel.Laenge(1.0, 5.0))) / 1000.0;
        CMFenster fenster = Gelesen(Vergroeszert(entwurf, faktor));
        Berechne(fenster);
        for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
          CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
          GEOM2_Polygon kontur;
          if (!fluegel.ErzeugeRahmenInnenPolygon(true, kontur)) continue;
          XY low;
          XY high;
          kontur.GetMinMax(low, high);
          const auto punkt = [&](double y) {
            return XY{low.x + (high.x - low.x) * wuerfel.Laenge(-0.2, 1.2), y};
          };
          CMBauteil vorlage;
          vorlage.dBreite = 2.0 * faktor;
          const XY oben = punkt(high.y + faktor);
          fluegel.AddSprosse(vorlage, oben, punkt(low.y - faktor), kontur);
        }
        Berechne(fenster);
        const std::vector<std::string> zeilen = Zeilen(fenster);
        const CMFenster wieder = Gelesen(zeilen);
        EXPECT_EQ(Zeilen(wieder), zeilen);
        for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
          const std::vector<CMBauteil>& vorher = fenster.GetFluegelPtr(i)->Sprossen;
          const std::vector<CMBauteil>& nachher = wieder.GetFluegelPtr(i)->Sprossen;
          for (std::size_t n = 0; n < vorher.size() && n < nachher.size(); ++n) {
            const GEOM2_Achse& a = vorher[n].Achse(0);
            const GEOM2_Achse& b = nachher[n].Achse(0);
            if (a.dLaenge < faktor) continue;
            EXPECT_NEAR(a.dWinkelAnfang, b.dWinkelAnfang, 0.01) << "bar " << n << " of sash " << i;
            EXPECT_NEAR(a.dWinkelEnde, b.dWinkelEnde, 0.01) << "bar " << n << " of sash " << i;
          }
        }
      },
      100);
}

// Bent parts are whole, whichever sash is the first of the list.
TEST(Gesetze, TheOrderOfTheSashesDoesNotCutAnArch) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    Fensterentwurf anders = entwurf;
    std::rotate(anders.fluegel.begin(), anders.fluegel.begin() + 1, anders.fluegel.end());
    CMFenster gedreht = Gelesen(anders);
    Berechne(gedreht, entwurf.pfostenAutomatisch);
    EXPECT_EQ(gedreht.GetRahmenPtr()->lGetAnzahlRahmenBauteile(),
              fenster.GetRahmenPtr()->lGetAnzahlRahmenBauteile());
  });
}

// Growing and shrinking to the size before. Bars are left out: they keep their
// coordinates and are only ever shortened.
TEST(Gesetze, FittingThereAndBackTenTimesIsTheIdentity) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    // Movable axes would be pushed past others, or as far too far as the window is away
    // from the origin.
    if (entwurf.maszeHemmen || entwurf.beginntSpaeter) return;
    // Laid anew, mullions run between their nodes, and slanted edges end beside those.
    if (entwurf.pfostenAutomatisch && !entwurf.nurRechtecke) return;
    double breite = 0.0;
    double hoehe = 0.0;
    ASSERT_TRUE(Gesamtmasze(fenster, breite, hoehe));
    const Bestand vorher = BestandVon(fenster, false);
    Wuerfel wuerfel(entwurf.seed);
    // A corner that a dimension holds at its height may not be left too far behind.
    const double mehr = entwurf.eckenBewegt ? 2.0 * entwurf.maszstab : 0.3 * hoehe;
    CString fehler;
    for (int i = 0; i < 10; ++i) {
      const double breiter = breite + 0.3 * breite * wuerfel.Laenge(0.0, 1.0);
      const double hoeher = hoehe + mehr * wuerfel.Laenge(0.0, 1.0);
      EXPECT_TRUE(Einpassen(fenster, breiter, hoeher)) << (fenster.GetFehler(fehler), fehler);
      ASSERT_TRUE(Einpassen(fenster, breite, hoehe)) << (fenster.GetFehler(fehler), fehler);
    }
    ErwarteGleich(vorher, BestandVon(fenster, false), 5e-6);
  });
}

// --- the same elsewhere ------------------------------------------------------------

std::vector<GEOM2_Polygon> Verschoben(std::vector<GEOM2_Polygon> polygone, double dx, double dy) {
  for (GEOM2_Polygon& polygon : polygone) polygon.Transformieren(1.0, 0.0, dx, dy);
  return polygone;
}

// Every corner of one lies on the border of the other. (Where the inner side of a bent
// part comes to nothing, a joint may come out once or twice.)
bool GleicheForm(const GEOM2_Polygon& a, const GEOM2_Polygon& b, double tol) {
  const auto liegtAuf = [tol](const GEOM2_Polygon& p, const GEOM2_Polygon& q) {
    for (int i = 0; i < p.GetAnzahl(); ++i) {
      if (!q.IsAufRand({p.GetEckpunkt(i).x, p.GetEckpunkt(i).y}, tol)) return false;
    }
    return true;
  };
  return liegtAuf(a, b) && liegtAuf(b, a);
}

void ErwarteGleicheFormen(const std::vector<GEOM2_Polygon>& erwartet,
                          const std::vector<GEOM2_Polygon>& ist, double tol, const char* was) {
  ASSERT_EQ(erwartet.size(), ist.size()) << was;
  for (std::size_t n = 0; n < ist.size(); ++n) {
    EXPECT_TRUE(GleicheForm(ist[n], erwartet[n], tol))
        << was << ' ' << n << "\n  expected " << Text(erwartet[n]) << "\n  is       "
        << Text(ist[n]);
  }
}

// The grid begins elsewhere, and with it everything. Left out: windows whose dimensions
// move axes between others, because these shifts reckon with a grid that begins at 0, and
// a fitted rise, whose nodes are counted from the grid as well.
TEST(Gesetze, AShiftedGridShiftsEverything) {
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    if (entwurf.achsenBewegt || entwurf.stichBewegt) return;
    constexpr double kDx = 128.0;
    constexpr double kDy = -64.0;
    CMFenster verschoben = Gelesen(entwurf);
    verschoben.GetAchsen().SetAchsAbstX(0, kDx);
    verschoben.GetAchsen().SetAchsAbstY(0, kDy);
    for (long i = 0; i < verschoben.GetAnzahlFluegel(); ++i) {
      for (CMBauteil& sprosse : verschoben.GetFluegelPtr(i)->Sprossen)
        sprosse.Verschieben(kDx, kDy);
    }
    for (long i = 0; i < verschoben.GetAnzahlZusatzMasze(); ++i) {
      CMZusatzMasz& masz = *verschoben.GetZusatzMaszPtr(i);
      if (masz.kKnoten1.IsAufAchse() && !masz.kKnoten2.IsAufAchse()) {
        masz.kKnoten2.XPlus(kDx);
        masz.kKnoten2.YPlus(kDy);
      }
    }
    Berechne(verschoben, entwurf.pfostenAutomatisch);
    const Bestand erwartet = BestandVon(fenster);
    const Bestand ist = BestandVon(verschoben);
    ErwarteGleicheFormen(Verschoben(erwartet.umrisse, kDx, kDy), ist.umrisse, 1e-6, "outline");
    ErwarteGleicheFormen(Verschoben(erwartet.konturen, kDx, kDy), ist.konturen, 1e-6, "contour");
  });
}

// Ten times as large in everything, as in millimetres. Tolerances do not grow: an outline
// may have an almost superfluous vertex, or a side of up to 0.1 at a corner, that the other
// has not. The longest side of a bent part is a sixth of the larger one as it is; of the
// smaller one it would be 100, so that it merges longer sides that turn by little.
TEST(Gesetze, ALargerWindowIsTheSameLarger) {
  constexpr double kFaktor = 10.0;
  constexpr double kBereinigung = 0.1 * kFaktor;
  JedesFenster([](const Fensterentwurf& entwurf, CMFenster& fenster) {
    if (entwurf.maszstab != 1.0) return;
    XY low;
    XY high;
    fenster.GetRahmenPtr()->RahmenPolygon.GetMinMax(low, high);
    const double abschnitt = std::max(high.x - low.x, high.y - low.y) / 6.0;
    if (abschnitt * kFaktor < 100.0) return;
    CMFenster klein = Gelesen(entwurf);
    klein.SetRahmenAbschnitt(abschnitt);
    Berechne(klein, entwurf.pfostenAutomatisch);
    CMFenster grosz = Gelesen(Vergroeszert(entwurf, kFaktor));
    Berechne(grosz, entwurf.pfostenAutomatisch);
    EXPECT_NEAR(grosz.GetRahmenAbschnitt(), abschnitt * kFaktor, 1e-6);
    const auto mal = [](std::vector<GEOM2_Polygon> polygone) {
      for (GEOM2_Polygon& p : polygone) p.Transformieren(kFaktor, 0.0, 0.0, 0.0);
      return polygone;
    };
    const Bestand erwartet = BestandVon(klein);
    const Bestand ist = BestandVon(grosz);
    ErwarteGleicheFormen(mal(erwartet.umrisse), ist.umrisse, kBereinigung, "outline");
    ErwarteGleicheFormen(mal(erwartet.konturen), ist.konturen, kBereinigung, "contour");
  });
}

}  // namespace
}  // namespace lintavo::test
