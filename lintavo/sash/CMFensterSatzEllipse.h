// The elliptical sash shape.
#pragma once

#include "lintavo/sash/CMFensterSatz.h"

/// An ellipse that fills the placement rectangle.
class LINTAVO_API CMFensterSatzEllipse : public CMFensterSatz {
 public:
  CMFensterSatzEllipse() { lForm = eFormEllipse; }
  CMFensterSatzEllipse(const CMFensterSatzEllipse&) = default;
  using CMFensterSatz::operator=;

  /// 32 vertices, from the rightmost one on. Throws 22 when the sash has no
  /// area, 46 or 47 when a reference point lies inside it, although these are
  /// not used otherwise.
  bool BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                         GEOM2_Polygon& outline) override;
  void Trace() const override {}

  virtual CMFensterSatzEllipse& operator=(const CMFensterSatzEllipse&) = default;
};
