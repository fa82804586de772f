// The few vector words that the kernel's own sources speak. Seen along a
// direction, left is positive and counter-clockwise turns are positive.
#pragma once

#include <cmath>

#include "lintavo/geom/GEOM2_Eckpunkt.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

inline XY Differenz(const XY& a, const XY& b) {
  return {a.x - b.x, a.y - b.y};
}
inline XY Summe(const XY& a, const XY& b) {
  return {a.x + b.x, a.y + b.y};
}
inline XY Mal(const XY& a, double faktor) {
  return {a.x * faktor, a.y * faktor};
}
/// a + (b - a) * t.
inline XY Zwischenpunkt(const XY& a, const XY& b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}
inline double Skalarprodukt(const XY& a, const XY& b) {
  return a.x * b.x + a.y * b.y;
}
/// Positive when b points to the left of a.
inline double Kreuzprodukt(const XY& a, const XY& b) {
  return a.x * b.y - a.y * b.x;
}
inline double Betrag(const XY& a) {
  return std::sqrt(Skalarprodukt(a, a));
}
inline double Abstand(const XY& a, const XY& b) {
  return Betrag(Differenz(a, b));
}
/// a with length 1; (0,0) when a has no length.
inline XY Einheit(const XY& a) {
  const double laenge = Betrag(a);
  return laenge > 0.0 ? Mal(a, 1.0 / laenge) : XY{};
}
inline XY Ort(const GEOM2_Eckpunkt& ecke) {
  return {ecke.x, ecke.y};
}
/// False for NaN, infinity and coordinates that are no drawing.
inline bool IstBrauchbar(double wert) {
  return std::fabs(wert) <= kGroessteKoordinate;
}
inline bool IstBrauchbar(const XY& p) {
  return IstBrauchbar(p.x) && IstBrauchbar(p.y);
}

}  // namespace lintavo
