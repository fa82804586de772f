// Collects the pieces of windows into a cutting list.
#include "PartsList.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/drawing/Ids.h"

namespace lintavo::tools {
namespace {

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

void PartsCollector::AddStaebe(const std::vector<Piece>& pieces) {
  for (const Piece& piece : pieces) {
    Stab stab = MesseStab(piece);
    const double laenge = stab.laenge;
    Einreihen(std::move(stab), laenge, {fenster_, piece.sash, IdVon(piece)}, staebe_, list_.staebe);
  }
}

void PartsCollector::Add(const WindowView& view) {
  AddStaebe(view.frame.parts);
  AddStaebe(view.frame.singles);
  for (std::size_t i = 0; i < view.sashes.size(); ++i) {
    AddFluegel(view.sashes[i], static_cast<long>(i));
  }
  ++fenster_;
}

void PartsCollector::AddFluegel(const Sash& sash, long fluegel) {
  for (const auto* pieces : {&sash.parts, &sash.singles, &sash.bars, &sash.filling.slats}) {
    AddStaebe(*pieces);
  }
  const bool isPane = sash.filling.kind != FillingKind::kSlats;
  if (isPane && sash.filling.pane) AddScheibe(sash, *sash.filling.pane);
  AddBeschlaege(sash, fluegel);
}

void PartsCollector::AddScheibe(const Sash& sash, const Piece& pane) {
  GEOM2_Polygon umriss = options_.falz == 0.0 ? sash.inner : GEOM2_Polygon();
  if (options_.falz != 0.0) sash.inner.ParallelPolygon(options_.falz, umriss);
  if (umriss.GetAnzahl() < 3) return;
  Scheibe scheibe = MesseScheibe(ArtVon(pane), sash.filling.thickness, umriss);
  const double breite = scheibe.breite;
  Einreihen(std::move(scheibe), breite, {fenster_, pane.sash, IdVon(pane)}, scheiben_,
            list_.scheiben);
}

void PartsCollector::AddBeschlaege(const Sash& sash, long fluegel) {
  for (std::size_t j = 0; j < sash.fittings.size(); ++j) {
    const TeilArt art = ArtVon(sash.fittings[j]);
    auto zeile = std::find_if(
        list_.beschlaege.begin(), list_.beschlaege.end(), [&](const Beschlaege& beschlaege) {
          const bool apart = options_.jeFenster && beschlaege.stellen.front().fenster != fenster_;
          return beschlaege.art == art && !apart;
        });
    if (zeile == list_.beschlaege.end()) {
      zeile = list_.beschlaege.insert(zeile, {art, {}});
    }
    zeile->stellen.push_back(
        {fenster_, fluegel, drawing::BeschlagId(fluegel, static_cast<long>(j))});
  }
}

PartsList PartsCollector::Sorted() const {
  PartsList sorted = list_;
  Sortieren(options_.jeFenster, sorted.staebe);
  Sortieren(options_.jeFenster, sorted.scheiben);
  Sortieren(options_.jeFenster, sorted.beschlaege);
  return sorted;
}

std::vector<Profil> ProfileOf(const PartsList& list, bool jeFenster) {
  std::vector<Profil> profile;
  for (const Stab& stab : list.staebe) {
    const std::size_t fenster = stab.stellen.front().fenster;
    const bool same = !profile.empty() && profile.back().art == stab.art &&
                      Stufe(profile.back().breite) == Stufe(stab.breite) &&
                      Stufe(profile.back().dicke) == Stufe(stab.dicke) &&
                      (!jeFenster || profile.back().fenster == fenster);
    if (!same) profile.push_back({stab.art, stab.breite, stab.dicke, fenster});
    profile.back().anzahl += stab.stellen.size();
    profile.back().laenge += stab.laenge * static_cast<double>(stab.stellen.size());
  }
  return profile;
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
