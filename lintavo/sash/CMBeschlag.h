// A fitting and where it sits on its frame part.
#pragma once

#include "lintavo/platform/Export.h"

/// Kinds of fittings. A handle has no second measure.
enum eBeschlagTypen : int { eBeschlagGriff = 0, eBeschlagBand = 1 };

/// How a distance is given: in drawing units, or (any other value) in percent.
enum eVermaszung : int { eVermaszungAbsolut = 0, eVermaszungProzent = 1 };

/// A fitting of a sash; a plain value. The first distance runs along the
/// carrying frame part, the second across it.
class LINTAVO_API CMBeschlag {
 public:
  eBeschlagTypen eTyp = eBeschlagGriff;
  int lBauteil = 0;  ///< number of the frame part that carries the fitting
  eVermaszung eMasz1 = eVermaszungAbsolut;
  double dAbstand1 = 0.0;
  eVermaszung eMasz2 = eVermaszungAbsolut;
  double dAbstand2 = 0.0;
};
