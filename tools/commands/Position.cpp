// `lintavo position`: the window of a parameter file.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "Checks.h"
#include "Console.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct PositionOptions {
  std::string file;
  std::string base;
  std::string target;
};

void Position(const PositionOptions& options, Console& console) {
  CFeApi window;
  MakePosition(options.file, options.base, options.target, window);
  PrintReport(window, console.Out());
  if (options.target.empty()) return;
  console.Out() << "\nWritten to " << drawing::ToDisplayText(options.target) << '\n';
}

}  // namespace

void AddPosition(CLI::App& app, Console& console) {
  const auto options = std::make_shared<PositionOptions>();
  CLI::App* command = app.add_subcommand("position", "Make the window of a parameter file");
  command->add_option("file", options->file, "Parameter file")->required();
  command
      ->add_option("--base", options->base,
                   "Folder with the types in Fenster and the patterns in Sprossen")
      ->required();
  command->add_option("-o,--output", options->target, "Macro file (aqz) to write")
      ->check(CheckMacroTarget);
  command->callback([options, &console] { Position(*options, console); });
}

}  // namespace lintavo::tools
