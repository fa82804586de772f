// How far a component reaches to both sides of its axes.
#pragma once

#include "lintavo/geom/SegmentOutline_intern.h"
#include "lintavo/model/CMBauteil.h"

namespace lintavo {

inline SectionReach ReachOf(const CMBauteil& bauteil) {
  const double breite = bauteil.dBreite + bauteil.dUeberBreite;
  switch (bauteil.lLage) {
    case eLageRechts:
      return {-breite, 0.0};
    case eLageLinks:
      return {0.0, breite};
    default:
      return {-breite / 2.0, breite / 2.0};
  }
}

}  // namespace lintavo
