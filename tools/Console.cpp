// What a command talks to, and how its run ends.
#include "Console.h"

namespace lintavo::tools {

void Console::ReportFailure(const std::string& message) {
  messages_ << "lintavo: " << message << '\n';
  status_ = kFailure;
}

}  // namespace lintavo::tools
