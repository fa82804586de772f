// Saving on POSIX systems.
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __APPLE__
#include <sys/random.h>
#endif

#include "lintavo/platform/Files_intern.h"
#include "lintavo/platform/SaveFile.h"

namespace lintavo {
namespace {

namespace fs = std::filesystem;

using Status = struct stat;

// New files come without execute permission and less what the process masks,
// as from fopen.
constexpr mode_t kNewFile = 0666;
constexpr mode_t kNobodyElse = 0600;
constexpr mode_t kPermissions = 0777;

// As many links as the system itself follows.
constexpr int kMaxLinks = 40;

// Whoever guesses this many names in a row is not working by chance.
constexpr int kMaxNames = 16;

// What was meant for one group is not for another: it counts as everybody else.
constexpr mode_t WithoutGroup(mode_t mode) {
  return (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3);
}

/// While it lives, what a user or a system ends a program with waits for this thread, so
/// that it leaves no file that is half its own. A program of one thread ends right after.
class HeldSignals {
 public:
  HeldSignals() {
    sigset_t held;
    ::sigemptyset(&held);
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) ::sigaddset(&held, number);
    ::pthread_sigmask(SIG_BLOCK, &held, &before_);
  }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

enum class Outcome { kSaved, kFailed, kImpossible };

/// An open file whose every result can be asked for.
class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const fs::path& path, int flags, mode_t mode = 0)
      : number_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  bool IsOpen() const { return number_ >= 0; }
  bool GetStatus(Status& status) const { return ::fstat(number_, &status) == 0; }

  /// Writes everything to the disk and closes.
  bool Finish(std::string_view bytes) { return Write(bytes) && Synchronise() && Close(); }

  /// Takes over owner, group and permissions, as far as the system allows; false
  /// when it refuses the permissions.
  bool Resemble(const Status& other) const {
    // Only the administrator gives files away; the group may still be ours.
    const bool sameGroup = ::fchown(number_, other.st_uid, other.st_gid) == 0 ||
                           ::fchown(number_, static_cast<uid_t>(-1), other.st_gid) == 0;
    const mode_t wanted = sameGroup ? other.st_mode : WithoutGroup(other.st_mode);
    Status mine{};
    return ::fchmod(number_, wanted & kPermissions) == 0 ||
           (GetStatus(mine) && ((mine.st_mode ^ wanted) & kPermissions) == 0);
  }

 private:
  bool Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(number_, bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  // Some things that can be written have no disk behind them.
  bool Synchronise() const {
    return ::fsync(number_) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS ||
           errno == EROFS;
  }

  bool Close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

  int number_ = -1;
};

/// A new file beside another, gone at the end unless it has taken its place.
class Beside {
 public:
  Beside(const fs::path& target, mode_t mode) {
    for (int i = 0; i < kMaxNames && !file.IsOpen(); ++i) {
      std::uint64_t number = 0;
      if (::getentropy(&number, sizeof number) != 0) return;
      char name[32];
      std::snprintf(name, sizeof name, ".lintavo-%016llx", static_cast<unsigned long long>(number));
      path_ = target.parent_path() / name;
      file = Descriptor(path_, O_WRONLY | O_CREAT | O_EXCL, mode);
      if (!file.IsOpen() && errno != EEXIST) break;
    }
    isThere_ = file.IsOpen();
  }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  ~Beside() {
    if (isThere_) ::unlink(path_.c_str());
  }

  bool TakePlaceOf(const fs::path& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0) return false;
    isThere_ = false;
    return true;
  }

  Descriptor file;

 private:
  fs::path path_;
  bool isThere_ = false;
};

// What the system says of a folder, or a place in it, that is not ours to change,
// whereas the file may be. Anything else, a full disk first of all, would meet a
// write in place as well.
Outcome OutcomeOf(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case EXDEV:
    case ENAMETOOLONG:
      return Outcome::kImpossible;
    default:
      return Outcome::kFailed;
  }
}

// Links in here stand for open files, not for the paths that they show.
bool ShowsOpenFiles(const fs::path& path) {
  const std::string& text = path.native();
  return text.starts_with("/proc/") || text.starts_with("/dev/fd/");
}

// The file that a path leads to through links. A path that leads in circles stays
// a link.
fs::path BehindLinks(fs::path path) {
  std::error_code error;
  for (int i = 0; i < kMaxLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
    if (ShowsOpenFiles(path)) break;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

// Null when nothing is there yet.
Outcome SaveBeside(const fs::path& target, const Status* old, std::string_view bytes) {
  const HeldSignals held;
  Beside beside(target, old != nullptr ? kNobodyElse : kNewFile);
  if (!beside.file.IsOpen()) return OutcomeOf(errno);
  if (old != nullptr && !beside.file.Resemble(*old)) return Outcome::kImpossible;
  if (!beside.file.Finish(bytes)) return Outcome::kFailed;
  return beside.TakePlaceOf(target) ? Outcome::kSaved : OutcomeOf(errno);
}

bool SaveInPlace(const fs::path& target, bool isNew, std::string_view bytes) {
  const int how = isNew ? O_EXCL : O_TRUNC;
  Descriptor file(target, O_WRONLY | O_CREAT | how, kNewFile);
  if (!file.IsOpen()) return false;
  if (file.Finish(bytes)) return true;
  if (isNew) ::unlink(target.c_str());
  return false;
}

}  // namespace

bool SaveFile(const CString& path, std::string_view bytes) {
  if (path.IsEmpty() || path.Find('\0') >= 0) return false;
  const fs::path given = std::string(PathForWriting(path).View());
  Status old{};
  const bool isNew = ::stat(given.c_str(), &old) != 0;
  if (isNew && errno != ENOENT) return false;
  const fs::path target = BehindLinks(given);
  const bool isFile = isNew || (S_ISREG(old.st_mode) && !ShowsOpenFiles(target));
  if (!isFile) return SaveInPlace(target, isNew, bytes);
  // Whoever may write in the folder could replace a read-only file, too.
  if (!isNew && !Descriptor(target, O_WRONLY).IsOpen()) return false;
  const Outcome outcome = SaveBeside(target, isNew ? nullptr : &old, bytes);
  return outcome == Outcome::kSaved ||
         (outcome == Outcome::kImpossible && SaveInPlace(target, isNew, bytes));
}

}  // namespace lintavo
