// Typed values of the document: numbers, flags and lists of numbers, all of
// them through one parser and one formatter.
#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/Numbers_intern.h"

using lintavo::FormatNumber;
using lintavo::ParseNumber;

namespace {

// Flags are written as 1 and 0; a 1 that lost its last decimals is still one.
constexpr double kTrueAbove = 0.99;

}  // namespace

// The text of an entry that holds numbers; empty when it or its section is
// missing. Unlike GetString: lines before the first header answer for no
// section, and the text is not trimmed.
std::string_view CIniFile::FindNumbers(const CString& section, const CString& key) {
  const long start = FindSection(section) + 1;
  if (start < 1) return {};
  const long end = FindSection(start);
  return FindEntry(key.View(), start, end);
}

int CIniFile::GetDouble(const CString& section, const CString& key, double& v) {
  const std::string_view text = FindNumbers(section, key);
  if (text.empty()) return 0;
  v = ParseNumber(text);
  return 1;
}

int CIniFile::GetFloat(const CString& section, const CString& key, float& v) {
  double value = 0.0;
  if (GetDouble(section, key, value) == 0) return 0;
  v = lintavo::NarrowToFloat(value);
  return 1;
}

int CIniFile::GetLong(const CString& section, const CString& key, long& v) {
  double value = 0.0;
  if (GetDouble(section, key, value) == 0) return 0;
  v = lintavo::TruncateToLong(value);
  return 1;
}

int CIniFile::GetBool(const CString& section, const CString& key, bool& v) {
  double value = 0.0;
  if (GetDouble(section, key, value) == 0) return 0;
  v = value > kTrueAbove;
  return 1;
}

int CIniFile::GetDoubles(const CString& section, const CString& key, long n, double* v,
                         long* count) {
  for (long i = 0; i < n; ++i) v[i] = 0.0;
  if (count != nullptr) *count = 0;
  std::string_view text = FindNumbers(section, key);
  if (text.empty()) return 0;
  for (long i = 0; i < n; ++i) {
    const std::size_t comma = text.find(',');
    // Behind a leading comma the whole text is the item, which is no number.
    v[i] = ParseNumber(comma == 0 ? text : text.substr(0, comma));
    if (count != nullptr) ++*count;
    if (comma == std::string_view::npos) break;
    text.remove_prefix(comma + 1);
  }
  return 1;
}

int CIniFile::GetDoubles(const CString& section, const CString& key, long n, double* v) {
  return GetDoubles(section, key, n, v, nullptr);
}

int CIniFile::SetDouble(CString& section, const CString& key, double v) {
  return SetString(section, key, FormatNumber(v));
}

int CIniFile::SetFloat(CString& section, const CString& key, float v) {
  return SetDouble(section, key, static_cast<double>(v));
}

int CIniFile::SetLong(CString& section, const CString& key, long v) {
  return SetDouble(section, key, static_cast<double>(v));
}

int CIniFile::SetBool(CString& section, const CString& key, bool v) {
  return SetDouble(section, key, v ? 1.0 : 0.0);
}

int CIniFile::SetDoubles(CString& section, const CString& key, long n, const double* v) {
  CString list;
  for (long i = 0; i < n; ++i) {
    if (i > 0) list += ',';
    list += FormatNumber(v[i]);
  }
  return SetString(section, key, list);
}
