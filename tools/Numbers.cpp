// Numbers on the command line, the same under every locale.
#include "Numbers.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace lintavo::tools {

bool ParseNumber(std::string_view text, double& number) {
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec != std::errc() || result.ptr != end) return false;
  if (!std::isfinite(value)) return false;
  number = value;
  return true;
}

bool ParseLength(std::string_view text, double& length) {
  double value = 0.0;
  if (!ParseNumber(text, value) || value <= 0.0) return false;
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
