// The window's lists and its state.
#include "lintavo/model/CMFenster.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/Elements_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/CMFensterSatzBogen.h"
#include "lintavo/sash/CMFensterSatzEllipse.h"
#include "lintavo/sash/CMFensterSatzHalbBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

using lintavo::StringId;

namespace {

// A new sash is drawn in by this much before it is held against the others, so
// that sashes may touch.
constexpr double kUeberlappungsSpiel = 0.1;

// The section value where none is set.
constexpr double kRahmenAbschnitt = 100.0;
constexpr double kAbschnittJeAusdehnung = 1.0 / 6.0;

using FluegelListe = std::vector<std::unique_ptr<CMFensterSatz>>;

FluegelListe Copy(const FluegelListe& source) {
  FluegelListe copy;
  copy.reserve(source.size());
  for (const auto& fluegel : source) {
    copy.emplace_back(CMFenster::NewFluegelPtr(fluegel->lForm));
    *copy.back() = *fluegel;
  }
  return copy;
}

// The outline of a sash on the grid.
GEOM2_Polygon Grundform(CMFensterSatz& fluegel, const CMAchsen& achsen) {
  XY p1;
  XY p2;
  XY pAL;
  XY pAR;
  fluegel.GetPlazierungsPunkte(achsen, p1, p2, pAL, pAR);
  GEOM2_Polygon form;
  fluegel.BerechneGrundform(p1, p2, pAL, pAR, form);
  return form;
}

}  // namespace

CMFenster::CMFenster() = default;
CMFenster::~CMFenster() = default;

CMFenster::CMFenster(const CMFenster& other)
    : neu_(other.neu_),
      dateiName_(other.dateiName_),
      name_(other.name_),
      typName_(other.typName_),
      bitmap1_(other.bitmap1_),
      bitmap2_(other.bitmap2_),
      achsen_(other.achsen_),
      rahmen_(other.rahmen_),
      rahmenAbschnitt_(other.rahmenAbschnitt_),
      pfostenVorlage_(other.pfostenVorlage_),
      fluegel_(Copy(other.fluegel_)),
      box_(other.box_),
      zusatzMasze_(other.zusatzMasze_),
      fehlerNummer_(other.fehlerNummer_),
      fehlerText_(other.fehlerText_) {}

CMFenster& CMFenster::operator=(const CMFenster& other) {
  if (this == &other) return *this;
  // Copied whole before anything changes: running out of memory leaves the
  // window as it was.
  CMFenster copy(other);
  neu_ = copy.neu_;
  dateiName_ = std::move(copy.dateiName_);
  name_ = std::move(copy.name_);
  typName_ = std::move(copy.typName_);
  bitmap1_ = std::move(copy.bitmap1_);
  bitmap2_ = std::move(copy.bitmap2_);
  achsen_ = std::move(copy.achsen_);
  rahmen_ = std::move(copy.rahmen_);
  rahmenAbschnitt_ = copy.rahmenAbschnitt_;
  pfostenVorlage_ = std::move(copy.pfostenVorlage_);
  fluegel_ = std::move(copy.fluegel_);
  box_ = copy.box_;
  zusatzMasze_ = std::move(copy.zusatzMasze_);
  fehlerNummer_ = copy.fehlerNummer_;
  fehlerText_ = std::move(copy.fehlerText_);
  return *this;
}

void CMFenster::Delete() {
  // The frame is made anew, template included: nothing of one file may show in
  // the next.
  CMFensterSatz leer;
  rahmen_ = std::move(leer);
  name_.Empty();
  typName_.Empty();
  bitmap1_.Empty();
  bitmap2_.Empty();
  achsen_.Delete();
  zusatzMasze_.clear();
  fluegel_.clear();
  box_ = Box{};
  fehlerNummer_ = 0;
  fehlerText_.Empty();
  neu_ = true;
}

void CMFenster::Invalidiere() {
  neu_ = true;
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (bauteil.IsRahmenteil()) bauteil.DeleteAchsen();
  }
}

void CMFenster::Invalidiere(bool neuLaden) {
  Invalidiere();
  if (!neuLaden) return;
  CIniFile document;
  SaveToBuffer(document);
  document.WriteTrace();
  Delete();
  ReadFromBuffer(document);
}

long CMFenster::GetFehler(CString& text) const {
  text = fehlerText_;
  return fehlerNummer_;
}

// Keeps how an operation ended; true when without an error.
bool CMFenster::FehlerMerken(CMException&& fehler) {
  fehlerNummer_ = fehler.iNummer;
  fehlerText_ = std::move(fehler.strText);
  return fehlerNummer_ == 0;
}

void CMFenster::SetErrorMsg(const CString& text) {
  fehlerText_ = text;
  fehlerNummer_ = 1;
}

void CMFenster::SetBitmaps(const CString& bitmap1, const CString& bitmap2) {
  bitmap1_ = bitmap1;
  bitmap2_ = bitmap2;
}

double CMFenster::GetRahmenAbschnitt() const {
  if (rahmenAbschnitt_ > 0.0) return rahmenAbschnitt_;
  XY low;
  XY high;
  if (!rahmen_.RahmenPolygon.GetMinMax(low, high)) return kRahmenAbschnitt;
  const double ausdehnung = std::max(high.x - low.x, high.y - low.y);
  return std::max(kRahmenAbschnitt, ausdehnung * kAbschnittJeAusdehnung);
}

void CMFenster::SetRahmenAbschnitt(double length) {
  rahmenAbschnitt_ = length > 0.0 && std::isfinite(length) ? length : 0.0;
}

CMFensterSatz* CMFenster::NewFluegelPtr(long lForm) {
  switch (lForm) {
    case eFormRechteck:
      return new CMFensterSatzRechteck;
    case eFormBogen:
      return new CMFensterSatzBogen;
    case eFormEllipse:
      return new CMFensterSatzEllipse;
    case eFormHalbBogen:
      return new CMFensterSatzHalbBogen;
    default:
      return nullptr;
  }
}

CMFensterSatz* CMFenster::AddFluegel(long lForm, long lTyp2, const CMKnoten& k1,
                                     const CMKnoten& k2) {
  return AddFluegel(lForm, lTyp2, k1, k2, k1, k2);
}

CMFensterSatz* CMFenster::AddFluegel(long lForm, long lTyp2, const CMKnoten& k1, const CMKnoten& k2,
                                     const CMKnoten& kAL, const CMKnoten& kAR) {
  std::unique_ptr<CMFensterSatz> fluegel(NewFluegelPtr(lForm));
  if (!fluegel) return nullptr;
  fluegel->lTyp2 = static_cast<int>(lTyp2);
  fluegel->Knoten1 = k1;
  fluegel->Knoten2 = k2;
  fluegel->KnotenAL = kAL;
  fluegel->KnotenAR = kAR;

  const GEOM2_Polygon form = Grundform(*fluegel, achsen_);
  if (std::fabs(form.GetFlaeche()) < lintavo::kNullFlaeche) {
    throw CMException(static_cast<int>(StringId::MeldungFluegelflaecheNull));
  }
  GEOM2_Polygon kern = form;
  form.ParallelPolygon(-kUeberlappungsSpiel, kern);
  for (const auto& anderer : fluegel_) {
    if (lintavo::PolygoneUeberlappen(kern, Grundform(*anderer, achsen_), lintavo::kUeberlappung)) {
      throw CMException(static_cast<int>(StringId::MeldungFluegelUeberlappen));
    }
  }
  fluegel_.push_back(std::move(fluegel));
  neu_ = true;
  return fluegel_.back().get();
}

CMFensterSatz* CMFenster::GetFluegelPtr(long i) {
  const auto* fluegel = lintavo::ElementPtr(fluegel_, i);
  return fluegel ? fluegel->get() : nullptr;
}

const CMFensterSatz* CMFenster::GetFluegelPtr(long i) const {
  const auto* fluegel = lintavo::ElementPtr(fluegel_, i);
  return fluegel ? fluegel->get() : nullptr;
}

CMFensterSatz* CMFenster::GetFluegelPtr(const CString& name) {
  const auto it = std::find_if(fluegel_.begin(), fluegel_.end(), [&](const auto& fluegel) {
    return fluegel->strName.CompareNoCase(name) == 0;
  });
  return it == fluegel_.end() ? nullptr : it->get();
}

long CMFenster::GetFluegelNr(const CMFensterSatz* fluegel) const {
  for (std::size_t i = 0; i < fluegel_.size(); ++i) {
    if (fluegel_[i].get() == fluegel) return static_cast<long>(i);
  }
  return -1;
}

bool CMFenster::DeleteFluegel(long i) {
  if (!GetFluegelPtr(i)) return false;
  fluegel_.erase(fluegel_.begin() + i);
  neu_ = true;
  DeleteZusatzMasze();
  rahmen_.Delete();
  return true;
}

CMBauteil* CMFenster::AddRahmenEinzelBauteil(const CMKnoten& k1, const CMKnoten& k2,
                                             const CMBauteil& vorlage) {
  CMBauteil bauteil = vorlage;
  bauteil.DeleteAchsen();
  bauteil.lTyp = eRahmenteil;
  bauteil.kAnfang = k1;
  bauteil.kEnde = k2;
  bauteil.lSeite = -1;
  bauteil.lKette = -1;
  rahmen_.EinzelTeile.push_back(std::move(bauteil));
  return &rahmen_.EinzelTeile.back();
}

bool CMFenster::DeleteRahmenEinzelBauteil(long i) {
  if (!rahmen_.DeleteEinzelBauteil(i)) return false;
  Invalidiere();
  return true;
}

void CMFenster::GetBauteile(std::vector<CMBauteil>& bauteile) const {
  const auto add = [&](const std::vector<CMBauteil>& liste) {
    bauteile.insert(bauteile.end(), liste.begin(), liste.end());
  };
  add(rahmen_.RahmenTeile);
  add(rahmen_.EinzelTeile);
  for (const auto& fluegel : fluegel_) {
    add(fluegel->RahmenTeile);
    add(fluegel->EinzelTeile);
    add(fluegel->Sprossen);
  }
}

void CMFenster::GetFuellungen(std::vector<CMFuellung>& fuellungen) const {
  fuellungen.push_back(rahmen_.Fuellung);
  for (const auto& fluegel : fluegel_) fuellungen.push_back(fluegel->Fuellung);
}

long CMFenster::AddZusatzMasz(const CMZusatzMasz& masz) {
  zusatzMasze_.push_back(masz);
  return GetAnzahlZusatzMasze() - 1;
}

CMZusatzMasz* CMFenster::GetZusatzMaszPtr(long i) {
  return lintavo::ElementPtr(zusatzMasze_, i);
}

const CMZusatzMasz* CMFenster::GetZusatzMaszPtr(long i) const {
  return lintavo::ElementPtr(zusatzMasze_, i);
}

long CMFenster::GetZusatzMaszNr(const CMZusatzMasz* masz) const {
  for (std::size_t i = 0; i < zusatzMasze_.size(); ++i) {
    if (&zusatzMasze_[i] == masz) return static_cast<long>(i);
  }
  return -1;
}

bool CMFenster::DeleteZusatzMasz(long i) {
  if (!GetZusatzMaszPtr(i)) return false;
  zusatzMasze_.erase(zusatzMasze_.begin() + i);
  return true;
}

bool CMFenster::DeleteZusatzMasze() {
  zusatzMasze_.clear();
  achsen_.AlleVerschiebungenZulassen(true);
  return true;
}

void CMFenster::GetMinMaxAchsIndizes(long& minJ, long& maxJ, long& minK, long& maxK) const {
  for (const auto& fluegel : fluegel_) {
    for (const CMKnoten* knoten :
         {&fluegel->Knoten1, &fluegel->Knoten2, &fluegel->KnotenAL, &fluegel->KnotenAR}) {
      minJ = std::min<long>(minJ, knoten->J());
      maxJ = std::max<long>(maxJ, knoten->J());
      minK = std::min<long>(minK, knoten->K());
      maxK = std::max<long>(maxK, knoten->K());
    }
  }
}

void CMFenster::Trace() const {
#ifndef NDEBUG
  CIniFile document;
  SaveToBuffer(document);
  document.WriteTrace();
  TRACE_RahmenPolygon();
#endif
}

void CMFenster::TRACE_RahmenPolygon() const {
#ifndef NDEBUG
  const GEOM2_Polygon& polygon = rahmen_.RahmenPolygon;
  std::fprintf(stderr, "--- Rahmenpolygon: %d ----\n", polygon.GetAnzahl());
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = polygon.GetEckpunkt(i);
    std::fprintf(stderr, "%d: (%g, %g) Bauteil %d\n", i, ecke.x, ecke.y, ecke.Attribut);
  }
#endif
}
