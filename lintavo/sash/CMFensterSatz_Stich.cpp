// Fitting the rise of arched sashes to the window's vertical dimensions.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace {

// The line on which a top arch stands, over the whole span of the arch.
struct Kaempferlinie {
  double xLinks;
  double xRechts;
  double y;
};

Kaempferlinie KaempferlinieVon(const CMFensterSatz& satz, const CMAchsen& achsen) {
  XY p1;
  XY p2;
  XY pAL;
  XY pAR;
  satz.GetPlazierungsPunkte(achsen, p1, p2, pAL, pAR);
  return {std::min(pAL.x, pAR.x), std::max(pAL.x, pAR.x),
          std::min(p1.y, p2.y) + satz.dHoehe - satz.dStich};
}

// The grid point of a node, raised by the node's own y.
XY KnotenPunkt(const CMKnoten& knoten, const CMAchsen& achsen) {
  XY p;
  achsen.GetPunkt(knoten, p);
  p.y += knoten.Y();
  return p;
}

bool EndetAuf(const CMZusatzMasz& masz, const Kaempferlinie& linie, const CMAchsen& achsen) {
  if (!masz.IsVertikal() || masz.IsZentrisch() || masz.kKnoten1.IsAufAchse()) return false;
  const XY ende = KnotenPunkt(masz.kKnoten2, achsen);
  return ende.x >= linie.xLinks - lintavo::kNullLaenge &&
         ende.x <= linie.xRechts + lintavo::kNullLaenge &&
         std::fabs(ende.y - linie.y) <= lintavo::kDateirundung;
}

// Moves the end of a fitted dimension along with the springing line. A node on
// an axis leaves it and becomes a corner point at its place, counted from the
// origin's row: so its height is stored with it, and measured from anywhere the
// dimension has its length.
void VersetzeEnde(CMKnoten& ende, double delta, const CMAchsen& achsen) {
  if (ende.IsAufAchse()) {
    const XY p = KnotenPunkt(ende, achsen);
    ende.SetEckpu(ende.J(), 0, p.x, p.y);
  }
  ende.YPlus(delta);
}

bool HatBogen(const CMFensterSatz& satz) {
  return satz.lForm == eFormBogen || satz.lForm == eFormHalbBogen;
}

void SenkeStich(CMFensterSatz& satz, double delta, const CMZusatzMasz& masz) {
  const double stich = satz.dStich - delta;
  if (!(stich >= -lintavo::kNullLaenge && stich <= satz.dBreite + lintavo::kNullLaenge)) {
    throw CMException(static_cast<int>(lintavo::StringId::MeldungZusatzmaszLaenge), masz.strName);
  }
  satz.dStich = stich;
}

// The other pieces of a shared arch stand on the same line. They follow at
// once: after the dimension's end node has moved they would not find it there.
void SenkeNachbarn(CMFenster& fenster, const CMFensterSatz& satz, double delta,
                   const CMZusatzMasz& masz) {
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    CMFensterSatz* fluegel = fenster.GetFluegelPtr(i);
    if (!fluegel || fluegel == &satz || !HatBogen(*fluegel)) continue;
    const CMAchsen& achsen = fenster.GetAchsen();
    if (EndetAuf(masz, KaempferlinieVon(*fluegel, achsen), achsen)) {
      SenkeStich(*fluegel, delta, masz);
    }
  }
}

}  // namespace

bool CMFensterSatz::bBaseStichAnpassen(CMFenster& fenster) {
  const CMAchsen& achsen = fenster.GetAchsen();
  if (achsen.iGetCntHori() == 0 || achsen.iGetCntVerti() == 0) return false;
  const Kaempferlinie linie = KaempferlinieVon(*this, achsen);
  bool geaendert = false;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (!EndetAuf(masz, linie, achsen)) continue;
    const double ziel = KnotenPunkt(masz.kKnoten1, achsen).y + masz.dLaenge;
    const double delta = ziel - linie.y;
    if (!(std::fabs(delta) > lintavo::kDateirundung)) continue;
    if (!geaendert) {
      SenkeStich(*this, delta, masz);
      SenkeNachbarn(fenster, *this, delta, masz);
      geaendert = true;
    }
    VersetzeEnde(masz.kKnoten2, delta, achsen);
  }
  return geaendert;
}
