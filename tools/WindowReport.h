// A calculated window as tables for a reader.
#pragma once

#include <ostream>

#include "lintavo/api/CFeApi.h"

namespace lintavo::tools {

/// Prints name, size, frame, sashes and dimensions; lengths in the window's own units.
void PrintReport(const CFeApi& window, std::ostream& out);

}  // namespace lintavo::tools
