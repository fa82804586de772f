// The calculation: from the stored description of a window to its geometry.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/PolygonVereinigung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/model/Fehler_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Auflager_intern.h"

using lintavo::StringId;

namespace {

// Sides that turn by less than this, in degrees, may belong to one bent part.
constexpr double kGroessteWendung = 25.0;

// Section-end types of outer extra parts.
constexpr int kEndeAnGehrung = 2;       // ends on the cut between its side and the next
constexpr int kEndeAnSeite = 3;         // ends on the outer contour of its side alone
constexpr int kEndeAnAussenkontur = 4;  // ends on the outer contour of the whole frame

// The axis of an outer extra part is lengthened far past any contour before it
// is cut back to one.
constexpr double kAnschlussVerlaengerung = 10000.0;
constexpr double kAnschlussSchnittAbstand = 0.25;  // of the part's width

bool IsAnVerbindung(int endtyp) {
  return endtyp == kEndeAnGehrung || endtyp == kEndeAnSeite;
}

[[noreturn]] void Throw(StringId id, const CString& arg) {
  throw CMException(static_cast<int>(id), arg);
}

void ThrowIfFailed(const CMZusatzMasz* masz) {
  if (masz) Throw(StringId::MeldungZusatzmaszNichtAngebracht, masz->strName);
}

void CopyVertex(const GEOM2_Polygon& from, long i, GEOM2_Polygon& to) {
  const GEOM2_Eckpunkt& ecke = from.GetEckpunkt(static_cast<int>(i));
  to.AddPunkt(ecke.x, ecke.y);
}

void ClearValues(GEOM2_Polygon& polygon) {
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    polygon.SetWert2(i, 0.0);
    polygon.SetAttribut(i, 0);
  }
}

// Which ends of a part are fitted.
struct Enden {
  bool anfang = false;
  bool ende = false;
};

// Lengthens the ends of an outer extra part and cuts it to a contour, where the part
// stays: beyond a gap there may be a longer piece of the contour's inside. An end that is
// not fitted keeps its cut angle; lengthening alone would clear both.
void Anschliessen(CMBauteil& bauteil, const Enden& enden, const GEOM2_Polygon& kontur) {
  if (!enden.anfang && !enden.ende) return;
  const GEOM2_Achse before = bauteil.Achse(0);
  const double vorn = enden.anfang ? kAnschlussVerlaengerung : 0.0;
  bauteil.Verlaengern(vorn, enden.ende ? kAnschlussVerlaengerung : 0.0);
  GEOM2_Achse& achse = bauteil.Achse(0);
  if (!kontur.AchseClippen(achse, kAnschlussSchnittAbstand * bauteil.dBreite, vorn,
                           vorn + before.dLaenge)) {
    achse = before;
    return;
  }
  if (!enden.anfang) achse.dWinkelAnfang = before.dWinkelAnfang;
  if (!enden.ende) achse.dWinkelEnde = before.dWinkelEnde;
}

}  // namespace

bool CMFenster::Berechne(bool bPfostenRiegelAutomatisch) {
  const bool ok = FehlerMerken(lintavo::FehlerVon([&] { Rechne(bPfostenRiegelAutomatisch); }));
  if (ok) neu_ = false;
  return ok;
}

void CMFenster::Rechne(bool bPfostenRiegelAutomatisch) {
  achsen_.AlleVerschiebungenZulassen(true);
  ThrowIfFailed(ZusatzMaszAchsVerschiebungen());

  std::vector<GEOM2_Polygon> grundformen;
  double extrem = -lintavo::kLeereBox;
  GetFluegelGrundformen(grundformen, extrem);
  rahmen_.SetName(lintavo::Text(StringId::Rahmen));
  RahmenUmrissBilden(grundformen);
  if (FluegelStichAnpassung(grundformen)) {
    GetFluegelGrundformen(grundformen, extrem);
    RahmenUmrissBilden(grundformen);
  }
  ThrowIfFailed(ZusatzMaszRahmenEckenVerschiebungen(grundformen));

  RahmenBauen(bPfostenRiegelAutomatisch, grundformen);
  FluegelBauen(grundformen);
  for (const auto& fluegel : fluegel_) fluegel->ClippSprossen();
}

void CMFenster::GetFluegelGrundformen(std::vector<GEOM2_Polygon>& grundformen, double& dExtrem) {
  grundformen.clear();
  grundformen.reserve(fluegel_.size());
  for (const auto& fluegel : fluegel_) {
    XY p1;
    XY p2;
    XY pAL;
    XY pAR;
    fluegel->GetPlazierungsPunkte(achsen_, p1, p2, pAL, pAR);
    GEOM2_Polygon& form = grundformen.emplace_back();
    fluegel->BerechneGrundform(p1, p2, pAL, pAR, form);
    for (int i = 0; i < form.GetAnzahl(); ++i) dExtrem = std::max(dExtrem, form.GetEckpunkt(i).y);
  }
}

bool CMFenster::FluegelStichAnpassung(std::vector<GEOM2_Polygon>&) {
  bool changed = false;
  for (const auto& fluegel : fluegel_) changed = fluegel->bStichAnpassen(*this) || changed;
  return changed;
}

// The frame's outline: the union of all sash outlines, counter-clockwise.
void CMFenster::RahmenUmrissBilden(const std::vector<GEOM2_Polygon>& grundformen) {
  double box[4];
  rahmen_.RahmenPolygon.Clear();
  bPolygoneAddieren(grundformen, rahmen_.RahmenPolygon, lintavo::kVereinigung, box);
  rahmen_.RahmenPolygon.SetOrientierung(true);
  box_ = {box[0], box[1], box[2], box[3]};
}

// Frame parts, mullions, transoms, and extra parts of the frame.
void CMFenster::RahmenBauen(bool bPfostenRiegelAutomatisch,
                            const std::vector<GEOM2_Polygon>& grundformen) {
  rahmen_.RahmenSegmenteZusammenfassen(rahmenAbschnitt_, kGroessteWendung, rahmen_.RahmenPolygon);
  rahmen_.ErzeugeRahmenBauteile();
  GEOM2_Polygon innen;
  if (rahmen_.ErzeugeRahmenInnenPolygon(innen)) {
    PfostenUndRiegelLegen();
    if (bPfostenRiegelAutomatisch) PfostenUndRiegelAutomatischSetzen(innen, grundformen);
    PfostenUndRiegelVerschneiden(innen);
  }
  rahmen_.PlaziereZusatzteile(true);
  AussenZusatzteilAnschluesseBerechnen();
}

void CMFenster::FluegelBauen(const std::vector<GEOM2_Polygon>& grundformen) {
  const lintavo::Auflager auflager(rahmen_);
  for (std::size_t i = 0; i < fluegel_.size() && i < grundformen.size(); ++i) {
    CMFensterSatz& fluegel = *fluegel_[i];
    if (!fluegel.BerechneRahmenPolygon(rahmenAbschnitt_, kGroessteWendung, auflager,
                                       grundformen[i])) {
      // The number counts from 0, as the message always has.
      throw CMException(static_cast<int>(StringId::MeldungKeinFluegelpolygon),
                        static_cast<long>(i));
    }
    fluegel.ErzeugeRahmenBauteile();
    fluegel.PlaziereZusatzteile(false);
  }
}

void CMFenster::AussenZusatzteilAnschluesseBerechnen() {
  std::vector<CMBauteil>& teile = rahmen_.EinzelTeile;
  if (std::none_of(teile.begin(), teile.end(),
                   [](const CMBauteil& teil) { return teil.IsZusatzteilAussen(); })) {
    return;
  }
  GEOM2_Polygon aussen;
  if (!rahmen_.ErzeugeRahmenAussenPolygon(aussen)) return;
  ClearValues(aussen);
  XY low;
  XY high;
  aussen.GetMinMax(low, high);
  box_ = {std::min(box_.xmin, low.x), std::min(box_.ymin, low.y), std::max(box_.xmax, high.x),
          std::max(box_.ymax, high.y)};

  for (CMBauteil& teil : teile) {
    if (!teil.IsZusatzteilAussen() || !teil.IsVorhanden()) continue;
    AussenTeilAnschliessen(teil, aussen);
  }
}

// Fits both ends of one outer extra part by their section-end types, the start first; in
// one go where both end on the same contour.
void CMFenster::AussenTeilAnschliessen(CMBauteil& teil, const GEOM2_Polygon& aussen) const {
  const Enden anVerbindung{IsAnVerbindung(teil.cAbschnittsTypAnfang),
                           IsAnVerbindung(teil.cAbschnittsTypEnde)};
  const Enden amUmriss{teil.cAbschnittsTypAnfang == kEndeAnAussenkontur,
                       teil.cAbschnittsTypEnde == kEndeAnAussenkontur};
  GEOM2_Polygon verbindung;
  if (anVerbindung.anfang || anVerbindung.ende) {
    if (!VerbindungBilden(teil, aussen, verbindung)) return;
  }
  if (amUmriss.anfang) {
    Anschliessen(teil, amUmriss, aussen);
    Anschliessen(teil, anVerbindung, verbindung);
  } else {
    Anschliessen(teil, anVerbindung, verbindung);
    Anschliessen(teil, amUmriss, aussen);
  }
}

// The quadrilateral between a side of the frame and the outer contour, in which
// the side's extra parts end. False when a contour has lost corners, so that
// the side has no counterpart on it.
bool CMFenster::VerbindungBilden(const CMBauteil& teil, const GEOM2_Polygon& aussen,
                                 GEOM2_Polygon& verbindung) const {
  const GEOM2_Polygon& rahmen = rahmen_.RahmenPolygon;
  const long s = teil.lSeite;
  GEOM2_Polygon seite;
  if (!rahmen_.ErzeugeRahmenAussenPolygon(seite, s)) return false;
  const int count = rahmen.GetAnzahl();
  if (s < 0 || s >= count || aussen.GetAnzahl() != count || seite.GetAnzahl() != count) {
    return false;
  }
  const long n = s + 1 < count ? s + 1 : 0;
  CopyVertex(rahmen, s, verbindung);
  CopyVertex(teil.cAbschnittsTypAnfang == kEndeAnSeite ? seite : aussen, s, verbindung);
  CopyVertex(teil.cAbschnittsTypEnde == kEndeAnSeite ? seite : aussen, n, verbindung);
  CopyVertex(rahmen, n, verbindung);
  return true;
}
