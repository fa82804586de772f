#include "lintavo/geom/Seitenblick_intern.h"

#include <algorithm>
#include <cstddef>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {

void Seitenblick::Richten(const XY& a, const XY& b) {
  a_ = a;
  richtung_ = Einheit(Differenz(b, a));
  laenge_ = Abstand(a, b);
  links_.clear();
  rechts_.clear();
}

bool Seitenblick::Hinzufuegen(const std::vector<XY>& ring) {
  gesehen_.clear();
  for (const XY& ecke : ring) {
    const XY p = Differenz(ecke, a_);
    gesehen_.push_back({Skalarprodukt(richtung_, p), Kreuzprodukt(richtung_, p)});
  }
  const bool links = SeiteHinzufuegen(kNebenKante, links_);
  const bool rechts = SeiteHinzufuegen(-kNebenKante, rechts_);
  return links && rechts;
}

Abschnitte Seitenblick::Innen() {
  AbschnitteVereinigen(links_);
  AbschnitteVereinigen(rechts_);
  return GemeinsameAbschnitte(links_, rechts_);
}

// Whether a stretch leaves nothing of the edge that would be a stretch of its own.
bool Seitenblick::IstGanz(double von, double bis) const {
  return von < kNullLaenge && laenge_ - bis < kNullLaenge && bis - von >= kNullLaenge;
}

// Adds the stretches of the parallel at distance v that lie inside the ring; true when one
// is the whole edge.
bool Seitenblick::SeiteHinzufuegen(double v, Abschnitte& seite) {
  schnitte_.clear();
  for (std::size_t i = 0; i < gesehen_.size(); ++i) {
    const XY& p = gesehen_[i];
    const XY& q = gesehen_[i + 1 == gesehen_.size() ? 0 : i + 1];
    if ((p.y < v) == (q.y < v)) continue;
    // Found beside the edge, but taken where the ring meets the edge itself, so that
    // slanted borders end both sides in the same point.
    const double hoehe = std::clamp(0.0, std::min(p.y, q.y), std::max(p.y, q.y));
    schnitte_.push_back(p.x + (q.x - p.x) * ((hoehe - p.y) / (q.y - p.y)));
  }
  std::sort(schnitte_.begin(), schnitte_.end());
  // A closed ring crosses a line an even number of times.
  bool ganz = false;
  for (std::size_t i = 0; i + 1 < schnitte_.size(); i += 2) {
    seite.push_back({schnitte_[i], schnitte_[i + 1]});
    ganz = ganz || IstGanz(schnitte_[i], schnitte_[i + 1]);
  }
  return ganz;
}

Teilstueck TeilDerKante(const XY& a, const XY& b, double laenge, const Abschnitt& abschnitt) {
  return {
      abschnitt.von < kNullLaenge ? a : Zwischenpunkt(a, b, abschnitt.von / laenge),
      abschnitt.bis > laenge - kNullLaenge ? b : Zwischenpunkt(a, b, abschnitt.bis / laenge),
  };
}

}  // namespace lintavo
