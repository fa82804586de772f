// Extra parts: the chain in which they hang on their side's frame part, and
// where they lie.
//
// A frame part's link names the first extra part of its side, each extra part
// the next one; inner and outer ones share the chain. A part lies beside all
// that stand before it in the chain.
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMException.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace {

constexpr long kKettenende = -1;
// Outer parts lie half their width beyond what is there already.
constexpr double kHalb = 0.5;
// A little less than half the width, on purpose: at half of it the parallel that
// shapes the end cut would run along the very edge against which the part lies.
constexpr double kSchnittAnteil = 0.499;

bool IsZusatzteil(const CMBauteil& part) {
  return part.IsZusatzteilInnen() || part.IsZusatzteilAussen();
}

bool IsZusatzteil(const CMBauteil& part, bool aussen) {
  return aussen ? part.IsZusatzteilAussen() : part.IsZusatzteilInnen();
}

// Axis 0 of a part that has no place: nothing of the part is to be seen.
void NimmAchse(CMBauteil& part) {
  part.DeleteAchsen();
  part.AddAchse({});
}

// Lays axis 0 beside a side, at distance d to its right; false also when that
// is nowhere on a drawing.
bool LegeNebenSeite(const GEOM2_Polygon& polygon, long side, double d, GEOM2_Achse& achse) {
  XY a;
  XY b;
  if (side >= polygon.GetAnzahl() || !polygon.GetKante(static_cast<int>(side), a, b)) return false;
  XY a2;
  XY b2;
  if (StreckeParallel(a.x, a.y, b.x, b.y, d, lintavo::kSeitenVerschiebung, a2.x, a2.y, b2.x,
                      b2.y) != 1) {
    return false;
  }
  return lintavo::IstBrauchbar(a2) && lintavo::IstBrauchbar(b2) &&
         GEOM2_Polygon::SetAchse(a2, b2, achse);
}

// A link past a removed part, and the same link counted in the shorter list.
void UmgeheTeil(long& glied, long entfernt, long nachfolger) {
  if (glied == entfernt) glied = nachfolger == entfernt ? kKettenende : nachfolger;
  if (glied > entfernt) --glied;
}

}  // namespace

CMBauteil* CMFensterSatz::AddZusatzteil(long side, const CMBauteil& part, bool aussen) {
  if (side < 0 || side >= RahmenPolygon.GetAnzahl()) return nullptr;
  CMBauteil kopie = part;
  kopie.lSeite = side;
  // The part joins its chain as a member of the list: growing it afterwards
  // would move the very link that leads to the part.
  EinzelTeile.push_back(kopie);
  try {
    if (ZusatzteilAnschliessen(EinzelTeile.back(), aussen)) return &EinzelTeile.back();
  } catch (...) {
    EinzelTeile.pop_back();
    throw;
  }
  EinzelTeile.pop_back();
  return nullptr;
}

bool CMFensterSatz::DeleteEinzelBauteil(long i) {
  const CMBauteil* part = GetEinzelBauteilPtr(i);
  if (!part) return false;
  const long nachfolger = part->lKette;
  EinzelTeile.erase(EinzelTeile.begin() + i);
  for (CMBauteil& teil : RahmenTeile) UmgeheTeil(teil.lKette, i, nachfolger);
  for (CMBauteil& teil : EinzelTeile) UmgeheTeil(teil.lKette, i, nachfolger);
  return true;
}

bool CMFensterSatz::PlaziereZusatzteil(CMBauteil& part) const {
  if (!IsZusatzteil(part) || part.lSeite < 0) return false;
  GEOM2_Achse achse;
  if (part.IsZusatzteilAussen()) {
    const double d = GetAbstandZurRahmenAussenSeite(part.lSeite) + part.dBreite * kHalb;
    if (!LegeNebenSeite(RahmenPolygon, part.lSeite, d, achse)) return false;
  } else {
    GEOM2_Polygon innen;
    if (!ErzeugeRahmenInnenPolygon(false, innen)) return false;
    for (int i = 0; i < innen.GetAnzahl(); ++i) innen.SetWert2(i, 0.0);
    const double d = GetAbstandZurRahmenInnenSeite(true, part.lSeite) + part.dBreite * kHalb;
    if (!LegeNebenSeite(RahmenPolygon, part.lSeite, -d, achse)) return false;
    if (!innen.AchseClippen(achse, kSchnittAnteil * part.dBreite)) return false;
  }
  part.DeleteAchsen();
  part.AddAchse(achse);
  return true;
}

bool CMFensterSatz::PlaziereZusatzteile(bool aussen) {
  // The distances that place a part are sums over its chain, which must end
  // before the part for exactly as long as it is placed. So the chains are made
  // anew, one part after the other in the order of the list. That way the result
  // is the same for parts that come from a file, for parts placed before, and
  // after a part had no place for a while; and no part is ever linked twice.
  std::vector<bool> anschliessen = KettenAufloesen();
  for (std::size_t i = 0; i < EinzelTeile.size(); ++i) {
    CMBauteil& part = EinzelTeile[i];
    if (part.dBreite >= lintavo::kNullLaenge && IsZusatzteil(part, aussen)) anschliessen[i] = true;
    if (!anschliessen[i] || !IsZusatzteil(part)) continue;
    if (!ZusatzteilAnschliessen(part, part.IsZusatzteilAussen())) NimmAchse(part);
  }
  return true;
}

// The open link at the end of the chain on the part's side; null when the side
// has no straight frame part, or its chain is damaged or holds the part already.
long* CMFensterSatz::KettenEnde(const CMBauteil& part) {
  CMBauteil* rahmenteil = GetBauteilPtr(RahmenPolygon, part.lSeite);
  if (!rahmenteil || rahmenteil->lGetAnzAchsen() != 1) return nullptr;
  long* glied = &rahmenteil->lKette;
  for (std::size_t steps = 0; steps <= EinzelTeile.size(); ++steps) {
    if (*glied == kKettenende) return glied;
    CMBauteil* teil = GetEinzelBauteilPtr(*glied);
    if (!teil || teil == &part) return nullptr;
    glied = &teil->lKette;
  }
  return nullptr;
}

// Lays a member of the single parts beside all that its side carries and makes
// it the last of that chain. False when it has no place.
bool CMFensterSatz::ZusatzteilAnschliessen(CMBauteil& part, bool aussen) {
  long* ende = KettenEnde(part);
  if (!ende) return false;
  part.lTyp = aussen ? eZusatzteilAussen : eZusatzteilInnen;
  part.lKette = kKettenende;
  if (!PlaziereZusatzteil(part)) return false;
  *ende = GetEinzelBauteilNr(&part);
  return true;
}

// Takes all chains apart and tells which single parts hung in one. A chain that
// bites its own tail, or another one, ends there. Throws, and changes nothing,
// when a link names a part that does not exist.
std::vector<bool> CMFensterSatz::KettenAufloesen() {
  std::vector<bool> angeschlossen(EinzelTeile.size());
  for (const CMBauteil& rahmenteil : RahmenTeile) {
    for (long glied = rahmenteil.lKette; glied != kKettenende;) {
      const CMBauteil* teil = GetEinzelBauteilPtr(glied);
      if (!teil) throw CMException(static_cast<int>(lintavo::StringId::MeldungBauteilFehlt));
      if (angeschlossen[static_cast<std::size_t>(glied)]) break;
      angeschlossen[static_cast<std::size_t>(glied)] = true;
      glied = teil->lKette;
    }
  }
  for (CMBauteil& rahmenteil : RahmenTeile) rahmenteil.lKette = kKettenende;
  for (CMBauteil& part : EinzelTeile) part.lKette = kKettenende;
  return angeschlossen;
}
