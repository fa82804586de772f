#include "lintavo/model/CMBauteil.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/view/WindowView.h"

namespace {

constexpr long kMaxAbschnittsTyp = 4;

int AbschnittsTyp(long typ) {
  return typ < 0 || typ > kMaxAbschnittsTyp ? 0 : static_cast<int>(typ);
}

// Rotation about `centre` by the angle with the given cosine and sine.
XY Gedreht(const XY& p, const XY& centre, double c, double s) {
  const double dx = p.x - centre.x;
  const double dy = p.y - centre.y;
  return {centre.x + dx * c - dy * s, centre.y + dx * s + dy * c};
}

}  // namespace

CMBauteil::CMBauteil() : Achsen(1) {}

GEOM2_Achse& CMBauteil::Achse(long i) {
  assert(i >= 0 && i < lGetAnzAchsen());
  return Achsen[static_cast<std::size_t>(i)];
}

const GEOM2_Achse& CMBauteil::Achse(long i) const {
  assert(i >= 0 && i < lGetAnzAchsen());
  return Achsen[static_cast<std::size_t>(i)];
}

void CMBauteil::SetAbschittsTypen(long anfang, long ende) {
  cAbschnittsTypAnfang = AbschnittsTyp(anfang);
  cAbschnittsTypEnde = AbschnittsTyp(ende);
}

bool CMBauteil::GetAchspunkte(XY& a, XY& b) const {
  return GetAchspunkte(0, a, b);
}

bool CMBauteil::GetAchspunkte(long i, XY& a, XY& b) const {
  if (i < 0 || i >= lGetAnzAchsen()) return false;
  a = Achse(i).Start;
  b = lintavo::EndOf(Achse(i));
  return true;
}

bool CMBauteil::GetAchspunkte(CMStrecke& strecke) const {
  XY a;
  XY b;
  if (!GetAchspunkte(a, b)) return false;
  strecke.SetPunkte(a, b);
  return true;
}

double CMBauteil::GetAchsLaenge() const {
  double laenge = 0.0;
  for (const GEOM2_Achse& achse : Achsen) laenge += achse.dLaenge;
  return laenge;
}

double CMBauteil::dGetDrehwinkel() const {
  XY a;
  XY b;
  if (!GetAchspunkte(a, b)) return 0.0;
  return std::atan2(b.y - a.y, b.x - a.x) * 180.0 / lintavo::kPi;
}

bool CMBauteil::IsVorhanden() const {
  return dBreite >= lintavo::kNullLaenge && GetAchsLaenge() >= lintavo::kNullLaenge;
}

bool CMBauteil::Verschieben(double dx, double dy) {
  for (GEOM2_Achse& achse : Achsen) {
    achse.Start.x += dx;
    achse.Start.y += dy;
  }
  return true;
}

bool CMBauteil::Verschieben(double dx, double dy, int iEnde, double x, double y) {
  if (iEnde != 1 && iEnde != 2) return Verschieben(dx, dy);
  // Either end puts the start, on purpose: hosts rely on both acting alike.
  if (!Achsen.empty()) Achsen.front().Start = {x + dx, y + dy};
  return true;
}

void CMBauteil::Verlaengern(double anfang, double ende) {
  if (Achsen.empty()) return;
  GEOM2_Achse& achse = Achsen.front();
  const double winkel = achse.dWinkel * lintavo::kPi / 180.0;
  const XY richtung{std::cos(winkel), std::sin(winkel)};
  const XY b = lintavo::EndOf(achse);
  GEOM2_Polygon::SetAchse(
      {achse.Start.x - anfang * richtung.x, achse.Start.y - anfang * richtung.y},
      {b.x + ende * richtung.x, b.y + ende * richtung.y}, achse);
}

void CMBauteil::Drehen(double winkel) {
  if (Achsen.empty()) return;
  const double c = std::cos(winkel * lintavo::kPi / 180.0);
  const double s = std::sin(winkel * lintavo::kPi / 180.0);
  const XY centre = Achsen.front().Start;
  for (GEOM2_Achse& achse : Achsen) {
    const XY a = Gedreht(achse.Start, centre, c, s);
    const XY b = Gedreht(lintavo::EndOf(achse), centre, c, s);
    GEOM2_Polygon::SetAchse(a, b, achse);
  }
}

bool CMBauteil::Ordnen(std::vector<CMBauteil>& bauteile, bool bAufsteigend) {
  const auto key = [](const CMBauteil& bauteil) { return bauteil.lReihenfolge; };
  if (bauteile.empty()) return false;
  const auto byKey = [&](const CMBauteil& a, const CMBauteil& b) { return key(a) < key(b); };
  const auto [lowest, highest] = std::minmax_element(bauteile.begin(), bauteile.end(), byKey);
  // A negative key has no place in the order; the list then stays whole.
  if (key(*highest) < 1 || key(*lowest) < 0) return false;
  std::stable_sort(bauteile.begin(), bauteile.end(), [&](const CMBauteil& a, const CMBauteil& b) {
    return bAufsteigend ? key(a) < key(b) : key(a) > key(b);
  });
  return true;
}
