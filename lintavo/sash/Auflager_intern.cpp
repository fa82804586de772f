#include "lintavo/sash/Auflager_intern.h"

#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace lintavo {

Auflager::Auflager(const CMFensterSatz& frame) {
  const GEOM2_Polygon& umriss = frame.RahmenPolygon;
  linien_.reserve(umriss.GetEcken().size() + frame.EinzelTeile.size());
  XY a;
  XY b;
  for (int i = 0; umriss.GetKante(i, a, b); ++i) {
    const CMBauteil* bauteil = frame.GetBauteilPtr(umriss, i);
    Add(a, b, bauteil ? bauteil->dBreite : 0.0);
  }
  for (const CMBauteil& bauteil : frame.EinzelTeile) {
    if (bauteil.IsRahmenteil() && bauteil.GetAchspunkte(a, b)) Add(a, b, 0.5 * bauteil.dBreite);
  }
}

double Auflager::Einzug(const XY& a, const XY& b) const {
  Kasten kasten;
  kasten.Erweitern(a);
  kasten.Erweitern(b);
  for (const Linie& linie : linien_) {
    // Few lines are near a side, and boxes tell that sooner than lengths.
    if (linie.kasten.Trifft(kasten) && SeitenDecken(a, b, linie.a, linie.b)) return linie.einzug;
  }
  return 0.0;
}

void Auflager::Add(const XY& a, const XY& b, double einzug) {
  Linie& linie = linien_.emplace_back(Linie{a, b, einzug, {}});
  linie.kasten.Erweitern(a);
  linie.kasten.Erweitern(b);
  linie.kasten = linie.kasten.Vergroessert(2 * kUeberlagerung);
}

}  // namespace lintavo
