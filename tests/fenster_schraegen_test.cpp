// Slanted edges and rises when the axes move: what grows with a sash, stays on a straight
// line, or is held by a dimension; and there and back is the same window.
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Wuerfel.h"

namespace lintavo::test {
namespace {

CMKnoten Knoten(bool horizontal, int i) {
  return horizontal ? CMKnoten(i, 0) : CMKnoten(0, i);
}

void AddMasz(CMFenster& fenster, const char* name, bool horizontal, int from, int to) {
  CMZusatzMasz masz;
  masz.strName = name;
  if (horizontal) {
    masz.SetHorizontal(Knoten(true, from), Knoten(true, to));
  } else {
    masz.SetVertikal(Knoten(false, from), Knoten(false, to));
  }
  const CMAchsen& achsen = fenster.GetAchsen();
  masz.dLaenge = -achsen.dGetEffVersch(horizontal, from, to, 0.0);
  fenster.AddZusatzMasz(masz);
}

void SetzeLaengen(CMFenster& fenster, std::initializer_list<double> laengen) {
  long i = 0;
  for (const double laenge : laengen) fenster.GetZusatzMaszPtr(i++)->dLaenge = laenge;
  ASSERT_TRUE(fenster.Berechne(false));
}

CMFenster Wiedergelesen(const CMFenster& fenster) {
  CIniFile document;
  fenster.SaveToBuffer(document);
  CMFenster wieder;
  EXPECT_TRUE(wieder.ReadFromBuffer(document));
  EXPECT_TRUE(wieder.Berechne(false));
  return wieder;
}

// The lines of a window that are others than those given, with these.
std::string Unterschied(const CMFenster& fenster, const std::vector<std::string>& vorher) {
  const std::vector<std::string> zeilen = Zeilen(fenster);
  if (zeilen.size() != vorher.size()) return "other lines";
  std::string text;
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    if (zeilen[i] != vorher[i]) text += vorher[i] + " -> " + zeilen[i] + "; ";
  }
  return text;
}

TEST(Formbeiwert, GrowsWithItsSashWhereverTheDimensionRuns) {
  CMFenster fenster = Raster(2, 1, 60.0, 100.0);
  AddMasz(fenster, "Links", true, 0, 1);
  AddMasz(fenster, "Breite", true, 0, 2);
  CMFensterSatz& rechts = *fenster.GetFluegelPtr(1L);
  rechts.SetFormBeiwertX(1, 10.0, false);
  rechts.SetFormBeiwertX(3, 15.0, true);
  SetzeLaengen(fenster, {80.0, 120.0});
  EXPECT_NEAR(rechts.FormBeiwertX[1].dWert, 10.0 * 40.0 / 60.0, 1e-9);
  // On the way to 130 the sash has no width, on the way to 100 a negative one.
  SetzeLaengen(fenster, {120.0, 250.0});
  EXPECT_NEAR(rechts.FormBeiwertX[1].dWert, 10.0 * 130.0 / 60.0, 1e-5);
  SetzeLaengen(fenster, {260.0, 360.0});
  EXPECT_NEAR(rechts.FormBeiwertX[1].dWert, 10.0 * 100.0 / 60.0, 1e-5);
  SetzeLaengen(fenster, {60.0, 120.0});
  EXPECT_NEAR(rechts.FormBeiwertX[1].dWert, 10.0, 1e-9);
  EXPECT_EQ(rechts.FormBeiwertX[3].dWert, 15.0);
  // A sash that has lost its width has its shape when it gets it back.
  fenster.GetZusatzMaszPtr(0)->dLaenge = 120.0;
  EXPECT_FALSE(fenster.Berechne(false));
  SetzeLaengen(fenster, {60.0, 120.0});
  EXPECT_NEAR(rechts.FormBeiwertX[1].dWert, 10.0, 1e-9);
}

TEST(Formbeiwert, GrowsWithADimensionCentredOnItsSash) {
  CMFenster fenster = Raster(1, 1, 120.0, 100.0);
  fenster.GetAchsen().SetAchsAbstX(1, 60.0);
  fenster.GetAchsen().AddVerti(60.0);
  CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  fluegel.Knoten2.SetJ(2);
  fluegel.SetFormBeiwertX(0, 10.0, false);
  CMZusatzMasz masz;
  masz.SetHorizontal(CMKnoten(1, 0), CMKnoten(0, 0), CMKnoten(2, 0));
  fenster.AddZusatzMasz(masz);
  SetzeLaengen(fenster, {180.0});
  EXPECT_NEAR(fluegel.FormBeiwertX[0].dWert, 15.0, 1e-9);
  fenster.GetAchsen().AlleVerschiebungenZulassen(true);
  ASSERT_TRUE(fenster.NeuenAchsAbstandSetzen(fenster.GetZusatzMaszPtr(0), 1, 2, 210.0));
  EXPECT_NEAR(fluegel.FormBeiwertX[0].dWert, 25.0, 1e-9) << "a single span, too";
}

// A row of sashes under a straight slope or a gable, or the same lying on its side.
class Hang {
 public:
  explicit Hang(std::uint64_t seed)
      : wuerfel_(seed),
        horizontal_(wuerfel_.Mit(50)),
        anzahl_(wuerfel_.Zahl(2, 6)),
        hoehe_(wuerfel_.Laenge(200.0, 300.0)),
        fenster_(horizontal_ ? Raster(anzahl_, 1, 100.0, hoehe_)
                             : Raster(1, anzahl_, hoehe_, 100.0)) {
    for (int i = 1; i <= anzahl_; ++i) {
      const double d = wuerfel_.Laenge(60.0, 160.0);
      horizontal_ ? fenster_.GetAchsen().SetAchsAbstX(i, d)
                  : fenster_.GetAchsen().SetAchsAbstY(i, d);
    }
    Forme();
    SetzeMasze();
  }

  CMFenster& Fenster() { return fenster_; }

  // Other lengths for the whole.
  void Aendere() {
    for (long i = 0; i < fenster_.GetAnzahlZusatzMasze(); ++i) {
      CMZusatzMasz& masz = *fenster_.GetZusatzMaszPtr(i);
      if (masz.strName == "Lang") masz.dLaenge += wuerfel_.Laenge(-20.0, 100.0);
      if (masz.strName == "Quer") masz.dLaenge += wuerfel_.Laenge(-50.0, 50.0);
    }
  }

  // Bends follow their sashes, unless fixed; the joints between them lie on the line.
  void ErwarteGerade() {
    const CMAchsen& achsen = fenster_.GetAchsen();
    const double hoehe = horizontal_ ? achsen.dGetGridSizeY() : achsen.dGetGridSizeX();
    for (auto bis = std::next(knicke_.begin()); bis != knicke_.end(); ++bis) {
      const auto von = std::prev(bis);
      const auto wert = [&](const auto& knick) {
        return knick->second.dWert * (knick->second.bFest ? 1.0 : hoehe / hoehe_);
      };
      for (int n = von->first; n < bis->first; ++n) {
        for (const bool ende : {false, true}) {
          const double t = (Ort(n + ende) - Ort(von->first)) / (Ort(bis->first) - Ort(von->first));
          EXPECT_NEAR(Beiwert(n, ende).dWert, std::lerp(wert(von), wert(bis), t), 3e-6)
              << "field " << n << (ende ? " end" : " start");
        }
      }
    }
  }

 private:
  double Ort(int i) const {
    return horizontal_ ? fenster_.GetAchsen().dGetPosVerti(i) : fenster_.GetAchsen().dGetPosHori(i);
  }
  FormBeiwert& Beiwert(int fluegel, bool ende) {
    CMFensterSatz& satz = *fenster_.GetFluegelPtr(static_cast<long>(fluegel));
    return horizontal_ ? satz.FormBeiwertY[ende ? 1 : 0] : satz.FormBeiwertX[ende ? 0 : 2];
  }

  // Falls from the ridge to both ends, perhaps with a bend: straight in between, as a file
  // holds it.
  void Forme() {
    const auto knicke = [&](int i, double von, double bis) {
      knicke_[i] = {wuerfel_.Mit(30) ? std::floor(bis) : wuerfel_.Laenge(von, bis),
                    wuerfel_.Mit(50)};
    };
    if (wuerfel_.Mit(30)) knicke(wuerfel_.Zahl(1, anzahl_ - 1), 12.0, 28.0);
    knicke(0, 30.0, 80.0);
    knicke(anzahl_, 30.0, 80.0);
    knicke(wuerfel_.Zahl(0, anzahl_), 0.0, 10.0);
    for (auto bis = std::next(knicke_.begin()); bis != knicke_.end(); ++bis) {
      const auto& [i, von] = *std::prev(bis);
      for (int n = i; n < bis->first; ++n) {
        Beiwert(n, false) = n == i ? von : FormBeiwert{Dazwischen(n, i, bis->first), false};
        Beiwert(n, true) = n + 1 == bis->first
                               ? bis->second
                               : FormBeiwert{Dazwischen(n + 1, i, bis->first), false};
      }
    }
  }

  // The line between two bends, as a file holds it.
  double Dazwischen(int i, int von, int bis) {
    const double t = (Ort(i) - Ort(von)) / (Ort(bis) - Ort(von));
    return std::round(std::lerp(knicke_[von].dWert, knicke_[bis].dWert, t) * 1e6) / 1e6;
  }

  // The whole length and what may be said of single fields before it and after it.
  void SetzeMasze() {
    const auto setze = [&](int von, int bis) { AddMasz(fenster_, "Feld", horizontal_, von, bis); };
    const int art = wuerfel_.Zahl(0, 5);
    if (art == 1) setze(0, 1);
    if (art == 2 && anzahl_ > 2) setze(0, 2), setze(0, 1);
    if (art == 3 && anzahl_ > 2) setze(2, 1);
    AddMasz(fenster_, "Lang", horizontal_, 0, anzahl_);
    if (art == 4) setze(anzahl_, anzahl_ - 1);
    if (art == 5 && anzahl_ > 3) SetzeZentrisch(2);
    AddMasz(fenster_, "Quer", !horizontal_, 0, 1);
  }

  // Around an axis that has been put between its neighbours.
  void SetzeZentrisch(int mitte) {
    CMZusatzMasz masz;
    masz.strName = "Mitte";
    const auto k = [&](int i) { return Knoten(horizontal_, i); };
    if (horizontal_) {
      masz.SetHorizontal(k(mitte), k(mitte - 1), k(mitte + 1));
    } else {
      masz.SetVertikal(k(mitte), k(mitte - 1), k(mitte + 1));
    }
    masz.dLaenge = 2.0 * std::min(Ort(mitte) - Ort(mitte - 1), Ort(mitte + 1) - Ort(mitte));
    fenster_.AddZusatzMasz(masz);
  }

  Wuerfel wuerfel_;
  bool horizontal_;
  int anzahl_;
  double hoehe_;
  std::map<int, FormBeiwert> knicke_;  // by axis
  CMFenster fenster_;
};

TEST(Schraege, StaysStraightOverUnequalFieldsAndComesBack) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Hang hang(seed);
    CMFenster& fenster = hang.Fenster();
    ASSERT_TRUE(fenster.Berechne(false));
    fenster = Wiedergelesen(fenster);
    hang.ErwarteGerade();
    const std::vector<std::string> zeilen = Zeilen(fenster);
    const CMFenster anfang = fenster;
    hang.Aendere();
    const CMFenster anders = fenster;
    for (int i = 0; i < 10; ++i) {
      for (const CMFenster* laengen : {&anders, &anfang}) {
        for (long n = 0; n < fenster.GetAnzahlZusatzMasze(); ++n) {
          fenster.GetZusatzMaszPtr(n)->dLaenge = laengen->GetZusatzMaszPtr(n)->dLaenge;
        }
        CString text;
        ASSERT_TRUE(fenster.Berechne(false)) << (fenster.GetFehler(text), text);
        hang.ErwarteGerade();
        if (seed % 2 == 0) fenster = Wiedergelesen(fenster);
      }
      ASSERT_EQ(Unterschied(fenster, zeilen), "") << "cycle " << i;
    }
  }
}

// The slope of 2 : 1 cuts a corner off the lower sash and runs on along the side of the
// upper one. The field below keeps its height when the window grows.
TEST(Schraege, StaysStraightFromACutCornerOn) {
  CMFenster fenster = Raster(1, 2, 100.0, 100.0);
  fenster.GetFluegelPtr(0L)->SetFormBeiwertY(0, 40.0, false);
  fenster.GetFluegelPtr(0L)->SetFormBeiwertX(0, 20.0, false);
  fenster.GetFluegelPtr(1L)->SetFormBeiwertX(2, 20.0, false);
  fenster.GetFluegelPtr(1L)->SetFormBeiwertX(0, 70.0, false);
  AddMasz(fenster, "Unten", false, 0, 1);
  AddMasz(fenster, "Hoehe", false, 0, 2);
  ASSERT_TRUE(fenster.Berechne(false));
  const std::vector<std::string> zeilen = Zeilen(fenster);
  SetzeLaengen(fenster, {100.0, 260.0});
  // From (0,60) to (70,260) it passes (14,100).
  EXPECT_NEAR(fenster.GetFluegelPtr(0L)->FormBeiwertX[0].dWert, 14.0, 1e-9);
  EXPECT_NEAR(fenster.GetFluegelPtr(1L)->FormBeiwertX[2].dWert, 14.0, 1e-9);
  EXPECT_EQ(fenster.GetRahmenPtr()->RahmenPolygon.GetAnzahl(), 5);
  SetzeLaengen(fenster, {100.0, 200.0});
  EXPECT_EQ(Unterschied(fenster, zeilen), "");
}

// An arch 120 wide and 150 high on a springing line at 110; a dimension of 100 from the
// ground sets that, for one arch and for the pieces of a shared one.
TEST(Kaempfer, ADimensionGoesOnDrivingTheRiseWhateverMovesTheLine) {
  for (const bool geteilt : {false, true}) {
    CMFenster fenster = Raster(2, 1, 60.0, 150.0);
    fenster.DeleteFluegel(1);
    fenster.DeleteFluegel(0);
    fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
    std::vector<CMFensterSatz*> boegen;
    for (const int j : geteilt ? std::vector<int>{1, 0} : std::vector<int>{0}) {
      boegen.push_back(
          fenster.AddFluegel(eFormBogen, 0, {j, 0}, {geteilt ? j + 1 : 2, 1}, {0, 0}, {2, 0}));
      boegen.back()->SetRahmenDefaults(7.8, 6.8, 1.5, 1, 3);
      boegen.back()->dStich = 40.0;
    }
    AddMasz(fenster, "Kaempfer", false, 0, 1);
    fenster.GetZusatzMaszPtr(0)->kKnoten1.SetEckpu(0, 0, 0.0, 0.0);
    fenster.GetZusatzMaszPtr(0)->kKnoten2.SetEckpu(0, 0, 0.0, 110.0);
    AddMasz(fenster, "Breite", true, 0, 2);
    AddMasz(fenster, "Hoehe", false, 0, 1);
    SetzeLaengen(fenster, {100.0, 120.0, 150.0});
    const std::vector<std::string> zeilen = Zeilen(fenster);
    // Height, width and springing line, then the rise: half the width is the most.
    for (const auto& [hoehe, breite, kaempfer, stich] :
         std::vector<std::array<double, 4>>{{130, 120, 100, 30},
                                            {140.5, 133, 100, 40.5},
                                            {157, 120, 100, 57},
                                            {160, 100, 100, 50},
                                            {150, 80, 100, 40},
                                            {150, 120, 97, 53},
                                            {155, 160, 155, 0}}) {
      // A piece of an arch cannot rise by more than it is wide.
      if (geteilt && hoehe - kaempfer > breite / 2.0) continue;
      SetzeLaengen(fenster, {kaempfer, breite, hoehe});
      for (const CMFensterSatz* bogen : boegen) EXPECT_NEAR(bogen->dStich, stich, 1e-9) << hoehe;
      const std::vector<std::string> dort = Zeilen(fenster);
      ASSERT_TRUE(fenster.Berechne(false));
      EXPECT_EQ(Unterschied(fenster, dort), "") << "calculated again";
      // It has not given up where the calculation fails.
      SetzeLaengen(fenster, {100.0, 120.0, 150.0});
      EXPECT_EQ(Unterschied(fenster, zeilen), "");
    }
  }
}

}  // namespace
}  // namespace lintavo::test
