// `lintavo position`: the windows of parameter files.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "Console.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct PositionOptions {
  FileArguments files;
  std::string base;
  std::string target;
};

void Position(const PositionOptions& options, Console& console) {
  const std::vector<Source> sources = FindSources(options.files, {"txt"});
  ReportPrinter printer(sources.size() > 1, console.Out());
  ForEachTarget(sources, options.files.quiet, console, options.target, "aqz",
                [&](const Source& source, const std::string& target) {
                  CFeApi window;
                  MakePosition(source.path, options.base, target, window);
                  printer.PrintResult(source.path, target, window, "");
                });
}

}  // namespace

void AddPosition(CLI::App& app, Console& console) {
  const auto options = std::make_shared<PositionOptions>();
  CLI::App* command = app.add_subcommand("position", "Make the windows of parameter files");
  AddFiles(*command, options->files,
           "Parameter files, folders of them (txt), or - for standard input");
  command
      ->add_option("--base", options->base,
                   "Folder with the types in Fenster and the patterns in Sprossen")
      ->required()
      ->type_name("FOLDER");
  AddTarget(*command, options->target, kWindowTarget);
  command->footer(
      "Examples:\n"
      "  lintavo position kitchen.txt --base stock\n"
      "  lintavo position kitchen.txt --base stock -o kitchen.aqz\n"
      "  lintavo position house/ --base stock -o windows/");
  command->callback([options, &console] { Position(*options, console); });
}

}  // namespace lintavo::tools
