// Puts a scene onto a Cairo surface: the layout on paper and the colours.
#pragma once

#include <cairo.h>

#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

namespace lintavo::drawing {

/// Where a scene lies on paper, whose origin is the upper left corner.
struct Layout {
  double width = 0.0;   ///< of the paper, in its units
  double height = 0.0;  ///< of the paper
  double margin = 0.0;
  double scale = 0.0;  ///< paper units per unit of the window
  Box box;             ///< of the scene, in the window's units
};

/// Fits a box into paper whose longer side is `longSide`. False when the box's
/// extent is zero, or so large or small that no finite scale exists.
bool FitLayout(const Box& box, double longSide, Layout& layout);

/// Paints every shape, filled with its colour in the style or that of its kind and thinly outlined,
/// then the lines, then the texts.
void PaintScene(cairo_t* cairo, const Scene& scene, const Layout& layout, const Style& style);

}  // namespace lintavo::drawing
