// Checks of words on the command line.
#include "Checks.h"

#include "lintavo/api/CFeApi.h"

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
  return ParseSize(text, width, height) ? "" : "'" + text + "' is no size like 1800x1500";
}

// A plain macro file under a compressed one's name could not be read again.
std::string CheckMacroTarget(const std::string& path) {
  if (CFeApi::IsFileCompressed(path.c_str()) != 1) return "";
  return "'" + path + "': compressed files are only read; choose a name ending in aqz";
}

}  // namespace lintavo::tools
