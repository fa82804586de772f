// What the pieces of a window are on a list, and their ids in pictures.
#pragma once

#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/view/WindowView.h"

namespace lintavo::tools {

/// What stands on a list; lists are in this order.
enum class TeilArt {
  kRahmen,
  kFluegelrahmen,
  kPfosten,  ///< rather upright than level
  kRiegel,
  kZusatzInnen,
  kZusatzAussen,
  kSprosse,
  kLamelle,
  kGlas,
  kPaneel,
  kGriff,
  kBand,
  kBeschlag  ///< fitting that is neither handle nor hinge
};

/// What a piece that is not the ground of slats, and a fitting, is on a list.
TeilArt ArtVon(const Piece& piece);
TeilArt ArtVon(const Fitting& fitting);

/// The id of a piece in pictures.
std::string IdVon(const Piece& piece);

/// The view of a calculated window; empty where its calculation failed.
WindowView ViewOf(const CFeApi& window);

}  // namespace lintavo::tools
