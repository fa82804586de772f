// Font records: one table of fields that reading and writing share.
#include "lintavo/ini/CExIniFile.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "lintavo/platform/Numbers_intern.h"

namespace {

using LongField = decltype(LOGFONT::lfHeight) LOGFONT::*;
using ByteField = decltype(LOGFONT::lfItalic) LOGFONT::*;

// One entry of the record; the face name is the field without a member.
struct Field {
  const char* suffix;
  LongField longField;
  ByteField byteField;
  long missing;
};

constexpr const char* kMissingFace = "Arial";
constexpr long kVariablePitchRoman = 18;

constexpr Field kFields[] = {
    {".lfCharSet", nullptr, &LOGFONT::lfCharSet, 0},
    {".lfClipPrecision", nullptr, &LOGFONT::lfClipPrecision, 0},
    {".lfEscapement", &LOGFONT::lfEscapement, nullptr, 0},
    {".lfFaceName", nullptr, nullptr, 0},
    {".lfHeight", &LOGFONT::lfHeight, nullptr, 10},
    {".lfItalic", nullptr, &LOGFONT::lfItalic, 0},
    {".lfOrientation", &LOGFONT::lfOrientation, nullptr, 0},
    {".lfOutPrecision", nullptr, &LOGFONT::lfOutPrecision, 0},
    {".lfPitchAndFamily", nullptr, &LOGFONT::lfPitchAndFamily, kVariablePitchRoman},
    {".lfQuality", nullptr, &LOGFONT::lfQuality, 2},
    {".lfStrikeOut", nullptr, &LOGFONT::lfStrikeOut, 0},
    {".lfUnderline", nullptr, &LOGFONT::lfUnderline, 0},
    {".lfWeight", &LOGFONT::lfWeight, nullptr, 0},
    {".lfWidth", &LOGFONT::lfWidth, nullptr, 0},
};

bool IsFaceName(const Field& field) {
  return field.longField == nullptr && field.byteField == nullptr;
}

void SetNumber(LOGFONT& lf, const Field& field, long value) {
  using Limits = std::numeric_limits<decltype(LOGFONT::lfHeight)>;
  if (field.byteField != nullptr) {
    lf.*field.byteField = lintavo::LowByte(value);
  } else {
    lf.*field.longField = static_cast<decltype(LOGFONT::lfHeight)>(
        std::clamp<long>(value, Limits::min(), Limits::max()));
  }
}

long GetNumber(const LOGFONT& lf, const Field& field) {
  return field.byteField != nullptr ? lf.*field.byteField : lf.*field.longField;
}

void SetFace(LOGFONT& lf, const CString& face) {
  std::memset(lf.lfFaceName, 0, sizeof lf.lfFaceName);
  const std::size_t length = std::min(face.View().size(), sizeof lf.lfFaceName - 1);
  std::memcpy(lf.lfFaceName, face.View().data(), length);
}

// A host may have filled all 32 places.
CString GetFace(const LOGFONT& lf) {
  const char* end = std::find(lf.lfFaceName, lf.lfFaceName + sizeof lf.lfFaceName, '\0');
  return CString(lf.lfFaceName, static_cast<int>(end - lf.lfFaceName));
}

}  // namespace

CExIniFile::~CExIniFile() = default;

bool CExIniFile::GetLogFont(const CString& section, const CString& prefix, LOGFONT& lf) {
  bool complete = true;
  for (const Field& field : kFields) {
    const CString key = prefix + field.suffix;
    int found = 0;
    if (IsFaceName(field)) {
      CString face = kMissingFace;
      found = GetString(section, key, face);
      SetFace(lf, face);
    } else {
      long value = field.missing;
      found = GetLong(section, key, value);
      SetNumber(lf, field, value);
    }
    complete = complete && found != 0;
  }
  return complete;
}

bool CExIniFile::SetLogFont(CString& section, const CString& prefix, const LOGFONT& lf) {
  for (const Field& field : kFields) {
    const CString key = prefix + field.suffix;
    if (IsFaceName(field)) {
      SetString(section, key, GetFace(lf));
    } else {
      SetLong(section, key, GetNumber(lf, field));
    }
  }
  return true;
}
