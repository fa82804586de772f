// The dimensions of random windows: overall, partial, centred, and such as move a rise or
// a corner of the frame.
#pragma once

#include <vector>

#include "tests/support/Fensterentwurf.h"
#include "tests/support/Wuerfel.h"

namespace lintavo::test {

class Zufallsmasze {
 public:
  /// `x` and `y` are the places of the axes in use.
  Zufallsmasze(Wuerfel& wuerfel, bool rund, Fensterentwurf& entwurf, const std::vector<double>& x,
               const std::vector<double>& y)
      : wuerfel_(wuerfel), rund_(rund), entwurf_(entwurf), x_(x), y_(y) {}

  /// Overall ones, and perhaps others. They hold together: the window can be calculated,
  /// and again when its overall dimensions grow.
  void SetzeMasze();
  /// One that moves the window's top right corner up, or down by a part of `spiel`.
  void SetzeEckmasz(double spiel);

 private:
  int Letzte(bool horizontal) const { return static_cast<int>((horizontal ? x_ : y_).size()) - 1; }
  double Ort(bool horizontal, int i) const {
    return (horizontal ? x_ : y_)[static_cast<std::size_t>(i)];
  }
  double Zahl(double von, double bis);
  Maszentwurf Masz(const char* name, bool horizontal, int von, int bis);
  void SetzeGesamtmasz(bool horizontal, bool nachTeilmaszen);
  void SetzeTeilmasze(bool horizontal, bool vorGesamtmasz);
  void SetzeReihe(bool horizontal, int anzahl);
  void SetzeZentrischesMasz(bool horizontal, bool vorGesamtmasz);
  void Aendere(Maszentwurf& masz, double mehr);
  double Hoehe() const;
  void SetzeKaempfermasz();

  Wuerfel& wuerfel_;
  bool rund_;
  Fensterentwurf& entwurf_;
  const std::vector<double>& x_;
  const std::vector<double>& y_;
};

}  // namespace lintavo::test
