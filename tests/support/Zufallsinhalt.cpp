#include "tests/support/Zufallsinhalt.h"

#include <algorithm>
#include <cmath>

namespace lintavo::test {

Fuellungsentwurf Zufallsinhalt::Fuellung() {
  Fuellungsentwurf f;
  const int art = wuerfel_.Zahl(0, 9);
  f.art = art < 7 ? 0 : art < 9 ? 1 : 2;
  f.dicke = Zahl(1.0, 4.0);
  if (f.art == 2) {
    f.abstand = wuerfel_.Mit(50) ? Zahl(0.5, 4.0) : 0.0;
    f.breite = wuerfel_.Zahl(5, 15);
  }
  return f;
}

std::vector<Querschnitt> Zufallsinhalt::Teile(const Querschnitt& vorlage, double mindestens) {
  std::vector<Querschnitt> teile;
  const double wenig = std::max(mindestens, (wuerfel_.Mit(50) ? 0.5 : 0.1) * vorlage.breite);
  for (int n = wuerfel_.Zahl(1, 5); n > 0; --n) {
    teile.push_back({Zahl(std::min(std::ceil(wenig), vorlage.breite), vorlage.breite),
                     Zahl(0.0, vorlage.ueberschlag), vorlage.dicke});
  }
  return teile;
}

std::vector<Zusatzteilentwurf> Zufallsinhalt::Innenteile(double breite) {
  std::vector<Zusatzteilentwurf> teile;
  for (int n = wuerfel_.Zahl(1, 2); n > 0; --n) {
    teile.push_back({wuerfel_.Zahl(0, 3), breite, Zahl(1.0, 4.0), 0, 0});
  }
  return teile;
}

std::vector<Beschlagentwurf> Zufallsinhalt::Beschlaege() {
  std::vector<Beschlagentwurf> beschlaege;
  for (int n = wuerfel_.Zahl(1, 3); n > 0; --n) {
    beschlaege.push_back({wuerfel_.Zahl(0, 2), wuerfel_.Zahl(0, 3), wuerfel_.Zahl(0, 1),
                          Zahl(0.0, 100.0), wuerfel_.Zahl(0, 1), Zahl(0.0, 3.0)});
  }
  return beschlaege;
}

std::vector<Sprossenentwurf> Zufallsinhalt::Sprossen(double x, double y, double b, double h) {
  std::vector<Sprossenentwurf> sprossen;
  const double breite = Zahl(1.5, 3.0);
  for (int n = wuerfel_.Mit(50) ? wuerfel_.Zahl(1, 4) : 0; n > 0; --n) {
    Sprossenentwurf s{x, y, 0.0, 0.0, breite, 2.0};
    switch (wuerfel_.Zahl(0, 4)) {
      case 0:
      case 1:
        s.y += Zahl(0.3 * h, 0.7 * h);
        s.laenge = b;
        break;
      case 2:
      case 3:
        s.x += Zahl(0.3 * b, 0.7 * b);
        s.winkel = 90.0;
        s.laenge = h;
        break;
      default:
        s.x += Zahl(0.1 * b, 0.6 * b);
        s.winkel =
            wuerfel_.Mit(50) ? wuerfel_.Zahl(20, 160) : wuerfel_.Laenge(20.0, 160.0) / 1.0007;
        // At 85 degrees an upright edge leans just as far as a cut may: on neither side.
        if (s.winkel == 85.0 || s.winkel == 95.0) s.winkel -= 1.0;
        s.laenge = 1.2 * h;
        break;
    }
    sprossen.push_back(s);
  }
  return sprossen;
}

}  // namespace lintavo::test
