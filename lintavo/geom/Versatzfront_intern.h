// The ring of shifted edges of an outline that is not convex, followed from the outline
// to its place: sides vanish in the order in which they do while all distances grow
// together. Which one goes first matters where the distances differ.
#pragma once

#include <span>

#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// A side before it moved and where it arrives.
struct Frontseite {
  Kettenseite quelle;  ///< starts at the outline's corner
  Kettenseite ziel;
};

/// Drops the vanished sides of an outline and joins their neighbours; where these run
/// along each other, what lies between them has collapsed and the shorter one goes too.
/// A side between neighbours that run the same way side by side stays, though turned
/// round: it is a step that now falls the other way. In time n log n.
///
/// @param seiten  in order.
/// @param ecken   ecken[i] is where side i starts once it has arrived.
/// @param weite   the largest distance, for what is far.
GeschlosseneKette FrontVerfolgen(const Liste<Frontseite>& seiten, std::span<const XY> ecken,
                                 double weite);

}  // namespace lintavo
