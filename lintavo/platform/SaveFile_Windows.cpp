// Saving on Windows.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "lintavo/platform/Files_intern.h"
#include "lintavo/platform/SaveFile.h"

namespace lintavo {
namespace {

namespace fs = std::filesystem;

// Whoever guesses this many names in a row is not working by chance.
constexpr int kMaxNames = 16;

enum class Outcome { kSaved, kFailed, kImpossible };

/// An open file whose every result can be asked for.
class Handle {
 public:
  Handle() = default;
  Handle(const fs::path& path, DWORD share, DWORD how) { Open(path, share, how); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }

  void Open(const fs::path& path, DWORD share, DWORD how) {
    handle_ = ::CreateFileW(path.c_str(), GENERIC_WRITE, share, nullptr, how, FILE_ATTRIBUTE_NORMAL,
                            nullptr);
  }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool IsOnDisk() const { return ::GetFileType(handle_) == FILE_TYPE_DISK; }

  /// The path behind all links, in the form that knows no limit of length; empty
  /// where the file system tells none.
  fs::path GetFinalPath() const {
    std::wstring path(::GetFinalPathNameByHandleW(handle_, nullptr, 0, 0), L'\0');
    const DWORD length =
        ::GetFinalPathNameByHandleW(handle_, path.data(), static_cast<DWORD>(path.size()), 0);
    if (length >= path.size()) return {};
    path.resize(length);
    return path;
  }

  /// Writes everything and closes.
  bool Finish(std::string_view bytes) {
    const bool written = Write(bytes) && (!IsOnDisk() || ::FlushFileBuffers(handle_));
    return Close() && written;
  }

 private:
  bool Write(std::string_view bytes) const {
    constexpr std::size_t kMost = 1U << 20;
    while (!bytes.empty()) {
      DWORD written = 0;
      const DWORD wanted = static_cast<DWORD>(std::min(bytes.size(), kMost));
      if (!::WriteFile(handle_, bytes.data(), wanted, &written, nullptr) || written == 0) {
        return false;
      }
      bytes.remove_prefix(written);
    }
    return true;
  }

  bool Close() {
    if (!IsOpen()) return true;
    const bool closed = ::CloseHandle(handle_) != 0;
    handle_ = INVALID_HANDLE_VALUE;
    return closed;
  }

  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// A new file beside another, gone at the end unless it has taken its place.
class Beside {
 public:
  explicit Beside(const fs::path& target) {
    std::random_device random;
    for (int i = 0; i < kMaxNames && !file.IsOpen(); ++i) {
      wchar_t name[32];
      std::swprintf(name, std::size(name), L".lintavo-%08x%08x", random(), random());
      path_ = target.parent_path() / name;
      file.Open(path_, 0, CREATE_NEW);
      if (!file.IsOpen() && ::GetLastError() != ERROR_FILE_EXISTS) break;
    }
    isThere_ = file.IsOpen();
  }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  ~Beside() {
    if (isThere_) ::DeleteFileW(path_.c_str());
  }

  bool TakeFreePlace(const fs::path& target) {
    return Taken(::MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH));
  }

  bool TakePlaceOf(const fs::path& target) {
    // This way the new file takes over attributes and rights. Not all file systems
    // can do so.
    if (Taken(::ReplaceFileW(target.c_str(), path_.c_str(), nullptr,
                             REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr))) {
      return true;
    }
    return Taken(::MoveFileExW(path_.c_str(), target.c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  }

  Handle file;

 private:
  bool Taken(BOOL done) {
    if (done) isThere_ = false;
    return !isThere_;
  }

  fs::path path_;
  bool isThere_ = false;
};

// A folder that is not ours to change, or a file that somebody has open in a way
// that lets it be written but not be replaced. Anything else, a full disk first of
// all, would meet a write in place as well.
Outcome OutcomeOf(DWORD error) {
  switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_FILENAME_EXCED_RANGE:
      return Outcome::kImpossible;
    default:
      return Outcome::kFailed;
  }
}

Outcome SaveBeside(const fs::path& target, bool isNew, std::string_view bytes) {
  Beside beside(target);
  if (!beside.file.IsOpen()) return OutcomeOf(::GetLastError());
  if (!beside.file.Finish(bytes)) return Outcome::kFailed;
  const bool done = isNew ? beside.TakeFreePlace(target) : beside.TakePlaceOf(target);
  return done ? Outcome::kSaved : OutcomeOf(::GetLastError());
}

bool SaveInPlace(const fs::path& target, std::string_view bytes) {
  Handle file(target, FILE_SHARE_READ, CREATE_ALWAYS);
  return file.IsOpen() && file.Finish(bytes);
}

bool SaveReplacing(const fs::path& given, std::string_view bytes) {
  // Whoever may write in the folder could replace a read-only file, too.
  const DWORD attributes = ::GetFileAttributesW(given.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) return false;
  fs::path target;
  {
    // Only as the one who has it open: otherwise the old file stays behind under
    // another name.
    const Handle old(given, 0, OPEN_EXISTING);
    if (!old.IsOpen() && ::GetLastError() != ERROR_SHARING_VIOLATION) return false;
    if (old.IsOpen() && old.IsOnDisk()) target = old.GetFinalPath();
  }
  const Outcome outcome = target.empty() ? Outcome::kImpossible : SaveBeside(target, false, bytes);
  return outcome == Outcome::kSaved ||
         (outcome == Outcome::kImpossible && SaveInPlace(given, bytes));
}

bool IsMissing(const fs::path& path) {
  return ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
         ::GetLastError() == ERROR_FILE_NOT_FOUND;
}

}  // namespace

bool SaveFile(const CString& path, std::string_view bytes) {
  if (path.IsEmpty() || path.Find('\0') >= 0) return false;
  const fs::path target = ToSystemPath(path);
  if (IsMissing(target)) return SaveBeside(target, true, bytes) == Outcome::kSaved;
  return SaveReplacing(target, bytes);
}

}  // namespace lintavo
