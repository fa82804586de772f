// Numbers in text and numbers that become whole: the only conversions between
// file data and numbers in the library. None of them looks at the locale.
#pragma once

#include <limits>
#include <string_view>

#include "lintavo/platform/CString.h"

namespace lintavo {

/// The number at the beginning of text, read as strtod reads it in the "C"
/// locale: white space and a sign of either kind may lead; decimal and
/// hexadecimal numbers, "inf", "infinity" and "nan" in any case; the longest
/// valid prefix counts and what follows is ignored. A text without a number
/// gives 0.0. Too large a number gives an infinity, too small a one a
/// denormal number or zero; both keep their sign.
double ParseNumber(std::string_view text);

/// The number as files hold it: rounded to six decimals, with a point, without
/// trailing zeros or a bare point, never with an exponent. The sign survives
/// the rounding ("-0").
CString FormatNumber(double value);

/// The value rounded to the six decimals of files; beyond 1e9 the value itself. Half a step
/// goes to the even neighbour: what moves by half a step there and back comes back.
double AsWritten(double value);

/// The number of fewest decimals, at most four, that lies within `tolerance` of the value;
/// the value itself where there is none, or would be by mere chance.
double ShortNumberWithin(double value, double tolerance);

/// The value without its decimals, moved to the nearest bound of the type when
/// it lies beyond; 0 for a value that is no number.
template <typename Integer>
constexpr Integer Truncate(double value) {
  using Limits = std::numeric_limits<Integer>;
  // The upper bound plus one is a power of two and so exact as a double, while
  // the bound itself may not be.
  constexpr double kBeyond = -static_cast<double>(Limits::min());
  if (value >= kBeyond) return Limits::max();
  if (value > -kBeyond) return static_cast<Integer>(value);
  return value <= -kBeyond ? Limits::min() : 0;
}

constexpr long TruncateToLong(double value) {
  return Truncate<long>(value);
}
constexpr int TruncateToInt(double value) {
  return Truncate<int>(value);
}

/// The value as a float, rounded to the nearest; an infinity where it lies
/// beyond the largest one.
constexpr float NarrowToFloat(double value) {
  // Half a step above the largest float: from here on rounding gives infinity.
  constexpr double kBeyond = 0x1.ffffffp127;
  if (value >= kBeyond) return std::numeric_limits<float>::infinity();
  if (value <= -kBeyond) return -std::numeric_limits<float>::infinity();
  constexpr double kLargest = std::numeric_limits<float>::max();
  if (value > kLargest) return std::numeric_limits<float>::max();
  if (value < -kLargest) return -std::numeric_limits<float>::max();
  return static_cast<float>(value);
}

/// The lowest eight bits of the value.
constexpr unsigned char LowByte(long value) {
  return static_cast<unsigned char>(static_cast<unsigned long>(value) & 0xFFUL);
}

}  // namespace lintavo
