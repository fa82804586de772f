// What random sashes carry: filling, unequal frame parts, extra parts, bars, fittings.
#pragma once

#include <vector>

#include "tests/support/Fensterentwurf.h"
#include "tests/support/Wuerfel.h"

namespace lintavo::test {

class Zufallsinhalt {
 public:
  /// `rund`: lengths as people draw them.
  Zufallsinhalt(Wuerfel& wuerfel, bool rund) : wuerfel_(wuerfel), rund_(rund) {}

  double Zahl(double von, double bis) {
    return rund_ ? wuerfel_.RundeLaenge(von, bis) : wuerfel_.Laenge(von, bis);
  }
  Fuellungsentwurf Fuellung();
  /// Frame parts narrower than the template, the first ones of the list.
  std::vector<Querschnitt> Teile(const Querschnitt& vorlage, double mindestens = 0.0);
  std::vector<Zusatzteilentwurf> Innenteile(double breite);
  std::vector<Beschlagentwurf> Beschlaege();
  /// Upright, level and slanted ones, from one side of a placement of b x h at (x, y) to
  /// the other.
  std::vector<Sprossenentwurf> Sprossen(double x, double y, double b, double h);

 private:
  Wuerfel& wuerfel_;
  bool rund_;
};

}  // namespace lintavo::test
