// Cutting edges to one outline and to an area of several.
#include "lintavo/geom/KanteClippen.h"

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/Seitenblick_intern.h"
#include "lintavo/geom/Streckenteilung_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/geom/Verdeckung_intern.h"

using lintavo::Abschnitte;
using lintavo::kNullLaenge;

bool ClippKante(const GEOM2_Polygon& polygon, CMStrecke& kante) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  if (polygon.StreckeClippen(a, b)) {
    kante.SetPunkte(a, b);
    return true;
  }
  // Nothing cut away: wholly inside or wholly outside.
  lintavo::Arbeitsspeicher speicher;
  const auto stuecke = lintavo::StreckeTeilen(a, b, polygon, kNullLaenge, &speicher);
  return !stuecke.empty() && stuecke.front().innen;
}

bool ClippKanteAnPolys(const CMStrecke& kante, const std::vector<GEOM2_Polygon>& polys,
                       std::vector<CMStrecke>& teile, bool bInnen) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  if (!lintavo::IstBrauchbar(a) || !lintavo::IstBrauchbar(b)) return false;
  const double laenge = lintavo::Abstand(a, b);
  if (laenge < kNullLaenge) return false;

  lintavo::Verdeckung flaeche;
  for (const GEOM2_Polygon& polygon : polys) flaeche.Hinzufuegen(polygon, 0);
  flaeche.Sortieren();
  lintavo::Seitenblick blick;
  blick.Richten(a, b);
  flaeche.Beschatten(a, b, 1, blick);

  const Abschnitte ganze{{0.0, laenge}};
  const Abschnitte bleibt = bInnen ? lintavo::GemeinsameAbschnitte(ganze, blick.Innen())
                                   : lintavo::UebrigeAbschnitte(ganze, blick.Innen());
  // The list may hold the edge itself.
  CMStrecke teil = kante;
  for (const lintavo::Abschnitt& abschnitt : bleibt) {
    const lintavo::Teilstueck stueck = lintavo::TeilDerKante(a, b, laenge, abschnitt);
    teil.SetPunkte(stueck.a, stueck.b);
    teile.push_back(teil);
  }
  return !bleibt.empty();
}
