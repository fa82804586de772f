// Measures in the records of files: distances, lengths, widths, coordinates, angles.
#pragma once

#include <algorithm>

#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/ini/CIniFile.h"

namespace lintavo {

/// Reads a measure. False, and the value is left alone, when its entry is missing; an
/// entry that is no finite number, or one beyond kGroessteKoordinate, counts as missing:
/// calculated with, it would leave outlines that nobody can draw, and a window that does
/// not read back.
inline bool ReadMasz(CIniFile& document, const CString& section, const CString& key,
                     double& value) {
  double number = 0.0;
  if (document.GetDouble(section, key, number) == 0 || !IstBrauchbar(number)) return false;
  value = number;
  return true;
}

/// Reads a list of n measures as CIniFile::GetDoubles does. A list counts as missing as a
/// whole when one of them would by itself.
inline bool ReadMasze(CIniFile& document, const CString& section, const CString& key, long n,
                      double* values) {
  return document.GetDoubles(section, key, n, values) != 0 &&
         std::all_of(values, values + n, [](double value) { return IstBrauchbar(value); });
}

}  // namespace lintavo
