// The commands of `lintavo`, one function each.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "lintavo/drawing/Picture.h"

namespace lintavo::tools {

/// The size of a wall opening, in the window's own units.
struct OpeningSize {
  double width = 0.0;
  double height = 0.0;
};

/// Prints what is known of a macro file's window.
void ShowCommand(const std::string& file, std::ostream& out);

/// Fits the window into the opening, prints it, and writes it when `target` is given.
void FitCommand(const std::string& file, const OpeningSize& opening, const std::string& target,
                std::ostream& out);

/// Files that tell how a picture looks; an empty name is none.
struct StyleFiles {
  std::string settings;
  std::string materials;
};

/// Draws the window, fitted into `opening` first when there is one. The options'
/// sizes are those of the settings file.
void DrawCommand(const std::string& file, const std::optional<OpeningSize>& opening,
                 const StyleFiles& styleFiles, drawing::SceneOptions options,
                 const std::string& picture, drawing::PictureFormat format);

/// Makes the window of a parameter file, prints it, and writes it when `target` is given.
void PositionCommand(const std::string& file, const std::string& baseDirectory,
                     const std::string& target, std::ostream& out);

/// Writes the blank parameter form of the window, whose type is named as its file.
void FormCommand(const std::string& file, const std::string& target);

}  // namespace lintavo::tools
