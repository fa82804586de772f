// The view of a window: what a calculation has made of it, and the picture of it.
#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "lintavo/geom/Toleranzen.h"
#include "lintavo/model/Achsbereich_intern.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/sash/SashView_intern.h"
#include "lintavo/view/HiddenLines.h"
#include "lintavo/view/WindowView.h"

using lintavo::Sash;
using lintavo::ViewSide;
using lintavo::WindowView;

namespace {

// --- what covers what -----------------------------------------------------------

enum Layer { kBeforeFrame, kFrame, kBehindFrame };

// A pane without a sash frame sits in the rebate of the window's frame, which covers it from
// both sides.
Layer LayerOf(const Sash& sash, bool hasFrame, ViewSide side) {
  return hasFrame && lintavo::OpensTowards(sash, side) ? kBeforeFrame : kBehindFrame;
}

// Depth of a sash behind the frame's face on the viewer's side, in whole steps of the smallest
// length, so that the same depth reckoned in two ways compares equal.
double DepthBehind(const lintavo::Depth& depth, double frameThickness, ViewSide side) {
  const double behind = side == ViewSide::kInside ? depth.from : frameThickness - depth.to;
  const double steps = std::round(behind / lintavo::kNullLaenge);
  return std::isnan(steps) ? 0.0 : steps;
}

// The window's layers, the nearest first. Of sashes of equal depth those that open towards the
// viewer come first; those that open to one side lie on each other, towards that side, in the
// order in which they open.
std::vector<int> OrderFrom(ViewSide side, const CMFenster& fenster, const WindowView& view) {
  using Key = std::tuple<Layer, double, bool, bool, int>;
  const double thickness = lintavo::ThicknessOf(*fenster.GetRahmenPtr());
  std::vector<std::pair<Key, int>> layers;
  layers.push_back({{kFrame, 0.0, false, false, 0}, lintavo::kFrameRecord});
  for (int i = 0; i < static_cast<int>(view.sashes.size()); ++i) {
    const Sash& sash = view.sashes[static_cast<std::size_t>(i)];
    const bool fromBehind = !lintavo::OpensTowards(sash, side);
    const bool hasFrame = fenster.GetFluegelPtr(i)->bMitRahmen;
    layers.push_back({{LayerOf(sash, hasFrame, side), DepthBehind(sash.depth, thickness, side),
                       fromBehind, sash.opening.first == fromBehind, fromBehind ? -i : i},
                      i});
  }
  std::sort(layers.begin(), layers.end());
  std::vector<int> order;
  order.reserve(layers.size());
  for (const auto& layer : layers) order.push_back(layer.second);
  return order;
}

// The contour around the frame's outer extra parts; empty where these leave none.
GEOM2_Polygon OuterOf(const CMFensterSatz& rahmen) {
  GEOM2_Polygon outer;
  try {
    if (!rahmen.ErzeugeRahmenAussenPolygon(outer)) outer.Clear();
  } catch (const CMException&) {
    outer.Clear();
  }
  return outer;
}

// --- the grid and its dimensions --------------------------------------------------

std::vector<double> Places(int count, double (CMAchsen::*place)(int) const, const CMAchsen& axes) {
  std::vector<double> places;
  for (int i = 0; i < count; ++i) places.push_back((axes.*place)(i));
  return places;
}

lintavo::Dimension DimensionOf(const CMFenster& fenster, long i,
                               const lintavo::Gesamtmasze& gesamt) {
  const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
  lintavo::Dimension dimension;
  dimension.name = masz.strName.View();
  dimension.length = masz.dLaenge;
  dimension.horizontal = masz.IsHorizonal();
  if (i == gesamt.breite) dimension.role = lintavo::DimensionRole::kWidth;
  if (i == gesamt.hoehe) dimension.role = lintavo::DimensionRole::kHeight;
  CMStrecke line;
  if (fenster.GetMaszline(i, line, masz.dAbstand)) dimension.line = line;
  return dimension;
}

bool LiegtAuf(int a, int b, long i, long k) {
  return (a == i && b == k) || (a == k && b == i);
}

bool IstVonAchseZuAchse(const CMZusatzMasz& masz) {
  return masz.IsEinseitig() && masz.kKnoten1.IsAufAchse() && masz.kKnoten2.IsAufAchse();
}

}  // namespace

lintavo::Gesamtmasze lintavo::SucheGesamtmasze(const CMFenster& fenster) {
  const Achsbereich benutzt = BenutzteAchsen(fenster);
  Gesamtmasze gesamt;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (!IstVonAchseZuAchse(masz)) continue;
    const CMKnoten& a = masz.kKnoten1;
    const CMKnoten& b = masz.kKnoten2;
    if (gesamt.breite < 0 && masz.IsHorizonal() &&
        LiegtAuf(a.J(), b.J(), benutzt.minJ, benutzt.maxJ)) {
      gesamt.breite = i;
    }
    if (gesamt.hoehe < 0 && masz.IsVertikal() &&
        LiegtAuf(a.K(), b.K(), benutzt.minK, benutzt.maxK)) {
      gesamt.hoehe = i;
    }
  }
  return gesamt;
}

WindowView CMFenster::View() const {
  if (fehlerNummer_ != 0) {
    CMException fehler(fehlerText_);
    fehler.iNummer = static_cast<int>(fehlerNummer_);
    throw fehler;
  }
  return MakeView();
}

WindowView CMFenster::MakeView() const {
  WindowView view;
  view.name = name_.View();
  XY size;
  GetSize(size);
  view.width = size.x;
  view.height = size.y;
  double box[4];
  GetBox(0.0, box);
  view.box = {box[0], box[1], box[2], box[3]};
  view.axesX = Places(achsen_.iGetCntVerti(), &CMAchsen::dGetPosVerti, achsen_);
  view.axesY = Places(achsen_.iGetCntHori(), &CMAchsen::dGetPosHori, achsen_);
  view.frame = lintavo::FrameViewOf(rahmen_);
  view.outer = OuterOf(rahmen_);
  for (int i = 0; i < GetAnzahlFluegel(); ++i) {
    view.sashes.push_back(lintavo::SashViewOf(*GetFluegelPtr(i), i, rahmen_));
  }
  const lintavo::Gesamtmasze gesamt = lintavo::SucheGesamtmasze(*this);
  for (long i = 0; i < GetAnzahlZusatzMasze(); ++i) {
    view.dimensions.push_back(DimensionOf(*this, i, gesamt));
  }
  for (const ViewSide side : {ViewSide::kInside, ViewSide::kOutside}) {
    view.order[static_cast<std::size_t>(side)] = OrderFrom(side, *this, view);
  }
  return view;
}

bool CMFenster::GetHiddenLineBild(std::vector<CMStrecke>& lines, bool bVonAussen) const {
  lines.clear();
  const WindowView view = MakeView();
  std::vector<lintavo::VisibleEdge> edges;
  lintavo::FindVisibleEdges(view, bVonAussen ? ViewSide::kOutside : ViewSide::kInside, edges);
  for (const lintavo::VisibleEdge& edge : edges) lines.push_back(lintavo::LineOf(edge));
  return !lines.empty();
}
