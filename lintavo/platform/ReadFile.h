// Reading a file as a whole.
#pragma once

#include <string>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// Replaces bytes by all that a file holds; false, and bytes are left alone, when it
/// cannot be opened or not be read to its end, or is longer than 64 MiB. A folder cannot,
/// nor can a pipe in which nothing is and into which nobody writes: nothing is waited for.
/// A path may use either separator. Throws nothing but std::bad_alloc.
LINTAVO_API bool ReadWholeFile(const CString& path, std::string& bytes);

}  // namespace lintavo
