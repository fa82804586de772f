// What the sashes of a window lie on: the sides of its frame, its mullions and transoms.
#pragma once

#include <vector>

#include "lintavo/geom/Kastenbaum_intern.h"
#include "lintavo/geom/XY.h"

class CMFensterSatz;

namespace lintavo {

/// The lines along which sashes are let in, taken from a frame once for all of them.
class Auflager {
 public:
  /// Sides and mullions as they lie now; the frame is not looked at again.
  explicit Auflager(const CMFensterSatz& frame);

  /// How far a sash moves in from the side ab of its outline: by the width of the frame
  /// part of the first side that ab lies on, else by half of the first mullion's; 0 when
  /// it lies on nothing.
  double Einzug(const XY& a, const XY& b) const;

 private:
  struct Linie {
    XY a;
    XY b;
    double einzug = 0.0;
    Kasten kasten;  // around all that may lie on it
  };

  void Add(const XY& a, const XY& b, double einzug);

  std::vector<Linie> linien_;
};

}  // namespace lintavo
