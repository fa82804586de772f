// Numbers from text and into text, on the standard library's locale-free
// conversions.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
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

// The exponent behind its mark; 0 when no digit follows. Held within bounds that
// no sum with a count of digits leaves.
long long ReadExponent(std::string_view text) {
  constexpr long long kBound = 1'000'000'000'000'000;
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
  long long place = 0;  // of the first digit, counted from the point
  bool behindPoint = false;
  bool found = false;
  std::size_t i = 0;
  for (; i < text.size(); ++i) {
    if (text[i] == '.' && !behindPoint) {
      behindPoint = true;
      continue;
    }
    if (hex ? HexDigit(text[i]) < 0 : !IsDigit(text[i])) break;
    found = found || text[i] != '0';
    if (found && !behindPoint) ++place;
    if (!found && behindPoint) --place;
  }
  const char mark = hex ? 'p' : 'e';
  const bool marked = i < text.size() && (text[i] | 0x20) == mark;
  const long long bitsPerDigit = hex ? 4 : 1;
  return place * bitsPerDigit + (marked ? ReadExponent(text.substr(i + 1)) : 0) > 0;
}

// What stands behind "0x", without an exponent of two signs: that is none, but
// the conversion would take it.
std::string_view HexDigits(std::string_view text) {
  text.remove_prefix(2);
  const std::size_t mark = text.find_first_of("pP");
  return mark != std::string_view::npos && text.substr(mark + 1, 2) == "+-" ? text.substr(0, mark)
                                                                            : text;
}

// The number behind the sign; nothing when there is none.
std::optional<double> ParseUnsigned(std::string_view text) {
  const bool hex = HasHexPrefix(text);
  if (hex) text = HexDigits(text);
  // A second sign ends the number, but the conversion would take a minus.
  if (text.empty() || text[0] == '-') return std::nullopt;
  double value = 0.0;
  const auto format = hex ? std::chars_format::hex : std::chars_format::general;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value, format);
  if (result.ec == std::errc::result_out_of_range) return IsTooLarge(text, hex) ? HUGE_VAL : 0.0;
  if (result.ec != std::errc()) return std::nullopt;
  return value;
}

// Whole numbers below 2^53 but for a negative zero, which keeps its sign: most numbers
// of a file, and ten times as quick to write.
bool IsPlainWhole(double value) {
  constexpr double kBound = 0x1p53;
  if (!(std::fabs(value) < kBound)) return false;
  const auto whole = lintavo::Truncate<long long>(value);
  const bool isWhole = static_cast<double>(whole) == value;  // exact: nothing is left behind
  return isWhole && !(whole == 0 && std::signbit(value));
}

CString FormatWhole(long long value) {
  char buffer[24];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer));
}

}  // namespace

namespace lintavo {

double ParseNumber(std::string_view text) {
  text = TrimmedLeft(text);
  if (text.empty()) return 0.0;
  const bool negative = text[0] == '-';
  if (negative || text[0] == '+') text.remove_prefix(1);
  const std::optional<double> value = ParseUnsigned(text);
  if (!value) return 0.0;  // a lone "-" is no negative zero
  return negative ? -*value : *value;
}

double AsWritten(double value) {
  constexpr double kSteps = 1e6;
  constexpr double kBound = 1e9;
  constexpr double kNoise = 1e-3;  // of a step
  if (!(std::fabs(value) <= kBound)) return value;
  const double steps = value * kSteps;
  const double below = std::floor(steps);
  if (std::fabs(steps - below - 0.5) > kNoise) return std::round(steps) / kSteps;
  return (std::fabs(std::fmod(below, 2.0)) > 0.5 ? below + 1.0 : below) / kSteps;
}

double ShortNumberWithin(double value, double tolerance) {
  constexpr double kMaxSteps = 1e4;
  constexpr double kChance = 0.05;  // of the distance between two such numbers
  for (double steps = 1.0; steps <= kMaxSteps && tolerance * steps < kChance; steps *= 10.0) {
    const double number = std::round(value * steps) / steps;
    if (std::fabs(number - value) <= tolerance) return number;
  }
  return value;
}

CString FormatNumber(double value) {
  if (IsPlainWhole(value)) return FormatWhole(lintavo::Truncate<long long>(value));
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
