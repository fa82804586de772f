// The sash shape that is one half of an arch.
#pragma once

#include "lintavo/sash/CMFensterSatz.h"

/// One half of an arch over twice the sash's width. The crown stands over the
/// right edge, or over the left one when mirrored.
class LINTAVO_API CMFensterSatzHalbBogen : public CMFensterSatz {
 public:
  CMFensterSatzHalbBogen() { lForm = eFormHalbBogen; }
  CMFensterSatzHalbBogen(const CMFensterSatzHalbBogen&) = default;
  using CMFensterSatz::operator=;

  bool ReadFromIniFile(const CString& section, CIniFile& document) override;
  bool SaveToIniFile(const CString& section, CIniFile& document) const override;
  bool bStichAnpassen(CMFenster& fenster) override;
  /// Builds the outline and bounds the record's rises. The reference points are
  /// not used. Always true; throws 22 when the sash has no area.
  bool BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                         GEOM2_Polygon& outline) override;
  void Trace() const override {}

  virtual CMFensterSatzHalbBogen& operator=(const CMFensterSatzHalbBogen&) = default;
};
