// The outlines of a component: of one axis segment, and of the whole bar.
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMBauteil.h"

namespace {

using lintavo::Liste;

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

// Up to four places.
struct Ecken {
  std::array<XY, 4> orte;
  std::size_t anzahl = 0;

  void Anhaengen(const XY& p) { orte[anzahl++] = p; }
  const XY* begin() const { return orte.data(); }
  const XY* end() const { return orte.data() + anzahl; }
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

// Places in the frame of an axis: u along it, v to its left.
class Achsrahmen {
 public:
  explicit Achsrahmen(const GEOM2_Achse& achse)
      : achse_(achse), winkel_(achse.dWinkel * lintavo::kRadiantJeGrad) {}

  XY Richtung() const { return {cos_, sin_}; }
  XY Ort(double u, double v) const {
    return {achse_.Start.x + u * cos_ - v * sin_, achse_.Start.y + u * sin_ + v * cos_};
  }
  XY AmAnfang(double v) const { return Ort(Schnittversatz(v, achse_.dWinkelAnfang), v); }
  XY AmEnde(double v) const {
    return Ort(achse_.dLaenge + Schnittversatz(v, achse_.dWinkelEnde), v);
  }

 private:
  const GEOM2_Achse& achse_;
  double winkel_;
  double cos_ = std::cos(winkel_);
  double sin_ = std::sin(winkel_);
};

Segment SegmentVon(const GEOM2_Achse& achse, const Lage& lage) {
  const Achsrahmen rahmen(achse);
  return {rahmen.AmAnfang(lage.rechts), rahmen.AmEnde(lage.rechts), rahmen.AmEnde(lage.links),
          rahmen.AmAnfang(lage.links), rahmen.Richtung()};
}

// The left side of a segment from its start to its end. A mitre that would be a needle
// ends before it.
Ecken LinkeEcken(const GEOM2_Achse& achse, const Lage& lage) {
  const Achsrahmen rahmen(achse);
  Ecken ecken;
  const bool vorn = achse.bLinkeSeite && achse.dTiefeAnfang != 0.0;
  const bool hinten = achse.bLinkeSeite && achse.dTiefeEnde != 0.0;
  ecken.Anhaengen(rahmen.AmAnfang(vorn ? achse.dTiefeAnfang : lage.links));
  if (vorn) ecken.Anhaengen(rahmen.Ort(achse.dWegAnfang, lage.links));
  if (hinten) ecken.Anhaengen(rahmen.Ort(achse.dLaenge + achse.dWegEnde, lage.links));
  ecken.Anhaengen(rahmen.AmEnde(hinten ? achse.dTiefeEnde : lage.links));
  return ecken;
}

bool IstGekappt(const GEOM2_Achse& achse) {
  return achse.bLinkeSeite && (achse.dTiefeAnfang != 0.0 || achse.dTiefeEnde != 0.0);
}

// One long side of a bent component, from its start to its end. The sides of
// the segments are intersected with their neighbours; where a segment has no
// room on the inside of the bend, its neighbours meet. Both cuts bound the row. Where the
// frame's inner contour has no side at all, both cuts lead to one place.
Liste<XY> LangeSeite(const std::vector<GEOM2_Achse>& achsen, const Liste<Segment>& segmente,
                     bool links) {
  const auto from = [&](const Segment& s) { return links ? s.p4 : s.p1; };
  const auto to = [&](const Segment& s) { return links ? s.p3 : s.p2; };
  const Segment& first = segmente.front();
  const Segment& last = segmente.back();
  Liste<lintavo::Kettenseite> seiten(segmente.get_allocator());
  seiten.reserve(segmente.size() + 2);
  seiten.emplace_back(lintavo::Gerade{from(first), lintavo::Differenz(first.p4, first.p1)});
  for (std::size_t i = 0; i < segmente.size(); ++i) {
    if (links && !achsen[i].bLinkeSeite) continue;
    seiten.emplace_back(lintavo::Gerade{from(segmente[i]), segmente[i].richtung});
  }
  seiten.emplace_back(lintavo::Gerade{to(last), lintavo::Differenz(last.p3, last.p2)});
  Liste<XY> ecken(segmente.get_allocator());
  if (seiten.size() == 2) {
    ecken.push_back(Achsrahmen(achsen.front()).AmAnfang(achsen.front().dTiefeAnfang));
    return ecken;
  }
  for (const lintavo::Kettenecke& ecke : lintavo::OffeneKetteSchneiden(seiten)) {
    ecken.push_back(ecke.punkt);
  }
  return ecken;
}

// The left side as the frame's inner contour made it: along each axis from where its start
// cut ends to where its end cut ends. A place that follows itself is left out.
Liste<XY> LinkeSeite(const std::vector<GEOM2_Achse>& achsen, const Lage& lage,
                     lintavo::Speicher speicher) {
  Liste<XY> ecken(speicher);
  const auto anhaengen = [&](const XY& p) {
    if (ecken.empty() || lintavo::Abstand(ecken.back(), p) > lintavo::kNullLaenge) {
      ecken.push_back(p);
    }
  };
  for (const GEOM2_Achse& achse : achsen) {
    if (achse.bLinkeSeite) {
      for (const XY& p : LinkeEcken(achse, lage)) anhaengen(p);
    } else {
      anhaengen(Achsrahmen(achse).AmAnfang(achse.dTiefeAnfang));
    }
  }
  return ecken;
}

// Appends one long side; its last vertex starts the cut that follows it.
template <class Iterator>
void AddSeite(Iterator begin, Iterator end, int schnitt, GEOM2_Polygon& umriss) {
  for (Iterator it = begin; it != end; ++it) {
    umriss.AddPunkt(it->x, it->y, 0.0, 0.0, std::next(it) == end ? schnitt : kSichtbar);
  }
}

template <class Rechts, class Links>
void AddSeiten(const Rechts& rechts, const Links& links, int schnitt, GEOM2_Polygon& umriss) {
  umriss.Reservieren(static_cast<int>(std::distance(rechts.begin(), rechts.end()) +
                                      std::distance(links.begin(), links.end())));
  AddSeite(rechts.begin(), rechts.end(), schnitt, umriss);
  AddSeite(std::make_reverse_iterator(links.end()), std::make_reverse_iterator(links.begin()),
           schnitt, umriss);
}

}  // namespace

bool CMBauteil::GetUmrissPunkteAchsSegment(long i, GEOM2_Polygon& umriss) const {
  umriss.Clear();
  if (i < 0 || i >= lGetAnzAchsen()) return false;
  const Lage lage = LageDesSchnitts(lLage, dBreite + dUeberBreite);
  const Segment s = SegmentVon(Achse(i), lage);
  // The ends of an outer extra part stand free, those of all other kinds meet
  // their neighbours.
  const int schnitt = IsZusatzteilAussen() ? kSichtbar : kUnsichtbar;
  Ecken rechts;
  rechts.Anhaengen(s.p1);
  rechts.Anhaengen(s.p2);
  AddSeiten(rechts, LinkeEcken(Achse(i), lage), schnitt, umriss);
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

  const bool gekappt = std::any_of(Achsen.begin(), Achsen.end(), IstGekappt);
  AddSeiten(LangeSeite(Achsen, segmente, false),
            gekappt ? LinkeSeite(Achsen, lage, &speicher) : LangeSeite(Achsen, segmente, true),
            IsZusatzteilAussen() ? kSichtbar : kUnsichtbar, umriss);
  return true;
}
