// One material: how it looks, and its texture.
#pragma once

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"
#include "lintavo/settings/CAcMatTyp.h"

/// A material. A new one has the defaults of its fields.
class LINTAVO_API CAcMatEntry {
 public:
  CAcMatEntry() = default;
  CAcMatEntry(const CAcMatEntry&) = default;
  CAcMatEntry& operator=(const CAcMatEntry&) = default;
  virtual ~CAcMatEntry();

  /// Whether both look the same: the first 64 bytes of the display part byte by
  /// byte, both scales within 0.0001, the texture's id and its file name. Neither
  /// the name nor the colour of plane drawings is looked at. Byte by byte means
  /// that 0 and -0 differ and that a value that is no number equals itself.
  bool operator==(const CAcMatEntry& other) const;

  CAcMatTyp Typ;
  CString strName;
  CString strTextur;     ///< file name of the texture
  int iTexturID = -1;    ///< given by the host once it has loaded the texture
  double dXSkale = 1.0;  ///< scale of the texture
  double dYSkale = 1.0;
};
