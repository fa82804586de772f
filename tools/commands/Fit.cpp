// `lintavo fit`: a window fitted into a wall opening.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "Checks.h"
#include "Console.h"
#include "Numbers.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct FitOptions {
  std::string file;
  std::string width;
  std::string height;
  std::string target;
};

void Fit(const FitOptions& options, Console& console) {
  double width = 0.0;
  double height = 0.0;
  ParseLength(options.width, width);
  ParseLength(options.height, height);
  CFeApi window;
  LoadWindow(options.file, window);
  FitWindow(options.file, width, height, window);
  if (!options.target.empty()) SaveWindow(options.target, window);
  console.Out() << "Opening " << drawing::LengthText(width) << " x " << drawing::LengthText(height)
                << '\n';
  PrintReport(window, console.Out());
  if (options.target.empty()) return;
  console.Out() << "\nWritten to " << drawing::ToDisplayText(options.target) << '\n';
}

}  // namespace

void AddFit(CLI::App& app, Console& console) {
  const auto options = std::make_shared<FitOptions>();
  CLI::App* command = app.add_subcommand("fit", "Fit the window into a wall opening");
  command->add_option("file", options->file, "Macro file (aqz or cqz)")->required();
  command->add_option("width", options->width, "Width of the opening")
      ->required()
      ->check(CheckLength);
  command->add_option("height", options->height, "Height of the opening")
      ->required()
      ->check(CheckLength);
  command->add_option("-o,--output", options->target, "Macro file (aqz) to write")
      ->check(CheckMacroTarget);
  command->callback([options, &console] { Fit(*options, console); });
}

}  // namespace lintavo::tools
