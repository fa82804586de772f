// Set operations on areas: to whole numbers, through the clipping library, and back.
#include "lintavo/geom/Flaechenrechnung_intern.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <numeric>

#include "lintavo/geom/Ganzzahlraster_intern.h"
#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/platform/Grenzen_intern.h"

namespace lintavo {
namespace {

using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

/// By how many steps rounding may shift a crossing from its edges.
constexpr double kRundung = 3.0;

bool Kleiner(const IntPoint& a, const IntPoint& b) {
  return a.X != b.X ? a.X < b.X : a.Y < b.Y;
}

XY AlsXY(const IntPoint& p) {
  return {static_cast<double>(p.X), static_cast<double>(p.Y)};
}

/// Every corner handed in, on the grid, and found again by its place.
class Eckenverzeichnis {
 public:
  Eckenverzeichnis(const std::vector<Flaechenring>& ringe, const Ganzzahlraster& raster) {
    for (const Flaechenring& ring : ringe) {
      const std::size_t erste = ecken_.size();
      const std::size_t n = ring.size();
      for (std::size_t i = 0; i < n; ++i) {
        ecken_.push_back(
            {ring[i], raster.Ganz(ring[i].ort), erste + (i + n - 1) % n, erste + (i + 1) % n});
      }
    }
    for (std::size_t i = 0; i < ecken_.size(); ++i) nachOrt_.push_back(i);
    std::sort(nachOrt_.begin(), nachOrt_.end(), [this](std::size_t i, std::size_t j) {
      const IntPoint& a = ecken_[i].ganz;
      const IntPoint& b = ecken_[j].ganz;
      return a == b ? i < j : Kleiner(a, b);
    });
  }

  struct Eintrag {
    Flaechenecke quelle;
    IntPoint ganz;
    std::size_t davor;
    std::size_t danach;
  };

  const Eintrag& operator[](std::size_t i) const { return ecken_[i]; }
  std::size_t Anzahl() const { return ecken_.size(); }

  /// The corners at one place, lowest number first.
  std::pair<const std::size_t*, const std::size_t*> Hier(const IntPoint& p) const {
    const auto [von, bis] =
        std::equal_range(nachOrt_.begin(), nachOrt_.end(), p, Vergleich{ecken_});
    return {nachOrt_.data() + (von - nachOrt_.begin()), nachOrt_.data() + (bis - nachOrt_.begin())};
  }

 private:
  struct Vergleich {
    const std::vector<Eintrag>& ecken;
    bool operator()(std::size_t i, const IntPoint& p) const { return Kleiner(ecken[i].ganz, p); }
    bool operator()(const IntPoint& p, std::size_t i) const { return Kleiner(p, ecken[i].ganz); }
  };

  std::vector<Eintrag> ecken_;
  std::vector<std::size_t> nachOrt_;
};

/// Finds out where the corners and edges of a resulting path come from.
class Herkunft {
 public:
  Herkunft(const Eckenverzeichnis& ecken, const Ganzzahlraster& raster)
      : ecken_(ecken), raster_(raster) {}

  Ergebnisring Zurueck(const Path& pfad) const {
    const std::size_t n = pfad.size();
    std::vector<std::size_t> kanten(n);  // by the corner in which the source edge starts
    for (std::size_t i = 0; i < n; ++i) kanten[i] = Kante(pfad[i], pfad[(i + 1) % n]);
    Ergebnisring ring;
    ring.reserve(n);
    for (std::size_t i = 0; i < n; ++i) {
      const std::size_t ein = kanten[(i + n - 1) % n];
      const std::size_t aus = kanten[i];
      const std::size_t ecke = Ecke(pfad[i], aus);
      const XY ort = ecke == kKeine ? Kreuzung(pfad[i], ein, aus) : ecken_[ecke].quelle.ort;
      ring.push_back({ort, ecke, ecken_[aus].quelle.kante});
    }
    KreuzungenAnEckenLoeschen(ring);
    return ring;
  }

 private:
  /// How badly the edge that starts at corner k carries the way from a to b.
  double Abweichung(std::size_t k, const XY& a, const XY& b) const {
    const XY von = AlsXY(ecken_[k].ganz);
    const XY bis = AlsXY(ecken_[ecken_[k].danach].ganz);
    const XY weg = Differenz(bis, von);
    const double laenge = Betrag(weg);
    constexpr double kUnmoeglich = std::numeric_limits<double>::infinity();
    if (!(laenge > 0.0)) return kUnmoeglich;
    const XY mitte = Zwischenpunkt(a, b, 0.5);
    const double entlang = Skalarprodukt(weg, Differenz(mitte, von)) / laenge;
    if (entlang < -kRundung || entlang > laenge + kRundung) return kUnmoeglich;
    return std::max(std::fabs(Kreuzprodukt(weg, Differenz(a, von))),
                    std::fabs(Kreuzprodukt(weg, Differenz(b, von)))) /
           laenge;
  }

  std::size_t Kante(const IntPoint& a, const IntPoint& b) const {
    const XY von = AlsXY(a);
    const XY bis = AlsXY(b);
    std::size_t beste = kKeine;
    double kleinste = kRundung;
    const auto pruefen = [&](std::size_t k) {
      const double abweichung = Abweichung(k, von, bis);
      if (abweichung < kleinste) {
        kleinste = abweichung;
        beste = k;
      }
    };
    const auto [vonHier, bisHier] = ecken_.Hier(a);
    for (const std::size_t* k = vonHier; k != bisHier; ++k) pruefen(*k);
    if (beste != kKeine) return beste;
    const auto [vonDort, bisDort] = ecken_.Hier(b);
    for (const std::size_t* k = vonDort; k != bisDort; ++k) pruefen(ecken_[*k].davor);
    if (beste != kKeine) return beste;
    for (std::size_t k = 0; k < ecken_.Anzahl(); ++k) pruefen(k);
    if (beste != kKeine) return beste;
    return vonHier != bisHier ? *vonHier : 0;
  }

  std::size_t Ecke(const IntPoint& p, std::size_t kante) const {
    const auto [von, bis] = ecken_.Hier(p);
    if (von == bis) return kKeine;
    const std::size_t* k = std::find(von, bis, kante);
    return k != bis ? *k : *von;
  }

  Gerade GeradeVon(std::size_t kante) const {
    const XY& a = ecken_[kante].quelle.ort;
    return {a, Differenz(ecken_[ecken_[kante].danach].quelle.ort, a)};
  }

  /// The crossing of two edges, reckoned anew in doubles. Rounding moves it far along
  /// edges that meet at a small angle, such as neighbours in an arch.
  XY Kreuzung(const IntPoint& p, std::size_t ein, std::size_t aus) const {
    const XY gerundet = raster_.Doppelt(p);
    const Gerade a = GeradeVon(ein);
    const Gerade b = GeradeVon(aus);
    XY genau;
    if (!GeradenSchneiden(a, b, genau)) return gerundet;
    const double sinus = std::fabs(Kreuzprodukt(Einheit(a.richtung), Einheit(b.richtung)));
    const double quer = 2 * kRundung * raster_.Schritt();
    const double laengs = std::max(quer, std::min(quer / sinus, kVereinigung));
    return Abstand(genau, gerundet) <= laengs ? genau : gerundet;
  }

  /// Rounding can put a crossing beside a corner that it belongs to.
  void KreuzungenAnEckenLoeschen(Ergebnisring& ring) const {
    const double nahe = 2 * kRundung * raster_.Schritt();
    Ergebnisring rein;
    rein.reserve(ring.size());
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Ergebnisecke& davor = ring[(i + ring.size() - 1) % ring.size()];
      const Ergebnisecke& danach = ring[(i + 1) % ring.size()];
      const bool anDavor = davor.ecke != kKeine && Abstand(ring[i].ort, davor.ort) <= nahe;
      const bool anDanach = danach.ecke != kKeine && Abstand(ring[i].ort, danach.ort) <= nahe;
      if (ring[i].ecke != kKeine || !(anDavor || anDanach)) {
        rein.push_back(ring[i]);
      } else if (anDavor && !rein.empty()) {
        rein.back().kante = ring[i].kante;
      }
    }
    ring = std::move(rein);
  }

  const Eckenverzeichnis& ecken_;
  const Ganzzahlraster& raster_;
};

/// Whether p lies within rounding of the inside of ab.
bool LiegtAuf(const IntPoint& p, const IntPoint& a, const IntPoint& b) {
  const XY weg = Differenz(AlsXY(b), AlsXY(a));
  const XY zuP = Differenz(AlsXY(p), AlsXY(a));
  const double laenge = Betrag(weg);
  const double entlang = Skalarprodukt(weg, zuP);
  return entlang > kRundung * laenge && entlang < laenge * (laenge - kRundung) &&
         std::fabs(Kreuzprodukt(weg, zuP)) <= kRundung * laenge;
}

/// Makes narrow passages narrower than rounding into touches: corners almost in one place
/// are put into one, corners almost on an edge are put onto it.
Path EngstellenSchliessen(Path pfad) {
  const std::size_t n = pfad.size();
  if (n > kMaxEngstellenEcken) return pfad;
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = i + 2; j < n; ++j) {
      if (i == 0 && j + 1 == n) continue;
      if (Abstand(AlsXY(pfad[i]), AlsXY(pfad[j])) <= kRundung) pfad[j] = pfad[i];
    }
  }
  Path voll;
  for (std::size_t i = 0; i < n; ++i) {
    const IntPoint& a = pfad[i];
    const IntPoint& b = pfad[(i + 1) % n];
    const std::size_t erste = voll.size();
    voll.push_back(a);
    for (const IntPoint& p : pfad) {
      if (LiegtAuf(p, a, b)) voll.push_back(p);
    }
    std::sort(voll.begin() + static_cast<std::ptrdiff_t>(erste), voll.end(),
              [&](const IntPoint& p, const IntPoint& q) {
                return Abstand(AlsXY(a), AlsXY(p)) < Abstand(AlsXY(a), AlsXY(q));
              });
  }
  return voll;
}

/// A number for every corner of a path, equal for equal places.
std::vector<std::size_t> Orte(const Path& pfad) {
  std::vector<std::size_t> ordnung(pfad.size());
  std::iota(ordnung.begin(), ordnung.end(), std::size_t{0});
  std::sort(ordnung.begin(), ordnung.end(),
            [&](std::size_t i, std::size_t j) { return Kleiner(pfad[i], pfad[j]); });
  std::vector<std::size_t> orte(pfad.size());
  for (std::size_t k = 0; k < ordnung.size(); ++k) {
    const bool gleich = k > 0 && pfad[ordnung[k]] == pfad[ordnung[k - 1]];
    orte[ordnung[k]] = gleich ? orte[ordnung[k - 1]] : ordnung[k];
  }
  return orte;
}

/// The library releases memory twice where it runs out inside of it. So it is only
/// started while there is as much as it can take, else std::bad_alloc is thrown here.
void SpeicherSichern(std::size_t kanten, std::size_t beruehrungen) {
  constexpr std::size_t kJeKanteOderBeruehrung = 256;  // an edge, or a crossing's points
  constexpr std::size_t kImmer = 65536;
  ::operator delete(::operator new(kImmer + kJeKanteOderBeruehrung * (kanten + beruehrungen)));
}

bool Rechnen(ClipperLib::Clipper& clipper, ClipperLib::ClipType art, Paths& ergebnis) {
  try {
    return clipper.Execute(art, ergebnis, ClipperLib::pftPositive, ClipperLib::pftPositive);
  } catch (const ClipperLib::clipperException&) {
    return false;  // a number out of its range: no result
  }
}

Path Gegenuhrzeigersinn(const std::vector<XY>& ring, const Ganzzahlraster& raster) {
  Path pfad;
  pfad.reserve(ring.size());
  for (const XY& p : ring) pfad.push_back(raster.Ganz(p));
  if (!ClipperLib::Orientation(pfad)) ClipperLib::ReversePath(pfad);
  return pfad;
}

double Breite(const Path& pfad, const Ganzzahlraster& raster) {
  std::vector<XY> ring;
  for (const IntPoint& p : pfad) ring.push_back(raster.Doppelt(p));
  return Ringbreite(ring);
}

/// False when the edges touch too often to be reckoned with.
bool Entwirrbar(const std::vector<Verbindung>& kanten) {
  const std::size_t beruehrungen = Beruehrungen(kanten, kMaxBeruehrungen).size();
  if (beruehrungen > kMaxBeruehrungen) return false;
  SpeicherSichern(kanten.size(), beruehrungen);
  return true;
}

bool Entwirrbar(const std::vector<Flaechenring>& ringe) {
  std::vector<Verbindung> kanten;
  for (const Flaechenring& ring : ringe) {
    std::vector<XY> orte;
    for (const Flaechenecke& ecke : ring) orte.push_back(ecke.ort);
    VerbindungenAnhaengen(orte, kanten.size(), kanten);
  }
  return Entwirrbar(kanten);
}

std::optional<std::vector<Ergebnisring>> Verrechnen(const std::vector<Flaechenring>& ringe,
                                                    ClipperLib::ClipType art, double aufloesung) {
  Ganzzahlraster raster;
  for (const Flaechenring& ring : ringe) {
    for (const Flaechenecke& ecke : ring) raster.Aufnehmen(ecke.ort);
  }
  std::vector<Ergebnisring> ergebnis;
  if (!raster.Einrichten(aufloesung)) return ergebnis;
  if (!Entwirrbar(ringe)) return std::nullopt;

  const Eckenverzeichnis ecken(ringe, raster);
  ClipperLib::Clipper clipper;
  ClipperLib::PolyType rolle = ClipperLib::ptSubject;
  std::size_t k = 0;
  for (const Flaechenring& ring : ringe) {
    Path pfad;
    for (std::size_t i = 0; i < ring.size(); ++i) pfad.push_back(ecken[k++].ganz);
    clipper.AddPath(pfad, rolle, true);
    if (art == ClipperLib::ctDifference) rolle = ClipperLib::ptClip;
  }
  Paths pfade;
  if (!Rechnen(clipper, art, pfade)) return ergebnis;
  const Herkunft herkunft(ecken, raster);
  for (const Path& gefunden : pfade) {
    const Path pfad = EngstellenSchliessen(gefunden);
    for (const std::vector<std::size_t>& nummern : AnBeruehrungenTeilen(Orte(pfad))) {
      Path teil;
      for (const std::size_t i : nummern) teil.push_back(pfad[i]);
      if (ClipperLib::Area(teil) > 0.0) ergebnis.push_back(herkunft.Zurueck(teil));
    }
  }
  return ergebnis;
}

}  // namespace

std::optional<std::vector<Ergebnisring>> FlaecheVereinigen(const std::vector<Flaechenring>& ringe,
                                                           double aufloesung) {
  return Verrechnen(ringe, ClipperLib::ctUnion, aufloesung);
}

std::optional<std::vector<Ergebnisring>> FlaecheAbziehen(const std::vector<Flaechenring>& ringe,
                                                         double aufloesung) {
  return Verrechnen(ringe, ClipperLib::ctDifference, aufloesung);
}

std::optional<double> GemeinsameBreite(const std::vector<XY>& a, const std::vector<XY>& b,
                                       double aufloesung) {
  Ganzzahlraster raster;
  for (const XY& p : a) raster.Aufnehmen(p);
  for (const XY& p : b) raster.Aufnehmen(p);
  if (!raster.Einrichten(aufloesung)) return 0.0;
  std::vector<Verbindung> kanten;
  VerbindungenAnhaengen(a, 0, kanten);
  VerbindungenAnhaengen(b, a.size(), kanten);
  if (!Entwirrbar(kanten)) return std::nullopt;
  ClipperLib::Clipper clipper;
  clipper.AddPath(Gegenuhrzeigersinn(a, raster), ClipperLib::ptSubject, true);
  clipper.AddPath(Gegenuhrzeigersinn(b, raster), ClipperLib::ptClip, true);
  Paths pfade;
  if (!Rechnen(clipper, ClipperLib::ctIntersection, pfade)) return 0.0;
  double groesste = 0.0;
  for (const Path& pfad : pfade) groesste = std::max(groesste, Breite(pfad, raster));
  return groesste;
}

}  // namespace lintavo
