// The sash shape with four corners, each of which may be moved or cut off.
#pragma once

#include "lintavo/sash/CMFensterSatz.h"

/// A rectangle whose corners follow their coefficients, measured from the
/// corner into the sash: one of the two moves the corner along its edge, both
/// together cut it off.
///
///     0 ___________ 1
///      |           |
///      |           |
///     2|___________|3
class LINTAVO_API CMFensterSatzRechteck : public CMFensterSatz {
 public:
  CMFensterSatzRechteck() = default;
  CMFensterSatzRechteck(const CMFensterSatzRechteck&) = default;
  using CMFensterSatz::operator=;

  /// The coefficients that the section does not list become 0 and movable.
  bool ReadFromIniFile(const CString& section, CIniFile& document) override;
  bool SaveToIniFile(const CString& section, CIniFile& document) const override;
  /// Multiplies the movable coefficients of one direction by the ratio of the
  /// sash's present extent to the one before the shift of `delta` per axis
  /// interval.
  void FormBeiwerteAnpassen(bool horizontal, const CMAchsen& axes, long i1, long i2,
                            double delta) override;
  /// Four to eight vertices from the bottom left on; p3 and p4 are not used.
  /// False when fewer than three remain after edges below 0.1 are removed;
  /// throws 22 when the sash has no area.
  bool BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                         GEOM2_Polygon& outline) override;
  void Trace() const override {}

  virtual CMFensterSatzRechteck& operator=(const CMFensterSatzRechteck&) = default;
};
