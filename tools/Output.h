// Where a command's result goes.
#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string>

namespace lintavo::tools {

class Console;

/// Lets `write` write to a file, or to standard output when `path` is empty; line ends
/// stay as they are written. Throws `CommandError` when the file is one of `sources`,
/// which are read, or cannot be written in full.
void WriteOutput(const std::string& path, std::span<const std::string> sources,
                 const Console& console, const std::function<void(std::ostream&)>& write);

}  // namespace lintavo::tools
