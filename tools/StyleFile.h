// Reads the settings and materials that a picture is drawn with.
#pragma once

#include <string>

#include "lintavo/drawing/Style.h"

namespace lintavo::tools {

/// Takes over the pens and sizes of a settings file; what it does not tell is drawn
/// as without it. Throws `CommandError` when it cannot be opened.
void LoadSettings(const std::string& path, drawing::Style& style);

/// Takes over the colours of a material file. Throws `CommandError` when it cannot
/// be opened.
void LoadMaterials(const std::string& path, drawing::Style& style);

}  // namespace lintavo::tools
