// An additional dimension: a named length between grid nodes that drives the
// grid.
#pragma once

#include "lintavo/model/CMKnoten.h"
#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

/// A measure between two nodes (one-sided) or from a centre node to both sides
/// (centred), along X or along Y. A calculation moves the axes until the span
/// equals `dLaenge`; a length below 1e-6 in magnitude moves nothing.
class LINTAVO_API CMZusatzMasz {
 public:
  CMZusatzMasz() = default;
  CMZusatzMasz(const CMZusatzMasz&) = default;
  CMZusatzMasz& operator=(const CMZusatzMasz&) = default;
  virtual ~CMZusatzMasz() = default;

  bool IsEinseitig() const { return lArt == 1; }
  bool IsZentrisch() const { return lArt == 2; }
  /// Measures along X; the spelling is part of the interface.
  bool IsHorizonal() const { return lRichtung == 1; }
  bool IsVertikal() const { return lRichtung == 0; }

  void SetHorizontal(const CMKnoten& k1, const CMKnoten& k2);
  void SetHorizontal(const CMKnoten& centre, const CMKnoten& k2, const CMKnoten& k3);
  void SetVertikal(const CMKnoten& k1, const CMKnoten& k2);
  void SetVertikal(const CMKnoten& centre, const CMKnoten& k2, const CMKnoten& k3);

  CString strName;
  long lArt = 0;          ///< 1 one-sided, 2 centred, 0 not yet set
  long lRichtung = 1;     ///< 1 horizontal, 0 vertical
  CMKnoten kKnoten1;      ///< start; the centre of a centred dimension
  CMKnoten kKnoten2;      ///< end; the lower end of a centred dimension
  CMKnoten kKnoten3;      ///< the upper end of a centred dimension
  double dLaenge = 0.0;   ///< required length, signed in the direction of the axes
  double dAbstand = 0.0;  ///< distance of the dimension line from node 1

 private:
  void Set(long richtung, const CMKnoten& k1, const CMKnoten& k2);
  void Set(long richtung, const CMKnoten& k1, const CMKnoten& k2, const CMKnoten& k3);
};
