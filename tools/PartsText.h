// A cutting list as tables for a reader, and as CSV for spreadsheets.
#pragma once

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "PartsList.h"
#include "PartsWords.h"

namespace lintavo::tools {

/// What a list says of a window; texts are UTF-8.
struct PartsWindow {
  std::string datei{};
  std::string name{};
  double breite = 0.0;
  double hoehe = 0.0;
  std::vector<std::string> fluegel{};  ///< names of the sashes
};

PartsWindow DescribeWindow(const std::string& file, const WindowView& view);

struct PartsStyle {
  Sprache sprache = Sprache::kDeutsch;
  char dezimalzeichen = ',';
  bool jeFenster = false;   ///< the list was made so
  std::size_t spalten = 0;  ///< of the terminal, to which tables are cut; 0 for no limit
};

/// Prints the windows, then bars, panes, fittings and sections as a table each; where
/// windows are kept apart, every window's tables follow it.
void PrintPartsTables(const PartsList& list, const std::vector<PartsWindow>& windows,
                      const PartsStyle& style, std::ostream& out);

/// Writes all of it as one table after RFC 4180: lines end with CR LF, cells are quoted
/// where they have to be. Cells are separated by ";" when "," is the decimal sign, else by
/// ",". No cell begins with a character that a spreadsheet would take for a formula.
void WritePartsCsv(const PartsList& list, const std::vector<PartsWindow>& windows,
                   const PartsStyle& style, std::ostream& out);

}  // namespace lintavo::tools
