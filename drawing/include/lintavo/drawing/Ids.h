// The names by which pictures and exported data tell what belongs together: one id for
// every part of a window, one class and one layer for every kind of thing.
//
// All indices count from 0, as the façade's do; an id leads back to the façade's query
// without reckoning. Ids are unique within a window. They consist of lower-case ASCII
// letters, digits and hyphens and begin with a letter, as XML and CSS want them.
#pragma once

#include <string>

#include "lintavo/drawing/Export.h"
#include "lintavo/view/WindowView.h"

namespace lintavo::drawing {

/// What a shape is a part of.
enum class ShapeKind {
  kRahmenteil,         ///< part of the window's frame
  kEinzelteil,         ///< mullion or transom
  kZusatzteil,         ///< extra part around the frame: sill, trim, roller-shutter box
  kGlas,               ///< a sash's filling: glass
  kPaneel,             ///< a sash's filling: a panel of constant thickness
  kLamellen,           ///< a sash's filling: what is seen between its slats
  kLamelle,            ///< one slat
  kFluegelteil,        ///< part of a sash's frame
  kFluegelEinzelteil,  ///< single or extra part of a sash
  kSprosse,            ///< glazing bar
  kMaszPfeil           ///< arrowhead of a dimension
};

/// What a line shows.
enum class LineKind {
  kAnsicht,          ///< visible edge of the view with hidden lines removed
  kOeffnungsSymbol,  ///< line of a sash's opening symbol
  kBeschlag,         ///< line of a fitting
  kMaszLinie,        ///< line of a dimension
  kHilfsLinie        ///< extension line of a dimension
};

/// What a piece of a window is in pictures.
LINTAVO_DRAWING_API ShapeKind KindOf(const Piece& piece);

/// The id of a part: "rahmen-2", "einzelteil-0", "zusatzteil-3" (the façade's index among
/// the frame's single parts for both), "fluegel-1-rahmen-2", "fluegel-1-einzelteil-0",
/// "fluegel-1-sprosse-0", "fluegel-1-lamelle-4", and for each of the three fillings
/// "fluegel-1-fuellung". For an arrowhead, where `teil` is the dimension, that of the
/// dimension.
/// @param fluegel index of the sash; not looked at for parts of the window's frame.
/// @param teil index of the part within its kind; not looked at for fillings.
LINTAVO_DRAWING_API std::string IdOf(ShapeKind kind, long fluegel, long teil);

/// The id of one straight segment of a part, such as "rahmen-2-segment-0".
LINTAVO_DRAWING_API std::string SegmentId(ShapeKind kind, long fluegel, long teil, long segment);

/// The id of the line that runs round the window's frame.
inline constexpr const char* kUmrissId = "umriss";

/// "fluegel-1": a sash with all that belongs to it.
LINTAVO_DRAWING_API std::string FluegelId(long fluegel);

/// "fluegel-1-symbol": a sash's opening symbol.
LINTAVO_DRAWING_API std::string SymbolId(long fluegel);

/// "fluegel-1-beschlag-0": a fitting.
LINTAVO_DRAWING_API std::string BeschlagId(long fluegel, long beschlag);

/// "masz-0": a dimension.
LINTAVO_DRAWING_API std::string MaszId(long masz);

/// The class of a kind of shapes, such as "rahmenteil". The text is static.
LINTAVO_DRAWING_API const char* ClassOf(ShapeKind kind);

/// The class of a kind of lines, such as "maszlinie". The text is static.
LINTAVO_DRAWING_API const char* ClassOf(LineKind kind);

/// The layer of a kind of shapes in a CAD file, such as "RAHMEN". The text is static.
LINTAVO_DRAWING_API const char* LayerOf(ShapeKind kind);

/// The layer of a kind of lines in a CAD file, such as "BEMASSUNG". The text is static.
LINTAVO_DRAWING_API const char* LayerOf(LineKind kind);

}  // namespace lintavo::drawing
