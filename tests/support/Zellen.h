// The cells of a grid and the sashes that divide it.
#pragma once

#include <cstddef>
#include <vector>

namespace lintavo::test {

/// Nodes are counted within the used grid, from 0.
struct Feld {
  int j0;
  int k0;
  int j1;
  int k1;
};

enum class Seite { kLinks, kRechts, kUnten, kOben };

/// The cells of the grid and whose they are.
class Zellen {
 public:
  Zellen(int spalten, int zeilen)
      : spalten_(spalten),
        zeilen_(zeilen),
        besitzer_(static_cast<std::size_t>(spalten * zeilen), kLeer) {}

  static constexpr int kLeer = -1;
  static constexpr int kAussen = -2;

  int Spalten() const { return spalten_; }
  int Zeilen() const { return zeilen_; }
  int Bei(int j, int k) const {
    if (j < 0 || k < 0 || j >= spalten_ || k >= zeilen_) return kAussen;
    return besitzer_[Index(j, k)];
  }
  void Setze(const Feld& feld, int besitzer) {
    for (int k = feld.k0; k < feld.k1; ++k) {
      for (int j = feld.j0; j < feld.j1; ++j) besitzer_[Index(j, k)] = besitzer;
    }
  }
  // Marks the empty cells from which the outside can be reached.
  void SucheAussen() {
    for (bool mehr = true; mehr;) {
      mehr = false;
      for (int k = 0; k < zeilen_; ++k) {
        for (int j = 0; j < spalten_; ++j) {
          if (Bei(j, k) != kLeer || !NebenAussen(j, k)) continue;
          besitzer_[Index(j, k)] = kAussen;
          mehr = true;
        }
      }
    }
  }
  // Whether nothing but the outside lies along a whole side.
  bool IstFrei(const Feld& f, Seite seite) const {
    const bool senkrecht = seite == Seite::kLinks || seite == Seite::kRechts;
    const int quer = seite == Seite::kLinks    ? f.j0 - 1
                     : seite == Seite::kRechts ? f.j1
                     : seite == Seite::kUnten  ? f.k0 - 1
                                               : f.k1;
    for (int i = senkrecht ? f.k0 : f.j0; i < (senkrecht ? f.k1 : f.j1); ++i) {
      if ((senkrecht ? Bei(quer, i) : Bei(i, quer)) != kAussen) return false;
    }
    return true;
  }

 private:
  std::size_t Index(int j, int k) const { return static_cast<std::size_t>(k * spalten_ + j); }
  bool NebenAussen(int j, int k) const {
    return Bei(j - 1, k) == kAussen || Bei(j + 1, k) == kAussen || Bei(j, k - 1) == kAussen ||
           Bei(j, k + 1) == kAussen;
  }

  int spalten_;
  int zeilen_;
  std::vector<int> besitzer_;
};

/// Whether all of them can be reached from the first one across common sides.
bool HaengenZusammen(const std::vector<Feld>& felder);

}  // namespace lintavo::test
