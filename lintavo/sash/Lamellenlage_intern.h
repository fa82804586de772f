// Where the slats of a filling lie: from the bottom up, each behind a gap, cut to the
// filling's contour.
#pragma once

#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/model/CMBauteil.h"
#include "lintavo/sash/CMFuellung.h"

namespace lintavo {

/// The slats of one contour, which must outlive the object.
class Lamellenlage {
 public:
  /// `nummer` is the reference that every slat carries.
  Lamellenlage(const CMFuellung& fuellung, long nummer, const GEOM2_Polygon& contour);

  /// Whether the contour has a width and a height at all.
  bool HatFlaeche() const;

  /// Places for slats, at most kMaxLamellen and one for the rest of the height.
  long Plaetze() const { return ganze_ + (mitRest_ ? 1 : 0); }

  /// Lays the slat of a place; false where the contour leaves nothing of it.
  bool Lege(long platz, CMBauteil& lamelle);

  /// Number of slats.
  long Anzahl();

  /// Lays slat `i` of those that there are; false past the last.
  bool LegeNummer(long i, CMBauteil& lamelle);

 private:
  double Breite(long platz) const { return platz < ganze_ ? breite_ : rest_; }
  double Mitte(long platz);
  bool Schneide(long platz, GEOM2_Achse& achse);
  long ErsterPlatz();

  const GEOM2_Polygon& contour_;
  CMBauteil vorlage_;
  double luecke_;
  double breite_;
  long ganze_ = 0;
  bool mitRest_ = false;
  double rest_ = 0.0;
  XY min_;
  XY max_;
  // The lower edge of a place, reckoned last: summed up, so that every way to a place
  // gives the same bits.
  long stand_ = 0;
  double y_ = 0.0;
};

/// What is seen of a slat within its contour: the strip of its width across the whole
/// contour, where the cuts of the slat itself are straight. Of a contour that is not convex
/// the slat's own outline, up to the contour's top.
GEOM2_Polygon SichtbareLamelle(const CMBauteil& lamelle, const GEOM2_Polygon& contour);

}  // namespace lintavo
