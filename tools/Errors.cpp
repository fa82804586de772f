// What stops a command, and the words for it.
#include "Errors.h"

#include "lintavo/drawing/Text.h"

#include "System.h"

namespace lintavo::tools {

std::string DisplayName(const std::string& path) {
  return path == kStandardStream ? "standard input" : drawing::ToDisplayText(path);
}

// The library quotes a file's name when the file itself is at fault; every other
// message is led by it.
void Fail(const std::string& path, const std::string& message) {
  const std::string file = DisplayName(path);
  if (message.find("'" + file + "'") != std::string::npos) throw CommandError(message);
  throw CommandError(file + ": " + message);
}

}  // namespace lintavo::tools
