// Numbers from text and into text, on the standard library's locale-free
// conversions.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/platform/Whitespace_intern.h"

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// "0x" introduces a hexadecimal number only when a digit of one follows;
// otherwise the text holds the number 0 and an "x" behind it.
bool HasHexPrefix(std::string_view text) {
  if (text.size() < 3 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) return false;
  if (text[2] == '.') return text.size() > 3 && HexDigit(text[3]) >= 0;
  return HexDigit(text[2]) >= 0;
}

// The exponent behind the digits, held within bounds that no sum with a count
// of digits leaves.
long long ReadExponent(std::string_view text) {
  constexpr long long kBound = 1'000'000'000'000;
  const bool negative = !text.empty() && text[0] == '-';
  if (!text.empty() && (text[0] == '-' || text[0] == '+')) text.remove_prefix(1);
  long long exponent = 0;
  for (const char c : text) {
    if (!IsDigit(c)) break;
    exponent = std::min(kBound, exponent * 10 + (c - '0'));
  }
  return negative ? -exponent : exponent;
}

// Whether a number that no double can hold is too large (true) or too small:
// the place of its first digit other than 0, moved by its exponent, decides.
bool IsTooLarge(std::string_view text, bool hex) {
  const long long bitsPerDigit = hex ? 4 : 1;
  long long place = 0;  // of the first digit, counted from the point
  bool behindPoint = false;
  bool found = false;
  std::size_t i = 0;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '.' && !behindPoint) {
      behindPoint = true;
      continue;
    }
    const int digit = hex ? HexDigit(c) : (IsDigit(c) ? c - '0' : -1);
    if (digit < 0) break;
    found = found || digit > 0;
    if (found && !behindPoint) ++place;
    if (!found && behindPoint) --place;
  }
  const char mark = hex ? 'p' : 'e';
  if (i < text.size() && (text[i] | 0x20) == mark) {
    return place * bitsPerDigit + ReadExponent(text.substr(i + 1)) > 0;
  }
  return place > 0;
}

double ParseUnsigned(std::string_view text) {
  const bool hex = HasHexPrefix(text);
  if (hex) text.remove_prefix(2);
  // A second sign ends the number, but the conversion would take a minus.
  if (text.empty() || text[0] == '-') return 0.0;
  double value = 0.0;
  const auto format = hex ? std::chars_format::hex : std::chars_format::general;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value, format);
  if (result.ec == std::errc::result_out_of_range) {
    return IsTooLarge(text, hex) ? HUGE_VAL : 0.0;
  }
  return result.ec == std::errc() ? value : 0.0;
}

}  // namespace

namespace lintavo {

double ParseNumber(std::string_view text) {
  text = TrimmedLeft(text);
  if (text.empty()) return 0.0;
  const bool negative = text[0] == '-';
  if (negative || text[0] == '+') text.remove_prefix(1);
  const double value = ParseUnsigned(text);
  return negative ? -value : value;
}

CString FormatNumber(double value) {
  // The largest double has 309 digits before the point.
  char buffer[336];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 6);
  std::string_view text(buffer, static_cast<std::size_t>(result.ptr - buffer));
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos) return text;  // infinite or no number
  while (text.back() == '0') text.remove_suffix(1);
  if (text.back() == '.') text.remove_suffix(1);
  return text;
}

}  // namespace lintavo
