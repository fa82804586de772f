// The vertex records of a polygon.
#pragma once

/// One vertex of a polygon. The kernel carries the values and the attribute with
/// their vertex and never interprets them.
struct GEOM2_Eckpunkt {
  double x = 0.0;
  double y = 0.0;
  double dWert1 = 0.0;  ///< first further value
  double dWert2 = 0.0;  ///< second further value
  int Attribut = 0;     ///< attribute of the edge that starts at this vertex
};

/// A vertex with its first further value only.
struct GEOM2_Punkt {
  double x = 0.0;
  double y = 0.0;
  double dWert1 = 0.0;
};
