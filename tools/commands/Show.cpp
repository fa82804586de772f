// `lintavo show`: what is known of a window.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"

#include "Console.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct ShowOptions {
  std::string file;
};

void Show(const ShowOptions& options, Console& console) {
  CFeApi window;
  LoadWindow(options.file, window);
  PrintReport(window, console.Out());
}

}  // namespace

void AddShow(CLI::App& app, Console& console) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* command = app.add_subcommand("show", "Print name, size, frame, sashes and dimensions");
  command->add_option("file", options->file, "Macro file (aqz or cqz)")->required();
  command->callback([options, &console] { Show(*options, console); });
}

}  // namespace lintavo::tools
