// The union of outlines: catch, unite in whole numbers, put back, thin out.
#include "lintavo/geom/PolygonVereinigung.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "lintavo/geom/Aussenlauf_intern.h"
#include "lintavo/geom/Fangen_intern.h"
#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// The shapes taken apart: all vertices in a row, and per shape its counter-clockwise
/// ring and, beside it, the vertex at which each ring edge starts as handed in.
struct Formen {
  explicit Formen(Speicher speicher)
      : ecken(speicher), quellen(speicher), ringe(speicher), kanten(speicher) {}

  Liste<Formecke> ecken;
  Liste<const GEOM2_Eckpunkt*> quellen;
  Liste<Liste<std::size_t>> ringe;
  Liste<Liste<std::size_t>> kanten;
};

/// Makes room for all shapes.
void Reservieren(const std::vector<GEOM2_Polygon>& polygone, Formen& formen) {
  std::size_t ecken = 0;
  for (const GEOM2_Polygon& polygon : polygone) ecken += polygon.GetEcken().size();
  formen.ecken.reserve(ecken);
  formen.quellen.reserve(ecken);
  formen.ringe.reserve(polygone.size());
  formen.kanten.reserve(polygone.size());
}

void Anhaengen(const GEOM2_Polygon& polygon, Formen& formen) {
  const std::size_t n = static_cast<std::size_t>(polygon.GetAnzahl());
  const std::size_t erste = formen.ecken.size();
  for (const GEOM2_Eckpunkt& ecke : polygon.GetEcken()) {
    formen.ecken.push_back({Ort(ecke), formen.ringe.size()});
    formen.quellen.push_back(&ecke);
  }
  Liste<std::size_t> ring(n, formen.ringe.get_allocator());
  Liste<std::size_t> kanten(n, formen.kanten.get_allocator());
  const bool rueckwaerts = polygon.GetFlaeche() < 0.0;
  for (std::size_t k = 0; k < n; ++k) {
    ring[k] = erste + (rueckwaerts ? (n - k) % n : k);
    kanten[k] = rueckwaerts ? erste + n - 1 - k : ring[k];
  }
  formen.ringe.push_back(std::move(ring));
  formen.kanten.push_back(std::move(kanten));
}

void BoxFuellen(const std::vector<GEOM2_Polygon>& polygone, double box[4]) {
  box[0] = box[1] = kLeereBox;
  box[2] = box[3] = -kLeereBox;
  for (const GEOM2_Polygon& polygon : polygone) {
    XY min;
    XY max;
    polygon.GetMinMax(min, max);
    box[0] = std::min(box[0], min.x);
    box[1] = std::min(box[1], min.y);
    box[2] = std::max(box[2], max.x);
    box[3] = std::max(box[3], max.y);
  }
}

bool SindBrauchbar(const Liste<Formecke>& ecken) {
  return std::all_of(ecken.begin(), ecken.end(),
                     [](const Formecke& ecke) { return IstBrauchbar(ecke.ort); });
}

/// Unites the caught shapes and makes a polygon of the largest outline.
class Vereinigung {
 public:
  Vereinigung(const Formen& formen, const Fangergebnis& fang, double tol)
      : formen_(formen), fang_(fang), tol_(tol), ecken_(fang.ringe.get_allocator()) {
    ecken_.reserve(2 * formen.ecken.size());
    for (const Liste<Fangecke>& ring : fang.ringe) {
      ecken_.insert(ecken_.end(), ring.begin(), ring.end());
    }
  }

  GEOM2_Polygon Umriss() const {
    const std::optional<std::vector<Ergebnisring>> umlaeufe = AussenUmlaufen(Plaetze(), Kanten());
    if (umlaeufe.has_value()) return AlsPolygon(Groesster(*umlaeufe));
    const std::optional<std::vector<Ergebnisring>> flaechen =
        FlaecheVereinigen(Ringe(), tol_ / kSchritteJeToleranz);
    return flaechen.has_value() ? AlsPolygon(Groesster(*flaechen)) : GEOM2_Polygon();
  }

 private:
  Liste<XY> Plaetze() const {
    Liste<XY> plaetze(ecken_.get_allocator());
    plaetze.reserve(formen_.ecken.size());
    for (const Formecke& ecke : formen_.ecken) plaetze.push_back(ecke.ort);
    return plaetze;
  }

  Liste<Umrisskante> Kanten() const {
    Liste<Umrisskante> kanten(ecken_.get_allocator());
    kanten.reserve(ecken_.size());
    for (const Liste<Fangecke>& ring : fang_.ringe) {
      for (std::size_t k = 0; k < ring.size(); ++k) {
        const Fangecke& danach = ring[k + 1 == ring.size() ? 0 : k + 1];
        kanten.push_back({ring[k].ort, danach.ort, kanten.size(), ring[k].kante,
                          formen_.ecken[ring[k].kante].form});
      }
    }
    return kanten;
  }

  std::vector<Flaechenring> Ringe() const {
    std::vector<Flaechenring> ringe;
    for (const Liste<Fangecke>& gefangen : fang_.ringe) {
      if (gefangen.empty()) continue;
      Flaechenring ring;
      ring.reserve(gefangen.size());
      for (const Fangecke& ecke : gefangen) {
        ring.push_back({formen_.ecken[ecke.ort].ort, ecke.kante});
      }
      ringe.push_back(std::move(ring));
    }
    return ringe;
  }

  std::size_t Platz(const Ergebnisecke& ecke) const {
    return ecke.ecke == kKeine ? kKeine : ecken_[ecke.ecke].ort;
  }

  std::vector<std::size_t> PlaetzeVon(const Ergebnisring& ring) const {
    std::vector<std::size_t> plaetze;
    plaetze.reserve(ring.size());
    for (const Ergebnisecke& ecke : ring) plaetze.push_back(Platz(ecke));
    return plaetze;
  }

  /// The one with the largest area; of equals the one with the earliest vertices.
  Ergebnisring Groesster(const std::vector<Ergebnisring>& ringe) const {
    if (ringe.size() == 1 && Ringflaeche(Orte(ringe[0])) > 0.0) return ringe[0];
    std::vector<Ringwahl> wahl;
    wahl.reserve(ringe.size());
    for (const Ergebnisring& ring : ringe) {
      wahl.push_back(RingwahlVon(Orte(ring), PlaetzeVon(ring)));
    }
    const std::size_t groesster = lintavo::Groesster(wahl);
    return groesster < ringe.size() ? ringe[groesster] : Ergebnisring{};
  }

  Liste<XY> Orte(const Ergebnisring& ring) const {
    Liste<XY> orte(ecken_.get_allocator());
    orte.reserve(ring.size());
    for (const Ergebnisecke& ecke : ring) orte.push_back(ecke.ort);
    return orte;
  }

  /// Where shapes meet, and where edges cross, a corner may stray from a straight line
  /// by the tolerance; a shape's own corner is real.
  double TolLinie(const Ergebnisecke& ecke) const {
    const std::size_t platz = Platz(ecke);
    return platz == kKeine || fang_.treffpunkt[platz] ? tol_ : kNullLaenge;
  }

  GEOM2_Polygon AlsPolygon(const Ergebnisring& ring) const {
    Liste<double> tolLinie(ecken_.get_allocator());
    tolLinie.reserve(ring.size());
    for (const Ergebnisecke& ecke : ring) tolLinie.push_back(TolLinie(ecke));
    Liste<std::size_t> noetig =
        NoetigeEcken(Orte(ring), tolLinie, kNullLaenge, ecken_.get_allocator());
    const auto erste = std::min_element(
        noetig.begin(), noetig.end(),
        [&](std::size_t i, std::size_t j) { return Platz(ring[i]) < Platz(ring[j]); });
    std::rotate(noetig.begin(), erste, noetig.end());
    GEOM2_Polygon polygon;
    polygon.Reservieren(static_cast<int>(noetig.size()));
    for (const std::size_t i : noetig) polygon.AddPunkt(Eckpunkt(ring[i]));
    return polygon;
  }

  GEOM2_Eckpunkt Eckpunkt(const Ergebnisecke& ecke) const {
    const GEOM2_Eckpunkt& kante = *formen_.quellen[ecke.kante];
    GEOM2_Eckpunkt neu = kante;
    if (ecke.ecke != kKeine) {
      const Fangecke& quelle = ecken_[ecke.ecke];
      neu = *formen_.quellen[quelle.eingefuegt ? quelle.ort : quelle.ecke];
    }
    neu.x = ecke.ort.x;
    neu.y = ecke.ort.y;
    neu.Attribut = kante.Attribut;
    return neu;
  }

  const Formen& formen_;
  const Fangergebnis& fang_;
  double tol_;
  Liste<Fangecke> ecken_;  // the corners of all rings in a row
};

}  // namespace
}  // namespace lintavo

bool bPolygoneAddieren(const std::vector<GEOM2_Polygon>& polygone, GEOM2_Polygon& umriss,
                       double tol, double box[4]) {
  using namespace lintavo;
  BoxFuellen(polygone, box);
  Arbeitsspeicher speicher;
  Formen formen(&speicher);
  Reservieren(polygone, formen);
  for (const GEOM2_Polygon& polygon : polygone) {
    if (polygon.GetAnzahl() >= 3) Anhaengen(polygon, formen);
  }
  GEOM2_Polygon ergebnis;
  if (!formen.ringe.empty() && SindBrauchbar(formen.ecken)) {
    const double toleranz = tol >= kNullLaenge ? tol : kNullLaenge;
    const Fangergebnis fang =
        FormenFangen(formen.ecken, formen.ringe, formen.kanten, toleranz, &speicher);
    ergebnis = Vereinigung(formen, fang, toleranz).Umriss();
  }
  umriss = std::move(ergebnis);
  return umriss.GetAnzahl() >= 3;
}
