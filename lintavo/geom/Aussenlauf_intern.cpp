// Walking round groups of touching shapes.
#include "lintavo/geom/Aussenlauf_intern.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

std::pair<std::size_t, std::size_t> Enden(const Umrisskante& k) {
  return std::minmax(k.von, k.nach);
}

/// Leaves of the edges between the same two places the earliest of the direction that
/// prevails, or none.
void Aufheben(std::vector<Umrisskante>& kanten) {
  std::sort(kanten.begin(), kanten.end(), [](const Umrisskante& s, const Umrisskante& t) {
    return std::make_pair(Enden(s), s.ecke) < std::make_pair(Enden(t), t.ecke);
  });
  std::size_t bleibt = 0;
  for (std::size_t i = 0; i < kanten.size();) {
    std::size_t ende = i;
    long vorwaerts = 0;
    for (; ende < kanten.size() && Enden(kanten[ende]) == Enden(kanten[i]); ++ende) {
      vorwaerts += kanten[ende].von < kanten[ende].nach ? 1 : -1;
    }
    for (std::size_t k = i; k < ende && vorwaerts != 0; ++k) {
      if ((kanten[k].von < kanten[k].nach) != (vorwaerts > 0)) continue;
      kanten[bleibt++] = kanten[k];
      break;
    }
    i = ende;
  }
  kanten.resize(bleibt);
}

/// Position of a direction when turning left from straight back: 0 is back the way one
/// came, smaller angles lie further to the right of the way. Compares like an angle.
double Linksdrehung(const XY& zurueck, const XY& richtung) {
  const double c = Skalarprodukt(zurueck, richtung);
  const double s = Kreuzprodukt(zurueck, richtung);
  const double betrag = std::fabs(c) + std::fabs(s);
  const double viertel = betrag > 0.0 ? c / betrag : 0.0;
  return s >= 0.0 ? 1.0 - viertel : 3.0 + viertel;
}

class Aussenlauf {
 public:
  Aussenlauf(const std::vector<XY>& orte, const std::vector<Umrisskante>& kanten)
      : orte_(orte), kanten_(kanten), gruppe_(orte.size()) {
    std::iota(gruppe_.begin(), gruppe_.end(), std::size_t{0});
    for (const Umrisskante& k : kanten) gruppe_[Gruppe(k.von)] = Gruppe(k.nach);
    abgang_.resize(kanten.size());
    std::iota(abgang_.begin(), abgang_.end(), std::size_t{0});
    std::sort(abgang_.begin(), abgang_.end(), [&](std::size_t i, std::size_t j) {
      return std::make_pair(kanten[i].von, i) < std::make_pair(kanten[j].von, j);
    });
    beginn_.assign(orte.size() + 1, 0);
    for (const Umrisskante& k : kanten) ++beginn_[k.von + 1];
    std::partial_sum(beginn_.begin(), beginn_.end(), beginn_.begin());
  }

  std::optional<std::vector<Ergebnisring>> Ringe() {
    std::vector<Ergebnisring> ringe;
    for (const std::size_t start : Startorte()) {
      // Left of the leftmost place there is nothing: come in from below, as it were.
      std::vector<std::size_t> weg;
      if (!Laufen(start, weg)) return std::nullopt;
      std::vector<std::size_t> orte;
      orte.reserve(weg.size());
      for (const std::size_t k : weg) orte.push_back(kanten_[k].von);
      for (const std::vector<std::size_t>& teil : AnBeruehrungenTeilen(orte)) {
        ringe.push_back(Ring(weg, teil));
      }
    }
    return ringe;
  }

 private:
  std::size_t Gruppe(std::size_t ort) {
    while (gruppe_[ort] != ort) ort = gruppe_[ort] = gruppe_[gruppe_[ort]];
    return ort;
  }

  /// Per group of connected edges its leftmost place, of several the lowest.
  std::vector<std::size_t> Startorte() {
    constexpr std::size_t keiner = kKeine;
    std::vector<std::size_t> links(orte_.size(), keiner);
    std::vector<std::size_t> gruppen;
    for (const Umrisskante& k : kanten_) {
      std::size_t& bester = links[Gruppe(k.von)];
      if (bester == keiner) gruppen.push_back(Gruppe(k.von));
      const XY& p = orte_[k.von];
      if (bester == keiner || p.x < orte_[bester].x ||
          (!(p.x > orte_[bester].x) && p.y < orte_[bester].y)) {
        bester = k.von;
      }
    }
    for (std::size_t& gruppe : gruppen) gruppe = links[gruppe];
    return gruppen;
  }

  /// The outermost way on from a place that was reached from the direction zurueck.
  std::size_t Weiter(std::size_t ort, const XY& zurueck) const {
    std::size_t beste = kKeine;
    double kleinste = 0.0;
    for (std::size_t k = beginn_[ort]; k < beginn_[ort + 1]; ++k) {
      const std::size_t kante = abgang_[k];
      const double drehung = Linksdrehung(zurueck, Richtung(kante));
      if (beste != kKeine && drehung >= kleinste) continue;
      beste = kante;
      kleinste = drehung;
    }
    return beste;
  }

  XY Richtung(std::size_t kante) const {
    return Differenz(orte_[kanten_[kante].nach], orte_[kanten_[kante].von]);
  }

  bool Laufen(std::size_t start, std::vector<std::size_t>& weg) const {
    const std::size_t erste = Weiter(start, {-1.0, 0.0});
    std::size_t kante = erste;
    do {
      if (kante == kKeine || weg.size() > kanten_.size()) return false;
      weg.push_back(kante);
      kante = Weiter(kanten_[kante].nach, Mal(Richtung(kante), -1.0));
    } while (kante != erste);
    return true;
  }

  Ergebnisring Ring(const std::vector<std::size_t>& weg,
                    const std::vector<std::size_t>& teil) const {
    Ergebnisring ring;
    ring.reserve(teil.size());
    for (const std::size_t i : teil) {
      const Umrisskante& kante = kanten_[weg[i]];
      ring.push_back({orte_[kante.von], kante.ecke, kante.kante});
    }
    return ring;
  }

  const std::vector<XY>& orte_;
  const std::vector<Umrisskante>& kanten_;
  std::vector<std::size_t> gruppe_;
  std::vector<std::size_t> abgang_;  // the edges by the place where they start
  std::vector<std::size_t> beginn_;
};

}  // namespace

std::optional<std::vector<Ergebnisring>> AussenUmlaufen(const std::vector<XY>& orte,
                                                        std::vector<Umrisskante> kanten) {
  Aufheben(kanten);
  std::vector<Verbindung> verbindungen;
  verbindungen.reserve(kanten.size());
  for (const Umrisskante& k : kanten) {
    verbindungen.push_back({orte[k.von], orte[k.nach], k.von, k.nach});
  }
  if (!BeruehrenSichNurInOrten(verbindungen)) return std::nullopt;
  return Aussenlauf(orte, kanten).Ringe();
}

}  // namespace lintavo
