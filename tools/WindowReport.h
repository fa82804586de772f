// A calculated window as tables for a reader.
#pragma once

#include <ostream>
#include <string>

#include "lintavo/api/CFeApi.h"

namespace lintavo::tools {

/// Name of additional dimension `i`, fit to be shown.
std::string DimensionName(const CFeApi& window, long i);

/// Prints name, size, frame, sashes and dimensions; lengths in the window's own units.
/// Tables keep within `width` columns; 0 is as many as they need.
void PrintReport(const CFeApi& window, std::ostream& out, std::size_t width = 0);

/// Prints one report, or several, each led by its file's name.
class ReportPrinter {
 public:
  /// `out` outlives the printer.
  ReportPrinter(bool several, std::ostream& out);

  void Print(const std::string& path, const CFeApi& window);

  /// The report of a window that was changed, led by `head`, and where it was written
  /// to. Nothing where standard output holds the window, or several were written.
  void PrintResult(const std::string& path, const std::string& target, const CFeApi& window,
                   const std::string& head);

 private:
  bool several_;
  bool first_ = true;
  std::size_t width_;
  std::ostream& out_;
};

}  // namespace lintavo::tools
