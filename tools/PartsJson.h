// A cutting list as JSON.
#pragma once

#include <ostream>
#include <vector>

#include "PartsList.h"
#include "PartsText.h"

namespace lintavo::tools {

/// Writes the list as one object; its keys and the kinds of pieces are the same in every
/// language, their labels are in the style's.
void WritePartsJson(const PartsList& list, const std::vector<PartsWindow>& windows,
                    const PartsStyle& style, std::ostream& out);

}  // namespace lintavo::tools
