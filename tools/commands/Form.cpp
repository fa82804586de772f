// `lintavo form`: a window's blank parameter form.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"

#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct FormOptions {
  std::string file;
  std::string target;
};

// The window's type is named as its file.
void Form(const FormOptions& options) {
  CFeApi window;
  LoadWindow(options.file, window);
  SaveForm(options.file, options.target, window);
}

}  // namespace

void AddForm(CLI::App& app, Console&) {
  const auto options = std::make_shared<FormOptions>();
  CLI::App* command = app.add_subcommand("form", "Write the window's blank parameter form");
  command->add_option("file", options->file, "Macro file (aqz, cqz or a type's ini)")->required();
  command->add_option("-o,--output", options->target, "Parameter file to write")->required();
  command->callback([options] { Form(*options); });
}

}  // namespace lintavo::tools
