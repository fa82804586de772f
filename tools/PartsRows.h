// A cutting list as rows of texts, before it is known how they are written.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "PartsText.h"

namespace lintavo::tools {

enum class Gruppe { kStaebe, kScheiben, kBeschlaege };

/// One row; cells that its kind has no use for are empty.
struct PartsRow {
  Gruppe gruppe = Gruppe::kStaebe;
  std::size_t fenster = 0;  ///< of its first piece
  std::array<std::string, kAnzahlSpalten> zellen{};

  std::string& operator[](Spalte spalte) { return zellen[static_cast<std::size_t>(spalte)]; }
  const std::string& operator[](Spalte spalte) const {
    return zellen[static_cast<std::size_t>(spalte)];
  }
};

/// A number with at most three decimals and the style's decimal sign.
std::string NumberText(double value, const PartsStyle& style);

/// What each window is called: its name, else that of its file, numbered where two would
/// be called alike.
std::vector<std::string> WindowLabels(const std::vector<PartsWindow>& windows);

/// Bars, then panes, then fittings, as the list has them.
std::vector<PartsRow> RowsOf(const PartsList& list, const std::vector<PartsWindow>& windows,
                             const PartsStyle& style);

}  // namespace lintavo::tools
