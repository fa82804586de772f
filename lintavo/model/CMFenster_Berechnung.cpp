// The calculation: from the stored description of a window to its geometry.
#include <algorithm>

#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/CMFenster_Stich_intern.h"
#include "lintavo/model/Fehler_intern.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Auflager_intern.h"
#include "lintavo/sash/Aussenanschluss_intern.h"
#include "lintavo/sash/Bogenseiten_intern.h"

using lintavo::StringId;

namespace {

// Sides that turn by less than this, in degrees, may belong to one bent part.
constexpr double kGroessteWendung = 25.0;

[[noreturn]] void Throw(StringId id, const CString& arg) {
  throw CMException(static_cast<int>(id), arg);
}

void ThrowIfFailed(const CMZusatzMasz* masz) {
  if (masz) Throw(StringId::MeldungZusatzmaszNichtAngebracht, masz->strName);
}

}  // namespace

bool CMFenster::Berechne(bool bPfostenRiegelAutomatisch) {
  const bool ok = FehlerMerken(lintavo::FehlerVon([&] { Rechne(bPfostenRiegelAutomatisch); }));
  if (ok) neu_ = false;
  return ok;
}

void CMFenster::Rechne(bool bPfostenRiegelAutomatisch) {
  achsen_.AlleVerschiebungenZulassen(true);
  ThrowIfFailed(ZusatzMaszAchsVerschiebungen());

  std::vector<GEOM2_Polygon> grundformen;
  double extrem = -lintavo::kLeereBox;
  const auto formen = [&] {
    const lintavo::TiedSpringingLines springingLines(*this, achsen_);
    GetFluegelGrundformen(grundformen, extrem);
  };
  formen();
  rahmen_.SetName(lintavo::Text(StringId::Rahmen));
  RahmenUmrissBilden(grundformen);
  if (FluegelStichAnpassung(grundformen)) {
    formen();
    RahmenUmrissBilden(grundformen);
  }
  ThrowIfFailed(ZusatzMaszRahmenEckenVerschiebungen(grundformen));

  RahmenBauen(bPfostenRiegelAutomatisch, grundformen);
  FluegelBauen(grundformen);
  for (const auto& fluegel : fluegel_) fluegel->ClippSprossen();
}

void CMFenster::GetFluegelGrundformen(std::vector<GEOM2_Polygon>& grundformen, double& dExtrem) {
  grundformen.clear();
  grundformen.reserve(fluegel_.size());
  for (const auto& fluegel : fluegel_) {
    XY p1;
    XY p2;
    XY pAL;
    XY pAR;
    fluegel->GetPlazierungsPunkte(achsen_, p1, p2, pAL, pAR);
    GEOM2_Polygon& form = grundformen.emplace_back();
    fluegel->BerechneGrundform(p1, p2, pAL, pAR, form);
    for (int i = 0; i < form.GetAnzahl(); ++i) dExtrem = std::max(dExtrem, form.GetEckpunkt(i).y);
  }
}

bool CMFenster::FluegelStichAnpassung(std::vector<GEOM2_Polygon>&) {
  bool changed = false;
  for (const auto& fluegel : fluegel_) changed = fluegel->bStichAnpassen(*this) || changed;
  return changed;
}

// The frame's outline: the union of all sash outlines, counter-clockwise.
void CMFenster::RahmenUmrissBilden(const std::vector<GEOM2_Polygon>& grundformen) {
  double box[4];
  rahmen_.RahmenPolygon.Clear();
  bPolygoneAddieren(grundformen, rahmen_.RahmenPolygon, lintavo::kVereinigung, box);
  rahmen_.RahmenPolygon.SetOrientierung(true);
  RahmenUmrissBeginnen(grundformen);
  box_ = {box[0], box[1], box[2], box[3]};
}

// The numbers of sides and parts count from the outline's start, and a bent part does not
// go on across it. So it starts at the first vertex of a sash, in their order, that is not
// inside a bent part; where all are, it stays at the first.
void CMFenster::RahmenUmrissBeginnen(const std::vector<GEOM2_Polygon>& grundformen) {
  GEOM2_Polygon& umriss = rahmen_.RahmenPolygon;
  const auto count = static_cast<std::size_t>(umriss.GetAnzahl());
  const auto istBogenseite = [&](int i) {
    return lintavo::IstBogenseite(umriss, i, GetRahmenAbschnitt(), kGroessteWendung);
  };
  // Usually it starts at a corner.
  if (count == 0 || !istBogenseite(0) || !istBogenseite(umriss.GetAnzahl() - 1)) return;
  lintavo::Arbeitsspeicher speicher;
  const lintavo::Liste<bool> gebogen =
      lintavo::Bogenseiten(umriss, GetRahmenAbschnitt(), kGroessteWendung, &speicher);
  const auto imBogen = [&](std::size_t i) {
    return gebogen[i] && gebogen[(i + count - 1) % count];
  };
  const std::vector<GEOM2_Eckpunkt> ecken(umriss.GetEcken().begin(), umriss.GetEcken().end());
  for (const GEOM2_Polygon& form : grundformen) {
    for (const GEOM2_Eckpunkt& ecke : form.GetEcken()) {
      const auto hier = std::find_if(ecken.begin(), ecken.end(), [&](const GEOM2_Eckpunkt& e) {
        return e.x == ecke.x && e.y == ecke.y;  // the union keeps them to the last bit
      });
      const auto i = static_cast<std::size_t>(hier - ecken.begin());
      if (i == count || imBogen(i)) continue;
      umriss.Clear();
      for (std::size_t n = 0; n < count; ++n) umriss.AddPunkt(ecken[(i + n) % count]);
      return;
    }
  }
}

// Frame parts, mullions, transoms, and extra parts of the frame.
void CMFenster::RahmenBauen(bool bPfostenRiegelAutomatisch,
                            const std::vector<GEOM2_Polygon>& grundformen) {
  rahmen_.RahmenSegmenteZusammenfassen(GetRahmenAbschnitt(), kGroessteWendung,
                                       rahmen_.RahmenPolygon);
  rahmen_.ErzeugeRahmenBauteile();
  GEOM2_Polygon innen;
  if (rahmen_.ErzeugeRahmenInnenPolygon(innen)) {
    PfostenUndRiegelLegen();
    if (bPfostenRiegelAutomatisch) PfostenUndRiegelAutomatischSetzen(innen, grundformen);
    PfostenUndRiegelVerschneiden(innen);
  }
  rahmen_.PlaziereZusatzteile(true);
  AussenZusatzteilAnschluesseBerechnen();
}

void CMFenster::FluegelBauen(const std::vector<GEOM2_Polygon>& grundformen) {
  const lintavo::Auflager auflager(rahmen_);
  const double abschnitt = GetRahmenAbschnitt();
  for (std::size_t i = 0; i < fluegel_.size() && i < grundformen.size(); ++i) {
    CMFensterSatz& fluegel = *fluegel_[i];
    if (!fluegel.BerechneRahmenPolygon(abschnitt, kGroessteWendung, auflager, grundformen[i])) {
      // The number counts from 0, as the message always has.
      throw CMException(static_cast<int>(StringId::MeldungKeinFluegelpolygon),
                        static_cast<long>(i));
    }
    fluegel.ErzeugeRahmenBauteile();
    fluegel.PlaziereZusatzteile(false);
  }
}

void CMFenster::AussenZusatzteilAnschluesseBerechnen() {
  std::vector<CMBauteil>& teile = rahmen_.EinzelTeile;
  if (std::none_of(teile.begin(), teile.end(),
                   [](const CMBauteil& teil) { return teil.IsZusatzteilAussen(); })) {
    return;
  }
  GEOM2_Polygon aussen;
  if (!rahmen_.ErzeugeRahmenAussenPolygon(aussen)) return;
  XY low;
  XY high;
  aussen.GetMinMax(low, high);
  box_ = {std::min(box_.xmin, low.x), std::min(box_.ymin, low.y), std::max(box_.xmax, high.x),
          std::max(box_.ymax, high.y)};

  for (CMBauteil& teil : teile) {
    if (!teil.IsZusatzteilAussen() || !teil.IsVorhanden()) continue;
    lintavo::FuegeAussenteil(rahmen_, aussen, teil);
  }
}
