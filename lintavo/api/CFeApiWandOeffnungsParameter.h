// How the opening in a wall differs from the outer outline of the frame.
#pragma once

#include "lintavo/platform/Export.h"

/// Margins between a window frame and its wall opening. Lengths are drawing
/// units, angles radians. A positive reveal makes the opening smaller than the
/// frame on that side (the wall covers the frame), a splay makes it larger.
class LINTAVO_API CFeApiWandOeffnungsParameter {
 public:
  int iSchraege1 = 0;      ///< 1: vertical edges that run upwards are splayed by `dWinkel1`
  int iSchraege2 = 0;      ///< 1: vertical edges that run downwards are splayed by `dWinkel2`
  double dWinkel1 = 0.0;   ///< splay angle of `iSchraege1`, radians
  double dWinkel2 = 0.0;   ///< splay angle of `iSchraege2`, radians
  double dLeibungA = 0.0;  ///< margin of edges that run in the negative x direction (top)
  double dLeibungB = 0.0;  ///< margin of edges that run in the positive x direction (bottom)
  double dLeibungC = 0.0;  ///< margin of vertical edges that run upwards (right), without splay
  double dLeibungD = 0.0;  ///< margin of vertical edges that run downwards (left), without splay
  double dTiefe = 0.0;     ///< depth of the reveal; a splay's margin is tan(angle) * depth

  /// Flags are compared exactly, lengths and angles by their absolute values
  /// within 1e-6. A value and its negation are equal on purpose: hosts that
  /// count a reveal from the other side must not see a changed opening.
  bool operator==(const CFeApiWandOeffnungsParameter& other) const;
  bool operator!=(const CFeApiWandOeffnungsParameter& other) const { return !(*this == other); }
};
