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
#include "PictureOptions.h"
#include "System.h"
#include "WindowFile.h"
#include "commands/Commands.h"

namespace lintavo::tools {
namespace {

constexpr int kMostPixels = 30000;

struct DrawOptions {
  FileArguments files;
  std::string target;
  std::string format;
  std::string size;
  int pixels = 0;
  bool title = false;
  bool chains = false;
  PictureOptions common;
};

// The options in the library's form.
struct Look {
  drawing::PictureFormat format{};
  drawing::Style style;
  drawing::PlanOptions plan;
  drawing::SceneOptions scene;
};

Look ToLook(const DrawOptions& options) {
  Look look;
  look.style = ToStyle(options.common);
  look.plan = ToPlan(options.common);
  look.plan.title = options.title;
  look.plan.pixels = options.pixels;
  look.scene = ToSceneOptions(options.common, look.style, look.plan);
  look.scene.chains = options.chains;
  return look;
}

// The format that is asked for, else the one that the target's name tells. In a folder
// there are SVG files, unless told otherwise.
std::string FormatNameOf(const DrawOptions& options) {
  if (!options.format.empty()) return options.format;
  drawing::PictureFormat format{};
  if (drawing::FormatFromPath(options.target, format)) {
    return CLI::detail::to_lower(options.target.substr(options.target.size() - 3));
  }
  if (IsForSeveral(options.target) && options.target.find('{') == std::string::npos) return "svg";
  throw UsageError(
      "'" + DisplayName(options.target) +
      "' does not end in .svg, .dxf, .pdf or .png; name the format, as in '--format svg'");
}

void DrawWindow(const Source& source, const std::string& target, const DrawOptions& options,
                const Look& look) {
  CFeApi window;
  LoadWindow(source.path, options.files.section, window);
  RefuseSource(source.path, target);
  double width = 0.0;
  double height = 0.0;
  if (ParseSize(options.size, width, height)) FitWindow(source.path, width, height, window);
  std::string picture;
  const drawing::PictureStatus status = drawing::RenderPicture(
      drawing::BuildScene(window, look.scene), look.format, picture, look.style, look.plan);
  if (status != drawing::PictureStatus::kOk) Fail(source.path, drawing::StatusText(status));
  WriteBytes(target, picture);
}

void Draw(const DrawOptions& options, Console& console) {
  const std::string ending = FormatNameOf(options);
  Look look = ToLook(options);
  drawing::FormatFromPath("." + ending, look.format);
  ForEachTarget(FindWindows(options.files), options.files.quiet, console, options.target, ending,
                [&](const Source& source, const std::string& target) {
                  DrawWindow(source, target, options, look);
                });
}

}  // namespace

void AddDraw(CLI::App& app, Console& console) {
  const auto options = std::make_shared<DrawOptions>();
  CLI::App* command = app.add_subcommand("draw", "Draw windows");
  AddFiles(*command, options->files, kWindowFiles);
  AddSection(*command, options->files);
  AddTarget(
      *command, options->target,
      "Picture to write: a name ending in .svg, .dxf, .pdf or .png, a folder/, a pattern like "
      "out/{name}.png or - for standard output")
      ->required();
  command
      ->add_option(
          "--format", options->format,
          "svg, dxf, pdf or png; as the target's ending tells where not given, in a folder svg")
      ->check(CLI::IsMember({"svg", "dxf", "pdf", "png"}))
      ->type_name("FORMAT");
  command->add_option("--fit", options->size, "Fit into an opening first")
      ->check(CheckSize)
      ->type_name("WIDTHxHEIGHT");
  command->add_flag("--title", options->title, "Write name, size and opening kinds below");
  command->add_flag("--chains", options->chains,
                    "Place the dimensions in rows below and left of the drawing");
  AddPictureOptions(*command, options->common);
  command->add_option("--width", options->pixels, "Width of a PNG in pixels")
      ->check(CLI::Range(1, kMostPixels))
      ->type_name("PIXELS")
      ->excludes("--dpi");
  command->footer(
      "Examples:\n"
      "  lintavo draw window.aqz -o window.png\n"
      "  lintavo draw window.aqz -o window.svg --fit 180x150 --outside\n"
      "  lintavo draw window.aqz -o window.pdf --scale 1:20 --title --chains\n"
      "  lintavo draw windows/ -o pictures/ --format pdf --hidden-line");
  command->callback([options, &console] { Draw(*options, console); });
}

}  // namespace lintavo::tools
