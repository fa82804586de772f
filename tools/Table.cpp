// Plain text tables with aligned columns.
#include "Table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "Text.h"

namespace lintavo::tools {
namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowGap = 1;
// Below this a column of text says nothing any more.
constexpr std::size_t kTextMin = 8;

std::string Padded(const std::string& cell, std::size_t width, Table::Align align) {
  const std::string blanks(width - CharacterCount(cell), ' ');
  return align == Table::Align::kLeft ? cell + blanks : blanks + cell;
}

}  // namespace

Table::Table(std::vector<Column> columns) : columns_(std::move(columns)) {
  std::vector<std::string> heads;
  for (const Column& column : columns_) heads.push_back(column.head);
  rows_.push_back(std::move(heads));
}

void Table::AddRow(std::vector<std::string> cells) {
  cells.resize(columns_.size());
  rows_.push_back(std::move(cells));
}

void Table::Print(std::ostream& out, std::size_t width) const {
  std::vector<std::size_t> widths = Widths();
  const std::size_t whole = std::accumulate(widths.begin(), widths.end(), widths.size() * kGap);
  const bool fits = width == 0 || whole <= width;
  if (!fits) Narrow(widths, width);
  const std::string gap(fits ? kGap : kNarrowGap, ' ');
  for (const std::vector<std::string>& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += gap + Padded(CutTo(row[i], widths[i]), widths[i], columns_[i].align);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  }
}

std::vector<std::size_t> Table::Widths() const {
  std::vector<std::size_t> widths(columns_.size(), 0);
  for (const std::vector<std::string>& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], CharacterCount(row[i]));
    }
  }
  return widths;
}

// Numbers are never cut.
void Table::Narrow(std::vector<std::size_t>& widths, std::size_t width) const {
  std::size_t widest = widths.size();
  std::size_t whole = 0;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    whole += kNarrowGap + widths[i];
    if (columns_[i].align == Align::kRight) continue;
    if (widest == widths.size() || widths[i] > widths[widest]) widest = i;
  }
  if (whole <= width || widest == widths.size()) return;
  const std::size_t rest = widths[widest] - std::min(widths[widest], whole - width);
  widths[widest] = std::max(rest, std::min(widths[widest], kTextMin));
}

}  // namespace lintavo::tools
