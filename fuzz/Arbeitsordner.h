// A folder for the files that a target writes, gone when the process ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace lintavo::fuzz {

class Arbeitsordner {
 public:
  Arbeitsordner() {
    std::string pattern = (Speicherplatz() / "lintavo_fuzz_XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder_ = pattern;
  }
  Arbeitsordner(const Arbeitsordner&) = delete;
  Arbeitsordner& operator=(const Arbeitsordner&) = delete;
  ~Arbeitsordner() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  std::string Pfad(const std::string& name) const { return (folder_ / name).string(); }

  /// Writes a file and returns its path.
  std::string Datei(const std::string& name, const std::uint8_t* data, std::size_t size) const {
    std::string path = Pfad(name);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path;
  }

 private:
  // Saving waits for the disk, a thousand times longer than for memory.
  static std::filesystem::path Speicherplatz() {
    const std::filesystem::path memory = "/dev/shm";
    return is_directory(memory) ? memory : std::filesystem::temp_directory_path();
  }

  std::filesystem::path folder_;
};

}  // namespace lintavo::fuzz
