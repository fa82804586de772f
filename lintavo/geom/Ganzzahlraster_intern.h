// From doubles to the whole numbers that the clipping library reckons in.
#pragma once

#include <algorithm>
#include <cmath>
#include <polyclipping/clipper.hpp>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {

/// A grid centred on the points it was made for. The library is fast while numbers stay
/// below 2^30: larger ones are used only where that would be too coarse. It also now and
/// then leaves shapes apart that share a horizontal edge, so the grid is turned by an angle
/// that no drawing has.
class Ganzzahlraster {
 public:
  /// Widens the box of what will be mapped.
  void Aufnehmen(const XY& p) {
    brauchbar_ = brauchbar_ && IstBrauchbar(p);
    min_ = {std::min(min_.x, p.x), std::min(min_.y, p.y)};
    max_ = {std::max(max_.x, p.x), std::max(max_.y, p.y)};
  }
  /// False when nothing, or something that is no drawing, was taken up.
  bool Einrichten(double aufloesung) {
    if (!brauchbar_ || max_.x < min_.x) return false;
    mitte_ = Zwischenpunkt(min_, max_, 0.5);
    const double halb = std::max({max_.x - min_.x, max_.y - min_.y, kNullLaenge}) / 2;
    const int schnell = std::min(kSchnelleBits - std::ilogb(halb) - 1, kFeinsteStufe);
    const int noetig = -std::ilogb(std::max(aufloesung, kNullLaenge / 2)) + 1;
    faktor_ = std::ldexp(1.0, std::max(schnell, noetig));
    return true;
  }
  ClipperLib::IntPoint Ganz(const XY& p) const {
    const XY q = Mal(Differenz(p, mitte_), faktor_);
    return {std::llround(q.x * kCos - q.y * kSin), std::llround(q.x * kSin + q.y * kCos)};
  }
  XY Doppelt(const ClipperLib::IntPoint& p) const {
    const double x = static_cast<double>(p.X) / faktor_;
    const double y = static_cast<double>(p.Y) / faktor_;
    return {x * kCos + y * kSin + mitte_.x, y * kCos - x * kSin + mitte_.y};
  }
  /// Length of one step.
  double Schritt() const { return 1.0 / faktor_; }

 private:
  /// Room for the turned diagonal below 2^30.
  static constexpr int kSchnelleBits = 29;
  static constexpr double kCos = 0.9319652640707048;  // of 0.371 radians
  static constexpr double kSin = 0.3625475783474792;
  /// Finer steps than 2^-30 tell nothing apart that is not the same corner.
  static constexpr int kFeinsteStufe = 30;

  bool brauchbar_ = true;
  XY min_{kLeereBox, kLeereBox};
  XY max_{-kLeereBox, -kLeereBox};
  XY mitte_;
  double faktor_ = 1.0;
};

}  // namespace lintavo
