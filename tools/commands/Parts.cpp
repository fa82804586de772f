// `lintavo parts`: the cutting list of one or several windows.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Batch.h"
#include "Checks.h"
#include "Console.h"
#include "Numbers.h"
#include "Output.h"
#include "PartsJson.h"
#include "PartsList.h"
#include "PartsText.h"
#include "System.h"
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

void Write(const PartsArguments& arguments, const PartsStyle& style, const PartsList& list,
           const std::vector<PartsWindow>& windows, std::ostream& out) {
  if (arguments.format == "json") return WritePartsJson(list, windows, style, out);
  if (arguments.format == "table") return PrintPartsTables(list, windows, style, out);
  if (arguments.mark) out << kByteOrderMark;
  WritePartsCsv(list, windows, style, out);
}

// A list from which a window is missing would be taken for a whole one: a file that
// cannot be read ends it before anything is written.
void ListTo(const std::string& target, const std::vector<std::string>& files,
            const PartsArguments& arguments, Console& console) {
  PartsOptions options;
  options.jeFenster = arguments.perWindow;
  double scale = 1.0;
  ParseNumber(arguments.rebate, options.falz);
  ParseNumber(arguments.scale, scale);
  PartsCollector collector(options);
  std::vector<PartsWindow> windows;
  for (const std::string& file : files) {
    CFeApi window;
    LoadWindow(file, arguments.files.section, window);
    const WindowView view = ViewOf(window);
    collector.Add(view);
    windows.push_back(DescribeWindow(file, view));
    windows.back().breite *= scale;
    windows.back().hoehe *= scale;
  }
  PartsList list = collector.Sorted();
  Skaliere(scale, list);
  PartsStyle style = StyleFrom(arguments);
  if (target.empty()) style.spalten = TerminalWidth(Stream::kOut);
  WriteOutput(target, files, console,
              [&](std::ostream& out) { Write(arguments, style, list, windows, out); });
}

void Parts(const PartsArguments& arguments, Console& console) {
  if (!IsForSeveral(arguments.target)) {
    return ListTo(arguments.target, WindowPaths(arguments.files), arguments, console);
  }
  const std::string ending = arguments.format == "table" ? "txt" : arguments.format;
  ForEachTarget(FindWindows(arguments.files), arguments.files.quiet, console, arguments.target,
                ending, [&](const Source& source, const std::string& own) {
                  ListTo(own, {source.path}, arguments, console);
                });
}

void AddFormatOptions(CLI::App& command, PartsArguments& arguments) {
  command.add_option("--format", arguments.format, "table (default), csv or json")
      ->check(CLI::IsMember({"table", "csv", "json"}))
      ->type_name("FORMAT");
  command.add_option("--lang", arguments.language, "Language of the texts: de (default) or en")
      ->check(CLI::IsMember({"de", "en"}))
      ->type_name("LANGUAGE");
  command
      .add_option("--decimal", arguments.decimal,
                  "Decimal sign: comma or point; that of the language where not given. Beside "
                  "commas the cells of CSV are separated by semicolons")
      ->check(CLI::IsMember({"comma", "point"}))
      ->type_name("SIGN");
  command.add_flag("--bom", arguments.mark,
                   "Begin CSV with the mark by which Excel sees that it is UTF-8");
}

}  // namespace

void AddParts(CLI::App& app, Console& console) {
  const auto arguments = std::make_shared<PartsArguments>();
  CLI::App* command =
      app.add_subcommand("parts", "Print the cutting list: bars, panes and fittings");
  AddFiles(*command, arguments->files, kWindowFiles);
  AddSection(*command, arguments->files);
  AddTarget(*command, arguments->target, kListTarget);
  command->add_flag("--per-window", arguments->perWindow,
                    "List every window by itself, nothing added up");
  command
      ->add_option("--rebate", arguments->rebate,
                   "How far panes reach into their frame on every side, in the window's units")
      ->check(CheckNumber)
      ->type_name("LENGTH");
  command
      ->add_option("--scale", arguments->scale,
                   "Multiply what is printed: 10 makes millimetres of centimetres")
      ->check(CheckLength)
      ->type_name("FACTOR");
  AddFormatOptions(*command, *arguments);
  command->footer(
      "Equal pieces of all windows are added up, and none of the windows may fail; into\n"
      "a folder or by a pattern each makes a list of its own.\n"
      "\n"
      "Examples:\n"
      "  lintavo parts window.aqz\n"
      "  lintavo parts kitchen.aqz hall.aqz --per-window\n"
      "  lintavo parts windows/ --format csv --scale 10 -o list.csv\n"
      "  lintavo parts windows/ --format json --rebate 1.2 -o lists/\n"
      "  lintavo fit window.aqz 180 150 -o - | lintavo parts -");
  command->callback([arguments, &console] { Parts(*arguments, console); });
}

}  // namespace lintavo::tools
