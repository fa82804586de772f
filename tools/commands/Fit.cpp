// `lintavo fit`: windows fitted into a wall opening.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "Arguments.h"
#include "Batch.h"
#include "Checks.h"
#include "Console.h"
#include "Numbers.h"
#include "WindowFile.h"
#include "WindowReport.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct FitOptions {
  FileArguments files;
  std::vector<std::string> words;
  std::string target;
  double width = 0.0;
  double height = 0.0;
};

// The size stands last, as one word or two; what is before it are the files.
void TakeSize(FitOptions& options) {
  std::vector<std::string>& words = options.words;
  const std::size_t sizeWords = ParseSize(words.back(), options.width, options.height) ? 1 : 2;
  if (sizeWords == 2) {
    for (std::size_t i = words.size() - std::min<std::size_t>(words.size(), 2); i < words.size();
         ++i) {
      double& length = i + 1 == words.size() ? options.height : options.width;
      if (ParseLength(words[i], length)) continue;
      throw UsageError(NoLength(words[i]) +
                       "; the opening's width and height stand last, as in 'lintavo fit "
                       "window.aqz 180 150'");
    }
  }
  if (words.size() <= sizeWords) throw UsageError("no file is named");
  options.files.paths.assign(words.begin(), words.end() - static_cast<std::ptrdiff_t>(sizeWords));
}

void Fit(FitOptions& options, Console& console) {
  TakeSize(options);
  const std::vector<Source> sources = FindWindows(options.files);
  ReportPrinter printer(sources.size() > 1, console.Out());
  ForEachTarget(sources, options.files.quiet, console, options.target, "",
                [&](const Source& source, const std::string& target) {
                  CFeApi window;
                  LoadWindow(source.path, options.files.section, window);
                  FitWindow(source.path, options.width, options.height, window);
                  if (!target.empty()) SaveWindow(target, window);
                  printer.PrintResult(source.path, target, window,
                                      "Opening " + drawing::LengthText(options.width) + " x " +
                                          drawing::LengthText(options.height) + "\n");
                });
}

}  // namespace

void AddFit(CLI::App& app, Console& console) {
  const auto options = std::make_shared<FitOptions>();
  CLI::App* command = app.add_subcommand("fit", "Fit windows into a wall opening");
  command
      ->add_option("FILE", options->words,
                   "Windows (aqz, cqz), folders of them, or - for standard input; then the "
                   "opening's size, also as WIDTHxHEIGHT")
      ->required()
      ->option_text("FILE... WIDTH HEIGHT");
  AddTarget(*command, options->target, kWindowTarget);
  AddFlagsForSeveral(*command, options->files);
  AddSection(*command, options->files);
  command->footer(
      "Examples:\n"
      "  lintavo fit window.aqz 180 150\n"
      "  lintavo fit window.aqz 180x150 -o fitted.aqz\n"
      "  lintavo fit windows/ 180 150 -o fitted/");
  command->callback([options, &console] { Fit(*options, console); });
}

}  // namespace lintavo::tools
