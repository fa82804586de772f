// The grid that a window is saved with: without axes that nothing uses, and with its
// first axes at the origin.
#include <algorithm>
#include <climits>
#include <cmath>

#include "lintavo/model/Achsbereich_intern.h"
#include "lintavo/model/CMFenster.h"

namespace {

using lintavo::Achsbereich;

// A corner point counts too: its place is kept as an offset to the crossing of its axes.
void Erweitere(Achsbereich& bereich, const CMKnoten& knoten) {
  bereich.minJ = std::min<long>(bereich.minJ, knoten.J());
  bereich.maxJ = std::max<long>(bereich.maxJ, knoten.J());
  bereich.minK = std::min<long>(bereich.minK, knoten.K());
  bereich.maxK = std::max<long>(bereich.maxK, knoten.K());
}

// The axes between all nodes of sashes, dimensions and single parts; all axes of a window
// without sashes, where there is nothing to gain by dropping them.
Achsbereich ZuBehalten(const CMFenster& fenster) {
  Achsbereich bereich = lintavo::BenutzteAchsen(fenster);
  if (fenster.GetAnzahlFluegel() == 0) return {0, LONG_MAX, 0, LONG_MAX};
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    Erweitere(bereich, masz.kKnoten1);
    Erweitere(bereich, masz.kKnoten2);
    if (masz.IsZentrisch()) Erweitere(bereich, masz.kKnoten3);
  }
  for (const CMBauteil& bauteil : fenster.GetRahmenPtr()->EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    Erweitere(bereich, bauteil.kAnfang);
    Erweitere(bereich, bauteil.kEnde);
  }
  return bereich;
}

// The result stays an int for any input.
int Gesenkt(int i, long um) {
  return static_cast<int>(std::clamp<long long>(static_cast<long long>(i) - um, INT_MIN, INT_MAX));
}

void Senke(CMKnoten& knoten, long dj, long dk) {
  knoten.SetJ(Gesenkt(knoten.J(), dj));
  knoten.SetK(Gesenkt(knoten.K(), dk));
}

// The placement nodes of a sash, or of the frame, which then lie on axes.
void SenkePlatz(CMFensterSatz& satz, long dj, long dk) {
  for (CMKnoten* knoten : {&satz.Knoten1, &satz.Knoten2, &satz.KnotenAL, &satz.KnotenAR}) {
    Senke(*knoten, dj, dk);
    knoten->Set(knoten->J(), knoten->K());
  }
}

}  // namespace

// The part of the present grid between two axes of each direction.
CMFenster::Raster CMFenster::RasterVon(const Achsbereich& bereich) const {
  const long lastJ = achsen_.iGetCntVerti() - 1;
  const long lastK = achsen_.iGetCntHori() - 1;
  if (lastJ < 0 || lastK < 0) return {0, 0, achsen_};
  // An index past the last axis means that axis, one before the first means 0.
  Raster raster;
  raster.j = std::clamp(bereich.minJ, 0L, lastJ);
  raster.k = std::clamp(bereich.minK, 0L, lastK);
  raster.achsen.AddVerti(0.0);
  raster.achsen.AddHori(0.0);
  for (long j = raster.j + 1; j <= std::min(bereich.maxJ, lastJ); ++j) {
    raster.achsen.AddVerti(achsen_.dGetAchsAbstX(static_cast<int>(j)));
  }
  for (long k = raster.k + 1; k <= std::min(bereich.maxK, lastK); ++k) {
    raster.achsen.AddHori(achsen_.dGetAchsAbstY(static_cast<int>(k)));
  }
  return raster;
}

// Needs no memory: nodes, coordinates and grid change together or not at all.
void CMFenster::SetzeRaster(Raster&& raster) noexcept {
  XY first;
  achsen_.GetPunkt(static_cast<int>(raster.j), static_cast<int>(raster.k), first);
  SenkeKnoten(raster.j, raster.k);
  achsen_ = std::move(raster.achsen);
  if (std::fabs(first.x) > 0.0 || std::fabs(first.y) > 0.0) Verschiebe(-first.x, -first.y);
}

void CMFenster::AchsRasterOptimieren() {
  SetzeRaster(KompaktesRaster());
}

CMFenster::Raster CMFenster::KompaktesRaster() const {
  return RasterVon(ZuBehalten(*this));
}

// Whether axis 0 has left the origin, as a dimension that runs against the axes makes it.
bool CMFenster::IsRasterVerschoben() const {
  return std::fabs(achsen_.dGetPosVerti(0)) > 0.0 || std::fabs(achsen_.dGetPosHori(0)) > 0.0;
}

void CMFenster::RasterAnDenUrsprung() {
  SetzeRaster(RasterVon({0, LONG_MAX, 0, LONG_MAX}));
}

// Lets every node of the window name axes of a grid that has lost its first ones.
void CMFenster::SenkeKnoten(long dj, long dk) noexcept {
  SenkePlatz(rahmen_, dj, dk);
  for (const auto& fluegel : fluegel_) SenkePlatz(*fluegel, dj, dk);
  for (CMZusatzMasz& masz : zusatzMasze_) {
    for (CMKnoten* knoten : {&masz.kKnoten1, &masz.kKnoten2}) Senke(*knoten, dj, dk);
    if (masz.IsZentrisch()) Senke(masz.kKnoten3, dj, dk);
  }
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    Senke(bauteil.kAnfang, dj, dk);
    Senke(bauteil.kEnde, dj, dk);
  }
}

// Moves all that has coordinates, calculated or stored, by the same amount.
void CMFenster::Verschiebe(double dx, double dy) noexcept {
  rahmen_.Verschieben(dx, dy);
  for (const auto& fluegel : fluegel_) fluegel->Verschieben(dx, dy);
  for (CMZusatzMasz& masz : zusatzMasze_) {
    for (CMKnoten* knoten : {&masz.kKnoten1, &masz.kKnoten2, &masz.kKnoten3}) {
      if (knoten->IsAufAchse()) continue;
      knoten->XPlus(dx);
      knoten->YPlus(dy);
    }
  }
  box_ = {box_.xmin + dx, box_.ymin + dy, box_.xmax + dx, box_.ymax + dy};
}
