// The `lintavo` command: its words, its help and its exit statuses.
//
// 0: done. 1: the command cannot be carried out, one line on standard error
// says why. 2: it was called in a wrong way.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>
#include <optional>
#include <string>

#include "lintavo/api/CFeApi.h"

#include "Commands.h"
#include "Numbers.h"

namespace {

using namespace lintavo::tools;

constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;

/// What the command line says, as text that has passed its checks.
struct Arguments {
  std::string file;
  std::string width;
  std::string height;
  std::string size;
  std::string target;
  std::string base;
  StyleFiles styleFiles;
  bool inside = false;
  bool outside = false;
  bool noDimensions = false;
  bool noSymbols = false;
  bool hiddenLine = false;
};

std::string CheckLength(const std::string& text) {
  double length = 0.0;
  return ParseLength(text, length) ? "" : "'" + text + "' is no length greater than zero";
}

std::string CheckSize(const std::string& text) {
  double width = 0.0;
  double height = 0.0;
  return ParseSize(text, width, height) ? "" : "'" + text + "' is no size like 1800x1500";
}

std::string CheckPicture(const std::string& path) {
  lintavo::drawing::PictureFormat format{};
  if (lintavo::drawing::FormatFromPath(path, format)) return "";
  return "'" + path + "' does not end in .svg, .png or .pdf";
}

// A plain macro file under a compressed one's name could not be read again.
std::string CheckTarget(const std::string& path) {
  if (CFeApi::IsFileCompressed(path.c_str()) != 1) return "";
  return "'" + path + "': compressed files are only read; choose a name ending in aqz";
}

void AddShow(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("show", "Print name, size, frame, sashes and dimensions");
  command->add_option("file", arguments.file, "Macro file (aqz or cqz)")->required();
  command->callback([&arguments] { ShowCommand(arguments.file, std::cout); });
}

void AddFit(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("fit", "Fit the window into a wall opening");
  command->add_option("file", arguments.file, "Macro file (aqz or cqz)")->required();
  command->add_option("width", arguments.width, "Width of the opening")
      ->required()
      ->check(CheckLength);
  command->add_option("height", arguments.height, "Height of the opening")
      ->required()
      ->check(CheckLength);
  command->add_option("-o,--output", arguments.target, "Macro file (aqz) to write")
      ->check(CheckTarget);
  command->callback([&arguments] {
    OpeningSize opening;
    ParseLength(arguments.width, opening.width);
    ParseLength(arguments.height, opening.height);
    FitCommand(arguments.file, opening, arguments.target, std::cout);
  });
}

void AddSceneOptions(CLI::App& command, Arguments& arguments) {
  CLI::Option* inside = command.add_flag("--inside", arguments.inside,
                                         "Draw the window as seen from inside (default)");
  command
      .add_flag("--outside", arguments.outside,
                "Draw the window as seen from outside, not mirrored")
      ->excludes(inside);
  command.add_flag("--no-dims", arguments.noDimensions, "Leave out the dimensions");
  command.add_flag("--no-symbols", arguments.noSymbols, "Leave out the opening symbols");
  command.add_flag("--hidden-line", arguments.hiddenLine,
                   "Draw visible edges only, nothing filled");
}

lintavo::drawing::SceneOptions ToSceneOptions(const Arguments& arguments) {
  using lintavo::drawing::ViewSide;
  lintavo::drawing::SceneOptions options;
  options.side = arguments.outside ? ViewSide::kOutside : ViewSide::kInside;
  options.dimensions = !arguments.noDimensions;
  options.symbols = !arguments.noSymbols;
  options.hiddenLine = arguments.hiddenLine;
  return options;
}

void AddDraw(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("draw", "Draw the window");
  command->add_option("file", arguments.file, "Macro file (aqz or cqz)")->required();
  command->add_option("-o,--output", arguments.target, "Picture to write: .svg, .png or .pdf")
      ->required()
      ->check(CheckPicture);
  command->add_option("--fit", arguments.size, "Fit into an opening first: WIDTHxHEIGHT")
      ->check(CheckSize);
  command->add_option("--settings", arguments.styleFiles.settings,
                      "Settings file: pens and the sizes of dimensions");
  command->add_option("--materials", arguments.styleFiles.materials,
                      "Material file: colours of parts, opening symbols and dimensions");
  AddSceneOptions(*command, arguments);
  command->callback([&arguments] {
    std::optional<OpeningSize> opening;
    if (!arguments.size.empty()) {
      opening.emplace();
      ParseSize(arguments.size, opening->width, opening->height);
    }
    lintavo::drawing::PictureFormat format{};
    lintavo::drawing::FormatFromPath(arguments.target, format);
    DrawCommand(arguments.file, opening, arguments.styleFiles, ToSceneOptions(arguments),
                arguments.target, format);
  });
}

void AddPosition(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("position", "Make the window of a parameter file");
  command->add_option("file", arguments.file, "Parameter file")->required();
  command
      ->add_option("--base", arguments.base,
                   "Folder with the types in Fenster and the patterns in Sprossen")
      ->required();
  command->add_option("-o,--output", arguments.target, "Macro file (aqz) to write")
      ->check(CheckTarget);
  command->callback([&arguments] {
    PositionCommand(arguments.file, arguments.base, arguments.target, std::cout);
  });
}

void AddForm(CLI::App& app, Arguments& arguments) {
  CLI::App* command = app.add_subcommand("form", "Write the window's blank parameter form");
  command->add_option("file", arguments.file, "Macro file (aqz, cqz or a type's ini)")->required();
  command->add_option("-o,--output", arguments.target, "Parameter file to write")->required();
  command->callback([&arguments] { FormCommand(arguments.file, arguments.target); });
}

int Run(int argc, char** argv) {
  CLI::App app("Reads, fits and draws parametric windows. Lengths are in the window's own units.",
               "lintavo");
  app.set_version_flag("--version", std::string("lintavo ") + LINTAVO_VERSION);
  app.require_subcommand(1);
  Arguments arguments;
  AddShow(app, arguments);
  AddFit(app, arguments);
  AddDraw(app, arguments);
  AddPosition(app, arguments);
  AddForm(app, arguments);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (app.exit(error) != 0) return kWrongUsage;
  }
  std::cout.flush();
  if (std::cout) return 0;
  std::fputs("lintavo: standard output cannot be written\n", stderr);
  return kFailure;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::fputs("lintavo: out of memory\n", stderr);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lintavo: %s\n", error.what());
  } catch (...) {
    std::fputs("lintavo: unexpected error\n", stderr);
  }
  return kFailure;
}
