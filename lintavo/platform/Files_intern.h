// The one layer through which the library reads files and folders; they are
// written by SaveFile. On POSIX a path may use either separator: where the path
// as given does not exist, its backslashes are tried as slashes.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/platform/CString.h"

namespace lintavo {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

/// An open file that closes itself. Errors of closing are not reported.
using FilePtr = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file for reading with a mode of fopen, without a buffer; null when that fails.
/// A folder counts as not openable, so does a pipe into which nobody writes, and the path with
/// slashes is tried when there is nothing under the path as given. Throws std::bad_alloc where the
/// system has no memory.
FilePtr OpenFile(const CString& path, const char* mode);

/// Replaces bytes by the first limit bytes of a file; false, and bytes are left
/// alone, when it cannot be opened or read. A shorter file gives fewer bytes.
bool ReadFileStart(const CString& path, std::size_t limit, std::string& bytes);

/// The path itself where it exists, else the one with slashes where that
/// exists, else the path itself.
CString ExistingPath(const CString& path);

/// The path with slashes when no file of the given name exists and the folder
/// that the slashes name does, else the path itself.
CString PathForWriting(const CString& path);

/// The path as the system's own functions take it.
std::filesystem::path ToSystemPath(const CString& path);

/// What ends a line of text in a file.
#ifdef _WIN32
constexpr const char* kLineEnd = "\r\n";
#else
constexpr const char* kLineEnd = "\n";
#endif

struct FolderEntry {
  CString strName;
  bool bIsFolder = false;
};

/// The files and folders in a folder, in the order in which the file system
/// delivers them, without "." and "..". A link to a file counts as a file; a
/// link to a folder is left out, so that no walk through the entries runs in
/// circles, and so is everything that is neither file nor folder. Empty when
/// the folder cannot be read.
std::vector<FolderEntry> ListFolder(const CString& folder);

/// folder and name with one separator of the platform between them; the name
/// alone when the folder is empty.
CString JoinPath(const CString& folder, const CString& name);

}  // namespace lintavo
