// The picture of one sash: the visible edges of its parts.
//
// The parts are taken from the viewer backwards. What the nearer ones leave of an
// edge is visible; of visible edges that coincide one is drawn.
#include <algorithm>
#include <cstddef>
#include <utility>

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/KanteClippen.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/sash/CMFensterSatz.h"

using lintavo::Abschnitte;

namespace {

// Beyond this it is no picture: a damaged pattern may lay a grid of a thousand
// bars each way.
constexpr std::size_t kMaxLinien = 1'000'000;

// What of an edge is to be seen: the edge, and its stretches in order.
struct Bildkante {
  CMStrecke kante;
  XY a;
  XY b;
  Abschnitte sichtbar;

  double Entlang(const XY& p) const {
    return lintavo::Skalarprodukt(lintavo::Einheit(lintavo::Differenz(b, a)),
                                  lintavo::Differenz(p, a));
  }
  XY Ort(double u) const { return lintavo::Zwischenpunkt(a, b, u / kante.GetLaenge()); }
};

// The picture while it is made.
class Fluegelbild {
 public:
  // Adds a part behind all that were added before.
  void Hinzufuegen(const CMBauteil& bauteil) {
    GEOM2_Polygon umriss;
    if (!bauteil.IsVorhanden() || !bauteil.GetUmrissPunkte(umriss)) return;
    Hinzufuegen(std::move(umriss), bauteil.lAttribut[0], bauteil.lAttribut[2]);
  }
  void Hinzufuegen(const std::vector<CMBauteil>& bauteile) {
    for (const CMBauteil& bauteil : bauteile) Hinzufuegen(bauteil);
  }
  // Adds the border of a pane. Parts that are added after it show only inside it:
  // the last slat may be laid higher than the pane is.
  void ScheibeHinzufuegen(const GEOM2_Polygon& contour, long farbe, long prio) {
    for (int i = 0; i < contour.GetAnzahl(); ++i) KanteHinzufuegen(contour, i, farbe, prio);
    scheibe_.push_back(contour);
  }

  // False when there are too many lines.
  bool Ausgeben(std::vector<CMStrecke>& lines) {
    if (anzahl_ > kMaxLinien) return false;
    std::stable_sort(kanten_.begin(), kanten_.end(), [](const Bildkante& k, const Bildkante& l) {
      return k.kante.GetPrio() > l.kante.GetPrio();
    });
    for (std::size_t i = 0; i < kanten_.size(); ++i) GezeichnetesAbziehen(i);
    for (const Bildkante& kante : kanten_) {
      for (const lintavo::Abschnitt& stueck : kante.sichtbar) {
        CMStrecke linie = kante.kante;
        linie.SetPunkte(kante.Ort(stueck.von), kante.Ort(stueck.bis));
        lines.push_back(linie);
      }
    }
    return true;
  }

 private:
  // The edges that the outline marks by its attribute are drawn.
  void Hinzufuegen(GEOM2_Polygon umriss, long farbe, long prio) {
    for (int i = 0; i < umriss.GetAnzahl() && anzahl_ <= kMaxLinien; ++i) {
      if (umriss.GetAttribut(i) == 1) KanteHinzufuegen(umriss, i, farbe, prio);
    }
    flaechen_.push_back(std::move(umriss));
  }

  void KanteHinzufuegen(const GEOM2_Polygon& umriss, int i, long farbe, long prio) {
    Bildkante neu;
    umriss.GetKante(i, neu.a, neu.b);
    neu.kante.SetPunkte(neu.a, neu.b);
    neu.kante.SetFarbe(static_cast<int>(farbe));
    neu.kante.SetPrio(static_cast<int>(prio));
    std::vector<CMStrecke> ganze;
    if (scheibe_.empty()) {
      ganze.push_back(neu.kante);
    } else {
      ClippKanteAnPolys(neu.kante, scheibe_, ganze, true);
    }
    std::vector<CMStrecke> sichtbar;
    for (const CMStrecke& teil : ganze) ClippKanteAnPolys(teil, flaechen_, sichtbar, false);
    if (sichtbar.empty()) return;
    for (const CMStrecke& teil : sichtbar) {
      XY p;
      XY q;
      teil.GetPunkte(p, q);
      neu.sichtbar.push_back({neu.Entlang(p), neu.Entlang(q)});
    }
    anzahl_ += neu.sichtbar.size();
    kanten_.push_back(std::move(neu));
  }

  // Takes from an edge what the edges before it draw in the same place.
  void GezeichnetesAbziehen(std::size_t nummer) {
    Bildkante& kante = kanten_[nummer];
    Abschnitte gezeichnet;
    for (std::size_t i = 0; i < nummer; ++i) {
      const Bildkante& davor = kanten_[i];
      if (davor.sichtbar.empty()) continue;
      if (!lintavo::SeitenDecken(kante.a, kante.b, davor.a, davor.b)) continue;
      for (const lintavo::Abschnitt& stueck : davor.sichtbar) {
        const double u = kante.Entlang(davor.Ort(stueck.von));
        const double v = kante.Entlang(davor.Ort(stueck.bis));
        gezeichnet.push_back({std::min(u, v), std::max(u, v)});
      }
    }
    if (gezeichnet.empty()) return;
    lintavo::AbschnitteVereinigen(gezeichnet);
    kante.sichtbar = lintavo::UebrigeAbschnitte(kante.sichtbar, gezeichnet);
    // What coinciding edges miss of each other is no line of its own.
    std::erase_if(kante.sichtbar, [](const lintavo::Abschnitt& stueck) {
      return stueck.bis - stueck.von < lintavo::kUeberlagerung;
    });
  }

  std::vector<GEOM2_Polygon> flaechen_;
  std::vector<Bildkante> kanten_;
  std::vector<GEOM2_Polygon> scheibe_;  // none, or the one pane
  std::size_t anzahl_ = 0;
};

}  // namespace

bool CMFensterSatz::GetFluegelBild2D(std::vector<CMStrecke>& lines,
                                     bool bMitOeffnungssymbol) const {
  GEOM2_Polygon contour;
  std::vector<CMBauteil> slats;
  GetFuellung(0, contour, slats);
  // The pane is seen up to the frame: the filling's own contour, without its short
  // edges, would show as a second line beside it.
  if (!KonturLesen(true, contour)) contour.Clear();

  Fluegelbild bild;
  bild.Hinzufuegen(RahmenTeile);
  bild.Hinzufuegen(EinzelTeile);
  bild.Hinzufuegen(Sprossen);
  bild.ScheibeHinzufuegen(contour, Fuellung.I1, Fuellung.I3);
  bild.Hinzufuegen(slats);
  if (!bild.Ausgeben(lines)) return false;
  if (bMitOeffnungssymbol) GetOeffSymbol(lines);
  return !lines.empty();
}
