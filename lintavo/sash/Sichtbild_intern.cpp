#include "lintavo/sash/Sichtbild_intern.h"

#include <algorithm>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMException.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Lamellenlage_intern.h"

namespace lintavo {

namespace {

// Gathers the parts of a layer.
class Teilesammler {
 public:
  explicit Teilesammler(int seite) : aussen_(seite == kVonAussen) {}

  std::vector<Bildteil> Rahmen(const CMFensterSatz& rahmen) {
    for (const CMBauteil& bauteil : rahmen.EinzelTeile) {
      if (bauteil.IsZusatzteilAussen()) Add(bauteil);
    }
    Add(rahmen.RahmenTeile);
    for (const CMBauteil& bauteil : rahmen.EinzelTeile) {
      if (!bauteil.IsZusatzteilAussen()) Add(bauteil);
    }
    return std::move(teile_);
  }

  std::vector<Bildteil> Fluegel(const CMFensterSatz& fluegel) {
    Add(fluegel.RahmenTeile);
    Add(fluegel.EinzelTeile);
    Add(fluegel.Sprossen);
    AddFuellung(fluegel);
    return std::move(teile_);
  }

 private:
  void Add(const std::vector<CMBauteil>& bauteile) {
    for (const CMBauteil& bauteil : bauteile) Add(bauteil);
  }

  // The attributes of a part come in two pairs, one for each side.
  void Add(const CMBauteil& bauteil) {
    if (!bauteil.IsVorhanden()) return;
    Bildteil& teil = teile_.emplace_back();
    bauteil.GetUmrissPunkte(teil.umriss);
    teil.farbe = TruncateToInt(static_cast<double>(bauteil.lAttribut[aussen_ ? 1 : 0]));
    teil.prio = TruncateToInt(static_cast<double>(bauteil.lAttribut[aussen_ ? 3 : 2]));
  }

  // Slats and, behind them, the whole filling.
  void AddFuellung(const CMFensterSatz& fluegel) {
    // Not the glass, which lacks the contour's short edges: a line that runs exactly
    // along the sash's own parts is seen only where there are none.
    GEOM2_Polygon scheibe;
    try {
      if (!fluegel.ErzeugeRahmenInnenPolygon(scheibe)) return;
    } catch (const CMException&) {
      return;  // the sash's parts leave no room for a filling
    }
    GEOM2_Polygon verglast;
    std::vector<CMBauteil> lamellen;
    fluegel.GetFuellung(0, verglast, lamellen);
    for (const CMBauteil& lamelle : lamellen) {
      Add(lamelle);
      teile_.back().istFuellung = true;
      teile_.back().umriss = SichtbareLamelle(lamelle, scheibe);
    }
    for (int i = 0; i < scheibe.GetAnzahl(); ++i) scheibe.SetAttribut(i, 1);
    const CMFuellung& fuellung = fluegel.Fuellung;
    teile_.push_back({std::move(scheibe), aussen_ ? fuellung.I2 : fuellung.I1,
                      aussen_ ? fuellung.I4 : fuellung.I3, true});
  }

  bool aussen_;
  std::vector<Bildteil> teile_;
};

}  // namespace

std::vector<Bildteil> BildteileDesRahmens(const CMFensterSatz& rahmen, int seite) {
  return Teilesammler(seite).Rahmen(rahmen);
}

std::vector<Bildteil> BildteileDesFluegels(const CMFensterSatz& fluegel, int seite) {
  return Teilesammler(seite).Fluegel(fluegel);
}

void Sichtbild::AddEbene(std::vector<Bildteil> teile) {
  for (const Bildteil& teil : teile) verdeckung_.Hinzufuegen(teil.umriss, ebenen_.size());
  ebenen_.push_back(std::move(teile));
}

void Sichtbild::AddEbene(std::vector<Bildteil> teile, const GEOM2_Polygon& flaeche) {
  verdeckung_.Hinzufuegen(flaeche, ebenen_.size());
  ebenen_.push_back(std::move(teile));
}

bool Sichtbild::Zeichnen(std::vector<CMStrecke>& lines) {
  verdeckung_.Sortieren();
  for (std::size_t ebene = 0; ebene < ebenen_.size(); ++ebene) {
    if (!ZeichneEbene(ebene)) return false;
  }
  const std::vector<CMStrecke> einmal = OhneDoppelte(kanten_);
  lines.insert(lines.end(), einmal.begin(), einmal.end());
  return true;
}

bool Sichtbild::ZeichneEbene(std::size_t ebene) {
  const std::vector<Bildteil>& teile = ebenen_[ebene];
  Verdeckung innerhalb;
  for (std::size_t i = 0; i < teile.size(); ++i) innerhalb.Hinzufuegen(teile[i].umriss, i);
  innerhalb.Sortieren();
  for (std::size_t i = 0; i < teile.size(); ++i) {
    if (!ZeichneTeil(teile[i], ebene, innerhalb, i)) return false;
  }
  return true;
}

bool Sichtbild::ZeichneTeil(const Bildteil& teil, std::size_t ebene, const Verdeckung& innerhalb,
                            std::size_t nr) {
  for (int i = 0; i < teil.umriss.GetAnzahl(); ++i) {
    XY a;
    XY b;
    teil.umriss.GetKante(i, a, b);
    if (teil.umriss.GetAttribut(i) != 1) continue;
    if (!IstBrauchbar(a) || !IstBrauchbar(b)) continue;
    const double laenge = Abstand(a, b);
    if (laenge < kNullLaenge) continue;
    blick_.Richten(a, b);
    if (verdeckung_.Beschatten(a, b, ebene, blick_) || innerhalb.Beschatten(a, b, nr, blick_)) {
      continue;
    }
    for (const Abschnitt& abschnitt : UebrigeAbschnitte({{0.0, laenge}}, blick_.Innen())) {
      if (kanten_.size() == kMaxBildkanten) return false;
      const Teilstueck stueck = TeilDerKante(a, b, laenge, abschnitt);
      Bildkante& kante = kanten_.emplace_back();
      kante.strecke.SetPunkte(stueck.a, stueck.b);
      kante.strecke.SetFarbe(teil.farbe);
      kante.strecke.SetPrio(teil.prio);
      kante.istFuellung = teil.istFuellung;
    }
  }
  return true;
}

}  // namespace lintavo
