// Rings of corners that remember the vertex they came from: what the clean-up and the
// offset of polygons work on.
#pragma once

#include <vector>

#include "lintavo/geom/Flaechenrechnung_intern.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"

namespace lintavo {

/// A corner and the source vertex whose side starts there.
struct Ringecke {
  XY ort;
  int quelle = 0;
  bool kappung = false;  ///< the side is the cut of that vertex' corner, not its edge
};
using Eckenring = Liste<Ringecke>;

/// The corners of a polygon, each its own source.
Eckenring EckenVon(const GEOM2_Polygon& polygon, Speicher speicher = {});

/// The places alone.
Liste<XY> Orte(const Eckenring& ring);

bool SindBrauchbar(const Eckenring& ring);

/// Leaves the corners that the ring cannot do without; none when fewer than 3 remain.
void Ausduennen(Eckenring& ring, double tol);

/// Puts the ring in counter-clockwise order, or back into clockwise order: each corner
/// keeps standing for the side that starts at it.
void SeitenUmkehren(Eckenring& ring);

/// The ring as calculations of areas take it.
Flaechenring AlsFlaechenring(const Eckenring& ring);

/// The pieces that a calculation of areas left.
std::vector<Eckenring> Stuecke(const std::vector<Ergebnisring>& ringe);

/// The pieces that a counter-clockwise ring leaves once its loops are cut off.
std::vector<Eckenring> SchleifenAbschneiden(const Eckenring& ring);

/// The piece with the largest area, of equals the one with the earliest sources, in the
/// orientation asked for (-1 clockwise) and starting at its own earliest source.
Eckenring Groesstes(const std::vector<Eckenring>& stuecke, int umlauf);

/// The corners as vertices, with the second further value and the attribute of their
/// sources.
Liste<GEOM2_Eckpunkt> AlsEckpunkte(const Eckenring& ring, const GEOM2_Polygon& quelle);

}  // namespace lintavo
