#include "Rows.h"

#include <stdexcept>

namespace lintavo::bench {

std::vector<Row> AllRows() {
  std::vector<Row> rows;
  AddWindowRows(rows);
  AddReferenceRows(rows);
  AddGridRows(rows);
  AddIniRows(rows);
  return rows;
}

void Require(bool success, const char* what) {
  if (!success) throw std::runtime_error(what);
}

}  // namespace lintavo::bench
