// The outlines of a component: of one axis segment, and of the whole bar.
#include <algorithm>
#include <array>
#include <iterator>

#include "lintavo/geom/Schnittkette_intern.h"
#include "lintavo/geom/SegmentOutline_intern.h"
#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMBauteil.h"
#include "lintavo/model/SectionReach_intern.h"

namespace {

using lintavo::Liste;
using lintavo::SectionReach;
using Segment = lintavo::SegmentCorners;

constexpr int kSichtbar = 1;
constexpr int kUnsichtbar = 0;

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
    seiten.emplace_back(lintavo::Gerade{from(segmente[i]), segmente[i].direction});
  }
  seiten.emplace_back(lintavo::Gerade{to(last), lintavo::Differenz(last.p3, last.p2)});
  Liste<XY> ecken(segmente.get_allocator());
  if (seiten.size() == 2) {
    ecken.push_back(lintavo::VanishedSideOf(achsen.front()));
    return ecken;
  }
  for (const lintavo::Kettenecke& ecke : lintavo::OffeneKetteSchneiden(seiten)) {
    ecken.push_back(ecke.punkt);
  }
  return ecken;
}

// The left side as the frame's inner contour made it: along each axis from where its start
// cut ends to where its end cut ends. A place that follows itself is left out.
Liste<XY> LinkeSeite(const std::vector<GEOM2_Achse>& achsen, const SectionReach& reach,
                     lintavo::Speicher speicher) {
  Liste<XY> ecken(speicher);
  const auto anhaengen = [&](const XY& p) {
    if (ecken.empty() || lintavo::Abstand(ecken.back(), p) > lintavo::kNullLaenge) {
      ecken.push_back(p);
    }
  };
  for (const GEOM2_Achse& achse : achsen) {
    if (achse.bLinkeSeite) {
      const lintavo::LeftCorners links = lintavo::LeftCornersOf(achse, reach);
      for (const XY& p : links.All()) anhaengen(p);
    } else {
      anhaengen(lintavo::VanishedSideOf(achse));
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
  const SectionReach reach = lintavo::ReachOf(*this);
  const Segment s = lintavo::CornersOf(Achse(i), reach);
  // The ends of an outer extra part stand free, those of all other kinds meet
  // their neighbours.
  const int schnitt = IsZusatzteilAussen() ? kSichtbar : kUnsichtbar;
  const lintavo::LeftCorners links = lintavo::LeftCornersOf(Achse(i), reach);
  AddSeiten(std::array{s.p1, s.p2}, links.All(), schnitt, umriss);
  return true;
}

bool CMBauteil::GetUmrissPunkte(GEOM2_Polygon& umriss) const {
  if (Achsen.size() <= 1) return GetUmrissPunkteAchsSegment(0, umriss);
  umriss.Clear();
  const SectionReach reach = lintavo::ReachOf(*this);
  lintavo::Arbeitsspeicher speicher;
  Liste<Segment> segmente(&speicher);
  segmente.reserve(Achsen.size());
  for (const GEOM2_Achse& achse : Achsen) {
    segmente.push_back(lintavo::CornersOf(achse, reach));
  }

  const bool gekappt = std::any_of(Achsen.begin(), Achsen.end(), lintavo::IsTrimmed);
  AddSeiten(LangeSeite(Achsen, segmente, false),
            gekappt ? LinkeSeite(Achsen, reach, &speicher) : LangeSeite(Achsen, segmente, true),
            IsZusatzteilAussen() ? kSichtbar : kUnsichtbar, umriss);
  return true;
}
