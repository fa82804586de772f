// Where a command's result goes.
#include "Output.h"

#include <sstream>

#include "Console.h"
#include "System.h"
#include "WindowFile.h"

namespace lintavo::tools {

void WriteOutput(const std::string& path, std::span<const std::string> sources,
                 const Console& console, const std::function<void(std::ostream&)>& write) {
  if (path.empty() || path == kStandardStream) {
    console.Out().flush();
    KeepLineEnds();
    write(console.Out());
    return;
  }
  for (const std::string& source : sources) RefuseSource(source, path);
  std::ostringstream text;
  write(text);
  WriteBytes(path, text.view());
}

}  // namespace lintavo::tools
