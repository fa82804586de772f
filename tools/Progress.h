// A progress bar on the terminal of standard error.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace lintavo::tools {

/// One line that is drawn over and over; nothing at all where nobody watches.
class Progress {
 public:
  /// For `count` steps; shown only when `wanted` and on a terminal.
  Progress(std::size_t count, bool wanted);
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// The next step begins; what the step prints may follow.
  void Next(const std::string& name);

  /// Takes the line away, so that something else can be printed.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  std::size_t count_;
  std::size_t step_ = 0;
  bool shown_;  // at all
  bool mixed_;  // with results on the same terminal
  bool drawn_ = false;
  Clock::time_point last_;
};

}  // namespace lintavo::tools
