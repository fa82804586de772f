// The polygon's offset.
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "lintavo/geom/Eckenring_intern.h"
#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace {

using lintavo::Eckenring;
using lintavo::kNullLaenge;
using lintavo::Liste;
using lintavo::Ringecke;
using lintavo::Speicher;

bool IstFlach(const XY& a, const XY& b) {
  return std::fabs(b.y - a.y) <= std::fabs(b.x - a.x);
}

/// How far an edge moves when it is shifted by d to its right; nothing without length.
std::optional<XY> Versatz(const XY& a, const XY& b, double d) {
  const XY weg = lintavo::Differenz(b, a);
  const double laenge = lintavo::Betrag(weg);
  if (laenge < kNullLaenge) return std::nullopt;
  return XY{d * (weg.y / laenge), d * (-weg.x / laenge)};
}

/// The corner between the incoming edge davor->ecke and the outgoing edge ecke->danach,
/// each shifted. The intersection routine is given the corner as origin, the flatter line
/// first and each line from its corner end: so the slopes of steep sides cost no digits,
/// and edges that do not move give back the very corner.
bool EckeVerschieben(const XY& davor, const XY& ecke, const XY& danach,
                     const std::optional<XY>& vEin, const std::optional<XY>& vAus, XY& neu) {
  if (!vEin || !vAus) return false;
  const XY e1 = lintavo::Summe({}, *vEin);
  const XY e2 = lintavo::Summe(lintavo::Differenz(davor, ecke), *vEin);
  const XY a1 = lintavo::Summe({}, *vAus);
  const XY a2 = lintavo::Summe(lintavo::Differenz(danach, ecke), *vAus);
  XY p;
  const int schnitt = IstFlach(e1, e2) ? SchnittpunktGeraden(e1, e2, a1, a2, kNullLaenge, p)
                                       : SchnittpunktGeraden(a1, a2, e1, e2, kNullLaenge, p);
  neu = lintavo::Summe(ecke, p);
  return schnitt == 1 && std::isfinite(neu.x) && std::isfinite(neu.y);
}

/// Every corner of the offset; those of parallel neighbours and of edges without length
/// are left out.
Eckenring EckenVerschieben(const GEOM2_Polygon& polygon, const double* abstaende,
                           Speicher speicher) {
  Eckenring ring(speicher);
  const std::span<const GEOM2_Eckpunkt> ecken = polygon.GetEcken();
  if (ecken.empty()) return ring;
  ring.reserve(ecken.size());
  XY davor = lintavo::Ort(ecken.back());
  XY ecke = lintavo::Ort(ecken.front());
  std::optional<XY> vEin = Versatz(davor, ecke, abstaende[ecken.size() - 1]);
  for (std::size_t i = 0; i < ecken.size(); ++i) {
    const XY danach = lintavo::Ort(ecken[i + 1 == ecken.size() ? 0 : i + 1]);
    const std::optional<XY> vAus = Versatz(ecke, danach, abstaende[i]);
    XY neu;
    if (EckeVerschieben(davor, ecke, danach, vEin, vAus, neu)) {
      ring.push_back({neu, static_cast<int>(i)});
    }
    davor = ecke;
    ecke = danach;
    vEin = vAus;
  }
  return ring;
}

lintavo::Gerade SeiteVerschoben(const GEOM2_Polygon& polygon, int i, double d) {
  XY a;
  XY b;
  polygon.GetKante(i, a, b);
  const XY richtung = lintavo::Differenz(b, a);
  StreckeParallel(a.x, a.y, b.x, b.y, d, kNullLaenge, a.x, a.y, b.x, b.y);
  return {a, richtung};
}

/// The way of every side from the source of its corner to that of the next one.
Liste<XY> Wege(const GEOM2_Polygon& polygon, const Eckenring& ring) {
  Liste<XY> wege(ring.get_allocator());
  wege.reserve(ring.size());
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const Ringecke& danach = ring[k + 1 == ring.size() ? 0 : k + 1];
    wege.push_back(lintavo::Differenz(lintavo::Ort(polygon.GetEckpunkt(danach.quelle)),
                                      lintavo::Ort(polygon.GetEckpunkt(ring[k].quelle))));
  }
  return wege;
}

/// The sides between the corners that there are. Where corners were left out a side
/// takes in several edges: it starts on the first one's line and ends on the last one's.
Liste<lintavo::Kettenseite> Seiten(const GEOM2_Polygon& polygon, const double* abstaende,
                                   const Eckenring& ring, const Liste<XY>& wege) {
  Liste<lintavo::Kettenseite> seiten(ring.get_allocator());
  seiten.reserve(ring.size());
  const int n = polygon.GetAnzahl();
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const int erste = ring[k].quelle;
    const int ende = ring[k + 1 == ring.size() ? 0 : k + 1].quelle;
    const int letzte = ende == 0 ? n - 1 : ende - 1;
    const lintavo::Gerade vorn = SeiteVerschoben(polygon, erste, abstaende[erste]);
    if (letzte == erste) {
      seiten.emplace_back(vorn);
    } else {
      seiten.emplace_back(vorn, SeiteVerschoben(polygon, letzte, abstaende[letzte]), wege[k]);
    }
  }
  return seiten;
}

/// Whether p lies in the strip that edge ab, moved to its left by tiefe, has swept.
bool LiegtImStreifen(const XY& p, const XY& a, const XY& b, double tiefe) {
  const XY weg = lintavo::Differenz(b, a);
  const double laenge = lintavo::Betrag(weg);
  const XY zuP = lintavo::Differenz(p, a);
  const double u = lintavo::Skalarprodukt(weg, zuP) / laenge;
  const double v = lintavo::Kreuzprodukt(weg, zuP) / laenge;
  const double rand = lintavo::kBereinigenGrob;
  return u > rand && u < laenge - rand && v > rand && v < tiefe - rand;
}

/// A piece that turned inside out twice winds the right way again, but it lies where the
/// sides have swept over it.
bool IstUeberstrichen(const Eckenring& stueck, const GEOM2_Polygon& polygon,
                      const double* abstaende, int umlauf) {
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const double tiefe = -umlauf * abstaende[i];
    if (!(tiefe > 0.0)) continue;
    XY a;
    XY b;
    polygon.GetKante(i, a, b);
    if (umlauf < 0) std::swap(a, b);
    for (const Ringecke& ecke : stueck) {
      if (LiegtImStreifen(ecke.ort, a, b, tiefe)) return true;
    }
  }
  return false;
}

/// The strip that edge i sweeps when a counter-clockwise ring is offset by d, to the
/// right where d is positive. Its ends are square, but reach to the offset's corner where
/// the corner opens towards the strip.
lintavo::Flaechenring Streifen(const Liste<XY>& ring, std::size_t i, double d) {
  const std::size_t n = ring.size();
  const std::size_t j = (i + 1) % n;
  const XY& a = ring[i];
  const XY& b = ring[j];
  XY a2, b2;
  if (StreckeParallel(a.x, a.y, b.x, b.y, d, kNullLaenge, a2.x, a2.y, b2.x, b2.y) != 1) return {};
  const auto oeffnet = [&](const XY& davor, const XY& ecke, const XY& danach) {
    return d * lintavo::Kreuzprodukt(lintavo::Differenz(ecke, davor),
                                     lintavo::Differenz(danach, ecke)) >
           0.0;
  };
  const XY& davor = ring[(i + n - 1) % n];
  const XY& danach = ring[(j + 1) % n];
  const std::optional<XY> v = Versatz(a, b, d);
  if (oeffnet(davor, a, b)) EckeVerschieben(davor, a, b, Versatz(davor, a, d), v, a2);
  if (oeffnet(a, b, danach)) EckeVerschieben(a, b, danach, v, Versatz(b, danach, d), b2);
  if (d > 0.0) return {{a, i}, {a2, i}, {b2, i}, {b, i}};
  return {{a, i}, {b, i}, {b2, i}, {a2, i}};
}

/// The offset by one distance for all edges as the outline with the strips of its edges
/// added or taken away: right for every outline, however many sides vanish and wherever
/// it falls to pieces. Nothing when the strips are too many to be reckoned with.
std::optional<std::vector<Eckenring>> MitStreifen(const GEOM2_Polygon& polygon, double d,
                                                  int umlauf) {
  Eckenring ecken = lintavo::EckenVon(polygon);
  if (umlauf < 0) SeitenUmkehren(ecken);
  const Liste<XY> orte = Orte(ecken);
  std::vector<lintavo::Flaechenring> ringe{lintavo::AlsFlaechenring(ecken)};
  for (std::size_t i = 0; i < orte.size(); ++i) {
    lintavo::Flaechenring streifen = Streifen(orte, i, umlauf * d);
    for (lintavo::Flaechenecke& ecke : streifen) {
      ecke.kante = static_cast<std::size_t>(ecken[i].quelle);
    }
    if (!streifen.empty()) ringe.push_back(std::move(streifen));
  }
  const auto gefunden = umlauf * d > 0.0 ? lintavo::FlaecheVereinigen(ringe, kNullLaenge)
                                         : lintavo::FlaecheAbziehen(ringe, kNullLaenge);
  if (!gefunden.has_value()) return std::nullopt;
  return lintavo::Stuecke(*gefunden);
}

/// Cuts off the loops of an offset by several distances and leaves out the pieces that
/// are turned inside out twice.
std::vector<Eckenring> OhneSchleifen(Eckenring ring, const GEOM2_Polygon& polygon,
                                     const double* abstaende, int umlauf) {
  if (umlauf < 0) SeitenUmkehren(ring);
  std::vector<Eckenring> stuecke = lintavo::SchleifenAbschneiden(ring);
  std::erase_if(stuecke, [&](const Eckenring& stueck) {
    return IstUeberstrichen(stueck, polygon, abstaende, umlauf);
  });
  return stuecke;
}

bool IstGleichmaessig(const double* abstaende, int anzahl) {
  return std::all_of(abstaende, abstaende + anzahl, [&](double d) {
    return std::fabs(d - abstaende[0]) <= lintavo::kParallelSinus;
  });
}

/// What the corners of an offset leave once the sides that were turned round are dropped.
struct Rest {
  Eckenring ring;
  bool konvex = false;   ///< the outline turns one way only, once round
  bool gedreht = false;  ///< turned sides remain: the ring has loops
};

/// Drops the sides that the offset turned round.
Rest OhneGedrehte(const Eckenring& roh, const GEOM2_Polygon& polygon, const double* abstaende,
                  int umlauf) {
  const Liste<XY> orte = Orte(roh);
  const Liste<XY> wege = Wege(polygon, roh);
  Rest rest{Eckenring(roh, roh.get_allocator()), lintavo::SindKonvex(wege, umlauf)};
  // Usually none is.
  if (!lintavo::HatGedrehteSeite(orte, wege)) return rest;
  const lintavo::GeschlosseneKette kette = lintavo::VerschwundeneSeitenLoeschen(
      Seiten(polygon, abstaende, roh, wege), orte, umlauf, rest.konvex);
  rest.gedreht = kette.gedreht;
  rest.ring.clear();
  for (const lintavo::Kettenecke& ecke : kette.ecken) {
    rest.ring.push_back({ecke.punkt, roh[ecke.seite].quelle});
  }
  return rest;
}

/// Drops the sides that the offset turned round, and cuts off what loops remain.
Eckenring Entschleifen(const Eckenring& roh, const GEOM2_Polygon& polygon,
                       const double* abstaende) {
  if (roh.size() < 3) return {};
  const int umlauf = polygon.GetFlaeche() < 0.0 ? -1 : 1;
  auto [ring, konvex, gedreht] = OhneGedrehte(roh, polygon, abstaende, umlauf);
  if (!SindBrauchbar(ring)) return {};
  const bool vollzaehlig = ring.size() == roh.size();
  Ausduennen(ring, kNullLaenge);
  if (konvex && ring.empty()) return {};
  const Liste<XY> orte = Orte(ring);
  const bool heil = !gedreht && umlauf * lintavo::Ringflaeche(orte) > 0.0 &&
                    (konvex || lintavo::IstEinfach(orte));
  // The ring is a part of what was handed back, so it has to be moved.
  // cppcheck-suppress returnStdMoveLocal
  if (heil && (konvex || vollzaehlig)) return std::move(ring);

  std::optional<std::vector<Eckenring>> stuecke;
  if (IstGleichmaessig(abstaende, polygon.GetAnzahl())) {
    stuecke = MitStreifen(polygon, abstaende[0], umlauf);
  } else if (heil && !IstUeberstrichen(ring, polygon, abstaende, umlauf)) {
    // cppcheck-suppress returnStdMoveLocal
    return std::move(ring);
  }
  if (!stuecke.has_value()) stuecke = OhneSchleifen(ring, polygon, abstaende, umlauf);
  return lintavo::Groesstes(*stuecke, umlauf);
}

}  // namespace

void GEOM2_Polygon::ParallelPolygon(double d, GEOM2_Polygon& ergebnis) const {
  const std::vector<double> abstaende(ecken_.size(), d);
  GEOM2_Polygon neu;
  if (ParallelPolygon(abstaende.data(), neu, true)) ergebnis = std::move(neu);
}

bool GEOM2_Polygon::ParallelPolygon(const double* abstaende, GEOM2_Polygon& ergebnis,
                                    bool bereinigen) const {
  lintavo::Arbeitsspeicher speicher;
  Eckenring ring = EckenVerschieben(*this, abstaende, &speicher);
  if (bereinigen) {
    ring = Entschleifen(ring, *this, abstaende);
    Ausduennen(ring, kNullLaenge);
  }
  const Liste<GEOM2_Eckpunkt> ecken = AlsEckpunkte(ring, *this);
  ergebnis.Clear();
  if (ecken.size() < 3) return false;
  ergebnis.SetEcken(ecken);
  return true;
}
