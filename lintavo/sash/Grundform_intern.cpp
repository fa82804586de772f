#include "lintavo/sash/Grundform_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/resources/StringTable.h"

namespace lintavo {

namespace {

[[noreturn]] void Throw(StringId id) {
  throw CMException(static_cast<int>(id));
}

// False for NaN and for infinity too.
bool IsAusdehnung(double laenge) {
  return laenge >= kNullLaenge && std::isfinite(laenge);
}

}  // namespace

PlazierungsBox PlazierungsBoxVon(const XY& p1, const XY& p2) {
  const PlazierungsBox box{std::min(p1.x, p2.x), std::min(p1.y, p2.y), std::max(p1.x, p2.x),
                           std::max(p1.y, p2.y)};
  if (!IsAusdehnung(box.Breite()) || !IsAusdehnung(box.Hoehe())) {
    Throw(StringId::MeldungFluegelflaecheNull);
  }
  return box;
}

Ueberstand UeberstandDerBezugspunkte(const PlazierungsBox& box, const XY& p3, const XY& p4) {
  const Ueberstand ueberstand{box.xmin - std::min(p3.x, p4.x), std::max(p3.x, p4.x) - box.xmax};
  if (!(ueberstand.links >= -kNullLaenge)) Throw(StringId::MeldungBezugspunktLinks);
  if (!(ueberstand.rechts >= -kNullLaenge)) Throw(StringId::MeldungBezugspunktRechts);
  return ueberstand;
}

void PruefeEndlich(const GEOM2_Polygon& outline) {
  for (int i = 0; i < outline.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = outline.GetEckpunkt(i);
    if (!std::isfinite(ecke.x) || !std::isfinite(ecke.y)) {
      Throw(StringId::MeldungFluegelflaecheNull);
    }
  }
}

}  // namespace lintavo
