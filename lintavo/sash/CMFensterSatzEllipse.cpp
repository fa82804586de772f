#include "lintavo/sash/CMFensterSatzEllipse.h"

#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/sash/Grundform_intern.h"

namespace {

constexpr int kEllipsenEcken = 32;

}  // namespace

bool CMFensterSatzEllipse::BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                                             GEOM2_Polygon& outline) {
  outline.Clear();
  const lintavo::PlazierungsBox box = lintavo::PlazierungsBoxVon(p1, p2);
  dBreite = box.Breite();
  dHoehe = box.Hoehe();
  lintavo::UeberstandDerBezugspunkte(box, p3, p4);
  const XY mitte{box.xmin + dBreite / 2.0, box.ymin + dHoehe / 2.0};
  for (int k = 0; k < kEllipsenEcken; ++k) {
    const double t = 2.0 * lintavo::kPi * k / kEllipsenEcken;
    outline.AddPunkt(mitte.x + dBreite / 2.0 * std::cos(t), mitte.y + dHoehe / 2.0 * std::sin(t));
  }
  return outline.GetAnzahl() >= 3;
}
