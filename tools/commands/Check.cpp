// `lintavo check`: whether windows can be read and calculated.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "Arguments.h"
#include "Batch.h"
#include "Console.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

std::string Summary(const CFeApi& window) {
  const long sashes = window.GetAnzahlFluegel();
  return drawing::LengthText(window.GetFensterBreite()) + " x " +
         drawing::LengthText(window.GetFensterHoehe()) + ", " + std::to_string(sashes) +
         (sashes == 1 ? " sash" : " sashes");
}

void Check(const FileArguments& files, Console& console) {
  ForEachSource(FindWindows(files), files.quiet, console, [&](const Source& source) {
    CFeApi window;
    LoadWindow(source.path, files.section, window);
    if (files.quiet) return;
    console.Out() << DisplayName(source.path) << ": ok, " << Summary(window) << '\n';
  });
}

}  // namespace

void AddCheck(CLI::App& app, Console& console) {
  const auto files = std::make_shared<FileArguments>();
  CLI::App* command = app.add_subcommand("check", "Tell which windows can be calculated");
  AddFiles(*command, *files, kWindowFiles);
  AddSection(*command, *files);
  command->footer(
      "Windows in order are named on standard output, not with --quiet; faults on\n"
      "standard error.\n"
      "\n"
      "Examples:\n"
      "  lintavo check window.aqz\n"
      "  lintavo check windows/ -r\n"
      "  lintavo check windows/ --quiet && echo all in order");
  command->callback([files, &console] { Check(*files, console); });
}

}  // namespace lintavo::tools
