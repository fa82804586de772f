// Plain text tables with aligned columns.
#include "Table.h"

#include <algorithm>
#include <utility>

namespace lintavo::tools {
namespace {

std::size_t CharacterCount(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

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

void Table::Print(std::ostream& out) const {
  const std::vector<std::size_t> widths = Widths();
  for (const std::vector<std::string>& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += "  " + Padded(row[i], widths[i], columns_[i].align);
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

}  // namespace lintavo::tools
