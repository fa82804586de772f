// Reads, fits and writes the window that a command works on.
#include "WindowFile.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "lintavo/drawing/Text.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/settings/CMFensterPosition.h"

#include "OldFile.h"

namespace lintavo::tools {
namespace {

using drawing::ToDisplayText;

std::string LibraryMessage(const CFeApi& window) {
  if (window.GetErrorID() == 0) return {};
  char text[256];
  const long length = window.GetErrorMsg(text);
  return ToDisplayText(text, length);
}

bool CanBeOpened(const std::string& path) {
  return std::ifstream(path).is_open();
}

// The façade's form of a window that another object holds. Line feeds are skipped in
// a buffer, so lines end with what cannot stand in one.
bool TakeOver(const CMFenster& fenster, CFeApi& window) {
  constexpr char kTrenner = '\r';
  CIniFile document;
  fenster.SaveToBuffer(document);
  std::string text;
  for (const CString& line : document.GetLines()) text.append(line.View()) += kTrenner;
  return window.ReadFromBuffer(static_cast<long>(text.size()), text.data(), kTrenner) == 1;
}

}  // namespace

// The library quotes a file's name when the file itself is at fault; every other
// message is led by it.
void Fail(const std::string& path, const std::string& message) {
  const std::string file = ToDisplayText(path);
  if (message.find("'" + file + "'") != std::string::npos) throw CommandError(message);
  throw CommandError(file + ": " + message);
}

void RefuseSource(const std::string& source, const std::string& target) {
  std::error_code unknown;
  if (!std::filesystem::equivalent(source, target, unknown)) return;
  Fail(target, "the file would overwrite the one that it is made from");
}

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

void MakePosition(const std::string& path, const std::string& baseDirectory,
                  const std::string& target, CFeApi& window) {
  CMFensterPosition position;
  CString text;
  const bool made = position.ReadFromFile(path.c_str(), baseDirectory.c_str());
  position.GetError(text);
  if (!made) Fail(path, ToDisplayText(text.View()));
  if (position.GetFensterPtr()->GetAnzahlFluegel() <= 0) {
    Fail(path, "there is no window in its type");
  }
  if (!TakeOver(*position.GetFensterPtr(), window)) {
    const std::string message = LibraryMessage(window);
    Fail(path, message.empty() ? "the window cannot be calculated" : message);
  }
  if (target.empty()) return;
  RefuseSource(path, target);
  const OldFile old(target);
  if (!position.SaveToFile(target.c_str())) old.FailNotWritten();
}

void SaveForm(const std::string& path, const std::string& target, CFeApi& window) {
  RefuseSource(path, target);
  const std::string typ = std::filesystem::path(path).stem().string();
  const OldFile old(target);
  if (window.WriteParameterFormular(target.c_str(), typ.c_str()) != 1) old.FailNotWritten();
}

void SaveWindow(const std::string& path, CFeApi& window) {
  const OldFile old(path);
  if (window.WriteToFile(path.c_str()) != 1) old.FailNotWritten();
}

}  // namespace lintavo::tools
