// How a picture looks: colours, pens and the sizes of dimensions. Plain data; the
// settings and materials of a host fill it.
#pragma once

#include <vector>

#include "lintavo/drawing/Export.h"

class CAcFeInis;

namespace lintavo::drawing {

/// A colour of three shares, each 0 to 1.
struct Colour {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
};

/// The colours of a kind of things by their attribute numbers: number 1 is the first.
/// A number that the list does not have is drawn in the usual colour.
using Palette = std::vector<Colour>;

/// The widths of lines, as shares of the usual ones; a line of width 0 is not drawn.
struct Pens {
  double rahmen = 1.0;  ///< edges of all parts but bars, and fittings
  double symbole = 1.0;
  double sprossen = 1.0;
  double masze = 1.0;  ///< dimension and extension lines
};

/// The sizes of dimensions. A length that is not above zero is the one that suits the
/// window; one above the window's longer side is cut to it.
struct MeasureSizes {
  /// The lengths are pixels of a picture whose longer side has 1600, else in the
  /// window's units.
  bool pixel = false;
  double textHeight = 0.0;       ///< of a digit
  double extensionLength = 0.0;  ///< of extension lines, which go on to the window
  double arrowLength = 0.0;      ///< along the dimension line
  double arrowWidth = 0.0;
  /// Stretches the distance of dimension lines from the window, and so from each
  /// other; not above zero counts as 1.
  double lineFactor = 1.0;
  /// Lower texts are not drawn; in pixels of a picture whose longer side has 1600.
  double smallestText = 0.0;
};

/// How a picture looks. A new one is the default look.
struct Style {
  Palette bauteile;  ///< parts and fillings
  Palette symbole;   ///< 1: of sashes that open inwards, 2: outwards
  Palette masze;     ///< 1: lines and arrowheads, 2: texts
  Pens pens;
  MeasureSizes sizes;
};

/// Takes over the pens and sizes of a host's settings. A pen outside 0 to 100 counts as
/// 1. The width of characters is not used: letters keep their proportions.
LINTAVO_DRAWING_API void UseSettings(const CAcFeInis& settings, Style& style);

/// Takes over the colours for plane drawings of a host's materials.
LINTAVO_DRAWING_API void UseMaterials(const CAcFeInis& settings, Style& style);

}  // namespace lintavo::drawing
