// Text in the columns of a terminal. A character of UTF-8 counts as one column.
#pragma once

#include <cstddef>
#include <string>

namespace lintavo::tools {

std::size_t CharacterCount(const std::string& utf8);

/// The text itself, or its beginning and "…" when it has more than `width` characters.
std::string CutTo(const std::string& utf8, std::size_t width);

}  // namespace lintavo::tools
