// Dropping vanished sides: a linked ring (or row) of sides and a list of those that
// may have been turned round since they were last looked at.
#include "lintavo/geom/Schnittkette_intern.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// Turn from one direction to the next, in radians, -pi to pi.
double Drehung(const XY& von, const XY& nach) {
  return std::atan2(Kreuzprodukt(von, nach), Skalarprodukt(von, nach));
}

/// The sum of all turns round an outline, in radians.
double Umdrehung(std::span<const XY> wege) {
  double summe = 0.0;
  const XY* davor = &wege.back();
  for (const XY& weg : wege) {
    summe += Drehung(*davor, weg);
    davor = &weg;
  }
  return summe;
}

/// Whether a direction lies between 0 and a half turn, which belongs to the lower half.
/// Ways that turn to one side by less than a half turn each come up here once a round.
bool IstObereHaelfte(const XY& richtung) {
  return richtung.y > 0.0 || (!(richtung.y < 0.0) && richtung.x > 0.0);
}

class Kette {
 public:
  Kette(const Liste<Kettenseite>& seiten, bool geschlossen)
      : seiten_(seiten),
        geschlossen_(geschlossen),
        glieder_(seiten.size(), seiten.get_allocator()) {
    const std::size_t n = seiten.size();
    for (std::size_t i = 0; i < n; ++i) {
      glieder_[i].davor = i == 0 ? n - 1 : i - 1;
      glieder_[i].danach = i + 1 == n ? 0 : i + 1;
    }
    anzahl_ = n;
  }

  /// The corner in which side i starts.
  XY& Ecke(std::size_t i) { return glieder_[i].ecke; }
  /// The turn at that corner, with those of the sides that were dropped there. Reckoned
  /// when it is asked for, which few corners are.
  double Wendung(std::size_t i) {
    Glied& glied = glieder_[i];
    if (!glied.wendung) {
      const std::size_t davor = i == 0 ? seiten_.size() - 1 : i - 1;
      glied.wendung = Drehung(seiten_[davor].richtung, seiten_[i].richtung);
    }
    return *glied.wendung;
  }
  std::size_t Davor(std::size_t i) const { return glieder_[i].davor; }
  std::size_t Danach(std::size_t i) const { return glieder_[i].danach; }
  bool IstDa(std::size_t i) const { return glieder_[i].da; }
  std::size_t Anzahl() const { return anzahl_; }

  bool IstGedreht(std::size_t i) const {
    const XY weg = Differenz(glieder_[glieder_[i].danach].ecke, glieder_[i].ecke);
    return Skalarprodukt(weg, seiten_[i].richtung) < 0.0;
  }

  /// Joins side i's neighbours without it; false, nothing changed, for parallel ones.
  bool Loeschen(std::size_t i) {
    const std::size_t p = Davor(i);
    const std::size_t q = Danach(i);
    XY ecke;
    if (!GeradenSchneiden(seiten_[p].hinten, seiten_[q].vorn, ecke)) return false;
    glieder_[q].ecke = ecke;
    if (geschlossen_) glieder_[q].wendung = Wendung(q) + Wendung(i);
    Aushaengen(i);
    return true;
  }

  /// Takes side i out of the row without touching any corner.
  void Aushaengen(std::size_t i) {
    glieder_[Davor(i)].danach = Danach(i);
    glieder_[Danach(i)].davor = Davor(i);
    glieder_[i].da = false;
    --anzahl_;
  }

  Liste<Kettenecke> Ecken() const {
    Liste<Kettenecke> ecken(glieder_.get_allocator());
    ecken.reserve(anzahl_);
    for (std::size_t i = geschlossen_ ? 0 : 1; i < glieder_.size(); ++i) {
      if (glieder_[i].da) ecken.push_back({glieder_[i].ecke, i});
    }
    return ecken;
  }

 private:
  struct Glied {
    std::size_t davor = 0;
    std::size_t danach = 0;
    XY ecke;
    std::optional<double> wendung;
    bool da = true;
  };

  const Liste<Kettenseite>& seiten_;
  bool geschlossen_;
  Liste<Glied> glieder_;
  std::size_t anzahl_ = 0;
};

enum class Ausgang { kGeloescht, kBleibt, kLeer };

/// Judges a turned side of a convex outline by the turn of its neighbours.
Ausgang GedrehteSeite(Kette& kette, std::size_t i, int umlauf) {
  if (kette.Anzahl() <= 3) return Ausgang::kLeer;
  const double wendung = umlauf * (kette.Wendung(i) + kette.Wendung(kette.Danach(i)));
  if (wendung >= kPi - kHalbeDrehung) return Ausgang::kLeer;
  return kette.Loeschen(i) ? Ausgang::kGeloescht : Ausgang::kBleibt;
}

/// The corners of an open row. A side that goes on along the line of the side before
/// it is joined to that one; parallel neighbours beside each other keep a corner where
/// the second one says that it starts.
void EckenSchneiden(Kette& kette, const Liste<Kettenseite>& seiten) {
  for (std::size_t i = 1; i < seiten.size(); ++i) {
    const std::size_t p = kette.Davor(i);
    const Gerade& vorige = seiten[p].hinten;
    const XY start = seiten[i].vorn.punkt;
    if (GeradenSchneiden(vorige, seiten[i].vorn, kette.Ecke(i))) continue;
    kette.Ecke(i) = start;
    const double neben = Kreuzprodukt(Einheit(vorige.richtung), Differenz(start, vorige.punkt));
    const bool weiter = Skalarprodukt(vorige.richtung, seiten[i].vorn.richtung) > 0.0;
    const bool innen = p > 0 && i + 1 < seiten.size();
    if (innen && weiter && std::fabs(neben) <= kNullLaenge) kette.Aushaengen(i);
  }
}

}  // namespace

bool GeradenSchneiden(const Gerade& a, const Gerade& b, XY& p) {
  const double nenner = Kreuzprodukt(a.richtung, b.richtung);
  const double mass = Betrag(a.richtung) * Betrag(b.richtung);
  if (!(std::fabs(nenner) > kParallelSinus * mass)) return false;
  const double t = Kreuzprodukt(Differenz(b.punkt, a.punkt), b.richtung) / nenner;
  p = Summe(a.punkt, Mal(a.richtung, t));
  return true;
}

bool SindKonvex(std::span<const XY> wege, int umlauf) {
  if (wege.size() < 3) return false;
  bool gebogen = true;  // at every corner, so that the rounds can be counted
  int runden = 0;
  const XY* davor = &wege.back();
  for (const XY& weg : wege) {
    if (!(umlauf * Kreuzprodukt(*davor, weg) > 0.0)) {
      if (!(umlauf * Drehung(*davor, weg) >= -kHalbeDrehung)) return false;
      gebogen = false;
    }
    if (!IstObereHaelfte(*davor) && IstObereHaelfte(weg)) ++runden;
    davor = &weg;
  }
  return gebogen ? runden <= 1 : umlauf * Umdrehung(wege) < 3 * kPi;
}

bool HatGedrehteSeite(std::span<const XY> ecken, std::span<const XY> wege) {
  for (std::size_t i = 0; i < ecken.size(); ++i) {
    const XY& danach = ecken[i + 1 == ecken.size() ? 0 : i + 1];
    if (Skalarprodukt(Differenz(danach, ecken[i]), wege[i]) < 0.0) return true;
  }
  return false;
}

bool HatVerschwundeneSeite(std::span<const XY> ecken, std::span<const XY> wege) {
  for (std::size_t i = 0; i < ecken.size(); ++i) {
    const XY weg = Differenz(ecken[i + 1 == ecken.size() ? 0 : i + 1], ecken[i]);
    if (Skalarprodukt(weg, wege[i]) < kNullLaenge * Betrag(wege[i])) return true;
  }
  return false;
}

GeschlosseneKette VerschwundeneSeitenLoeschen(const Liste<Kettenseite>& seiten,
                                              std::span<const XY> ecken, int umlauf) {
  GeschlosseneKette ergebnis;
  const std::size_t n = seiten.size();
  if (n < 3 || ecken.size() != n) return ergebnis;

  Kette kette(seiten, true);
  for (std::size_t i = 0; i < n; ++i) kette.Ecke(i) = ecken[i];
  Liste<std::size_t> offen(n, seiten.get_allocator());
  for (std::size_t i = 0; i < n; ++i) offen[i] = n - 1 - i;
  while (!offen.empty()) {
    const std::size_t i = offen.back();
    offen.pop_back();
    if (!kette.IstDa(i) || !kette.IstGedreht(i)) continue;
    const std::size_t davor = kette.Davor(i);
    const std::size_t danach = kette.Danach(i);
    switch (GedrehteSeite(kette, i, umlauf)) {
      case Ausgang::kLeer:
        return ergebnis;
      case Ausgang::kGeloescht:
        offen.push_back(danach);
        offen.push_back(davor);
        break;
      case Ausgang::kBleibt:
        break;
    }
  }
  ergebnis.ecken = kette.Ecken();
  for (const Kettenecke& ecke : ergebnis.ecken) {
    ergebnis.gedreht = ergebnis.gedreht || kette.IstGedreht(ecke.seite);
  }
  return ergebnis;
}

Liste<Kettenecke> OffeneKetteSchneiden(const Liste<Kettenseite>& seiten) {
  if (seiten.size() < 2) return {};
  Kette kette(seiten, false);
  EckenSchneiden(kette, seiten);
  const std::size_t letzte = seiten.size() - 1;
  XY ecke;
  if (kette.Anzahl() == 2 && !GeradenSchneiden(seiten[0].hinten, seiten[letzte].vorn, ecke)) {
    return {};
  }
  Liste<std::size_t> offen(seiten.get_allocator());
  offen.reserve(seiten.size());
  for (std::size_t i = letzte; i-- > 1;) offen.push_back(i);
  while (!offen.empty()) {
    const std::size_t i = offen.back();
    offen.pop_back();
    if (!kette.IstDa(i) || !kette.IstGedreht(i)) continue;
    const std::size_t davor = kette.Davor(i);
    const std::size_t danach = kette.Danach(i);
    if (!kette.Loeschen(i)) continue;
    if (danach != letzte) offen.push_back(danach);
    if (davor != 0) offen.push_back(davor);
  }
  return kette.Ecken();
}

}  // namespace lintavo
