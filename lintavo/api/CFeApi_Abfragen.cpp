// The façade's queries and setters: check, look up, read or store.
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/Masz_intern.h"
#include "lintavo/api/Records_intern.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"

using lintavo::Geschuetzt;
using lintavo::IstMasz;
using lintavo::KopiereText;
using lintavo::SetzeLaenge;

namespace {

// Kinds of components as hosts name them.
constexpr long kArtRahmenteil = 1;
constexpr long kArtEinzelteil = 2;
constexpr long kArtSprosse = 3;

constexpr long kGanzesBauteil = -1;

const std::vector<CMBauteil>* ListeDerArt(const CMFensterSatz& satz, long lArt, bool mitSprossen) {
  switch (lArt) {
    case kArtRahmenteil:
      return &satz.RahmenTeile;
    case kArtEinzelteil:
      return &satz.EinzelTeile;
    case kArtSprosse:
      return mitSprossen ? &satz.Sprossen : nullptr;
    default:
      return nullptr;
  }
}

// The i-th of the components that are there to be seen; null past the last.
// Components without a width or length, such as a mullion of which the frame
// leaves nothing, do not count, so that a host that counts to the number of
// components meets every one of them.
template <class Liste>
auto VorhandenesBauteil(Liste& liste, long i) -> decltype(liste.data()) {
  if (i < 0) return nullptr;
  for (auto& bauteil : liste) {
    if (bauteil.IsVorhanden() && i-- == 0) return &bauteil;
  }
  return nullptr;
}

const CMBauteil* BauteilDerArt(const CMFensterSatz* satz, long lArt, long i, bool mitSprossen) {
  const std::vector<CMBauteil>* liste = satz ? ListeDerArt(*satz, lArt, mitSprossen) : nullptr;
  return liste ? VorhandenesBauteil(*liste, i) : nullptr;
}

long AnzahlDerArt(const CMFensterSatz& satz, long lArt, bool mitSprossen) {
  switch (lArt) {
    case kArtRahmenteil:
      return satz.lGetAnzahlRahmenBauteile();
    case kArtEinzelteil:
      return satz.lGetAnzahlEinzelBauteile();
    case kArtSprosse:
      return mitSprossen ? satz.lGetAnzahlSprossenBauteile() : 0;
    default:
      return 0;
  }
}

int UmrissVon(const CMBauteil* bauteil, long lSegment, CFeApiPolygon& umriss, double& dLaenge,
              double& dWinkelAnfang, double& dWinkelEnde) {
  umriss.Delete();
  if (!bauteil || bauteil->lGetAnzAchsen() == 0) return 0;
  const bool whole = lSegment == kGanzesBauteil;
  if (!whole && (lSegment < 0 || lSegment >= bauteil->lGetAnzAchsen())) return 0;
  GEOM2_Polygon polygon;
  const bool built = whole ? bauteil->GetUmrissPunkte(polygon)
                           : bauteil->GetUmrissPunkteAchsSegment(lSegment, polygon);
  if (!built) return 0;
  lintavo::KopierePolygon(polygon, umriss);
  const GEOM2_Achse& first = bauteil->Achse(whole ? 0 : lSegment);
  const GEOM2_Achse& last = bauteil->Achse(whole ? bauteil->lGetAnzAchsen() - 1 : lSegment);
  dLaenge = whole ? bauteil->GetAchsLaenge() : first.dLaenge;
  dWinkelAnfang = first.dWinkelAnfang;
  dWinkelEnde = last.dWinkelEnde;
  return 1;
}

// Attribute a1 to a4 of a component, 0 without one.
long AttributVon(const CMBauteil* bauteil, long n) {
  if (!bauteil || n < 1 || n > 4) return 0;
  return bauteil->lAttribut[n - 1];
}

const CMBauteil* ErstesRahmenteil(const CMFensterSatz* satz) {
  return BauteilDerArt(satz, kArtRahmenteil, 0, false);
}

// Stores one measure in the template and in every frame part of a record.
void SetzeRahmenMasz(CMFensterSatz& satz, double CMBauteil::*masz, double value) {
  satz.RahmenVorlage.*masz = value;
  for (CMBauteil& bauteil : satz.RahmenTeile) bauteil.*masz = value;
}

long LeererText(char (&text)[256]) {
  std::memset(text, 0, sizeof text);
  return 0;
}

}  // namespace

// --- the window ---------------------------------------------------------------

long CFeApi::GetFensterBezeichnung(char (&name)[256]) const {
  return pFenster_ ? KopiereText(pFenster_->GetName(), name) : LeererText(name);
}

double CFeApi::GetFensterBreite() const {
  XY size;
  if (pFenster_) pFenster_->GetSize(size);
  return size.x;
}

double CFeApi::GetFensterHoehe() const {
  XY size;
  if (pFenster_) pFenster_->GetSize(size);
  return size.y;
}

// --- the frame ----------------------------------------------------------------

const CMFensterSatz* CFeApi::Rahmen() const {
  return pFenster_ ? pFenster_->GetRahmenPtr() : nullptr;
}

double CFeApi::GetRahmenBreite() const {
  const CMBauteil* bauteil = ErstesRahmenteil(Rahmen());
  return bauteil ? bauteil->dBreite : 0.0;
}

double CFeApi::GetRahmenDicke() const {
  const CMBauteil* bauteil = ErstesRahmenteil(Rahmen());
  return bauteil ? bauteil->dDicke : 0.0;
}

int CFeApi::SetRahmenBreite(double width) {
  return SetzeRahmen(pFenster_ ? pFenster_->GetRahmenPtr() : nullptr, &CMBauteil::dBreite, width);
}

int CFeApi::SetRahmenDicke(double thickness) {
  return SetzeRahmen(pFenster_ ? pFenster_->GetRahmenPtr() : nullptr, &CMBauteil::dDicke,
                     thickness);
}

double CFeApi::GetRahmenAbschnitt() const {
  return pFenster_ ? pFenster_->GetRahmenAbschnitt() : 0.0;
}

int CFeApi::SetRahmenAbschnitt(double length) {
  if (!pFenster_ || !(length >= 0.0) || !std::isfinite(length)) return 0;
  pFenster_->SetRahmenAbschnitt(length);
  return 1;
}

long CFeApi::GetAnzahlRahmenBauteile(long lArt) const {
  return Rahmen() ? AnzahlDerArt(*Rahmen(), lArt, false) : 0;
}

long CFeApi::GetAnzahlRahmenBauteilSegmente(long lArt, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Rahmen(), lArt, i, false);
  return bauteil ? bauteil->lGetAnzAchsen() : 0;
}

double CFeApi::GetRahmenBauteilDicke(long lArt, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Rahmen(), lArt, i, false);
  return bauteil ? bauteil->dDicke : 0.0;
}

long CFeApi::GetRahmenBauteilTyp(long lArt, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Rahmen(), lArt, i, false);
  return bauteil ? bauteil->lTyp : -1;
}

long CFeApi::GetRahmenBauteilAttribut(long lArt, long i, long n) const {
  return AttributVon(BauteilDerArt(Rahmen(), lArt, i, false), n);
}

int CFeApi::GetRahmenBauteilUmriss(long lArt, long i, long lSegment, CFeApiPolygon& umriss,
                                   double& dLaenge, double& dWinkelAnfang,
                                   double& dWinkelEnde) const {
  return Geschuetzt(0, [&] {
    return UmrissVon(BauteilDerArt(Rahmen(), lArt, i, false), lSegment, umriss, dLaenge,
                     dWinkelAnfang, dWinkelEnde);
  });
}

// --- the sashes ---------------------------------------------------------------

const CMFensterSatz* CFeApi::Fluegel(long i) const {
  return pFenster_ ? std::as_const(*pFenster_).GetFluegelPtr(i) : nullptr;
}

CMFensterSatz* CFeApi::Fluegel(long i) {
  return pFenster_ ? pFenster_->GetFluegelPtr(i) : nullptr;
}

long CFeApi::GetAnzahlFluegel() const {
  return pFenster_ ? pFenster_->GetAnzahlFluegel() : -1;
}

long CFeApi::GetFluegelName(long i, char (&name)[256]) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? KopiereText(fluegel->strName, name) : LeererText(name);
}

double CFeApi::GetFluegelRahmenBreite(long i) const {
  const CMBauteil* bauteil = ErstesRahmenteil(Fluegel(i));
  return bauteil ? bauteil->dBreite : 0.0;
}

double CFeApi::GetFluegelRahmenDicke(long i) const {
  const CMBauteil* bauteil = ErstesRahmenteil(Fluegel(i));
  return bauteil ? bauteil->dDicke : 0.0;
}

double CFeApi::GetFluegelUeberschlag(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? fluegel->RahmenVorlage.dBreite2 : 0.0;
}

double CFeApi::GetFluegelZVersatz(long i, long side) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel) return 0.0;
  if (side != 0 && side != 1) return 0.0;
  if (side == fluegel->lOeffSeite) return fluegel->dZVersatz;
  return GetRahmenDicke() - GetFluegelRahmenDicke(i) - fluegel->dZVersatz;
}

int CFeApi::SetFluegelRahmenBreite(long i, double width) {
  return SetzeRahmen(Fluegel(i), &CMBauteil::dBreite, width);
}

int CFeApi::SetFluegelRahmenDicke(long i, double thickness) {
  return SetzeRahmen(Fluegel(i), &CMBauteil::dDicke, thickness);
}

int CFeApi::SetFluegelUeberschlag(long i, double overlap) {
  CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel || !lintavo::IstMaszOderNull(overlap)) return 0;
  SetzeRahmenMasz(*fluegel, &CMBauteil::dBreite2, overlap);
  pFenster_->Invalidiere();
  return 1;
}

int CFeApi::SetFluegelZVersatz(long i, double offset) {
  CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel || !lintavo::IstMaszOderNull(offset)) return 0;
  fluegel->dZVersatz = offset;
  return 1;
}

long CFeApi::GetFluegelAnzahlBauteile(long lArt, long iFluegel) const {
  const CMFensterSatz* fluegel = Fluegel(iFluegel);
  return fluegel ? AnzahlDerArt(*fluegel, lArt, true) : 0;
}

long CFeApi::GetFluegelAnzahlBauteilSegmente(long lArt, long iFluegel, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Fluegel(iFluegel), lArt, i, true);
  return bauteil ? bauteil->lGetAnzAchsen() : 0;
}

double CFeApi::GetFluegelBauteilDicke(long lArt, long iFluegel, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Fluegel(iFluegel), lArt, i, true);
  return bauteil ? bauteil->dDicke : 0.0;
}

long CFeApi::GetFluegelBauteilTyp(long lArt, long iFluegel, long i) const {
  const CMBauteil* bauteil = BauteilDerArt(Fluegel(iFluegel), lArt, i, true);
  return bauteil ? bauteil->lTyp : -1;
}

long CFeApi::GetFluegelBauteilAttribut(long lArt, long iFluegel, long i, long n) const {
  return AttributVon(BauteilDerArt(Fluegel(iFluegel), lArt, i, true), n);
}

int CFeApi::GetFluegelBauteilUmriss(long lArt, long iFluegel, long i, long lSegment,
                                    CFeApiPolygon& umriss, double& dLaenge, double& dWinkelAnfang,
                                    double& dWinkelEnde) const {
  return Geschuetzt(0, [&] {
    return UmrissVon(BauteilDerArt(Fluegel(iFluegel), lArt, i, true), lSegment, umriss, dLaenge,
                     dWinkelAnfang, dWinkelEnde);
  });
}

int CFeApi::GetFluegelInnenPolygon(long i, double d, CFeApiPolygon& polygon) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel) return 0;
  return Geschuetzt(0, [&] {
    GEOM2_Polygon innen;
    if (!fluegel->ErzeugeRahmenInnenPolygon(innen)) return 0;
    GEOM2_Polygon moved = d == 0.0 ? innen : GEOM2_Polygon();
    if (d != 0.0) innen.ParallelPolygon(d, moved);
    if (moved.GetAnzahl() < 3) return 0;
    lintavo::KopierePolygon(moved, polygon);
    return 1;
  });
}

eFeApiFuellArten CFeApi::GetFluegelFuellungArt(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel || fluegel->Fuellung.IsGlas()) return eFeApiFuellungGlas;
  if (fluegel->Fuellung.IsKonstant()) return eFeApiFuellungKonstant;
  return fluegel->Fuellung.IsLamellen() ? eFeApiFuellungLamellen : eFeApiFuellungGlas;
}

double CFeApi::GetFluegelFuellungDicke(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? fluegel->Fuellung.D3 : 0.0;
}

long CFeApi::GetFluegelFuellungAttribut(long i, long n) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  if (!fluegel || n < 1 || n > 4) return 0;
  const CMFuellung& fuellung = fluegel->Fuellung;
  const int attribute[] = {fuellung.I1, fuellung.I2, fuellung.I3, fuellung.I4};
  return attribute[n - 1];
}

long CFeApi::GetAnzahlBeschlaege(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? static_cast<long>(fluegel->Beschlaege.size()) : -1;
}

long CFeApi::GetAnzahlSprossen(long i) const {
  const CMFensterSatz* fluegel = Fluegel(i);
  return fluegel ? fluegel->lGetAnzahlSprossenBauteile() : -1;
}

double CFeApi::GetSprossenBreite(long i, long j) const {
  const CMBauteil* sprosse = BauteilDerArt(Fluegel(i), kArtSprosse, j, true);
  return sprosse ? sprosse->dBreite : 0.0;
}

double CFeApi::GetSprossenDicke(long i, long j) const {
  const CMBauteil* sprosse = BauteilDerArt(Fluegel(i), kArtSprosse, j, true);
  return sprosse ? sprosse->dDicke : 0.0;
}

int CFeApi::SetSprossenBreite(long i, long j, double width) {
  return SetzeSprosse(i, j, &CMBauteil::dBreite, width);
}

int CFeApi::SetSprossenDicke(long i, long j, double thickness) {
  return SetzeSprosse(i, j, &CMBauteil::dDicke, thickness);
}

int CFeApi::SetzeRahmen(CMFensterSatz* satz, double CMBauteil::*masz, double value) {
  if (!satz || !lintavo::IstMasz(value)) return 0;
  SetzeRahmenMasz(*satz, masz, value);
  // Mullions are laid anew: they end at a frame of another width now.
  pFenster_->Invalidiere();
  return 1;
}

int CFeApi::SetzeSprosse(long i, long j, double CMBauteil::*masz, double value) {
  CMFensterSatz* fluegel = Fluegel(i);
  CMBauteil* sprosse = fluegel ? VorhandenesBauteil(fluegel->Sprossen, j) : nullptr;
  if (!sprosse || !lintavo::IstMasz(value)) return 0;
  sprosse->*masz = value;
  return 1;
}

// --- additional dimensions ----------------------------------------------------

long CFeApi::GetAnzahlZusatzMasze() const {
  return pFenster_ ? pFenster_->GetAnzahlZusatzMasze() : 0;
}

CMZusatzMasz* CFeApi::ZusatzMasz(long i) const {
  return pFenster_ ? pFenster_->GetZusatzMaszPtr(i) : nullptr;
}

long CFeApi::GetZMaszName(long i, char (&name)[256]) const {
  const CMZusatzMasz* masz = ZusatzMasz(i);
  return masz ? KopiereText(masz->strName, name) : LeererText(name);
}

double CFeApi::GetZMaszLaenge(long i) const {
  const CMZusatzMasz* masz = ZusatzMasz(i);
  return masz ? masz->dLaenge : 0.0;
}

int CFeApi::SetZMaszLaenge(long i, double length) {
  CMZusatzMasz* masz = ZusatzMasz(i);
  if (!masz || !lintavo::IstMasz(length)) return 0;
  lintavo::SetzeLaenge(*masz, length);
  return 1;
}

int CFeApi::SetZMaszLaengeMitName(long i, double length) {
  const CMZusatzMasz* masz = ZusatzMasz(i);
  if (!masz || !lintavo::IstMasz(length)) return 0;
  for (long n = 0; n < GetAnzahlZusatzMasze(); ++n) {
    CMZusatzMasz& other = *ZusatzMasz(n);
    if (other.strName.CompareNoCase(masz->strName) == 0) lintavo::SetzeLaenge(other, length);
  }
  return 1;
}
