// Stretches of a line and their set operations: what is left of an edge when other
// things cover parts of it.
#pragma once

#include <vector>

namespace lintavo {

/// A stretch of a line, by the distances of its ends from the line's origin.
struct Abschnitt {
  double von = 0.0;
  double bis = 0.0;
};

/// A list is in order when its stretches follow each other without touching.
using Abschnitte = std::vector<Abschnitt>;

/// Brings a list in order: joins the stretches that overlap or miss each other by less
/// than 1e-6.
void AbschnitteVereinigen(Abschnitte& abschnitte);

/// What two lists have in common, in order; both must be in order. Stretches shorter
/// than 1e-6 are none.
Abschnitte GemeinsameAbschnitte(const Abschnitte& a, const Abschnitte& b);

/// What b leaves of a, in order; both must be in order. Stretches shorter than 1e-6 are
/// none.
Abschnitte UebrigeAbschnitte(const Abschnitte& a, const Abschnitte& b);

}  // namespace lintavo
