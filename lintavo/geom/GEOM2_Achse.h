// The directed centre line on which a component is laid.
#pragma once

#include "lintavo/geom/XY.h"

/// A plain, copyable axis: its end point is Start + dLaenge * (cos, sin)(dWinkel)
/// and is not stored. All angles are in degrees.
///
/// A cut angle says by how much the end cut leans from the perpendicular of the
/// axis; it is positive when the cut's left part lies further along the axis:
///
///       start cut 0      end cut 45
///        |                      /
///        +---------------------+--->  axis
///        |                    /
struct GEOM2_Achse {
  XY Start;
  double dLaenge = 0.0;
  double dWinkel = 0.0;        ///< direction, from +x counter-clockwise, -180 to 180
  double dWinkelAnfang = 0.0;  ///< lean of the cut at the start
  double dWinkelEnde = 0.0;    ///< lean of the cut at the end

  /// @name The left side of a frame part, where the frame's inner contour has other corners
  /// @{
  /// How deep to the left each cut goes; 0 through the whole section. The mitre of a needle
  /// corner ends before: from there the outline leads to the left side, which starts
  /// dWegAnfang after the axis' start and ends dWegEnde after its end.
  double dTiefeAnfang = 0.0;
  double dTiefeEnde = 0.0;
  double dWegAnfang = 0.0;
  double dWegEnde = 0.0;
  /// False where the left side has vanished: both cuts lead to one place.
  bool bLinkeSeite = true;
  /// @}
};
