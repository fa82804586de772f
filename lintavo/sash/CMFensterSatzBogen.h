// The sash shape with an arch on top and, on request, one at the bottom.
#pragma once

#include "lintavo/sash/CMFensterSatz.h"

/// An arch, or a sash's own piece of an arch that spans several sashes: the
/// reference points are the ends of the whole arch.
class LINTAVO_API CMFensterSatzBogen : public CMFensterSatz {
 public:
  CMFensterSatzBogen() { lForm = eFormBogen; }
  CMFensterSatzBogen(const CMFensterSatzBogen&) = default;
  using CMFensterSatz::operator=;

  bool ReadFromIniFile(const CString& section, CIniFile& document) override;
  bool SaveToIniFile(const CString& section, CIniFile& document) const override;
  bool bStichAnpassen(CMFenster& fenster) override;
  /// Builds the outline and bounds the record's rises; the top rise of a basket
  /// arch keeps the value given where it is too much, and is bounded in the outline
  /// only. Always true. Throws 22 when the sash has no area, 46 or 47 when a reference point
  /// lies inside it.
  bool BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                         GEOM2_Polygon& outline) override;
  void Trace() const override {}

  virtual CMFensterSatzBogen& operator=(const CMFensterSatzBogen&) = default;
};
