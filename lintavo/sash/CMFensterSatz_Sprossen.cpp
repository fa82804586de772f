// Glazing bars: single ones, bars laid by a pattern, and their cut to the
// inner contour of the sash.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/Masze_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/CMFensterSatz.h"

using lintavo::NumberedName;
using lintavo::ReadMasz;
using lintavo::ReadMasze;
using lintavo::StringId;
using lintavo::Text;

namespace {

// The range of a pattern that is drawn in drawing units as it stands.
constexpr double kBereichEinfach = 100.0;
// A pattern that does not give these gets them unscaled.
constexpr double kBildBreite = 3.0;
constexpr double kBildDicke = 2.0;
constexpr long kSprossenZahlen = 4;

void Normalisiere(GEOM2_Polygon& contour) {
  contour.SetOrientierung(true);
  contour.Bereinigen(lintavo::kNullLaenge);
}

bool HatZusatzteilInnen(const std::vector<CMBauteil>& teile) {
  return std::any_of(teile.begin(), teile.end(),
                     [](const CMBauteil& teil) { return teil.IsZusatzteilInnen(); });
}

bool HatLaenge(const GEOM2_Achse& achse) {
  return achse.dLaenge >= lintavo::kNullLaenge && std::isfinite(achse.dLaenge);
}

// How a pattern lies in a sash.
struct Sprossenbild {
  double faktor = 1.0;  // drawing units per pattern unit, where nothing is stretched
  double sx = 1.0;
  double sy = 1.0;
  XY ursprung;
  double breite = kBildBreite;
  double dicke = kBildDicke;

  XY Punkt(double x, double y) const { return {x * sx + ursprung.x, y * sy + ursprung.y}; }
};

// False when the pattern has no range. A width above zero takes the place of the
// pattern's own.
bool ReadSprossenbild(CIniFile& pattern, const GEOM2_Polygon& contour, double breite,
                      Sprossenbild& bild) {
  const char* section = Text(StringId::Allgemeines);
  bool skalieren = false;
  double bereich = 0.0;
  pattern.GetBool(section, Text(StringId::Skalieren), skalieren);
  ReadMasz(pattern, section, Text(StringId::Bereich), bereich);
  if (!(bereich >= lintavo::kNullLaenge)) return false;

  bild.faktor = kBereichEinfach / bereich;
  // Only a width or thickness that the pattern gives is scaled, on purpose: the
  // defaults are drawing units already.
  double wert = 0.0;
  if (ReadMasz(pattern, section, Text(StringId::Breite), wert)) bild.breite = wert * bild.faktor;
  if (ReadMasz(pattern, section, Text(StringId::Dicke), wert)) bild.dicke = wert * bild.faktor;
  if (breite > lintavo::kNullLaenge) bild.breite = breite;

  XY min;
  XY max;
  contour.GetMinMax(min, max);
  if (skalieren) {
    bild.sx = (max.x - min.x + bild.breite) / bereich;
    bild.sy = (max.y - min.y + bild.breite) / bereich;
    bild.ursprung = {min.x - bild.breite / 2.0, min.y - bild.breite / 2.0};
  } else {
    bild.sx = bild.sy = bild.faktor;
    bild.ursprung = {(min.x + max.x) / 2.0, min.y};
  }
  return true;
}

// A bar from one point to another.
GEOM2_Achse AchseVonPunkten(const Sprossenbild& bild, const double (&werte)[kSprossenZahlen]) {
  GEOM2_Achse achse;
  if (!GEOM2_Polygon::SetAchse(bild.Punkt(werte[0], werte[1]), bild.Punkt(werte[2], werte[3]),
                               achse)) {
    achse.dLaenge = 0.0;
  }
  return achse;
}

// A bar from a point in a direction. Angle and length are not stretched, on
// purpose, even where the pattern is: a slanted bar keeps its direction.
GEOM2_Achse AchseMitRichtung(const Sprossenbild& bild, const double (&werte)[kSprossenZahlen]) {
  GEOM2_Achse achse;
  achse.Start = bild.Punkt(werte[0], werte[1]);
  achse.dWinkel = werte[2];
  achse.dLaenge = werte[3] * bild.faktor;
  return achse;
}

}  // namespace

bool CMFensterSatz::ErzeugeSprossenBild(long nummer, CIniFile& pattern, double breite) {
  GEOM2_Polygon contour;
  if (!SprossenKontur(contour)) {
    throw CMException(static_cast<int>(StringId::MeldungSprossenbild), strName);
  }
  Sprossenbild bild;
  if (!ReadSprossenbild(pattern, contour, breite, bild)) return false;

  CMBauteil vorlage = SprossenVorlage;
  vorlage.lSprossenBild = nummer;
  if (bild.breite > lintavo::kNullLaenge) vorlage.dBreite = bild.breite;
  if (bild.dicke > lintavo::kNullLaenge) vorlage.dDicke = bild.dicke;

  const auto addBars = [&](StringId prefix, auto achseVon) {
    double werte[kSprossenZahlen];
    for (long i = 1; i <= lintavo::kMaxBildsprossen; ++i) {
      const CString key = NumberedName(prefix, i);
      if (!ReadMasze(pattern, Text(StringId::Allgemeines), key, kSprossenZahlen, werte)) return;
      SprosseAnfuegen(vorlage, achseVon(bild, werte), contour);
    }
  };
  addBars(StringId::PraefixA, AchseVonPunkten);
  addBars(StringId::PraefixD, AchseMitRichtung);
  return true;
}

CMBauteil* CMFensterSatz::AddSprosse(const CMBauteil& vorlage, const XY& p1, const XY& p2,
                                     const GEOM2_Polygon& contour) {
  GEOM2_Polygon normal = contour;
  Normalisiere(normal);
  GEOM2_Achse achse;
  if (!GEOM2_Polygon::SetAchse(p1, p2, achse)) return nullptr;
  return SprosseAnfuegen(vorlage, achse, normal);
}

void CMFensterSatz::ClippSprossen() {
  // Without bars only the error of a sash whose inner extra parts leave no room matters;
  // without those its frame parts would have met the same contour.
  if (Sprossen.empty() && bMitRahmen && !HatZusatzteilInnen(EinzelTeile)) return;
  GEOM2_Polygon contour;
  if (!ErzeugeRahmenInnenPolygon(true, contour)) return;
  for (int i = 0; i < contour.GetAnzahl(); ++i) {
    contour.SetWert2(i, 0.0);
    contour.SetAttribut(i, 0);
  }
  for (CMBauteil& sprosse : Sprossen) {
    if (sprosse.Achsen.empty()) continue;
    GEOM2_Achse& achse = sprosse.Achsen.front();
    // The whole width on both sides, not half of it, on purpose: the end cut of
    // a bar follows the outline over the ground that bar and joint need.
    if (!HatLaenge(achse) || !contour.AchseClippen(achse, sprosse.dBreite)) achse.dLaenge = 0.0;
  }
}

// The inner contour that a pattern fills; false when there is none, be it that
// the sash has no frame polygon or that nothing of it is left inside.
bool CMFensterSatz::SprossenKontur(GEOM2_Polygon& contour) const {
  try {
    if (!ErzeugeRahmenInnenPolygon(true, contour)) return false;
  } catch (const CMException&) {
    return false;
  }
  Normalisiere(contour);
  return contour.GetAnzahl() >= 3;
}

// Appends a bar along what the contour leaves of an axis; null when that is
// nothing.
CMBauteil* CMFensterSatz::SprosseAnfuegen(const CMBauteil& vorlage, GEOM2_Achse achse,
                                          const GEOM2_Polygon& contour) {
  CMBauteil sprosse = vorlage;
  if (!HatLaenge(achse) || !contour.AchseClippen(achse, sprosse.dBreite)) return nullptr;
  if (!HatLaenge(achse)) return nullptr;
  sprosse.lTyp = eSprosse;
  sprosse.DeleteAchsen();
  sprosse.AddAchse(achse);
  Sprossen.push_back(sprosse);
  return &Sprossen.back();
}
