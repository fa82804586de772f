// What the commands that draw have in common on the command line.
#pragma once

#include <string>

#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

namespace CLI {
class App;
}

namespace lintavo::tools {

/// How windows are drawn, in the words of the command line.
struct PictureOptions {
  std::string settings;
  std::string materials;
  std::string scale;
  std::string unit;
  std::string language;
  double dpi = 0.0;
  bool inside = false;
  bool outside = false;
  bool noDimensions = false;
  bool noSymbols = false;
  bool hiddenLine = false;
};

/// Adds the options to a command, which must end before they do.
void AddPictureOptions(CLI::App& command, PictureOptions& options);

/// Throws `CommandError` when a settings or material file cannot be read.
drawing::Style ToStyle(const PictureOptions& options);

/// Scale, unit, language and resolution.
drawing::PlanOptions ToPlan(const PictureOptions& options);

/// What is shown; the sizes of dimensions are the style's, and the plan's where that names a
/// scale.
drawing::SceneOptions ToSceneOptions(const PictureOptions& options, const drawing::Style& style,
                                     const drawing::PlanOptions& plan);

}  // namespace lintavo::tools
