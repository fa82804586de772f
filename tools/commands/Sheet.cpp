// `lintavo sheet`: a schedule of many windows on pages of paper.
#include "lintavo/drawing/Sheet.h"

#include <CLI/CLI.hpp>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "lintavo/api/CFeApi.h"

#include "Arguments.h"
#include "Console.h"
#include "PictureOptions.h"
#include "System.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct SheetArguments {
  FileArguments files;
  std::string target;
  std::string page = "a4";
  std::string title;
  bool landscape = false;
  bool filePlaces = false;
  PictureOptions common;
};

std::string CheckSheet(const std::string& path) {
  drawing::PictureFormat format{};
  if (drawing::FormatFromPath(path, format)) return "";
  return "'" + path + "' does not end in .pdf, .svg, .png or .dxf";
}

drawing::PageSize PageSizeOf(const std::string& page) {
  if (page == "a3") return drawing::PageSize::kA3;
  return page == "a2" ? drawing::PageSize::kA2 : drawing::PageSize::kA4;
}

drawing::SheetOptions ToOptions(const SheetArguments& arguments, const drawing::Style& style) {
  drawing::SheetOptions options;
  options.size = PageSizeOf(arguments.page);
  options.landscape = arguments.landscape;
  options.title = arguments.title;
  options.plan = ToPlan(arguments.common);
  options.scene = ToSceneOptions(arguments.common, style, options.plan);
  options.scene.chains = !arguments.filePlaces;
  return options;
}

// The windows of a sheet, and what stands in the places of those that cannot be read.
struct Windows {
  std::vector<std::unique_ptr<CFeApi>> windows;
  std::vector<drawing::SheetEntry> entries;
};

void Read(const Source& source, const std::string& section, Console& console, Windows& windows) {
  auto window = std::make_unique<CFeApi>();
  drawing::SheetEntry entry;
  entry.name = source.name;
  try {
    LoadWindow(source.path, section, *window);
    entry.window = window.get();
    windows.windows.push_back(std::move(window));
  } catch (const CommandError& error) {
    entry.message = error.what();
    console.ReportFailure(error.what());
  }
  windows.entries.push_back(std::move(entry));
}

// "plan.svg" for one page, "plan-1.svg" and so on for several.
std::string PathOf(const std::string& target, std::size_t page, std::size_t count) {
  if (count == 1) return target;
  const std::size_t dot = target.find_last_of('.');
  return target.substr(0, dot) + '-' + std::to_string(page + 1) + target.substr(dot);
}

void MakeSheet(const SheetArguments& arguments, Console& console) {
  const drawing::Style style = ToStyle(arguments.common);
  const std::vector<Source> sources = FindWindows(arguments.files);
  Windows windows;
  for (const Source& source : sources) Read(source, arguments.files.section, console, windows);
  drawing::PictureFormat format{};
  drawing::FormatFromPath(arguments.target, format);
  drawing::Sheet sheet;
  const drawing::PictureStatus status =
      drawing::RenderSheet(windows.entries, format, sheet, ToOptions(arguments, style), style);
  if (status != drawing::PictureStatus::kOk) Fail(arguments.target, drawing::StatusText(status));
  for (std::size_t i = 0; i < sheet.entries.size(); ++i) {
    if (sheet.entries[i] == drawing::PictureStatus::kOk) continue;
    console.ReportFailure(DisplayName(sources[i].path) + ": " +
                          drawing::StatusText(sheet.entries[i]));
  }
  for (std::size_t i = 0; i < sheet.files.size(); ++i) {
    const std::string path = PathOf(arguments.target, i, sheet.files.size());
    for (const Source& source : sources) RefuseSource(source.path, path);
    WriteBytes(path, sheet.files[i]);
  }
}

}  // namespace

void AddSheet(CLI::App& app, Console& console) {
  const auto arguments = std::make_shared<SheetArguments>();
  CLI::App* command = app.add_subcommand("sheet", "Draw many windows on pages, to scale");
  AddFiles(*command, arguments->files, kWindowFiles);
  AddSection(*command, arguments->files);
  command
      ->add_option("-o,--output", arguments->target,
                   "File to write: .pdf with all pages, or .svg,\n.png or .dxf; several pages are "
                   "then several\nfiles, plan-1.svg and so on")
      ->required()
      ->check(CheckSheet)
      ->type_name("FILE");
  command->add_option("--page", arguments->page, "Paper: a3, a2 or, where not given, a4")
      ->check(CLI::IsMember({"a4", "a3", "a2"}, CLI::ignore_case))
      ->type_name("SIZE");
  command->add_flag("--landscape", arguments->landscape, "Pages whose longer side lies across");
  command->add_option("--title", arguments->title, "Title of the pages")->type_name("TEXT");
  command->add_flag("--dims-as-filed", arguments->filePlaces,
                    "Dimensions where the windows' files put them,\nnot in rows");
  AddPictureOptions(*command, arguments->common);
  command->footer(
      "All windows share one scale, which is chosen where --scale does not tell.\n"
      "A window that cannot be read keeps its place, with the reason.\n"
      "\n"
      "Examples:\n"
      "  lintavo sheet windows/ -o windows.pdf\n"
      "  lintavo sheet a.aqz b.aqz -o plan.svg --page a3 --landscape --scale 1:20");
  command->callback([arguments, &console] { MakeSheet(*arguments, console); });
}

}  // namespace lintavo::tools
