// Which stretches of an edge are hidden.
#include "lintavo/model/Verdeckung_intern.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// How far beside an edge its two sides are looked at.
constexpr double kNebenKante = kInnenTest;

/// An outline seen from the edge: u along it from its start, v to its left.
void VonDerKanteAus(const std::vector<XY>& ring, const XY& a, const XY& richtung,
                    std::vector<XY>& gesehen) {
  gesehen.clear();
  for (const XY& ecke : ring) {
    const XY p = Differenz(ecke, a);
    gesehen.push_back({Skalarprodukt(richtung, p), Kreuzprodukt(richtung, p)});
  }
}

/// Adds the stretches that lie inside the outline at distance v beside the edge.
void BeschatteSeite(const std::vector<XY>& gesehen, double v, std::vector<double>& schnitte,
                    std::vector<Spanne>& spannen) {
  schnitte.clear();
  for (std::size_t i = 0; i < gesehen.size(); ++i) {
    const XY& p = gesehen[i];
    const XY& q = gesehen[i + 1 == gesehen.size() ? 0 : i + 1];
    if ((p.y < v) == (q.y < v)) continue;
    // Found beside the edge, but taken where the outline meets the edge itself, so
    // that slanted outlines end both sides in the same point.
    const double hoehe = std::clamp(0.0, std::min(p.y, q.y), std::max(p.y, q.y));
    schnitte.push_back(p.x + (q.x - p.x) * ((hoehe - p.y) / (q.y - p.y)));
  }
  std::sort(schnitte.begin(), schnitte.end());
  // A closed outline crosses a line an even number of times.
  for (std::size_t i = 0; i + 1 < schnitte.size(); i += 2) {
    spannen.push_back({schnitte[i], schnitte[i + 1]});
  }
}

/// Sorts the stretches and joins those that overlap or touch.
void Vereinigen(std::vector<Spanne>& spannen) {
  std::sort(spannen.begin(), spannen.end(),
            [](const Spanne& s, const Spanne& t) { return s.von < t.von; });
  std::size_t anzahl = 0;
  for (const Spanne& spanne : spannen) {
    if (anzahl > 0 && spanne.von <= spannen[anzahl - 1].bis + kNullLaenge) {
      spannen[anzahl - 1].bis = std::max(spannen[anzahl - 1].bis, spanne.bis);
    } else {
      spannen[anzahl++] = spanne;
    }
  }
  spannen.resize(anzahl);
}

}  // namespace

void Schatten::Leeren() {
  links.clear();
  rechts.clear();
}

void Verdeckung::Hinzufuegen(const GEOM2_Polygon& umriss, std::size_t ebene) {
  if (umriss.GetAnzahl() < 3) return;
  Flaeche flaeche{{}, ebene};
  flaeche.ring.reserve(static_cast<std::size_t>(umriss.GetAnzahl()));
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    flaeche.ring.push_back(Ort(umriss.GetEckpunkt(i)));
    if (!IstBrauchbar(flaeche.ring.back())) return;
  }
  flaechen_.push_back(std::move(flaeche));
}

void Verdeckung::Sortieren() {
  std::vector<Kasten> kaesten(flaechen_.size());
  for (std::size_t i = 0; i < flaechen_.size(); ++i) {
    for (const XY& p : flaechen_[i].ring) kaesten[i].Erweitern(p);
  }
  baum_ = Kastenbaum(std::move(kaesten));
}

void Verdeckung::Beschatten(const XY& a, const XY& b, std::size_t ebene, Schatten& schatten) const {
  const XY richtung = Einheit(Differenz(b, a));
  Kasten kasten;
  kasten.Erweitern(a);
  kasten.Erweitern(b);
  std::vector<XY> gesehen;
  std::vector<double> schnitte;
  baum_.Suchen(kasten.Vergroessert(kNebenKante), [&](std::size_t i) {
    if (flaechen_[i].ebene >= ebene) return;
    VonDerKanteAus(flaechen_[i].ring, a, richtung, gesehen);
    BeschatteSeite(gesehen, kNebenKante, schnitte, schatten.links);
    BeschatteSeite(gesehen, -kNebenKante, schnitte, schatten.rechts);
  });
}

std::vector<Spanne> SichtbareSpannen(double laenge, Schatten& schatten) {
  Vereinigen(schatten.links);
  Vereinigen(schatten.rechts);
  std::vector<Spanne> sichtbar;
  double ab = 0.0;
  const auto bis = [&](double u) {
    if (u - ab >= kNullLaenge) sichtbar.push_back({ab, u});
  };
  auto links = schatten.links.begin();
  auto rechts = schatten.rechts.begin();
  while (links != schatten.links.end() && rechts != schatten.rechts.end()) {
    const double von = std::max({links->von, rechts->von, 0.0});
    const double ende = std::min({links->bis, rechts->bis, laenge});
    if (ende - von >= kNullLaenge) {
      bis(von);
      ab = ende;
    }
    ++(links->bis < rechts->bis ? links : rechts);
  }
  bis(laenge);
  return sichtbar;
}

}  // namespace lintavo
