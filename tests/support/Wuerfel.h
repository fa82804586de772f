// The dice of the random windows.
#pragma once

#include <cstdint>

namespace lintavo::test {

/// Draws whole numbers; no distribution of the standard library, whose results differ
/// from one to the other.
class Wuerfel {
 public:
  explicit Wuerfel(std::uint64_t seed) : zustand_(seed) {}

  /// From `von` to `bis`, both included.
  int Zahl(int von, int bis);
  /// True in so many of a hundred cases.
  bool Mit(int prozent) { return Zahl(0, 99) < prozent; }
  /// From `von` to `bis` in steps of a thousandth, which files keep exactly.
  double Laenge(double von, double bis);
  /// The same in steps of a half, as people draw.
  double RundeLaenge(double von, double bis);

 private:
  std::uint64_t Naechste();

  std::uint64_t zustand_;
};

}  // namespace lintavo::test
