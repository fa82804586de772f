// What a calculated window shows beside its view: its size, its dimension lines
// with extension lines and arrowheads, and the opening symbols of its sashes.
#include <algorithm>
#include <utility>

#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/view/DimensionLine.h"

namespace {

void ErweitereBox(const CMStrecke& s, double box[4]) {
  XY ends[2];
  s.GetPunkte(ends[0], ends[1]);
  for (const XY& p : ends) {
    box[0] = std::min(box[0], p.x);
    box[1] = std::min(box[1], p.y);
    box[2] = std::max(box[2], p.x);
    box[3] = std::max(box[3], p.y);
  }
}

}  // namespace

void CMFenster::GetSize(XY& size) const {
  size.x = std::max(0.0, box_.xmax - box_.xmin);
  size.y = std::max(0.0, box_.ymax - box_.ymin);
}

void CMFenster::GetSize(CSize& size) const {
  XY exact;
  GetSize(exact);
  size.cx = lintavo::TruncateToInt(exact.x);
  size.cy = lintavo::TruncateToInt(exact.y);
}

void CMFenster::GetBox(double dUeberstand, double box[4]) const {
  GetBox(dUeberstand, false, 1.0, box);
}

void CMFenster::GetBox(double dUeberstand, bool bSkaliert, double dFaktor, double box[4]) const {
  box[0] = box_.xmin;
  box[1] = box_.ymin;
  box[2] = box_.xmax;
  box[3] = box_.ymax;
  for (long i = 0; i < GetAnzahlZusatzMasze(); ++i) {
    CMStrecke s;
    CMStrecke l1;
    CMStrecke l2;
    GetMaszline(i, s, bSkaliert, dFaktor);
    if (!GetMaszHilfsLinien(s, dUeberstand, l1, l2)) continue;
    ErweitereBox(l1, box);
    ErweitereBox(l2, box);
  }
}

bool CMFenster::GetMaszline(long i, CMStrecke& s, double dAbst) const {
  const CMZusatzMasz* masz = GetZusatzMaszPtr(i);
  if (!masz || (!masz->IsHorizonal() && !masz->IsVertikal())) return false;
  if (!masz->IsEinseitig() && !masz->IsZentrisch()) return false;
  // The far end follows from the length alone; node 2 is not consulted on
  // purpose, since a calculation brings it to that distance.
  XY p;
  achsen_.GetPunkt(masz->kKnoten1, p);
  const double von = masz->IsZentrisch() ? -0.5 * masz->dLaenge : 0.0;
  const double bis = masz->IsZentrisch() ? 0.5 * masz->dLaenge : masz->dLaenge;
  if (masz->IsHorizonal()) {
    s.SetPunkte({p.x + std::min(von, bis), p.y + dAbst}, {p.x + std::max(von, bis), p.y + dAbst});
  } else {
    s.SetPunkte({p.x + dAbst, p.y + std::min(von, bis)}, {p.x + dAbst, p.y + std::max(von, bis)});
  }
  return true;
}

bool CMFenster::GetMaszline(long i, CMStrecke& s) const {
  return GetMaszline(i, s, false, 1.0);
}

bool CMFenster::GetMaszline(long i, CMStrecke& s, bool bSkaliert, double dFaktor) const {
  const CMZusatzMasz* masz = GetZusatzMaszPtr(i);
  if (!masz) return false;
  GetMaszline(i, s, bSkaliert ? dFaktor * masz->dAbstand : masz->dAbstand);
  // True whatever came of it, on purpose: hosts read it as "dimension i exists".
  return true;
}

bool CMFenster::GetMaszHilfsLinien(long i, double d, CMStrecke& l1, CMStrecke& l2) const {
  CMStrecke s;
  return GetMaszline(i, s) && GetMaszHilfsLinien(s, d, l1, l2);
}

bool CMFenster::GetMaszHilfsLinien(const CMStrecke& s, double d, CMStrecke& l1, CMStrecke& l2) {
  const auto lines = lintavo::ExtensionLines(s, d);
  if (!lines) return false;
  const auto& [first, second] = *lines;
  XY a;
  XY b;
  first.GetPunkte(a, b);
  l1.SetPunkte(a, b);
  second.GetPunkte(a, b);
  l2.SetPunkte(a, b);
  return true;
}

bool CMFenster::GetMaszBegrenzung(long i, double dPfeilLaenge, double dPfeilBreite,
                                  GEOM2_Polygon& p1, GEOM2_Polygon& p2) const {
  CMStrecke s;
  return GetMaszline(i, s) && GetMaszBegrenzung(s, dPfeilLaenge, dPfeilBreite, p1, p2);
}

bool CMFenster::GetMaszBegrenzung(const CMStrecke& s, double dPfeilLaenge, double dPfeilBreite,
                                  GEOM2_Polygon& p1, GEOM2_Polygon& p2) {
  auto arrows = lintavo::Arrowheads(s, dPfeilLaenge, dPfeilBreite);
  if (!arrows) return false;
  p1 = std::move((*arrows)[0]);
  p2 = std::move((*arrows)[1]);
  return true;
}

bool CMFenster::GetFluegelOeffnungsSymbol(long i, std::vector<CMStrecke>& lines) const {
  const CMFensterSatz* fluegel = GetFluegelPtr(i);
  return fluegel && fluegel->GetOeffSymbol(lines);
}
