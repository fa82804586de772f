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

/// Draws the window, fitted into `opening` first when there is one.
void DrawCommand(const std::string& file, const std::optional<OpeningSize>& opening,
                 const drawing::SceneOptions& options, const std::string& picture,
                 drawing::PictureFormat format);

}  // namespace lintavo::tools
