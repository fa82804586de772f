// The walk for positions and settings, shared like that of windows.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lintavo::fuzz {

/// The line that separates the documents of one input.
inline constexpr std::string_view kTrennzeile = "----";

/// Makes a window of a parameter file, a template and a pattern, three documents
/// of one text. The template answers for whatever type the parameter file names,
/// the pattern for every name of the examples. What comes out is saved, read
/// again and taken through `PruefeFenster`.
///
/// @param ordner a folder of its own, in which the files are laid.
/// @return the first law that is broken, in words; empty when all hold.
std::string PruefePosition(std::string_view text, const std::filesystem::path& ordner,
                           int aenderung = -1);

/// Reads one text as general settings and as materials, and asks everything.
/// Settings that were written and read again stay the same.
std::string PruefeEinstellungen(std::string_view text, const std::filesystem::path& ordner);

}  // namespace lintavo::fuzz
