// Points sorted into the cells of a grid, to find those near a place.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// About one cell per point, so that points spread over an area are found in constant
/// time. All points must be finite.
class Punktraster {
 public:
  Punktraster(std::span<const XY> punkte, Speicher speicher)
      : punkte_(punkte), beginn_(speicher), inhalt_(speicher) {
    XY max{-kLeereBox, -kLeereBox};
    for (const XY& p : punkte) {
      min_ = {std::min(min_.x, p.x), std::min(min_.y, p.y)};
      max = {std::max(max.x, p.x), std::max(max.y, p.y)};
    }
    const double anzahl = std::max(1.0, static_cast<double>(punkte.size()));
    const double breite = std::max(max.x - min_.x, kNullLaenge);
    const double hoehe = std::max(max.y - min_.y, kNullLaenge);
    spalten_ = Grenzen(std::sqrt(anzahl * breite / hoehe), anzahl);
    zeilen_ = Grenzen(anzahl / static_cast<double>(spalten_), anzahl);
    jeX_ = static_cast<double>(spalten_) / breite;
    jeY_ = static_cast<double>(zeilen_) / hoehe;
    Einsortieren();
  }

  /// Calls f(index) for every point that may lie in the box, in no particular order.
  template <typename F>
  void InBox(const XY& von, const XY& bis, F&& f) const {
    const std::size_t s0 = Spalte(von.x);
    const std::size_t s1 = Spalte(bis.x);
    const std::size_t z1 = Zeile(bis.y);
    for (std::size_t z = Zeile(von.y); z <= z1; ++z) {
      const std::size_t ende = beginn_[z * spalten_ + s1 + 1];
      for (std::size_t k = beginn_[z * spalten_ + s0]; k < ende; ++k) {
        const XY& p = punkte_[inhalt_[k]];
        if (von.x <= p.x && p.x <= bis.x && von.y <= p.y && p.y <= bis.y) f(inhalt_[k]);
      }
    }
  }

 private:
  static std::size_t Grenzen(double wert, double hoechstens) {
    return static_cast<std::size_t>(std::clamp(wert, 1.0, hoechstens));
  }
  static std::size_t Zelle(double lage, std::size_t anzahl) {
    return static_cast<std::size_t>(std::clamp(lage, 0.0, static_cast<double>(anzahl - 1)));
  }
  std::size_t Spalte(double x) const { return Zelle((x - min_.x) * jeX_, spalten_); }
  std::size_t Zeile(double y) const { return Zelle((y - min_.y) * jeY_, zeilen_); }

  void Einsortieren() {
    beginn_.assign(spalten_ * zeilen_ + 1, 0);
    inhalt_.resize(punkte_.size());
    for (const XY& p : punkte_) ++beginn_[Zeile(p.y) * spalten_ + Spalte(p.x) + 1];
    for (std::size_t z = 1; z < beginn_.size(); ++z) beginn_[z] += beginn_[z - 1];
    Liste<std::size_t> frei(beginn_.begin(), beginn_.end() - 1, beginn_.get_allocator());
    for (std::size_t i = 0; i < punkte_.size(); ++i) {
      inhalt_[frei[Zeile(punkte_[i].y) * spalten_ + Spalte(punkte_[i].x)]++] = i;
    }
  }

  std::span<const XY> punkte_;
  XY min_{kLeereBox, kLeereBox};
  std::size_t spalten_ = 1;
  std::size_t zeilen_ = 1;
  double jeX_ = 0.0;
  double jeY_ = 0.0;
  Liste<std::size_t> beginn_;
  Liste<std::size_t> inhalt_;
};

}  // namespace lintavo
