#include "lintavo/model/CMZusatzMasz.h"

namespace {

constexpr long kEinseitig = 1;
constexpr long kZentrisch = 2;
constexpr long kHorizontal = 1;
constexpr long kVertikal = 0;

}  // namespace

void CMZusatzMasz::SetHorizontal(const CMKnoten& k1, const CMKnoten& k2) {
  Set(kHorizontal, k1, k2);
}

void CMZusatzMasz::SetHorizontal(const CMKnoten& centre, const CMKnoten& k2, const CMKnoten& k3) {
  Set(kHorizontal, centre, k2, k3);
}

void CMZusatzMasz::SetVertikal(const CMKnoten& k1, const CMKnoten& k2) {
  Set(kVertikal, k1, k2);
}

void CMZusatzMasz::SetVertikal(const CMKnoten& centre, const CMKnoten& k2, const CMKnoten& k3) {
  Set(kVertikal, centre, k2, k3);
}

void CMZusatzMasz::Set(long richtung, const CMKnoten& k1, const CMKnoten& k2) {
  lRichtung = richtung;
  lArt = kEinseitig;
  kKnoten1 = k1;
  kKnoten2 = k2;
}

void CMZusatzMasz::Set(long richtung, const CMKnoten& k1, const CMKnoten& k2, const CMKnoten& k3) {
  Set(richtung, k1, k2);
  lArt = kZentrisch;
  kKnoten3 = k3;
}
