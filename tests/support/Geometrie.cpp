// Polygons as text, and their comparison.
#include "tests/support/Geometrie.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Toleranzen.h"

namespace lintavo::test {
namespace {

std::string Ecke(const GEOM2_Polygon& polygon, int i, bool mitAttribut) {
  const GEOM2_Eckpunkt& ecke = polygon.GetEckpunkt(i);
  std::ostringstream text;
  text.precision(12);
  text << '(' << ecke.x << ',' << ecke.y;
  if (mitAttribut) text << ',' << ecke.Attribut;
  text << ')';
  return text.str();
}

/// Index of the first vertex that differs when ist is read from start on, or -1.
int ErsterUnterschied(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist, int start,
                      double tol) {
  const int n = erwartet.GetAnzahl();
  for (int i = 0; i < n; ++i) {
    const GEOM2_Eckpunkt& a = erwartet.GetEckpunkt(i);
    const GEOM2_Eckpunkt& b = ist.GetEckpunkt((i + start) % n);
    if (!(std::hypot(a.x - b.x, a.y - b.y) <= tol)) return i;
  }
  return -1;
}

testing::AssertionResult Verschieden(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist,
                                     const std::string& grund) {
  return testing::AssertionFailure()
         << grund << "\n  expected " << Text(erwartet) << "\n  is       " << Text(ist);
}

testing::AssertionResult AndereAnzahl(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist) {
  return Verschieden(erwartet, ist,
                     std::to_string(ist.GetAnzahl()) + " vertices instead of " +
                         std::to_string(erwartet.GetAnzahl()));
}

}  // namespace

GEOM2_Polygon Poly(const std::string& text) {
  GEOM2_Polygon polygon;
  std::istringstream strom(text);
  char auf = 0;
  while (strom >> auf) {
    double x = 0;
    double y = 0;
    char komma = 0;
    char zu = 0;
    int attribut = 0;
    strom >> x >> komma >> y >> zu;
    if (zu == ',') strom >> attribut >> zu;
    if (!strom || auf != '(' || zu != ')') {
      std::cerr << "no polygon: " << text << '\n';
      std::abort();
    }
    polygon.AddPunkt(x, y, 0.0, 0.0, attribut);
  }
  return polygon;
}

std::string Text(const GEOM2_Polygon& polygon) {
  bool mitAttribut = false;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    mitAttribut = mitAttribut || polygon.GetAttribut(i) != 0;
  }
  std::string text;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    if (i > 0) text += ' ';
    text += Ecke(polygon, i, mitAttribut);
  }
  return text;
}

GEOM2_Polygon Rechteck(double x0, double y0, double x1, double y1) {
  GEOM2_Polygon polygon;
  polygon.AddPunkt(x0, y0);
  polygon.AddPunkt(x1, y0);
  polygon.AddPunkt(x1, y1);
  polygon.AddPunkt(x0, y1);
  return polygon;
}

GEOM2_Polygon Vieleck(int ecken, double radius, const XY& mitte) {
  GEOM2_Polygon polygon;
  for (int i = 0; i < ecken; ++i) {
    const double winkel = 2 * kPi * i / ecken;
    polygon.AddPunkt(mitte.x + radius * std::cos(winkel), mitte.y + radius * std::sin(winkel));
  }
  return polygon;
}

GEOM2_Polygon Gedreht(const GEOM2_Polygon& polygon, double grad) {
  GEOM2_Polygon neu = polygon;
  neu.Transformieren(std::cos(grad * kPi / 180), std::sin(grad * kPi / 180), 0, 0);
  return neu;
}

GEOM2_Polygon Gespiegelt(const GEOM2_Polygon& polygon) {
  GEOM2_Polygon neu = polygon;
  for (int i = 0; i < neu.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& ecke = polygon.GetEckpunkt(i);
    neu.SetPunkt(i, -ecke.x, ecke.y);
  }
  neu.Umkehren();
  return neu;
}

double Umfang(const GEOM2_Polygon& polygon) {
  double summe = 0.0;
  for (int i = 0; i < polygon.GetAnzahl(); ++i) summe += polygon.GetKantenLaenge(i);
  return summe;
}

bool IstSchleifenfrei(const GEOM2_Polygon& polygon) {
  const int n = polygon.GetAnzahl();
  for (int i = 0; i < n; ++i) {
    for (int j = i + 2; j < n - (i == 0 ? 1 : 0); ++j) {
      XY a, b, c, d;
      polygon.GetKante(i, a, b);
      polygon.GetKante(j, c, d);
      const CMStrecke s(a, b);
      const CMStrecke t(c, d);
      if (s.IsCross(t)) return false;
    }
  }
  return true;
}

testing::AssertionResult GleicherRing(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist,
                                      double tol) {
  const int n = erwartet.GetAnzahl();
  if (n != ist.GetAnzahl()) return AndereAnzahl(erwartet, ist);
  int weiteste = 0;
  for (int start = 0; start < n; ++start) {
    const int unterschied = ErsterUnterschied(erwartet, ist, start, tol);
    if (unterschied < 0) return testing::AssertionSuccess();
    weiteste = std::max(weiteste, unterschied);
  }
  if (n == 0) return testing::AssertionSuccess();
  return Verschieden(erwartet, ist,
                     "vertex " + Ecke(erwartet, weiteste, false) + " has no counterpart");
}

testing::AssertionResult GleichesPolygon(const GEOM2_Polygon& erwartet, const GEOM2_Polygon& ist,
                                         double tol) {
  if (erwartet.GetAnzahl() != ist.GetAnzahl()) return AndereAnzahl(erwartet, ist);
  const int unterschied = ErsterUnterschied(erwartet, ist, 0, tol);
  if (unterschied >= 0) {
    return Verschieden(erwartet, ist,
                       "vertex " + std::to_string(unterschied) + " is " +
                           Ecke(ist, unterschied, false) + " instead of " +
                           Ecke(erwartet, unterschied, false));
  }
  for (int i = 0; i < erwartet.GetAnzahl(); ++i) {
    if (erwartet.GetAttribut(i) == ist.GetAttribut(i)) continue;
    return Verschieden(erwartet, ist, "attribute of vertex " + std::to_string(i) + " differs");
  }
  return testing::AssertionSuccess();
}

}  // namespace lintavo::test
