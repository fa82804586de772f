#include "lintavo/sash/Lamellenlage_intern.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "lintavo/geom/Ring_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/Numbers_intern.h"

namespace lintavo {

namespace {

// A remaining height up to this gets no slat of its own.
constexpr double kKleinsterRest = 0.1;

bool SindMasze(double breite, double teilung) {
  return breite > kNullLaenge && teilung >= kNullLaenge && std::isfinite(breite) &&
         std::isfinite(teilung);
}

std::vector<XY> Ring(const GEOM2_Polygon& polygon) {
  std::vector<XY> ring;
  ring.reserve(static_cast<std::size_t>(polygon.GetAnzahl()));
  for (int i = 0; i < polygon.GetAnzahl(); ++i) ring.push_back(Ort(polygon.GetEckpunkt(i)));
  return ring;
}

bool IstKonvexeKontur(const GEOM2_Polygon& contour) {
  const std::vector<XY> ring = Ring(contour);
  return ring.size() >= 3 && IstKonvex(ring);
}

// What of a convex ring lies below the line at y (sinn +1) or above it (-1).
std::vector<XY> Abgeschnitten(const std::vector<XY>& ring, double y, int sinn) {
  std::vector<XY> rest;
  rest.reserve(ring.size() + 2);
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const XY& p = ring[i];
    const XY& q = ring[i + 1 == ring.size() ? 0 : i + 1];
    const double hier = sinn * (p.y - y);
    const double dort = sinn * (q.y - y);
    if (hier <= kNullLaenge) rest.push_back(p);
    if (std::min(hier, dort) < -kNullLaenge && std::max(hier, dort) > kNullLaenge) {
      rest.push_back({p.x + (q.x - p.x) * (hier / (hier - dort)), y});
    }
  }
  return rest;
}

// The gap before the last slat may lift it past the contour.
GEOM2_Polygon HoechstensBis(double y, const CMBauteil& lamelle) {
  GEOM2_Polygon umriss;
  lamelle.GetUmrissPunkte(umriss);
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = umriss.GetEckpunkt(i);
    umriss.SetPunkt(i, ecke.x, std::min(ecke.y, y));
  }
  return umriss;
}

}  // namespace

Lamellenlage::Lamellenlage(const CMFuellung& fuellung, long nummer, const GEOM2_Polygon& contour)
    : contour_(contour), luecke_(fuellung.D1), breite_(fuellung.D2) {
  vorlage_.lTyp = eLamelle;
  vorlage_.dDicke = fuellung.D3;
  vorlage_.lAttribut[0] = fuellung.I1;
  vorlage_.lAttribut[1] = fuellung.I2;
  vorlage_.lAttribut[2] = fuellung.I3;
  vorlage_.lAttribut[3] = fuellung.I4;
  vorlage_.lReferenz = nummer;
  contour.GetMinMax(min_, max_);
  y_ = min_.y;

  const double teilung = breite_ + luecke_;
  if (!HatFlaeche() || !SindMasze(breite_, teilung)) return;
  const double hoehe = max_.y - min_.y;
  // Both truncations are meant, that of the height too, although with it a last
  // whole slat may come out as the rest: the number of slats is fixed by it. Neither
  // may depend on the last bit of a height that is a difference of coordinates.
  const auto ganzeHoehe = static_cast<double>(TruncateToLong(hoehe + kRechenrauschen * teilung));
  ganze_ = TruncateToLong(ganzeHoehe / teilung + kRechenrauschen);
  if (ganze_ >= kMaxLamellen) {
    ganze_ = kMaxLamellen;
    return;
  }
  rest_ = hoehe - static_cast<double>(ganze_) * teilung;
  mitRest_ = rest_ > kKleinsterRest;
}

bool Lamellenlage::HatFlaeche() const {
  return max_.x - min_.x >= kNullLaenge && max_.y - min_.y >= kNullLaenge;
}

double Lamellenlage::Mitte(long platz) {
  if (platz < stand_) {
    stand_ = 0;
    y_ = min_.y;
  }
  for (; stand_ < platz; ++stand_) {
    y_ += breite_ / 2.0 + luecke_;
    y_ += breite_ / 2.0;
  }
  return y_ + (Breite(platz) / 2.0 + luecke_);
}

bool Lamellenlage::Schneide(long platz, GEOM2_Achse& achse) {
  const double y = Mitte(platz);
  // Overlapping slats may begin far below the contour: not each is worth a cut.
  if (y < min_.y - kUeberlagerung || y > max_.y + kUeberlagerung) return false;
  return GEOM2_Polygon::SetAchse({min_.x, y}, {max_.x, y}, achse) &&
         contour_.AchseClippen(achse, Breite(platz) / 2.0);
}

bool Lamellenlage::Lege(long platz, CMBauteil& lamelle) {
  GEOM2_Achse achse;
  if (!Schneide(platz, achse)) return false;
  lamelle = vorlage_;
  lamelle.dBreite = Breite(platz);
  lamelle.DeleteAchsen();
  lamelle.AddAchse(achse);
  return true;
}

// The first place that has a slat, or the number of places.
long Lamellenlage::ErsterPlatz() {
  GEOM2_Achse achse;
  long platz = 0;
  while (platz < Plaetze() && !Schneide(platz, achse)) ++platz;
  return platz;
}

// A contour is one ring without loops, so that every level line between its lowest and its
// highest point runs inside it: no place without a slat lies between two with one.
long Lamellenlage::Anzahl() {
  GEOM2_Achse achse;
  const long erster = ErsterPlatz();
  long ende = Plaetze();
  while (ende > erster && !Schneide(ende - 1, achse)) --ende;
  return ende - erster;
}

bool Lamellenlage::LegeNummer(long i, CMBauteil& lamelle) {
  if (i < 0 || i >= Plaetze()) return false;
  const long platz = ErsterPlatz() + i;
  return platz < Plaetze() && Lege(platz, lamelle);
}

GEOM2_Polygon SichtbareLamelle(const CMBauteil& lamelle, const GEOM2_Polygon& contour) {
  XY min;
  XY max;
  contour.GetMinMax(min, max);
  if (!IstKonvexeKontur(contour)) return HoechstensBis(max.y, lamelle);
  const double mitte = lamelle.Achse(0).Start.y;
  const double halb = lamelle.dBreite / 2.0;
  const std::vector<XY> streifen =
      Abgeschnitten(Abgeschnitten(Ring(contour), mitte + halb, 1), mitte - halb, -1);
  GEOM2_Polygon umriss;
  for (const XY& p : streifen) umriss.AddPunkt(p.x, p.y);
  for (int i = 0; i < umriss.GetAnzahl(); ++i) umriss.SetAttribut(i, 1);
  return umriss;
}

}  // namespace lintavo
