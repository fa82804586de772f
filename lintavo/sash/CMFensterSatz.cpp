#include "lintavo/sash/CMFensterSatz.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "lintavo/model/CMAchsen.h"
#include "lintavo/platform/Elements_intern.h"
#include "lintavo/view/WindowView.h"

namespace {

constexpr double kSprossenBreite = 4.0;
constexpr double kSprossenDicke = 4.0;
[[maybe_unused]] constexpr long kAnzahlFormBeiwerte = 4;

// Counts of the short texts, which the view knows.
constexpr int kAnzahlOeffSeiten = 2;
constexpr int kAnzahlGangarten = 12;
constexpr int kAnzahlAnschlaege = 4;

template <class Enum>
CString TextAt(long i, [[maybe_unused]] int count) {
  assert(i >= 0 && i < count);
  return lintavo::ShortText(static_cast<Enum>(i));
}

template <class Enum>
long IndexOf(const CString& text, int count) {
  for (int i = 0; i < count; ++i) {
    if (text.CompareNoCase(lintavo::ShortText(static_cast<Enum>(i))) == 0) return i;
  }
  return -1;
}

long CountPresent(const std::vector<CMBauteil>& liste) {
  return static_cast<long>(std::count_if(
      liste.begin(), liste.end(), [](const CMBauteil& bauteil) { return bauteil.IsVorhanden(); }));
}

long PositionOf(const std::vector<CMBauteil>& liste, const CMBauteil* bauteil) {
  for (std::size_t i = 0; i < liste.size(); ++i) {
    if (&liste[i] == bauteil) return static_cast<long>(i);
  }
  return -1;
}

}  // namespace

CMFensterSatz::CMFensterSatz() {
  Init();
}

void CMFensterSatz::Init() {
  strName.Empty();
  dZVersatz = 0.0;
  bMitRahmen = true;
  lOeffSeite = 0;
  lGangart = 0;
  lAnschlag = 0;
  lTyp2 = 0;
  SprossenVorlage.dBreite = kSprossenBreite;
  SprossenVorlage.dDicke = kSprossenDicke;
  std::fill(std::begin(FormBeiwertX), std::end(FormBeiwertX), FormBeiwert{});
  std::fill(std::begin(FormBeiwertY), std::end(FormBeiwertY), FormBeiwert{});
  bKorbbogen = false;
  bGespiegelt = false;
  bZuerstAufgehend = false;
}

void CMFensterSatz::Delete(bool auchEinzelTeile) {
  RahmenTeile.clear();
  if (auchEinzelTeile) EinzelTeile.clear();
  Sprossen.clear();
  RahmenPolygon.Clear();
  Beschlaege.clear();
  Init();
}

// The two coefficient setters and the three short-text look-ups are unchecked
// on purpose: hosts rely on their taking every index that they pass.

void CMFensterSatz::SetFormBeiwertX(long i, double value, bool fixed) {
  assert(i >= 0 && i < kAnzahlFormBeiwerte);
  FormBeiwertX[i] = {value, fixed};
}

void CMFensterSatz::SetFormBeiwertY(long i, double value, bool fixed) {
  assert(i >= 0 && i < kAnzahlFormBeiwerte);
  FormBeiwertY[i] = {value, fixed};
}

void CMFensterSatz::SetRahmenDefaults(double width, double thickness, double width2, int p, int q,
                                      int r, int s) {
  RahmenVorlage.dBreite = width;
  RahmenVorlage.dDicke = thickness;
  RahmenVorlage.dBreite2 = width2;
  RahmenVorlage.lAttribut[2] = p;
  RahmenVorlage.lAttribut[0] = q;
  RahmenVorlage.lAttribut[3] = r;
  RahmenVorlage.lAttribut[1] = s;
}

void CMFensterSatz::SetRahmenDefaults(double width, double thickness, double width2, int p, int r) {
  SetRahmenDefaults(width, thickness, width2, p, p, r, r);
}

long CMFensterSatz::GetOeffSeitenIndex(const CString& text) {
  return IndexOf<lintavo::ViewSide>(text, kAnzahlOeffSeiten);
}
long CMFensterSatz::GetGangArtIndex(const CString& text) {
  return IndexOf<lintavo::OpeningKind>(text, kAnzahlGangarten);
}
long CMFensterSatz::GetAnschlagIndex(const CString& text) {
  return IndexOf<lintavo::HingeSide>(text, kAnzahlAnschlaege);
}

CString CMFensterSatz::GetOeffSeitenKurzText(long i) {
  return TextAt<lintavo::ViewSide>(i, kAnzahlOeffSeiten);
}
CString CMFensterSatz::GetGangArtKurzText(long i) {
  return TextAt<lintavo::OpeningKind>(i, kAnzahlGangarten);
}
CString CMFensterSatz::GetAnschlagKurzText(long i) {
  return TextAt<lintavo::HingeSide>(i, kAnzahlAnschlaege);
}

CMBauteil* CMFensterSatz::GetRahmenBauteilPtr(long i) {
  return const_cast<CMBauteil*>(std::as_const(*this).GetRahmenBauteilPtr(i));
}

const CMBauteil* CMFensterSatz::GetRahmenBauteilPtr(long i) const {
  if (!bMitRahmen || i < 0) return nullptr;
  const CMBauteil* bauteil = lintavo::ElementPtr(RahmenTeile, i);
  return bauteil ? bauteil : &RahmenVorlage;
}

CMBauteil* CMFensterSatz::GetEinzelBauteilPtr(long i) {
  return lintavo::ElementPtr(EinzelTeile, i);
}

const CMBauteil* CMFensterSatz::GetEinzelBauteilPtr(long i) const {
  return lintavo::ElementPtr(EinzelTeile, i);
}

CMBauteil* CMFensterSatz::GetSprossenBauteilPtr(long i) {
  return lintavo::ElementPtr(Sprossen, i);
}

const CMBauteil* CMFensterSatz::GetSprossenBauteilPtr(long i) const {
  return lintavo::ElementPtr(Sprossen, i);
}

long CMFensterSatz::GetBauteilNr(const GEOM2_Polygon& polygon, long side) const {
  if (side < 0 || side >= polygon.GetAnzahl()) return -1;
  return polygon.GetAttribut(static_cast<int>(side));
}

CMBauteil* CMFensterSatz::GetBauteilPtr(const GEOM2_Polygon& polygon, long side) {
  return lintavo::ElementPtr(RahmenTeile, GetBauteilNr(polygon, side));
}

const CMBauteil* CMFensterSatz::GetBauteilPtr(const GEOM2_Polygon& polygon, long side) const {
  return lintavo::ElementPtr(RahmenTeile, GetBauteilNr(polygon, side));
}

long CMFensterSatz::lGetAnzahlRahmenBauteile() const {
  return CountPresent(RahmenTeile);
}
long CMFensterSatz::lGetAnzahlEinzelBauteile() const {
  return CountPresent(EinzelTeile);
}
long CMFensterSatz::lGetAnzahlSprossenBauteile() const {
  return CountPresent(Sprossen);
}

long CMFensterSatz::GetRahmenBauteilNr(const CMBauteil* bauteil) const {
  return PositionOf(RahmenTeile, bauteil);
}

long CMFensterSatz::GetEinzelBauteilNr(const CMBauteil* bauteil) const {
  return PositionOf(EinzelTeile, bauteil);
}

void CMFensterSatz::Verschieben(double dx, double dy) {
  RahmenPolygon.Transformieren(1.0, 0.0, dx, dy);
  Fuellung.Umriss.Transformieren(1.0, 0.0, dx, dy);
  for (auto* liste : {&RahmenTeile, &EinzelTeile, &Sprossen}) {
    for (CMBauteil& bauteil : *liste) bauteil.Verschieben(dx, dy);
  }
}

void CMFensterSatz::GetPlazierungsPunkte(const CMAchsen& axes, XY& p1, XY& p2, XY& pAL,
                                         XY& pAR) const {
  axes.GetPunkt(Knoten1, p1);
  axes.GetPunkt(Knoten2, p2);
  axes.GetPunkt(KnotenAL, pAL);
  axes.GetPunkt(KnotenAR, pAR);
}

void CMFensterSatz::GetMinMaxKnotenIndizes(long indices[4]) const {
  indices[0] = indices[2] = std::max(Knoten1.J(), Knoten2.J());
  indices[1] = indices[3] = std::max(Knoten1.K(), Knoten2.K());
}

bool CMFensterSatz::Get4BorderPoints(XY& a, XY& b, XY& c, XY& d,
                                     const GEOM2_Polygon& outline) const {
  XY low;
  XY high;
  outline.GetMinMax(low, high);
  a = {low.x, high.y};
  b = {low.x, low.y};
  c = {high.x, high.y};
  d = {high.x, low.y};
  return true;
}

void CMFensterSatz::FormBeiwerteAnpassen(bool, const CMAchsen&, long, long, double) {}

bool CMFensterSatz::bStichAnpassen(CMFenster&) {
  return false;
}

bool CMFensterSatz::BerechneGrundform(const XY&, const XY&, const XY&, const XY&, GEOM2_Polygon&) {
  return false;
}
