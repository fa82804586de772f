#include "lintavo/geom/Verdeckung_intern.h"

#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"

namespace lintavo {

void Verdeckung::Hinzufuegen(const GEOM2_Polygon& umriss, std::size_t ebene) {
  if (umriss.GetAnzahl() < 3) return;
  Flaeche flaeche{{}, ebene};
  flaeche.ring.reserve(static_cast<std::size_t>(umriss.GetAnzahl()));
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    flaeche.ring.push_back(Ort(umriss.GetEckpunkt(i)));
    if (!IstBrauchbar(flaeche.ring.back())) return;
  }
  flaechen_.push_back(std::move(flaeche));
}

void Verdeckung::Sortieren() {
  std::vector<Kasten> kaesten(flaechen_.size());
  for (std::size_t i = 0; i < flaechen_.size(); ++i) {
    for (const XY& p : flaechen_[i].ring) kaesten[i].Erweitern(p);
  }
  baum_ = Kastenbaum(std::move(kaesten));
}

bool Verdeckung::Beschatten(const XY& a, const XY& b, std::size_t ebene, Seitenblick& blick) const {
  Kasten kasten;
  kasten.Erweitern(a);
  kasten.Erweitern(b);
  return baum_.SuchenBis(kasten.Vergroessert(kNebenKante), [&](std::size_t i) {
    return flaechen_[i].ebene < ebene && blick.Hinzufuegen(flaechen_[i].ring);
  });
}

}  // namespace lintavo
