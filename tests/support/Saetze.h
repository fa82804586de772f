// What the tests of sashes share: documents from text, and sashes that stand
// alone with a frame of their own.
#pragma once

#include <initializer_list>

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace lintavo::test {

inline CIniFile Dokument(std::initializer_list<const char*> lines) {
  CIniFile document;
  for (const char* line : lines) document.AddLine(line);
  return document;
}

/// The text of an entry; "(fehlt)" when there is none. Reads a fresh copy: a
/// document is either written or read.
inline CString Eintrag(const CIniFile& document, const char* section, const char* key) {
  CIniFile copy;
  for (const CString& line : document.GetLines()) copy.AddLine(line);
  CString text = "(fehlt)";
  copy.GetString(section, key, text);
  return text;
}

/// Gives a sash the outline that its shape builds in a box, and frame parts of
/// the template's width along it. The sash stands alone, without a window.
inline bool BaueRahmen(CMFensterSatz& satz, const XY& p1, const XY& p2) {
  GEOM2_Polygon outline;
  const CMFensterSatz keinRahmen;
  return satz.BerechneGrundform(p1, p2, p1, p2, outline) &&
         satz.BerechneRahmenPolygon(100.0, 25.0, keinRahmen, outline) &&
         satz.ErzeugeRahmenBauteile();
}

}  // namespace lintavo::test
