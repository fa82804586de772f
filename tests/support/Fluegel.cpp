#include "support/Fluegel.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "support/Geometrie.h"

namespace lintavo::test {
namespace {

constexpr double kRahmenAbschnitt = 100.0;
constexpr double kRahmenWinkel = 25.0;

bool Gleich(const CMStrecke& s, const CMStrecke& t, double tol) {
  XY a, b, c, d;
  s.GetPunkte(a, b);
  t.GetPunkte(c, d);
  const auto nahe = [tol](const XY& p, const XY& q) {
    return std::fabs(p.x - q.x) <= tol && std::fabs(p.y - q.y) <= tol;
  };
  return (nahe(a, c) && nahe(b, d)) || (nahe(a, d) && nahe(b, c));
}

}  // namespace

CMFensterSatzRechteck Fluegel(const GEOM2_Polygon& umriss, double rahmenbreite) {
  CMFensterSatzRechteck fluegel;
  fluegel.SetRahmenDefaults(rahmenbreite, 5.0, 0.0, 1, 3);
  EXPECT_TRUE(
      fluegel.BerechneRahmenPolygon(kRahmenAbschnitt, kRahmenWinkel, CMFensterSatz(), umriss));
  EXPECT_TRUE(fluegel.ErzeugeRahmenBauteile());
  return fluegel;
}

std::vector<CMStrecke> Linien(const std::string& text) {
  const GEOM2_Polygon punkte = Poly(text);
  std::vector<CMStrecke> linien;
  for (int i = 0; i + 1 < punkte.GetAnzahl(); i += 2) {
    const GEOM2_Eckpunkt& a = punkte.GetEckpunkt(i);
    const GEOM2_Eckpunkt& b = punkte.GetEckpunkt(i + 1);
    linien.emplace_back(a.x, a.y, b.x, b.y);
  }
  return linien;
}

std::string Text(const std::vector<CMStrecke>& linien) {
  std::ostringstream text;
  text.precision(12);
  for (const CMStrecke& linie : linien) {
    XY a, b;
    linie.GetPunkte(a, b);
    text << "  (" << a.x << ',' << a.y << ") (" << b.x << ',' << b.y << ')';
  }
  return text.str();
}

testing::AssertionResult GleicheLinien(const std::vector<CMStrecke>& erwartet,
                                       const std::vector<CMStrecke>& ist, double tol) {
  std::vector<CMStrecke> uebrig = ist;
  for (const CMStrecke& linie : erwartet) {
    const auto found = std::find_if(uebrig.begin(), uebrig.end(), [&](const CMStrecke& andere) {
      return Gleich(linie, andere, tol);
    });
    if (found == uebrig.end()) {
      return testing::AssertionFailure()
             << "missing" << Text(std::vector<CMStrecke>{linie}) << "\n  is" << Text(ist);
    }
    uebrig.erase(found);
  }
  if (uebrig.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "too many:" << Text(uebrig);
}

}  // namespace lintavo::test
