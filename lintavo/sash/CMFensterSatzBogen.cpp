#include "lintavo/sash/CMFensterSatzBogen.h"

#include "lintavo/sash/Bogenform_intern.h"

bool CMFensterSatzBogen::ReadFromIniFile(const CString& section, CIniFile& document) {
  if (!CMFensterSatz::ReadFromIniFile(section, document)) return false;
  ReadBogenFromIniFile(section, document);
  return true;
}

bool CMFensterSatzBogen::SaveToIniFile(const CString& section, CIniFile& document) const {
  CMFensterSatz::SaveToIniFile(section, document);
  SaveBogenToIniFile(section, document);
  return true;
}

bool CMFensterSatzBogen::bStichAnpassen(CMFenster& fenster) {
  return bBaseStichAnpassen(fenster);
}

bool CMFensterSatzBogen::BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                                           GEOM2_Polygon& outline) {
  outline.Clear();
  const lintavo::PlazierungsBox box = lintavo::PlazierungsBoxVon(p1, p2);
  dBreite = box.Breite();
  dHoehe = box.Hoehe();
  lintavo::Bogenform form{box, lintavo::UeberstandDerBezugspunkte(box, p3, p4), dStich, dStichUnten,
                          bKorbbogen};
  lintavo::BegrenzeStiche(form);
  // A basket arch keeps the rise that was given where it is too much, on purpose: it comes
  // back when the sash grows again. Only the outline uses the bounded one.
  lintavo::MerkeStiche(form, bKorbbogen, dStich, dStichUnten);
  lintavo::BaueBogen(form, outline);
  return true;
}
