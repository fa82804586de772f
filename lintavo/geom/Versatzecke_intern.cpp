// Corners of an offset, and their mitre limit.
#include "lintavo/geom/Versatzecke_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {
namespace {

bool IstFlach(const XY& a, const XY& b) {
  return std::fabs(b.y - a.y) <= std::fabs(b.x - a.x);
}

XY Links(const XY& richtung) {
  return {-richtung.y, richtung.x};
}

/// Where a line through a along richtung meets the one through b along quer.
XY Schnitt(const XY& a, const XY& richtung, const XY& b, const XY& quer) {
  const double s = Kreuzprodukt(Differenz(b, a), quer) / Kreuzprodukt(richtung, quer);
  return Summe(a, Mal(richtung, s));
}

}  // namespace

std::optional<XY> Versatz(const XY& a, const XY& b, double d) {
  const XY weg = Differenz(b, a);
  const double laenge = Betrag(weg);
  if (laenge < kNullLaenge) return std::nullopt;
  return XY{d * (weg.y / laenge), d * (-weg.x / laenge)};
}

// The intersection routine is given the corner as origin, the flatter line first and each
// line from its corner end: so the slopes of steep sides cost no digits, and edges that do
// not move give back the very corner.
bool EckeVerschieben(const Quellecke& quelle, const std::optional<XY>& vEin,
                     const std::optional<XY>& vAus, XY& neu) {
  if (!vEin || !vAus) return false;
  const XY e1 = Summe({}, *vEin);
  const XY e2 = Summe(Differenz(quelle.davor, quelle.ecke), *vEin);
  const XY a1 = Summe({}, *vAus);
  const XY a2 = Summe(Differenz(quelle.danach, quelle.ecke), *vAus);
  XY p;
  const int schnitt = IstFlach(e1, e2) ? SchnittpunktGeraden(e1, e2, a1, a2, kNullLaenge, p)
                                       : SchnittpunktGeraden(a1, a2, e1, e2, kNullLaenge, p);
  neu = Summe(quelle.ecke, p);
  return schnitt == 1 && std::isfinite(neu.x) && std::isfinite(neu.y);
}

std::optional<Kappung> EckeKappen(const Quellecke& quelle, const XY& neu, double tiefeEin,
                                  double tiefeAus, int umlauf) {
  const XY& ecke = quelle.ecke;
  const double tiefe = std::max(tiefeEin, tiefeAus);
  const double groesste = std::max(std::fabs(tiefeEin), std::fabs(tiefeAus));
  if (!(tiefe > 0.0) || !(Abstand(neu, ecke) > kGehrungsgrenze * groesste)) return std::nullopt;
  const XY ein = Einheit(Differenz(ecke, quelle.davor));
  const XY aus = Einheit(Differenz(quelle.danach, ecke));
  if (umlauf * Kreuzprodukt(ein, aus) >= 0.0) return std::nullopt;

  const XY nEin = Mal(Links(ein), umlauf);
  const XY nAus = Mal(Links(aus), umlauf);
  const bool nadel = Skalarprodukt(ein, aus) < 0.0;
  const XY halbe = Einheit(nadel ? Differenz(ein, aus) : Summe(nEin, nAus));
  if (nadel && !(Skalarprodukt(Differenz(neu, ecke), halbe) > tiefe)) return std::nullopt;
  const XY quer = nadel ? Links(halbe) : halbe;
  const XY mitte = nadel ? Summe(ecke, Mal(halbe, tiefe)) : ecke;
  return Kappung{Schnitt(Summe(ecke, Mal(nEin, tiefeEin)), ein, mitte, quer),
                 Schnitt(Summe(ecke, Mal(nAus, tiefeAus)), aus, mitte, quer), ecke};
}

}  // namespace lintavo
