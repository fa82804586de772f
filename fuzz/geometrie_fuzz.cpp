// Target: the geometry kernel on arbitrary coordinates. An input says first
// whether its numbers may be anything at all ("wild"); in drawings of sensible
// size the laws that the headers state are checked. With LINTAVO_FUZZ_SHOW set in
// the environment the numbers of an input are printed as they are drawn.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMBauteil.h"

#include "Gesetz.h"

namespace {

using lintavo::fuzz::Fordere;

constexpr int kMeisteEcken = 40;
constexpr int kMeistePolygone = 8;
constexpr double kRaster = 10.0;
constexpr double kSpiel = 0.01;  // what tolerances may add to a length in a drawing

// One input, read as numbers that meet often: on a grid, a little beside it, in
// hundredths, and when it is wild any pattern of bits.
class Eingabe {
 public:
  Eingabe(const std::uint8_t* data, std::size_t size)
      : bytes_(data, size),
        wild_(bytes_.ConsumeBool()),
        show_(std::getenv("LINTAVO_FUZZ_SHOW") != nullptr) {}

  bool IsWild() const { return wild_; }
  bool IsLeer() { return bytes_.remaining_bytes() == 0; }
  int Zahl(int von, int bis) { return bytes_.ConsumeIntegralInRange<int>(von, bis); }

  double Laenge() {
    const double v = NeueLaenge();
    if (show_) std::fprintf(stderr, "%.17g ", v);
    return v;
  }

  XY Punkt() {
    const double x = Laenge();
    return {x, Laenge()};
  }

  GEOM2_Polygon Polygon() {
    GEOM2_Polygon polygon;
    const int n = Zahl(0, kMeisteEcken);
    if (show_) std::fprintf(stderr, "\npolygon (x y wert1 wert2):");
    for (int i = 0; i < n && !IsLeer(); ++i) {
      if (show_) std::fprintf(stderr, "\n  ");
      const XY p = Punkt();
      polygon.AddPunkt(p.x, p.y, Laenge(), Laenge(), Zahl(0, 3));
    }
    return polygon;
  }

 private:
  double NeueLaenge() {
    const int kind = Zahl(0, wild_ ? 9 : 5);
    const double grid = kRaster * Zahl(-2, 12);
    switch (kind) {
      case 3:
        return grid + Zahl(-20, 20) * 1e-4;
      case 4:
        return grid + Zahl(-20, 20) * 1e-7;
      case 5:
        return Zahl(-30000, 30000) / 100.0;
      case 6:
      case 7:
        return bytes_.ConsumeFloatingPoint<double>();
      case 8:
        return std::ldexp(static_cast<double>(Zahl(-1000, 1000)), Zahl(-1074, 1014));
      case 9:
        return Zahl(0, 1) == 0 ? NAN : INFINITY;
      default:
        return grid;
    }
  }

  FuzzedDataProvider bytes_;
  bool wild_;
  bool show_;
};

bool IstEndlich(const GEOM2_Polygon& polygon) {
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = polygon.GetEckpunkt(i);
    if (!std::isfinite(ecke.x) || !std::isfinite(ecke.y)) return false;
  }
  return true;
}

bool IstGleich(const GEOM2_Polygon& a, const GEOM2_Polygon& b) {
  if (a.GetAnzahl() != b.GetAnzahl()) return false;
  for (int i = 0; i < a.GetAnzahl(); ++i) {
    if (a.GetEckpunkt(i).x != b.GetEckpunkt(i).x) return false;
    if (a.GetEckpunkt(i).y != b.GetEckpunkt(i).y) return false;
  }
  return true;
}

void PruefeVereinigung(Eingabe& eingabe) {
  std::vector<GEOM2_Polygon> shapes(static_cast<std::size_t>(eingabe.Zahl(0, kMeistePolygone)));
  for (GEOM2_Polygon& shape : shapes) shape = eingabe.Polygon();
  GEOM2_Polygon outline;
  double box[4];
  const bool found = bPolygoneAddieren(shapes, outline, lintavo::kVereinigung, box);
  Fordere(found == (outline.GetAnzahl() >= 3), "a union has an outline when it says so");
  if (!found) return;
  Fordere(IstEndlich(outline), "a union is finite");
  if (eingabe.IsWild()) return;
  XY low;
  XY high;
  outline.GetMinMax(low, high);
  // Of slivers as thin as the tolerance the sign says nothing.
  const double sliver = kSpiel * (high.x - low.x + high.y - low.y);
  Fordere(outline.GetFlaeche() > -sliver, "a union runs counter-clockwise");
  Fordere(low.x >= box[0] - kSpiel && low.y >= box[1] - kSpiel && high.x <= box[2] + kSpiel &&
              high.y <= box[3] + kSpiel,
          "a union lies in the box of its shapes");
}

void PruefeVersatz(Eingabe& eingabe) {
  const GEOM2_Polygon polygon = eingabe.Polygon();
  const double d = eingabe.Laenge();
  GEOM2_Polygon moved;
  polygon.ParallelPolygon(d, moved);
  std::vector<double> distances(static_cast<std::size_t>(polygon.GetAnzahl()));
  for (double& distance : distances) distance = eingabe.Laenge();
  GEOM2_Polygon bare;
  polygon.ParallelPolygon(distances.data(), bare, false);
  GEOM2_Polygon clean;
  const bool left = polygon.ParallelPolygon(distances.data(), clean, true);
  Fordere(left == (clean.GetAnzahl() >= 3), "an offset has an outline when it says so");
  GEOM2_Polygon self = polygon;
  self.ParallelPolygon(distances.data(), self, true);
  if (eingabe.IsWild()) return;
  Fordere(IstGleich(self, clean), "an offset into itself is the same offset");
  Fordere(IstEndlich(moved) && IstEndlich(bare) && IstEndlich(clean), "an offset is finite");
}

void PruefeBereinigung(Eingabe& eingabe) {
  const GEOM2_Polygon polygon = eingabe.Polygon();
  GEOM2_Polygon turned = polygon;
  turned.Umkehren();
  turned.Umkehren();
  GEOM2_Polygon clean = polygon;
  clean.Bereinigen(lintavo::kBereinigenGrob);
  GEOM2_Polygon simple = polygon;
  simple.Bereinigen(lintavo::kNullLaenge, false);
  GEOM2_Polygon shortened = polygon;
  shortened.KurzeKantenEntfernen(eingabe.Laenge());
  const XY p = eingabe.Punkt();
  const bool inside = polygon.IsInside(p, false, lintavo::kNullLaenge);
  const bool withEdge = polygon.IsInside(p, true, lintavo::kNullLaenge);
  if (eingabe.IsWild()) return;
  Fordere(turned.GetAnzahl() == polygon.GetAnzahl() &&
              std::fabs(turned.GetFlaeche() - polygon.GetFlaeche()) <= kSpiel,
          "reversing twice keeps the area");
  Fordere(IstEndlich(clean) && IstEndlich(simple), "a cleaned polygon is finite");
  Fordere(!inside || withEdge, "what lies inside lies inside with the edge, too");
}

void PruefeSchnitt(Eingabe& eingabe) {
  const GEOM2_Polygon polygon = eingabe.Polygon();
  GEOM2_Achse axis;
  axis.Start = eingabe.Punkt();
  axis.dLaenge = std::fabs(eingabe.Laenge());
  axis.dWinkel = 15.0 * eingabe.Zahl(-12, 12);
  axis.dWinkelAnfang = eingabe.Zahl(-60, 60);
  const double width = eingabe.Laenge();
  GEOM2_Achse cut = axis;
  const bool left = polygon.AchseClippen(cut, width);
  XY a = eingabe.Punkt();
  XY b = eingabe.Punkt();
  const CMStrecke whole(a, b);
  polygon.StreckeClippen(a, b);
  if (eingabe.IsWild()) return;
  Fordere(std::isfinite(cut.dLaenge) && std::isfinite(cut.Start.x) && std::isfinite(cut.Start.y) &&
              std::isfinite(cut.dWinkelAnfang) && std::isfinite(cut.dWinkelEnde),
          "a cut axis is finite");
  Fordere(cut.dLaenge <= axis.dLaenge + lintavo::kNullLaenge, "a cut axis is not longer");
  Fordere(CMStrecke(a, b).GetLaenge() <= whole.GetLaenge() + kSpiel, "a cut segment is not longer");
  if (!left) return;
  GEOM2_Achse again = cut;
  Fordere(polygon.AchseClippen(again, width) && again.dLaenge == cut.dLaenge &&
              again.Start.x == cut.Start.x && again.Start.y == cut.Start.y &&
              again.dWinkelAnfang == cut.dWinkelAnfang && again.dWinkelEnde == cut.dWinkelEnde,
          "cutting an axis again changes nothing");
}

void PruefeStrecken(Eingabe& eingabe) {
  const XY p[5] = {eingabe.Punkt(), eingabe.Punkt(), eingabe.Punkt(), eingabe.Punkt(),
                   eingabe.Punkt()};
  XY point;
  double distance = 0.0;
  bool within = false;
  SchnittpunktGeraden(p[0], p[1], p[2], p[3], lintavo::kNullLaenge, point);
  IsPunktAufStrecke(p[4], p[0], p[1], lintavo::kNullLaenge);
  AbstandPunktGerade(p[0], p[1], p[4]);
  LotFusspunkt(p[4], p[0], p[1], lintavo::kNullLaenge, point, distance, within);
  lintavo::SeitenDecken(p[0], p[1], p[2], p[3]);
  CMStrecke s(p[0], p[1]);
  const CMStrecke t(p[2], p[3]);
  s.IsCross(t, point);
  s.IsUeberlagerung(t);
  s.GetLot(p[4], point, within);
  s.SetLaengeP1_P2(eingabe.Laenge());
  s.ParallelVerschieben(eingabe.Laenge());
  const GEOM2_Polygon polygon = eingabe.Polygon();
  s.IsInside(polygon);
  s.Clipp(polygon);
  lintavo::PolygoneUeberlappen(polygon, eingabe.Polygon(), lintavo::kUeberlappung);
}

void PruefeBauteil(Eingabe& eingabe) {
  CMBauteil part;
  part.DeleteAchsen();
  part.dBreite = eingabe.Laenge();
  part.lLage = eingabe.Zahl(-1, 3);
  XY from = eingabe.Punkt();
  for (int n = eingabe.Zahl(0, 12); n > 0; --n) {
    const XY to = eingabe.Punkt();
    GEOM2_Achse axis;
    if (GEOM2_Polygon::SetAchse(from, to, axis)) part.AddAchse(axis);
    from = to;
  }
  GEOM2_Polygon outline;
  part.GetUmrissPunkte(outline);
  if (!eingabe.IsWild()) Fordere(IstEndlich(outline), "a component's outline is finite");
  for (long i = -1; i <= part.lGetAnzAchsen(); ++i) part.GetUmrissPunkteAchsSegment(i, outline);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Eingabe eingabe(data, size);
  switch (eingabe.Zahl(0, 7)) {
    case 0:
    case 1:
      PruefeVereinigung(eingabe);
      break;
    case 2:
    case 3:
      PruefeVersatz(eingabe);
      break;
    case 4:
      PruefeBereinigung(eingabe);
      break;
    case 5:
      PruefeSchnitt(eingabe);
      break;
    case 6:
      PruefeStrecken(eingabe);
      break;
    default:
      PruefeBauteil(eingabe);
  }
  return 0;
}
