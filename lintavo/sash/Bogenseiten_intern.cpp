#include "lintavo/sash/Bogenseiten_intern.h"

#include <cmath>
#include <cstddef>

#include "lintavo/geom/Toleranzen.h"

namespace lintavo {
namespace {

constexpr double kVollkreis = 360.0;

double InsVolleKreisMasz(double winkel) {
  return winkel < -kNullLaenge ? winkel + kVollkreis : winkel;
}

double RichtungInGrad(const GEOM2_Polygon& polygon, int i) {
  XY a;
  XY b;
  polygon.GetKante(i, a, b);
  return InsVolleKreisMasz(std::atan2(b.y - a.y, b.x - a.x) * 180.0 / kPi);
}

// A vertical side is the straight end of an arch and stays a part of its own.
bool IstSenkrecht(double richtung) {
  return std::fabs(std::cos(richtung * kPi / 180.0)) <= kNullLaenge;
}

// Whether a side turns gently from the one before it or to the one after it.
bool IstGebogen(double vorher, double richtung, double nachher, double maxAngle) {
  return InsVolleKreisMasz(richtung - vorher) < maxAngle ||
         InsVolleKreisMasz(nachher - richtung) < maxAngle;
}

}  // namespace

bool IstBogenseite(const GEOM2_Polygon& polygon, int i, double maxLength, double maxAngle) {
  const int count = polygon.GetAnzahl();
  if (!(polygon.GetKantenLaenge(i) < maxLength)) return false;
  const double richtung = RichtungInGrad(polygon, i);
  return IstGebogen(RichtungInGrad(polygon, (i + count - 1) % count), richtung,
                    RichtungInGrad(polygon, (i + 1) % count), maxAngle) &&
         !IstSenkrecht(richtung);
}

Liste<bool> Bogenseiten(const GEOM2_Polygon& polygon, double maxLength, double maxAngle,
                        Speicher speicher) {
  const auto count = static_cast<std::size_t>(polygon.GetAnzahl());
  Liste<double> richtung(speicher);
  richtung.reserve(count);
  for (int i = 0; i < polygon.GetAnzahl(); ++i) richtung.push_back(RichtungInGrad(polygon, i));
  Liste<bool> seiten(count, false, speicher);
  for (std::size_t i = 0; i < count; ++i) {
    const double vorher = richtung[i == 0 ? count - 1 : i - 1];
    const double nachher = richtung[i + 1 == count ? 0 : i + 1];
    seiten[i] = IstGebogen(vorher, richtung[i], nachher, maxAngle) &&
                polygon.GetKantenLaenge(static_cast<int>(i)) < maxLength &&
                !IstSenkrecht(richtung[i]);
  }
  return seiten;
}

}  // namespace lintavo
