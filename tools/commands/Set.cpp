// `lintavo set`: named dimensions of a window set to new lengths.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"
#include "lintavo/platform/CString.h"

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

struct Assignment {
  std::string name;
  double length = 0.0;
};

struct SetOptions {
  FileArguments files;
  std::vector<std::string> words;
  std::string target;
  std::vector<Assignment> assignments;
};

// The first word is a file whatever stands in it; a name may hold "=", a length not.
void TakeAssignments(SetOptions& options) {
  options.files.paths.clear();
  for (const std::string& word : options.words) {
    const std::size_t sign = word.rfind('=');
    if (options.files.paths.empty() || sign == std::string::npos) {
      options.files.paths.push_back(word);
      continue;
    }
    Assignment assignment{drawing::ToDisplayText(word.substr(0, sign)), 0.0};
    const std::string length = word.substr(sign + 1);
    if (!ParseLength(length, assignment.length)) {
      throw UsageError("'" + assignment.name + "': " + NoLength(length));
    }
    options.assignments.push_back(std::move(assignment));
  }
  if (options.assignments.empty()) {
    throw UsageError("no dimension is set; name one, as in 'lintavo set window.aqz Breite=180'");
  }
}

// Names are compared as they are shown, since a file's may be in another encoding.
long FindDimension(const CFeApi& window, const std::string& name) {
  for (long i = 0; i < window.GetAnzahlZusatzMasze(); ++i) {
    if (CString(DimensionName(window, i)).CompareNoCase(CString(name)) == 0) return i;
  }
  return -1;
}

std::string ListedDimensions(const CFeApi& window) {
  std::string names;
  for (long i = 0; i < window.GetAnzahlZusatzMasze(); ++i) {
    names += (i == 0 ? "" : ", ") + DimensionName(window, i);
  }
  return names.empty() ? "it has none" : "it has " + names;
}

void SetDimension(const std::string& path, const Assignment& assignment, CFeApi& window) {
  const long i = FindDimension(window, assignment.name);
  if (i < 0) {
    Fail(path,
         "the window has no dimension '" + assignment.name + "'; " + ListedDimensions(window));
  }
  if (window.SetZMaszLaengeMitName(i, assignment.length) == 1) return;
  Fail(path, "the dimension '" + assignment.name + "' cannot be " +
                 drawing::LengthText(assignment.length));
}

void Set(SetOptions& options, Console& console) {
  TakeAssignments(options);
  const std::vector<Source> sources = FindWindows(options.files);
  ReportPrinter printer(sources.size() > 1, console.Out());
  ForEachTarget(sources, options.files.quiet, console, options.target, "",
                [&](const Source& source, const std::string& target) {
                  CFeApi window;
                  LoadWindow(source.path, options.files.section, window);
                  for (const Assignment& assignment : options.assignments) {
                    SetDimension(source.path, assignment, window);
                  }
                  CalculateWindow(source.path, window);
                  if (!target.empty()) SaveWindow(target, window);
                  printer.PrintResult(source.path, target, window, "");
                });
}

}  // namespace

void AddSet(CLI::App& app, Console& console) {
  const auto options = std::make_shared<SetOptions>();
  CLI::App* command = app.add_subcommand("set", "Give named dimensions new lengths");
  command
      ->add_option("FILE", options->words,
                   "Windows (aqz, cqz), folders of them, or - for standard input; then "
                   "dimensions by name, in any case")
      ->required()
      ->option_text("FILE... NAME=LENGTH...");
  AddTarget(*command, options->target, kWindowTarget);
  AddFlagsForSeveral(*command, options->files);
  AddSection(*command, options->files);
  command->footer(
      "Of a negative dimension only the length changes: its sign is the side that it\n"
      "is counted to. Dimensions of one name are set together.\n"
      "\n"
      "Examples:\n"
      "  lintavo set window.aqz Breite=180\n"
      "  lintavo set door.aqz Breite=220 Oberlicht=50 -o wide.aqz\n"
      "  lintavo set window.aqz 'Breite links=90' -o -");
  command->callback([options, &console] { Set(*options, console); });
}

}  // namespace lintavo::tools
