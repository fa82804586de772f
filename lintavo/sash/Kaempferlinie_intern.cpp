#include "lintavo/sash/Kaempferlinie_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"

namespace lintavo {

bool HatBogen(const CMFensterSatz& satz) {
  return satz.lForm == eFormBogen || satz.lForm == eFormHalbBogen;
}

Kaempferlinie KaempferlinieVon(const CMFensterSatz& satz, const CMAchsen& achsen, double hoehe) {
  XY p1;
  XY p2;
  XY pAL;
  XY pAR;
  satz.GetPlazierungsPunkte(achsen, p1, p2, pAL, pAR);
  return {std::min(pAL.x, pAR.x), std::max(pAL.x, pAR.x),
          std::min(p1.y, p2.y) + hoehe - satz.dStich};
}

Kaempferlinie KaempferlinieVon(const CMFensterSatz& satz, const CMAchsen& achsen) {
  XY p1;
  XY p2;
  achsen.GetPunkt(satz.Knoten1, p1);
  achsen.GetPunkt(satz.Knoten2, p2);
  return KaempferlinieVon(satz, achsen, std::fabs(p2.y - p1.y));
}

XY KnotenPunkt(const CMKnoten& knoten, const CMAchsen& achsen) {
  XY p;
  achsen.GetPunkt(knoten, p);
  p.y += knoten.Y();
  // A corner point's y is no height above the grid's first axis, wherever that lies.
  if (!knoten.IsAufAchse()) p.y -= achsen.dGetPosHori(0);
  return p;
}

bool EndetAuf(const CMZusatzMasz& masz, const Kaempferlinie& linie, const CMAchsen& achsen) {
  if (!masz.IsVertikal() || masz.IsZentrisch() || masz.kKnoten1.IsAufAchse()) return false;
  const XY ende = KnotenPunkt(masz.kKnoten2, achsen);
  return ende.x >= linie.xLinks - kNullLaenge && ende.x <= linie.xRechts + kNullLaenge &&
         std::fabs(ende.y - linie.y) <= kDateirundung;
}

void VersetzeEnde(CMKnoten& ende, double delta, const CMAchsen& achsen) {
  if (ende.IsAufAchse()) {
    const XY p = KnotenPunkt(ende, achsen);
    ende.SetEckpu(ende.J(), 0, p.x, p.y);
  }
  ende.YPlus(delta);
}

}  // namespace lintavo
