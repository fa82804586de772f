// What the commands that draw have in common on the command line.
#include "PictureOptions.h"

#include <CLI/CLI.hpp>
#include <string_view>

#include "Checks.h"
#include "Numbers.h"
#include "StyleFile.h"

namespace lintavo::tools {
namespace {

constexpr double kLargestScale = 1e6;
constexpr double kLargestDpi = 2400.0;

// The denominator of "1:20" or "20".
bool ParseScale(std::string_view text, double& scale) {
  constexpr std::string_view kOne = "1:";
  if (text.substr(0, kOne.size()) == kOne) text.remove_prefix(kOne.size());
  return ParseLength(text, scale) && scale <= kLargestScale;
}

std::string CheckScale(const std::string& text) {
  double scale = 0.0;
  return ParseScale(text, scale) ? "" : "'" + text + "' is no scale like 1:20";
}

void AddPaperOptions(CLI::App& command, PictureOptions& options) {
  command.add_option("--scale", options.scale, "True to scale")
      ->check(CheckScale)
      ->type_name("1:N");
  command
      .add_option("--unit", options.unit,
                  "What one unit of a window is: mm, m or, where not given, cm")
      ->check(CLI::IsMember({"mm", "cm", "m"}))
      ->type_name("UNIT");
  command
      .add_option("--lang", options.language, "Language of the words: en or, where not given, de")
      ->check(CLI::IsMember({"de", "en"}))
      ->type_name("LANG");
  command.add_option("--dpi", options.dpi, "Pixels per inch of a PNG")
      ->check(CheckNumber)  // a range alone lets what is no number pass
      ->check(CLI::Range(1.0, kLargestDpi))
      ->type_name("NUMBER");
}

}  // namespace

void AddPictureOptions(CLI::App& command, PictureOptions& options) {
  CLI::Option* inside =
      command.add_flag("--inside", options.inside, "Draw the window as seen from inside (default)");
  command
      .add_flag("--outside", options.outside, "Draw the window as seen from outside, not mirrored")
      ->excludes(inside);
  command.add_flag("--no-dims", options.noDimensions, "Leave out the dimensions");
  command.add_flag("--no-symbols", options.noSymbols, "Leave out the opening symbols");
  command.add_flag("--hidden-line", options.hiddenLine, "Draw visible edges only, nothing filled");
  command
      .add_option("--settings", options.settings, "Settings file: pens and the sizes of dimensions")
      ->type_name("FILE");
  command
      .add_option("--materials", options.materials,
                  "Material file: colours of parts, opening symbols and dimensions")
      ->type_name("FILE");
  AddPaperOptions(command, options);
}

drawing::Style ToStyle(const PictureOptions& options) {
  drawing::Style style;
  if (!options.settings.empty()) LoadSettings(options.settings, style);
  if (!options.materials.empty()) LoadMaterials(options.materials, style);
  return style;
}

drawing::PlanOptions ToPlan(const PictureOptions& options) {
  drawing::PlanOptions plan;
  ParseScale(options.scale, plan.scale);
  if (options.unit == "mm") plan.unit = drawing::LengthUnit::kMillimetre;
  if (options.unit == "m") plan.unit = drawing::LengthUnit::kMetre;
  if (options.language == "en") plan.language = drawing::Language::kEnglish;
  plan.dpi = options.dpi;
  return plan;
}

drawing::SceneOptions ToSceneOptions(const PictureOptions& options, const drawing::Style& style,
                                     const drawing::PlanOptions& plan) {
  drawing::SceneOptions scene;
  scene.side = options.outside ? drawing::ViewSide::kOutside : drawing::ViewSide::kInside;
  scene.dimensions = !options.noDimensions;
  scene.symbols = !options.noSymbols;
  scene.hiddenLine = options.hiddenLine;
  scene.sizes = style.sizes;
  scene.millimetre = drawing::UnitsPerMillimetre(plan);
  return scene;
}

}  // namespace lintavo::tools
