// `lintavo draw`: a picture of a window.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Text.h"

#include "Checks.h"
#include "Console.h"
#include "Numbers.h"
#include "OldFile.h"
#include "StyleFile.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct DrawOptions {
  std::string file;
  std::string picture;
  std::string size;
  std::string settings;
  std::string materials;
  bool inside = false;
  bool outside = false;
  bool noDimensions = false;
  bool noSymbols = false;
  bool hiddenLine = false;
};

std::string CheckPicture(const std::string& path) {
  drawing::PictureFormat format{};
  if (drawing::FormatFromPath(path, format)) return "";
  return "'" + path + "' does not end in .svg, .png or .pdf";
}

drawing::Style ToStyle(const DrawOptions& options) {
  drawing::Style style;
  if (!options.settings.empty()) LoadSettings(options.settings, style);
  if (!options.materials.empty()) LoadMaterials(options.materials, style);
  return style;
}

// The sizes of dimensions are the style's.
drawing::SceneOptions ToSceneOptions(const DrawOptions& options, const drawing::Style& style) {
  drawing::SceneOptions scene;
  scene.side = options.outside ? drawing::ViewSide::kOutside : drawing::ViewSide::kInside;
  scene.dimensions = !options.noDimensions;
  scene.symbols = !options.noSymbols;
  scene.hiddenLine = options.hiddenLine;
  scene.sizes = style.sizes;
  return scene;
}

void Draw(const DrawOptions& options) {
  const drawing::Style style = ToStyle(options);
  CFeApi window;
  LoadWindow(options.file, window);
  double width = 0.0;
  double height = 0.0;
  if (ParseSize(options.size, width, height)) FitWindow(options.file, width, height, window);
  drawing::PictureFormat format{};
  drawing::FormatFromPath(options.picture, format);
  const OldFile old(options.picture);
  const drawing::PictureStatus status = drawing::WritePicture(
      drawing::BuildScene(window, ToSceneOptions(options, style)), format, options.picture, style);
  if (status == drawing::PictureStatus::kOk) return;
  if (status == drawing::PictureStatus::kNotWritten) old.FailNotWritten();
  throw CommandError(drawing::ToDisplayText(options.file) + ": " + drawing::StatusText(status));
}

void AddSceneOptions(CLI::App& command, DrawOptions& options) {
  CLI::Option* inside =
      command.add_flag("--inside", options.inside, "Draw the window as seen from inside (default)");
  command
      .add_flag("--outside", options.outside, "Draw the window as seen from outside, not mirrored")
      ->excludes(inside);
  command.add_flag("--no-dims", options.noDimensions, "Leave out the dimensions");
  command.add_flag("--no-symbols", options.noSymbols, "Leave out the opening symbols");
  command.add_flag("--hidden-line", options.hiddenLine, "Draw visible edges only, nothing filled");
}

}  // namespace

void AddDraw(CLI::App& app, Console&) {
  const auto options = std::make_shared<DrawOptions>();
  CLI::App* command = app.add_subcommand("draw", "Draw the window");
  command->add_option("file", options->file, "Macro file (aqz or cqz)")->required();
  command->add_option("-o,--output", options->picture, "Picture to write: .svg, .png or .pdf")
      ->required()
      ->check(CheckPicture);
  command->add_option("--fit", options->size, "Fit into an opening first: WIDTHxHEIGHT")
      ->check(CheckSize);
  command->add_option("--settings", options->settings,
                      "Settings file: pens and the sizes of dimensions");
  command->add_option("--materials", options->materials,
                      "Material file: colours of parts, opening symbols and dimensions");
  AddSceneOptions(*command, *options);
  command->callback([options] { Draw(*options); });
}

}  // namespace lintavo::tools
