// The front view of a window with hidden lines removed.
//
// The window is a pile of layers: sashes, frame, sashes. A sash covers with its whole
// outline, glass included, the frame with its parts.
#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/sash/Sichtbild_intern.h"

namespace {

// --- layers -------------------------------------------------------------------

enum Schicht { kVorDemRahmen, kRahmen, kHinterDemRahmen };

// Where a sash lies for a viewer on side `seite`. A pane without a sash frame sits
// in the rebate of the window's frame, which covers it from both sides.
Schicht SchichtDesFluegels(const CMFensterSatz& fluegel, int seite) {
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

// The window's layers for a viewer on side `seite`, the nearest first. Of sashes of equal
// depth those that open towards the viewer come first; those that open to one side lie on
// each other, towards that side, in the order in which they open.
std::vector<const CMFensterSatz*> Ebenen(const CMFenster& fenster, int seite) {
  const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  using Schluessel = std::tuple<Schicht, double, bool, bool, long>;
  std::vector<std::pair<Schluessel, const CMFensterSatz*>> ebenen;
  ebenen.push_back({{kRahmen, 0.0, false, false, 0}, &rahmen});
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) {
    const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(i);
    const bool vonHinten = fluegel.lOeffSeite != seite;
    ebenen.push_back({{SchichtDesFluegels(fluegel, seite), Tiefe(fluegel, rahmen, seite), vonHinten,
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

}  // namespace

bool CMFenster::GetHiddenLineBild(std::vector<CMStrecke>& lines, bool bVonAussen) const {
  const int seite = bVonAussen ? lintavo::kVonAussen : lintavo::kVonInnen;
  lines.clear();
  lintavo::Sichtbild bild;
  for (const CMFensterSatz* satz : Ebenen(*this, seite)) {
    if (satz == &rahmen_) {
      bild.AddEbene(lintavo::BildteileDesRahmens(*satz, seite));
    } else {
      bild.AddEbene(lintavo::BildteileDesFluegels(*satz, seite), satz->RahmenPolygon);
    }
  }
  return bild.Zeichnen(lines) && !lines.empty();
}
