// Cutting edges where they cross, and walking round groups of shapes.
#include "lintavo/geom/Aussenlauf_intern.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/platform/Grenzen_intern.h"

namespace lintavo {
namespace {

std::pair<std::size_t, std::size_t> Enden(const Umrisskante& k) {
  return std::minmax(k.von, k.nach);
}

/// Leaves of the edges between the same two places the earliest of the direction that
/// prevails, or none.
void Aufheben(Liste<Umrisskante>& kanten) {
  std::sort(kanten.begin(), kanten.end(), [](const Umrisskante& s, const Umrisskante& t) {
    return std::make_pair(Enden(s), s.kante) < std::make_pair(Enden(t), t.kante);
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

/// The places where edges cross, found again when several edges cross in one of them.
class Kreuzungsorte {
 public:
  explicit Kreuzungsorte(Liste<XY>& orte) : orte_(orte) {}

  std::size_t Ort(const XY& p) {
    const Zelle mitte{std::floor(p.x / kNullLaenge), std::floor(p.y / kNullLaenge)};
    for (const double dx : {-1.0, 0.0, 1.0}) {
      for (const double dy : {-1.0, 0.0, 1.0}) {
        const auto treffer = zellen_.find({mitte.first + dx, mitte.second + dy});
        if (treffer == zellen_.end()) continue;
        if (Abstand(orte_[treffer->second], p) <= kNullLaenge) return treffer->second;
      }
    }
    orte_.push_back(p);
    zellen_.emplace(mitte, orte_.size() - 1);
    return orte_.size() - 1;
  }

 private:
  using Zelle = std::pair<double, double>;
  Liste<XY>& orte_;
  std::map<Zelle, std::size_t> zellen_;
};

/// A place on an edge, at t times its length.
struct Schnitt {
  std::size_t kante;
  double t;
  std::size_t ort;
};

/// Cuts edges where others cross or touch them.
class Teilung {
 public:
  Teilung(Liste<XY>& orte, Liste<Umrisskante>& kanten)
      : orte_(orte), kanten_(kanten), kreuzungsorte_(orte) {}

  enum class Ausgang { kSauber, kGeteilt, kUnmoeglich };

  Ausgang Runde() {
    Liste<Verbindung> verbindungen(kanten_.get_allocator());
    verbindungen.reserve(kanten_.size());
    for (const Umrisskante& k : kanten_) {
      verbindungen.push_back({orte_[k.von], orte_[k.nach], k.von, k.nach});
    }
    const auto paare = Beruehrungen(verbindungen, kMaxSchnittpaare);
    if (paare.empty()) return Ausgang::kSauber;
    if (paare.size() > kMaxSchnittpaare) return Ausgang::kUnmoeglich;
    schnitte_.clear();
    for (const auto& [i, j] : paare) {
      if (!Schneiden(i, j)) return Ausgang::kUnmoeglich;
    }
    if (schnitte_.empty()) return Ausgang::kUnmoeglich;
    Teilen();
    return Ausgang::kGeteilt;
  }

 private:
  /// Ends that lie on the other edge are put onto it; failing that the edges cross.
  bool Schneiden(std::size_t i, std::size_t j) {
    const std::size_t vorher = schnitte_.size();
    for (const std::size_t ort : {kanten_[i].von, kanten_[i].nach}) Auflegen(j, ort);
    for (const std::size_t ort : {kanten_[j].von, kanten_[j].nach}) Auflegen(i, ort);
    if (schnitte_.size() > vorher) return true;
    if (kanten_[i].form == kanten_[j].form) return false;
    XY p;
    if (!GeradenSchneiden(GeradeVon(i), GeradeVon(j), p)) return false;
    const std::size_t ort = kreuzungsorte_.Ort(p);
    Auflegen(i, ort);
    Auflegen(j, ort);
    return true;
  }

  Gerade GeradeVon(std::size_t i) const {
    const XY& a = orte_[kanten_[i].von];
    return {a, Differenz(orte_[kanten_[i].nach], a)};
  }

  void Auflegen(std::size_t i, std::size_t ort) {
    const Umrisskante& k = kanten_[i];
    if (ort == k.von || ort == k.nach) return;
    const Gerade gerade = GeradeVon(i);
    const XY weg = Differenz(orte_[ort], gerade.punkt);
    const double laenge = Betrag(gerade.richtung);
    const double t = Skalarprodukt(weg, gerade.richtung) / (laenge * laenge);
    if (!(t > 0.0 && t < 1.0)) return;
    if (std::fabs(Kreuzprodukt(gerade.richtung, weg)) > kNullLaenge * laenge) return;
    schnitte_.push_back({i, t, ort});
  }

  void Teilen() {
    std::sort(schnitte_.begin(), schnitte_.end(), [](const Schnitt& s, const Schnitt& t) {
      return std::make_tuple(s.kante, s.t, s.ort) < std::make_tuple(t.kante, t.t, t.ort);
    });
    for (std::size_t k = schnitte_.size(); k-- > 0;) {
      const Schnitt& schnitt = schnitte_[k];
      Umrisskante& vorn = kanten_[schnitt.kante];
      if (vorn.nach == schnitt.ort) continue;
      Umrisskante hinten = vorn;
      hinten.von = schnitt.ort;
      hinten.ecke = kKeine;
      vorn.nach = schnitt.ort;
      kanten_.push_back(hinten);
    }
  }

  Liste<XY>& orte_;
  Liste<Umrisskante>& kanten_;
  Kreuzungsorte kreuzungsorte_;
  std::vector<Schnitt> schnitte_;
};

/// Cutting moves edges by a rounding error, so now and then another round is needed.
bool SauberTeilen(Liste<XY>& orte, Liste<Umrisskante>& kanten) {
  constexpr int kRunden = 5;
  Teilung teilung(orte, kanten);
  for (int runde = 0; runde < kRunden; ++runde) {
    switch (teilung.Runde()) {
      case Teilung::Ausgang::kSauber:
        return true;
      case Teilung::Ausgang::kUnmoeglich:
        return false;
      case Teilung::Ausgang::kGeteilt:
        Aufheben(kanten);
        break;
    }
  }
  return false;
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
  Aussenlauf(const Liste<XY>& orte, const Liste<Umrisskante>& kanten)
      : orte_(orte),
        kanten_(kanten),
        gruppe_(orte.size(), orte.get_allocator()),
        abgang_(orte.get_allocator()),
        beginn_(orte.get_allocator()) {
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
      Liste<std::size_t> weg(orte_.get_allocator());
      if (!Laufen(start, weg)) return std::nullopt;
      Liste<std::size_t> orte(orte_.get_allocator());
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
  Liste<std::size_t> Startorte() {
    Liste<std::size_t> links(orte_.size(), kKeine, orte_.get_allocator());
    Liste<std::size_t> gruppen(orte_.get_allocator());
    for (const Umrisskante& k : kanten_) {
      std::size_t& bester = links[Gruppe(k.von)];
      if (bester == kKeine) gruppen.push_back(Gruppe(k.von));
      const XY& p = orte_[k.von];
      if (bester == kKeine || p.x < orte_[bester].x ||
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

  bool Laufen(std::size_t start, Liste<std::size_t>& weg) const {
    weg.reserve(kanten_.size());
    const std::size_t erste = Weiter(start, {-1.0, 0.0});
    std::size_t kante = erste;
    do {
      if (kante >= kanten_.size() || weg.size() > kanten_.size()) return false;
      weg.push_back(kante);
      kante = Weiter(kanten_[kante].nach, Mal(Richtung(kante), -1.0));
    } while (kante != erste);
    return true;
  }

  Ergebnisring Ring(const Liste<std::size_t>& weg, const std::vector<std::size_t>& teil) const {
    Ergebnisring ring;
    ring.reserve(teil.size());
    for (const std::size_t i : teil) {
      const Umrisskante& kante = kanten_[weg[i]];
      ring.push_back({orte_[kante.von], kante.ecke, kante.kante});
    }
    return ring;
  }

  const Liste<XY>& orte_;
  const Liste<Umrisskante>& kanten_;
  Liste<std::size_t> gruppe_;
  Liste<std::size_t> abgang_;  // the edges by the place where they start
  Liste<std::size_t> beginn_;
};

}  // namespace

std::optional<std::vector<Ergebnisring>> AussenUmlaufen(Liste<XY> orte, Liste<Umrisskante> kanten) {
  Aufheben(kanten);
  if (!SauberTeilen(orte, kanten)) return std::nullopt;
  return Aussenlauf(orte, kanten).Ringe();
}

}  // namespace lintavo
