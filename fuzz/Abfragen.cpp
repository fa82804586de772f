#include "Abfragen.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>

#include "lintavo/api/CFeApi.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"

namespace lintavo::fuzz {

namespace {

constexpr std::array<long, 4> kFalscheIndizes = {-1, 1000, LONG_MAX, LONG_MIN};
constexpr std::array<long, 5> kArten = {1, 2, 3, 0, LONG_MIN};
constexpr long kPfosten = 2;
constexpr std::array<double, 6> kUnsinn = {-1.0, 0.0, NAN, INFINITY, 1e308, 1e-7};

using Zahlen = std::vector<double>;

void Sammle(const CFeApiPolygon& polygon, Zahlen& zahlen) {
  zahlen.insert(zahlen.end(), polygon.pdX, polygon.pdX + polygon.lAnzahl);
  zahlen.insert(zahlen.end(), polygon.pdY, polygon.pdY + polygon.lAnzahl);
}

void Sammle(const CFeApiStrecken& linien, Zahlen& zahlen) {
  for (const double* list : {linien.pdX1, linien.pdY1, linien.pdX2, linien.pdY2}) {
    zahlen.insert(zahlen.end(), list, list + linien.lAnzahl);
  }
}

// The outlines of one component: of each segment and of the whole.
template <class Umriss>
void SammleBauteil(long segmente, Umriss umriss, Zahlen& zahlen) {
  for (long s = -1; s < segmente; ++s) {
    CFeApiPolygon polygon;
    double laenge = 0.0;
    double anfang = 0.0;
    double ende = 0.0;
    if (umriss(s, polygon, laenge, anfang, ende) == 0) continue;
    Sammle(polygon, zahlen);
    zahlen.insert(zahlen.end(), {laenge, anfang, ende});
  }
}

void SammleRahmen(const CFeApi& f, Antworten& antworten) {
  for (const long art : kArten) {
    const long anzahl = f.GetAnzahlRahmenBauteile(art);
    for (long i = 0; i < anzahl; ++i) {
      antworten.Angaben.push_back(f.GetRahmenBauteilDicke(art, i));
      SammleBauteil(
          f.GetAnzahlRahmenBauteilSegmente(art, i),
          [&](long s, CFeApiPolygon& p, double& l, double& a, double& e) {
            return f.GetRahmenBauteilUmriss(art, i, s, p, l, a, e);
          },
          antworten.Gebilde);
    }
  }
  antworten.Angaben.insert(antworten.Angaben.end(), {f.GetRahmenBreite(), f.GetRahmenDicke()});
}

void SammleFluegelTeile(const CFeApi& f, long i, Antworten& antworten) {
  for (const long art : kArten) {
    const long anzahl = f.GetFluegelAnzahlBauteile(art, i);
    for (long j = 0; j < anzahl; ++j) {
      antworten.Angaben.push_back(f.GetFluegelBauteilDicke(art, i, j));
      SammleBauteil(
          f.GetFluegelAnzahlBauteilSegmente(art, i, j),
          [&](long s, CFeApiPolygon& p, double& l, double& a, double& e) {
            return f.GetFluegelBauteilUmriss(art, i, j, s, p, l, a, e);
          },
          antworten.Gebilde);
    }
  }
}

void SammleFuellung(const CFeApi& f, long i, Antworten& antworten) {
  CFeApiPolygon polygon;
  if (f.GetFluegelFuellungUmriss(i, polygon) != 0) Sammle(polygon, antworten.Gebilde);
  const long lamellen = f.GetFluegelAnzahlLamellen(i);
  // All of a sensible number; of many the first, the last and one beyond.
  for (long j = 0; j <= lamellen; j = j == 20 ? std::max(lamellen, 21L) : j + 1) {
    if (f.GetFluegelLamellenUmriss(i, j, polygon) != 0) Sammle(polygon, antworten.Gebilde);
  }
}

void SammleZeichnungen(const CFeApi& f, long i, Zahlen& zahlen) {
  CFeApiStrecken linien;
  for (const int mitSymbol : {0, 1}) {
    if (f.GetFluegelAnsicht(i, mitSymbol, linien) != 0) Sammle(linien, zahlen);
  }
  if (f.GetFluegelOeffnungsSymbol(i, linien) != 0) Sammle(linien, zahlen);
  if (f.GetFluegelGlaslichteHori(i, linien) != 0) Sammle(linien, zahlen);
  if (f.GetFluegelGlaslichteVert(i, linien) != 0) Sammle(linien, zahlen);
  for (long j = 0; j < f.GetAnzahlBeschlaege(i); ++j) {
    double x = 0.0;
    double y = 0.0;
    double winkel = 0.0;
    if (f.GetBeschlagPunkt(i, j, x, y, winkel) != 0) {
      zahlen.insert(zahlen.end(), {x, y, winkel});
    }
    if (f.GetBeschlagZeichnung(i, j, linien) != 0) Sammle(linien, zahlen);
  }
}

void SammleAnsichten(const CFeApi& f, Zahlen& zahlen) {
  for (const int vonAussen : {0, 1}) {
    CFeApiStrecken linien;
    if (f.GetAnsicht(vonAussen, linien) != 0) Sammle(linien, zahlen);
  }
  for (long i = 0; i < f.GetAnzahlFluegel(); ++i) SammleZeichnungen(f, i, zahlen);
}

void SammleFluegel(const CFeApi& f, long i, Antworten& antworten) {
  char text[256];
  f.GetFluegelName(i, text);
  f.GetFluegelGangart(i, text);
  f.GetFluegelAnschlag(i, text);
  f.GetFluegelOeffSeite(i, text);
  SammleFluegelTeile(f, i, antworten);
  SammleFuellung(f, i, antworten);
  for (const double d : {0.0, 1.5, -1.5}) {
    CFeApiPolygon polygon;
    if (f.GetFluegelInnenPolygon(i, d, polygon) != 0) Sammle(polygon, antworten.Gebilde);
  }
  Zahlen& angaben = antworten.Angaben;
  for (long j = 0; j < f.GetAnzahlSprossen(i); ++j) {
    angaben.insert(angaben.end(), {f.GetSprossenBreite(i, j), f.GetSprossenDicke(i, j)});
  }
  angaben.insert(angaben.end(), {f.GetFluegelRahmenBreite(i), f.GetFluegelRahmenDicke(i),
                                 f.GetFluegelUeberschlag(i), f.GetFluegelZVersatz(i, 0),
                                 f.GetFluegelZVersatz(i, 1), f.GetFluegelFuellungDicke(i),
                                 static_cast<double>(f.GetFluegelFuellungArt(i)),
                                 static_cast<double>(f.GetAnzahlBeschlaege(i))});
}

void SammleMasz(const CFeApi& f, long i, Antworten& antworten) {
  char text[256];
  f.GetZMaszName(i, text);
  antworten.Angaben.push_back(f.GetZMaszLaenge(i));
  CFeApiStrecken linien;
  if (f.GetZMaszLinie(i, linien) != 0) Sammle(linien, antworten.Angaben);
  if (f.GetZMaszHilfslinien(i, 10.0, linien) != 0) Sammle(linien, antworten.Angaben);
  CFeApiPolygon p1;
  CFeApiPolygon p2;
  if (f.GetZMaszPfeile(i, 6.0, 2.0, p1, p2) != 0) {
    Sammle(p1, antworten.Angaben);
    Sammle(p2, antworten.Angaben);
  }
}

void SammleOeffnung(const CFeApi& f, Zahlen& zahlen) {
  for (const CFeApiWandOeffnungsParameter& param : {CFeApiWandOeffnungsParameter(), Laibung()}) {
    CFeApiPolygon polygon;
    double breite = 0.0;
    double hoehe = 0.0;
    if (f.GetWandOeffnung(param, polygon) != 0) Sammle(polygon, zahlen);
    if (f.GetOeffMasze(param, breite, hoehe) != 0) zahlen.insert(zahlen.end(), {breite, hoehe});
  }
}

GEOM2_Polygon UmrissDesPfostens(const CFeApi& f, long i) {
  CFeApiPolygon polygon;
  double unused = 0.0;
  GEOM2_Polygon outline;
  if (f.GetRahmenBauteilUmriss(kPfosten, i, -1, polygon, unused, unused, unused) == 0) {
    return outline;
  }
  for (int n = 0; n < polygon.lAnzahl; ++n) outline.AddPunkt(polygon.pdX[n], polygon.pdY[n]);
  return outline;
}

}  // namespace

Antworten FrageAlles(const CFeApi& f, bool mitZeichnungen) {
  Antworten antworten;
  char text[256];
  f.GetFensterBezeichnung(text);
  f.GetErrorMsg(text);
  f.IsZMaszBreiteHoehe();
  antworten.Gebilde = {f.GetFensterBreite(), f.GetFensterHoehe()};
  SammleRahmen(f, antworten);
  for (long i = 0; i < f.GetAnzahlZusatzMasze(); ++i) SammleMasz(f, i, antworten);
  for (long i = 0; i < f.GetAnzahlFluegel(); ++i) SammleFluegel(f, i, antworten);
  SammleOeffnung(f, antworten.Gebilde);
  if (mitZeichnungen) SammleAnsichten(f, antworten.Zeichnungen);
  double box[4];
  if (f.GetBox(12.0, box[0], box[1], box[2], box[3]) != 0) {
    antworten.Angaben.insert(antworten.Angaben.end(), box, box + 4);
  }
  return antworten;
}

void FrageFalscheIndizes(const CFeApi& f) {
  Antworten ohne;
  for (const long i : kFalscheIndizes) {
    SammleMasz(f, i, ohne);
    SammleFluegel(f, i, ohne);
    SammleZeichnungen(f, i, ohne.Zeichnungen);
    CFeApiPolygon polygon;
    CFeApiStrecken linien;
    double v = 0.0;
    f.GetFluegelLamellenUmriss(0, i, polygon);
    f.GetBeschlagPunkt(0, i, v, v, v);
    f.GetBeschlagZeichnung(0, i, linien);
    for (const long art : kArten) {
      f.GetRahmenBauteilUmriss(art, i, 0, polygon, v, v, v);
      f.GetRahmenBauteilUmriss(art, 0, i, polygon, v, v, v);
      f.GetFluegelBauteilUmriss(art, 0, i, 0, polygon, v, v, v);
      f.GetFluegelBauteilUmriss(art, 0, 0, i, polygon, v, v, v);
      f.GetAnzahlRahmenBauteilSegmente(art, i);
      f.GetFluegelAnzahlBauteilSegmente(art, 0, i);
    }
  }
}

void SetzeUnsinn(CFeApi& f) {
  for (const double v : kUnsinn) {
    for (const long i : kFalscheIndizes) {
      f.SetFluegelRahmenBreite(i, v);
      f.SetFluegelUeberschlag(i, v);
      f.SetFluegelZVersatz(i, v);
      f.SetSprossenBreite(i, i, v);
      f.SetSprossenDicke(0, i, v);
      f.SetZMaszLaenge(i, v);
      f.SetZMaszLaengeMitName(i, v);
    }
    f.SetRahmenBreite(v);
    f.SetRahmenDicke(v);
    f.SetFluegelRahmenBreite(0, v);
    f.SetFluegelUeberschlag(0, v);
    f.SetZMaszLaengeMitName(0, v);
    f.SetBreiteHoehe(Laibung(), v, v);
  }
  f.Berechne();
  FrageAlles(f, false);
}

CFeApiWandOeffnungsParameter Laibung() {
  CFeApiWandOeffnungsParameter param;
  param.iSchraege1 = 1;
  param.dWinkel1 = 0.2;
  param.dTiefe = 12.0;
  param.dLeibungA = 2.5;
  param.dLeibungB = -1.0;
  param.dLeibungD = 3.0;
  return param;
}

bool PfostenUeberlappen(const CFeApi& f) {
  std::vector<GEOM2_Polygon> outlines;
  for (long i = 0; i < f.GetAnzahlRahmenBauteile(kPfosten); ++i) {
    outlines.push_back(UmrissDesPfostens(f, i));
    for (std::size_t n = 0; n + 1 < outlines.size(); ++n) {
      if (PolygoneUeberlappen(outlines[n], outlines.back(), kUeberlappung)) return true;
    }
  }
  return false;
}

std::string Geschrieben(const CFeApi& f) {
  long length = 0;
  char* buffer = nullptr;
  f.WriteToBuffer(&length, &buffer);
  std::string text(buffer == nullptr ? "" : buffer,
                   buffer == nullptr ? 0 : static_cast<std::size_t>(length));
  f.FreeBuffer(&buffer);
  return text;
}

}  // namespace lintavo::fuzz
