// Cutting edges to one outline and to an area of several.
#include "lintavo/geom/KanteClippen.h"

#include <algorithm>
#include <cstddef>

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/Streckenteilung_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

using lintavo::Abschnitte;
using lintavo::kNullLaenge;

namespace {

/// How far beside an edge its two sides are looked at.
constexpr double kNebenKante = lintavo::kInnenTest;

/// An area of polygons as an edge ab sees it: u along the edge from its start, v to its
/// left. Gathers what the polygons hold of both sides of the edge.
class Seitenblick {
 public:
  Seitenblick(const XY& a, const XY& b)
      : a_(a), b_(b), richtung_(lintavo::Einheit(lintavo::Differenz(b, a))) {}

  void Hinzufuegen(const GEOM2_Polygon& polygon) {
    if (polygon.GetAnzahl() < 3 || !IstNahe(polygon)) return;
    ecken_.clear();
    for (int i = 0; i < polygon.GetAnzahl(); ++i) {
      const XY ecke = lintavo::Ort(polygon.GetEckpunkt(i));
      if (!lintavo::IstBrauchbar(ecke)) return;
      const XY p = lintavo::Differenz(ecke, a_);
      ecken_.push_back({lintavo::Skalarprodukt(richtung_, p), lintavo::Kreuzprodukt(richtung_, p)});
    }
    SeiteHinzufuegen(kNebenKante, links_);
    SeiteHinzufuegen(-kNebenKante, rechts_);
  }

  /// The stretches of the edge that have the area on both sides, in order.
  Abschnitte Innen() {
    lintavo::AbschnitteVereinigen(links_);
    lintavo::AbschnitteVereinigen(rechts_);
    return lintavo::GemeinsameAbschnitte(links_, rechts_);
  }

 private:
  bool IstNahe(const GEOM2_Polygon& polygon) const {
    XY min;
    XY max;
    polygon.GetMinMax(min, max);
    return min.x <= std::max(a_.x, b_.x) + kNebenKante &&
           max.x >= std::min(a_.x, b_.x) - kNebenKante &&
           min.y <= std::max(a_.y, b_.y) + kNebenKante &&
           max.y >= std::min(a_.y, b_.y) - kNebenKante;
  }

  /// Adds the stretches of the parallel at v that lie inside the polygon.
  void SeiteHinzufuegen(double v, Abschnitte& seite) {
    schnitte_.clear();
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      const XY& p = ecken_[i];
      const XY& q = ecken_[i + 1 == ecken_.size() ? 0 : i + 1];
      if ((p.y < v) == (q.y < v)) continue;
      // Whether there is a crossing is asked on the parallel, where it lies on the edge
      // itself: so both sides end in the same point of a slanted border.
      const double hoehe = std::clamp(0.0, std::min(p.y, q.y), std::max(p.y, q.y));
      schnitte_.push_back(p.x + (q.x - p.x) * ((hoehe - p.y) / (q.y - p.y)));
    }
    std::sort(schnitte_.begin(), schnitte_.end());
    // A closed border crosses a line an even number of times.
    for (std::size_t i = 0; i + 1 < schnitte_.size(); i += 2) {
      seite.push_back({schnitte_[i], schnitte_[i + 1]});
    }
  }

  XY a_;
  XY b_;
  XY richtung_;
  std::vector<XY> ecken_;
  std::vector<double> schnitte_;
  Abschnitte links_;
  Abschnitte rechts_;
};

}  // namespace

bool ClippKante(const GEOM2_Polygon& polygon, CMStrecke& kante) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  if (polygon.StreckeClippen(a, b)) {
    kante.SetPunkte(a, b);
    return true;
  }
  // Nothing cut away: wholly inside or wholly outside.
  const auto stuecke = lintavo::StreckeTeilen(a, b, polygon, kNullLaenge);
  return !stuecke.empty() && stuecke.front().innen;
}

bool ClippKanteAnPolys(const CMStrecke& kante, const std::vector<GEOM2_Polygon>& polys,
                       std::vector<CMStrecke>& teile, bool bInnen) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  if (!lintavo::IstBrauchbar(a) || !lintavo::IstBrauchbar(b)) return false;
  const double laenge = lintavo::Abstand(a, b);
  if (laenge < kNullLaenge) return false;

  Seitenblick blick(a, b);
  for (const GEOM2_Polygon& polygon : polys) blick.Hinzufuegen(polygon);
  const Abschnitte ganze{{0.0, laenge}};
  const Abschnitte bleibt = bInnen ? lintavo::GemeinsameAbschnitte(ganze, blick.Innen())
                                   : lintavo::UebrigeAbschnitte(ganze, blick.Innen());
  // The list may hold the edge itself.
  CMStrecke teil = kante;
  for (const lintavo::Abschnitt& abschnitt : bleibt) {
    const bool amAnfang = abschnitt.von < kNullLaenge;
    const bool amEnde = abschnitt.bis > laenge - kNullLaenge;
    teil.SetPunkte(amAnfang ? a : lintavo::Zwischenpunkt(a, b, abschnitt.von / laenge),
                   amEnde ? b : lintavo::Zwischenpunkt(a, b, abschnitt.bis / laenge));
    teile.push_back(teil);
  }
  return !bleibt.empty();
}
