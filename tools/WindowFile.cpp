// Reads, fits and writes the window that a command works on.
#include "WindowFile.h"

#include <fstream>

#include "lintavo/drawing/Text.h"

namespace lintavo::tools {
namespace {

using drawing::ToDisplayText;

std::string LibraryMessage(const CFeApi& window) {
  if (window.GetErrorID() == 0) return {};
  char text[256];
  const long length = window.GetErrorMsg(text);
  return ToDisplayText(text, length);
}

// The library quotes a file's name when the file itself is at fault; every other
// message is led by it.
[[noreturn]] void Fail(const std::string& path, const std::string& message) {
  const std::string file = ToDisplayText(path);
  if (message.find("'" + file + "'") != std::string::npos) throw CommandError(message);
  throw CommandError(file + ": " + message);
}

bool CanBeOpened(const std::string& path) {
  return std::ifstream(path).is_open();
}

}  // namespace

void LoadWindow(const std::string& path, CFeApi& window) {
  const bool compressed = CFeApi::IsFileCompressed(path.c_str()) == 1;
  const int read =
      compressed ? window.ReadFromCompressedFile(path.c_str()) : window.ReadFromFile(path.c_str());
  const std::string message = LibraryMessage(window);
  if (!message.empty()) Fail(path, message);
  if (!CanBeOpened(path)) Fail(path, "the file cannot be opened");
  // To the library any text is a window, if an empty one; a user has taken the
  // wrong file.
  if (read != 1 || window.GetAnzahlFluegel() <= 0) Fail(path, "there is no window in this file");
}

void FitWindow(const std::string& path, double width, double height, CFeApi& window) {
  if (window.SetBreiteHoehe(CFeApiWandOeffnungsParameter(), width, height) != 1) {
    Fail(path, "the window has no dimensions for its overall width and height");
  }
  if (window.Berechne() == 1) return;
  const std::string message = LibraryMessage(window);
  Fail(path, message.empty() ? "the window cannot be calculated" : message);
}

void SaveWindow(const std::string& path, CFeApi& window) {
  if (window.WriteToFile(path.c_str()) != 1) Fail(path, "the file cannot be written");
}

}  // namespace lintavo::tools
