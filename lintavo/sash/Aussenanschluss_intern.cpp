#include "lintavo/sash/Aussenanschluss_intern.h"

#include <cmath>
#include <optional>

#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace lintavo {

namespace {

// Section-end types.
constexpr int kEndeAnGehrung = 2;       // ends on the cut between its side and the next
constexpr int kEndeAnSeite = 3;         // ends on the outer contour of its side alone
constexpr int kEndeAnAussenkontur = 4;  // ends on the outer contour of the whole frame

// The axis is lengthened far past any contour before it is cut back to one.
constexpr double kVerlaengerung = 10000.0;
constexpr double kSchnittAbstand = 0.25;  // of the part's width

// The quadrilateral between a side of the frame and the contours outside of it, and which
// of a part's ends lie on its short edges.
struct Verbindung {
  GEOM2_Polygon polygon;
  bool anfang = false;
  bool ende = false;
};

bool IsAnVerbindung(int endtyp) {
  return endtyp == kEndeAnGehrung || endtyp == kEndeAnSeite;
}

// The corner of an outer contour between two sides that follow each other; none where
// they do not meet any more, as another side swallowed the corner.
std::optional<XY> Aussenecke(const GEOM2_Polygon& kontur, long davor, long danach) {
  const auto seite = [&](int i) { return std::lround(kontur.GetEckpunkt(i).dWert2); };
  const int count = kontur.GetAnzahl();
  for (int i = 0; i < count; ++i) {
    if (seite(i) != danach || seite(i > 0 ? i - 1 : count - 1) != davor) continue;
    return Ort(kontur.GetEckpunkt(i));
  }
  return std::nullopt;
}

Verbindung VerbindungVon(const CMFensterSatz& rahmen, const GEOM2_Polygon& aussen,
                         const CMBauteil& teil) {
  const GEOM2_Polygon& umriss = rahmen.RahmenPolygon;
  const long count = umriss.GetAnzahl();
  const long s = teil.lSeite;
  GEOM2_Polygon seite;
  if (s < 0 || s >= count || !rahmen.ErzeugeRahmenAussenPolygon(seite, s)) return {};
  const long n = s + 1 < count ? s + 1 : 0;
  const auto ecke = [&](int endtyp, long davor, long danach) {
    return Aussenecke(endtyp == kEndeAnSeite ? seite : aussen, davor, danach);
  };
  const std::optional<XY> anfang = ecke(teil.cAbschnittsTypAnfang, s > 0 ? s - 1 : count - 1, s);
  const std::optional<XY> ende = ecke(teil.cAbschnittsTypEnde, s, n);

  // Beside a lost corner the quadrilateral ends square.
  XY a;
  XY b;
  umriss.GetKante(static_cast<int>(s), a, b);
  XY a2;
  XY b2;
  StreckeParallel(a.x, a.y, b.x, b.y, rahmen.GetAbstandZurRahmenAussenSeite(s), kNullLaenge, a2.x,
                  a2.y, b2.x, b2.y);
  Verbindung verbindung;
  for (const XY& p : {a, anfang.value_or(a2), ende.value_or(b2), b}) {
    verbindung.polygon.AddPunkt(p.x, p.y);
  }
  verbindung.anfang = anfang && IsAnVerbindung(teil.cAbschnittsTypAnfang);
  verbindung.ende = ende && IsAnVerbindung(teil.cAbschnittsTypEnde);
  return verbindung;
}

// The part's axis, lengthened at both ends and cut to a contour, where the part stays:
// beyond a gap there may be a longer piece of the contour's inside. Without a contour, and
// where nothing is inside, the axis as it is.
GEOM2_Achse Angeschlossen(CMBauteil teil, const GEOM2_Polygon* kontur) {
  const GEOM2_Achse gelegt = teil.Achse(0);
  if (!kontur) return gelegt;
  teil.Verlaengern(kVerlaengerung, kVerlaengerung);
  const bool innen = kontur->AchseClippen(teil.Achse(0), kSchnittAbstand * teil.dBreite,
                                          kVerlaengerung, kVerlaengerung + gelegt.dLaenge);
  return innen ? teil.Achse(0) : gelegt;
}

// The start of one axis and the end of another on the same line, each with its cut.
GEOM2_Achse Zusammengesetzt(const GEOM2_Achse& anfang, const GEOM2_Achse& ende) {
  const double phi = anfang.dWinkel * kRadiantJeGrad;
  const XY versatz = Differenz(ende.Start, anfang.Start);
  GEOM2_Achse achse = anfang;
  achse.dLaenge = Skalarprodukt({std::cos(phi), std::sin(phi)}, versatz) + ende.dLaenge;
  achse.dWinkelEnde = ende.dWinkelEnde;
  return achse;
}

}  // namespace

void FuegeAussenteil(const CMFensterSatz& rahmen, const GEOM2_Polygon& aussen, CMBauteil& teil) {
  Verbindung verbindung;
  if (IsAnVerbindung(teil.cAbschnittsTypAnfang) || IsAnVerbindung(teil.cAbschnittsTypEnde)) {
    verbindung = VerbindungVon(rahmen, aussen, teil);
  }
  const auto kontur = [&](int endtyp, bool verbunden) -> const GEOM2_Polygon* {
    if (endtyp == kEndeAnAussenkontur) return &aussen;
    return verbunden ? &verbindung.polygon : nullptr;
  };
  const GEOM2_Polygon* amAnfang = kontur(teil.cAbschnittsTypAnfang, verbindung.anfang);
  const GEOM2_Polygon* amEnde = kontur(teil.cAbschnittsTypEnde, verbindung.ende);
  GEOM2_Achse achse = Angeschlossen(teil, amAnfang);
  if (amAnfang != amEnde) achse = Zusammengesetzt(achse, Angeschlossen(teil, amEnde));
  if (achse.dLaenge >= kNullLaenge) teil.Achse(0) = achse;
}

}  // namespace lintavo
