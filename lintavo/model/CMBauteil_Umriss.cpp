// The outlines of a component: of one axis segment, and of the whole bar.
#include <algorithm>
#include <cmath>
#include <iterator>

#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMBauteil.h"

namespace {

using lintavo::Liste;

constexpr int kEckenJeSegment = 4;
constexpr int kSichtbar = 1;
constexpr int kUnsichtbar = 0;

// The four corners of one segment, in the order of its outline.
//
//   p4 (left start)  ----------------  p3 (left end)
//                     axis ->
//   p1 (right start) ----------------  p2 (right end)
struct Segment {
  XY p1;
  XY p2;
  XY p3;
  XY p4;
  XY richtung;
};

// How far the section reaches to the right (negative) and left of the axis.
struct Lage {
  double rechts;
  double links;
};

Lage LageDesSchnitts(long lLage, double breite) {
  switch (lLage) {
    case eLageRechts:
      return {-breite, 0.0};
    case eLageLinks:
      return {0.0, breite};
    default:
      return {-breite / 2.0, breite / 2.0};
  }
}

// How far a cut has moved along the axis at distance v from it.
double Schnittversatz(double v, double winkel) {
  const double versatz = v * std::tan(winkel * lintavo::kRadiantJeGrad);
  return std::fabs(versatz) < lintavo::kNullLaenge ? 0.0 : versatz;
}

Segment SegmentVon(const GEOM2_Achse& achse, const Lage& lage) {
  const double winkel = achse.dWinkel * lintavo::kRadiantJeGrad;
  const XY richtung{std::cos(winkel), std::sin(winkel)};
  const auto toPlane = [&](double u, double v) {
    return XY{achse.Start.x + u * richtung.x - v * richtung.y,
              achse.Start.y + u * richtung.y + v * richtung.x};
  };
  const auto start = [&](double v) { return toPlane(Schnittversatz(v, achse.dWinkelAnfang), v); };
  const auto end = [&](double v) {
    return toPlane(achse.dLaenge + Schnittversatz(v, achse.dWinkelEnde), v);
  };
  return {start(lage.rechts), end(lage.rechts), end(lage.links), start(lage.links), richtung};
}

// Whether both cuts of a segment aim at p, a corner on its left.
bool ZieltAuf(const Segment& s, const XY& p) {
  const auto aufSchnitt = [&](const XY& rechts, const XY& links) {
    const XY schnitt = lintavo::Einheit(lintavo::Differenz(links, rechts));
    return std::fabs(lintavo::Kreuzprodukt(schnitt, lintavo::Differenz(p, rechts))) <=
           lintavo::kNullLaenge;
  };
  return aufSchnitt(s.p1, s.p4) && aufSchnitt(s.p2, s.p3);
}

// The first segment of a row whose left side is there. Those before it have vanished below
// a wider neighbour of the component: their cuts aim at the corner in which it starts.
template <class Iterator, class Ecke>
Iterator ErstesMitSeite(Iterator begin, Iterator end, Ecke ecke) {
  for (Iterator k = std::next(begin); k != end; ++k) {
    const XY start = ecke(*k);
    if (std::all_of(begin, k, [&](const Segment& s) { return ZieltAuf(s, start); })) return k;
  }
  return begin;
}

// One long side of a bent component, from its start to its end. The sides of
// the segments are intersected with their neighbours; where a segment has no
// room on the inside of the bend, its neighbours meet. Both cuts bound the row.
Liste<lintavo::Kettenecke> LangeSeite(const Liste<Segment>& segmente, bool links) {
  const auto from = [&](const Segment& s) { return links ? s.p4 : s.p1; };
  const auto to = [&](const Segment& s) { return links ? s.p3 : s.p2; };
  const Segment& first = segmente.front();
  const Segment& last = segmente.back();
  auto begin = segmente.begin();
  auto end = segmente.end();
  if (links) {
    begin = ErstesMitSeite(segmente.begin(), segmente.end(), from);
    end = ErstesMitSeite(segmente.rbegin(), segmente.rend(), to).base();
    if (begin >= end) begin = segmente.begin(), end = segmente.end();
  }

  Liste<lintavo::Kettenseite> seiten(segmente.get_allocator());
  seiten.reserve(segmente.size() + 2);
  seiten.emplace_back(lintavo::Gerade{from(first), lintavo::Differenz(first.p4, first.p1)});
  for (auto segment = begin; segment != end; ++segment) {
    seiten.emplace_back(lintavo::Gerade{from(*segment), segment->richtung});
  }
  seiten.emplace_back(lintavo::Gerade{to(last), lintavo::Differenz(last.p3, last.p2)});
  return lintavo::OffeneKetteSchneiden(seiten);
}

// Appends one long side; its last vertex starts the cut that follows it.
template <class Iterator>
void AddSeite(Iterator begin, Iterator end, int schnitt, GEOM2_Polygon& umriss) {
  for (Iterator it = begin; it != end; ++it) {
    umriss.AddPunkt(it->punkt.x, it->punkt.y, 0.0, 0.0, std::next(it) == end ? schnitt : kSichtbar);
  }
}

}  // namespace

bool CMBauteil::GetUmrissPunkteAchsSegment(long i, GEOM2_Polygon& umriss) const {
  umriss.Clear();
  if (i < 0 || i >= lGetAnzAchsen()) return false;
  const Segment s = SegmentVon(Achse(i), LageDesSchnitts(lLage, dBreite + dUeberBreite));
  // The ends of an outer extra part stand free, those of all other kinds meet
  // their neighbours.
  const int schnitt = IsZusatzteilAussen() ? kSichtbar : kUnsichtbar;
  umriss.Reservieren(kEckenJeSegment);
  umriss.AddPunkt(s.p1.x, s.p1.y, 0.0, 0.0, kSichtbar);
  umriss.AddPunkt(s.p2.x, s.p2.y, 0.0, 0.0, schnitt);
  umriss.AddPunkt(s.p3.x, s.p3.y, 0.0, 0.0, kSichtbar);
  umriss.AddPunkt(s.p4.x, s.p4.y, 0.0, 0.0, schnitt);
  return true;
}

bool CMBauteil::GetUmrissPunkte(GEOM2_Polygon& umriss) const {
  if (Achsen.size() <= 1) return GetUmrissPunkteAchsSegment(0, umriss);
  umriss.Clear();
  const Lage lage = LageDesSchnitts(lLage, dBreite + dUeberBreite);
  lintavo::Arbeitsspeicher speicher;
  Liste<Segment> segmente(&speicher);
  segmente.reserve(Achsen.size());
  for (const GEOM2_Achse& achse : Achsen) segmente.push_back(SegmentVon(achse, lage));

  const int schnitt = IsZusatzteilAussen() ? kSichtbar : kUnsichtbar;
  const Liste<lintavo::Kettenecke> rechts = LangeSeite(segmente, false);
  const Liste<lintavo::Kettenecke> links = LangeSeite(segmente, true);
  umriss.Reservieren(static_cast<int>(rechts.size() + links.size()));
  AddSeite(rechts.begin(), rechts.end(), schnitt, umriss);
  AddSeite(links.rbegin(), links.rend(), schnitt, umriss);
  return true;
}
