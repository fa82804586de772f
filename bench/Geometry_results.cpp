#include <cmath>
#include <random>
#include <vector>

#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Toleranzen.h"

#include "Results.h"

namespace lintavo::bench {
namespace {

constexpr int kOutlines = 4000;
constexpr int kUnions = 1500;

using Random = std::mt19937;

// The same on every machine, unlike the library's distributions.
double Between(Random& random, double low, double high) {
  return low + (high - low) * (static_cast<double>(random() % 100000U) / 100000.0);
}

// A star: convex where the radius is constant, with folds and loops where corners
// go back.
GEOM2_Polygon Star(Random& random) {
  GEOM2_Polygon polygon;
  const int corners = 3 + static_cast<int>(random() % 14U);
  const double rough = random() % 3U == 0 ? 0.0 : Between(random, 0.0, 0.9);
  const double back = random() % 4U == 0 ? 2.5 : 0.0;
  const XY centre{Between(random, -100, 100), Between(random, -100, 100)};
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * kPi * (i + back * Between(random, -1, 1)) / corners;
    const double radius = 60.0 * (1.0 - rough * Between(random, 0, 1));
    polygon.AddPunkt(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), i,
                     i * 0.5, i % 3);
  }
  if (random() % 2U == 0) polygon.Umkehren();
  return polygon;
}

// Corners on a coarse grid: repeated ones, spikes, collinear runs.
GEOM2_Polygon Coarse(Random& random) {
  GEOM2_Polygon polygon;
  const int corners = 2 + static_cast<int>(random() % 9U);
  for (int i = 0; i < corners; ++i) {
    const XY p{static_cast<double>(random() % 5U) * 20.0,
               static_cast<double>(random() % 5U) * 20.0};
    polygon.AddPunkt(p.x, p.y, i, i * 0.5, i % 3);
  }
  return polygon;
}

GEOM2_Polygon Rectangle(Random& random) {
  const double x = static_cast<double>(random() % 6U) * 30.0;
  const double y = static_cast<double>(random() % 6U) * 30.0;
  const double w = static_cast<double>(1U + random() % 4U) * 30.0;
  const double h = static_cast<double>(1U + random() % 4U) * 30.0 + Between(random, 0, 0.0005);
  GEOM2_Polygon polygon;
  polygon.AddPunkt(x, y, 0.0, 0.0, 1);
  polygon.AddPunkt(x + w, y, 1.0, 0.0, 2);
  polygon.AddPunkt(x + w, y + h, 2.0, 0.0, 3);
  polygon.AddPunkt(x, y + h, 3.0, 0.0, 4);
  return polygon;
}

GEOM2_Polygon AnyOutline(Random& random) {
  switch (random() % 3U) {
    case 0:
      return Star(random);
    case 1:
      return Coarse(random);
    default:
      return Rectangle(random);
  }
}

void PrintOffsets(const GEOM2_Polygon& polygon, Random& random) {
  GEOM2_Polygon result;
  polygon.ParallelPolygon(Between(random, -30, 30), result);
  Print(result);
  std::vector<double> distances;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) distances.push_back(Between(random, -20, 20));
  for (const bool clean : {false, true}) {
    std::printf("%d", polygon.ParallelPolygon(distances.data(), result, clean));
    Print(result);
  }
  for (double& d : distances) d = -std::fabs(d);
  std::printf("%d", polygon.ParallelPolygon(distances.data(), result, true));
  Print(result);
}

void PrintCleaned(const GEOM2_Polygon& polygon) {
  for (const double tol : {kNullLaenge, kBereinigenGrob, 1.0}) {
    for (const bool loops : {false, true}) {
      GEOM2_Polygon copy = polygon;
      std::printf("%d", copy.Bereinigen(tol, loops));
      Print(copy);
    }
  }
  GEOM2_Polygon copy = polygon;
  copy.KurzeKantenEntfernen(5.0);
  Print(copy);
}

void PrintCuts(const GEOM2_Polygon& polygon, Random& random) {
  for (int i = 0; i < 4; ++i) {
    XY a{Between(random, -200, 200), Between(random, -200, 200)};
    XY b{Between(random, -200, 200), Between(random, -200, 200)};
    if (i == 3 && polygon.GetAnzahl() > 2) polygon.GetKante(1, a, b);
    GEOM2_Achse axis;
    GEOM2_Polygon::SetAchse(a, b, axis);
    std::printf("%d", polygon.AchseClippen(axis, Between(random, 0, 8)));
    for (const double value : {axis.Start.x, axis.Start.y, axis.dLaenge, axis.dWinkel,
                               axis.dWinkelAnfang, axis.dWinkelEnde}) {
      Print(value);
    }
    std::printf(" %d", polygon.StreckeClippen(a, b));
    for (const double value : {a.x, a.y, b.x, b.y}) Print(value);
    std::printf(" %d %d\n", polygon.IsInside(a, true, kNullLaenge),
                polygon.IsInside(b, false, kInnenTest));
  }
}

void PrintUnion(Random& random) {
  std::vector<GEOM2_Polygon> shapes;
  const std::size_t count = 1U + random() % 8U;
  for (std::size_t i = 0; i < count; ++i) {
    shapes.push_back(random() % 4U == 0 ? AnyOutline(random) : Rectangle(random));
  }
  GEOM2_Polygon outline;
  double box[4];
  std::printf("%d", bPolygoneAddieren(shapes, outline, kVereinigung, box));
  for (const double value : box) Print(value);
  Print(outline);
}

}  // namespace

void PrintGeometry() {
  std::printf("== geometry\n");
  Random random(20240229);
  for (int i = 0; i < kOutlines; ++i) {
    const GEOM2_Polygon polygon = AnyOutline(random);
    Print(polygon);
    PrintOffsets(polygon, random);
    PrintCleaned(polygon);
    PrintCuts(polygon, random);
  }
  for (int i = 0; i < kUnions; ++i) PrintUnion(random);
}

}  // namespace lintavo::bench
