// Words of the command line that several commands share.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "Sources.h"

namespace lintavo::tools {

inline constexpr const char* kWindowFiles =
    "Windows (aqz, cqz), folders of them, or - for standard input";

inline constexpr const char* kWindowTarget =
    "Window to write: a name ending in aqz or cqz, a folder/, a pattern like out/{name}.aqz, or - "
    "for standard output";

inline constexpr const char* kListTarget =
    "File to write: a name, a folder/, a pattern like out/{name}.csv or - for standard output";

/// The files that a command works on, one at least, and the flags for several.
void AddFiles(CLI::App& command, FileArguments& files, const std::string& description);

/// The flags alone.
void AddFlagsForSeveral(CLI::App& command, FileArguments& files);

/// "--section LENGTH", which `LoadWindow` takes.
void AddSection(CLI::App& command, FileArguments& files);

/// "-o,--output TARGET"; may be a folder or a pattern, see `FindTargets`.
CLI::Option* AddTarget(CLI::App& command, std::string& target, const std::string& description);

/// Help and messages without the parser's own words. Descriptions are broken into lines
/// that keep help within 80 columns.
void UsePlainWords(CLI::App& app);

}  // namespace lintavo::tools
