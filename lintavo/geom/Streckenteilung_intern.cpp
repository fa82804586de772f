// Cutting a segment at the outline of a polygon.
#include "lintavo/geom/Streckenteilung_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// The polygon seen from the segment: u along it from its start, v to its left.
class Sicht {
 public:
  Sicht(const XY& a, const XY& richtung, double laenge, const GEOM2_Polygon& polygon,
        Speicher speicher)
      : laenge_(laenge), ecken_(speicher) {
    ecken_.reserve(polygon.GetEcken().size());
    for (const GEOM2_Eckpunkt& ecke : polygon.GetEcken()) {
      const XY p = Differenz(Ort(ecke), a);
      ecken_.push_back({Skalarprodukt(richtung, p), Kreuzprodukt(richtung, p)});
    }
  }

  double Laenge() const { return laenge_; }

  /// Where the segment meets the outline, ends included, in order.
  Liste<double> Schnitte(double tol) const {
    Liste<double> schnitte({0.0, laenge_}, ecken_.get_allocator());
    const auto merken = [&](double u) {
      if (u > tol && u < laenge_ - tol) schnitte.push_back(u);
    };
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      const XY& p = ecken_[i];
      const XY& q = Danach(i);
      if (std::fabs(p.y) <= tol) {
        merken(p.x);
      } else if (std::fabs(q.y) > tol && (p.y < 0.0) != (q.y < 0.0)) {
        merken(p.x + (q.x - p.x) * (p.y / (p.y - q.y)));
      }
    }
    std::sort(schnitte.begin(), schnitte.end());
    return schnitte;
  }

  /// Whether the point at u lies inside or within tol of an edge.
  bool IstInnen(double u, double tol) const {
    bool innen = false;
    for (std::size_t i = 0; i < ecken_.size(); ++i) {
      const XY p{ecken_[i].x - u, ecken_[i].y};
      const XY q{Danach(i).x - u, Danach(i).y};
      if (IstNeben(p, q, tol)) continue;
      if (AbstandVomUrsprung(p, q) <= tol) return true;
      if ((p.y < 0.0) != (q.y < 0.0)) {
        const double rechts = p.x + (q.x - p.x) * (p.y / (p.y - q.y));
        if (rechts > 0.0) innen = !innen;
      }
    }
    return innen;
  }

 private:
  const XY& Danach(std::size_t i) const { return ecken_[i + 1 == ecken_.size() ? 0 : i + 1]; }

  /// Whether an edge keeps clear of the segment's line, as most do: no need to measure it.
  static bool IstNeben(const XY& p, const XY& q, double tol) {
    const double weit = 1000 * tol;
    return (p.y > weit && q.y > weit) || (p.y < -weit && q.y < -weit);
  }

  static double AbstandVomUrsprung(const XY& p, const XY& q) {
    const XY weg = Differenz(q, p);
    const double q2 = Skalarprodukt(weg, weg);
    const double t = q2 > 0.0 ? std::clamp(-Skalarprodukt(p, weg) / q2, 0.0, 1.0) : 0.0;
    return Betrag(Zwischenpunkt(p, q, t));
  }

  double laenge_;
  Liste<XY> ecken_;
};

bool IstBrauchbar(const GEOM2_Polygon& polygon) {
  if (polygon.GetAnzahl() < 3) return false;
  return std::all_of(polygon.GetEcken().begin(), polygon.GetEcken().end(),
                     [](const GEOM2_Eckpunkt& ecke) { return lintavo::IstBrauchbar(Ort(ecke)); });
}

}  // namespace

Liste<Streckenstueck> StreckeTeilen(const XY& a, const XY& b, const GEOM2_Polygon& polygon,
                                    double tol, Speicher speicher) {
  Liste<Streckenstueck> stuecke(speicher);
  if (!lintavo::IstBrauchbar(a) || !lintavo::IstBrauchbar(b)) return stuecke;
  const double laenge = Abstand(a, b);
  if (laenge < tol) return stuecke;
  return StreckeTeilen(a, Mal(Differenz(b, a), 1.0 / laenge), laenge, polygon, tol, speicher);
}

Liste<Streckenstueck> StreckeTeilen(const XY& a, const XY& richtung, double laenge,
                                    const GEOM2_Polygon& polygon, double tol, Speicher speicher) {
  Liste<Streckenstueck> stuecke(speicher);
  if (!lintavo::IstBrauchbar(a) || !lintavo::IstBrauchbar(Summe(a, Mal(richtung, laenge)))) {
    return stuecke;
  }
  if (laenge < tol) return stuecke;
  if (!IstBrauchbar(polygon)) {
    stuecke.push_back({0.0, laenge, false});
    return stuecke;
  }

  const Sicht sicht(a, richtung, laenge, polygon, speicher);
  double von = 0.0;
  for (const double bis : sicht.Schnitte(tol)) {
    if (bis - von <= tol && bis < laenge) continue;
    if (bis <= von) continue;
    const bool innen = sicht.IstInnen(von + (bis - von) / 2, tol);
    if (!stuecke.empty() && stuecke.back().innen == innen) {
      stuecke.back().bis = bis;
    } else {
      stuecke.push_back({von, bis, innen});
    }
    von = bis;
  }
  return stuecke;
}

}  // namespace lintavo
