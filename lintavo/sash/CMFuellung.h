// What fills a sash: glass, a panel, or slats.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/platform/Export.h"

/// Kinds of fillings, the values of `CMFuellung::lArt`.
enum eFuellungsArten : int {
  eFuellungGlas = 0,      ///< glass
  eFuellungKonstant = 1,  ///< a panel of constant thickness
  eFuellungLamellen = 2   ///< horizontal slats
};

/// The filling of a sash; a plain value. Lengths are drawing units.
class LINTAVO_API CMFuellung {
 public:
  /// Fills the sash with glass / a panel of thickness `d`.
  void SetGlas(double d);
  void SetKonstant(double d);
  /// Fills the sash with slats that touch each other.
  void SetLamellen(double width, double thickness);

  bool IsGlas() const { return lArt == eFuellungGlas; }
  bool IsKonstant() const { return lArt == eFuellungKonstant; }
  bool IsLamellen() const { return lArt == eFuellungLamellen; }

  int lArt = eFuellungGlas;  ///< one of `eFuellungsArten`
  double D1 = 0.0;           ///< gap between slats
  double D2 = 0.0;           ///< width of a slat
  double D3 = 1.0;           ///< thickness of the glass, the panel or the slats
  int I1 = 2;                ///< attributes a1 to a4 of every slat
  int I2 = 2;
  int I3 = 1;
  int I4 = 1;
  double D4 = 0.0;  ///< D4 to D6 are carried and stored only
  double D5 = 0.0;
  double D6 = 0.0;
  double D7 = 0.5;       ///< shorter edges of the filling's contour are removed
  GEOM2_Polygon Umriss;  ///< working outline
};
