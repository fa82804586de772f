// `lintavo export`: whole calculated windows as JSON.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Console.h"
#include "JsonText.h"
#include "Output.h"
#include "WindowFile.h"
#include "WindowJson.h"
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
void Export(const ExportOptions& options, Console& console) {
  const std::vector<std::string> files = WindowPaths(options.files);
  std::vector<CFeApi> windows(files.size());
  for (std::size_t i = 0; i < windows.size(); ++i) LoadWindow(files[i], windows[i]);
  WriteOutput(options.target, files, console, [&](std::ostream& out) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("schema", kWindowSchema);
    json.BeginArray("windows");
    for (std::size_t i = 0; i < windows.size(); ++i) {
      WriteWindowJson(files[i], windows[i], options.views, json);
    }
    json.End();
    json.End();
  });
}

}  // namespace

void AddExport(CLI::App& app, Console& console) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App* command =
      app.add_subcommand("export", "Write everything about calculated windows as data");
  AddFiles(*command, options->files, kWindowFiles);
  command->add_flag("--json", options->json, "As JSON, the default and only format");
  command->add_flag("--views", options->views,
                    "Add the views with hidden lines removed, of the window and of each sash");
  AddTarget(*command, options->target, "File to write, or - for standard output");
  command->callback([options, &console] { Export(*options, console); });
}

}  // namespace lintavo::tools
