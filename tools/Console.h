// What a command talks to, and how its run ends.
#pragma once

#include <ostream>
#include <string>

namespace lintavo::tools {

// How a run of the command ends.
inline constexpr int kDone = 0;
inline constexpr int kFailure = 1;
inline constexpr int kWrongUsage = 2;

/// The output and the messages of one run. A command throws `CommandError` when it
/// cannot go on; what goes wrong with one of several files it reports here.
class Console {
 public:
  /// Results go to `out`, messages to `messages`; both outlive the console.
  Console(std::ostream& out, std::ostream& messages) : out_(out), messages_(messages) {}

  std::ostream& Out() const { return out_; }

  /// One line that says what went wrong; the run then ends as a failure.
  void ReportFailure(const std::string& message);

  /// One line that is no result: where something was written to, how much was done.
  void Remark(const std::string& text);

  int Status() const { return status_; }

 private:
  void Say(const std::string& line);

  std::ostream& out_;
  std::ostream& messages_;
  int status_ = kDone;
};

}  // namespace lintavo::tools
