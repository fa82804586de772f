// Laws of saving: opened and saved any number of times a window stays, at most moved.
#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"

#include "support/Beispiele.h"
#include "support/Geometrie.h"
#include "support/Gesetze.h"
#include "support/Ordner.h"
#include "support/Wuerfel.h"

namespace lintavo::test {
namespace {

bool Lies(const std::vector<std::string>& zeilen, CMFenster& fenster) {
  CIniFile document;
  for (const std::string& zeile : zeilen) document.AddLine(zeile);
  fenster = CMFenster();
  return fenster.ReadFromBuffer(document) && fenster.Berechne(false);
}

Maszentwurf Masz(bool horizontal, int von, int bis, double laenge) {
  Maszentwurf masz;
  masz.name = "Masz " + std::to_string(von) + "-" + std::to_string(bis);
  masz.horizontal = horizontal;
  masz.laenge = laenge;
  (horizontal ? masz.knoten[0].j : masz.knoten[0].k) = von;
  (horizontal ? masz.knoten[1].j : masz.knoten[1].k) = bis;
  return masz;
}

// Dimensions in a row, from one axis on, of which each moves what lies between its ends;
// some run backwards, some are centred.
void SetzeReihe(bool horizontal, Wuerfel& wuerfel, Fensterentwurf& entwurf) {
  const std::vector<double>& abstaende = horizontal ? entwurf.spalten : entwurf.zeilen;
  const int letzte = static_cast<int>(abstaende.size());
  const auto spanne = [&](int von, int bis) {
    double summe = 0.0;
    for (int i = von; i < bis; ++i) summe += abstaende[static_cast<std::size_t>(i)];
    return summe * wuerfel.Zahl(900'000, 1'200'000) * 1e-6;
  };
  for (int von = wuerfel.Zahl(0, 1); von < letzte;) {
    const int bis = wuerfel.Zahl(von + 1, letzte);
    Maszentwurf masz = Masz(horizontal, von, bis, spanne(von, bis));
    if (wuerfel.Mit(20)) masz = Masz(horizontal, bis, von, -masz.laenge);
    if (wuerfel.Mit(20) && von > 0) {
      masz = Masz(horizontal, von, von - 1, spanne(von - 1, bis));
      masz.dritter.emplace();
      (horizontal ? masz.dritter->j : masz.dritter->k) = bis;
    }
    entwurf.masze.push_back(masz);
    von = bis;
  }
}

// The window at any scale, and none of its lengths divides.
Fensterentwurf Krumm(const Fensterentwurf& entwurf, Wuerfel& wuerfel) {
  Fensterentwurf krumm = Vergroeszert(entwurf, std::pow(10.0, wuerfel.Laenge(-2.0, 2.0)));
  for (const bool horizontal : {false, true}) {
    if (wuerfel.Mit(40)) continue;
    std::erase_if(krumm.masze, [&](const Maszentwurf& masz) {
      return masz.horizontal == horizontal && !masz.knoten[1].frei;
    });
    SetzeReihe(horizontal, wuerfel, krumm);
  }
  return krumm;
}

// The lines by which two files differ; none when they are equal.
std::string Unterschied(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  if (a.size() != b.size()) return "other number of lines";
  std::string text;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i]) text += "\n  " + a[i] + "  became  " + b[i];
  }
  return text;
}

// Saved and opened again, in one way or another.
bool Gelesen(int weg, const std::string& path, CMFenster& fenster) {
  if (weg % 3 == 0) return Lies(Zeilen(fenster), fenster);
  if (weg % 3 == 1) {
    return fenster.SaveToFile(path.c_str()) && fenster.ReadFromFile(path.c_str()) &&
           fenster.Berechne(false);
  }
  CFeApi api;
  char* block = nullptr;
  long laenge = 0;
  api.SetFenster(fenster);
  api.WriteToBuffer(&laenge, &block);
  const bool gelesen = api.ReadFromBuffer(laenge, block) == 1;
  api.FreeBuffer(&block);
  return gelesen && api.WriteToFile(path.c_str()) == 1 && fenster.ReadFromFile(path.c_str()) &&
         fenster.Berechne(false);
}

bool HatBeweglicheBeiwerte(const Fensterentwurf& entwurf) {
  return std::any_of(entwurf.fluegel.begin(), entwurf.fluegel.end(), [](const auto& fluegel) {
    const auto beweglich = [](const Beiwertentwurf& beiwert) { return !beiwert.fest; };
    return std::any_of(std::begin(fluegel.beiwertX), std::end(fluegel.beiwertX), beweglich) ||
           std::any_of(std::begin(fluegel.beiwertY), std::end(fluegel.beiwertY), beweglich);
  });
}

TEST(Dateigesetze, TenCyclesOfSavingAndOpeningKeepTheBytes) {
  const Ordner ordner;
  int berechnet = 0;
  JedesFenster([&](const Fensterentwurf& entwurf, CMFenster&) {
    Wuerfel wuerfel(entwurf.seed);
    const Fensterentwurf krumm = Krumm(entwurf, wuerfel);
    CMFenster fenster = Gelesen(krumm);
    if (!fenster.Berechne(krumm.pfostenAutomatisch)) return;
    ++berechnet;
    fenster.AchsRasterOptimieren();
    const std::vector<std::string> zeilen = Zeilen(fenster);
    for (int i = 0; i < 10; ++i) {
      ASSERT_TRUE(Gelesen(i, ordner / "f.aqz", fenster)) << i;
      ASSERT_EQ(Unterschied(zeilen, Zeilen(fenster)), "") << i;
    }
  });
  EXPECT_GT(berechnet, 100);
}

// There and back, ten times. Left out is what follows a size by rules of its own: movable
// coefficients, a fitted rise, what a calculation sets by itself, and bars, which are cut.
TEST(Dateigesetze, TenFitsThereAndBackKeepTheBytes) {
  JedesFenster([&](const Fensterentwurf& entwurf, CMFenster&) {
    if (HatBeweglicheBeiwerte(entwurf) || entwurf.stichBewegt || entwurf.pfostenAutomatisch) return;
    // Movable axes would be pushed past others, or too far by what the first is away from 0.
    if (entwurf.maszeHemmen || entwurf.beginntSpaeter) return;
    Wuerfel wuerfel(entwurf.seed);
    const double faktor = std::pow(10.0, wuerfel.Laenge(-2.0, 2.0));
    CMFenster fenster = Gelesen(Vergroeszert(entwurf, faktor));
    double b = 0.0;
    double h = 0.0;
    if (!fenster.Berechne(false)) return;
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      fenster.GetFluegelPtr(i)->DeleteAlleSprossen();
    }
    ASSERT_TRUE(Lies(Zeilen(fenster), fenster));
    std::vector<std::string> zeilen;
    // Lengths of six decimals; a file would round others, every time anew.
    ASSERT_TRUE(Gesamtmasze(fenster, b, h));
    const auto genau = [](double laenge) { return std::round(laenge * 1e6) / 1e6; };
    const double breiter = genau(b * wuerfel.Zahl(1'000'000, 1'300'000) * 1e-6);
    const double hoeher = genau(entwurf.eckenBewegt ? h + faktor : h + (breiter - b) / 2.0);
    for (const bool gespeichert : {false, true}) {
      for (int i = 0; i < 10; ++i) {
        ASSERT_TRUE(Einpassen(fenster, breiter, hoeher));
        ASSERT_TRUE(!gespeichert || Lies(Zeilen(fenster), fenster));
        ASSERT_TRUE(Einpassen(fenster, b, h));
        ASSERT_TRUE(!gespeichert || Lies(Zeilen(fenster), fenster));
        // The first fit sets exactly what a file had rounded; once saved on the way, half of
        // a last decimal may go to the other side.
        if (i < 2) zeilen = Zeilen(fenster);
        ASSERT_EQ(Unterschied(zeilen, Zeilen(fenster)), "") << gespeichert << ' ' << i;
      }
    }
  });
}

// --- saving moves the window at most ------------------------------------------------

// All that a window shows, whatever its axes are called.
std::vector<GEOM2_Polygon> Bestand(const CMFenster& fenster) {
  std::vector<GEOM2_Polygon> alles = Umrisse(fenster);
  alles.push_back(fenster.GetRahmenPtr()->RahmenPolygon);
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    alles.push_back(fenster.GetFluegelPtr(i)->RahmenPolygon);
  }
  const auto strecke = [&](const XY& a, const XY& b) {
    alles.emplace_back().AddPunkt(a.x, a.y);
    alles.back().AddPunkt(b.x, b.y);
  };
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMStrecke s;
    XY a;
    XY b;
    EXPECT_TRUE(fenster.GetMaszline(i, s));
    s.GetPunkte(a, b);
    strecke(a, b);
  }
  double box[4];
  fenster.GetBox(0.0, box);
  strecke({box[0], box[1]}, {box[2], box[3]});
  return alles;
}

void Verschiebe(std::vector<GEOM2_Polygon>& polygone, double dx, double dy) {
  for (GEOM2_Polygon& polygon : polygone) polygon.Transformieren(1.0, 0.0, dx, dy);
}

// The same, moved as the first of them is.
void ErwarteVerschoben(std::vector<GEOM2_Polygon> erwartet, const std::vector<GEOM2_Polygon>& ist,
                       double tol, const std::string& was) {
  ASSERT_EQ(erwartet.size(), ist.size()) << was;
  const GEOM2_Eckpunkt& von = erwartet.front().GetEckpunkt(0);
  const GEOM2_Eckpunkt& nach = ist.front().GetEckpunkt(0);
  Verschiebe(erwartet, nach.x - von.x, nach.y - von.y);
  for (std::size_t n = 0; n < ist.size(); ++n) {
    EXPECT_TRUE(GleichePunkte(ist[n], erwartet[n], tol))
        << was << ' ' << n << "\n  expected " << Text(erwartet[n]) << "\n  is       "
        << Text(ist[n]);
  }
}

// The window with an axis in front of all others, which nothing uses.
void StelleAchsenDavor(CMFenster& fenster, double dx, double dy) {
  CMAchsen achsen;
  for (const double d : {0.0, dx}) achsen.AddVerti(d);
  for (const double d : {0.0, dy}) achsen.AddHori(d);
  const CMAchsen& alt = fenster.GetAchsen();
  for (int j = 1; j < alt.iGetCntVerti(); ++j) achsen.AddVerti(alt.dGetAchsAbstX(j));
  for (int k = 1; k < alt.iGetCntHori(); ++k) achsen.AddHori(alt.dGetAchsAbstY(k));
  fenster.GetAchsen() = achsen;
  const auto knoten = [&](CMKnoten& n) {
    n.SetJ(n.J() + 1);
    // Free ends on a springing line are counted from the ground.
    if (n.IsAufAchse() || n.K() > 0) n.SetK(n.K() + 1);
    if (!n.IsAufAchse()) n.SetEckpu(n.X() + dx, n.Y() + dy);
  };
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    CMFensterSatz& f = *fenster.GetFluegelPtr(i);
    for (CMKnoten* n : {&f.Knoten1, &f.Knoten2, &f.KnotenAL, &f.KnotenAR}) knoten(*n);
    for (CMBauteil& sprosse : f.Sprossen) sprosse.Verschieben(dx, dy);
  }
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    for (CMKnoten* n : {&masz.kKnoten1, &masz.kKnoten2, &masz.kKnoten3}) knoten(*n);
  }
  for (CMBauteil& teil : fenster.GetRahmenPtr()->EinzelTeile) {
    for (CMKnoten* n : {&teil.kAnfang, &teil.kEnde}) knoten(*n);
  }
}

// The overall dimensions run against the axes and are longer: they move axis 0.
void KehreGesamtmasze(CMFenster& fenster) {
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (masz.strName != "Breite" && masz.strName != "Hoehe") continue;
    std::swap(masz.kKnoten1, masz.kKnoten2);
    masz.dLaenge *= -1.1;
  }
}

// Files have six decimals, of angles too.
constexpr double kDateirundung = 2e-5;

// Saved, the window is where the file has it; opened, it is that window; a save that
// fails changes nothing.
void PruefeSpeichern(CMFenster& fenster, const std::string& ordner) {
  const std::vector<GEOM2_Polygon> vorher = Bestand(fenster);
  const std::vector<std::string> zeilen = Zeilen(fenster);
  EXPECT_FALSE(fenster.SaveToFile((ordner + "fehlt/f.aqz").c_str()));
  ErwarteVerschoben(vorher, Bestand(fenster), 0.0, "after a failed save");
  EXPECT_EQ(Zeilen(fenster), zeilen);
  CMFenster gelesen;
  ASSERT_TRUE(Lies(zeilen, gelesen));
  ErwarteVerschoben(vorher, Bestand(gelesen), kDateirundung, "from a buffer");

  const std::string path = ordner + "f.aqz";
  ASSERT_TRUE(fenster.SaveToFile(path.c_str()));
  const std::vector<GEOM2_Polygon> gespeichert = Bestand(fenster);
  ErwarteVerschoben(vorher, gespeichert, 1e-9, "saved");
  ASSERT_TRUE(gelesen.ReadFromFile(path.c_str()) && gelesen.Berechne(false));
  ErwarteVerschoben(gespeichert, Bestand(gelesen), kDateirundung, "opened");
  EXPECT_TRUE(GleichePunkte(Bestand(gelesen).front(), gespeichert.front(), kDateirundung));
  EXPECT_EQ(Unterschied(Zeilen(fenster), Zeilen(gelesen)), "");
}

void PruefeAlleArten(const CMFenster& gelesen, const std::string& ordner) {
  for (const char* art : {"unused axes", "negative lengths", "both", "a sash less"}) {
    SCOPED_TRACE(art);
    const std::string a = art;
    CMFenster fenster = gelesen;
    if (a == "negative lengths" || a == "both") KehreGesamtmasze(fenster);
    if (a != "negative lengths") StelleAchsenDavor(fenster, 51.5, 37.25);
    // Cut again, a bar that is left keeps its ends only as exactly as a file has its angle.
    for (long i = 0; a == "a sash less" && i < fenster.GetAnzahlFluegel(); ++i) {
      fenster.GetFluegelPtr(i)->DeleteAlleSprossen();
    }
    if (!fenster.Berechne(false)) continue;
    if (a == "a sash less" &&
        (!fenster.DeleteFluegel(0) || fenster.GetAnzahlFluegel() == 0 || !fenster.Berechne(false)))
      continue;
    PruefeSpeichern(fenster, ordner);
  }
}

TEST(Dateigesetze, SavingMovesAWindowAtMost) {
  const Ordner ordner;
  JedesFenster(
      [&](const Fensterentwurf& entwurf, CMFenster&) {
        if (entwurf.pfostenAutomatisch) return;
        PruefeAlleArten(Gelesen(entwurf), ordner / "");
      },
      100);
}

class GespeicherteDatei : public testing::TestWithParam<std::string> {};

TEST_P(GespeicherteDatei, IsTheSameWindowMovedAtMost) {
  const Ordner ordner;
  CMFenster fenster;
  ASSERT_TRUE(fenster.ReadFromFile(BeispielPfad(GetParam()).c_str()));
  PruefeAlleArten(fenster, ordner / "");
}

INSTANTIATE_TEST_SUITE_P(Windows, GespeicherteDatei, testing::ValuesIn(BeispielNamen()),
                         BeispielTestName);

}  // namespace
}  // namespace lintavo::test
