// The picture of one sash.
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Sichtbild_intern.h"

bool CMFensterSatz::GetFluegelBild2D(std::vector<CMStrecke>& lines,
                                     bool bMitOeffnungssymbol) const {
  lintavo::Sichtbild bild;
  bild.AddEbene(lintavo::BildteileDesFluegels(*this, lintavo::kVonInnen));
  if (!bild.Zeichnen(lines)) return false;
  if (bMitOeffnungssymbol) GetOeffSymbol(lines);
  return !lines.empty();
}
