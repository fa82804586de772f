// What stands where a command is going to write.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace lintavo::tools {

/// Looks at the file of a path before it is written, so that a failure can be
/// reported with what became of it.
class OldFile {
 public:
  explicit OldFile(std::string path);

  /// Throws `CommandError`: the file cannot be written. Tells the user when the file
  /// that was there has not been touched.
  [[noreturn]] void FailNotWritten() const;

 private:
  /// Size and time of the last change; none when there is no file.
  struct State {
    bool isFile = false;
    std::uintmax_t size = 0;
    std::filesystem::file_time_type changed;

    bool operator==(const State&) const = default;
  };

  static State Look(const std::string& path);

  std::string path_;
  State before_;
};

}  // namespace lintavo::tools
