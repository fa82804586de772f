// What the command needs of the system: its standard streams and whole files.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace lintavo::tools {

/// As the name of a file: standard input where one is read, standard output where one
/// is written.
inline constexpr std::string_view kStandardStream = "-";

enum class Stream { kOut, kErr };

/// Whether a person watches the stream.
bool IsTerminal(Stream stream);

/// Columns of the stream's terminal; 0 when it is none, or one that does not tell.
std::size_t TerminalWidth(Stream stream);

/// Lets texts on the standard streams be UTF-8 where the system does not by itself.
void UseUtf8();

/// Text on standard output brings its own line ends from now on.
void KeepLineEnds();

/// All bytes of a file or of standard input, untranslated. False when it cannot be read
/// or has more than 64 MiB.
bool ReadBytes(const std::string& path, std::string& bytes);

/// Writes to standard output, or makes a file of these bytes: all of it, or none of it
/// with an old file of that name left as it is; throws `CommandError` then. Whether
/// standard output took them is seen at the end of the run.
void WriteBytes(const std::string& path, std::string_view bytes);

/// A name for a file of this run alone; the file is removed with the object. Signals that
/// would end the run wait until then.
class TemporaryFile {
 public:
  /// Throws `CommandError` when no temporary file can be made.
  TemporaryFile();
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::shared_ptr<const void> held_;  // the signals
  std::string path_;
};

}  // namespace lintavo::tools
