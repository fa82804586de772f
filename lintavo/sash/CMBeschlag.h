// A fitting and where it sits on its frame part.
#pragma once

#include <vector>

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

class CMFensterSatz;
class CMStrecke;

/// Kinds of fittings. A handle has no second measure.
enum eBeschlagTypen : int { eBeschlagGriff = 0, eBeschlagBand = 1 };

/// How a distance is given: in drawing units, or (any other value) in percent.
enum eVermaszung : int { eVermaszungAbsolut = 0, eVermaszungProzent = 1 };

/// A fitting of a sash; a plain value. The first distance runs along the
/// carrying frame part, from the start of its first axis, the second across it,
/// from its outer edge inwards.
class LINTAVO_API CMBeschlag {
 public:
  /// Where the fitting sits, and the direction of its frame part there in
  /// degrees.
  ///
  /// A distance beyond the part's length or width, or beyond 100 percent, is
  /// brought back to that bound, and the fitting keeps the bound.
  ///
  /// @return false, with `p` and `angle` untouched, for a null sash, for a frame
  ///         part that is not there, and when the point is not finite.
  bool GetPunkt(const CMFensterSatz* sash, XY& p, double& angle);
  bool GetPunkt(const CMFensterSatz* sash, XY& p);

  /// Appends the fitting's drawing at a point, turned by an angle in degrees:
  /// along the direction of the angle a handle is a rosette with a lever that
  /// reaches 12 units from the point, a hinge a barrel of 8 units in three
  /// knuckles around it, and any other fitting a cross. A handle whose lever would
  /// point upwards (the sine of the angle is positive) is turned by another 180
  /// degrees: levers hang. Colour and priority are 0. Nothing when the point or
  /// the angle is not finite.
  void GetZeichnung(std::vector<CMStrecke>& lines, const XY& p, double angle) const;

  eBeschlagTypen eTyp = eBeschlagGriff;
  int lBauteil = 0;  ///< number of the frame part that carries the fitting
  eVermaszung eMasz1 = eVermaszungAbsolut;
  double dAbstand1 = 0.0;
  eVermaszung eMasz2 = eVermaszungAbsolut;
  double dAbstand2 = 0.0;
};
