// The rows that are measured. Each is work that can be done over and over again.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace lintavo::bench {

/// A row of the table. Its name is that of the operation, a slash, and what it
/// works on.
struct Row {
  std::string name;
  /// Prepares the work and returns one round of it. Throws when it cannot.
  std::function<std::function<void()>()> prepare;
  /// What a time or a count is divided by: sashes, components.
  long units = 1;
};

/// Every row, in the order of the table.
std::vector<Row> AllRows();

void AddWindowRows(std::vector<Row>& rows);
void AddGridRows(std::vector<Row>& rows);
void AddIniRows(std::vector<Row>& rows);
void AddReferenceRows(std::vector<Row>& rows);

/// Keeps the compiler from leaving out work whose result nobody looks at.
template <class T>
void Keep(const T& value) {
  asm volatile("" : : "r,m"(value) : "memory");
}

/// Ends the measurement: a row that fails measures nothing.
void Require(bool success, const char* what);

}  // namespace lintavo::bench
