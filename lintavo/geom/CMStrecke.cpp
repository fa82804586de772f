// The segment's metric operations and its tests against other segments.
#include "lintavo/geom/CMStrecke.h"

#include <cmath>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

using lintavo::kNullLaenge;

CMStrecke::~CMStrecke() = default;

void CMStrecke::GetPunkte(XY& p1, XY& p2) const {
  p1 = p1_;
  p2 = p2_;
}

void CMStrecke::SetPunkte(const XY& p1, const XY& p2) {
  p1_ = p1;
  p2_ = p2;
}

void CMStrecke::SetPunkte(double x1, double y1, double x2, double y2) {
  p1_ = {x1, y1};
  p2_ = {x2, y2};
  zustand_ = 1;
}

void CMStrecke::GetProjektionen(double& dx, double& dy) const {
  dx = p2_.x - p1_.x;
  dy = p2_.y - p1_.y;
}

double CMStrecke::GetLaenge() const {
  return lintavo::Abstand(p1_, p2_);
}

void CMStrecke::SetLaengeP1_P2(double laenge) {
  const double bisher = GetLaenge();
  if (!(bisher >= kNullLaenge)) return;
  p2_ = {p1_.x + (p2_.x - p1_.x) * laenge / bisher, p1_.y + (p2_.y - p1_.y) * laenge / bisher};
}

void CMStrecke::GetPunktAufStrecke(double d, XY& p) const {
  // The origin for a degenerate segment is meant; callers tell it from a result.
  p = {0.0, 0.0};
  const double laenge = GetLaenge();
  if (!(laenge >= kNullLaenge)) return;
  p = {p1_.x + (p2_.x - p1_.x) * d / laenge, p1_.y + (p2_.y - p1_.y) * d / laenge};
}

double CMStrecke::GetLotAbstand(const XY& p, bool& bInnerhalb) const {
  XY fuss;
  double abstand = 0.0;
  LotFusspunkt(p, p1_, p2_, kNullLaenge, fuss, abstand, bInnerhalb);
  return abstand;
}

bool CMStrecke::GetLot(const XY& p, XY& fuss, bool& bInnerhalb) const {
  if (GetLaenge() < kNullLaenge) return false;
  double abstand = 0.0;
  LotFusspunkt(p, p1_, p2_, kNullLaenge, fuss, abstand, bInnerhalb);
  return true;
}

bool CMStrecke::ParallelVerschieben(double d) {
  return StreckeParallel(p1_.x, p1_.y, p2_.x, p2_.y, d, kNullLaenge, p1_.x, p1_.y, p2_.x, p2_.y) ==
         1;
}

bool CMStrecke::IsCross(const CMStrecke& s) const {
  XY schnitt;
  return IsCross(s, schnitt);
}

bool CMStrecke::IsCross(const CMStrecke& s, XY& schnitt) const {
  using lintavo::Abstand;
  if (Abstand(p1_, s.p2_) < kNullLaenge || Abstand(p2_, s.p2_) < kNullLaenge ||
      Abstand(p1_, s.p1_) < kNullLaenge || Abstand(p2_, s.p1_) < kNullLaenge) {
    return false;
  }
  if (SchnittpunktGeraden(p1_, p2_, s.p1_, s.p2_, kNullLaenge, schnitt) != 1) return false;
  return IsPunktAufStrecke(schnitt, p1_, p2_, kNullLaenge) &&
         IsPunktAufStrecke(schnitt, s.p1_, s.p2_, kNullLaenge);
}

bool CMStrecke::IsUeberlagerung(const CMStrecke& s) const {
  using lintavo::kUeberlagerung;
  const auto nahe = [](const XY& a, const XY& b, const XY& p) {
    return std::fabs(AbstandPunktGerade(a, b, p)) <= kUeberlagerung;
  };
  if (!nahe(p1_, p2_, s.p1_) || !nahe(p1_, p2_, s.p2_) || !nahe(s.p1_, s.p2_, p1_) ||
      !nahe(s.p1_, s.p2_, p2_)) {
    return false;
  }
  // Touching at one end is meant to count.
  return IsPunktAufStrecke(s.p1_, p1_, p2_, kUeberlagerung) ||
         IsPunktAufStrecke(s.p2_, p1_, p2_, kUeberlagerung) ||
         IsPunktAufStrecke(p1_, s.p1_, s.p2_, kUeberlagerung) ||
         IsPunktAufStrecke(p2_, s.p1_, s.p2_, kUeberlagerung);
}

bool CMStrecke::IsInside(const GEOM2_Polygon& poly) const {
  const XY mitte{(p1_.x + p2_.x) / 2, (p1_.y + p2_.y) / 2};
  return poly.IsInside(mitte, false, lintavo::kInnenTest);
}

bool CMStrecke::Clipp(const GEOM2_Polygon& poly) {
  XY p1 = p1_;
  XY p2 = p2_;
  if (poly.StreckeClippen(p1, p2)) SetPunkte(p1, p2);
  // Always true on purpose: callers do not look at it.
  return true;
}
