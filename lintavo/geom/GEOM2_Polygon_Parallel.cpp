// The polygon's offset and clean-up.
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace {

using lintavo::kNullLaenge;

/// A vertex of the result and the source vertex whose side starts there.
struct Ecke {
  XY ort;
  int quelle = 0;
};
using Ecken = std::vector<Ecke>;

std::vector<XY> Orte(const Ecken& ecken) {
  std::vector<XY> orte;
  orte.reserve(ecken.size());
  for (const Ecke& ecke : ecken) orte.push_back(ecke.ort);
  return orte;
}

bool IstFlach(const XY& a, const XY& b) {
  return std::fabs(b.y - a.y) <= std::fabs(b.x - a.x);
}

/// The corner between the incoming edge davor->ecke and the outgoing edge ecke->danach,
/// shifted by their distances. The intersection routine is given the corner as origin,
/// the flatter line first and each line from its corner end: so the slopes of steep
/// sides cost no digits, and distances of 0 give back the very corner.
bool EckeVerschieben(const XY& davor, const XY& ecke, const XY& danach, double dEin, double dAus,
                     XY& neu) {
  const XY ein = lintavo::Differenz(davor, ecke);
  const XY aus = lintavo::Differenz(danach, ecke);
  XY e1, e2, a1, a2;
  if (StreckeParallel(ein.x, ein.y, 0.0, 0.0, dEin, kNullLaenge, e2.x, e2.y, e1.x, e1.y) != 1 ||
      StreckeParallel(0.0, 0.0, aus.x, aus.y, dAus, kNullLaenge, a1.x, a1.y, a2.x, a2.y) != 1) {
    return false;
  }
  XY p;
  const int schnitt = IstFlach(e1, e2) ? SchnittpunktGeraden(e1, e2, a1, a2, kNullLaenge, p)
                                       : SchnittpunktGeraden(a1, a2, e1, e2, kNullLaenge, p);
  neu = lintavo::Summe(ecke, p);
  return schnitt == 1 && std::isfinite(neu.x) && std::isfinite(neu.y);
}

/// Every corner of the offset; those of parallel neighbours and of edges without length
/// are left out.
Ecken EckenVerschieben(const GEOM2_Polygon& polygon, const double* abstaende) {
  Ecken ecken;
  const int n = polygon.GetAnzahl();
  ecken.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    const int davor = i == 0 ? n - 1 : i - 1;
    const int danach = i + 1 == n ? 0 : i + 1;
    XY neu;
    if (EckeVerschieben(
            lintavo::Ort(polygon.GetEckpunkt(davor)), lintavo::Ort(polygon.GetEckpunkt(i)),
            lintavo::Ort(polygon.GetEckpunkt(danach)), abstaende[davor], abstaende[i], neu)) {
      ecken.push_back({neu, i});
    }
  }
  return ecken;
}

lintavo::Gerade SeiteVerschoben(const GEOM2_Polygon& polygon, int i, double d) {
  XY a;
  XY b;
  polygon.GetKante(i, a, b);
  const XY richtung = lintavo::Differenz(b, a);
  StreckeParallel(a.x, a.y, b.x, b.y, d, kNullLaenge, a.x, a.y, b.x, b.y);
  return {a, richtung};
}

/// The sides between the corners that there are. Where corners were left out a side
/// takes in several edges: it starts on the first one's line and ends on the last one's.
std::vector<lintavo::Kettenseite> Seiten(const GEOM2_Polygon& polygon, const double* abstaende,
                                         const Ecken& ecken) {
  std::vector<lintavo::Kettenseite> seiten;
  seiten.reserve(ecken.size());
  const int n = polygon.GetAnzahl();
  for (std::size_t k = 0; k < ecken.size(); ++k) {
    const int erste = ecken[k].quelle;
    const int ende = ecken[k + 1 == ecken.size() ? 0 : k + 1].quelle;
    const int letzte = ende == 0 ? n - 1 : ende - 1;
    const lintavo::Gerade vorn = SeiteVerschoben(polygon, erste, abstaende[erste]);
    if (letzte == erste) {
      seiten.emplace_back(vorn);
      continue;
    }
    const XY weg = lintavo::Differenz(lintavo::Ort(polygon.GetEckpunkt(ende)),
                                      lintavo::Ort(polygon.GetEckpunkt(erste)));
    seiten.emplace_back(vorn, SeiteVerschoben(polygon, letzte, abstaende[letzte]), weg);
  }
  return seiten;
}

/// Puts the ring in counter-clockwise order, or back into clockwise order: each vertex
/// keeps standing for the side that starts at it.
void SeitenUmkehren(Ecken& ecken) {
  if (ecken.empty()) return;
  std::reverse(ecken.begin(), ecken.end());
  const int erste = ecken.front().quelle;
  for (std::size_t k = 0; k + 1 < ecken.size(); ++k) ecken[k].quelle = ecken[k + 1].quelle;
  ecken.back().quelle = erste;
}

/// The pieces that a calculation of areas left.
std::vector<Ecken> Stuecke(const std::vector<lintavo::Ergebnisring>& ringe) {
  std::vector<Ecken> stuecke;
  for (const lintavo::Ergebnisring& ring : ringe) {
    Ecken stueck;
    for (const lintavo::Ergebnisecke& ecke : ring) {
      stueck.push_back({ecke.ort, static_cast<int>(ecke.kante)});
    }
    if (stueck.size() >= 3) stuecke.push_back(std::move(stueck));
  }
  return stuecke;
}

bool IstFrueher(const Ecke& a, const Ecke& b) {
  return a.quelle < b.quelle;
}

/// The piece with the largest area, of equals the one with the earliest source, in the
/// orientation asked for and starting at its own earliest source.
Ecken Groesstes(const std::vector<Ecken>& stuecke, int umlauf) {
  Ecken groesstes;
  double flaeche = 0.0;
  int erste = 0;
  for (const Ecken& stueck : stuecke) {
    const double neu = lintavo::Ringflaeche(Orte(stueck));
    const int neueErste = std::min_element(stueck.begin(), stueck.end(), IstFrueher)->quelle;
    const bool gleich = std::fabs(neu - flaeche) <= lintavo::kGleicheFlaeche * flaeche;
    if (groesstes.empty() || (gleich ? neueErste < erste : neu > flaeche)) {
      groesstes = stueck;
      flaeche = neu;
      erste = neueErste;
    }
  }
  if (umlauf < 0) SeitenUmkehren(groesstes);
  std::rotate(groesstes.begin(), std::min_element(groesstes.begin(), groesstes.end(), IstFrueher),
              groesstes.end());
  return groesstes;
}

lintavo::Flaechenring AlsFlaechenring(const Ecken& ecken) {
  lintavo::Flaechenring ring;
  for (const Ecke& ecke : ecken) ring.push_back({ecke.ort, static_cast<std::size_t>(ecke.quelle)});
  return ring;
}

/// The pieces that a counter-clockwise ring leaves once its loops are cut off.
std::vector<Ecken> SchleifenAbschneiden(const Ecken& ecken) {
  const auto ringe = lintavo::FlaecheVereinigen({AlsFlaechenring(ecken)}, kNullLaenge);
  return ringe.has_value() ? Stuecke(*ringe) : std::vector<Ecken>{};
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
bool IstUeberstrichen(const Ecken& stueck, const GEOM2_Polygon& polygon, const double* abstaende,
                      int umlauf) {
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const double tiefe = -umlauf * abstaende[i];
    if (!(tiefe > 0.0)) continue;
    XY a;
    XY b;
    polygon.GetKante(i, a, b);
    if (umlauf < 0) std::swap(a, b);
    for (const Ecke& ecke : stueck) {
      if (LiegtImStreifen(ecke.ort, a, b, tiefe)) return true;
    }
  }
  return false;
}

bool SindBrauchbar(const Ecken& ecken) {
  return std::all_of(ecken.begin(), ecken.end(),
                     [](const Ecke& ecke) { return lintavo::IstBrauchbar(ecke.ort); });
}

/// The strip that edge i sweeps when a counter-clockwise ring is offset by d, to the
/// right where d is positive. Its ends are square, but reach to the offset's corner where
/// the corner opens towards the strip.
lintavo::Flaechenring Streifen(const std::vector<XY>& ring, std::size_t i, double d) {
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
  if (oeffnet(davor, a, b)) EckeVerschieben(davor, a, b, d, d, a2);
  if (oeffnet(a, b, danach)) EckeVerschieben(a, b, danach, d, d, b2);
  if (d > 0.0) return {{a, i}, {a2, i}, {b2, i}, {b, i}};
  return {{a, i}, {b, i}, {b2, i}, {a2, i}};
}

/// The offset by one distance for all edges as the outline with the strips of its edges
/// added or taken away: right for every outline, however many sides vanish and wherever
/// it falls to pieces. Nothing when the strips are too many to be reckoned with.
std::optional<std::vector<Ecken>> MitStreifen(const GEOM2_Polygon& polygon, double d, int umlauf) {
  Ecken ecken;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    ecken.push_back({lintavo::Ort(polygon.GetEckpunkt(i)), i});
  }
  if (umlauf < 0) SeitenUmkehren(ecken);
  const std::vector<XY> orte = Orte(ecken);
  std::vector<lintavo::Flaechenring> ringe{AlsFlaechenring(ecken)};
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
  return Stuecke(*gefunden);
}

/// Cuts off the loops of an offset by several distances and leaves out the pieces that
/// are turned inside out twice.
std::vector<Ecken> OhneSchleifen(Ecken ecken, const GEOM2_Polygon& polygon, const double* abstaende,
                                 int umlauf) {
  if (umlauf < 0) SeitenUmkehren(ecken);
  std::vector<Ecken> stuecke = SchleifenAbschneiden(ecken);
  std::erase_if(stuecke, [&](const Ecken& stueck) {
    return IstUeberstrichen(stueck, polygon, abstaende, umlauf);
  });
  return stuecke;
}

bool IstGleichmaessig(const double* abstaende, int anzahl) {
  return std::all_of(abstaende, abstaende + anzahl, [&](double d) {
    return std::fabs(d - abstaende[0]) <= lintavo::kParallelSinus;
  });
}

/// The vertices of a ring that it cannot do without.
Ecken Ausgeduennt(const Ecken& ecken, double tol) {
  const std::vector<double> tolLinie(ecken.size(), tol);
  Ecken noetig;
  for (const std::size_t i : lintavo::NoetigeEcken(Orte(ecken), tolLinie, tol)) {
    noetig.push_back(ecken[i]);
  }
  return noetig;
}

/// Drops the sides that the offset turned round, and cuts off what loops remain.
Ecken Entschleifen(const Ecken& roh, const GEOM2_Polygon& polygon, const double* abstaende) {
  if (roh.size() < 3) return {};
  const int umlauf = polygon.GetFlaeche() < 0.0 ? -1 : 1;
  const lintavo::GeschlosseneKette kette =
      lintavo::VerschwundeneSeitenLoeschen(Seiten(polygon, abstaende, roh), Orte(roh), umlauf);
  Ecken ecken;
  ecken.reserve(kette.ecken.size());
  for (const lintavo::Kettenecke& ecke : kette.ecken) {
    ecken.push_back({ecke.punkt, roh[ecke.seite].quelle});
  }
  if (!SindBrauchbar(ecken)) return {};
  ecken = Ausgeduennt(ecken, kNullLaenge);
  if (kette.konvex && ecken.empty()) return {};
  const bool heil = !kette.gedreht && umlauf * lintavo::Ringflaeche(Orte(ecken)) > 0.0 &&
                    (kette.konvex || lintavo::IstEinfach(Orte(ecken)));
  if (heil && (kette.konvex || kette.ecken.size() == roh.size())) return ecken;

  std::optional<std::vector<Ecken>> stuecke;
  if (IstGleichmaessig(abstaende, polygon.GetAnzahl())) {
    stuecke = MitStreifen(polygon, abstaende[0], umlauf);
  } else if (heil && !IstUeberstrichen(ecken, polygon, abstaende, umlauf)) {
    return ecken;
  }
  if (!stuecke.has_value()) stuecke = OhneSchleifen(ecken, polygon, abstaende, umlauf);
  return Groesstes(*stuecke, umlauf);
}

GEOM2_Polygon AlsPolygon(const Ecken& ecken, const GEOM2_Polygon& quelle) {
  GEOM2_Polygon polygon;
  for (const Ecke& ecke : ecken) {
    const GEOM2_Eckpunkt& alt = quelle.GetEckpunkt(ecke.quelle);
    polygon.AddPunkt(ecke.ort.x, ecke.ort.y, 0.0, alt.dWert2, alt.Attribut);
  }
  return polygon;
}

/// Cuts off loops and folds, then thins out. Rings without loops, the usual ones, are
/// recognised once they are thinned out.
Ecken Bereinigt(const Ecken& ecken, double tol, int umlauf) {
  if (!SindBrauchbar(ecken)) return {};
  Ecken duenn = Ausgeduennt(ecken, tol);
  if (duenn.empty() || lintavo::IstEinfach(Orte(duenn))) return duenn;
  Ecken ring = ecken;
  if (umlauf < 0) SeitenUmkehren(ring);
  return Ausgeduennt(Groesstes(SchleifenAbschneiden(ring), umlauf), tol);
}

}  // namespace

bool GEOM2_Polygon::Bereinigen(double tol) {
  return Bereinigen(tol, true);
}

bool GEOM2_Polygon::Bereinigen(double tol, bool schleifen) {
  if (GetAnzahl() < 2) return false;
  Ecken ecken;
  for (int i = 0; i < GetAnzahl(); ++i) ecken.push_back({lintavo::Ort(GetEckpunkt(i)), i});
  ecken = schleifen ? Bereinigt(ecken, tol, GetFlaeche() < 0.0 ? -1 : 1) : Ausgeduennt(ecken, tol);
  GEOM2_Polygon neu = AlsPolygon(ecken, *this);
  *this = std::move(neu);
  return GetAnzahl() >= 3;
}

void GEOM2_Polygon::ParallelPolygon(double d, GEOM2_Polygon& ergebnis) const {
  const std::vector<double> abstaende(ecken_.size(), d);
  GEOM2_Polygon neu;
  if (ParallelPolygon(abstaende.data(), neu, true)) ergebnis = std::move(neu);
}

bool GEOM2_Polygon::ParallelPolygon(const double* abstaende, GEOM2_Polygon& ergebnis,
                                    bool bereinigen) const {
  Ecken ecken = EckenVerschieben(*this, abstaende);
  if (bereinigen) ecken = Entschleifen(ecken, *this, abstaende);
  GEOM2_Polygon neu = AlsPolygon(ecken, *this);
  if (bereinigen) neu.Bereinigen(kNullLaenge, false);
  ergebnis.Clear();
  if (neu.GetAnzahl() < 3) return false;
  ergebnis = std::move(neu);
  return true;
}
