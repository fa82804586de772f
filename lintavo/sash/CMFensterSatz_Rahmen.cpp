// The frame polygon of a sash, the frame parts along its sides, and the
// contours outside and inside them.
#include <algorithm>
#include <cmath>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/geom/Versatz_intern.h"
#include "lintavo/model/CMException.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"
#include "lintavo/resources/StringTable.h"
#include "lintavo/sash/Auflager_intern.h"
#include "lintavo/sash/Bogenseiten_intern.h"
#include "lintavo/sash/CMFensterSatz.h"
#include "lintavo/sash/Zusatzteilkette_intern.h"

namespace {

using lintavo::Liste;

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

// What the inner contour leaves of a frame side.
struct Innenseite {
  XY anfang;  // where the cuts at both ends of the frame side lead
  XY ende;
  XY von;  // the inner side itself: shorter where the mitre limit cuts a corner
  XY bis;
  bool vorhanden = false;
};

// Where the cuts of two parts lead whose corner the mitre limit has cut from a to b: to the
// cut's nearest place, which is its middle between parts of one width, and its nearer end
// where it stands in their joint.
XY ZielDerKappung(const XY& ecke, const XY& a, const XY& b) {
  const XY weg = lintavo::Differenz(b, a);
  const double t =
      lintavo::Skalarprodukt(lintavo::Differenz(ecke, a), weg) / lintavo::Skalarprodukt(weg, weg);
  return lintavo::Zwischenpunkt(a, b, std::clamp(t, 0.0, 1.0));
}

// A side that runs the other way inside is a step that falls the other way there: its part
// ends in a point, and the step is the end of the deeper one of its neighbours.
void StufeUmkehren(const lintavo::Eckenring& innen, std::size_t j, const GEOM2_Polygon& rahmen,
                   Liste<Innenseite>& seiten) {
  const std::size_t n = innen.size();
  const lintavo::Ringecke& davor = innen[(j + n - 1) % n];
  const lintavo::Ringecke& danach = innen[(j + 1) % n];
  if (davor.kappung || innen[j].kappung || danach.kappung) return;
  const Seite aussen = SeiteVon(rahmen, innen[j].quelle);
  const XY weg = lintavo::Differenz(danach.ort, innen[j].ort);
  if (lintavo::Skalarprodukt(lintavo::Differenz(aussen.b, aussen.a), weg) >= 0.0) return;
  const Seitenrahmen vorn(SeiteVon(rahmen, davor.quelle));
  const bool vornTiefer = vorn.Lage(danach.ort).v < vorn.Lage(innen[j].ort).v;
  const XY ziel = vornTiefer ? danach.ort : innen[j].ort;
  seiten[static_cast<std::size_t>(davor.quelle)].ende = ziel;
  seiten[static_cast<std::size_t>(danach.quelle)].anfang = ziel;
  seiten[static_cast<std::size_t>(innen[j].quelle)] = {ziel, ziel, ziel, ziel};
}

// A side without an inner one has vanished between its neighbours: its cuts aim at the
// corner in which these meet, which is the end of the last side before it that is still
// there.
void VerschwundeneErgaenzen(Liste<Innenseite>& seiten) {
  const std::size_t n = seiten.size();
  // Once around from a side that is there, so that each vanished one finds the
  // end of the one before it.
  const auto first = static_cast<std::size_t>(
      std::find_if(seiten.begin(), seiten.end(),
                   [](const Innenseite& seite) { return seite.vorhanden; }) -
      seiten.begin());
  for (std::size_t k = 1; k < n; ++k) {
    const std::size_t i = (first + k) % n;
    const XY ecke = seiten[(i + n - 1) % n].ende;
    if (!seiten[i].vorhanden) seiten[i] = {ecke, ecke, ecke, ecke};
  }
}

// The inner sides of all sides of the frame polygon. Where a corner is cut, the cuts of
// both its parts aim at one place.
Liste<Innenseite> InnenseitenVon(const lintavo::Eckenring& innen, const GEOM2_Polygon& rahmen,
                                 lintavo::Speicher speicher) {
  const auto anzahlSeiten = static_cast<std::size_t>(rahmen.GetAnzahl());
  Liste<Innenseite> seiten(anzahlSeiten, speicher);
  const std::size_t n = innen.size();
  const auto ziel = [&](std::size_t j) {
    return ZielDerKappung(lintavo::Ort(rahmen.GetEckpunkt(innen[j % n].quelle)), innen[j % n].ort,
                          innen[(j + 1) % n].ort);
  };
  for (std::size_t j = 0; j < n; ++j) {
    if (innen[j].kappung) continue;
    const bool gekapptVorn = innen[(j + n - 1) % n].kappung;
    const bool gekapptHinten = innen[(j + 1) % n].kappung;
    const XY von = innen[j].ort;
    const XY bis = innen[(j + 1) % n].ort;
    seiten[static_cast<std::size_t>(innen[j].quelle)] = {
        gekapptVorn ? ziel(j + n - 1) : von, gekapptHinten ? ziel(j + 1) : bis, von, bis, true};
  }
  for (std::size_t j = 0; j < n; ++j) StufeUmkehren(innen, j, rahmen, seiten);
  VerschwundeneErgaenzen(seiten);
  return seiten;
}

// One end of a side: where the part's cut ends and where its inner side begins, which is
// another place where the mitre limit has cut the inner contour's corner.
void KappungEintragen(const Seitenpunkt& schnittende, const Seitenpunkt& innenende, double& tiefe,
                      double& weg) {
  const double abstand = std::hypot(schnittende.u - innenende.u, schnittende.v - innenende.v);
  if (abstand <= lintavo::kNullLaenge) return;
  tiefe = schnittende.v;
  weg = innenende.u;
}

// Lays the axis of one frame part along one side, its cuts leading to the inner side.
GEOM2_Achse AchseVon(const Seite& seite, const Innenseite& innen) {
  GEOM2_Achse achse;
  if (!GEOM2_Polygon::SetAchse(seite.a, seite.b, achse)) ThrowRahmenpolygon();
  const Seitenrahmen rahmen(seite);
  const auto vomEnde = [&](const XY& p) {
    const Seitenpunkt lage = rahmen.Lage(p);
    return Seitenpunkt{lage.u - achse.dLaenge, lage.v};
  };
  achse.dWinkelAnfang = Schnittwinkel(rahmen.Lage(innen.anfang), 0.0);
  achse.dWinkelEnde = Schnittwinkel(rahmen.Lage(innen.ende), achse.dLaenge);
  achse.bLinkeSeite = innen.vorhanden;
  if (innen.vorhanden) {
    KappungEintragen(rahmen.Lage(innen.anfang), rahmen.Lage(innen.von), achse.dTiefeAnfang,
                     achse.dWegAnfang);
    KappungEintragen(vomEnde(innen.ende), vomEnde(innen.bis), achse.dTiefeEnde, achse.dWegEnde);
  } else {
    achse.dTiefeAnfang = achse.dTiefeEnde = rahmen.Lage(innen.ende).v;
  }
  return achse;
}

// A straight part whose side vanished inside reaches past its own width, up to
// the corner in which its neighbours meet.
void SetzeUeberBreite(CMBauteil& bauteil) {
  const GEOM2_Achse& achse = bauteil.Achse(0);
  if (bauteil.lGetAnzAchsen() != 1 || achse.bLinkeSeite) return;
  const double ueberBreite = achse.dTiefeEnde - bauteil.dBreite;
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
  const Liste<bool> bogenseiten = lintavo::Bogenseiten(polygon, maxLength, maxAngle, &speicher);
  // A run of merge sides shares a number. The run across the ring's start is
  // not joined: side 0 always opens a part of its own.
  int number = -1;
  bool previousMerges = false;
  for (int i = 0; i < count; ++i) {
    const bool merges = bogenseiten[static_cast<std::size_t>(i)];
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
  const Liste<double> abstaende = InnenAbstaende(false, &speicher);
  const lintavo::Eckenring innen = lintavo::Versetzt(RahmenPolygon, abstaende.data(), &speicher);
  if (innen.size() < 3) ThrowFlaecheNull();
  const Liste<Innenseite> seiten = InnenseitenVon(innen, RahmenPolygon, &speicher);

  for (CMBauteil& bauteil : RahmenTeile) {
    bauteil.DeleteAchsen();
    bauteil.lSeite = -1;
    bauteil.lLage = eLageLinks;
    bauteil.SetUeberBreite(0.0);
  }
  for (int i = 0; i < count; ++i) {
    CMBauteil& bauteil = *GetBauteilPtr(RahmenPolygon, i);
    if (bauteil.lGetAnzAchsen() == 0) bauteil.lSeite = i;
    bauteil.AddAchse(AchseVon(SeiteVon(RahmenPolygon, i), seiten[static_cast<std::size_t>(i)]));
  }
  for (int i = 0; i < count; ++i) SetzeUeberBreite(*GetBauteilPtr(RahmenPolygon, i));
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
  if (RahmenPolygon.GetAnzahl() < 3) return false;
  lintavo::Arbeitsspeicher speicher;
  const Liste<double> abstaende = InnenAbstaende(mitZusatzteilen, &speicher);
  if (!RahmenPolygon.ParallelPolygon(abstaende.data(), out, true)) ThrowFlaecheNull();
  return true;
}

Liste<double> CMFensterSatz::InnenAbstaende(bool mitZusatzteilen,
                                            lintavo::Speicher speicher) const {
  Liste<double> abstaende(speicher);
  abstaende.reserve(RahmenPolygon.GetEcken().size());
  for (int i = 0; i < RahmenPolygon.GetAnzahl(); ++i) {
    abstaende.push_back(-GetAbstandZurRahmenInnenSeite(mitZusatzteilen, i));
  }
  return abstaende;
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
