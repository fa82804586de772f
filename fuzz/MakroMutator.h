// Changes a macro file the way a faulty program or an ill-meaning person would:
// line by line, list by list, so that most results still are windows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lintavo::fuzz {

/// Changes `text` at one to four places, chosen by `seed` alone: numbers to
/// extreme or neighbouring ones, node indices, items of lists, short texts, lines
/// doubled, swapped or dropped, numbered keys and whole sections continued, keys
/// of the string table added. The result has at most `maxSize` bytes.
std::string MutiereMakro(std::string_view text, unsigned seed, std::size_t maxSize);

/// Joins the first sections of one file with the later ones of another.
std::string KreuzeMakros(std::string_view a, std::string_view b, unsigned seed,
                         std::size_t maxSize);

}  // namespace lintavo::fuzz
