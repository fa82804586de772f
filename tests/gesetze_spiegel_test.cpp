// Laws of the mirror: the mirrored window gives the mirrored result.
#include <algorithm>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "support/Ansicht.h"
#include "support/Beispiele.h"
#include "support/Geometrie.h"
#include "support/Gesetze.h"

namespace lintavo::test {
namespace {

// --- mirrored shapes ---------------------------------------------------------------

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

double Abstand(const XY& a, const XY& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

// --- mirrored numbers --------------------------------------------------------------

Fensterentwurf OhneNummern(Fensterentwurf entwurf) {
  entwurf.rahmenteile.clear();
  entwurf.aussenteile.clear();
  for (Fluegelentwurf& fluegel : entwurf.fluegel) {
    fluegel.teile.clear();
    fluegel.innenteile.clear();
    fluegel.beschlaege.clear();
    // Of a short edge the vertex in which it starts is dropped from the contour that slats
    // divide: in a mirror that is the other one.
    fluegel.fuellung.kurzeKante = 0.0;
  }
  return entwurf;
}

// Which number a side has in the mirror: numbers depend on where an outline starts. Parts
// have the numbers of their sides, unless some of them are bent round several.
class Seitenpaare {
 public:
  Seitenpaare(const CMFensterSatz& satz, const CMFensterSatz& bild, double breite)
      : teilJeSeite_(HatTeilJeSeite(satz) && HatTeilJeSeite(bild)) {
    for (int i = 0; i < satz.RahmenPolygon.GetAnzahl(); ++i) {
      XY a, b, aBild, bBild;
      satz.RahmenPolygon.GetKante(i, a, b);
      for (int k = 0; k < bild.RahmenPolygon.GetAnzahl(); ++k) {
        bild.RahmenPolygon.GetKante(k, aBild, bBild);
        if (Abstand({breite - b.x, b.y}, aBild) < 1e-6) seiten_.push_back(k);
      }
    }
    EXPECT_EQ(seiten_.size(), static_cast<std::size_t>(satz.RahmenPolygon.GetAnzahl()))
        << "\n  " << Text(satz.RahmenPolygon) << "\n  " << Text(bild.RahmenPolygon);
  }

  bool TeilJeSeite() const { return teilJeSeite_; }

  bool operator==(const Seitenpaare&) const = default;

  int Seite(int seite) const {
    const auto i = static_cast<std::size_t>(seite);
    return i < seiten_.size() ? seiten_[i] : seite;
  }

  std::vector<Querschnitt> Querschnitte(std::vector<Querschnitt> teile,
                                        const Querschnitt& vorlage) const {
    if (teile.empty()) return teile;
    teile.resize(std::max(teile.size(), seiten_.size()), vorlage);
    std::vector<Querschnitt> bild = teile;
    for (std::size_t i = 0; i < seiten_.size(); ++i) {
      bild[static_cast<std::size_t>(seiten_[i])] = teile[i];
    }
    return bild;
  }

  std::vector<Zusatzteilentwurf> Zusatzteile(std::vector<Zusatzteilentwurf> teile) const {
    for (Zusatzteilentwurf& teil : teile) {
      teil.seite = Seite(teil.seite);
      std::swap(teil.anfang, teil.ende);
    }
    return teile;
  }

  // A fitting keeps its place seen from the other end of its part.
  std::vector<Beschlagentwurf> Beschlaege(std::vector<Beschlagentwurf> beschlaege,
                                          const CMFensterSatz& satz) const {
    for (Beschlagentwurf& beschlag : beschlaege) {
      const auto nr = static_cast<std::size_t>(beschlag.bauteil);
      GEOM2_Polygon umriss;
      if (nr >= seiten_.size() || !satz.RahmenTeile[nr].GetUmrissPunkte(umriss)) continue;
      beschlag.bauteil = seiten_[nr];
      const double ganze = beschlag.art1 == 0 ? umriss.GetKantenLaenge(0) : 100.0;
      beschlag.abstand1 = ganze - std::min(beschlag.abstand1, ganze);
    }
    return beschlaege;
  }

 private:
  static bool HatTeilJeSeite(const CMFensterSatz& satz) {
    const bool gerade =
        std::all_of(satz.RahmenTeile.begin(), satz.RahmenTeile.end(),
                    [](const CMBauteil& teil) { return teil.lGetAnzAchsen() == 1; });
    return gerade &&
           satz.RahmenTeile.size() == static_cast<std::size_t>(satz.RahmenPolygon.GetAnzahl());
  }

  bool teilJeSeite_;
  std::vector<int> seiten_;
};

// A window and its mirror image, numbers and all. Of a frame with bent parts all is left
// out that hangs on a part: which sides it takes in depends on where the outline starts.
class Spiegelpaar {
 public:
  Fensterentwurf entwurf;
  Fensterentwurf bild;
  double breite;

  explicit Spiegelpaar(const Fensterentwurf& gezogen)
      : entwurf(OhneNummern(gezogen)),
        bild(lintavo::test::Gespiegelt(entwurf)),
        breite(Breite(entwurf)) {
    PaareRahmen();
    SetzeRahmenteile(gezogen);
    PaareFluegel();
    SetzeFluegelteile(gezogen);
    SetzeBeschlaege(gezogen, Berechnet(entwurf));
  }

  const Seitenpaare& Rahmen() const { return saetze_.front(); }
  const Seitenpaare& Fluegel(std::size_t i) const { return saetze_[i + 1]; }

  // False where the widths of its own parts make a sash lose a corner or start at another
  // one: then numbers are those of other sides.
  bool Gilt(const CMFenster& fenster, const CMFenster& spiegel) const {
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      const CMFensterSatz& satz = *fenster.GetFluegelPtr(i);
      const CMFensterSatz& gegenueber = *spiegel.GetFluegelPtr(i);
      if (!(Seitenpaare(satz, gegenueber, breite) == Fluegel(static_cast<std::size_t>(i))))
        return false;
    }
    return true;
  }

 private:
  void PaareRahmen() {
    const CMFenster fenster = Berechnet(entwurf);
    const CMFenster spiegel = Berechnet(bild);
    saetze_.emplace_back(*fenster.GetRahmenPtr(), *spiegel.GetRahmenPtr(), breite);
  }

  // With the frame's widths: a wide part may swallow a corner of a sash.
  void PaareFluegel() {
    const CMFenster fenster = Berechnet(entwurf);
    const CMFenster spiegel = Berechnet(bild);
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      saetze_.emplace_back(*fenster.GetFluegelPtr(i), *spiegel.GetFluegelPtr(i), breite);
    }
  }

  void SetzeRahmenteile(const Fensterentwurf& gezogen) {
    if (!Rahmen().TeilJeSeite()) return;
    entwurf.rahmenteile = gezogen.rahmenteile;
    entwurf.aussenteile = gezogen.aussenteile;
    bild.rahmenteile = Rahmen().Querschnitte(entwurf.rahmenteile, entwurf.rahmen);
    bild.aussenteile = Rahmen().Zusatzteile(entwurf.aussenteile);
  }

  void SetzeFluegelteile(const Fensterentwurf& gezogen) {
    for (std::size_t i = 0; i < entwurf.fluegel.size(); ++i) {
      if (!Fluegel(i).TeilJeSeite()) continue;
      Fluegelentwurf& fluegel = entwurf.fluegel[i];
      fluegel.teile = gezogen.fluegel[i].teile;
      fluegel.innenteile = gezogen.fluegel[i].innenteile;
      bild.fluegel[i].teile = Fluegel(i).Querschnitte(fluegel.teile, fluegel.vorlage);
      bild.fluegel[i].innenteile = Fluegel(i).Zusatzteile(fluegel.innenteile);
    }
  }

  // Once all widths are known: they are measured along the parts.
  void SetzeBeschlaege(const Fensterentwurf& gezogen, const CMFenster& fenster) {
    for (std::size_t i = 0; i < entwurf.fluegel.size(); ++i) {
      if (!Fluegel(i).TeilJeSeite()) continue;
      const CMFensterSatz& satz = *fenster.GetFluegelPtr(static_cast<long>(i));
      entwurf.fluegel[i].beschlaege = gezogen.fluegel[i].beschlaege;
      bild.fluegel[i].beschlaege = Fluegel(i).Beschlaege(entwurf.fluegel[i].beschlaege, satz);
    }
  }

  std::vector<Seitenpaare> saetze_;  // the frame's, then those of the sashes
};

// --- expectations ------------------------------------------------------------------

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

// Fails the running test unless every part of one list has its image in the other.
class Spiegelung {
 public:
  Spiegelung(const CMFensterSatz& satz, const CMFensterSatz& bild, double breite, std::string was)
      : satz_(satz), bild_(bild), breite_(breite), was_(std::move(was)) {}

  void Erwarte(const Seitenpaare& paare) const {
    ErwarteUmrisse();
    ErwarteTeile(satz_.Sprossen, bild_.Sprossen);
    ErwarteTeile(satz_.EinzelTeile, bild_.EinzelTeile);
    if (paare.TeilJeSeite()) ErwarteRahmenteile(paare);
    ErwarteBeschlaege();
  }

 private:
  void ErwarteUmrisse() const {
    ErwarteUmriss(satz_.RahmenPolygon, bild_.RahmenPolygon);
    for (const bool mitTeilen : {false, true}) {
      GEOM2_Polygon innen;
      GEOM2_Polygon innenBild;
      EXPECT_TRUE(satz_.ErzeugeRahmenInnenPolygon(mitTeilen, innen));
      EXPECT_TRUE(bild_.ErzeugeRahmenInnenPolygon(mitTeilen, innenBild));
      ErwarteUmriss(innen, innenBild);
    }
  }

  void ErwarteUmriss(const GEOM2_Polygon& umriss, const GEOM2_Polygon& bild) const {
    EXPECT_TRUE(GleicherRing(Gespiegelt(umriss, breite_), bild, 1e-6)) << was_;
  }

  void ErwarteTeile(const std::vector<CMBauteil>& teile,
                    const std::vector<CMBauteil>& bilder) const {
    ASSERT_EQ(teile.size(), bilder.size()) << was_;
    for (std::size_t i = 0; i < teile.size(); ++i) {
      ASSERT_EQ(teile[i].IsVorhanden(), bilder[i].IsVorhanden()) << was_ << ' ' << i;
      if (!teile[i].IsVorhanden()) continue;
      GEOM2_Polygon umriss;
      GEOM2_Polygon bild;
      EXPECT_TRUE(teile[i].GetUmrissPunkte(umriss) && bilder[i].GetUmrissPunkte(bild));
      EXPECT_TRUE(GleicherRing(Gespiegelt(umriss, breite_), bild, 1e-5)) << was_ << " part " << i;
    }
  }

  void ErwarteRahmenteile(const Seitenpaare& paare) const {
    ASSERT_EQ(satz_.RahmenTeile.size(), bild_.RahmenTeile.size()) << was_;
    for (long i = 0; i < satz_.lGetAnzahlRahmenBauteile(); ++i) {
      GEOM2_Polygon umriss;
      GEOM2_Polygon bild;
      satz_.GetRahmenBauteilPtr(i)->GetUmrissPunkte(umriss);
      bild_.GetRahmenBauteilPtr(paare.Seite(static_cast<int>(i)))->GetUmrissPunkte(bild);
      EXPECT_TRUE(GleicherRing(Gespiegelt(umriss, breite_), bild, 1e-6)) << was_ << " side " << i;
    }
  }

  void ErwarteBeschlaege() const {
    ASSERT_EQ(satz_.lGetAnzahlBeschlaege(), bild_.lGetAnzahlBeschlaege()) << was_;
    for (long i = 0; i < satz_.lGetAnzahlBeschlaege(); ++i) {
      CMBeschlag beschlag = *satz_.GetBeschlagPtr(i);
      CMBeschlag gespiegelt = *bild_.GetBeschlagPtr(i);
      XY p, q;
      double winkel = 0.0;
      double winkelBild = 0.0;
      ASSERT_EQ(beschlag.GetPunkt(&satz_, p, winkel), gespiegelt.GetPunkt(&bild_, q, winkelBild));
      EXPECT_NEAR(Abstand({breite_ - p.x, p.y}, q), 0.0, 1e-5) << was_ << " fitting " << i;
      EXPECT_NEAR(std::remainder(winkel + winkelBild, 360.0), 0.0, 1e-5) << was_;
    }
  }

  const CMFensterSatz& satz_;
  const CMFensterSatz& bild_;
  double breite_;
  std::string was_;
};

// Left out are windows whose dimensions move axes, which they count from one side; lengths
// that six decimals round to this or that side of an edge; and mullions set by the calculation: of
// those that cross or end in each other the first one found runs through.
TEST(Gesetze, TheMirroredWindowGivesTheMirroredResult) {
  int gesehen = 0;
  int verglichen = 0;
  int mitAussenteilen = 0;
  JedesFenster([&](const Fensterentwurf& gezogen, CMFenster&) {
    ++gesehen;
    if (gezogen.achsenBewegt || gezogen.pfostenAutomatisch || gezogen.maszstab != 1.0) return;
    const Spiegelpaar paar(gezogen);
    const CMFenster fenster = Berechnet(paar.entwurf);
    const CMFenster bild = Berechnet(paar.bild);
    if (!paar.Gilt(fenster, bild)) return;
    ++verglichen;
    mitAussenteilen += paar.entwurf.aussenteile.empty() ? 0 : 1;
    const double breite = paar.breite;
    Spiegelung(*fenster.GetRahmenPtr(), *bild.GetRahmenPtr(), breite, "frame")
        .Erwarte(paar.Rahmen());
    for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
      Spiegelung(*fenster.GetFluegelPtr(i), *bild.GetFluegelPtr(i), breite,
                 "sash " + std::to_string(i))
          .Erwarte(paar.Fluegel(static_cast<std::size_t>(i)));
    }
    ErwarteGleicheStrecken(Gespiegelt(Symbole(fenster), breite), Symbole(bild), "symbols");
    for (const bool vonAussen : {false, true}) {
      ErwarteGleicheStrecken(Gespiegelt(Bild(fenster, vonAussen), breite), Bild(bild, vonAussen),
                             vonAussen ? "outside" : "inside");
    }
  });
  if (gesehen < 100) return;
  EXPECT_GT(verglichen, gesehen / 4);
  EXPECT_GT(mitAussenteilen, gesehen / 20);
}

}  // namespace
}  // namespace lintavo::test
