// What fills a sash and sits on it: the filling's contour and slats, the glass
// dimensions between the bars, and the list of fittings.
#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/platform/Numbers_intern.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace {

// As many slats as no real sash has; a damaged file may ask for any number.
constexpr long kMaxLamellen = 1000;
// A remaining height up to this gets no slat of its own.
constexpr double kKleinsterRest = 0.1;

constexpr double kHundertProzent = 100.0;
constexpr double kRechterWinkel = 90.0;
constexpr double kHalbkreis = 180.0;

// Removes the short edges; a small round contour of nothing else stays whole.
void KurzeKantenGlaetten(double minLaenge, GEOM2_Polygon& contour) {
  GEOM2_Polygon glatt = contour;
  glatt.KurzeKantenEntfernen(minLaenge);
  if (glatt.GetAnzahl() >= 3) contour = std::move(glatt);
}

// How slats share a height: whole ones, and the width of the one above them.
struct Lamellenteilung {
  long anzahl = 0;
  double rest = 0.0;
};

Lamellenteilung TeileHoehe(double hoehe, double teilung) {
  // Both truncations are meant, that of the height too, although with it a last
  // whole slat may come out as the rest: the number of slats is fixed by it.
  const auto ganzeHoehe = static_cast<double>(lintavo::TruncateToLong(hoehe));
  const long anzahl = lintavo::TruncateToLong(ganzeHoehe / teilung);
  if (anzahl >= kMaxLamellen) return {kMaxLamellen, 0.0};
  return {anzahl, hoehe - static_cast<double>(anzahl) * teilung};
}

// Lays slats from the bottom up, each behind a gap.
class Lamellenleger {
 public:
  Lamellenleger(const CMFuellung& fuellung, long nummer, const GEOM2_Polygon& contour,
                std::vector<CMBauteil>& slats)
      : luecke_(fuellung.D1), contour_(contour), slats_(slats) {
    contour.GetMinMax(min_, max_);
    y_ = min_.y;
    vorlage_.lTyp = eLamelle;
    vorlage_.dDicke = fuellung.D3;
    vorlage_.lAttribut[0] = fuellung.I1;
    vorlage_.lAttribut[1] = fuellung.I2;
    vorlage_.lAttribut[2] = fuellung.I3;
    vorlage_.lAttribut[3] = fuellung.I4;
    vorlage_.lReferenz = nummer;
  }

  double Hoehe() const { return max_.y - min_.y; }
  bool HatFlaeche() const {
    return max_.x - min_.x >= lintavo::kNullLaenge && Hoehe() >= lintavo::kNullLaenge;
  }

  void Lege(double breite) {
    y_ += breite / 2.0 + luecke_;
    GEOM2_Achse achse;
    if (GEOM2_Polygon::SetAchse({min_.x, y_}, {max_.x, y_}, achse) &&
        contour_.AchseClippen(achse, breite / 2.0)) {
      CMBauteil& lamelle = slats_.emplace_back(vorlage_);
      lamelle.dBreite = breite;
      lamelle.DeleteAchsen();
      lamelle.AddAchse(achse);
    }
    y_ += breite / 2.0;
  }

 private:
  double luecke_;
  const GEOM2_Polygon& contour_;
  std::vector<CMBauteil>& slats_;
  CMBauteil vorlage_;
  XY min_;
  XY max_;
  double y_ = 0.0;
};

bool LegeLamellen(const CMFuellung& fuellung, long nummer, const GEOM2_Polygon& contour,
                  std::vector<CMBauteil>& slats) {
  Lamellenleger leger(fuellung, nummer, contour, slats);
  if (!leger.HatFlaeche()) return false;
  const double breite = fuellung.D2;
  const double teilung = breite + fuellung.D1;
  if (!(breite > lintavo::kNullLaenge && teilung >= lintavo::kNullLaenge)) return true;
  if (!std::isfinite(breite) || !std::isfinite(teilung)) return true;

  const Lamellenteilung lage = TeileHoehe(leger.Hoehe(), teilung);
  for (long i = 0; i < lage.anzahl; ++i) leger.Lege(breite);
  if (lage.rest > kKleinsterRest) leger.Lege(lage.rest);
  return true;
}

// Whether a bar crosses the measured direction at a right angle, whichever way
// it runs itself.
bool IsQuer(const CMBauteil& sprosse, bool hori) {
  const double winkel = std::fabs(sprosse.dGetDrehwinkel());
  const double abweichung =
      hori ? std::fabs(winkel - kRechterWinkel) : std::min(winkel, kHalbkreis - winkel);
  return abweichung <= lintavo::kGeraderWinkel;
}

// The ends of the measured stretch and, between them, the axes of the bars
// across it, in ascending order.
std::vector<double> Teilungspunkte(const std::vector<CMBauteil>& sprossen, bool hori, double von,
                                   double bis) {
  std::vector<double> lagen;
  for (const CMBauteil& sprosse : sprossen) {
    if (!sprosse.IsVorhanden() || !IsQuer(sprosse, hori)) continue;
    XY a;
    XY b;
    sprosse.GetAchspunkte(a, b);
    lagen.push_back(hori ? a.x : a.y);
  }
  std::sort(lagen.begin(), lagen.end());
  std::vector<double> punkte{von};
  for (const double lage : lagen) {
    if (lage - punkte.back() >= lintavo::kNullLaenge && bis - lage >= lintavo::kNullLaenge) {
      punkte.push_back(lage);
    }
  }
  punkte.push_back(bis);
  return punkte;
}

// A distance as a fitting may have it: from 0 to an upper bound.
double ImBereich(double abstand, eVermaszung mode, double laenge) {
  const double hoechstens = mode == eVermaszungAbsolut ? laenge : kHundertProzent;
  return abstand >= 0.0 ? std::min(abstand, hoechstens) : 0.0;
}

}  // namespace

bool CMFensterSatz::GetFuellung(long nummer, GEOM2_Polygon& contour,
                                std::vector<CMBauteil>& slats) const {
  contour.Clear();
  if (!KonturLesen(true, contour)) {
    contour.Clear();
    return false;
  }
  KurzeKantenGlaetten(Fuellung.D7, contour);
  return !Fuellung.IsLamellen() || LegeLamellen(Fuellung, nummer, contour, slats);
}

bool CMFensterSatz::GetMaszeGlaslichteHori(std::vector<CMStrecke>& masze) const {
  return MaszeGlaslichte(true, masze);
}

bool CMFensterSatz::GetMaszeGlaslichteVert(std::vector<CMStrecke>& masze) const {
  return MaszeGlaslichte(false, masze);
}

bool CMFensterSatz::MaszeGlaslichte(bool hori, std::vector<CMStrecke>& masze) const {
  GEOM2_Polygon contour;
  if (!KonturLesen(true, contour)) return false;
  XY min;
  XY max;
  contour.GetMinMax(min, max);
  const std::vector<double> punkte =
      Teilungspunkte(Sprossen, hori, hori ? min.x : min.y, hori ? max.x : max.y);
  const auto ort = [&](double lage) { return hori ? XY{lage, min.y} : XY{min.x, lage}; };
  for (std::size_t i = 0; i + 1 < punkte.size(); ++i) {
    masze.emplace_back(ort(punkte[i]), ort(punkte[i + 1]));
  }
  return true;
}

long CMFensterSatz::ErzeugeBeschlag(long part, eBeschlagTypen type, eVermaszung mode1, double d1,
                                    eVermaszung mode2, double d2) {
  if (part < 0 || part >= lGetAnzahlRahmenBauteile()) return -1;
  const CMBauteil* bauteil = GetRahmenBauteilPtr(part);
  GEOM2_Polygon umriss;
  if (!bauteil || !bauteil->GetUmrissPunkteAchsSegment(0, umriss)) return -1;

  CMBeschlag beschlag;
  beschlag.eTyp = type;
  beschlag.lBauteil = static_cast<int>(part);
  beschlag.eMasz1 = mode1;
  beschlag.dAbstand1 = ImBereich(d1, mode1, umriss.GetKantenLaenge(0));
  beschlag.eMasz2 = mode2;
  beschlag.dAbstand2 = ImBereich(d2, mode2, bauteil->dBreite);
  if (type == eBeschlagGriff) {
    beschlag.eMasz2 = eVermaszungProzent;
    beschlag.dAbstand2 = 0.0;
  }
  Beschlaege.push_back(beschlag);
  return lGetAnzahlBeschlaege() - 1;
}

CMBeschlag* CMFensterSatz::GetBeschlagPtr(long i) {
  return const_cast<CMBeschlag*>(std::as_const(*this).GetBeschlagPtr(i));
}

const CMBeschlag* CMFensterSatz::GetBeschlagPtr(long i) const {
  if (i < 0 || i >= lGetAnzahlBeschlaege()) return nullptr;
  return &Beschlaege[static_cast<std::size_t>(i)];
}
