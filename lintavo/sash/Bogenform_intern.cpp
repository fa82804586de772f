#include "lintavo/sash/Bogenform_intern.h"

#include <algorithm>
#include <cmath>

#include "lintavo/geom/Geraden.h"
#include "lintavo/geom/Toleranzen.h"

namespace lintavo {

namespace {

constexpr int kBogenSegmente = 24;
// Of an arch at the top and one at the bottom, with its four ends.
constexpr int kGroessteEckenzahl = 2 * (kBogenSegmente - 1) + 4;
// Sides of an arch that are no longer than this vanish.
constexpr double kSeitenHoehe = 0.0001;
// Clean-up of the finished outline.
constexpr double kBogenBereinigung = 0.001;

bool HatStich(double stich) {
  return stich > kNullLaenge;
}

void BegrenzeStich(double& stich, double hoehe, double halbeSpanne, bool korbbogen) {
  if (!HatStich(stich)) return;
  stich = std::min(stich, hoehe);
  if (korbbogen) {
    stich = std::min(stich, halbeSpanne);
  } else if (stich > halbeSpanne - kNullLaenge) {
    stich = halbeSpanne;
  }
}

// Adds the inner points of an arc, both ends left out.
void AddBogenpunkte(const XY& mitte, double rx, double ry, double winkel, double oeffnung,
                    GEOM2_Polygon& polygon) {
  for (int k = 1; k < kBogenSegmente; ++k) {
    const double w = winkel + k * oeffnung / kBogenSegmente;
    polygon.AddPunkt(mitte.x + rx * std::cos(w), mitte.y + ry * std::sin(w));
  }
}

// A circular segment of a given rise over the span.
struct Kreissegment {
  Kreissegment(double stich, double spanne)
      : dOeffnung(4.0 * std::atan(2.0 * stich / spanne)),
        dRadius(spanne / (2.0 * std::sin(dOeffnung / 2.0))) {}

  double dOeffnung;  // radians
  double dRadius;
};

// The arch over its whole span, before it is cut to the sash.
class VollerBogen {
 public:
  explicit VollerBogen(const Bogenform& form)
      : form_(form),
        links_(form.LinkesEnde()),
        spanne_(form.Spanne()),
        rechts_(links_ + spanne_),
        mitte_(links_ + spanne_ / 2.0),
        oben_(HatStich(form.dStich) ? form.dStich : 0.0),
        unten_(HatStich(form.dStichUnten) ? form.dStichUnten : 0.0) {}

  void Baue(GEOM2_Polygon& polygon) const {
    polygon.Reservieren(kGroessteEckenzahl);
    AddUnterkante(polygon);
    AddOberkante(polygon);
    if (polygon.GetAnzahl() >= 3) return;
    polygon.AddPunkt(form_.Box.xmax, form_.Box.ymax);
    polygon.AddPunkt(form_.Box.xmin, form_.Box.ymax);
  }

 private:
  // From left to right.
  void AddUnterkante(GEOM2_Polygon& polygon) const {
    const double kaempfer = form_.Box.ymin + unten_;
    polygon.AddPunkt(links_, kaempfer);
    if (unten_ > 0.0 && form_.bKorbbogen) {
      AddBogenpunkte({mitte_, kaempfer}, spanne_ / 2.0, unten_, kPi, kPi, polygon);
    } else if (unten_ > 0.0) {
      const Kreissegment kreis(unten_, spanne_);
      AddBogenpunkte({mitte_, form_.Box.ymin + kreis.dRadius}, kreis.dRadius, kreis.dRadius,
                     1.5 * kPi - kreis.dOeffnung / 2.0, kreis.dOeffnung, polygon);
    }
    polygon.AddPunkt(rechts_, kaempfer);
  }

  // From right to left. Where the lower arch already reaches the springing
  // line, the ends of both arches are one.
  void AddOberkante(GEOM2_Polygon& polygon) const {
    const double kaempferHoehe = form_.Box.Hoehe() - oben_;
    const double kaempfer = form_.Box.ymin + kaempferHoehe;
    const bool seiten =
        oben_ > 0.0 ? unten_ + kSeitenHoehe < kaempferHoehe : unten_ < kaempferHoehe - kNullLaenge;
    if (seiten) polygon.AddPunkt(rechts_, kaempfer);
    if (oben_ > 0.0 && form_.bKorbbogen) {
      AddBogenpunkte({mitte_, kaempfer}, spanne_ / 2.0, oben_, 0.0, kPi, polygon);
    } else if (oben_ > 0.0) {
      const Kreissegment kreis(oben_, spanne_);
      AddBogenpunkte({mitte_, form_.Box.ymax - kreis.dRadius}, kreis.dRadius, kreis.dRadius,
                     0.5 * kPi - kreis.dOeffnung / 2.0, kreis.dOeffnung, polygon);
    }
    if (seiten) polygon.AddPunkt(links_, kaempfer);
  }

  const Bogenform& form_;
  double links_;
  double spanne_;
  double rechts_;
  double mitte_;
  double oben_;
  double unten_;
};

struct Schnitt {
  int kante = 0;
  XY punkt;
};

// Where the vertical line at x crosses an edge. The edge's start is taken as origin, as
// the intersection is only as exact as the coordinates are small.
bool SchneideKante(const GEOM2_Polygon& polygon, double x, int i, Schnitt& schnitt) {
  XY a;
  XY b;
  if (!polygon.GetKante(i, a, b)) return false;
  const XY ende{b.x - a.x, b.y - a.y};
  const XY unten{x - a.x, 0.0};
  const XY oben{x - a.x, 1.0};
  XY p;
  if (SchnittpunktGeraden({}, ende, unten, oben, kNullLaenge, p) != 1) return false;
  if (!IsPunktAufStrecke(p, {}, ende, kNullLaenge)) return false;
  schnitt = {i, {x, a.y + p.y}};
  return true;
}

// The first edge from `ab` on that the vertical line at x crosses.
bool FindeSchnitt(const GEOM2_Polygon& polygon, double x, int ab, Schnitt& schnitt) {
  int i = ab;
  while (i < polygon.GetAnzahl() && !SchneideKante(polygon, x, i, schnitt)) ++i;
  return i < polygon.GetAnzahl();
}

// Whether the vertical line at x crosses an edge that leads from left to right.
bool SchneidetNachRechts(const GEOM2_Polygon& polygon, double x, int i) {
  Schnitt schnitt;
  XY a;
  XY b;
  return SchneideKante(polygon, x, i, schnitt) && polygon.GetKante(i, a, b) && a.x < b.x;
}

// The strip of the whole arch that a sash keeps: links <= x <= rechts.
struct Streifen {
  // Whether a vertex lies so close beside a cut that the clean-up would keep it in place of
  // the crossing: the upright side of the sash would slant. One on the cut is the crossing.
  bool IsNebenSchnitt(const GEOM2_Eckpunkt& ecke) const {
    const double abstand = std::min(std::fabs(ecke.x - links), std::fabs(ecke.x - rechts));
    return abstand > kRechenrauschen && abstand <= kBogenBereinigung;
  }

  double links;
  double rechts;
};

void AddEcken(const GEOM2_Polygon& von, int erste, int letzte, const Streifen& streifen,
              GEOM2_Polygon& polygon) {
  for (int i = erste; i <= letzte; ++i) {
    const GEOM2_Eckpunkt& ecke = von.GetEckpunkt(i);
    if (!streifen.IsNebenSchnitt(ecke)) polygon.AddPunkt(ecke);
  }
}

// Cuts the whole arch to a strip: along the lower edge from the
// left line to the right one, up, and back along the upper edge. Each search
// goes on from the edge of the crossing before, so that a flat top, which both
// lines cross, is not lost. Only after the lower right crossing the search
// moves on, past the neighbour too when the crossing is their common vertex; but
// a neighbour that leads back, at the end of the span, is the upper edge.
void SchneideStreifen(const GEOM2_Polygon& voll, const Streifen& streifen, GEOM2_Polygon& outline) {
  outline.Reservieren(kGroessteEckenzahl);
  int suche = 0;  // edge from which the next search starts
  int folge = 0;  // vertex that comes next in the outline
  Schnitt schnitt;
  if (FindeSchnitt(voll, streifen.links, suche, schnitt)) {
    outline.AddPunkt(schnitt.punkt.x, schnitt.punkt.y);
    suche = schnitt.kante;
    folge = suche + 1;
  }
  if (FindeSchnitt(voll, streifen.rechts, suche, schnitt)) {
    AddEcken(voll, folge, schnitt.kante, streifen, outline);
    outline.AddPunkt(schnitt.punkt.x, schnitt.punkt.y);
    suche = schnitt.kante + 1;
    if (SchneidetNachRechts(voll, streifen.rechts, suche)) ++suche;
    folge = suche;
  }
  if (FindeSchnitt(voll, streifen.rechts, suche, schnitt)) {
    outline.AddPunkt(schnitt.punkt.x, schnitt.punkt.y);
    suche = schnitt.kante;
    folge = suche + 1;
  }
  if (FindeSchnitt(voll, streifen.links, suche, schnitt)) {
    AddEcken(voll, folge, schnitt.kante, streifen, outline);
    outline.AddPunkt(schnitt.punkt.x, schnitt.punkt.y);
  } else {
    AddEcken(voll, folge, voll.GetAnzahl() - 1, streifen, outline);
  }
}

}  // namespace

void BegrenzeStiche(Bogenform& form) {
  const double hoehe = form.Box.Hoehe();
  if (HatStich(form.dStich) && HatStich(form.dStichUnten) &&
      form.dStich + form.dStichUnten > hoehe - kNullLaenge) {
    form.dStich = form.dStichUnten = hoehe / 2.0;
  }
  const double halbeSpanne = form.Spanne() / 2.0;
  BegrenzeStich(form.dStichUnten, hoehe, halbeSpanne, form.bKorbbogen);
  BegrenzeStich(form.dStich, hoehe, halbeSpanne, form.bKorbbogen);
}

void MerkeStiche(const Bogenform& form, bool obenHoechstens, double& dStich, double& dStichUnten) {
  const double oben = obenHoechstens ? std::max(dStich, form.dStich) : form.dStich;
  if (std::fabs(oben - dStich) <= kDateirundung &&
      std::fabs(form.dStichUnten - dStichUnten) <= kDateirundung) {
    return;
  }
  dStich = oben;
  dStichUnten = form.dStichUnten;
}

void BaueBogen(const Bogenform& form, GEOM2_Polygon& outline) {
  GEOM2_Polygon voll;
  VollerBogen(form).Baue(voll);
  PruefeEndlich(voll);
  if (form.Rand.links >= kNullLaenge || form.Rand.rechts >= kNullLaenge) {
    const double linkesEnde = form.LinkesEnde();
    SchneideStreifen(
        voll,
        {std::max(form.Box.xmin, linkesEnde), std::min(form.Box.xmax, linkesEnde + form.Spanne())},
        outline);
    PruefeEndlich(outline);
    outline.KurzeKantenEntfernen(kBogenBereinigung);
  } else {
    outline = voll;
  }
  outline.Bereinigen(kBogenBereinigung);
}

}  // namespace lintavo
