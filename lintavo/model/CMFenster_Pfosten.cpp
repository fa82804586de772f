// Mullions and transoms: where they are set by themselves, and how they are cut
// to the frame and to each other.
#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "lintavo/geom/Abschnitte_intern.h"
#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Seitenblick_intern.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"
#include "lintavo/platform/Grenzen_intern.h"

using lintavo::Abschnitt;
using lintavo::Abschnitte;
using lintavo::Differenz;
using lintavo::Kreuzprodukt;
using lintavo::Skalarprodukt;

namespace {

// --- setting ------------------------------------------------------------------

struct Linie {
  XY a;
  XY b;
};

Linie LinieVon(const CMStrecke& strecke) {
  Linie linie;
  strecke.GetPunkte(linie.a, linie.b);
  return linie;
}

Linie Knotenlinie(const CMBauteil& teil, const CMAchsen& achsen) {
  Linie linie;
  achsen.GetPunkt(teil.kAnfang, linie.a);
  achsen.GetPunkt(teil.kEnde, linie.b);
  return linie;
}

// Adds the stretch of a line that another one covers.
void Bedecken(const Linie& linie, const Linie& andere, Abschnitte& bedeckt) {
  if (!lintavo::SeitenDecken(linie.a, linie.b, andere.a, andere.b)) return;
  const XY richtung = lintavo::Einheit(Differenz(linie.b, linie.a));
  const double u = Skalarprodukt(richtung, Differenz(andere.a, linie.a));
  const double v = Skalarprodukt(richtung, Differenz(andere.b, linie.a));
  bedeckt.push_back({std::min(u, v), std::max(u, v)});
}

// Where a line runs along the frame's outline, in order.
Abschnitte AmUmriss(const Linie& linie, const GEOM2_Polygon& umriss) {
  Abschnitte bedeckt;
  Linie seite;
  for (int i = 0; umriss.GetKante(i, seite.a, seite.b); ++i) Bedecken(linie, seite, bedeckt);
  lintavo::AbschnitteVereinigen(bedeckt);
  return bedeckt;
}

// Whether nothing is left of a stretch beside those that are covered.
bool IsBedeckt(const Abschnitt& abschnitt, const Abschnitte& bedeckt) {
  const Abschnitte rest = lintavo::UebrigeAbschnitte({abschnitt}, bedeckt);
  return std::all_of(rest.begin(), rest.end(), [](const Abschnitt& teil) {
    return teil.bis - teil.von <= lintavo::kUeberlagerung;
  });
}

// Whether an edge runs along the frame: on its inner border, or all of it on its outline.
// One that does so in part is shared by two sashes in the rest.
bool IsAmRahmen(const Linie& kante, const GEOM2_Polygon& innen, const GEOM2_Polygon& umriss) {
  if (innen.IsAufRand(kante.a, lintavo::kNullLaenge) &&
      innen.IsAufRand(kante.b, lintavo::kNullLaenge)) {
    return true;
  }
  return IsBedeckt({0.0, lintavo::Abstand(kante.a, kante.b)}, AmUmriss(kante, umriss));
}

// The segment from the lowest to the highest of the four ends of two collinear
// segments.
Linie Merged(const Linie& s, const Linie& t) {
  const XY ends[4] = {s.a, s.b, t.a, t.b};
  const XY along = Differenz(s.b, s.a);
  const auto [lowest, highest] =
      std::minmax_element(std::begin(ends), std::end(ends), [&](const XY& p, const XY& q) {
        return Skalarprodukt(Differenz(p, s.a), along) < Skalarprodukt(Differenz(q, s.a), along);
      });
  return {*lowest, *highest};
}

// Adds a segment to the list; those that it overlaps become one with it, in the place of
// the first of them.
void AddMerged(std::vector<CMStrecke>& segmente, CMStrecke segment) {
  std::size_t place = segmente.size();
  for (std::size_t i = 0; i < segmente.size();) {
    if (!segmente[i].IsUeberlagerung(segment)) {
      ++i;
      continue;
    }
    const Linie merged = Merged(LinieVon(segmente[i]), LinieVon(segment));
    segment = CMStrecke(merged.a, merged.b);
    segmente.erase(segmente.begin() + static_cast<std::ptrdiff_t>(i));
    place = std::min(place, i);
    // The longer segment may now reach one that was looked at before.
    i = 0;
  }
  segmente.insert(segmente.begin() + static_cast<std::ptrdiff_t>(place), segment);
}

// From the lower end to the higher one, and from left to right where both lie level.
Linie Aufwaerts(const Linie& linie) {
  const double dy = linie.b.y - linie.a.y;
  const bool level = std::fabs(dy) <= lintavo::kUeberlagerung;
  return (level ? linie.b.x - linie.a.x : dy) < 0.0 ? Linie{linie.b, linie.a} : linie;
}

// The lines along which sashes meet: their edges without those along the frame, collinear
// ones as one.
std::vector<Linie> Trennlinien(const std::vector<GEOM2_Polygon>& grundformen,
                               const GEOM2_Polygon& innen, const GEOM2_Polygon& umriss) {
  std::vector<CMStrecke> segmente;
  for (const GEOM2_Polygon& form : grundformen) {
    Linie kante;
    for (int i = 0; form.GetKante(i, kante.a, kante.b); ++i) {
      if (!IsAmRahmen(kante, innen, umriss)) AddMerged(segmente, CMStrecke(kante.a, kante.b));
    }
  }
  std::vector<Linie> linien;
  linien.reserve(segmente.size());
  for (const CMStrecke& segment : segmente) linien.push_back(Aufwaerts(LinieVon(segment)));
  return linien;
}

// The pieces of a line along which a mullion or transom is missing, beside the stretches
// that others cover. It goes on beyond the last sash that it divides; only where the
// frame's outline interrupts it, it is two.
std::vector<Linie> Luecken(const Linie& linie, const GEOM2_Polygon& umriss, Abschnitte bedeckt) {
  const double laenge = lintavo::Abstand(linie.a, linie.b);
  const Abschnitte rahmen = AmUmriss(linie, umriss);
  for (const Abschnitt& abschnitt : rahmen) {
    if (abschnitt.von > lintavo::kUeberlagerung &&
        abschnitt.bis < laenge - lintavo::kUeberlagerung) {
      bedeckt.push_back(abschnitt);
    }
  }
  lintavo::AbschnitteVereinigen(bedeckt);
  std::vector<Linie> luecken;
  for (const Abschnitt& frei : lintavo::UebrigeAbschnitte({{0.0, laenge}}, bedeckt)) {
    if (IsBedeckt(frei, rahmen)) continue;
    const lintavo::Teilstueck stueck = lintavo::TeilDerKante(linie.a, linie.b, laenge, frei);
    luecken.push_back({stueck.a, stueck.b});
  }
  return luecken;
}

// Whether a segment has a piece inside the frame. Edges of a group of sashes
// that the frame does not surround have none.
bool IsImRahmen(const Linie& linie, const GEOM2_Polygon& innen) {
  GEOM2_Achse achse;
  return GEOM2_Polygon::SetAchse(linie.a, linie.b, achse) && innen.AchseClippen(achse, 0.0);
}

bool IsSameNode(const CMKnoten& a, const CMKnoten& b) {
  return a.J() == b.J() && a.K() == b.K();
}

bool IsBetween(const CMBauteil& bauteil, const CMKnoten& k1, const CMKnoten& k2) {
  return (IsSameNode(bauteil.kAnfang, k1) && IsSameNode(bauteil.kEnde, k2)) ||
         (IsSameNode(bauteil.kAnfang, k2) && IsSameNode(bauteil.kEnde, k1));
}

bool IsAufGerade(const Linie& linie, const Linie& gerade) {
  return std::fabs(AbstandPunktGerade(gerade.a, gerade.b, linie.a)) <= lintavo::kUeberlagerung &&
         std::fabs(AbstandPunktGerade(gerade.a, gerade.b, linie.b)) <= lintavo::kUeberlagerung;
}

// Sets the members of a window along the lines between its sashes. What it does depends
// on the nodes of the members that are there, not on where they lie, so that setting them
// again finds those of the first time and lays them alike.
class Pfostensetzer {
 public:
  Pfostensetzer(CMFenster& fenster, const GEOM2_Polygon& innen, double fangRadius)
      : fenster_(fenster),
        teile_(fenster.GetRahmenPtr()->EinzelTeile),
        innen_(innen),
        fangRadius_(fangRadius) {}

  void Setze(std::vector<Linie> linien) {
    std::erase_if(linien, [&](const Linie& linie) {
      return !IsImRahmen(linie, innen_) || LegeVorhandenen(linie);
    });
    std::vector<Linie> anEinemKnoten;
    for (const Linie& linie : linien) SetzeLuecken(linie, anEinemKnoten);
    for (const Linie& linie : anEinemKnoten) SetzeAmKnoten(linie);
  }

 private:
  CMKnoten Knoten(const XY& p) const {
    CMKnoten knoten;
    fenster_.GetAchsen().GetKnoten(p, knoten, fangRadius_);
    return knoten;
  }

  Linie Knotenlinie(const CMBauteil& teil) const {
    return ::Knotenlinie(teil, fenster_.GetAchsen());
  }

  CMBauteil* Zwischen(const CMKnoten& k1, const CMKnoten& k2) const {
    const auto teil = std::find_if(teile_.begin(), teile_.end(), [&](const CMBauteil& bauteil) {
      return bauteil.IsRahmenteil() && IsBetween(bauteil, k1, k2);
    });
    return teil == teile_.end() ? nullptr : &*teil;
  }

  CMBauteil& Neu(const CMKnoten& k1, const CMKnoten& k2) {
    return *fenster_.AddRahmenEinzelBauteil(k1, k2, fenster_.GetPfostenVorlage());
  }

  bool IsGelegt(const CMBauteil& bauteil) const {
    return std::find(gelegt_.begin(), gelegt_.end(), &bauteil - teile_.data()) != gelegt_.end();
  }

  // An end that lies at its node takes the node's place to the last bit.
  XY AmKnoten(const XY& p) const {
    XY q;
    fenster_.GetAchsen().GetPunkt(Knoten(p), q);
    return lintavo::Abstand(p, q) <= lintavo::kUeberlagerung ? q : p;
  }

  // Of several lines between a member's nodes the first counts.
  void Lege(CMBauteil& bauteil, const CMKnoten& k1, const Linie& linie) {
    if (IsGelegt(bauteil)) return;
    gelegt_.push_back(&bauteil - teile_.data());
    const XY a = AmKnoten(linie.a);
    const XY b = AmKnoten(linie.b);
    const bool vorwaerts = IsSameNode(bauteil.kAnfang, k1);
    bauteil.Achsen.assign(1, GEOM2_Achse{});
    GEOM2_Polygon::SetAchse(vorwaerts ? a : b, vorwaerts ? b : a, bauteil.Achse(0));
  }

  // A line between the nodes of a member is that member's, whole.
  bool LegeVorhandenen(const Linie& linie) {
    const CMKnoten k1 = Knoten(linie.a);
    const CMKnoten k2 = Knoten(linie.b);
    CMBauteil* vorhanden = IsSameNode(k1, k2) ? nullptr : Zwischen(k1, k2);
    if (vorhanden) Lege(*vorhanden, k1, linie);
    return vorhanden != nullptr;
  }

  void SetzeLuecken(const Linie& linie, std::vector<Linie>& anEinemKnoten) {
    Abschnitte bedeckt;
    for (const CMBauteil& teil : teile_) {
      // Those that are laid have another line of their own, whatever lies between their nodes.
      if (teil.IsRahmenteil() && !IsGelegt(teil)) Bedecken(linie, Knotenlinie(teil), bedeckt);
    }
    const bool frei = bedeckt.empty();
    const std::vector<Linie> luecken =
        Luecken(linie, fenster_.GetRahmenPtr()->RahmenPolygon, std::move(bedeckt));
    for (const Linie& luecke : luecken) {
      if (!IsImRahmen(luecke, innen_)) continue;
      if (IsSameNode(Knoten(luecke.a), Knoten(luecke.b))) {
        anEinemKnoten.push_back(luecke);
      } else {
        SetzeLuecke(luecke, frei && luecken.size() == 1);
      }
    }
  }

  // A piece beside others is laid between its nodes where these are on its line, and on to
  // its own ends.
  void SetzeLuecke(const Linie& luecke, bool ganz) {
    const CMKnoten k1 = Knoten(luecke.a);
    const CMKnoten k2 = Knoten(luecke.b);
    CMBauteil* vorhanden = Zwischen(k1, k2);
    CMBauteil& bauteil = vorhanden ? *vorhanden : Neu(k1, k2);
    const Linie knoten = Knotenlinie(bauteil);
    const bool verlaengert = !ganz && IsAufGerade(luecke, knoten);
    Lege(bauteil, k1, verlaengert ? Aufwaerts(Merged(knoten, luecke)) : luecke);
  }

  // A line whose ends both go to one node is what a member that ends in this node has
  // beyond it, as under a slanted top; or else a member that has but the template's axis.
  void SetzeAmKnoten(const Linie& linie) {
    const CMKnoten knoten = Knoten(linie.a);
    for (CMBauteil& teil : teile_) {
      if (!teil.IsRahmenteil() || IsSameNode(teil.kAnfang, teil.kEnde)) continue;
      if (!IsSameNode(teil.kAnfang, knoten) && !IsSameNode(teil.kEnde, knoten)) continue;
      if (!IsAufGerade(linie, Knotenlinie(teil))) continue;
      Linie achse;
      teil.GetAchspunkte(achse.a, achse.b);
      const Linie lang = Merged(achse, linie);
      GEOM2_Polygon::SetAchse(AmKnoten(lang.a), AmKnoten(lang.b), teil.Achse(0));
      return;
    }
    if (!Zwischen(knoten, knoten)) {
      Neu(knoten, knoten).Achsen = fenster_.GetPfostenVorlage().Achsen;
    }
  }

  CMFenster& fenster_;
  std::vector<CMBauteil>& teile_;
  const GEOM2_Polygon& innen_;
  double fangRadius_;
  std::vector<std::ptrdiff_t> gelegt_;
};

void LegeZwischenKnoten(CMBauteil& bauteil, const CMAchsen& achsen) {
  const Linie linie = Knotenlinie(bauteil, achsen);
  bauteil.Achsen.assign(1, GEOM2_Achse{});
  GEOM2_Polygon::SetAchse(linie.a, linie.b, bauteil.Achse(0));
}

// --- cutting ------------------------------------------------------------------

// A mullion or transom with its outline before any end is cut back.
struct Stab {
  CMBauteil* bauteil = nullptr;
  GEOM2_Polygon umriss;
  XY ende[2];  // start and end of the axis
};

bool LiegtIn(const XY& p, const Stab& stab) {
  return stab.umriss.IsInside(p, true, lintavo::kNullLaenge);
}

bool HatEndeIn(const Stab& stab, const Stab& anderer) {
  return LiegtIn(stab.ende[0], anderer) || LiegtIn(stab.ende[1], anderer);
}

// Where a bar that comes from its far end first meets another one's outline.
struct Anschluss {
  double laenge;  // from the far end
  XY seite;       // direction of the side that is met
};

std::optional<Anschluss> ErsterAnschluss(const XY& fern, const XY& ende, const Stab& anderer) {
  const double laenge = lintavo::Abstand(fern, ende);
  const XY richtung = lintavo::Einheit(Differenz(ende, fern));
  std::optional<Anschluss> erster;
  for (int i = 0; i < anderer.umriss.GetAnzahl(); ++i) {
    XY a;
    XY b;
    anderer.umriss.GetKante(i, a, b);
    const XY seite = Differenz(b, a);
    const double sinus = Kreuzprodukt(richtung, seite);
    if (std::fabs(sinus) < lintavo::kNullLaenge) continue;
    const double t = Kreuzprodukt(Differenz(a, fern), seite) / sinus;
    const double u = Kreuzprodukt(Differenz(a, fern), richtung) / sinus;
    const double spiel = lintavo::kNullLaenge / lintavo::Betrag(seite);
    if (t < -lintavo::kNullLaenge || t > laenge + lintavo::kNullLaenge) continue;
    if (u < -spiel || u > 1.0 + spiel) continue;
    if (!erster || t < erster->laenge) erster = Anschluss{t, seite};
  }
  return erster;
}

// How far an end cut along `seite` leans from the perpendicular of the axis.
double Schnittwinkel(const XY& richtung, XY seite) {
  if (Kreuzprodukt(richtung, seite) < 0.0) seite = lintavo::Mal(seite, -1.0);
  const double winkel = std::atan2(Skalarprodukt(richtung, seite), Kreuzprodukt(richtung, seite)) *
                        lintavo::kGradJeRadiant;
  if (std::fabs(winkel) <= lintavo::kGleicherWinkel) return 0.0;
  return std::clamp(winkel, -lintavo::kGroessterSchnittwinkel, lintavo::kGroessterSchnittwinkel);
}

// Cuts one end (0 start, 1 end) of bar `i` back to the bar that it abuts. Where
// two bars end in each other the earlier one of the list runs through. True when
// that made the bar shorter.
bool EndeZurueckschneiden(const std::vector<Stab>& staebe, std::size_t i, int ende) {
  const Stab& stab = staebe[i];
  const XY& hier = stab.ende[ende];
  const XY& fern = stab.ende[1 - ende];
  std::optional<Anschluss> anschluss;
  for (std::size_t n = 0; n < staebe.size(); ++n) {
    if (n == i || !LiegtIn(hier, staebe[n])) continue;
    if (i < n && HatEndeIn(staebe[n], stab)) continue;
    const std::optional<Anschluss> treffer = ErsterAnschluss(fern, hier, staebe[n]);
    if (treffer && (!anschluss || treffer->laenge < anschluss->laenge)) anschluss = treffer;
  }
  if (!anschluss) return false;

  GEOM2_Achse& achse = stab.bauteil->Achse(0);
  const XY richtung = lintavo::Einheit(Differenz(stab.ende[1], stab.ende[0]));
  const double rest = lintavo::Abstand(fern, hier) - anschluss->laenge;
  // An end that already lies on the other one's side stays to the last bit.
  if (rest > lintavo::kNullLaenge) {
    if (ende == 0) achse.Start = lintavo::Summe(achse.Start, lintavo::Mal(richtung, rest));
    achse.dLaenge = std::max(0.0, achse.dLaenge - rest);
  }
  const double winkel = Schnittwinkel(richtung, anschluss->seite);
  (ende == 0 ? achse.dWinkelAnfang : achse.dWinkelEnde) = winkel;
  return rest > lintavo::kNullLaenge;
}

// The bars of which something is there, with their outlines as they are now.
std::vector<Stab> StaebeAus(std::vector<CMBauteil>& teile) {
  std::vector<Stab> staebe;
  for (CMBauteil& teil : teile) {
    if (!teil.IsRahmenteil() || !(teil.GetAchsLaenge() > lintavo::kNullLaenge)) continue;
    Stab& stab = staebe.emplace_back();
    stab.bauteil = &teil;
    teil.GetUmrissPunkteAchsSegment(0, stab.umriss);
    teil.GetAchspunkte(stab.ende[0], stab.ende[1]);
  }
  return staebe;
}

// Exact: whether nothing was changed.
bool SindGleich(const GEOM2_Achse& a, const GEOM2_Achse& b) {
  const auto felder = [](const GEOM2_Achse& achse) {
    return std::tie(achse.Start.x, achse.Start.y, achse.dLaenge, achse.dWinkel, achse.dWinkelAnfang,
                    achse.dWinkelEnde);
  };
  return felder(a) == felder(b);
}

// Cuts all ends back once. True when a bar became shorter.
bool EndenZurueckschneiden(std::vector<CMBauteil>& teile) {
  const std::vector<Stab> staebe = StaebeAus(teile);
  bool shorter = false;
  for (std::size_t i = 0; i < staebe.size(); ++i) {
    for (const int ende : {0, 1}) shorter = EndeZurueckschneiden(staebe, i, ende) || shorter;
  }
  return shorter;
}

}  // namespace

void CMFenster::PfostenUndRiegelLegen() {
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (!bauteil.IsRahmenteil() || IsSameNode(bauteil.kAnfang, bauteil.kEnde)) continue;
    LegeZwischenKnoten(bauteil, achsen_);
  }
}

void CMFenster::PfostenUndRiegelAutomatischSetzen(const GEOM2_Polygon& innen,
                                                  const std::vector<GEOM2_Polygon>& grundformen) {
  // As large as the window, so that each end goes to its nearest node.
  const double fangRadius =
      std::max({box_.xmax, box_.ymax, box_.xmax - box_.xmin, box_.ymax - box_.ymin});
  Pfostensetzer(*this, innen, fangRadius)
      .Setze(Trennlinien(grundformen, innen, rahmen_.RahmenPolygon));
}

void CMFenster::PfostenUndRiegelVerschneiden(const GEOM2_Polygon& innen) {
  if (innen.GetAnzahl() < 3) return;
  lintavo::Arbeitsspeicher speicher;
  lintavo::Liste<GEOM2_Achse> amRahmen(&speicher);
  amRahmen.reserve(rahmen_.EinzelTeile.size());
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    if (bauteil.GetAchsLaenge() <= lintavo::kNullLaenge) {
      LegeZwischenKnoten(bauteil, achsen_);
    }
    if (!innen.AchseClippen(bauteil.Achse(0), 0.5 * bauteil.dBreite)) {
      bauteil.Achse(0).dLaenge = 0.0;
    }
    amRahmen.push_back(bauteil.Achse(0));
  }
  // An end that was cut back may now lie in a bar that it did not touch before.
  // Going on until every end rests leaves nothing for a second calculation.
  for (int pass = 0; pass < lintavo::kMaxSchnittgaenge; ++pass) {
    if (!EndenZurueckschneiden(rahmen_.EinzelTeile)) break;
  }
  // A shorter axis leaves less room for the lean of a cut at the frame. One that nothing
  // was cut off is cut already.
  auto vorher = amRahmen.begin();
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    if (SindGleich(bauteil.Achse(0), *vorher++)) continue;
    if (bauteil.GetAchsLaenge() <= lintavo::kNullLaenge) continue;
    if (!innen.AchseClippen(bauteil.Achse(0), 0.5 * bauteil.dBreite)) {
      bauteil.Achse(0).dLaenge = 0.0;
    }
  }
}
