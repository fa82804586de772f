// Names in files that become names of files.
#pragma once

#include <string_view>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Files_intern.h"

namespace lintavo {

/// Whether a text may be the name of a file in a given folder: not empty, and
/// nothing in it leads elsewhere.
inline bool IsDateiname(const CString& name) {
  constexpr std::string_view kUnzulaessig("/\\:\0", 4);
  return !name.IsEmpty() && name.View().find_first_of(kUnzulaessig) == std::string_view::npos;
}

/// Path of the template or pattern with this name.
inline CString IniPfad(const CString& folder, const CString& name) {
  return JoinPath(folder, name + ".ini");
}

}  // namespace lintavo
