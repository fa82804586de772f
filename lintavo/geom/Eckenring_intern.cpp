// Thinning, turning and choosing rings of corners.
#include "lintavo/geom/Eckenring_intern.h"

#include <algorithm>
#include <utility>

#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

bool IstFrueher(const Ringecke& a, const Ringecke& b) {
  return a.quelle < b.quelle;
}

}  // namespace

Eckenring EckenVon(const GEOM2_Polygon& polygon, Speicher speicher) {
  Eckenring ring(speicher);
  ring.reserve(polygon.GetEcken().size());
  for (const GEOM2_Eckpunkt& ecke : polygon.GetEcken()) {
    ring.push_back({Ort(ecke), static_cast<int>(ring.size())});
  }
  return ring;
}

Liste<XY> Orte(const Eckenring& ring) {
  Liste<XY> orte(ring.get_allocator());
  orte.reserve(ring.size());
  for (const Ringecke& ecke : ring) orte.push_back(ecke.ort);
  return orte;
}

bool SindBrauchbar(const Eckenring& ring) {
  return std::all_of(ring.begin(), ring.end(),
                     [](const Ringecke& ecke) { return IstBrauchbar(ecke.ort); });
}

void Ausduennen(Eckenring& ring, double tol) {
  const Liste<double> tolLinie(ring.size(), tol, ring.get_allocator());
  std::size_t bleibt = 0;
  for (const std::size_t i : NoetigeEcken(Orte(ring), tolLinie, tol, ring.get_allocator())) {
    ring[bleibt++] = ring[i];
  }
  ring.resize(bleibt);
}

Flaechenring AlsFlaechenring(const Eckenring& ring) {
  Flaechenring flaeche;
  flaeche.reserve(ring.size());
  for (const Ringecke& ecke : ring) {
    flaeche.push_back({ecke.ort, static_cast<std::size_t>(ecke.quelle)});
  }
  return flaeche;
}

void SeitenUmkehren(Eckenring& ring) {
  if (ring.empty()) return;
  std::reverse(ring.begin(), ring.end());
  const Ringecke erste = ring.front();
  const auto uebernehmen = [](Ringecke& ecke, const Ringecke& von) {
    ecke.quelle = von.quelle;
    ecke.kappung = von.kappung;
  };
  for (std::size_t k = 0; k + 1 < ring.size(); ++k) uebernehmen(ring[k], ring[k + 1]);
  uebernehmen(ring.back(), erste);
}

std::vector<Eckenring> Stuecke(const std::vector<Ergebnisring>& ringe) {
  std::vector<Eckenring> stuecke;
  for (const Ergebnisring& ring : ringe) {
    Eckenring stueck;
    for (const Ergebnisecke& ecke : ring) {
      stueck.push_back({ecke.ort, static_cast<int>(ecke.kante)});
    }
    if (stueck.size() >= 3) stuecke.push_back(std::move(stueck));
  }
  return stuecke;
}

std::vector<Eckenring> SchleifenAbschneiden(const Eckenring& ring) {
  const auto ringe = FlaecheVereinigen({AlsFlaechenring(ring)}, kNullLaenge);
  return ringe.has_value() ? Stuecke(*ringe) : std::vector<Eckenring>{};
}

Eckenring Groesstes(const std::vector<Eckenring>& stuecke, int umlauf) {
  std::vector<Ringwahl> wahl;
  wahl.reserve(stuecke.size());
  for (const Eckenring& stueck : stuecke) {
    std::vector<std::size_t> quellen;
    quellen.reserve(stueck.size());
    for (const Ringecke& ecke : stueck) quellen.push_back(static_cast<std::size_t>(ecke.quelle));
    wahl.push_back(RingwahlVon(Orte(stueck), std::move(quellen)));
  }
  const std::size_t gewaehlt = Groesster(wahl);
  if (gewaehlt == stuecke.size()) return {};
  Eckenring groesstes = stuecke[gewaehlt];
  if (umlauf < 0) SeitenUmkehren(groesstes);
  std::rotate(groesstes.begin(), std::min_element(groesstes.begin(), groesstes.end(), IstFrueher),
              groesstes.end());
  return groesstes;
}

Liste<GEOM2_Eckpunkt> AlsEckpunkte(const Eckenring& ring, const GEOM2_Polygon& quelle) {
  Liste<GEOM2_Eckpunkt> ecken(ring.get_allocator());
  ecken.reserve(ring.size());
  for (const Ringecke& ecke : ring) {
    const GEOM2_Eckpunkt& alt = quelle.GetEckpunkt(ecke.quelle);
    ecken.push_back({ecke.ort.x, ecke.ort.y, 0.0, alt.dWert2, alt.Attribut});
  }
  return ecken;
}

}  // namespace lintavo
