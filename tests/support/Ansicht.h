// Views with hidden lines removed, and a plain account of what covers what to hold
// them against.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "lintavo/model/CMFenster.h"

namespace lintavo::test {

/// A line of a picture without its colour.
struct Strecke {
  XY a;
  XY b;

  double Laenge() const { return std::hypot(b.x - a.x, b.y - a.y); }
  XY Richtung() const { return {(b.x - a.x) / Laenge(), (b.y - a.y) / Laenge()}; }
  XY Punkt(double u) const { return {a.x + u * Richtung().x, a.y + u * Richtung().y}; }
};

std::vector<Strecke> Strecken(const std::vector<CMStrecke>& lines);
bool LiegtAuf(const XY& p, const std::vector<Strecke>& strecken, double tol);
/// Expects the same lines, however they are cut into pieces.
void ErwarteGleicheStrecken(const std::vector<Strecke>& erwartet, const std::vector<Strecke>& ist,
                            const std::string& was);

/// The window's front view; fails the running test when there is none.
std::vector<Strecke> Bild(const CMFenster& fenster, bool vonAussen);

/// Looks along every edge of every part of a calculated window, from both sides, and
/// asks all parts whether they cover it. Where an edge is seen it must be drawn exactly
/// once, where it is not, not at all; every line must be part of an edge that is seen,
/// and no two lines may coincide or be shorter than asked for. Failures are the running
/// test's.
void ErwarteBildRichtig(const CMFenster& fenster, double kleinsteLinie = 0.01);

}  // namespace lintavo::test
