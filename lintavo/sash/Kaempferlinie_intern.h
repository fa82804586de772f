// The springing line of an arch, and dimensions that end on it: these drive its rise.
#pragma once

#include "lintavo/model/CMAchsen.h"
#include "lintavo/model/CMZusatzMasz.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace lintavo {

/// The line on which a top arch stands, over the whole span of the arch.
struct Kaempferlinie {
  double xLinks;
  double xRechts;
  double y;
};

bool HatBogen(const CMFensterSatz& satz);

/// The line of an arch whose sash is `hoehe` high.
Kaempferlinie KaempferlinieVon(const CMFensterSatz& satz, const CMAchsen& achsen, double hoehe);
/// The same for the height between the axes as they are.
Kaempferlinie KaempferlinieVon(const CMFensterSatz& satz, const CMAchsen& achsen);

/// The grid point of a node, raised by the node's own y; for a corner point counted from
/// the grid's first axis, so that one in its row is where its y says.
XY KnotenPunkt(const CMKnoten& knoten, const CMAchsen& achsen);

/// Whether a dimension drives the rise of the arch that stands on the line: it is
/// vertical and one-sided, starts at a corner point and ends on the line.
bool EndetAuf(const CMZusatzMasz& masz, const Kaempferlinie& linie, const CMAchsen& achsen);

/// Moves the end of a dimension along with the springing line. A node on an axis leaves it
/// and becomes a corner point at its place, counted from the origin's row: so its height is
/// stored with it, and measured from anywhere the dimension has its length.
void VersetzeEnde(CMKnoten& ende, double delta, const CMAchsen& achsen);

}  // namespace lintavo
