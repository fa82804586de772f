// `lintavo show`: what is known of a window.
#include <CLI/CLI.hpp>
#include <memory>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "Console.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

void Show(const FileArguments& files, Console& console) {
  const std::vector<Source> sources = FindWindows(files);
  ReportPrinter printer(sources.size() > 1, console.Out());
  ForEachSource(sources, files.quiet, console, [&](const Source& source) {
    CFeApi window;
    LoadWindow(source.path, files.section, window);
    printer.Print(source.path, window);
  });
}

}  // namespace

void AddShow(CLI::App& app, Console& console) {
  const auto files = std::make_shared<FileArguments>();
  CLI::App* command = app.add_subcommand("show", "Print name, size, frame, sashes and dimensions");
  AddFiles(*command, *files, kWindowFiles);
  AddSection(*command, *files);
  command->footer(
      "Examples:\n"
      "  lintavo show window.aqz\n"
      "  lintavo show windows/ -r | less\n"
      "  lintavo fit window.aqz 180 150 -o - | lintavo show -");
  command->callback([files, &console] { Show(*files, console); });
}

}  // namespace lintavo::tools
