// The frame polygon of a sash, the frame parts along its sides, and the
// contours outside and inside them.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMException.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Auflager_intern.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Zusatzteilkette_intern.h"

namespace {

using lintavo::Liste;

constexpr double kVollkreis = 360.0;

[[noreturn]] void ThrowRahmenpolygon() {
  throw CMException(static_cast<int>(lintavo::StringId::MeldungKeinRahmenpolygon));
}

[[noreturn]] void ThrowFlaecheNull() {
  throw CMException(static_cast<int>(lintavo::StringId::MeldungFluegelflaecheNull));
}

struct Seite {
  XY a;
  XY b;
};

Seite SeiteVon(const GEOM2_Polygon& polygon, int i) {
  Seite seite;
  polygon.GetKante(i, seite.a, seite.b);
  return seite;
}

double InsVolleKreisMasz(double winkel) {
  return winkel < -lintavo::kNullLaenge ? winkel + kVollkreis : winkel;
}

double RichtungInGrad(const Seite& seite) {
  return InsVolleKreisMasz(std::atan2(seite.b.y - seite.a.y, seite.b.x - seite.a.x) * 180.0 /
                           lintavo::kPi);
}

// A point in the frame of a side: u along it from its start, v to its left.
struct Seitenpunkt {
  double u;
  double v;
};

class Seitenrahmen {
 public:
  explicit Seitenrahmen(const Seite& seite)
      : ursprung_(seite.a),
        dx_(seite.b.x - seite.a.x),
        dy_(seite.b.y - seite.a.y),
        laenge_(std::hypot(dx_, dy_)) {
    if (laenge_ < lintavo::kNullLaenge) ThrowRahmenpolygon();
  }

  Seitenpunkt Lage(const XY& p) const {
    const double px = p.x - ursprung_.x;
    const double py = p.y - ursprung_.y;
    return {(px * dx_ + py * dy_) / laenge_, (dx_ * py - dy_ * px) / laenge_};
  }

 private:
  XY ursprung_;
  double dx_;
  double dy_;
  double laenge_;
};

// Lean of the cut that runs from a side's end at `u0` to an inner corner.
double Schnittwinkel(const Seitenpunkt& innenEcke, double u0) {
  if (innenEcke.v < lintavo::kNullLaenge) return 0.0;
  return std::atan2(innenEcke.u - u0, innenEcke.v) * 180.0 / lintavo::kPi;
}

// Where the cuts at both ends of a frame side lead on the inner contour. The
// two corners are one when the side has vanished inside.
struct Innenecken {
  XY anfang;
  XY ende;
};

// Inner corners of every side of the frame polygon. The second value of each
// inner vertex names the side that it starts. A side without an inner one has
// vanished between its neighbours: its cuts aim at the corner in which these
// meet, which is the end of the last side before it that is still there.
Liste<Innenecken> InneneckenJeSeite(const GEOM2_Polygon& innen, std::size_t anzahlSeiten,
                                    lintavo::Speicher speicher) {
  Liste<Innenecken> ecken(anzahlSeiten, speicher);
  Liste<bool> vorhanden(anzahlSeiten, false, speicher);
  for (int j = 0; j < innen.GetAnzahl(); ++j) {
    const auto seite = static_cast<std::size_t>(innen.GetEckpunkt(j).dWert2);
    const Seite innenSeite = SeiteVon(innen, j);
    ecken[seite] = {innenSeite.a, innenSeite.b};
    vorhanden[seite] = true;
  }
  // Once around from a side that is there, so that each vanished one finds the
  // end of the one before it.
  const auto first = static_cast<std::size_t>(std::find(vorhanden.begin(), vorhanden.end(), true) -
                                              vorhanden.begin());
  for (std::size_t n = 1; n < anzahlSeiten; ++n) {
    const std::size_t i = (first + n) % anzahlSeiten;
    const XY ecke = ecken[(i + anzahlSeiten - 1) % anzahlSeiten].ende;
    if (!vorhanden[i]) ecken[i] = {ecke, ecke};
  }
  return ecken;
}

// Lays the axis of one frame part along one side, its cuts leading to the
// inner corners.
void LegeAchse(CMBauteil& bauteil, const Seite& seite, const Innenecken& ecken) {
  GEOM2_Achse achse;
  if (!GEOM2_Polygon::SetAchse(seite.a, seite.b, achse)) ThrowRahmenpolygon();
  const Seitenrahmen rahmen(seite);
  achse.dWinkelAnfang = Schnittwinkel(rahmen.Lage(ecken.anfang), 0.0);
  achse.dWinkelEnde = Schnittwinkel(rahmen.Lage(ecken.ende), achse.dLaenge);
  bauteil.AddAchse(achse);
}

// A straight part whose side vanished inside reaches past its own width, up to
// the corner in which its neighbours meet.
void SetzeUeberBreite(CMBauteil& bauteil, const Seite& seite, const Innenecken& ecken) {
  const double ueberBreite = Seitenrahmen(seite).Lage(ecken.ende).v - bauteil.dBreite;
  if (std::fabs(ueberBreite) >= lintavo::kNullLaenge) bauteil.SetUeberBreite(ueberBreite);
}

// How far a sash moves in from one side of its outline: negative, by what it lies
// on less the overlap. A side that lies on nothing moves outwards by the overlap
// alone, on purpose: the sash covers what is there.
double EinzugDerSeite(const lintavo::Auflager& auflager, const Seite& seite, double ueberschlag) {
  if (lintavo::Abstand(seite.a, seite.b) < lintavo::kNullLaenge) return 0.0;
  return ueberschlag - auflager.Einzug(seite.a, seite.b);
}

}  // namespace

long CMFensterSatz::RahmenSegmenteZusammenfassen(double maxLength, double maxAngle,
                                                 GEOM2_Polygon& polygon) const {
  const int count = polygon.GetAnzahl();
  if (count == 0 || lForm < eFormRechteck) return -1;

  lintavo::Arbeitsspeicher speicher;
  Liste<double> richtung(&speicher);
  richtung.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) richtung.push_back(RichtungInGrad(SeiteVon(polygon, i)));
  const auto turn = [&](int from, int to) {
    return InsVolleKreisMasz(richtung[static_cast<std::size_t>(to)] -
                             richtung[static_cast<std::size_t>(from)]);
  };
  // A vertical side is the straight end of an arch and stays a part of its own.
  const auto isVertical = [&](int i) {
    return std::fabs(std::cos(richtung[static_cast<std::size_t>(i)] * lintavo::kPi / 180.0)) <=
           lintavo::kNullLaenge;
  };
  const auto isMergeSide = [&](int i) {
    const bool bent =
        turn((i + count - 1) % count, i) < maxAngle || turn(i, (i + 1) % count) < maxAngle;
    return bent && polygon.GetKantenLaenge(i) < maxLength && !isVertical(i);
  };

  // A run of merge sides shares a number. The run across the ring's start is
  // not joined: side 0 always opens a part of its own.
  int number = -1;
  bool previousMerges = false;
  for (int i = 0; i < count; ++i) {
    const bool merges = isMergeSide(i);
    if (!merges || !previousMerges) ++number;
    polygon.SetAttribut(i, number);
    previousMerges = merges;
  }
  return number + 1;
}

bool CMFensterSatz::BerechneRahmenPolygon(double maxLength, double maxAngle,
                                          const CMFensterSatz& frame, const GEOM2_Polygon& outline,
                                          long) {
  return BerechneRahmenPolygon(maxLength, maxAngle, lintavo::Auflager(frame), outline);
}

bool CMFensterSatz::BerechneRahmenPolygon(double maxLength, double maxAngle,
                                          const lintavo::Auflager& auflager,
                                          const GEOM2_Polygon& outline) {
  // A sash without a frame keeps no parts of its own: its overlap is always the
  // template's, also before the first calculation has dropped stored parts.
  if (!bMitRahmen) RahmenTeile.clear();
  GEOM2_Polygon sides = outline;
  const long parts = RahmenSegmenteZusammenfassen(maxLength, maxAngle, sides);
  if (parts < 0) return false;
  if (RahmenTeile.size() < static_cast<std::size_t>(parts)) {
    RahmenTeile.resize(static_cast<std::size_t>(parts), RahmenVorlage);
  }

  lintavo::Arbeitsspeicher speicher;
  Liste<double> distances(&speicher);
  distances.reserve(sides.GetEcken().size());
  for (int i = 0; i < sides.GetAnzahl(); ++i) {
    const CMBauteil* bauteil = GetBauteilPtr(sides, i);
    distances.push_back(
        EinzugDerSeite(auflager, SeiteVon(sides, i), bauteil ? bauteil->dBreite2 : 0.0));
  }
  RahmenPolygon.Clear();
  if (!sides.ParallelPolygon(distances.data(), RahmenPolygon, true)) return false;
  if (RahmenSegmenteZusammenfassen(maxLength, maxAngle, RahmenPolygon) < 0) return false;
  RahmenPolygon.Bereinigen(lintavo::kBereinigenGrob);
  return true;
}

bool CMFensterSatz::ErzeugeRahmenBauteile() {
  if (!bMitRahmen) {
    RahmenTeile.clear();
    return true;
  }
  const int count = RahmenPolygon.GetAnzahl();
  if (count < 3) return false;
  BauteileDenSeitenZuordnen();

  lintavo::Arbeitsspeicher speicher;
  Liste<Innenecken> ecken(&speicher);
  bool seitenVerschwunden = false;
  {
    // Every vertex carries its own index through the offset, which tells
    // afterwards what became of each side.
    GEOM2_Polygon seiten = RahmenPolygon;
    for (int i = 0; i < count; ++i) seiten.SetWert2(i, i);
    GEOM2_Polygon innen;
    if (!InnenPolygon(false, seiten, innen)) ThrowRahmenpolygon();
    ecken = InneneckenJeSeite(innen, static_cast<std::size_t>(count), &speicher);
    seitenVerschwunden = innen.GetAnzahl() != count;
  }

  for (CMBauteil& bauteil : RahmenTeile) {
    bauteil.DeleteAchsen();
    bauteil.lLage = eLageLinks;
    bauteil.SetUeberBreite(0.0);
  }
  for (int i = 0; i < count; ++i) {
    LegeAchse(*GetBauteilPtr(RahmenPolygon, i), SeiteVon(RahmenPolygon, i),
              ecken[static_cast<std::size_t>(i)]);
  }
  for (int i = 0; seitenVerschwunden && i < count; ++i) {
    CMBauteil& bauteil = *GetBauteilPtr(RahmenPolygon, i);
    if (bauteil.lGetAnzAchsen() == 1) {
      SetzeUeberBreite(bauteil, SeiteVon(RahmenPolygon, i), ecken[static_cast<std::size_t>(i)]);
    }
  }
  return true;
}

// Makes sure that every side has its frame part, and stores the part's width
// with the side.
void CMFensterSatz::BauteileDenSeitenZuordnen() {
  for (int i = 0; i < RahmenPolygon.GetAnzahl(); ++i) {
    if (!GetBauteilPtr(RahmenPolygon, i)) RahmenTeile.push_back(RahmenVorlage);
    const CMBauteil* bauteil = GetBauteilPtr(RahmenPolygon, i);
    if (!bauteil) ThrowRahmenpolygon();
    RahmenPolygon.SetWert1(i, bauteil->dBreite);
  }
}

template <class Gilt>
bool CMFensterSatz::AussenPolygon(Gilt gilt, GEOM2_Polygon& out) const {
  const int count = RahmenPolygon.GetAnzahl();
  if (count < 3) return false;
  lintavo::Arbeitsspeicher speicher;
  Liste<double> distances(&speicher);
  distances.reserve(static_cast<std::size_t>(count));
  GEOM2_Polygon seiten = RahmenPolygon;
  for (int i = 0; i < count; ++i) {
    seiten.SetWert2(i, i);
    distances.push_back(gilt(i) ? GetAbstandZurRahmenAussenSeite(i) : 0.0);
  }
  if (!seiten.ParallelPolygon(distances.data(), out, true)) ThrowFlaecheNull();
  return true;
}

bool CMFensterSatz::ErzeugeRahmenAussenPolygon(GEOM2_Polygon& out) const {
  return AussenPolygon([](long) { return true; }, out);
}

bool CMFensterSatz::ErzeugeRahmenAussenPolygon(GEOM2_Polygon& out, long side) const {
  return AussenPolygon([side](long i) { return i == side; }, out);
}

bool CMFensterSatz::ErzeugeRahmenInnenPolygon(bool mitZusatzteilen, GEOM2_Polygon& out) const {
  return InnenPolygon(mitZusatzteilen, RahmenPolygon, out);
}

// `polygon` is the frame polygon, or a copy whose vertices carry other values.
bool CMFensterSatz::InnenPolygon(bool mitZusatzteilen, const GEOM2_Polygon& polygon,
                                 GEOM2_Polygon& out) const {
  const int count = polygon.GetAnzahl();
  if (count < 3) return false;
  lintavo::Arbeitsspeicher speicher;
  Liste<double> distances(&speicher);
  distances.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    distances.push_back(-GetAbstandZurRahmenInnenSeite(mitZusatzteilen, i));
  }
  if (!polygon.ParallelPolygon(distances.data(), out, true)) ThrowFlaecheNull();
  return true;
}

double CMFensterSatz::GetAbstandZurRahmenAussenSeite(long side) const {
  const CMBauteil* bauteil = GetBauteilPtr(RahmenPolygon, side);
  if (!bauteil) return 0.0;
  double abstand = 0.0;
  lintavo::KetteDurchlaufen(EinzelTeile, bauteil->lKette, [&](const CMBauteil& teil) {
    abstand += teil.dBreite;
    return true;
  });
  return abstand;
}

double CMFensterSatz::GetAbstandZurRahmenInnenSeite(bool mitZusatzteilen, long side) const {
  const CMBauteil* bauteil = GetBauteilPtr(RahmenPolygon, side);
  if (!bauteil) return 0.0;
  double abstand = bauteil->dBreite;
  if (!mitZusatzteilen || bauteil->IsZusatzteilInnen()) return abstand;
  lintavo::KetteDurchlaufen(EinzelTeile, bauteil->lKette, [&](const CMBauteil& teil) {
    if (!teil.IsZusatzteilInnen()) return false;
    abstand += teil.dBreite;
    return true;
  });
  return abstand;
}
