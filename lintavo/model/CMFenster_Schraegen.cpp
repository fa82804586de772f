// Sloping edges when axes move: coefficients grow with their sashes, and a straight slope
// over several sashes stays straight.
#include <algorithm>
#include <cmath>
#include <vector>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/geom/Vektor_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/Numbers_intern.h"

namespace {

// The grid as a file keeps it. Coefficients are reckoned from it, so that there and back
// is the same whether or not the window was stored in between.
CMAchsen AsWritten(const CMAchsen& achsen) {
  CMAchsen written;
  double before = 0.0;
  for (int j = 0; j < achsen.iGetCntVerti(); ++j) {
    const double position = lintavo::AsWritten(achsen.dGetPosVerti(j));
    written.AddVerti(position - before);
    before = position;
  }
  before = 0.0;
  for (int k = 0; k < achsen.iGetCntHori(); ++k) {
    const double position = lintavo::AsWritten(achsen.dGetPosHori(k));
    written.AddHori(position - before);
    before = position;
  }
  return written;
}

// What a sash spans between its two corner nodes.
XY Extent(const CMFensterSatz& fluegel, const CMAchsen& achsen) {
  XY p1;
  XY p2;
  achsen.GetPunkt(fluegel.Knoten1, p1);
  achsen.GetPunkt(fluegel.Knoten2, p2);
  return {std::fabs(p2.x - p1.x), std::fabs(p2.y - p1.y)};
}

// Stretches a shape by its own sash's change, which the sash is told per axis interval.
void Stretch(CMFensterSatz& fluegel, bool bVerti, const CMAchsen& from, const CMAchsen& to) {
  const int i1 = bVerti ? fluegel.Knoten1.J() : fluegel.Knoten1.K();
  const int i2 = bVerti ? fluegel.Knoten2.J() : fluegel.Knoten2.K();
  const XY before = Extent(fluegel, from);
  const XY after = Extent(fluegel, to);
  const double extent = bVerti ? after.x : after.y;
  const double delta = extent - (bVerti ? before.x : before.y);
  // A sash squeezed to nothing keeps its shape for the time when it has an extent again.
  if (i1 == i2 || extent < lintavo::kNullLaenge) return;
  if (std::fabs(delta) < lintavo::kRechenrauschen) return;
  const double intervals = std::fabs(static_cast<double>(i2) - i1);
  fluegel.FormBeiwerteAnpassen(bVerti, to, i1, i2, delta / intervals);
}

// Corners of a rectangle, as its coefficients count them.
enum Corner { kTopLeft, kTopRight, kBottomLeft, kBottomRight };

bool IsLeft(int corner) {
  return corner == kTopLeft || corner == kBottomLeft;
}
bool IsTop(int corner) {
  return corner == kTopLeft || corner == kTopRight;
}

bool IsZero(const FormBeiwert& beiwert) {
  return std::fabs(beiwert.dWert) <= lintavo::kNullLaenge;
}

// The corner of a sash's rectangle, not moved by any coefficient.
XY GridCorner(const CMFensterSatz& fluegel, int corner, const CMAchsen& achsen) {
  XY p1;
  XY p2;
  achsen.GetPunkt(fluegel.Knoten1, p1);
  achsen.GetPunkt(fluegel.Knoten2, p2);
  return {IsLeft(corner) ? std::min(p1.x, p2.x) : std::max(p1.x, p2.x),
          IsTop(corner) ? std::max(p1.y, p2.y) : std::min(p1.y, p2.y)};
}

// One end of a slanted edge: a corner that a coefficient moves along one axis.
struct EdgeEnd {
  CMFensterSatz* fluegel = nullptr;
  int corner = kTopLeft;
  bool alongX = false;
  XY before;  // where it was

  FormBeiwert& Moving() const { return Of(alongX); }
  FormBeiwert& Other() const { return Of(!alongX); }
  // Along the axis that it moves on, and across it.
  double Along(const XY& p) const { return alongX ? p.x : p.y; }
  double Across(const XY& p) const { return alongX ? p.y : p.x; }
  // The direction from the corner into the sash.
  double Inwards() const { return (alongX ? IsLeft(corner) : !IsTop(corner)) ? 1.0 : -1.0; }
  // Like the grid, as a file keeps it.
  XY Place(const CMAchsen& achsen) const {
    XY p = GridCorner(*fluegel, corner, achsen);
    (alongX ? p.x : p.y) += Inwards() * lintavo::AsWritten(Moving().dWert);
    return p;
  }

 private:
  FormBeiwert& Of(bool x) const {
    return (x ? fluegel->FormBeiwertX : fluegel->FormBeiwertY)[corner];
  }
};

struct Edge {
  EdgeEnd start;
  EdgeEnd end;
};

// The corners of a rectangle counter-clockwise, a chamfer as two of them. What moves a
// corner without a coefficient is decided by the edge.
std::vector<EdgeEnd> Corners(CMFensterSatz& fluegel) {
  std::vector<EdgeEnd> corners;
  for (const int corner : {kBottomLeft, kBottomRight, kTopRight, kTopLeft}) {
    const bool upright = corner == kBottomLeft || corner == kTopRight;  // comes first
    EdgeEnd end{&fluegel, corner, !upright, {}};
    if (IsZero(end.Moving()) || IsZero(end.Other())) {
      end.alongX = !IsZero(fluegel.FormBeiwertX[corner]);
      corners.push_back(end);
      continue;
    }
    corners.push_back(end);
    end.alongX = upright;
    corners.push_back(end);
  }
  return corners;
}

bool IsSlanted(const Edge& edge) {
  const XY along = lintavo::Differenz(edge.end.before, edge.start.before);
  return std::min(std::fabs(along.x), std::fabs(along.y)) > lintavo::kUeberlagerung;
}

// Appends the slanted edges of a sash.
void AddEdges(CMFensterSatz& fluegel, const CMAchsen& before, std::vector<Edge>& edges) {
  if (fluegel.lForm != eFormRechteck) return;
  const std::vector<EdgeEnd> corners = Corners(fluegel);
  for (std::size_t i = 0; i < corners.size(); ++i) {
    Edge edge{corners[i], corners[(i + 1) % corners.size()]};
    const bool upright = IsLeft(edge.start.corner) == IsLeft(edge.end.corner);
    for (EdgeEnd* end : {&edge.start, &edge.end}) {
      if (IsZero(end->Moving()) && IsZero(end->Other())) end->alongX = upright;
      end->before = end->Place(before);
    }
    if (IsSlanted(edge)) edges.push_back(edge);
  }
}

// Where the line through two points is, along one axis, at a place across it.
double OnLine(const XY& from, const XY& to, double across, bool alongX) {
  const XY d = lintavo::Differenz(to, from);
  return alongX ? from.x + d.x * (across - from.y) / d.y : from.y + d.y * (across - from.x) / d.x;
}

// Whether two ends are one joint of a slope: a coefficient that is fixed ends it.
bool IsJoint(const EdgeEnd& a, const EdgeEnd& b) {
  return a.fluegel != b.fluegel && a.alongX == b.alongX && !a.Moving().bFest && !b.Moving().bFest;
}

// Whether the second edge goes on where the first one ends, in the same direction.
bool Continues(const Edge& first, const Edge& second) {
  if (!IsJoint(first.end, second.start)) return false;
  const XY& joint = first.end.before;
  if (lintavo::Abstand(joint, second.start.before) > lintavo::kVereinigung) return false;
  const XY a = lintavo::Differenz(joint, first.start.before);
  const XY b = lintavo::Differenz(second.end.before, joint);
  const XY whole = lintavo::Summe(a, b);
  return a.x * b.x > 0.0 && a.y * b.y > 0.0 &&
         std::fabs(lintavo::Kreuzprodukt(a, whole)) <=
             lintavo::kUeberlagerung * lintavo::Betrag(whole);
}

// A straight slope over several sashes: edges that continue each other.
using Slope = std::vector<const Edge*>;

std::vector<Slope> Slopes(const std::vector<Edge>& edges) {
  std::vector<const Edge*> next(edges.size(), nullptr);
  std::vector<bool> isFirst(edges.size(), true);
  for (std::size_t i = 0; i < edges.size(); ++i) {
    const auto found = std::find_if(edges.begin(), edges.end(),
                                    [&](const Edge& edge) { return Continues(edges[i], edge); });
    if (found == edges.end()) continue;
    next[i] = &*found;
    isFirst[static_cast<std::size_t>(found - edges.begin())] = false;
  }
  std::vector<Slope> slopes;
  for (std::size_t i = 0; i < edges.size(); ++i) {
    if (!isFirst[i] || !next[i]) continue;
    Slope& slope = slopes.emplace_back();
    // No edge comes again: all of them lead in one direction.
    for (const Edge* edge = &edges[i]; edge;
         edge = next[static_cast<std::size_t>(edge - edges.data())]) {
      slope.push_back(edge);
    }
  }
  return slopes;
}

// A new value of a coefficient.
struct Change {
  const EdgeEnd* end;
  double value;
};

// What moves an end to a place; false when that would bend or leave its side of the sash.
bool MoveTo(const EdgeEnd& end, double along, const CMAchsen& achsen,
            std::vector<Change>& changes) {
  const XY corner = GridCorner(*end.fluegel, end.corner, achsen);
  double value = end.Inwards() * (along - end.Along(corner));
  if (std::fabs(value) < lintavo::kRechenrauschen) value = 0.0;
  const XY extent = Extent(*end.fluegel, achsen);
  if (!(std::fabs(value) < end.Along(extent))) return false;
  // A chamfer stays one, and nothing else becomes one.
  if (!IsZero(end.Other()) && (IsZero(end.Moving()) || !(value > lintavo::kNullLaenge)))
    return false;
  changes.push_back({&end, value});
  return true;
}

// By how much an end was beside its place: nothing where a file has but rounded it.
double Beside(const EdgeEnd& end, double place) {
  const double d = end.Along(end.before) - place;
  return std::fabs(d) <= lintavo::kDateirundung ? 0.0 : d;
}

// Puts the joints of a slope onto the line between its ends; none of them where one cannot
// go there.
void Straighten(const Slope& slope, const CMAchsen& achsen) {
  const EdgeEnd& start = slope.front()->start;
  const EdgeEnd& end = slope.back()->end;
  std::vector<Change> changes;
  const auto move = [&](const EdgeEnd& joint) {
    const double was = OnLine(start.before, end.before, joint.Across(joint.before), joint.alongX);
    const double beside = Beside(joint, was);
    const double across = joint.Across(GridCorner(*joint.fluegel, joint.corner, achsen));
    const double is = OnLine(start.Place(achsen), end.Place(achsen), across, joint.alongX);
    return std::fabs(beside) <= lintavo::kUeberlagerung &&
           MoveTo(joint, is + beside, achsen, changes);
  };
  for (std::size_t i = 0; i + 1 < slope.size(); ++i) {
    if (!move(slope[i]->end) || !move(slope[i + 1]->start)) return;
  }
  for (const Change& change : changes) change.end->Moving().dWert = change.value;
}

}  // namespace

// Every sash reckons with its own change, wherever it lies; a slope that was straight
// stays so between its ends.
void CMFenster::FluegelFormBeiwerteAnpassen(const CMAchsen& before) {
  const CMAchsen from = AsWritten(before);
  const CMAchsen to = AsWritten(achsen_);
  std::vector<Edge> edges;
  for (const auto& fluegel : fluegel_) AddEdges(*fluegel, from, edges);
  for (const auto& fluegel : fluegel_) {
    Stretch(*fluegel, true, from, to);
    Stretch(*fluegel, false, from, to);
  }
  for (const Slope& slope : Slopes(edges)) Straighten(slope, to);
}
