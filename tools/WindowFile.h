// Reads, fits and writes the window that a command works on.
#pragma once

#include <stdexcept>
#include <string>

#include "lintavo/api/CFeApi.h"

namespace lintavo::tools {

/// A command that cannot be carried out; `what` is the line for the user.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Throws `CommandError` with the message, led by the file's name unless that stands
/// in it.
[[noreturn]] void Fail(const std::string& path, const std::string& message);

/// Throws `CommandError` when both names are one file: nothing that a command makes may
/// take the place of what it is made from.
void RefuseSource(const std::string& source, const std::string& target);

/// Reads and calculates a macro file, compressed when its name ends in "cqz".
/// Throws `CommandError` with the library's own message, and for a file without
/// any sash; the text names the file.
void LoadWindow(const std::string& path, CFeApi& window);

/// Fits the window into an opening without reveals and calculates it anew.
/// Throws `CommandError` when the window has no dimensions for its overall
/// width and height or cannot take the size.
void FitWindow(const std::string& path, double width, double height, CFeApi& window);

/// Makes the window of a parameter file, whose type and patterns lie in the base
/// directory, and writes it unless `target` is empty. Throws `CommandError` with the
/// library's own message, and when there is no sash or the target cannot be written.
void MakePosition(const std::string& path, const std::string& baseDirectory,
                  const std::string& target, CFeApi& window);

/// Writes the blank parameter form of the window of `path`; its type is that name
/// without folders and ending. Throws `CommandError` when that fails.
void SaveForm(const std::string& path, const std::string& target, CFeApi& window);

/// Writes the plain macro file. Throws `CommandError` when that fails.
void SaveWindow(const std::string& path, CFeApi& window);

}  // namespace lintavo::tools
