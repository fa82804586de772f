// Laws that hold for every window, tried on random ones, of which each run makes the same.
//
// LINTAVO_ZUFALLSFENSTER is how many each law is tried on, LINTAVO_ZUFALLSBEGINN the seed
// of the first; the other windows follow it one by one; after LINTAVO_VERSTOESZE broken
// ones a law is given up. A window that breaks a law is
// printed as macro text with its seed.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/model/CMFenster.h"

#include "tests/support/Fensterentwurf.h"
#include "tests/support/Wuerfel.h"

namespace lintavo::test {

/// A law about a window and the description that it was read from; breaking it fails the
/// running test.
using Gesetz = std::function<void(const Fensterentwurf&, CMFenster&)>;

/// Tries a law on `anzahl` calculated windows, unless the environment asks for more.
void JedesFenster(const Gesetz& gesetz, std::uint64_t anzahl = 300);

/// Tries a law on what it throws with the dice itself, for so many seeds.
void JederWurf(const std::function<void(Wuerfel&)>& gesetz, std::uint64_t anzahl = 300);

/// Reads a description, and calculates it too. A failure fails the running test.
CMFenster Gelesen(const Fensterentwurf& entwurf);
CMFenster Berechnet(const Fensterentwurf& entwurf);
void Berechne(CMFenster& fenster, bool automatisch = false);

/// Outlines of the components that are there, and their area.
std::vector<GEOM2_Polygon> UmrisseVon(const std::vector<CMBauteil>& teile);
double Flaeche(const std::vector<GEOM2_Polygon>& polygone);

}  // namespace lintavo::test
