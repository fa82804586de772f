// Everything that a host can ask a window through the façade.
#pragma once

#include <string>
#include <vector>

class CFeApi;
class CFeApiWandOeffnungsParameter;

namespace lintavo::fuzz {

/// The answers as numbers, in a fixed order.
struct Antworten {
  /// What the calculation made: sizes, outlines, openings, contours.
  std::vector<double> Gebilde;
  /// What it draws: lines, symbols, dimension lines, fittings.
  std::vector<double> Zeichnungen;
  /// What the window was given, which a file may choose freely.
  std::vector<double> Angaben;
};

/// Asks for everything that the window says it has; the drawings, which take
/// most of the time, on request.
Antworten FrageAlles(const CFeApi& fenster, bool mitZeichnungen = true);

/// Asks for what it has not: indices and kinds out of range.
void FrageFalscheIndizes(const CFeApi& fenster);

/// Hands every setter what it must refuse or bear.
void SetzeUnsinn(CFeApi& fenster);

/// Reveals of every kind, one of them splayed.
CFeApiWandOeffnungsParameter Laibung();

/// Whether mullions or transoms of the window overlap each other.
bool PfostenUeberlappen(const CFeApi& fenster);

/// The bytes of `WriteToBuffer`.
std::string Geschrieben(const CFeApi& fenster);

}  // namespace lintavo::fuzz
