// One corner of an offset: where the shifted edges beside it meet, or where the mitre
// limit cuts it.
#pragma once

#include <optional>

#include "lintavo/geom/XY.h"

namespace lintavo {

/// A reentrant corner whose shifted edges meet farther from it than this many times the
/// larger distance is cut. Convex corners have no limit.
inline constexpr double kGehrungsgrenze = 3.0;

/// How far an edge moves when it is shifted by d to its right; nothing without length.
std::optional<XY> Versatz(const XY& a, const XY& b, double d);

/// A corner of the source between the edges davor->ecke and ecke->danach.
struct Quellecke {
  XY davor;
  XY ecke;
  XY danach;
};

/// Where the two edges meet that are shifted by vEin and vAus; false when they are
/// parallel or one has no length.
bool EckeVerschieben(const Quellecke& quelle, const std::optional<XY>& vEin,
                     const std::optional<XY>& vAus, XY& neu);

/// A cut from the shifted incoming edge to the shifted outgoing one.
struct Kappung {
  XY anfang;
  XY ende;
  XY start;  ///< where the cut's line runs before anything has moved
};

/// The cut of a reentrant corner beyond the mitre limit, nothing within it. Where the
/// edges enclose a needle it is cut square to its bisector at the larger depth; where
/// they hardly turn, but move by different depths, the cut runs along the bisector, as
/// between two boards of different widths:
///
///      \ \   / /
///       \ \ / /               ____________________  edges
///        \ v /
///         \_/                 ________ ___________
///       needle                        |___________  step
///
/// @param neu      where the shifted edges meet.
/// @param tiefeEin, tiefeAus  how deep the edges move into the outline.
/// @param umlauf   +1 for a counter-clockwise outline, -1 for a clockwise one.
std::optional<Kappung> EckeKappen(const Quellecke& quelle, const XY& neu, double tiefeEin,
                                  double tiefeAus, int umlauf);

}  // namespace lintavo
