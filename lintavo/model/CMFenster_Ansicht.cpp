// The front view of a window with hidden lines removed.
//
// The window is a pile of layers: sashes, frame, sashes. Each layer is a pile of
// parts. An edge is hidden by the layers before its own, where a sash covers with its
// whole outline, and by the parts before its own in its layer.
#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/Doppelkanten_intern.h"
#include "lintavo/model/Verdeckung_intern.h"
#include "lintavo/platform/Numbers_intern.h"

namespace {

// No drawing has more lines than this; two crossing patterns of a thousand bars do.
constexpr std::size_t kGroesstesBild = 1'000'000;

// Values of CMFensterSatz::lOeffSeite, which name the viewer's sides too.
constexpr int kInnen = 0;
constexpr int kAussen = 1;

// --- layers -------------------------------------------------------------------

enum Lage { kVorDemRahmen, kRahmen, kHinterDemRahmen };

// Where a sash lies for a viewer on side `seite`. A pane without a sash frame sits
// in the rebate of the window's frame, which covers it from both sides.
Lage LageDesFluegels(const CMFensterSatz& fluegel, int seite) {
  if (!fluegel.bMitRahmen) return kHinterDemRahmen;
  return fluegel.lOeffSeite == seite ? kVorDemRahmen : kHinterDemRahmen;
}

double Rahmendicke(const CMFensterSatz& satz) {
  return satz.RahmenTeile.empty() ? satz.RahmenVorlage.dDicke : satz.RahmenTeile.front().dDicke;
}

// Depth of a sash behind the frame's face on side `seite`, in whole steps of the
// smallest length, so that the same depth reckoned in two ways compares equal.
double Tiefe(const CMFensterSatz& fluegel, const CMFensterSatz& rahmen, int seite) {
  const double tiefe = fluegel.lOeffSeite == seite
                           ? fluegel.dZVersatz
                           : Rahmendicke(rahmen) - Rahmendicke(fluegel) - fluegel.dZVersatz;
  const double schritte = std::round(tiefe / lintavo::kNullLaenge);
  return std::isnan(schritte) ? 0.0 : schritte;
}

// The window's layers for a viewer on side `seite`, the nearest first. Sashes of equal
// depth lie on each other, towards the side to which they open, in the order in which
// they open.
std::vector<const CMFensterSatz*> Ebenen(const CMFenster& fenster, int seite) {
  const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  using Schluessel = std::tuple<Lage, double, bool, bool, long>;
  std::vector<std::pair<Schluessel, const CMFensterSatz*>> ebenen;
  ebenen.push_back({{kRahmen, 0.0, false, false, 0}, &rahmen});
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    const bool vonHinten = fluegel.lOeffSeite != seite;
    ebenen.push_back({{LageDesFluegels(fluegel, seite), Tiefe(fluegel, rahmen, seite), vonHinten,
                       fluegel.bZuerstAufgehend == vonHinten, vonHinten ? -i : i},
                      &fluegel});
  }
  std::sort(ebenen.begin(), ebenen.end(),
            [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<const CMFensterSatz*> folge;
  folge.reserve(ebenen.size());
  for (const auto& ebene : ebenen) folge.push_back(ebene.second);
  return folge;
}

// --- parts of a layer ---------------------------------------------------------

struct Teil {
  GEOM2_Polygon umriss;  // attribute 1: the edge is drawn
  int farbe = 0;
  int prio = 0;
  bool istFuellung = false;
};

// The visible parts of a frame or a sash, the nearest first.
class Teilesammler {
 public:
  explicit Teilesammler(int seite) : aussen_(seite == kAussen) {}

  std::vector<Teil> Rahmen(const CMFensterSatz& rahmen) {
    for (const CMBauteil& bauteil : rahmen.EinzelTeile) {
      if (bauteil.IsZusatzteilAussen()) Add(bauteil);
    }
    Add(rahmen.RahmenTeile);
    for (const CMBauteil& bauteil : rahmen.EinzelTeile) {
      if (!bauteil.IsZusatzteilAussen()) Add(bauteil);
    }
    return std::move(teile_);
  }

  std::vector<Teil> Fluegel(const CMFensterSatz& fluegel) {
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

  void Add(const CMBauteil& bauteil, bool istFuellung = false) {
    if (!bauteil.IsVorhanden()) return;
    Teil& teil = teile_.emplace_back();
    bauteil.GetUmrissPunkte(teil.umriss);
    teil.farbe = lintavo::TruncateToInt(static_cast<double>(bauteil.lAttribut[aussen_ ? 1 : 0]));
    teil.prio = lintavo::TruncateToInt(static_cast<double>(bauteil.lAttribut[aussen_ ? 3 : 2]));
    teil.istFuellung = istFuellung;
  }

  // Slats and, behind them, the whole filling.
  void AddFuellung(const CMFensterSatz& fluegel) {
    GEOM2_Polygon verglast;
    std::vector<CMBauteil> lamellen;
    fluegel.GetFuellung(0, verglast, lamellen);
    for (const CMBauteil& lamelle : lamellen) Add(lamelle, true);

    // Not the glass, which lacks the contour's short edges: a line that runs exactly
    // along the sash's own parts is seen only where there are none.
    Teil teil;
    try {
      if (!fluegel.ErzeugeRahmenInnenPolygon(teil.umriss)) return;
    } catch (const CMException&) {
      return;  // the sash's parts leave no room for a filling
    }
    for (int i = 0; i < teil.umriss.GetAnzahl(); ++i) teil.umriss.SetAttribut(i, 1);
    teil.farbe = aussen_ ? fluegel.Fuellung.I2 : fluegel.Fuellung.I1;
    teil.prio = aussen_ ? fluegel.Fuellung.I4 : fluegel.Fuellung.I3;
    teil.istFuellung = true;
    teile_.push_back(std::move(teil));
  }

  bool aussen_;
  std::vector<Teil> teile_;
};

// --- the picture --------------------------------------------------------------

class Ansicht {
 public:
  Ansicht(const CMFenster& fenster, int seite) {
    const CMFensterSatz* rahmen = fenster.GetRahmenPtr();
    for (const CMFensterSatz* satz : Ebenen(fenster, seite)) {
      const std::size_t ebene = ebenen_.size();
      if (satz == rahmen) {
        ebenen_.push_back(Teilesammler(seite).Rahmen(*satz));
        for (const Teil& teil : ebenen_.back()) verdeckung_.Hinzufuegen(teil.umriss, ebene);
      } else {
        ebenen_.push_back(Teilesammler(seite).Fluegel(*satz));
        verdeckung_.Hinzufuegen(satz->RahmenPolygon, ebene);
      }
    }
    verdeckung_.Sortieren();
  }

  // False when there are more edges than a picture may have.
  bool Zeichnen() {
    for (std::size_t ebene = 0; ebene < ebenen_.size(); ++ebene) {
      lintavo::Verdeckung innerhalb;
      for (std::size_t i = 0; i < ebenen_[ebene].size(); ++i) {
        innerhalb.Hinzufuegen(ebenen_[ebene][i].umriss, i);
      }
      innerhalb.Sortieren();
      for (std::size_t i = 0; i < ebenen_[ebene].size(); ++i) {
        if (!ZeichneTeil(ebenen_[ebene][i], ebene, innerhalb, i)) return false;
      }
    }
    return true;
  }

  const std::vector<lintavo::Bildkante>& Kanten() const { return kanten_; }

 private:
  bool ZeichneTeil(const Teil& teil, std::size_t ebene, const lintavo::Verdeckung& innerhalb,
                   std::size_t nr) {
    for (int i = 0; i < teil.umriss.GetAnzahl(); ++i) {
      XY a;
      XY b;
      teil.umriss.GetKante(i, a, b);
      if (teil.umriss.GetAttribut(i) != 1) continue;
      if (!lintavo::IstBrauchbar(a) || !lintavo::IstBrauchbar(b)) continue;
      const double laenge = lintavo::Abstand(a, b);
      if (laenge < lintavo::kNullLaenge) continue;
      schatten_.Leeren();
      verdeckung_.Beschatten(a, b, ebene, schatten_);
      innerhalb.Beschatten(a, b, nr, schatten_);
      for (const lintavo::Spanne& spanne : lintavo::SichtbareSpannen(laenge, schatten_)) {
        if (kanten_.size() == kGroesstesBild) return false;
        AddKante(teil, a, b, spanne.von / laenge, spanne.bis / laenge);
      }
    }
    return true;
  }

  void AddKante(const Teil& teil, const XY& a, const XY& b, double von, double bis) {
    lintavo::Bildkante& kante = kanten_.emplace_back();
    kante.strecke.SetPunkte(von > 0.0 ? lintavo::Zwischenpunkt(a, b, von) : a,
                            bis < 1.0 ? lintavo::Zwischenpunkt(a, b, bis) : b);
    kante.strecke.SetFarbe(teil.farbe);
    kante.strecke.SetPrio(teil.prio);
    kante.istFuellung = teil.istFuellung;
  }

  std::vector<std::vector<Teil>> ebenen_;
  lintavo::Verdeckung verdeckung_;
  lintavo::Schatten schatten_;
  std::vector<lintavo::Bildkante> kanten_;
};

}  // namespace

bool CMFenster::GetHiddenLineBild(std::vector<CMStrecke>& lines, bool bVonAussen) const {
  lines.clear();
  Ansicht ansicht(*this, bVonAussen ? kAussen : kInnen);
  if (!ansicht.Zeichnen()) return false;
  lines = lintavo::OhneDoppelte(ansicht.Kanten());
  return !lines.empty();
}
