#include "lintavo/sash/CMFensterSatzHalbBogen.h"

#include "lintavo/ini/CIniFile.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Bogenform_intern.h"

bool CMFensterSatzHalbBogen::ReadFromIniFile(const CString& section, CIniFile& document) {
  if (!CMFensterSatz::ReadFromIniFile(section, document)) return false;
  ReadBogenFromIniFile(section, document);
  document.GetBool(section, lintavo::Text(lintavo::StringId::Gespiegelt), bGespiegelt);
  return true;
}

bool CMFensterSatzHalbBogen::SaveToIniFile(const CString& section, CIniFile& document) const {
  CMFensterSatz::SaveToIniFile(section, document);
  SaveBogenToIniFile(section, document);
  CString ziel = section;
  document.SetBool(ziel, lintavo::Text(lintavo::StringId::Gespiegelt), bGespiegelt);
  return true;
}

bool CMFensterSatzHalbBogen::bStichAnpassen(CMFenster& fenster) {
  return bBaseStichAnpassen(fenster);
}

bool CMFensterSatzHalbBogen::BerechneGrundform(const XY& p1, const XY& p2, const XY&, const XY&,
                                               GEOM2_Polygon& outline) {
  outline.Clear();
  const lintavo::PlazierungsBox box = lintavo::PlazierungsBoxVon(p1, p2);
  dBreite = box.Breite();
  dHoehe = box.Hoehe();
  const lintavo::Ueberstand rand =
      bGespiegelt ? lintavo::Ueberstand{dBreite, 0.0} : lintavo::Ueberstand{0.0, dBreite};
  lintavo::Bogenform form{box, rand, dStich, dStichUnten, bKorbbogen};
  lintavo::BegrenzeStiche(form);
  lintavo::MerkeStiche(form, false, dStich, dStichUnten);
  lintavo::BaueBogen(form, outline);
  return true;
}
