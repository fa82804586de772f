// `lintavo form`: windows' blank parameter forms.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct FormOptions {
  FileArguments files;
  std::string target;
};

void Form(const FormOptions& options, Console& console) {
  ForEachTarget(FindWindows(options.files), options.files.quiet, console, options.target, "txt",
                [&](const Source& source, const std::string& target) {
                  CFeApi window;
                  LoadWindow(source.path, options.files.section, window);
                  SaveForm(source.path, target, window);
                });
}

}  // namespace

void AddForm(CLI::App& app, Console& console) {
  const auto options = std::make_shared<FormOptions>();
  CLI::App* command = app.add_subcommand("form", "Write windows' blank parameter forms");
  AddFiles(*command, options->files,
           "Windows (aqz, cqz or a type's ini), folders of them, or - for standard input");
  AddSection(*command, options->files);
  AddTarget(*command, options->target,
            "Form to write: a name, a folder/, a pattern like out/{name}.txt or - for standard "
            "output")
      ->required();
  command->footer(
      "The form names the window's type as its file is named. Filled in, it is a\n"
      "parameter file, which 'lintavo position' makes a window of.\n"
      "\n"
      "Examples:\n"
      "  lintavo form stock/Fenster/Einfluegelig.ini -o kitchen.txt\n"
      "  lintavo form windows/ -o forms/");
  command->callback([options, &console] { Form(*options, console); });
}

}  // namespace lintavo::tools
