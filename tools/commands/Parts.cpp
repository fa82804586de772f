// `lintavo parts`: the cutting list of one or several windows.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Checks.h"
#include "Console.h"
#include "Numbers.h"
#include "Output.h"
#include "PartsJson.h"
#include "PartsList.h"
#include "PartsText.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

// UTF-8 as spreadsheets recognise it.
constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

struct PartsArguments {
  FileArguments files;
  std::string target;
  std::string format = "table";
  std::string language = "de";
  std::string decimal;  // that of the language
  bool mark = false;
  std::string rebate = "0";
  std::string scale = "1";
  bool perWindow = false;
};

PartsStyle StyleFrom(const PartsArguments& arguments) {
  PartsStyle style;
  style.sprache = arguments.language == "de" ? Sprache::kDeutsch : Sprache::kEnglisch;
  const bool comma =
      arguments.decimal.empty() ? style.sprache == Sprache::kDeutsch : arguments.decimal == "comma";
  style.dezimalzeichen = comma ? ',' : '.';
  style.jeFenster = arguments.perWindow;
  return style;
}

void Write(const PartsArguments& arguments, const PartsList& list,
           const std::vector<PartsWindow>& windows, std::ostream& out) {
  const PartsStyle style = StyleFrom(arguments);
  if (arguments.format == "json") return WritePartsJson(list, windows, style, out);
  if (arguments.format == "table") return PrintPartsTables(list, windows, style, out);
  if (arguments.mark) out << kByteOrderMark;
  WritePartsCsv(list, windows, style, out);
}

// A list from which a window is missing would be taken for a whole one: a file that
// cannot be read ends the run before anything is written.
void Parts(const PartsArguments& arguments, Console& console) {
  PartsOptions options;
  options.jeFenster = arguments.perWindow;
  double scale = 1.0;
  ParseNumber(arguments.rebate, options.falz);
  ParseNumber(arguments.scale, scale);
  PartsCollector collector(options);
  const std::vector<std::string> files = WindowPaths(arguments.files);
  std::vector<PartsWindow> windows;
  for (const std::string& file : files) {
    CFeApi window;
    LoadWindow(file, window);
    collector.Add(window);
    windows.push_back(DescribeWindow(file, window));
    windows.back().breite *= scale;
    windows.back().hoehe *= scale;
  }
  PartsList list = collector.Sorted();
  Skaliere(scale, list);
  WriteOutput(arguments.target, files, console,
              [&](std::ostream& out) { Write(arguments, list, windows, out); });
}

void AddFormatOptions(CLI::App& command, PartsArguments& arguments) {
  command.add_option("--format", arguments.format, "How the list is written; default table")
      ->check(CLI::IsMember({"table", "csv", "json"}));
  command.add_option("--lang", arguments.language, "Language of titles and kinds; default de")
      ->check(CLI::IsMember({"de", "en"}));
  command
      .add_option("--decimal", arguments.decimal,
                  "Decimal sign; default is the language's. In CSV, cells are separated by "
                  "semicolons beside commas, else by commas")
      ->check(CLI::IsMember({"comma", "point"}));
  command.add_flag("--bom", arguments.mark, "Begin CSV with the mark by which Excel knows UTF-8");
}

}  // namespace

void AddParts(CLI::App& app, Console& console) {
  const auto arguments = std::make_shared<PartsArguments>();
  CLI::App* command =
      app.add_subcommand("parts", "Print the cutting list: bars, panes and fittings");
  AddFiles(*command, arguments->files, kWindowFiles);
  command
      ->add_option("--rebate", arguments->rebate,
                   "How far panes reach into their frame on every side; default 0")
      ->check(CheckNumber);
  command->add_flag("--per-window", arguments->perWindow,
                    "List every window by itself, nothing added up");
  command
      ->add_option("--scale", arguments->scale,
                   "Multiply lengths, by 10 for millimetres from centimetres; areas by its square")
      ->check(CheckLength);
  AddTarget(*command, arguments->target, "File to write, or - for standard output");
  AddFormatOptions(*command, *arguments);
  command->callback([arguments, &console] { Parts(*arguments, console); });
}

}  // namespace lintavo::tools
