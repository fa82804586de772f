// From doubles to the whole numbers that the clipping library reckons in.
#pragma once

#include <algorithm>
#include <cmath>
#include <polyclipping/clipper.hpp>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {

/// A grid centred on the points it was made for. Its step is a power of two, so that
/// scaling rounds nothing. The library is fast while numbers stay below 2^30: larger
/// ones are used only where that would be too coarse.
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
    return {std::llround((p.x - mitte_.x) * faktor_), std::llround((p.y - mitte_.y) * faktor_)};
  }
  XY Doppelt(const ClipperLib::IntPoint& p) const {
    return {static_cast<double>(p.X) / faktor_ + mitte_.x,
            static_cast<double>(p.Y) / faktor_ + mitte_.y};
  }
  /// Length of one step.
  double Schritt() const { return 1.0 / faktor_; }

 private:
  static constexpr int kSchnelleBits = 29;
  /// Finer steps than 2^-30 tell nothing apart that is not the same corner.
  static constexpr int kFeinsteStufe = 30;

  bool brauchbar_ = true;
  XY min_{kLeereBox, kLeereBox};
  XY max_{-kLeereBox, -kLeereBox};
  XY mitte_;
  double faktor_ = 1.0;
};

}  // namespace lintavo
