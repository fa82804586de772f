// What a host configures once for all windows: how dimensions are drawn, pen
// widths, and the materials of components, opening symbols and dimensions.
#pragma once

#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"
#include "lintavo/settings/CAcMatList.h"

/// The settings of a host. A new object has the defaults of its fields; reading
/// replaces what the file holds. Nothing throws but std::bad_alloc.
class LINTAVO_API CAcFeInis {
 public:
  CAcFeInis() = default;
  CAcFeInis(const CAcFeInis&) = default;
  CAcFeInis& operator=(const CAcFeInis&) = default;
  virtual ~CAcFeInis();

  /// Replaces the three lists by the materials of a file: sections
  /// "Vermaszung1", …, "Oeffnungssymbol1", … and "Bauteil1", …. True also when a
  /// list stays empty; false, and nothing changed, when the file cannot be read.
  bool ReadMaterials(const CString& path);
  /// Replaces `MaterialIni` by a file. False, and nothing changed, when it
  /// cannot be read.
  bool ReadMaterialIniFile(const CString& path);

  /// Reads the general settings. A missing key leaves its field alone. False,
  /// and nothing changed, when the file cannot be read.
  bool ReadGenerelles(const CString& path);
  /// The same from a document; always true. Unless `bPixel` is set, the five
  /// lengths stand in the file ten times as large as they are used.
  bool ReadGenerelles(CIniFile& document);
  /// Writes the general settings into a fresh document; always true. Writes
  /// the fields as they are and, unless `bPixel` is set, divides the five
  /// lengths by ten afterwards: use the object no further, or read it anew.
  bool SaveGenerelles(CIniFile& document);

  CAcMatList BauteilMaterialien;
  CAcMatList SymbolMaterialien;
  CIniFile MaterialIni;  ///< the material file as a document
  CAcMatList MaszMaterialien;

  bool bPixel = false;               ///< the five lengths are pixels
  double dMaszlinienFaktor = 1.0;    ///< factor of the distance between dimension lines
  double dTexthoehe = 10.0;          ///< height and
  double dTextbreite = 6.0;          ///< width of a character
  long lMinTextpixel = 10;           ///< text smaller than this is not drawn
  double dHilfslinienlaenge = 16.0;  ///< length of extension lines
  double dPfeillaenge = 10.0;        ///< length and
  double dPfeilbreite = 5.0;         ///< width of arrowheads
  float fStiftRahmen = 1.0F;         ///< pen widths
  float fStiftSymbole = 1.0F;
  float fStiftSprossen = 1.0F;
  float fStiftMaszlinien = 1.0F;
};
