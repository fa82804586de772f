// Puts many windows onto pages.
#pragma once

#include <vector>

#include "lintavo/drawing/Sheet.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// The pages of a sheet; `statuses` receives how composing each entry ended.
std::vector<Page> LayOutSheet(const std::vector<SheetEntry>& entries, const SheetOptions& options,
                              const Style& style, std::vector<PictureStatus>& statuses);

}  // namespace lintavo::drawing
