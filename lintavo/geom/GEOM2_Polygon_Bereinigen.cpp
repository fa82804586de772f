// The polygon's clean-up.
#include "lintavo/geom/Eckenring_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Ring_intern.h"

namespace {

using lintavo::Eckenring;

/// Cuts off loops and folds, then thins out. Rings without loops, the usual ones, are
/// recognised once they are thinned out.
void OhneSchleifenAusduennen(Eckenring& ring, double tol, int umlauf) {
  if (!SindBrauchbar(ring)) {
    ring.clear();
    return;
  }
  Eckenring duenn(ring, ring.get_allocator());
  Ausduennen(duenn, tol);
  if (!duenn.empty() && !lintavo::IstEinfach(Orte(duenn))) {
    if (umlauf < 0) SeitenUmkehren(ring);
    duenn = lintavo::Groesstes(lintavo::SchleifenAbschneiden(ring), umlauf);
    Ausduennen(duenn, tol);
  }
  ring = std::move(duenn);
}

}  // namespace

bool GEOM2_Polygon::Bereinigen(double tol) {
  return Bereinigen(tol, true);
}

bool GEOM2_Polygon::Bereinigen(double tol, bool schleifen) {
  if (GetAnzahl() < 2) return false;
  lintavo::Arbeitsspeicher speicher;
  Eckenring ring = lintavo::EckenVon(*this, &speicher);
  if (schleifen) {
    OhneSchleifenAusduennen(ring, tol, GetFlaeche() < 0.0 ? -1 : 1);
  } else {
    Ausduennen(ring, tol);
  }
  SetEcken(AlsEckpunkte(ring, *this));
  return GetAnzahl() >= 3;
}
