// The straight piece of a bar along one axis.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "lintavo/geom/GEOM2_Achse.h"
#include "lintavo/geom/XY.h"

namespace lintavo {

/// How far a section reaches to the right (negative) and to the left of its axis.
struct SectionReach {
  double right = 0.0;
  double left = 0.0;
};

/// The corners of a piece, in the order of its outline.
///
///   p4 (left start)  ----------------  p3 (left end)
///                     axis ->
///   p1 (right start) ----------------  p2 (right end)
struct SegmentCorners {
  XY p1;
  XY p2;
  XY p3;
  XY p4;
  XY direction;  ///< of the axis, with length 1
};

/// Up to four places.
struct LeftCorners {
  std::array<XY, 4> places;
  std::size_t count = 0;

  void Add(const XY& p) { places[count++] = p; }
  std::span<const XY> All() const { return {places.data(), count}; }
};

/// The corners along an axis whose ends are cut by its cut angles.
SegmentCorners CornersOf(const GEOM2_Achse& axis, const SectionReach& reach);

/// The left side from its start to its end. A mitre that would be a needle ends before it.
LeftCorners LeftCornersOf(const GEOM2_Achse& axis, const SectionReach& reach);

/// Whether a mitre ends before the left side.
bool IsTrimmed(const GEOM2_Achse& axis);

/// The one place to which both cuts of an axis lead whose left side has vanished.
XY VanishedSideOf(const GEOM2_Achse& axis);

}  // namespace lintavo
