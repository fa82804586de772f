// The free point and line routines.
#include "lintavo/geom/Geraden.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"

namespace {

struct Steigung {
  double m;
  bool senkrecht;
};

Steigung SteigungVon(const XY& p1, const XY& p2, double tol) {
  const double dx = p2.x - p1.x;
  if (std::fabs(dx) <= tol) return {lintavo::kSenkrechteSteigung, true};
  return {(p2.y - p1.y) / dx, false};
}

bool LiegtZwischen(double wert, double a, double b, double tol) {
  return std::min(a, b) - tol <= wert && wert <= std::max(a, b) + tol;
}

}  // namespace

int SchnittpunktGeraden(const XY& a1, const XY& a2, const XY& b1, const XY& b2, double tol, XY& p) {
  const Steigung a = SteigungVon(a1, a2, tol);
  const Steigung b = SteigungVon(b1, b2, tol);
  if (std::fabs(a.m) < tol && std::fabs(b.m) < tol) return 0;
  if (std::fabs(b.m - a.m) < tol) return 0;

  const double cA = a1.y - a.m * a1.x;
  const double cB = b1.y - b.m * b1.x;
  if (a.senkrecht) {
    p = {a1.x, b.m * a1.x + cB};
  } else if (b.senkrecht) {
    p = {b1.x, a.m * b1.x + cA};
  } else {
    const double x = (cA - cB) / (b.m - a.m);
    p = {x, a.m * x + cA};
  }
  return 1;
}

bool IsPunktAufStrecke(const XY& p, const XY& a, const XY& b, double tol) {
  return LiegtZwischen(p.x, a.x, b.x, tol) && LiegtZwischen(p.y, a.y, b.y, tol) &&
         std::fabs(AbstandPunktGerade(a, b, p)) <= tol;
}

double AbstandPunktGerade(const XY& a, const XY& b, const XY& p) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double px = p.x - a.x;
  const double py = p.y - a.y;
  if (std::fabs(dx) < lintavo::kNullLaenge && std::fabs(dy) < lintavo::kNullLaenge) {
    return std::sqrt(px * px + py * py);
  }
  return (dx * py - dy * px) / std::sqrt(dx * dx + dy * dy);
}

void LotFusspunkt(const XY& p, const XY& a, const XY& b, double tol, XY& fuss, double& dAbstand,
                  bool& bInnerhalb) {
  const XY punkt = p;  // fuss may be the same object
  const XY anfang = a;
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  dAbstand = 0.0;
  bInnerhalb = false;
  fuss = anfang;
  // The squared length against the plain tolerance is meant: callers are tuned to
  // segments of up to a thousandth counting as points here.
  const double q = dx * dx + dy * dy;
  if (q <= tol) return;

  const double t = ((punkt.x - anfang.x) * dx + (punkt.y - anfang.y) * dy) / q;
  fuss = {anfang.x + t * dx, anfang.y + t * dy};
  bInnerhalb = -tol < t && t < 1.0 + tol;
  dAbstand =
      std::sqrt((fuss.x - punkt.x) * (fuss.x - punkt.x) + (fuss.y - punkt.y) * (fuss.y - punkt.y));
}

int StreckeParallel(double x1, double y1, double x2, double y2, double d, double tol, double& x1n,
                    double& y1n, double& x2n, double& y2n) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  const double laenge = std::sqrt(dx * dx + dy * dy);
  if (laenge < tol) return 0;
  const double vx = d * (dy / laenge);
  const double vy = d * (-dx / laenge);
  x1n = x1 + vx;
  y1n = y1 + vy;
  x2n = x2 + vx;
  y2n = y2 + vy;
  return 1;
}
