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
};
