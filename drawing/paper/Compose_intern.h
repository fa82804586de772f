// Makes the groups of a view of what a scene shows.
#pragma once

#include <string>

#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// What decides how a scene is composed.
struct Composition {
  const Style& style;
  Language language = Language::kDeutsch;
  double scale = 1.0;  ///< millimetres on paper per unit of the window
  double pixel = 0.0;  ///< millimetres of a pixel, for the smallest text; 0: none is left out
  std::string idPrefix = {};  ///< of all ids, for pages with several windows
};

/// The whole scene as one group, whose parts are those of the window.
Group Compose(const Scene& scene, const Composition& composition);

}  // namespace lintavo::drawing
