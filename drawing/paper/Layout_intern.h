// Puts one scene onto a page of its own.
#pragma once

#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// A page as large as the scene asks for. Not `kOk` for a scene without anything to draw or
/// without a finite extent, and when the page would be too large.
PictureStatus LayOut(const Scene& scene, const Style& style, const PlanOptions& plan, Page& page);

/// Millimetres on paper per unit of the window at a scale.
double MillimetresPerUnit(double scale, LengthUnit unit);

}  // namespace lintavo::drawing
