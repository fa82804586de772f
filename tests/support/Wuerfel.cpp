#include "tests/support/Wuerfel.h"

#include <cmath>

namespace lintavo::test {

std::uint64_t Wuerfel::Naechste() {
  // splitmix64
  zustand_ += 0x9e3779b97f4a7c15u;
  std::uint64_t z = zustand_;
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
  return z ^ (z >> 31);
}

int Wuerfel::Zahl(int von, int bis) {
  if (bis <= von) return von;
  return von + static_cast<int>(Naechste() % (static_cast<std::uint64_t>(bis - von) + 1));
}

double Wuerfel::Laenge(double von, double bis) {
  constexpr double kSchritte = 1000.0;
  return Zahl(static_cast<int>(std::ceil(von * kSchritte - 0.5)),
              static_cast<int>(std::floor(bis * kSchritte + 0.5))) /
         kSchritte;
}

double Wuerfel::RundeLaenge(double von, double bis) {
  return Zahl(static_cast<int>(std::ceil(2.0 * von)), static_cast<int>(std::floor(2.0 * bis))) /
         2.0;
}

}  // namespace lintavo::test
