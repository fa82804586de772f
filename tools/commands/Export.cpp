// `lintavo export`: whole calculated windows as JSON.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "Console.h"
#include "JsonText.h"
#include "Output.h"
#include "WindowFile.h"
#include "WindowJson.h"
#include "WindowParts.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct ExportOptions {
  FileArguments files;
  std::string target;
  bool json = true;  // the only format
  bool views = false;
};

// All windows are read before anything is written: a document breaks off for no fault of
// a file.
void ExportTo(const std::string& target, const std::vector<std::string>& files,
              const ExportOptions& options, Console& console) {
  std::vector<CFeApi> windows(files.size());
  for (std::size_t i = 0; i < windows.size(); ++i)
    LoadWindow(files[i], options.files.section, windows[i]);
  WriteOutput(target, files, console, [&](std::ostream& out) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("schema", kWindowSchema);
    json.BeginArray("windows");
    for (std::size_t i = 0; i < windows.size(); ++i) {
      WriteWindowJson(files[i], ViewOf(windows[i]), options.views, json);
    }
    json.End();
    json.End();
  });
}

void Export(const ExportOptions& options, Console& console) {
  if (!IsForSeveral(options.target)) {
    return ExportTo(options.target, WindowPaths(options.files), options, console);
  }
  ForEachTarget(FindWindows(options.files), options.files.quiet, console, options.target, "json",
                [&](const Source& source, const std::string& own) {
                  ExportTo(own, {source.path}, options, console);
                });
}

}  // namespace

void AddExport(CLI::App& app, Console& console) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Write everything about calculated windows as data");
  AddFiles(*command, options->files, kWindowFiles);
  AddSection(*command, options->files);
  command->add_flag("--json", options->json, "As JSON, the default and only format");
  command->add_flag("--views", options->views,
                    "Add the views with hidden lines removed, of the window and of each sash");
  AddTarget(*command, options->target, kListTarget);
  command->footer(
      "Several windows make one document, where none of them may fail; into a folder or\n"
      "by a pattern each makes its own.\n"
      "\n"
      "Examples:\n"
      "  lintavo export --json window.aqz\n"
      "  lintavo export --json --views windows/ -o windows.json\n"
      "  lintavo export --json windows/ -r -o data/{name}.json");
  command->callback([options, &console] { Export(*options, console); });
}

}  // namespace lintavo::tools
