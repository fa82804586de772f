// Mullions and transoms: where they are set by themselves, and how they are cut
// to the frame and to each other.
#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Seitendeckung.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/Arbeitsspeicher_intern.h"
#include "lintavo/platform/Grenzen_intern.h"

using lintavo::Differenz;
using lintavo::Kreuzprodukt;
using lintavo::Skalarprodukt;

namespace {

// --- setting ------------------------------------------------------------------

// Whether an edge runs along the frame: on its inner border, or on its outline.
bool IsAmRahmen(const CMStrecke& kante, const GEOM2_Polygon& innen, const GEOM2_Polygon& umriss) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  if (innen.IsAufRand(a, lintavo::kNullLaenge) && innen.IsAufRand(b, lintavo::kNullLaenge)) {
    return true;
  }
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    XY c;
    XY d;
    umriss.GetKante(i, c, d);
    if (lintavo::SeitenDecken(a, b, c, d)) return true;
  }
  return false;
}

// Whether an edge runs along a mullion or transom that is there already.
bool IsAnPfosten(const CMStrecke& kante, const std::vector<CMBauteil>& teile,
                 const CMAchsen& achsen) {
  XY a;
  XY b;
  kante.GetPunkte(a, b);
  return std::any_of(teile.begin(), teile.end(), [&](const CMBauteil& teil) {
    XY c;
    XY d;
    achsen.GetPunkt(teil.kAnfang, c);
    achsen.GetPunkt(teil.kEnde, d);
    return teil.IsRahmenteil() && lintavo::SeitenDecken(a, b, c, d);
  });
}

// The segment from the lowest to the highest of the four ends of two collinear
// segments.
CMStrecke Merged(const CMStrecke& s, const CMStrecke& t) {
  XY ends[4];
  s.GetPunkte(ends[0], ends[1]);
  t.GetPunkte(ends[2], ends[3]);
  const XY along = Differenz(ends[1], ends[0]);
  const auto [lowest, highest] =
      std::minmax_element(std::begin(ends), std::end(ends), [&](const XY& p, const XY& q) {
        return Skalarprodukt(Differenz(p, ends[0]), along) <
               Skalarprodukt(Differenz(q, ends[0]), along);
      });
  return CMStrecke(*lowest, *highest);
}

// Adds a segment to the list; those that it overlaps become one with it.
void AddMerged(std::vector<CMStrecke>& segmente, CMStrecke segment) {
  for (std::size_t i = 0; i < segmente.size();) {
    if (!segmente[i].IsUeberlagerung(segment)) {
      ++i;
      continue;
    }
    segment = Merged(segmente[i], segment);
    segmente.erase(segmente.begin() + static_cast<std::ptrdiff_t>(i));
    // The longer segment may now reach one that was looked at before.
    i = 0;
  }
  segmente.push_back(segment);
}

// Every sash edge that runs along neither the frame nor a mullion or transom,
// common edges once.
std::vector<CMStrecke> Trennlinien(const std::vector<GEOM2_Polygon>& grundformen,
                                   const GEOM2_Polygon& innen, const CMFensterSatz& rahmen,
                                   const CMAchsen& achsen) {
  std::vector<CMStrecke> segmente;
  for (const GEOM2_Polygon& form : grundformen) {
    for (int i = 0; i < form.GetAnzahl(); ++i) {
      XY a;
      XY b;
      form.GetKante(i, a, b);
      const CMStrecke kante(a, b);
      if (IsAmRahmen(kante, innen, rahmen.RahmenPolygon)) continue;
      if (!IsAnPfosten(kante, rahmen.EinzelTeile, achsen)) AddMerged(segmente, kante);
    }
  }
  return segmente;
}

// Whether a segment has a piece inside the frame. Edges of a group of sashes
// that the frame does not surround have none.
bool IsImRahmen(const CMStrecke& segment, const GEOM2_Polygon& innen) {
  XY a;
  XY b;
  segment.GetPunkte(a, b);
  GEOM2_Achse achse;
  return GEOM2_Polygon::SetAchse(a, b, achse) && innen.AchseClippen(achse, 0.0);
}

bool IsSameNode(const CMKnoten& a, const CMKnoten& b) {
  return a.J() == b.J() && a.K() == b.K();
}

bool IsBetween(const CMBauteil& bauteil, const CMKnoten& k1, const CMKnoten& k2) {
  return (IsSameNode(bauteil.kAnfang, k1) && IsSameNode(bauteil.kEnde, k2)) ||
         (IsSameNode(bauteil.kAnfang, k2) && IsSameNode(bauteil.kEnde, k1));
}

// Whether an edge whose ends both go to the same node is what a mullion or transom that
// ends in this node has beyond it, as under a slanted top.
bool IsFortsetzung(const CMStrecke& kante, const CMKnoten& knoten, const CMBauteil& bauteil,
                   const CMAchsen& achsen) {
  if (!bauteil.IsRahmenteil() || IsSameNode(bauteil.kAnfang, bauteil.kEnde)) return false;
  if (!IsSameNode(bauteil.kAnfang, knoten) && !IsSameNode(bauteil.kEnde, knoten)) return false;
  XY a;
  XY b;
  XY c;
  XY d;
  kante.GetPunkte(a, b);
  achsen.GetPunkt(bauteil.kAnfang, c);
  achsen.GetPunkt(bauteil.kEnde, d);
  return std::fabs(AbstandPunktGerade(c, d, a)) <= lintavo::kUeberlagerung &&
         std::fabs(AbstandPunktGerade(c, d, b)) <= lintavo::kUeberlagerung;
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

void CMFenster::PfostenUndRiegelAutomatischSetzen(const GEOM2_Polygon& innen,
                                                  const std::vector<GEOM2_Polygon>& grundformen) {
  // As large as the window, so that each end goes to its nearest node.
  const double fangRadius =
      std::max({box_.xmax, box_.ymax, box_.xmax - box_.xmin, box_.ymax - box_.ymin});
  for (const CMStrecke& segment : Trennlinien(grundformen, innen, rahmen_, achsen_)) {
    if (!IsImRahmen(segment, innen)) continue;
    XY a;
    XY b;
    segment.GetPunkte(a, b);
    CMKnoten k1;
    CMKnoten k2;
    achsen_.GetKnoten(a, k1, fangRadius);
    achsen_.GetKnoten(b, k2, fangRadius);
    const bool present = std::any_of(
        rahmen_.EinzelTeile.begin(), rahmen_.EinzelTeile.end(), [&](const CMBauteil& teil) {
          if (teil.IsRahmenteil() && IsBetween(teil, k1, k2)) return true;
          return IsSameNode(k1, k2) && IsFortsetzung(segment, k1, teil, achsen_);
        });
    // A second calculation finds the mullions of the first.
    if (present) continue;
    CMBauteil& bauteil = *AddRahmenEinzelBauteil(k1, k2, pfostenVorlage_);
    bauteil.Achsen = pfostenVorlage_.Achsen;
    if (IsSameNode(k1, k2)) continue;
    bauteil.Achsen.resize(1);
    GEOM2_Polygon::SetAchse(a, b, bauteil.Achse(0));
  }
}

void CMFenster::PfostenUndRiegelVerschneiden(const GEOM2_Polygon& innen) {
  if (innen.GetAnzahl() < 3) return;
  lintavo::Arbeitsspeicher speicher;
  lintavo::Liste<GEOM2_Achse> amRahmen(&speicher);
  amRahmen.reserve(rahmen_.EinzelTeile.size());
  for (CMBauteil& bauteil : rahmen_.EinzelTeile) {
    if (!bauteil.IsRahmenteil()) continue;
    if (bauteil.GetAchsLaenge() <= lintavo::kNullLaenge) {
      XY a;
      XY b;
      achsen_.GetPunkt(bauteil.kAnfang, a);
      achsen_.GetPunkt(bauteil.kEnde, b);
      bauteil.Achsen.assign(1, GEOM2_Achse{});
      GEOM2_Polygon::SetAchse(a, b, bauteil.Achse(0));
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
