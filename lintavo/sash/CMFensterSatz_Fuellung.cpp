// What fills a sash and sits on it: the filling's contour and slats, the glass
// dimensions between the bars, and the list of fittings.
#include <algorithm>
#include <cmath>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Lamellenlage_intern.h"

namespace {

constexpr double kMaxProzent = 100.0;
constexpr double kRechterWinkel = 90.0;
constexpr double kHalbkreis = 180.0;

// Removes the short edges; a small round contour of nothing else stays whole.
void KurzeKantenGlaetten(double minLaenge, GEOM2_Polygon& contour) {
  GEOM2_Polygon glatt = contour;
  glatt.KurzeKantenEntfernen(minLaenge);
  if (glatt.GetAnzahl() >= 3) contour = std::move(glatt);
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
  const double hoechstens = mode == eVermaszungAbsolut ? laenge : kMaxProzent;
  return abstand >= 0.0 ? std::min(abstand, hoechstens) : 0.0;
}

}  // namespace

bool CMFensterSatz::FuellungsKontur(GEOM2_Polygon& contour) const {
  contour.Clear();
  if (!KonturLesen(true, contour)) {
    contour.Clear();
    return false;
  }
  KurzeKantenGlaetten(Fuellung.D7, contour);
  return true;
}

bool CMFensterSatz::GetFuellung(long nummer, GEOM2_Polygon& contour,
                                std::vector<CMBauteil>& slats) const {
  if (!FuellungsKontur(contour)) return false;
  if (!Fuellung.IsLamellen()) return true;
  lintavo::Lamellenlage lage(Fuellung, nummer, contour);
  CMBauteil lamelle;
  for (long platz = 0; platz < lage.Plaetze(); ++platz) {
    if (lage.Lege(platz, lamelle)) slats.push_back(lamelle);
  }
  return lage.HatFlaeche();
}

long CMFensterSatz::GetAnzahlLamellen() const {
  GEOM2_Polygon contour;
  if (!Fuellung.IsLamellen() || !FuellungsKontur(contour)) return 0;
  return lintavo::Lamellenlage(Fuellung, 0, contour).Anzahl();
}

bool CMFensterSatz::GetLamelle(long nummer, long i, CMBauteil& lamelle) const {
  GEOM2_Polygon contour;
  if (!Fuellung.IsLamellen() || !FuellungsKontur(contour)) return false;
  return lintavo::Lamellenlage(Fuellung, nummer, contour).LegeNummer(i, lamelle);
}

bool CMFensterSatz::GetLamellenUmriss(long i, GEOM2_Polygon& umriss) const {
  GEOM2_Polygon innen;
  umriss.Clear();
  if (!Fuellung.IsLamellen() || !KonturLesen(true, innen)) return false;
  GEOM2_Polygon contour = innen;
  KurzeKantenGlaetten(Fuellung.D7, contour);
  CMBauteil lamelle;
  if (!lintavo::Lamellenlage(Fuellung, 0, contour).LegeNummer(i, lamelle)) return false;
  umriss = lintavo::SichtbareLamelle(lamelle, innen);
  return true;
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
