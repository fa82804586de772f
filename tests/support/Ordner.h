// A folder of its own for one test, removed at the end. Tests run side by side,
// so no two may share a name.
#pragma once

#include <filesystem>
#include <string>

namespace lintavo::test {

class Ordner {
 public:
  Ordner();
  ~Ordner();
  Ordner(const Ordner&) = delete;
  Ordner& operator=(const Ordner&) = delete;

  /// Path of a file in it, whose name is taken as it is: not every system's `path` takes
  /// names for UTF-8.
  std::string operator/(const std::string& name) const { return (path_ / "").string() + name; }

 private:
  std::filesystem::path path_;
};

}  // namespace lintavo::test
