// Opening, reading and listing.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <string>
#include <string_view>

#include "lintavo/platform/Files_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/ReadFile.h"

#ifdef _WIN32
#include <filesystem>
#include <system_error>
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

// What could not be opened for want of memory is no missing file.
void ThrowIfOutOfMemory() {
  if (errno == ENOMEM) throw std::bad_alloc();
}

#ifdef _WIN32

namespace fs = std::filesystem;

constexpr char kSeparator = '\\';

bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

// The system itself takes both separators and opens no folder as a file.
CString PathToRead(const CString& path) {
  return path;
}
bool IsFolder(std::FILE*) {
  return false;
}
bool IsDeadPipe(std::FILE*) {
  return false;
}

// Paths are UTF-8. Bytes that are none are left to the system's own code page, in
// which older hosts hand them over.
bool ToWide(std::string_view text, std::wstring& wide) {
  const int size = static_cast<int>(text.size());
  const int length =
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
  if (length == 0) return false;
  wide.resize(static_cast<std::size_t>(length));
  return MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length) == length;
}

std::FILE* Open(const CString& path, const char* mode) {
  std::wstring wide;
  if (!ToWide(path.View(), wide)) return std::fopen(path, mode);
  return ::_wfopen(wide.c_str(), std::wstring(mode, mode + std::strlen(mode)).c_str());
}

CString FromSystemPath(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

void AddEntries(const CString& folder, std::vector<lintavo::FolderEntry>& entries) {
  std::error_code error;
  fs::directory_iterator place(lintavo::ToSystemPath(folder), error);
  for (const fs::directory_iterator end; !error && place != end; place.increment(error)) {
    std::error_code unknown;
    const bool isFolder = place->symlink_status(unknown).type() == fs::file_type::directory;
    if (!isFolder && !place->is_regular_file(unknown)) continue;
    entries.push_back({FromSystemPath(place->path().filename()), isFolder});
  }
}

#else

// Opening a pipe waits for nobody; only reading does, from whoever writes into it.
std::FILE* Open(const CString& path, const char* mode) {
  const int number = ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (number < 0) return nullptr;
  std::FILE* file = ::fdopen(number, mode);
  if (file == nullptr) ::close(number);
  return file;
}

constexpr char kSeparator = '/';

// A backslash at the end of a folder was meant as one; the path is opened with
// the same understanding.
bool IsSeparator(char c) {
  return c == '/' || c == '\\';
}

CString WithSlashes(const CString& path) {
  std::string text(path.View());
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

bool HasBackslash(const CString& path) {
  return path.Find('\\') >= 0;
}

bool Exists(const char* path) {
  struct stat status {};
  return ::stat(path, &status) == 0;
}

CString PathToRead(const CString& path) {
  if (!HasBackslash(path) || Exists(path)) return path;
  CString slashed = WithSlashes(path);
  return Exists(slashed) ? slashed : path;
}

bool IsFolder(std::FILE* file) {
  struct stat status {};
  return ::fstat(::fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

// From here on reading waits for what is to come.
void Wait(std::FILE* file) {
  const int number = ::fileno(file);
  const int flags = ::fcntl(number, F_GETFL);
  if (flags >= 0) ::fcntl(number, F_SETFL, flags & ~O_NONBLOCK);
}

// Whether the file is a pipe in which nothing is and into which nobody writes.
bool IsDeadPipe(std::FILE* file) {
  struct stat status {};
  bool dead = false;
  if (::fstat(::fileno(file), &status) == 0 && S_ISFIFO(status.st_mode)) {
    const int first = std::getc(file);
    const bool writerPauses = std::ferror(file) != 0 && errno == EAGAIN;
    dead = first == EOF && !writerPauses;
    if (first == EOF) {
      std::clearerr(file);
    } else {
      std::ungetc(first, file);
    }
  }
  Wait(file);
  return dead;
}

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

bool IsPlaceItself(const char* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

// Not by the standard library's iterator, which ends the program where there is no
// memory for a path.
void AddEntries(const CString& folder, std::vector<lintavo::FolderEntry>& entries) {
  const std::unique_ptr<DIR, CloseFolder> place(::opendir(folder));
  if (place == nullptr) {
    ThrowIfOutOfMemory();
    return;
  }
  while (const dirent* entry = ::readdir(place.get())) {
    if (IsPlaceItself(entry->d_name)) continue;
    const int at = ::dirfd(place.get());
    struct stat status {};
    if (::fstatat(at, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
    const bool isFolder = S_ISDIR(status.st_mode);
    if (!isFolder && ::fstatat(at, entry->d_name, &status, 0) != 0) continue;
    if (!isFolder && !S_ISREG(status.st_mode)) continue;
    entries.push_back({CString(entry->d_name), isFolder});
  }
}

#endif

}  // namespace

namespace lintavo {

FilePtr OpenFile(const CString& path, const char* mode) {
  FilePtr file(Open(PathToRead(path), mode));
  if (file == nullptr) {
    ThrowIfOutOfMemory();
    return file;
  }
  // All readers ask for whole blocks.
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  // Elsewhere than on Windows a folder opens for reading like an empty file.
  if (IsFolder(file.get()) || IsDeadPipe(file.get())) file.reset();
  return file;
}

bool ReadWholeFile(const CString& path, std::string& bytes) {
  const FilePtr file = OpenFile(path, "rb");
  if (file == nullptr) return false;
  constexpr std::size_t kBlock = 65536;
  std::string content;
  for (std::size_t length = 0, read = kBlock; read == kBlock; length += read) {
    if (length > kMaxDatei) return false;
    content.resize(length + kBlock);
    read = std::fread(content.data() + length, 1, kBlock, file.get());
    content.resize(length + read);
  }
  if (std::ferror(file.get()) != 0 || content.size() > kMaxDatei) return false;
  bytes = std::move(content);
  return true;
}

bool ReadFileStart(const CString& path, std::size_t limit, std::string& bytes) {
  const FilePtr file = OpenFile(path, "rb");
  if (file == nullptr) return false;
  std::string content(limit, '\0');
  content.resize(std::fread(content.data(), 1, limit, file.get()));
  if (std::ferror(file.get()) != 0) return false;
  bytes = std::move(content);
  return true;
}

CString ExistingPath(const CString& path) {
  return PathToRead(path);
}

CString PathForWriting(const CString& path) {
#ifndef _WIN32
  if (HasBackslash(path) && !Exists(path)) {
    CString slashed = WithSlashes(path);
    if (Exists(slashed.Left(slashed.ReverseFind('/') + 1))) return slashed;
  }
#endif
  return path;
}

std::filesystem::path ToSystemPath(const CString& path) {
#ifdef _WIN32
  std::wstring wide;
  return ToWide(path.View(), wide) ? fs::path(wide) : fs::path(std::string(path.View()));
#else
  return path.View();
#endif
}

std::vector<FolderEntry> ListFolder(const CString& folder) {
  std::vector<FolderEntry> entries;
  AddEntries(ExistingPath(folder), entries);
  return entries;
}

CString JoinPath(const CString& folder, const CString& name) {
  if (folder.IsEmpty()) return name;
  if (IsSeparator(folder[folder.GetLength() - 1])) return folder + name;
  return folder + kSeparator + name;
}

}  // namespace lintavo
