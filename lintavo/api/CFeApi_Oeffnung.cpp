// The wall opening: its outline, its size, and fitting a window into it.
#include <cmath>
#include <vector>

#include "lintavo/api/CFeApi.h"
#include "lintavo/api/Masz_intern.h"
#include "lintavo/api/Records_intern.h"
#include "lintavo/api/Schutz_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/Achsbereich_intern.h"
#include "lintavo/model/CMFenster.h"

using lintavo::Geschuetzt;
using lintavo::IstMasz;
using lintavo::SetzeLaenge;
using Parameter = CFeApiWandOeffnungsParameter;

namespace {

constexpr int kMitSchraege = 1;

bool IstNull(double value) {
  return std::fabs(value) < lintavo::kNullLaenge;
}

// Equal in magnitude; the sign is not looked at, on purpose.
bool GleicherBetrag(double a, double b) {
  return IstNull(std::fabs(a) - std::fabs(b));
}

// The margins of an opening, one per direction of an edge, outwards positive.
struct Raender {
  double oben;    // edges to the left
  double unten;   // edges to the right
  double rechts;  // edges upwards
  double links;   // edges downwards

  bool SindNull() const {
    return IstNull(oben) && IstNull(unten) && IstNull(rechts) && IstNull(links);
  }
};

double Schraege(int iSchraege, double dWinkel, double dTiefe) {
  return iSchraege == kMitSchraege ? std::tan(dWinkel) * dTiefe : 0.0;
}

// A splay stands in for the reveal of its side; a reveal draws the wall over
// the frame, so it counts inwards.
Raender RaenderAus(const Parameter& param) {
  const double schraege1 = Schraege(param.iSchraege1, param.dWinkel1, param.dTiefe);
  const double schraege2 = Schraege(param.iSchraege2, param.dWinkel2, param.dTiefe);
  return {-param.dLeibungA, -param.dLeibungB, IstNull(schraege1) ? -param.dLeibungC : schraege1,
          IstNull(schraege2) ? -param.dLeibungD : schraege2};
}

// No reveal and no splay at all. A reveal that a splay stands in for still
// counts: only a parameter record without any value is "no opening margins".
bool OhneRaender(const Parameter& param) {
  return IstNull(param.dLeibungA) && IstNull(param.dLeibungB) && IstNull(param.dLeibungC) &&
         IstNull(param.dLeibungD) && RaenderAus(param).SindNull();
}

double RandDerKante(const Raender& raender, double dx, double dy) {
  if (IstNull(dx)) {
    if (dy < -lintavo::kNullLaenge) return raender.links;
    return dy > lintavo::kNullLaenge ? raender.rechts : 0.0;
  }
  return dx < 0.0 ? raender.oben : raender.unten;
}

// Outer outline of the frame and the opening that belongs to it.
bool RahmenUndOeffnung(const CMFenster& fenster, const Parameter& param, GEOM2_Polygon& rahmen,
                       GEOM2_Polygon& oeffnung) {
  if (!fenster.GetRahmenPtr()->ErzeugeRahmenAussenPolygon(rahmen) || rahmen.GetAnzahl() < 3) {
    return false;
  }
  oeffnung = rahmen;
  if (OhneRaender(param)) return true;
  const Raender raender = RaenderAus(param);
  std::vector<double> abstaende;
  abstaende.reserve(static_cast<std::size_t>(rahmen.GetAnzahl()));
  for (int i = 0; i < rahmen.GetAnzahl(); ++i) {
    XY a;
    XY b;
    rahmen.GetKante(i, a, b);
    abstaende.push_back(RandDerKante(raender, b.x - a.x, b.y - a.y));
  }
  return rahmen.ParallelPolygon(abstaende.data(), oeffnung, true);
}

}  // namespace

bool CFeApiWandOeffnungsParameter::operator==(const CFeApiWandOeffnungsParameter& other) const {
  return iSchraege1 == other.iSchraege1 && iSchraege2 == other.iSchraege2 &&
         GleicherBetrag(dWinkel1, other.dWinkel1) && GleicherBetrag(dWinkel2, other.dWinkel2) &&
         GleicherBetrag(dLeibungA, other.dLeibungA) && GleicherBetrag(dLeibungB, other.dLeibungB) &&
         GleicherBetrag(dLeibungC, other.dLeibungC) && GleicherBetrag(dLeibungD, other.dLeibungD) &&
         GleicherBetrag(dTiefe, other.dTiefe);
}

int CFeApi::IsZMaszBreiteHoehe() const {
  long h = -1;
  long v = -1;
  return IsZMaszBreiteHoehe(h, v);
}

int CFeApi::IsZMaszBreiteHoehe(long& h, long& v) const {
  h = -1;
  v = -1;
  if (!pFenster_) return 0;
  const lintavo::Gesamtmasze gesamt = lintavo::SucheGesamtmasze(*pFenster_);
  h = gesamt.breite;
  v = gesamt.hoehe;
  return h >= 0 && v >= 0 ? 1 : 0;
}

int CFeApi::GetWandOeffnung(const Parameter& param, CFeApiPolygon& polygon) const {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    GEOM2_Polygon rahmen;
    GEOM2_Polygon oeffnung;
    if (!RahmenUndOeffnung(*pFenster_, param, rahmen, oeffnung)) return 0;
    lintavo::KopierePolygon(oeffnung, polygon);
    return 1;
  });
}

int CFeApi::GetOeffMasze(const Parameter& param, double& width, double& height) const {
  if (!pFenster_) return 0;
  return Geschuetzt(0, [&] {
    GEOM2_Polygon rahmen;
    GEOM2_Polygon oeffnung;
    if (!RahmenUndOeffnung(*pFenster_, param, rahmen, oeffnung)) return 0;
    XY low;
    XY high;
    oeffnung.GetMinMax(low, high);
    width = high.x - low.x;
    height = high.y - low.y;
    return 1;
  });
}

int CFeApi::SetBreiteHoehe(const Parameter& param, double width, double height) {
  return Geschuetzt(0, [&] {
    long h = -1;
    long v = -1;
    if (!IsZMaszBreiteHoehe(h, v)) return 0;
    double margins[2] = {0.0, 0.0};
    if (!OhneRaender(param)) {
      GEOM2_Polygon rahmen;
      GEOM2_Polygon oeffnung;
      if (!RahmenUndOeffnung(*pFenster_, param, rahmen, oeffnung)) return 0;
      XY rahmenLow;
      XY rahmenHigh;
      XY low;
      XY high;
      rahmen.GetMinMax(rahmenLow, rahmenHigh);
      oeffnung.GetMinMax(low, high);
      margins[0] = (low.x - rahmenLow.x) + (rahmenHigh.x - high.x);
      margins[1] = (low.y - rahmenLow.y) + (rahmenHigh.y - high.y);
    }
    const double length[2] = {width + margins[0], height + margins[1]};
    if (!lintavo::IstMasz(length[0]) || !lintavo::IstMasz(length[1])) return 0;
    lintavo::SetzeLaenge(*ZusatzMasz(h), length[0]);
    lintavo::SetzeLaenge(*ZusatzMasz(v), length[1]);
    return 1;
  });
}
