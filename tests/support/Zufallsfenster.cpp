#include "tests/support/Zufallsfenster.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "tests/support/Wuerfel.h"
#include "tests/support/Zellen.h"
#include "tests/support/Zufallsinhalt.h"
#include "tests/support/Zufallsmasze.h"

namespace lintavo::test {

namespace {

constexpr int kMaxReihen = 7;

// Slope of an edge, and rise of an arch over half its span, where a neighbour stands
// beside its lower end and the valley between them is to be shallow.
constexpr double kSanft = 0.5;
constexpr double kFlach = 0.25;

enum class Stil { kRechtecke, kSchraegen, kDach, kBogen, kHalbbogen, kEllipse };

class Entwerfer {
 public:
  explicit Entwerfer(std::uint64_t seed) : wuerfel_(seed) { entwurf_.seed = seed; }

  Fensterentwurf Entwirf() && {
    WaehleStil();
    WaehleQuerschnitte();
    TeileAuf();
    LassLuecken();
    WaehleAbstaende();
    for (std::size_t i = 0; i < felder_.size(); ++i)
      entwurf_.fluegel.push_back(Fluegel(felder_[i]));
    Forme();
    SetzePfosten();
    SetzeMasze();
    SetzeAussenteile();
    if (wuerfel_.Mit(20)) ErweitereRaster();
    if (!entwurf_.achsenBewegt && !entwurf_.stichBewegt && wuerfel_.Mit(10)) BeginneSpaeter();
    if (wuerfel_.Mit(40)) return ImMaszstab();
    return std::move(entwurf_);
  }

 private:
  double Zahl(double von, double bis) { return Zufallsinhalt(wuerfel_, rund_).Zahl(von, bis); }
  double X(int j) const { return x_[static_cast<std::size_t>(j)]; }
  double Y(int k) const { return y_[static_cast<std::size_t>(k)]; }
  double Breite(const Feld& f) const { return X(f.j1) - X(f.j0); }
  double Hoehe(const Feld& f) const { return Y(f.k1) - Y(f.k0); }

  void WaehleStil() {
    const int zahl = wuerfel_.Zahl(0, 99);
    stil_ = zahl < 40   ? Stil::kRechtecke
            : zahl < 55 ? Stil::kSchraegen
            : zahl < 66 ? Stil::kDach
            : zahl < 86 ? Stil::kBogen
            : zahl < 95 ? Stil::kHalbbogen
                        : Stil::kEllipse;
    rund_ = wuerfel_.Mit(50);
  }

  void WaehleQuerschnitte() {
    entwurf_.rahmen = {Zahl(3.0, 12.0), 0.0, Zahl(4.0, 9.0)};
    fluegel_ = {Zahl(3.0, 10.0), 0.0, Zahl(4.0, 9.0)};
    pfostenBreite_ = Zahl(3.0, 2.0 * entwurf_.rahmen.breite);
    const double rand = std::min(entwurf_.rahmen.breite, 0.5 * pfostenBreite_);
    if (wuerfel_.Mit(80)) fluegel_.ueberschlag = Zahl(0.0, std::min(2.0, rand));
    innenteilBreite_ = wuerfel_.Mit(30) ? Zahl(1.0, 3.0) : 0.0;
    bedarf_ = 2.0 * (entwurf_.rahmen.breite + fluegel_.breite + 2.0 * innenteilBreite_) + 6.0;
  }

  // Small windows are far more frequent than large ones.
  int Reihen() { return wuerfel_.Mit(70) ? wuerfel_.Zahl(1, 3) : wuerfel_.Zahl(1, kMaxReihen); }

  // Sashes of 1 x 1 up to all cells, which divide the grid.
  void TeileAuf() {
    const int spalten = Reihen();
    const int zeilen = Reihen();
    zellen_ = Zellen(spalten, zeilen);
    const bool einzeln = stil_ == Stil::kEllipse;
    const int spanne = wuerfel_.Zahl(1, kMaxReihen);
    for (int k = 0; k < zeilen; ++k) {
      for (int j = 0; j < spalten; ++j) {
        if (zellen_.Bei(j, k) != Zellen::kLeer) continue;
        const int frei = FreiNach(j, k);
        const int b = einzeln ? spalten : wuerfel_.Zahl(1, std::min(frei, spanne));
        const int h = einzeln ? zeilen : wuerfel_.Zahl(1, std::min(zeilen - k, spanne));
        const Feld feld{j, k, j + b, k + h};
        zellen_.Setze(feld, static_cast<int>(felder_.size()));
        felder_.push_back(feld);
      }
    }
    // The order of the sashes is anybody's.
    for (std::size_t i = felder_.size(); wuerfel_.Mit(50) && i > 1; --i) {
      std::swap(felder_[i - 1],
                felder_[static_cast<std::size_t>(wuerfel_.Zahl(0, static_cast<int>(i) - 1))]);
    }
  }

  int FreiNach(int j, int k) const {
    int frei = 0;
    while (zellen_.Bei(j + frei, k) == Zellen::kLeer) ++frei;
    return frei;
  }

  // Leaves sashes away as long as the others hang together. (Other shapes may come off a
  // neighbour that they touch with little more than a corner of their placement.)
  void LassLuecken() {
    const bool eckig = stil_ == Stil::kRechtecke;
    const int anzahl =
        eckig && wuerfel_.Mit(50) ? wuerfel_.Zahl(0, static_cast<int>(felder_.size()) / 3) : 0;
    for (int i = 0; i < anzahl && felder_.size() > 1; ++i) {
      std::vector<Feld> rest = felder_;
      rest.erase(rest.begin() + wuerfel_.Zahl(0, static_cast<int>(rest.size()) - 1));
      if (HaengenZusammen(rest)) felder_ = std::move(rest);
    }
    zellen_ = Zellen(zellen_.Spalten(), zellen_.Zeilen());
    for (std::size_t i = 0; i < felder_.size(); ++i) {
      zellen_.Setze(felder_[i], static_cast<int>(i));
    }
    zellen_.SucheAussen();
  }

  void WaehleAbstaende() {
    const bool gleich = wuerfel_.Mit(30);
    const double bis = bedarf_ + (wuerfel_.Mit(50) ? 20.0 : 80.0);
    const double zugabe = stil_ == Stil::kEllipse ? 2.0 * bedarf_ : 0.0;
    const auto fuelle = [&](int anzahl, std::vector<double>& abstaende, std::vector<double>& orte) {
      orte.push_back(0.0);
      for (int i = 0; i < anzahl; ++i) {
        abstaende.push_back(gleich && i > 0 ? abstaende[0] : Zahl(bedarf_ + zugabe, bis + zugabe));
      }
    };
    fuelle(zellen_.Spalten(), entwurf_.spalten, x_);
    fuelle(zellen_.Zeilen(), entwurf_.zeilen, y_);
    // What is to be round or slanted needs height.
    double breite = 0.0;
    for (const double b : entwurf_.spalten) breite += b;
    if (stil_ == Stil::kDach || stil_ == Stil::kBogen || stil_ == Stil::kHalbbogen) {
      entwurf_.zeilen.back() += Zahl(0.1 * breite, 0.6 * breite);
    }
    // Sums of thousandths, without the noise of adding.
    const auto summiere = [](const std::vector<double>& abstaende, std::vector<double>& orte) {
      for (const double d : abstaende) orte.push_back(std::round((orte.back() + d) * 1e3) / 1e3);
    };
    summiere(entwurf_.spalten, x_);
    summiere(entwurf_.zeilen, y_);
    SucheLoecher();
  }

  void SucheLoecher() {
    for (int k = 0; k < zellen_.Zeilen(); ++k) {
      for (int j = 0; j < zellen_.Spalten(); ++j) {
        const int besitzer = zellen_.Bei(j, k);
        if (besitzer < 0) entwurf_.luecken = true;
        if (besitzer == Zellen::kLeer) {
          entwurf_.lochflaeche += (X(j + 1) - X(j)) * (Y(k + 1) - Y(k));
        }
      }
    }
  }

  // --- what a sash carries --------------------------------------------------------

  Fluegelentwurf Fluegel(const Feld& feld) {
    Zufallsinhalt inhalt(wuerfel_, rund_);
    Fluegelentwurf f;
    f.name = "Feld " + std::to_string(feld.j0) + "/" + std::to_string(feld.k0);
    f.knoten1 = {feld.j0, feld.k0};
    f.knoten2 = {feld.j1, feld.k1};
    f.jLinks = feld.j0;
    f.jRechts = feld.j1;
    f.vorlage = fluegel_;
    f.mitRahmen = wuerfel_.Mit(85);
    if (!f.mitRahmen) f.vorlage.ueberschlag = 0.0;
    f.nachAussen = wuerfel_.Mit(25);
    f.zuerstAufgehend = wuerfel_.Mit(20);
    f.gangart = wuerfel_.Zahl(0, 11);
    f.anschlag = wuerfel_.Zahl(0, 3);
    f.zVersatz = wuerfel_.Mit(40) ? Zahl(0.0, 3.0) : 0.0;
    f.fuellung = inhalt.Fuellung();
    f.sprossen = inhalt.Sprossen(X(feld.j0), Y(feld.k0), Breite(feld), Hoehe(feld));
    if (f.mitRahmen && wuerfel_.Mit(25)) f.teile = inhalt.Teile(f.vorlage);
    if (f.mitRahmen && innenteilBreite_ > 0.0 && wuerfel_.Mit(60))
      f.innenteile = inhalt.Innenteile(innenteilBreite_);
    if (f.mitRahmen && wuerfel_.Mit(50)) f.beschlaege = inhalt.Beschlaege();
    return f;
  }

  // --- shapes ---------------------------------------------------------------------

  void Forme() {
    for (std::size_t i = 0; i < felder_.size(); ++i) {
      switch (stil_) {
        case Stil::kSchraegen:
          Schraege(felder_[i], entwurf_.fluegel[i]);
          break;
        case Stil::kHalbbogen:
          Halbbogen(felder_[i], entwurf_.fluegel[i]);
          break;
        case Stil::kEllipse:
          entwurf_.fluegel[i].form = 3;
          entwurf_.nurRechtecke = false;
          break;
        case Stil::kRechtecke:
        case Stil::kDach:
        case Stil::kBogen:
          break;
      }
    }
    if (stil_ == Stil::kDach) Dach();
    if (stil_ == Stil::kBogen) Boegen();
  }

  Beiwertentwurf Beiwert(double wert) {
    entwurf_.nurRechtecke = false;
    return {wert, wuerfel_.Mit(60)};
  }

  // Corners that move or are cut off, where the outside is. What is left keeps a
  // rectangle of the width or height that every sash needs. (Towards a neighbour a
  // chamfer has its other length at its largest.)
  void Schraege(const Feld& feld, Fluegelentwurf& f) {
    const double b = 0.4 * (Breite(feld) - bedarf_);
    const double h = 0.4 * (Hoehe(feld) - bedarf_);
    for (std::size_t i = 0; i < std::size(f.beiwertX); ++i) {
      const bool oben = zellen_.IstFrei(feld, i < 2 ? Seite::kOben : Seite::kUnten);
      const bool seitlich = zellen_.IstFrei(feld, i % 2 == 0 ? Seite::kLinks : Seite::kRechts);
      if (!wuerfel_.Mit(50)) continue;
      const int art = wuerfel_.Zahl(0, 2);
      if (art == 2 ? !oben && !seitlich : !(art == 0 ? oben : seitlich)) continue;
      const double laengs = art == 2 ? b : Breite(feld);
      const double hoch = art == 2 ? h : Hoehe(feld);
      const bool steil = wuerfel_.Mit(50);
      const double x = art == 0 ? 0.0 : oben || steil ? b : std::min(b, hoch * kSanft);
      const double y = art == 1 ? 0.0 : seitlich || steil ? h : std::min(h, laengs * kSanft);
      // A step beside a neighbour that is smaller than the frame is swallowed by it.
      const bool klein = (oben && seitlich) || wuerfel_.Mit(50);
      const double von = klein ? 1.0 : entwurf_.rahmen.breite;
      if ((art != 0 && x < von) || (art != 1 && y < von)) continue;
      if (art != 0) f.beiwertX[i] = Beiwert(Zahl(art == 2 && !seitlich ? x : von, x));
      if (art != 1) f.beiwertY[i] = Beiwert(Zahl(art == 2 && !oben ? y : von, y));
    }
  }

  // One roof line over the whole window: to one side, or a gable.
  void Dach() {
    double erlaubt = 1e9;
    const int oben = zellen_.Zeilen();
    for (const Feld& feld : felder_) {
      if (feld.k1 == oben) erlaubt = std::min(erlaubt, Hoehe(feld) - bedarf_);
    }
    const int first = wuerfel_.Zahl(0, zellen_.Spalten());
    const double weite = std::max(X(first), X(zellen_.Spalten()) - X(first));
    const double neigung = wuerfel_.Laenge(0.1, 1.5);
    if (!(neigung * weite <= erlaubt)) return;
    entwurf_.nurRechtecke = false;
    for (std::size_t i = 0; i < felder_.size(); ++i) {
      if (felder_[i].k1 != oben) continue;
      const auto fall = [&](int j) { return std::fabs(X(j) - X(first)) * neigung; };
      const Feld& feld = felder_[i];
      // The ridge stands over a corner, not over the middle of a sash.
      if (feld.j0 < first && first < feld.j1) continue;
      entwurf_.fluegel[i].beiwertY[0] = {fall(feld.j0), true};
      entwurf_.fluegel[i].beiwertY[1] = {fall(feld.j1), true};
    }
  }

  // Arches over runs of sashes that stand side by side and end at one height.
  void Boegen() {
    std::vector<bool> fertig(felder_.size(), false);
    for (std::size_t i = 0; i < felder_.size(); ++i) {
      if (fertig[i] || !zellen_.IstFrei(felder_[i], Seite::kOben)) continue;
      std::vector<std::size_t> gruppe{i};
      for (int hoechstens = wuerfel_.Zahl(1, kMaxReihen); hoechstens > 1; --hoechstens) {
        const std::size_t rechts = RechterNachbar(felder_[gruppe.back()]);
        if (rechts == felder_.size() || fertig[rechts]) break;
        gruppe.push_back(rechts);
      }
      for (const std::size_t n : gruppe) fertig[n] = true;
      if (wuerfel_.Mit(85)) Bogen(gruppe);
    }
  }

  std::size_t RechterNachbar(const Feld& feld) const {
    std::size_t i = 0;
    for (; i < felder_.size(); ++i) {
      if (felder_[i].j0 == feld.j1 && felder_[i].k1 == feld.k1 &&
          zellen_.IstFrei(felder_[i], Seite::kOben)) {
        break;
      }
    }
    return i;
  }

  void Bogen(const std::vector<std::size_t>& gruppe) {
    const Feld& erstes = felder_[gruppe.front()];
    const Feld& letztes = felder_[gruppe.back()];
    const double halbeSpanne = 0.5 * (X(letztes.j1) - X(erstes.j0));
    double hoehe = 1e9;
    bool unten = true;
    for (const std::size_t i : gruppe) {
      hoehe = std::min(hoehe, Hoehe(felder_[i]) - bedarf_);
      unten = unten && felder_[i].k0 == erstes.k0 && zellen_.IstFrei(felder_[i], Seite::kUnten);
    }
    const bool frei =
        zellen_.IstFrei(erstes, Seite::kLinks) && zellen_.IstFrei(letztes, Seite::kRechts);
    const bool steil = frei;
    const double steigung = steil ? halbeSpanne : halbeSpanne * kFlach;
    const double hoechstens = std::min(hoehe, steigung);
    if (hoechstens < 2.0) return;
    const double stich =
        wuerfel_.Mit(30) ? std::floor(hoechstens * 1e3) / 1e3 : Zahl(1.0, hoechstens);
    const double stichUnten = unten && wuerfel_.Mit(20) && hoehe - stich > 2.0
                                  ? Zahl(1.0, std::min(hoehe - stich, steigung))
                                  : 0.0;
    const bool korbbogen = steil && wuerfel_.Mit(40);
    for (const std::size_t i : gruppe) {
      Fluegelentwurf& f = entwurf_.fluegel[i];
      f.form = 2;
      f.stich = stich;
      f.stichUnten = stichUnten;
      f.korbbogen = korbbogen;
      f.jLinks = erstes.j0;
      f.jRechts = letztes.j1;
    }
    entwurf_.nurRechtecke = false;
  }

  void Halbbogen(const Feld& feld, Fluegelentwurf& f) {
    if (!zellen_.IstFrei(feld, Seite::kOben)) return;
    const double hoehe = Hoehe(feld) - bedarf_;
    f.gespiegelt = wuerfel_.Mit(50);
    const bool frei = zellen_.IstFrei(feld, f.gespiegelt ? Seite::kRechts : Seite::kLinks);
    const bool steil = frei;
    const double steigung = steil ? Breite(feld) : Breite(feld) * kFlach;
    const double hoechstens = std::min(hoehe, steigung);
    if (hoechstens < 2.0 || wuerfel_.Mit(20)) return;
    f.form = 4;
    f.stich = Zahl(1.0, hoechstens);
    if (zellen_.IstFrei(feld, Seite::kUnten) && wuerfel_.Mit(20) && hoehe - f.stich > 2.0) {
      f.stichUnten = Zahl(1.0, std::min(hoehe - f.stich, steigung));
    }
    f.korbbogen = steil && wuerfel_.Mit(40);
    entwurf_.nurRechtecke = false;
  }

  // --- mullions and transoms ------------------------------------------------------

  bool IstGrenze(int j, int k, bool senkrecht) const {
    const int a = senkrecht ? zellen_.Bei(j - 1, k) : zellen_.Bei(j, k - 1);
    const int b = zellen_.Bei(j, k);
    return a != b && a >= 0 && b >= 0;
  }

  bool LaeuftDurch(int j, int k, bool senkrecht) const {
    return senkrecht ? IstGrenze(j, k - 1, true) && IstGrenze(j, k, true)
                     : IstGrenze(j - 1, k, false) && IstGrenze(j, k, false);
  }

  // Along the common edges of sashes, each as long as it can be; or the level ones from
  // one upright one to the next.
  void SetzePfosten() {
    if (wuerfel_.Mit(15)) {
      entwurf_.pfostenAutomatisch = true;
      entwurf_.ueberallPfosten = true;
      return;
    }
    const int anteil = wuerfel_.Mit(60) ? 100 : wuerfel_.Zahl(0, 100);
    const bool verschieden = wuerfel_.Mit(20);
    const bool geteilt = wuerfel_.Mit(30);
    entwurf_.ueberallPfosten = !verschieden;
    const auto setze = [&](Knotenentwurf von, Knotenentwurf bis) {
      if (!wuerfel_.Mit(anteil)) {
        entwurf_.ueberallPfosten = false;
        return;
      }
      const double breite = verschieden ? Zahl(3.0, pfostenBreite_) : pfostenBreite_;
      entwurf_.pfosten.push_back({von, bis, breite, entwurf_.rahmen.dicke});
    };
    for (const bool senkrecht : {true, false}) {
      const int quer = senkrecht ? zellen_.Spalten() : zellen_.Zeilen();
      const int laengs = senkrecht ? zellen_.Zeilen() : zellen_.Spalten();
      for (int q = 1; q < quer; ++q) {
        int von = -1;
        for (int i = 0; i <= laengs; ++i) {
          const bool grenze =
              i < laengs && (senkrecht ? IstGrenze(q, i, true) : IstGrenze(i, q, false));
          const bool trennt = geteilt && !senkrecht && LaeuftDurch(i, q, true);
          if (von >= 0 && (!grenze || trennt)) {
            if (senkrecht) {
              setze({q, von}, {q, i});
            } else {
              setze({von, q}, {i, q});
            }
            von = -1;
          }
          if (grenze && von < 0) von = i;
        }
      }
    }
  }

  void SetzeMasze() {
    Zufallsmasze masze(wuerfel_, rund_, entwurf_, x_, y_);
    masze.SetzeMasze();
    const int ecke = zellen_.Bei(zellen_.Spalten() - 1, zellen_.Zeilen() - 1);
    if (stil_ != Stil::kRechtecke || ecke < 0 || !wuerfel_.Mit(20)) return;
    masze.SetzeEckmasz(Hoehe(felder_[static_cast<std::size_t>(ecke)]) - bedarf_);
  }

  // --- the frame ------------------------------------------------------------------

  void SetzeAussenteile() {
    const bool ohneStufen = felder_.size() == 1 || entwurf_.nurRechtecke;
    if (ohneStufen && wuerfel_.Mit(25))
      entwurf_.rahmenteile =
          Zufallsinhalt(wuerfel_, rund_).Teile(entwurf_.rahmen, fluegel_.ueberschlag);
    if (!wuerfel_.Mit(25)) return;
    for (int n = wuerfel_.Zahl(1, 4); n > 0; --n) {
      entwurf_.aussenteile.push_back({wuerfel_.Zahl(0, 5), Zahl(1.0, 20.0), Zahl(2.0, 8.0),
                                      wuerfel_.Zahl(0, 4), wuerfel_.Zahl(0, 4)});
    }
  }

  // Axes that nothing uses, behind those that are used.
  void ErweitereRaster() {
    entwurf_.spalten.push_back(Zahl(20.0, 60.0));
    if (wuerfel_.Mit(50)) entwurf_.zeilen.push_back(Zahl(20.0, 60.0));
  }

  // And before them, so that the window stands away from the origin.
  void BeginneSpaeter() {
    entwurf_.beginntSpaeter = true;
    const bool auchUnten = wuerfel_.Mit(50);
    const double dx = Zahl(20.0, 60.0);
    const double dy = auchUnten ? Zahl(20.0, 60.0) : 0.0;
    entwurf_.spalten.insert(entwurf_.spalten.begin(), dx);
    if (auchUnten) entwurf_.zeilen.insert(entwurf_.zeilen.begin(), dy);
    entwurf_ = Versetzt(entwurf_, 1, auchUnten ? 1 : 0, dx, dy);
  }

  // The same window in any unit of length, with lengths that have many decimals.
  Fensterentwurf ImMaszstab() {
    constexpr double kMaszstaebe[] = {0.1, 0.5, 1.0, 10.0, 25.4, 100.0};
    const double krumm = wuerfel_.Mit(50) ? 1.0 : 1.0 + wuerfel_.Laenge(-0.2, 0.2) / 7.0;
    const double faktor = krumm * kMaszstaebe[wuerfel_.Zahl(0, 5)];
    Fensterentwurf f = Vergroeszert(entwurf_, faktor);
    for (Fluegelentwurf& fluegel : f.fluegel) {
      if (fluegel.fuellung.art != 2) continue;
      fluegel.fuellung.breite = std::max(1.0, std::round(fluegel.fuellung.breite));
    }
    return f;
  }

  Wuerfel wuerfel_;
  Fensterentwurf entwurf_;
  Stil stil_ = Stil::kRechtecke;
  bool rund_ = true;
  Querschnitt fluegel_;
  double pfostenBreite_ = 0.0;
  double innenteilBreite_ = 0.0;
  double bedarf_ = 0.0;  ///< least width and height of whatever becomes a sash
  Zellen zellen_{1, 1};
  std::vector<Feld> felder_;
  std::vector<double> x_;  ///< places of the axes
  std::vector<double> y_;
};

}  // namespace

Fensterentwurf Zufallsentwurf(std::uint64_t seed) {
  return Entwerfer(seed).Entwirf();
}

}  // namespace lintavo::test
