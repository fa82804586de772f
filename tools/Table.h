// Plain text tables with aligned columns.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace lintavo::tools {

/// Collects rows and prints them with columns as wide as their widest cell.
/// Cells are UTF-8; a character counts as one column.
class Table {
 public:
  enum class Align { kLeft, kRight };

  struct Column {
    std::string head;
    Align align = Align::kLeft;
  };

  explicit Table(std::vector<Column> columns);

  /// Cells beyond the number of columns are dropped, missing ones stay empty.
  void AddRow(std::vector<std::string> cells);

  /// Prints the head and all rows, indented by two blanks, without trailing blanks.
  /// Where that takes more than `width` columns, they stand closer, and the widest
  /// column of text is cut; 0 is no limit.
  void Print(std::ostream& out, std::size_t width = 0) const;

 private:
  std::vector<std::size_t> Widths() const;
  void Narrow(std::vector<std::size_t>& widths, std::size_t width) const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace lintavo::tools
