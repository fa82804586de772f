// A progress bar on the terminal of standard error.
#include "Progress.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "lintavo/drawing/Text.h"

#include "System.h"
#include "Text.h"

namespace lintavo::tools {
namespace {

constexpr std::chrono::milliseconds kPause(100);
constexpr std::size_t kBarWidth = 20;
constexpr std::size_t kUsualWidth = 80;

bool CanMoveBack() {
  const char* const terminal = std::getenv("TERM");
  return terminal == nullptr || std::string_view(terminal) != "dumb";
}

std::string Bar(std::size_t step, std::size_t count) {
  const std::size_t full = kBarWidth * step / count;
  std::string bar("[");
  bar.append(full, '#').append(kBarWidth - full, '.').append("] ");
  return bar.append(std::to_string(step)).append("/").append(std::to_string(count)).append(" ");
}

}  // namespace

Progress::Progress(std::size_t count, bool wanted)
    : count_(count),
      shown_(wanted && IsTerminal(Stream::kErr) && CanMoveBack()),
      mixed_(IsTerminal(Stream::kOut)),
      last_(Clock::now()) {}

void Progress::Next(const std::string& name) {
  ++step_;
  if (!shown_) return;
  if (mixed_) Clear();
  const Clock::time_point now = Clock::now();
  if (now - last_ < kPause) return;
  last_ = now;
  const std::size_t terminal = TerminalWidth(Stream::kErr);
  // The last column stays free, since some terminals begin a new line after it.
  const std::size_t width = (terminal > 0 ? terminal : kUsualWidth) - 1;
  const std::string line = CutTo(Bar(step_, count_) + drawing::ToDisplayText(name), width);
  std::fprintf(stderr, "\r%s\x1b[K", line.c_str());
  std::fflush(stderr);
  drawn_ = true;
}

void Progress::Clear() {
  if (!drawn_) return;
  std::fputs("\r\x1b[K", stderr);
  std::fflush(stderr);
  drawn_ = false;
}

}  // namespace lintavo::tools
