// Opening symbols: the lines that tell in a drawing how a sash opens.
//
// Every symbol is laid into the box of the sash's inner contour, by its corners
// top left (tl), bottom left (bl), top right (tr) and bottom right (br).
#include <array>
#include <cmath>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/CMException.h"
#include "lintavo/sash/CMFensterSatz.h"

namespace {

using Linien = std::vector<CMStrecke>;

// Arrows have one size in every sash, in drawing units.
constexpr double kPfeilLaenge = 30.0;
constexpr double kPfeilBreite = 10.0;
// The diagonal of a fixed sash: how much of it is drawn at either end, and how
// far it has to rise at least.
constexpr double kDrittel = 0.333;
constexpr double kKleinsterAnstieg = 1.0;
// The zigzag of a folding arrow: its length in steps of the pattern, and its
// height as a part of the arrow's width.
constexpr double kZickzackSchritte = 9.5;
constexpr double kZickzackHoehe = 0.4;

// Directions are unit vectors, so that quarter turns are exact.
constexpr XY kNachRechts{1.0, 0.0};
constexpr XY kNachOben{0.0, 1.0};
constexpr XY kNachLinks{-1.0, 0.0};
constexpr XY kNachUnten{0.0, -1.0};

XY Mitte(const XY& p, const XY& q) {
  return {(p.x + q.x) / 2.0, (p.y + q.y) / 2.0};
}

// The point in `d` from `p` in a direction.
XY Von(const XY& p, const XY& richtung, double d) {
  return {p.x + richtung.x * d, p.y + richtung.y * d};
}

void Strich(const XY& p, const XY& q, Linien& lines) {
  lines.emplace_back(p, q);
}

// Adds what the contour leaves of a line.
void StrichInnen(const XY& p, const XY& q, const GEOM2_Polygon& contour, Linien& lines) {
  CMStrecke strich(p, q);
  strich.Clipp(contour);
  if (strich.IsInside(contour)) lines.push_back(strich);
}

// The ends of a middle line of the box, drawn in to the contour.
void EndenInnen(const GEOM2_Polygon& contour, XY& p, XY& q) {
  CMStrecke strecke(p, q);
  strecke.Clipp(contour);
  strecke.GetPunkte(p, q);
}

// A row of points given along an arrow (x) and to its left (y), from its start.
template <std::size_t N>
void Linienzug(const XY& start, const XY& richtung, const std::array<XY, N>& punkte,
               Linien& lines) {
  const auto toPlane = [&](const XY& p) {
    return XY{start.x + p.x * richtung.x - p.y * richtung.y,
              start.y + p.x * richtung.y + p.y * richtung.x};
  };
  for (std::size_t i = 0; i + 1 < N; ++i) Strich(toPlane(punkte[i]), toPlane(punkte[i + 1]), lines);
}

// A shaft with a closed head.
void Pfeil(const XY& start, const XY& richtung, Linien& lines) {
  constexpr double l = kPfeilLaenge;
  constexpr double b = kPfeilBreite;
  const std::array<XY, 5> punkte{
      {{0.0, 0.0}, {l, 0.0}, {l - b, b / 2.0}, {l - b, -b / 2.0}, {l, 0.0}}};
  Linienzug(start, richtung, punkte, lines);
}

// The same with a zigzag for a shaft.
void FaltPfeil(const XY& start, const XY& richtung, Linien& lines) {
  constexpr double l = kPfeilLaenge;
  constexpr double b = kPfeilBreite;
  constexpr double s = (l - b) / kZickzackSchritte;
  constexpr double h = kZickzackHoehe * b;
  const std::array<XY, 11> punkte{{{0.0, -h},
                                   {2.0 * s, h},
                                   {4.0 * s, -h},
                                   {6.0 * s, h},
                                   {8.0 * s, -h},
                                   {9.0 * s, 0.0},
                                   {l - b, 0.0},
                                   {l - b, b / 2.0},
                                   {l, 0.0},
                                   {l - b, -b / 2.0},
                                   {l - b, 0.0}}};
  Linienzug(start, richtung, punkte, lines);
}

// Where a sliding sash moves; false for a hinge side without a direction.
bool SchiebeRichtung(int lAnschlag, XY& richtung) {
  switch (static_cast<eAnschlagSeiten>(lAnschlag)) {
    case eAnschlagLinks:
      richtung = kNachRechts;
      return true;
    case eAnschlagRechts:
      richtung = kNachLinks;
      return true;
    case eAnschlagOben:
      richtung = kNachUnten;
      return true;
    case eAnschlagUnten:
      richtung = kNachOben;
      return true;
  }
  return false;
}

bool IsSeitlich(int lAnschlag) {
  return lAnschlag == eAnschlagLinks || lAnschlag == eAnschlagRechts;
}

void SymbolFest(const XY& bl, const XY& tr, const GEOM2_Polygon& contour, Linien& lines) {
  const double dx = tr.x - bl.x;
  const double dy = tr.y - bl.y;
  if (!(std::hypot(dx, dy) > lintavo::kNullLaenge && dy > kKleinsterAnstieg)) return;
  StrichInnen(bl, {bl.x + kDrittel * dx, bl.y + kDrittel * dy}, contour, lines);
  StrichInnen({tr.x - kDrittel * dx, tr.y - kDrittel * dy}, tr, contour, lines);
}

// The arrow that a lift-and-turn sash has beside the lines of a turn sash: it
// stands a quarter of the width beside the middle, on the hinge side.
void SymbolHeben(const XY& bl, const XY& tr, int lAnschlag, Linien& lines) {
  if (!IsSeitlich(lAnschlag)) return;
  const double viertel = (tr.x - bl.x) / 4.0;
  const XY mitte = Mitte(bl, tr);
  const double x = lAnschlag == eAnschlagLinks ? mitte.x - viertel : mitte.x + viertel;
  Pfeil({x, mitte.y - kPfeilLaenge / 2.0}, kNachOben, lines);
}

void SymbolSchiebe(const XY& mitte, int lAnschlag, Linien& lines) {
  XY richtung;
  if (!SchiebeRichtung(lAnschlag, richtung)) return;
  Pfeil(Von(mitte, richtung, -kPfeilLaenge / 2.0), richtung, lines);
}

// A sliding arrow with the stroke of lifting at its start.
void SymbolHebeSchiebe(const XY& mitte, int lAnschlag, Linien& lines) {
  XY richtung;
  if (!IsSeitlich(lAnschlag) || !SchiebeRichtung(lAnschlag, richtung)) return;
  const XY start = Von(mitte, richtung, -kPfeilLaenge / 2.0);
  Pfeil(start, richtung, lines);
  Strich(start, Von(start, kNachUnten, kPfeilBreite / 2.0), lines);
}

bool IsRechteckig(const GEOM2_Polygon& contour) {
  if (contour.GetAnzahl() != 4) return false;
  for (int i = 0; i < contour.GetAnzahl(); ++i) {
    XY a;
    XY b;
    contour.GetKante(i, a, b);
    const bool senkrecht = std::fabs(b.x - a.x) <= lintavo::kNullLaenge;
    const bool waagerecht = std::fabs(b.y - a.y) <= lintavo::kNullLaenge;
    if (!senkrecht && !waagerecht) return false;
  }
  return true;
}

// Two slanted lines where the sash is a rectangle, else a folding arrow.
void SymbolFalt(const XY& bl, const XY& tr, const GEOM2_Polygon& contour, int lAnschlag,
                Linien& lines) {
  if (!IsSeitlich(lAnschlag)) return;
  const bool links = lAnschlag == eAnschlagLinks;
  if (!IsRechteckig(contour)) {
    // The arrow points to the hinge side, other than that of a sliding sash, on
    // purpose: the leaves are folded up there.
    const XY richtung = links ? kNachLinks : kNachRechts;
    FaltPfeil(Von(Mitte(bl, tr), richtung, -kPfeilLaenge / 2.0), richtung, lines);
    return;
  }
  const double viertel = (tr.y - bl.y) / 4.0;
  const double von = links ? bl.x : tr.x;
  const double bis = links ? tr.x : bl.x;
  Strich({von, bl.y}, {bis, bl.y + viertel}, lines);
  Strich({von, tr.y}, {bis, tr.y - viertel}, lines);
}

}  // namespace

bool CMFensterSatz::GetOeffSymbol(std::vector<CMStrecke>& lines) const {
  if (!Fuellung.IsGlas()) return false;
  GEOM2_Polygon contour;
  if (!KonturLesen(false, contour)) return false;
  XY tl;
  XY bl;
  XY tr;
  XY br;
  Get4BorderPoints(tl, bl, tr, br, contour);
  const XY mitte = Mitte(bl, tr);

  switch (static_cast<eGangarten>(lGangart)) {
    case eGangartFest:
      SymbolFest(bl, tr, contour, lines);
      break;
    case eGangartDreh:
      SymbolDreh(tl, bl, tr, br, contour, lines);
      break;
    case eGangartKipp:
      SymbolKipp(tl, bl, tr, br, contour, lines);
      break;
    case eGangartKlapp:
      SymbolKlapp(tl, bl, tr, br, contour, lines);
      break;
    case eGangartDrehKipp:
      SymbolDreh(tl, bl, tr, br, contour, lines);
      SymbolKipp(tl, bl, tr, br, contour, lines);
      break;
    case eGangartHebeDreh:
      SymbolDreh(tl, bl, tr, br, contour, lines);
      SymbolHeben(bl, tr, lAnschlag, lines);
      break;
    case eGangartSchwing:
      SymbolRaute(tl, bl, tr, br, contour, lines);
      StrichInnen(Mitte(br, tr), Mitte(bl, tl), contour, lines);
      break;
    case eGangartWende:
      SymbolRaute(tl, bl, tr, br, contour, lines);
      StrichInnen(Mitte(tl, tr), Mitte(bl, br), contour, lines);
      break;
    case eGangartSchiebe:
      SymbolSchiebe(mitte, lAnschlag, lines);
      break;
    case eGangartHebeSchiebe:
      SymbolHebeSchiebe(mitte, lAnschlag, lines);
      break;
    case eGangartFalt:
      SymbolFalt(bl, tr, contour, lAnschlag, lines);
      break;
    case eGangartHebeSchiebeKipp:
      SymbolKipp(tl, bl, tr, br, contour, lines);
      SymbolHebeSchiebe(Von(mitte, kNachUnten, kPfeilBreite / 2.0), lAnschlag, lines);
      break;
  }
  return !lines.empty();
}

// The inner contour for operations that answer false where there is none.
bool CMFensterSatz::KonturLesen(bool mitZusatzteilen, GEOM2_Polygon& contour) const {
  try {
    return ErzeugeRahmenInnenPolygon(mitZusatzteilen, contour);
  } catch (const CMException&) {
    return false;
  }
}

// Two lines from the corners of the hinge side to the middle of the other one.
// Only the upright sides are hinge sides here.
void CMFensterSatz::SymbolDreh(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                               const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const {
  std::vector<CMStrecke> ganze;
  SymbolDreh(tl, bl, tr, br, ganze);
  for (const CMStrecke& strich : ganze) {
    XY p;
    XY q;
    strich.GetPunkte(p, q);
    StrichInnen(p, q, contour, lines);
  }
}

void CMFensterSatz::SymbolDreh(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                               std::vector<CMStrecke>& lines) const {
  if (!IsSeitlich(lAnschlag)) return;
  const bool links = lAnschlag == eAnschlagLinks;
  const XY spitze = links ? Mitte(br, tr) : Mitte(bl, tl);
  Strich(links ? bl : br, spitze, lines);
  Strich(spitze, links ? tl : tr, lines);
}

// From the lower corners to the middle of the top.
void CMFensterSatz::SymbolKipp(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                               const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const {
  XY unten = Mitte(bl, br);
  XY oben = Mitte(tl, tr);
  EndenInnen(contour, unten, oben);
  StrichInnen(bl, oben, contour, lines);
  StrichInnen(oben, br, contour, lines);
}

// From the upper corners to the middle of the bottom.
void CMFensterSatz::SymbolKlapp(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                                const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const {
  XY unten = Mitte(bl, br);
  XY oben = Mitte(tl, tr);
  EndenInnen(contour, unten, oben);
  StrichInnen(tl, unten, contour, lines);
  StrichInnen(unten, tr, contour, lines);
}

// A diamond between the middles of the four sides.
void CMFensterSatz::SymbolRaute(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                                const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const {
  XY unten = Mitte(bl, br);
  XY oben = Mitte(tl, tr);
  XY links = Mitte(bl, tl);
  XY rechts = Mitte(br, tr);
  EndenInnen(contour, unten, oben);
  EndenInnen(contour, links, rechts);
  Strich(unten, rechts, lines);
  Strich(rechts, oben, lines);
  Strich(oben, links, lines);
  Strich(links, unten, lines);
}
