// What the command needs of the system: its standard streams and whole files.
#include "System.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "lintavo/platform/ReadFile.h"
#include "lintavo/platform/SaveFile.h"

#include "Errors.h"
#include "OldFile.h"

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <csignal>

#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace lintavo::tools {
namespace {

namespace fs = std::filesystem;

// As much as the library itself reads.
constexpr std::size_t kFileMax = std::size_t{64} << 20;

#ifdef _WIN32

HANDLE HandleOf(Stream stream) {
  return ::GetStdHandle(stream == Stream::kOut ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

class HeldSignals {};

// Line ends are part of the bytes.
void UseBytes(std::FILE* file) {
  ::_setmode(::_fileno(file), _O_BINARY);
}

std::string TemporaryPath() {
  const std::unique_ptr<char, decltype(&std::free)> name(::_tempnam(nullptr, "lintavo"),
                                                         &std::free);
  return name != nullptr ? std::string(name.get()) : std::string();
}

#else

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

int NumberOf(Stream stream) {
  return stream == Stream::kOut ? STDOUT_FILENO : STDERR_FILENO;
}

void UseBytes(std::FILE*) {}

std::string TemporaryPath() {
  std::error_code error;
  std::string path = (fs::temp_directory_path(error) / "lintavo-XXXXXX").string();
  const int file = error ? -1 : ::mkstemp(path.data());
  if (file < 0) return {};
  ::close(file);
  return path;
}

#endif

bool ReadAll(std::FILE* file, std::string& bytes) {
  char block[16384];
  std::string content;
  for (std::size_t read = 0; (read = std::fread(block, 1, sizeof block, file)) > 0;) {
    content.append(block, read);
    if (content.size() > kFileMax) return false;
  }
  if (std::ferror(file) != 0) return false;
  bytes = std::move(content);
  return true;
}

}  // namespace

#ifdef _WIN32

// The null device is a character device too, but no console.
bool IsTerminal(Stream stream) {
  DWORD mode = 0;
  return ::GetConsoleMode(HandleOf(stream), &mode) != 0;
}

std::size_t TerminalWidth(Stream stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (::GetConsoleScreenBufferInfo(HandleOf(stream), &info) == 0) return 0;
  return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}

void UseUtf8() {
  ::SetConsoleOutputCP(CP_UTF8);
}

#else

bool IsTerminal(Stream stream) {
  return ::isatty(NumberOf(stream)) == 1;
}

std::size_t TerminalWidth(Stream stream) {
  winsize size{};
  if (!IsTerminal(stream) || ::ioctl(NumberOf(stream), TIOCGWINSZ, &size) != 0) return 0;
  return size.ws_col;
}

void UseUtf8() {}

#endif

void KeepLineEnds() {
  UseBytes(stdout);
}

bool ReadBytes(const std::string& path, std::string& bytes) {
  if (path == kStandardStream) {
    UseBytes(stdin);
    return ReadAll(stdin, bytes);
  }
  return ReadWholeFile(CString(path), bytes);
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  if (path == kStandardStream) {
    KeepLineEnds();
    std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    return;
  }
  const OldFile old(path);
  if (!SaveFile(CString(path), bytes)) old.FailNotWritten();
}

TemporaryFile::TemporaryFile() : held_(std::make_shared<HeldSignals>()), path_(TemporaryPath()) {
  if (path_.empty()) throw CommandError("no temporary file can be made");
}

TemporaryFile::~TemporaryFile() {
  std::error_code unknown;
  fs::remove(path_, unknown);
}

}  // namespace lintavo::tools
