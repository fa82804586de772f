// Reads, fits and writes the window that a command works on.
#include "WindowFile.h"

#include <filesystem>
#include <system_error>

#include "lintavo/drawing/Text.h"
#include "lintavo/settings/CMFensterPosition.h"

#include "MacroText.h"
#include "Numbers.h"
#include "OldFile.h"
#include "System.h"

namespace lintavo::tools {
namespace {

using drawing::ToDisplayText;

bool IsCompressed(const std::string& path) {
  return CFeApi::IsFileCompressed(path.c_str()) == 1;
}

// What can be read once only, as a pipe under a name.
bool IsStream(const std::string& path) {
  if (path == kStandardStream) return true;
  std::error_code unknown;
  const std::filesystem::file_status status = std::filesystem::status(path, unknown);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
         !std::filesystem::is_directory(status);
}

// The library itself finds files that it alone can name, so it is asked for all that
// it can read by itself.
int ReadWindow(const std::string& path, const std::string& bytes, CFeApi& window) {
  const MacroForm form = FormOf(path, bytes);
  if (IsStream(path) || form == MacroForm::kBuffer) {
    return ReadLines(LinesOf(bytes, form), window);
  }
  if (form == MacroForm::kPlain) return window.ReadFromFile(path.c_str());
  if (!bytes.empty()) LinesOf(bytes, form);
  return window.ReadFromCompressedFile(path.c_str());
}

// Has a file made by `save`, which writes to a name. Where that cannot make what is
// asked for, it writes to a file of this run, whose content is handed to `convert`.
template <class Save, class Convert>
void SaveAside(const std::string& target, Save save, Convert convert) {
  const TemporaryFile aside;
  std::string bytes;
  if (!save(aside.Path()) || !ReadBytes(aside.Path(), bytes)) {
    Fail(aside.Path(), "the temporary file cannot be written");
  }
  WriteBytes(target, convert(bytes));
}

template <class Save>
void SaveAs(const std::string& target, Save save) {
  if (target == kStandardStream) {
    SaveAside(target, save, [](const std::string& bytes) { return bytes; });
    return;
  }
  const OldFile old(target);
  if (!save(target)) old.FailNotWritten();
}

template <class Save>
void SaveMacro(const std::string& target, Save save) {
  if (!IsCompressed(target)) {
    SaveAs(target, save);
    return;
  }
  SaveAside(target, save, [&](const std::string& bytes) {
    try {
      return BytesOf(LinesOf(bytes, MacroForm::kPlain), MacroForm::kCompressed);
    } catch (const CommandError& error) {
      Fail(target, error.what());
    }
  });
}

// The library reads a parameter file by its name only.
bool ReadPosition(const std::string& path, const std::string& baseDirectory,
                  CMFensterPosition& position) {
  const CString base(baseDirectory.c_str());
  if (path != kStandardStream) return position.ReadFromFile(path.c_str(), base);
  const TemporaryFile aside;
  std::string bytes;
  if (!ReadBytes(path, bytes)) Fail(path, "it cannot be read");
  WriteBytes(aside.Path(), bytes);
  return position.ReadFromFile(aside.Path().c_str(), base);
}

}  // namespace

MacroForm FormOf(const std::string& path, std::string_view bytes) {
  if (IsStream(path)) return FormOf(bytes);
  if (IsCompressed(path)) return MacroForm::kCompressed;
  return IsBuffer(bytes) ? MacroForm::kBuffer : MacroForm::kPlain;
}

std::string LibraryMessage(const CFeApi& window, const std::string& otherwise) {
  if (window.GetErrorID() == 0) return otherwise;
  char text[256];
  const long length = window.GetErrorMsg(text);
  const std::string message = ToDisplayText(text, length);
  return message.empty() ? otherwise : message;
}

int ReadLines(const std::vector<std::string>& lines, CFeApi& window) {
  // No line of a file holds a zero byte.
  std::string text;
  for (const std::string& line : lines) text.append(line) += '\0';
  return window.ReadFromBuffer(static_cast<long>(text.size()), text.data(), '\0');
}

void LoadWindow(const std::string& path, const std::string& section, CFeApi& window) {
  double length = 0.0;
  if (ParseLength(section, length)) window.SetRahmenAbschnitt(length);
  std::string bytes;
  const bool opened = ReadBytes(path, bytes);
  int read = 0;
  try {
    read = ReadWindow(path, bytes, window);
  } catch (const CommandError& error) {
    Fail(path, error.what());
  }
  const std::string message = LibraryMessage(window, "");
  if (!message.empty()) Fail(path, message);
  // To the library any text is a window, if an empty one; a user has taken the
  // wrong file.
  if (read == 1 && window.GetAnzahlFluegel() > 0) return;
  Fail(path, opened ? "there is no window in this file" : "the file cannot be read");
}

void FitWindow(const std::string& path, double width, double height, CFeApi& window) {
  if (window.SetBreiteHoehe(CFeApiWandOeffnungsParameter(), width, height) != 1) {
    Fail(path, "the window has no dimensions for its overall width and height");
  }
  CalculateWindow(path, window);
}

void CalculateWindow(const std::string& path, CFeApi& window) {
  if (window.Berechne() == 1) return;
  Fail(path, LibraryMessage(window, "the window cannot be calculated"));
}

void MakePosition(const std::string& path, const std::string& baseDirectory,
                  const std::string& target, CFeApi& window) {
  CMFensterPosition position;
  CString text;
  const bool made = ReadPosition(path, baseDirectory, position);
  position.GetError(text);
  if (!made) Fail(path, ToDisplayText(text.View()));
  if (position.GetFensterPtr()->GetAnzahlFluegel() <= 0) {
    Fail(path, "there is no window in its type");
  }
  window.SetFenster(*position.GetFensterPtr());
  if (target.empty()) return;
  RefuseSource(path, target);
  SaveMacro(target,
            [&](const std::string& name) { return position.SaveToFile(CString(name.c_str())); });
}

void SaveForm(const std::string& path, const std::string& target, CFeApi& window) {
  RefuseSource(path, target);
  const std::string typ = std::filesystem::path(path).stem().string();
  SaveAs(target, [&](const std::string& name) {
    return window.WriteParameterFormular(name.c_str(), typ.c_str()) == 1;
  });
}

void SaveWindow(const std::string& path, CFeApi& window) {
  SaveMacro(path, [&](const std::string& name) { return window.WriteToFile(name.c_str()) == 1; });
}

void RefuseSource(const std::string& source, const std::string& target) {
  if (target == kStandardStream) return;
  std::error_code unknown;
  if (!std::filesystem::equivalent(source, target, unknown)) return;
  Fail(target, "the file would overwrite the one that it is made from");
}

}  // namespace lintavo::tools
