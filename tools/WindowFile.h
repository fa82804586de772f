// Reads, fits and writes the window that a command works on. Files may be "-".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Errors.h"
#include "MacroText.h"

namespace lintavo::tools {

/// The library's last message for this window as one line, else `otherwise`.
std::string LibraryMessage(const CFeApi& window, const std::string& otherwise);

/// The form of a file: compressed when its name ends in "cqz", a buffer when its content
/// shows it, else plain. On standard input, or another pipe, the content
/// alone tells.
MacroForm FormOf(const std::string& path, std::string_view bytes);

/// Reads and calculates a macro file in the form that `FormOf` tells. Throws `CommandError` with
/// the library's own message, for a file that is cut off, and for one without any sash; the text
/// names the file. A section value, the text of a length, takes the place of the default.
void LoadWindow(const std::string& path, const std::string& section, CFeApi& window);

/// Fills the window from a macro file's lines and calculates it; 0 when that fails.
int ReadLines(const std::vector<std::string>& lines, CFeApi& window);

/// Fits the window into an opening without reveals and calculates it anew.
/// Throws `CommandError` when the window has no dimensions for its overall
/// width and height or cannot take the size.
void FitWindow(const std::string& path, double width, double height, CFeApi& window);

/// Calculates the window anew. Throws `CommandError` when that fails.
void CalculateWindow(const std::string& path, CFeApi& window);

/// Makes the window of a parameter file, whose type and patterns lie in the base
/// directory, and writes it as `SaveWindow` does unless `target` is empty. Throws
/// `CommandError` with the library's own message, and when there is no sash.
void MakePosition(const std::string& path, const std::string& baseDirectory,
                  const std::string& target, CFeApi& window);

/// Writes the blank parameter form of the window of `path`; its type is that name
/// without folders and ending. Throws `CommandError` when that fails.
void SaveForm(const std::string& path, const std::string& target, CFeApi& window);

/// Writes the macro file, compressed when its name ends in "cqz". Throws
/// `CommandError` when that fails.
void SaveWindow(const std::string& path, CFeApi& window);

/// Throws `CommandError` when both names are of one file: nothing that a command makes
/// may take the place of what it is made from.
void RefuseSource(const std::string& source, const std::string& target);

}  // namespace lintavo::tools
