// Dimensions that drive the rise of an arch stay at its springing line.
#pragma once

#include <vector>

#include "lintavo/model/CMFenster.h"

namespace lintavo {

/// Whether a dimension of the window ends on the springing line of one of its arches.
bool EndsOnSpringingLine(const CMFenster& fenster, const CMZusatzMasz& masz);

/// Ties the ends of dimensions to the springing lines on which they lie: when axes or
/// bounded rises have moved a line, its dimensions are taken along, and so go on driving
/// the rise. It happens at the end of this object's life, after a failure too.
class TiedSpringingLines {
 public:
  /// Looks where the ends lie on the given grid, which is the window's or was before.
  TiedSpringingLines(CMFenster& fenster, const CMAchsen& achsen);
  ~TiedSpringingLines();
  TiedSpringingLines(const TiedSpringingLines&) = delete;
  TiedSpringingLines& operator=(const TiedSpringingLines&) = delete;

 private:
  struct Tie {
    long masz;
    const CMFensterSatz* bogen;
  };

  CMFenster& fenster_;
  std::vector<Tie> ties_;
};

}  // namespace lintavo
