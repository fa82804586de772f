// How a picture stands on paper: scale, language, title, resolution.
#pragma once

#include "lintavo/drawing/Export.h"

namespace lintavo::drawing {

/// What one unit of a window's numbers is.
enum class LengthUnit { kMillimetre, kCentimetre, kMetre };

/// The language of the words in a picture. In German ones the decimal mark is a comma.
enum class Language { kDeutsch, kEnglish };

/// How a picture stands on paper. A new one fits the window into a picture of usual size.
struct PlanOptions {
  /// 20 draws true to a scale of 1:20, on paper as large as that asks for; 0 fits.
  double scale = 0.0;
  LengthUnit unit = LengthUnit::kCentimetre;
  Language language = Language::kDeutsch;
  /// Writes the window's name, size, scale and opening kinds below it.
  bool title = false;
  /// Width of a PNG in pixels; 0 leaves that to `dpi`.
  int pixels = 0;
  /// Pixels per inch of a PNG; 0 is 150 of a picture to scale, and 1600 pixels on the longer
  /// side of any other.
  double dpi = 0.0;
};

/// How many of a window's units are one millimetre on paper: what `SceneOptions::millimetre`
/// wants for a picture to scale. 0 without a scale.
LINTAVO_DRAWING_API double UnitsPerMillimetre(const PlanOptions& plan);

}  // namespace lintavo::drawing
