#include "lintavo/sash/CMBeschlag.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/sash/Beschlagbild_intern.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace {

constexpr double kHundertProzent = 100.0;

// A handle, in drawing units: an eight-sided rosette, from one flat side of which
// the lever reaches out.
//      __
//    /    \_____________
//    |  p  _____________|
//    \ __ /
constexpr double kGriffLaenge = 12.0;
constexpr double kRosette = 2.0;  // from its middle to a flat side
constexpr int kRosettenEcken = 8;
// A hinge: a barrel of three equal knuckles.
constexpr double kBandLaenge = 8.0;
constexpr double kBandBreite = 2.0;
constexpr int kBandGlieder = 3;
// Half the extent of the cross.
constexpr double kKreuz = 2.0;

// The distance as a length; one beyond its bound is brought back to it.
double Laenge(eVermaszung mode, double& abstand, double ganze) {
  const bool absolut = mode == eVermaszungAbsolut;
  const double hoechstens = absolut ? ganze : kHundertProzent;
  if (abstand > hoechstens) abstand = hoechstens;
  return absolut ? abstand : ganze * abstand / kHundertProzent;
}

// The frame part that carries a fitting, or null. The template that stands in for
// parts past the end of the list carries none.
const CMBauteil* TragendesBauteil(const CMFensterSatz* sash, long part) {
  if (!sash || part < 0 || static_cast<std::size_t>(part) >= sash->RahmenTeile.size()) {
    return nullptr;
  }
  const CMBauteil* bauteil = sash->GetRahmenBauteilPtr(part);
  return bauteil && bauteil->IsVorhanden() ? bauteil : nullptr;
}

// A direction (x) and its left (y), around a point.
class Lage {
 public:
  Lage(const XY& p, double winkel)
      : p_(p),
        c_(std::cos(winkel * lintavo::kRadiantJeGrad)),
        s_(std::sin(winkel * lintavo::kRadiantJeGrad)) {}

  XY Ort(const XY& p) const { return {p_.x + p.x * c_ - p.y * s_, p_.y + p.x * s_ + p.y * c_}; }

 private:
  XY p_;
  double c_;
  double s_;
};

// How a fitting lies. The lever of a handle hangs, on whichever upright part.
Lage LageVon(const CMBeschlag& beschlag, const XY& p, double angle) {
  const bool haengt = std::sin(angle * lintavo::kRadiantJeGrad) <= lintavo::kParallelSinus;
  return {p, beschlag.eTyp != eBeschlagGriff || haengt ? angle : angle + 180.0};
}

bool IstZeichenbar(const XY& p, double angle) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(angle);
}

class Zeichnung {
 public:
  Zeichnung(const Lage& lage, std::vector<CMStrecke>& lines) : lage_(lage), lines_(lines) {}

  void Strich(const XY& a, const XY& b) { lines_.emplace_back(lage_.Ort(a), lage_.Ort(b)); }

 private:
  Lage lage_;
  std::vector<CMStrecke>& lines_;
};

constexpr double kRosettenSchritt = 2.0 * lintavo::kPi / kRosettenEcken;

// Corner i of the rosette; the lever reaches out between corners 0 and 1.
XY Rosettenecke(int i) {
  const double radius = kRosette / std::cos(kRosettenSchritt / 2.0);
  return {radius * std::cos((i - 0.5) * kRosettenSchritt),
          radius * std::sin((i - 0.5) * kRosettenSchritt)};
}

double HalberHebel() {
  return kRosette * std::tan(kRosettenSchritt / 2.0);
}

void ZeichneGriff(Zeichnung& zeichnung) {
  for (int i = 0; i < kRosettenEcken; ++i) {
    zeichnung.Strich(Rosettenecke(i), Rosettenecke(i + 1));
  }
  const double halb = HalberHebel();
  zeichnung.Strich({kRosette, -halb}, {kGriffLaenge, -halb});
  zeichnung.Strich({kGriffLaenge, -halb}, {kGriffLaenge, halb});
  zeichnung.Strich({kGriffLaenge, halb}, {kRosette, halb});
}

void ZeichneBand(Zeichnung& zeichnung) {
  const double u = kBandLaenge / 2.0;
  const double v = kBandBreite / 2.0;
  zeichnung.Strich({-u, -v}, {u, -v});
  zeichnung.Strich({-u, v}, {u, v});
  for (int i = 0; i <= kBandGlieder; ++i) {
    const double quer = -u + kBandLaenge * i / kBandGlieder;
    zeichnung.Strich({quer, -v}, {quer, v});
  }
}

void ZeichneKreuz(Zeichnung& zeichnung) {
  zeichnung.Strich({-kKreuz, -kKreuz}, {kKreuz, kKreuz});
  zeichnung.Strich({-kKreuz, kKreuz}, {kKreuz, -kKreuz});
}

// The corners of what a fitting covers, counter-clockwise, in its own frame.
std::vector<XY> Umrissecken(eBeschlagTypen typ) {
  std::vector<XY> ecken;
  if (typ == eBeschlagGriff) {
    for (int i = 1; i <= kRosettenEcken; ++i) ecken.push_back(Rosettenecke(i));
    ecken.push_back({kGriffLaenge, -HalberHebel()});
    ecken.push_back({kGriffLaenge, HalberHebel()});
  } else if (typ == eBeschlagBand) {
    const double u = kBandLaenge / 2.0;
    const double v = kBandBreite / 2.0;
    ecken = {{-u, -v}, {u, -v}, {u, v}, {-u, v}};
  }
  return ecken;
}

}  // namespace

GEOM2_Polygon lintavo::BeschlagUmriss(const CMBeschlag& beschlag, const XY& p, double angle) {
  GEOM2_Polygon umriss;
  if (!IstZeichenbar(p, angle)) return umriss;
  const Lage lage = LageVon(beschlag, p, angle);
  for (const XY& ecke : Umrissecken(beschlag.eTyp)) {
    const XY ort = lage.Ort(ecke);
    umriss.AddPunkt(ort.x, ort.y);
  }
  return umriss;
}

bool CMBeschlag::GetPunkt(const CMFensterSatz* sash, XY& p, double& angle) {
  const CMBauteil* bauteil = TragendesBauteil(sash, lBauteil);
  GEOM2_Polygon umriss;
  if (!bauteil || !bauteil->GetUmrissPunkteAchsSegment(0, umriss)) return false;
  XY a;
  XY b;
  umriss.GetKante(0, a, b);
  const double richtung = std::atan2(b.y - a.y, b.x - a.x);
  const double c = std::cos(richtung);
  const double s = std::sin(richtung);
  const double entlang = Laenge(eMasz1, dAbstand1, umriss.GetKantenLaenge(0));
  const double quer = Laenge(eMasz2, dAbstand2, bauteil->dBreite);
  const XY ort{a.x + entlang * c - quer * s, a.y + entlang * s + quer * c};
  if (!std::isfinite(ort.x) || !std::isfinite(ort.y)) return false;
  p = ort;
  angle = richtung * lintavo::kGradJeRadiant;
  return true;
}

bool CMBeschlag::GetPunkt(const CMFensterSatz* sash, XY& p) {
  double angle = 0.0;
  return GetPunkt(sash, p, angle);
}

void CMBeschlag::GetZeichnung(std::vector<CMStrecke>& lines, const XY& p, double angle) const {
  if (!IstZeichenbar(p, angle)) return;
  Zeichnung zeichnung(LageVon(*this, p, angle), lines);
  if (eTyp == eBeschlagGriff) {
    ZeichneGriff(zeichnung);
  } else if (eTyp == eBeschlagBand) {
    ZeichneBand(zeichnung);
  } else {
    ZeichneKreuz(zeichnung);
  }
}
