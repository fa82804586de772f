// Checks of words on the command line.
#include "Checks.h"

#include "lintavo/drawing/Text.h"

#include "Numbers.h"

namespace lintavo::tools {

std::string CheckNumber(const std::string& text) {
  double number = 0.0;
  return ParseNumber(text, number) ? "" : "'" + text + "' is no number";
}

std::string NoLength(const std::string& text) {
  std::string fault = "'";
  fault += drawing::ToDisplayText(text) + "' is no length greater than zero";
  if (text.find(',') != std::string::npos) fault += ", decimals stand behind a point";
  return fault;
}

std::string CheckLength(const std::string& text) {
  double length = 0.0;
  return ParseLength(text, length) ? "" : NoLength(text);
}

std::string CheckSize(const std::string& text) {
  double width = 0.0;
  double height = 0.0;
  return ParseSize(text, width, height) ? "" : "'" + text + "' is no size like 180x150";
}

}  // namespace lintavo::tools
