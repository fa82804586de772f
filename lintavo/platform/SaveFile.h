// Saving a file without losing what it held before.
#pragma once

#include <string_view>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// Makes the bytes the whole content of a file, a new one or one that is there;
/// true when they have reached the disk.
///
/// A file that is there is replaced in one step by a new one, written in full
/// beside it, so at every moment, and after every failure, it holds either all
/// of the old or all of the new. It keeps its permissions, and its owner and
/// group where the system allows that; other hard links to it keep the old
/// content. A link is followed to the file that it leads to. After a failure
/// nothing new is left in the folder; on POSIX systems signals that ask the program to end
/// (HUP, INT, QUIT, TERM) reach the calling thread only when the file is in its place.
///
/// Written in place, so that a failure can lose the old content, is only what
/// nothing can be put beside or in the place of: devices, pipes, and files that
/// may be written in a folder that may not.
///
/// A read-only file, a folder, an empty path and one with a zero byte are
/// refused. A path may use either separator (for a new file, slashes are taken
/// for backslashes when the folder that they name exists). Throws nothing but
/// std::bad_alloc.
LINTAVO_API bool SaveFile(const CString& path, std::string_view bytes);

}  // namespace lintavo
