// `lintavo export`: whole calculated windows as JSON.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Checks.h"
#include "Console.h"
#include "JsonText.h"
#include "Output.h"
#include "WindowFile.h"
#include "WindowJson.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct ExportOptions {
  std::vector<std::string> files;
  std::string target;
  bool json = true;  // the only format
  bool views = false;
};

// All windows are read before anything is written: a document breaks off for no fault of
// a file.
void Export(const ExportOptions& options, Console& console) {
  std::vector<CFeApi> windows(options.files.size());
  for (std::size_t i = 0; i < windows.size(); ++i) LoadWindow(options.files[i], windows[i]);
  WriteOutput(options.target, options.files, console, [&](std::ostream& out) {
    JsonWriter json(out);
    json.BeginObject();
    json.Add("schema", kWindowSchema);
    json.BeginArray("windows");
    for (std::size_t i = 0; i < windows.size(); ++i) {
      WriteWindowJson(options.files[i], windows[i], options.views, json);
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
  command->add_option("files", options->files, "Macro files (aqz or cqz)")->required();
  command->add_flag("--json", options->json, "As JSON, the default and only format");
  command->add_flag("--views", options->views,
                    "Add the views with hidden lines removed, of the window and of each sash");
  command->add_option("-o,--output", options->target, "File to write");
  command->callback([options, &console] { Export(*options, console); });
}

}  // namespace lintavo::tools
