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
#include "lintavo/geom/Versatz_intern.h"
#include "lintavo/geom/Versatzecke_intern.h"
#include "lintavo/geom/Versatzfront_intern.h"

namespace {

using lintavo::Eckenring;
using lintavo::kNullLaenge;
using lintavo::Liste;
using lintavo::Quellecke;
using lintavo::Ringecke;
using lintavo::Speicher;

/// An offset that is asked for.
struct Auftrag {
  const GEOM2_Polygon& polygon;
  const double* abstaende;
  int umlauf;  ///< of the polygon: +1 counter-clockwise, -1 clockwise

  std::size_t Anzahl() const { return polygon.GetEcken().size(); }
  XY Ecke(std::size_t i) const { return lintavo::Ort(polygon.GetEcken()[i]); }
  std::size_t Danach(std::size_t i) const { return i + 1 == Anzahl() ? 0 : i + 1; }
  std::size_t Davor(std::size_t i) const { return i == 0 ? Anzahl() - 1 : i - 1; }
  /// How deep edge i moves into the outline.
  double Tiefe(std::size_t i) const { return -umlauf * abstaende[i]; }

  bool IstGleichmaessig() const {
    return std::all_of(abstaende, abstaende + Anzahl(), [&](double d) {
      return std::fabs(d - abstaende[0]) <= lintavo::kParallelSinus;
    });
  }
  bool GehtNurNachInnen() const {
    return std::all_of(abstaende, abstaende + Anzahl(), [&](double d) { return umlauf * d <= 0; });
  }
  double GroessterAbstand() const {
    double groesster = 0.0;
    for (std::size_t i = 0; i < Anzahl(); ++i) {
      groesster = std::max(groesster, std::fabs(abstaende[i]));
    }
    return groesster;
  }
};

/// Appends the corner or, beyond the mitre limit, both ends of its cut.
void EckeAnhaengen(const Auftrag& auftrag, std::size_t i, const Quellecke& quelle, const XY& neu,
                   bool kappen, Eckenring& ring) {
  const int nummer = static_cast<int>(i);
  if (kappen) {
    if (const auto kappung = lintavo::EckeKappen(quelle, neu, auftrag.Tiefe(auftrag.Davor(i)),
                                                 auftrag.Tiefe(i), auftrag.umlauf)) {
      ring.push_back({kappung->anfang, nummer, true});
      ring.push_back({kappung->ende, nummer});
      return;
    }
  }
  ring.push_back({neu, nummer});
}

/// Every corner of the offset; those of parallel neighbours and of edges without length
/// are left out.
Eckenring EckenVerschieben(const Auftrag& auftrag, bool kappen, Speicher speicher) {
  Eckenring ring(speicher);
  const std::size_t n = auftrag.Anzahl();
  if (n == 0) return ring;
  ring.reserve(n);
  Quellecke quelle{auftrag.Ecke(n - 1), auftrag.Ecke(0), {}};
  std::optional<XY> vEin = lintavo::Versatz(quelle.davor, quelle.ecke, auftrag.abstaende[n - 1]);
  for (std::size_t i = 0; i < n; ++i) {
    quelle.danach = auftrag.Ecke(auftrag.Danach(i));
    const std::optional<XY> vAus =
        lintavo::Versatz(quelle.ecke, quelle.danach, auftrag.abstaende[i]);
    XY neu;
    if (lintavo::EckeVerschieben(quelle, vEin, vAus, neu)) {
      EckeAnhaengen(auftrag, i, quelle, neu, kappen, ring);
    }
    quelle.davor = quelle.ecke;
    quelle.ecke = quelle.danach;
    vEin = vAus;
  }
  return ring;
}

const Ringecke& Danach(const Eckenring& ring, std::size_t k) {
  return ring[k + 1 == ring.size() ? 0 : k + 1];
}

/// The way of every side from the source of its corner to that of the next one.
Liste<XY> Wege(const Auftrag& auftrag, const Eckenring& ring) {
  Liste<XY> wege(ring.get_allocator());
  wege.reserve(ring.size());
  const auto quelle = [&](const Ringecke& ecke) {
    return auftrag.Ecke(static_cast<std::size_t>(ecke.quelle));
  };
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const Ringecke& danach = Danach(ring, k);
    wege.push_back(ring[k].kappung ? lintavo::Differenz(danach.ort, ring[k].ort)
                                   : lintavo::Differenz(quelle(danach), quelle(ring[k])));
  }
  return wege;
}

/// The line of edge i, shifted or as it is.
lintavo::Gerade Kante(const Auftrag& auftrag, std::size_t i, bool verschoben) {
  XY a = auftrag.Ecke(i);
  XY b = auftrag.Ecke(auftrag.Danach(i));
  const XY richtung = lintavo::Differenz(b, a);
  if (verschoben) {
    StreckeParallel(a.x, a.y, b.x, b.y, auftrag.abstaende[i], kNullLaenge, a.x, a.y, b.x, b.y);
  }
  return {a, richtung};
}

/// The side from corner k on. Where corners were left out it takes in several edges: it
/// starts on the first one's line and ends on the last one's.
lintavo::Kettenseite Seite(const Auftrag& auftrag, const Eckenring& ring, std::size_t k,
                           const XY& weg, bool verschoben) {
  const auto erste = static_cast<std::size_t>(ring[k].quelle);
  if (ring[k].kappung) {
    return lintavo::Kettenseite({verschoben ? ring[k].ort : auftrag.Ecke(erste), weg});
  }
  const std::size_t letzte = auftrag.Davor(static_cast<std::size_t>(Danach(ring, k).quelle));
  const lintavo::Gerade vorn = Kante(auftrag, erste, verschoben);
  if (letzte == erste) return lintavo::Kettenseite(vorn);
  return {vorn, Kante(auftrag, letzte, verschoben), weg};
}

/// The strip that edge i sweeps when a counter-clockwise ring is offset by d, to the
/// right where d is positive. Its ends are square, but reach to the offset's corner, or to
/// the middle of its cut, where the corner opens towards the strip.
lintavo::Flaechenring Streifen(const Liste<XY>& ring, std::size_t i, double d) {
  const std::size_t n = ring.size();
  const std::size_t j = (i + 1) % n;
  const XY& a = ring[i];
  const XY& b = ring[j];
  XY a2, b2;
  if (StreckeParallel(a.x, a.y, b.x, b.y, d, kNullLaenge, a2.x, a2.y, b2.x, b2.y) != 1) return {};
  lintavo::Flaechenring streifen{{a, i}, {b, i}};
  const auto enden = [&](const Quellecke& ecke, XY ende, bool vorn) {
    const XY ein = lintavo::Differenz(ecke.ecke, ecke.davor);
    const XY aus = lintavo::Differenz(ecke.danach, ecke.ecke);
    std::optional<lintavo::Kappung> kappung;
    if (d * lintavo::Kreuzprodukt(ein, aus) > 0.0) {
      lintavo::EckeVerschieben(ecke, lintavo::Versatz(ecke.davor, ecke.ecke, d),
                               lintavo::Versatz(ecke.ecke, ecke.danach, d), ende);
      kappung = lintavo::EckeKappen(ecke, ende, -d, -d, 1);
    }
    if (!kappung) return streifen.push_back({ende, i});
    const XY mitte = lintavo::Zwischenpunkt(kappung->anfang, kappung->ende, 0.5);
    if (!vorn) streifen.push_back({mitte, i});
    streifen.push_back({vorn ? kappung->ende : kappung->anfang, i});
    if (vorn) streifen.push_back({mitte, i});
  };
  enden({a, b, ring[(j + 1) % n]}, b2, false);
  enden({ring[(i + n - 1) % n], a, b}, a2, true);
  if (d > 0.0) std::reverse(streifen.begin() + 1, streifen.end());
  return streifen;
}

/// The offset by one distance for all edges as the outline with the strips of its edges
/// added or taken away: right for every outline, however many sides vanish and wherever
/// it falls to pieces. Nothing when the strips are too many to be reckoned with.
std::optional<std::vector<Eckenring>> MitStreifen(const Auftrag& auftrag) {
  Eckenring ecken = lintavo::EckenVon(auftrag.polygon);
  if (auftrag.umlauf < 0) SeitenUmkehren(ecken);
  const Liste<XY> orte = Orte(ecken);
  const double d = auftrag.umlauf * auftrag.abstaende[0];
  std::vector<lintavo::Flaechenring> ringe{lintavo::AlsFlaechenring(ecken)};
  for (std::size_t i = 0; i < orte.size(); ++i) {
    lintavo::Flaechenring streifen = Streifen(orte, i, d);
    for (lintavo::Flaechenecke& ecke : streifen) {
      ecke.kante = static_cast<std::size_t>(ecken[i].quelle);
    }
    if (!streifen.empty()) ringe.push_back(std::move(streifen));
  }
  const auto gefunden = d > 0.0 ? lintavo::FlaecheVereinigen(ringe, kNullLaenge)
                                : lintavo::FlaecheAbziehen(ringe, kNullLaenge);
  if (!gefunden.has_value()) return std::nullopt;
  return lintavo::Stuecke(*gefunden);
}

/// Whether nothing of a counter-clockwise ring reaches out of the source.
bool LiegtInQuelle(const Eckenring& ring, const Auftrag& auftrag) {
  Eckenring quelle = lintavo::EckenVon(auftrag.polygon);
  if (auftrag.umlauf < 0) SeitenUmkehren(quelle);
  const auto aussen = lintavo::FlaecheAbziehen(
      {lintavo::AlsFlaechenring(ring), lintavo::AlsFlaechenring(quelle)}, kNullLaenge);
  if (!aussen.has_value()) return false;
  const std::vector<Eckenring> stuecke = lintavo::Stuecke(*aussen);
  return std::all_of(stuecke.begin(), stuecke.end(), [](const Eckenring& stueck) {
    return lintavo::Ringbreite(Orte(stueck)) <= lintavo::kBereinigenGrob;
  });
}

/// Cuts off the loops of an offset by several distances; what turned inside out twice and
/// reaches out of the source winds the right way again, but is no part of it.
std::vector<Eckenring> OhneSchleifen(Eckenring ring, const Auftrag& auftrag) {
  if (auftrag.umlauf < 0) SeitenUmkehren(ring);
  std::vector<Eckenring> stuecke = lintavo::SchleifenAbschneiden(ring);
  if (auftrag.GehtNurNachInnen()) {
    std::erase_if(stuecke,
                  [&](const Eckenring& stueck) { return !LiegtInQuelle(stueck, auftrag); });
  }
  return stuecke;
}

/// Whether a ring has an area the way round that the source goes, and no loop.
bool IstHeil(const Eckenring& ring, const Auftrag& auftrag) {
  const Liste<XY> orte = Orte(ring);
  return auftrag.umlauf * lintavo::Ringflaeche(orte) > 0.0 && lintavo::IstEinfach(orte);
}

/// The same of a ring with turned sides, which must also lie in the source if all edges
/// moved inwards.
bool IstTrotzdemHeil(Eckenring ring, const Auftrag& auftrag) {
  if (auftrag.IstGleichmaessig() || !IstHeil(ring, auftrag)) return false;
  if (auftrag.umlauf < 0) SeitenUmkehren(ring);
  return !auftrag.GehtNurNachInnen() || LiegtInQuelle(ring, auftrag);
}

/// The ring without the sides that were turned round, of which some may remain.
struct Rest {
  Eckenring ring;
  bool gedreht = false;
};

Rest AlsRest(const lintavo::GeschlosseneKette& kette, const Eckenring& roh) {
  Rest rest{Eckenring(roh.get_allocator()), kette.gedreht};
  for (const lintavo::Kettenecke& ecke : kette.ecken) {
    rest.ring.push_back({ecke.punkt, roh[ecke.seite].quelle, roh[ecke.seite].kappung});
  }
  return rest;
}

/// Of a convex outline the offset is the ring without the turned sides.
Eckenring KonvexEntschleifen(const Eckenring& roh, const Liste<XY>& wege, const Auftrag& auftrag) {
  Rest rest{Eckenring(roh, roh.get_allocator())};
  const Liste<XY> orte = Orte(roh);
  if (lintavo::HatGedrehteSeite(orte, wege)) {
    Liste<lintavo::Kettenseite> seiten(roh.get_allocator());
    seiten.reserve(roh.size());
    for (std::size_t k = 0; k < roh.size(); ++k) {
      seiten.push_back(Seite(auftrag, roh, k, wege[k], true));
    }
    rest = AlsRest(lintavo::VerschwundeneSeitenLoeschen(seiten, orte, auftrag.umlauf), roh);
  }
  if (!SindBrauchbar(rest.ring)) return {};
  Ausduennen(rest.ring, kNullLaenge);
  const bool heil = auftrag.umlauf * lintavo::Ringflaeche(Orte(rest.ring)) > 0.0;
  return heil ? std::move(rest.ring) : Eckenring{};
}

Rest FrontVerfolgen(const Eckenring& roh, const Liste<XY>& wege, const Auftrag& auftrag) {
  Liste<lintavo::Frontseite> seiten(roh.get_allocator());
  seiten.reserve(roh.size());
  for (std::size_t k = 0; k < roh.size(); ++k) {
    seiten.push_back(
        {Seite(auftrag, roh, k, wege[k], false), Seite(auftrag, roh, k, wege[k], true)});
  }
  return AlsRest(lintavo::FrontVerfolgen(seiten, Orte(roh), auftrag.GroessterAbstand()), roh);
}

/// A ring without a loop stays, whatever an edge swept on its way. Else the sides that
/// vanished are dropped, and only a ring that cuts itself even then is taken apart.
Eckenring Entschleifen(const Eckenring& roh, const Liste<XY>& wege, const Auftrag& auftrag) {
  if (!SindBrauchbar(roh)) return {};
  Rest rest{roh};
  if (lintavo::HatVerschwundeneSeite(Orte(roh), wege)) rest = FrontVerfolgen(roh, wege, auftrag);
  if (!SindBrauchbar(rest.ring)) return {};
  Ausduennen(rest.ring, kNullLaenge);
  const bool heil =
      rest.gedreht ? IstTrotzdemHeil(rest.ring, auftrag) : IstHeil(rest.ring, auftrag);
  // cppcheck-suppress returnStdMoveLocal
  if (heil) return std::move(rest.ring);
  if (IstTrotzdemHeil(roh, auftrag)) return roh;

  std::optional<std::vector<Eckenring>> stuecke;
  if (auftrag.IstGleichmaessig()) stuecke = MitStreifen(auftrag);
  if (!stuecke.has_value()) stuecke = OhneSchleifen(std::move(rest.ring), auftrag);
  return lintavo::Groesstes(*stuecke, auftrag.umlauf);
}

Auftrag AlsAuftrag(const GEOM2_Polygon& polygon, const double* abstaende) {
  return {polygon, abstaende, polygon.GetFlaeche() < 0.0 ? -1 : 1};
}

}  // namespace

lintavo::Eckenring lintavo::Versetzt(const GEOM2_Polygon& polygon, const double* abstaende,
                                     Speicher speicher) {
  const Auftrag auftrag = AlsAuftrag(polygon, abstaende);
  Eckenring ring = EckenVerschieben(auftrag, true, speicher);
  if (ring.size() < 3) return {};
  const Liste<XY> wege = Wege(auftrag, ring);
  ring = SindKonvex(wege, auftrag.umlauf) ? KonvexEntschleifen(ring, wege, auftrag)
                                          : Entschleifen(ring, wege, auftrag);
  Ausduennen(ring, kNullLaenge);
  return ring;
}

void GEOM2_Polygon::ParallelPolygon(double d, GEOM2_Polygon& ergebnis) const {
  const std::vector<double> abstaende(ecken_.size(), d);
  GEOM2_Polygon neu;
  if (ParallelPolygon(abstaende.data(), neu, true)) ergebnis = std::move(neu);
}

bool GEOM2_Polygon::ParallelPolygon(const double* abstaende, GEOM2_Polygon& ergebnis,
                                    bool bereinigen) const {
  lintavo::Arbeitsspeicher speicher;
  const Eckenring ring = bereinigen
                             ? lintavo::Versetzt(*this, abstaende, &speicher)
                             : EckenVerschieben(AlsAuftrag(*this, abstaende), false, &speicher);
  const Liste<GEOM2_Eckpunkt> ecken = AlsEckpunkte(ring, *this);
  ergebnis.Clear();
  if (ecken.size() < 3) return false;
  ergebnis.SetEcken(ecken);
  return true;
}
