// Checks of words on the command line.
#include "Checks.h"

#include "Numbers.h"

namespace lintavo::tools {

std::string CheckNumber(const std::string& text) {
  double number = 0.0;
  return ParseNumber(text, number) ? "" : "'" + text + "' is no number";
}

std::string CheckLength(const std::string& text) {
  double length = 0.0;
  return ParseLength(text, length) ? "" : "'" + text + "' is no length greater than zero";
}

std::string CheckSize(const std::string& text) {
  double width = 0.0;
  double height = 0.0;
  return ParseSize(text, width, height) ? "" : "'" + text + "' is no size like 180x150";
}

}  // namespace lintavo::tools
