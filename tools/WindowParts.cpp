// The components of a window one by one, with their kinds and their ids in pictures.
#include "WindowParts.h"

#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"

namespace lintavo::tools {
namespace {

using drawing::ShapeKind;

constexpr long kOhneNummer = 0;

// Whether a bar runs rather upright than level.
bool IsAufrecht(const CMBauteil& bauteil) {
  const double winkel = bauteil.dGetDrehwinkel() * kRadiantJeGrad;
  return std::fabs(std::sin(winkel)) > std::fabs(std::cos(winkel));
}

TeilArt EinzelteilArt(const CMBauteil& bauteil) {
  if (bauteil.IsZusatzteilInnen()) return TeilArt::kZusatzInnen;
  if (bauteil.IsZusatzteilAussen()) return TeilArt::kZusatzAussen;
  return IsAufrecht(bauteil) ? TeilArt::kPfosten : TeilArt::kRiegel;
}

ShapeKind EinzelteilKind(const CMBauteil& bauteil, long fluegel) {
  if (fluegel != kRahmensatz) return ShapeKind::kFluegelEinzelteil;
  return bauteil.IsZusatzteilAussen() ? ShapeKind::kZusatzteil : ShapeKind::kEinzelteil;
}

// The components of a list that are there; `describe` tells kind and shape of each.
template <class Describe>
std::vector<Komponente> Vorhandene(const std::vector<CMBauteil>& bauteile, long fluegel,
                                   Describe describe) {
  std::vector<Komponente> komponenten;
  for (const CMBauteil& bauteil : bauteile) {
    if (!bauteil.IsVorhanden()) continue;
    Komponente komponente = describe(bauteil);
    komponente.fluegel = fluegel;
    komponente.index = static_cast<long>(komponenten.size());
    komponente.bauteil = &bauteil;
    komponenten.push_back(komponente);
  }
  return komponenten;
}

std::vector<Komponente> Vorhandene(const std::vector<CMBauteil>& bauteile, long fluegel,
                                   TeilArt art, ShapeKind kind) {
  return Vorhandene(bauteile, fluegel, [=](const CMBauteil&) { return Komponente{art, kind}; });
}

}  // namespace

const CMFensterSatz* SatzVon(const CFeApi& window, long fluegel) {
  const CMFenster* const fenster = window.GetFensterPtr();
  if (!fenster) return nullptr;
  return fluegel == kRahmensatz ? fenster->GetRahmenPtr() : fenster->GetFluegelPtr(fluegel);
}

std::vector<Komponente> Rahmenteile(const CMFensterSatz& satz, long fluegel) {
  if (fluegel == kRahmensatz) {
    return Vorhandene(satz.RahmenTeile, fluegel, TeilArt::kRahmen, ShapeKind::kRahmenteil);
  }
  return Vorhandene(satz.RahmenTeile, fluegel, TeilArt::kFluegelrahmen, ShapeKind::kFluegelteil);
}

std::vector<Komponente> Einzelteile(const CMFensterSatz& satz, long fluegel) {
  return Vorhandene(satz.EinzelTeile, fluegel, [=](const CMBauteil& bauteil) {
    return Komponente{EinzelteilArt(bauteil), EinzelteilKind(bauteil, fluegel)};
  });
}

std::vector<Komponente> Sprossen(const CMFensterSatz& satz, long fluegel) {
  return Vorhandene(satz.Sprossen, fluegel, TeilArt::kSprosse, ShapeKind::kSprosse);
}

std::vector<CMBauteil> LegeLamellen(const CFeApi& window, long fluegel) {
  std::vector<CMBauteil> lamellen;
  // The façade answers 0 where there is no contour, at which the sash itself throws.
  if (window.GetFluegelAnzahlLamellen(fluegel) <= 0) return lamellen;
  GEOM2_Polygon kontur;
  SatzVon(window, fluegel)->GetFuellung(kOhneNummer, kontur, lamellen);
  return lamellen;
}

std::vector<Komponente> Lamellen(const std::vector<CMBauteil>& lamellen, long fluegel) {
  return Vorhandene(lamellen, fluegel, TeilArt::kLamelle, ShapeKind::kLamelle);
}

TeilArt FuellungArt(const CFeApi& window, long fluegel) {
  return window.GetFluegelFuellungArt(fluegel) == eFeApiFuellungKonstant ? TeilArt::kPaneel
                                                                         : TeilArt::kGlas;
}

TeilArt BeschlagArt(int typ) {
  switch (typ) {
    case eBeschlagGriff:
      return TeilArt::kGriff;
    case eBeschlagBand:
      return TeilArt::kBand;
    default:
      return TeilArt::kBeschlag;
  }
}

}  // namespace lintavo::tools
