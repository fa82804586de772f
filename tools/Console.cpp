// What a command talks to, and how its run ends.
#include "Console.h"

namespace lintavo::tools {

void Console::ReportFailure(const std::string& message) {
  Say("lintavo: " + message);
  status_ = kFailure;
}

void Console::Remark(const std::string& text) {
  Say(text);
}

// On a terminal that shows both, a message stands behind what was printed before it.
void Console::Say(const std::string& line) {
  out_.flush();
  messages_ << line << std::endl;
}

}  // namespace lintavo::tools
