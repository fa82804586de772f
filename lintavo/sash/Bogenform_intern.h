// The construction that arches and half arches share: an arch over a whole
// span, cut to the strip of one sash.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/sash/Grundform_intern.h"

namespace lintavo {

/// An arch over a sash and what it reaches beyond it on both sides.
///
///      .-'''-.        ymax
///    /   |   | \      springing line, dStich below ymax
///   |    |   |  |
///   |____|___|__|     ymin, with dStichUnten likewise
///    links   rechts
struct Bogenform {
  PlazierungsBox Box;
  Ueberstand Rand;
  double dStich = 0.0;       ///< rise at the top
  double dStichUnten = 0.0;  ///< rise at the bottom
  bool bKorbbogen = false;   ///< half ellipses instead of circular segments

  double LinkesEnde() const { return Box.xmin - Rand.links; }
  double Spanne() const { return Box.Breite() + Rand.links + Rand.rechts; }
};

/// Bounds both rises by the sash's height and half the span. Rises up to 1e-6
/// stay as they are and count as none.
void BegrenzeStiche(Bogenform& form);

/// Writes the bounded rises back to those that were given, both or none: none where all
/// that differs is what a file has rounded. With `obenHoechstens` a top rise that was
/// lowered stays as it was given.
void MerkeStiche(const Bogenform& form, bool obenHoechstens, double& dStich, double& dStichUnten);

/// Builds the sash's piece of the arch, counter-clockwise, in an empty outline.
/// The rises must have been bounded. Throws 22 when a vertex is not finite.
void BaueBogen(const Bogenform& form, GEOM2_Polygon& outline);

}  // namespace lintavo
