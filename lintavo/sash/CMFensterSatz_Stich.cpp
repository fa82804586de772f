// Fitting the rise of arched sashes to the window's vertical dimensions.
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Kaempferlinie_intern.h"

using lintavo::EndetAuf;
using lintavo::Kaempferlinie;
using lintavo::KaempferlinieVon;
using lintavo::KnotenPunkt;

namespace {

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
    if (!fluegel || fluegel == &satz || !lintavo::HatBogen(*fluegel)) continue;
    const CMAchsen& achsen = fenster.GetAchsen();
    if (EndetAuf(masz, KaempferlinieVon(*fluegel, achsen, fluegel->dHoehe), achsen)) {
      SenkeStich(*fluegel, delta, masz);
    }
  }
}

}  // namespace

bool CMFensterSatz::bBaseStichAnpassen(CMFenster& fenster) {
  const CMAchsen& achsen = fenster.GetAchsen();
  if (achsen.iGetCntHori() == 0 || achsen.iGetCntVerti() == 0) return false;
  const Kaempferlinie linie = KaempferlinieVon(*this, achsen, dHoehe);
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
    lintavo::VersetzeEnde(masz.kKnoten2, delta, achsen);
  }
  return geaendert;
}
