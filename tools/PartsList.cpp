// Collects the pieces of windows into a cutting list.
#include "PartsList.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/drawing/Ids.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"

namespace lintavo::tools {
namespace {

using drawing::IdOf;
using drawing::ShapeKind;

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

// Calls `found` with every component that the façade counts and its number there.
template <class Found>
void JedesVorhandene(const std::vector<CMBauteil>& bauteile, Found found) {
  long i = 0;
  for (const CMBauteil& bauteil : bauteile) {
    if (bauteil.IsVorhanden()) found(bauteil, i++);
  }
}

// A measure in whole steps of the tolerance: measures that are alike have the same step
// or neighbouring ones.
double Stufe(double masz) {
  return std::isfinite(masz) ? std::round(masz / kGleichesMasz) : 0.0;
}

// What a list is sorted by, largest measures first.
auto Rang(const Stab& s) {
  return std::tuple(s.art, -Stufe(s.breite), -Stufe(s.dicke), -Stufe(s.laenge));
}

auto Rang(const Scheibe& s) {
  return std::tuple(s.art, -Stufe(s.dicke), -Stufe(s.flaeche));
}

auto Rang(const Beschlaege& b) {
  return b.art;
}

template <class Zeile>
void Sortieren(bool jeFenster, std::vector<Zeile>& zeilen) {
  std::stable_sort(zeilen.begin(), zeilen.end(), [=](const Zeile& a, const Zeile& b) {
    const std::size_t fensterA = jeFenster ? a.stellen.front().fenster : 0;
    const std::size_t fensterB = jeFenster ? b.stellen.front().fenster : 0;
    return fensterA != fensterB ? fensterA < fensterB : Rang(a) < Rang(b);
  });
}

}  // namespace

template <class Zeile>
void PartsCollector::Einreihen(Zeile zeile, double masz, Stelle stelle, Fundstellen& fundstellen,
                               std::vector<Zeile>& zeilen) {
  const std::size_t fenster = options_.jeFenster ? fenster_ : 0;
  stelle.fenster = fenster_;
  const double stufe = Stufe(masz);
  for (const double nachbar : {stufe, stufe - 1.0, stufe + 1.0}) {
    const auto found = fundstellen.find({fenster, zeile.art, nachbar});
    if (found == fundstellen.end()) continue;
    for (const std::size_t i : found->second) {
      if (!SchneidetGleich(zeilen[i], zeile)) continue;
      zeilen[i].stellen.push_back(std::move(stelle));
      return;
    }
  }
  fundstellen[{fenster, zeile.art, stufe}].push_back(zeilen.size());
  zeile.stellen.push_back(std::move(stelle));
  zeilen.push_back(std::move(zeile));
}

void PartsCollector::AddStab(TeilArt art, const CMBauteil& bauteil, long fluegel, std::string id) {
  Stab stab = MesseStab(art, bauteil);
  const double laenge = stab.laenge;
  Einreihen(std::move(stab), laenge, {0, fluegel, std::move(id)}, staebe_, list_.staebe);
}

void PartsCollector::Add(const CFeApi& window) {
  const CMFenster* const fenster = window.GetFensterPtr();
  if (!fenster) return;
  AddRahmen(*fenster->GetRahmenPtr());
  for (long i = 0; i < fenster->GetAnzahlFluegel(); ++i) {
    AddFluegel(window, *fenster->GetFluegelPtr(i), i);
  }
  ++fenster_;
}

void PartsCollector::AddRahmen(const CMFensterSatz& rahmen) {
  constexpr long kKeinFluegel = -1;
  JedesVorhandene(rahmen.RahmenTeile, [&](const CMBauteil& teil, long i) {
    AddStab(TeilArt::kRahmen, teil, kKeinFluegel, IdOf(ShapeKind::kRahmenteil, kKeinFluegel, i));
  });
  JedesVorhandene(rahmen.EinzelTeile, [&](const CMBauteil& teil, long i) {
    const ShapeKind kind =
        teil.IsZusatzteilAussen() ? ShapeKind::kZusatzteil : ShapeKind::kEinzelteil;
    AddStab(EinzelteilArt(teil), teil, kKeinFluegel, IdOf(kind, kKeinFluegel, i));
  });
}

void PartsCollector::AddFluegel(const CFeApi& window, const CMFensterSatz& satz, long fluegel) {
  JedesVorhandene(satz.RahmenTeile, [&](const CMBauteil& teil, long i) {
    AddStab(TeilArt::kFluegelrahmen, teil, fluegel, IdOf(ShapeKind::kFluegelteil, fluegel, i));
  });
  JedesVorhandene(satz.EinzelTeile, [&](const CMBauteil& teil, long i) {
    AddStab(EinzelteilArt(teil), teil, fluegel, IdOf(ShapeKind::kFluegelEinzelteil, fluegel, i));
  });
  JedesVorhandene(satz.Sprossen, [&](const CMBauteil& teil, long i) {
    AddStab(TeilArt::kSprosse, teil, fluegel, IdOf(ShapeKind::kSprosse, fluegel, i));
  });
  // The façade answers 0 where there is no contour, at which the sash itself throws.
  if (window.GetFluegelAnzahlLamellen(fluegel) > 0) AddLamellen(satz, fluegel);
  if (!satz.Fuellung.IsLamellen()) AddScheibe(window, fluegel);
  AddBeschlaege(satz, fluegel);
}

void PartsCollector::AddLamellen(const CMFensterSatz& satz, long fluegel) {
  constexpr long kOhneNummer = 0;
  GEOM2_Polygon kontur;
  std::vector<CMBauteil> lamellen;
  satz.GetFuellung(kOhneNummer, kontur, lamellen);
  long i = 0;
  for (const CMBauteil& lamelle : lamellen) {
    AddStab(TeilArt::kLamelle, lamelle, fluegel, IdOf(ShapeKind::kLamelle, fluegel, i++));
  }
}

void PartsCollector::AddScheibe(const CFeApi& window, long fluegel) {
  CFeApiPolygon umriss;
  if (window.GetFluegelInnenPolygon(fluegel, options_.falz, umriss) != 1) return;
  const bool paneel = window.GetFluegelFuellungArt(fluegel) == eFeApiFuellungKonstant;
  Scheibe scheibe = MesseScheibe(paneel ? TeilArt::kPaneel : TeilArt::kGlas,
                                 window.GetFluegelFuellungDicke(fluegel), umriss);
  const double breite = scheibe.breite;
  Einreihen(std::move(scheibe), breite, {0, fluegel, IdOf(ShapeKind::kGlas, fluegel, 0)}, scheiben_,
            list_.scheiben);
}

void PartsCollector::AddBeschlaege(const CMFensterSatz& satz, long fluegel) {
  for (long j = 0; j < satz.lGetAnzahlBeschlaege(); ++j) {
    const TeilArt art = BeschlagArt(satz.GetBeschlagPtr(j)->eTyp);
    auto zeile = std::find_if(
        list_.beschlaege.begin(), list_.beschlaege.end(), [&](const Beschlaege& beschlaege) {
          const bool apart = options_.jeFenster && beschlaege.stellen.front().fenster != fenster_;
          return beschlaege.art == art && !apart;
        });
    if (zeile == list_.beschlaege.end()) {
      zeile = list_.beschlaege.insert(zeile, {art, {}});
    }
    zeile->stellen.push_back({fenster_, fluegel, drawing::BeschlagId(fluegel, j)});
  }
}

PartsList PartsCollector::Sorted() const {
  PartsList sorted = list_;
  Sortieren(options_.jeFenster, sorted.staebe);
  Sortieren(options_.jeFenster, sorted.scheiben);
  Sortieren(options_.jeFenster, sorted.beschlaege);
  return sorted;
}

void Skaliere(double faktor, PartsList& list) {
  for (Stab& stab : list.staebe) {
    for (double* masz : {&stab.laenge, &stab.achslaenge, &stab.breite, &stab.dicke, &stab.radius}) {
      *masz *= faktor;
    }
    for (std::size_t i = 0; i < stab.verlauf.size(); i += 2) stab.verlauf[i] *= faktor;
  }
  for (Scheibe& scheibe : list.scheiben) {
    for (double* masz : {&scheibe.breite, &scheibe.hoehe, &scheibe.dicke}) *masz *= faktor;
    scheibe.flaeche *= faktor * faktor;
    for (XY& p : scheibe.umriss) p = {p.x * faktor, p.y * faktor};
  }
}

}  // namespace lintavo::tools
