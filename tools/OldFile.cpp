// What stands where a command is going to write.
#include "OldFile.h"

#include <system_error>
#include <utility>

#include "Errors.h"

namespace lintavo::tools {

namespace fs = std::filesystem;

OldFile::OldFile(std::string path) : path_(std::move(path)), before_(Look(path_)) {}

OldFile::State OldFile::Look(const std::string& path) {
  std::error_code error;
  State state;
  state.isFile = fs::is_regular_file(path, error);
  if (!state.isFile) return state;
  state.size = fs::file_size(path, error);
  state.changed = fs::last_write_time(path, error);
  return state;
}

void OldFile::FailNotWritten() const {
  const bool untouched = before_.isFile && Look(path_) == before_;
  Fail(path_, untouched ? "the file cannot be written; what it held before is untouched"
                        : "the file cannot be written");
}

}  // namespace lintavo::tools
