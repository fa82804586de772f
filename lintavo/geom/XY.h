// A point of the plane, in drawing units; y points up.
#pragma once

/// A plain, copyable point.
struct XY {
  double x = 0.0;
  double y = 0.0;
};
