// Numbers on the command line and in tables, the same under every locale.
#include "Numbers.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace lintavo::tools {
namespace {

constexpr double kLargestPlain = 1e15;
constexpr int kDecimals = 3;

std::string WithoutTrailingZeros(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace

std::string LengthText(double length) {
  char buffer[64];
  if (!(std::abs(length) < kLargestPlain)) {
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, length).ptr;
    return std::string(buffer, end);
  }
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, length, std::chars_format::fixed, kDecimals)
          .ptr;
  return WithoutTrailingZeros(std::string(buffer, end));
}

bool ParseLength(std::string_view text, double& length) {
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec != std::errc() || result.ptr != end) return false;
  if (!std::isfinite(value) || value <= 0.0) return false;
  length = value;
  return true;
}

bool ParseSize(std::string_view text, double& width, double& height) {
  const std::size_t cross = text.find_first_of("xX");
  if (cross == std::string_view::npos) return false;
  double first = 0.0;
  double second = 0.0;
  if (!ParseLength(text.substr(0, cross), first)) return false;
  if (!ParseLength(text.substr(cross + 1), second)) return false;
  width = first;
  height = second;
  return true;
}

}  // namespace lintavo::tools
