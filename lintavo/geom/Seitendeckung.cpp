// Side matching and the overlap of outlines.
#include "lintavo/geom/Seitendeckung.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

/// Widths below this are rounding, whatever the caller asks for.
constexpr double kKleinsteBreite = kNullLaenge;

std::vector<XY> Punkte(const GEOM2_Polygon& polygon) {
  std::vector<XY> punkte;
  punkte.reserve(static_cast<std::size_t>(polygon.GetAnzahl()));
  for (int i = 0; i < polygon.GetAnzahl(); ++i) punkte.push_back(Ort(polygon.GetEckpunkt(i)));
  return punkte;
}

bool BoxenUeberlappen(const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
  XY minA, maxA, minB, maxB;
  a.GetMinMax(minA, maxA);
  b.GetMinMax(minB, maxB);
  return minA.x < maxB.x && minB.x < maxA.x && minA.y < maxB.y && minB.y < maxA.y;
}

}  // namespace

bool SeitenDecken(const XY& a1, const XY& a2, const XY& b1, const XY& b2) {
  if (Abstand(a1, a2) < Abstand(b1, b2)) return SeitenDecken(b1, b2, a1, a2);
  const double laenge = Abstand(a1, a2);
  if (!(laenge > kUeberlagerung)) return false;
  const XY richtung = Mal(Differenz(a2, a1), 1.0 / laenge);
  const XY zuB1 = Differenz(b1, a1);
  const XY zuB2 = Differenz(b2, a1);
  // A gap of exactly the tolerance, which the union closes, counts too.
  constexpr double kAbstand = kUeberlagerung + kRechenrauschen;
  if (!(std::fabs(Kreuzprodukt(richtung, zuB1)) <= kAbstand &&
        std::fabs(Kreuzprodukt(richtung, zuB2)) <= kAbstand)) {
    return false;
  }
  const double u1 = Skalarprodukt(richtung, zuB1);
  const double u2 = Skalarprodukt(richtung, zuB2);
  return std::min(laenge, std::max(u1, u2)) - std::max(0.0, std::min(u1, u2)) > kUeberlagerung;
}

bool PolygoneUeberlappen(const GEOM2_Polygon& a, const GEOM2_Polygon& b, double tol) {
  if (a.GetAnzahl() < 3 || b.GetAnzahl() < 3 || !BoxenUeberlappen(a, b)) return false;
  const double breite = tol >= kKleinsteBreite ? tol : kKleinsteBreite;
  const std::optional<double> gemeinsam =
      GemeinsameBreite(Punkte(a), Punkte(b), breite / kSchritteJeToleranz);
  return !gemeinsam.has_value() || *gemeinsam > breite;
}

}  // namespace lintavo
