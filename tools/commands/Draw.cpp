// `lintavo draw`: a picture of a window.
#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Text.h"

#include "Arguments.h"
#include "Batch.h"
#include "Checks.h"
#include "Numbers.h"
#include "StyleFile.h"
#include "System.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

struct DrawOptions {
  FileArguments files;
  std::string target;
  std::string format;
  std::string size;
  std::string settings;
  std::string materials;
  bool inside = false;
  bool outside = false;
  bool noDimensions = false;
  bool noSymbols = false;
  bool hiddenLine = false;
};

// The format that is asked for, else the one that the target's name tells. In a folder
// there are SVG files, unless told otherwise.
std::string FormatNameOf(const DrawOptions& options) {
  if (!options.format.empty()) return options.format;
  drawing::PictureFormat format{};
  if (drawing::FormatFromPath(options.target, format)) {
    return CLI::detail::to_lower(options.target.substr(options.target.size() - 3));
  }
  if (IsForSeveral(options.target) && options.target.find('{') == std::string::npos) return "svg";
  throw UsageError("'" + DisplayName(options.target) +
                   "' does not end in .svg, .png or .pdf; name the format, as in '--format svg'");
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

void DrawWindow(const Source& source, const std::string& target, const DrawOptions& options,
                const drawing::Style& style, drawing::PictureFormat format) {
  CFeApi window;
  LoadWindow(source.path, window);
  RefuseSource(source.path, target);
  double width = 0.0;
  double height = 0.0;
  if (ParseSize(options.size, width, height)) FitWindow(source.path, width, height, window);
  std::string picture;
  const drawing::PictureStatus status = drawing::RenderPicture(
      drawing::BuildScene(window, ToSceneOptions(options, style)), format, picture, style);
  if (status != drawing::PictureStatus::kOk) Fail(source.path, drawing::StatusText(status));
  WriteBytes(target, picture);
}

void Draw(const DrawOptions& options, Console& console) {
  const std::string ending = FormatNameOf(options);
  drawing::PictureFormat format{};
  drawing::FormatFromPath("." + ending, format);
  const drawing::Style style = ToStyle(options);
  ForEachTarget(FindWindows(options.files), options.files.quiet, console, options.target, ending,
                [&](const Source& source, const std::string& target) {
                  DrawWindow(source, target, options, style, format);
                });
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

void AddDraw(CLI::App& app, Console& console) {
  const auto options = std::make_shared<DrawOptions>();
  CLI::App* command = app.add_subcommand("draw", "Draw windows");
  AddFiles(*command, options->files, kWindowFiles);
  AddTarget(*command, options->target,
            "Picture to write: a name ending in .svg,\n.png or .pdf, a folder/, a pattern like\n"
            "out/{name}.png or - for standard output")
      ->required();
  command
      ->add_option(
          "--format", options->format,
          "svg, png or pdf; as the target's ending\ntells where not given, in a folder svg")
      ->check(CLI::IsMember({"svg", "png", "pdf"}))
      ->type_name("FORMAT");
  command->add_option("--fit", options->size, "Fit into an opening first")
      ->check(CheckSize)
      ->type_name("WIDTHxHEIGHT");
  command
      ->add_option("--settings", options->settings,
                   "Settings file: pens and the sizes of\ndimensions")
      ->type_name("FILE");
  command
      ->add_option("--materials", options->materials,
                   "Material file: colours of parts, opening\nsymbols and dimensions")
      ->type_name("FILE");
  AddSceneOptions(*command, *options);
  command->footer(
      "Examples:\n"
      "  lintavo draw window.aqz -o window.png\n"
      "  lintavo draw window.aqz -o window.svg --fit 180x150 --outside\n"
      "  lintavo draw windows/ -o pictures/ --format pdf --hidden-line");
  command->callback([options, &console] { Draw(*options, console); });
}

}  // namespace lintavo::tools
