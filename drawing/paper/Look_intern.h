// Colours and pens of what a picture shows.
#pragma once

#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

Colour FillOf(const Shape& shape, const Style& style);

/// The pen of a shape's outline; one of width 0 for arrowheads.
Pen PenOf(const Shape& shape, const Style& style);

Pen PenOf(const Line& line, const Style& style);

/// The colour of handles and hinges.
Colour FittingFill();

/// The pen that follows the outline of the window's frame.
Pen UmrissPen(const Style& style);

Pen HatchingPen(const Style& style);

/// The colour of a dimension's text.
Colour ColourOf(const Text& text, const Style& style);

/// The colour of titles and captions.
Colour CaptionColour();

/// The pen of lines between captions.
Pen RulePen();

}  // namespace lintavo::drawing
