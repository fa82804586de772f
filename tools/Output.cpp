// Where a command's result goes.
#include "Output.h"

#include <sstream>

#include "lintavo/platform/SaveFile.h"

#include "Console.h"
#include "OldFile.h"
#include "WindowFile.h"

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#endif

namespace lintavo::tools {
namespace {

// Text that brings its own line ends must not get a second kind of them.
void KeepLineEnds() {
#if defined(_WIN32)
  _setmode(_fileno(stdout), _O_BINARY);
#endif
}

}  // namespace

void WriteOutput(const std::string& path, std::span<const std::string> sources,
                 const Console& console, const std::function<void(std::ostream&)>& write) {
  if (path.empty()) {
    console.Out().flush();
    KeepLineEnds();
    write(console.Out());
    return;
  }
  for (const std::string& source : sources) RefuseSource(source, path);
  std::ostringstream text;
  write(text);
  const OldFile oldFile(path);
  if (!SaveFile(path.c_str(), text.view())) oldFile.FailNotWritten();
}

}  // namespace lintavo::tools
