// The document with font records.
#pragma once

#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/LogFont.h"

/// A document that also reads and writes fonts: fourteen entries of one
/// section, whose keys are a prefix followed by the name of a field, from
/// ".lfCharSet" to ".lfWidth".
class LINTAVO_API CExIniFile : public CIniFile {
 public:
  CExIniFile() = default;
  CExIniFile(const CExIniFile&) = default;
  CExIniFile& operator=(const CExIniFile&) = default;
  ~CExIniFile() override;

  /// Fills the whole record; true only when all fourteen entries were there.
  /// A missing one gives the default: height 10, quality 2, pitch and family
  /// 18, face "Arial", else 0. Byte fields take the low byte of the number, a
  /// face name its first 31 bytes.
  bool GetLogFont(const CString& section, const CString& prefix, LOGFONT& lf);

  /// Writes the fourteen entries, in alphabetical order; always true. A new
  /// section's name is trimmed in place (see SetString).
  bool SetLogFont(CString& section, const CString& prefix, const LOGFONT& lf);
};
