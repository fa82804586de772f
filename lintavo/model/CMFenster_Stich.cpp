#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster_Stich_intern.h"
#include "lintavo/sash/Kaempferlinie_intern.h"

namespace {

// The arch on whose springing line a dimension ends, or null. Pieces of a shared arch
// have one line.
const CMFensterSatz* DrivenArch(const CMFenster& fenster, const CMZusatzMasz& masz,
                                const CMAchsen& achsen) {
  if (!masz.IsVertikal() || masz.kKnoten1.IsAufAchse()) return nullptr;
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    if (!lintavo::HatBogen(fluegel)) continue;
    if (lintavo::EndetAuf(masz, lintavo::KaempferlinieVon(fluegel, achsen), achsen)) {
      return &fluegel;
    }
  }
  return nullptr;
}

}  // namespace

namespace lintavo {

bool EndsOnSpringingLine(const CMFenster& fenster, const CMZusatzMasz& masz) {
  return DrivenArch(fenster, masz, fenster.GetAchsen()) != nullptr;
}

TiedSpringingLines::TiedSpringingLines(CMFenster& fenster, const CMAchsen& achsen)
    : fenster_(fenster) {
  if (achsen.iGetCntHori() == 0 || achsen.iGetCntVerti() == 0) return;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    const CMFensterSatz* bogen = DrivenArch(fenster, *fenster.GetZusatzMaszPtr(i), achsen);
    if (bogen) ties_.push_back({i, bogen});
  }
}

TiedSpringingLines::~TiedSpringingLines() {
  const CMAchsen& achsen = fenster_.GetAchsen();
  for (const Tie& tie : ties_) {
    CMKnoten& ende = fenster_.GetZusatzMaszPtr(tie.masz)->kKnoten2;
    const double delta = KaempferlinieVon(*tie.bogen, achsen).y - KnotenPunkt(ende, achsen).y;
    if (std::fabs(delta) > kDateirundung) VersetzeEnde(ende, delta, achsen);
  }
}

}  // namespace lintavo
