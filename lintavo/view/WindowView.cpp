#include "lintavo/view/WindowView.h"

#include <cmath>
#include <functional>

#include "lintavo/geom/SegmentOutline_intern.h"
#include "lintavo/geom/Toleranzen.h"

namespace lintavo {
namespace {

constexpr const char* kOpeningTexts[] = {"Fe", "Dr", "Ki", "Kl", "DK", "HD",
                                         "Sw", "We", "Sc", "HS", "Fa", "HSK"};
constexpr const char* kHingeTexts[] = {"Li", "Re", "Ob", "Un"};
constexpr const char* kSideTexts[] = {"In", "Au"};

template <class Wanted>
void Append(const std::vector<Piece>& pieces, Wanted wanted, std::vector<const Piece*>& list) {
  for (const Piece& piece : pieces) {
    if (wanted(piece)) list.push_back(&piece);
  }
}

void Append(const std::vector<Piece>& pieces, std::vector<const Piece*>& list) {
  Append(
      pieces, [](const Piece&) { return true; }, list);
}

}  // namespace

double Piece::AxisLength() const {
  double length = 0.0;
  for (const GEOM2_Achse& axis : axes) length += axis.dLaenge;
  return length;
}

std::vector<const Piece*> FromNearest(const Record& frame) {
  const auto isOuter = [](const Piece& piece) { return piece.kind == PieceKind::kOuterPart; };
  std::vector<const Piece*> list;
  Append(frame.singles, isOuter, list);
  Append(frame.parts, list);
  Append(frame.singles, std::not_fn(isOuter), list);
  return list;
}

std::vector<const Piece*> FromNearest(const Sash& sash) {
  std::vector<const Piece*> list;
  for (const auto* pieces : {&sash.parts, &sash.singles, &sash.bars, &sash.filling.slats}) {
    Append(*pieces, list);
  }
  if (sash.filling.pane) list.push_back(&*sash.filling.pane);
  return list;
}

GEOM2_Polygon SegmentOutline(const Piece& piece, std::size_t axis) {
  const SectionReach reach{piece.right, piece.left};
  const SegmentCorners corners = CornersOf(piece.axes[axis], reach);
  const LeftCorners left = LeftCornersOf(piece.axes[axis], reach);
  GEOM2_Polygon outline;
  outline.AddPunkt(corners.p1.x, corners.p1.y);
  outline.AddPunkt(corners.p2.x, corners.p2.y);
  for (std::size_t i = left.count; i-- > 0;) {
    outline.AddPunkt(left.places[i].x, left.places[i].y);
  }
  return outline;
}

XY EndOf(const GEOM2_Achse& axis) {
  const double angle = axis.dWinkel * kPi / 180.0;
  return {axis.Start.x + axis.dLaenge * std::cos(angle),
          axis.Start.y + axis.dLaenge * std::sin(angle)};
}

std::vector<XY> AxisCorners(const Piece& piece) {
  std::vector<XY> corners;
  for (const GEOM2_Achse& axis : piece.axes) corners.push_back(axis.Start);
  if (!piece.axes.empty()) corners.push_back(EndOf(piece.axes.back()));
  return corners;
}

const char* ShortText(OpeningKind kind) {
  return kOpeningTexts[static_cast<std::size_t>(kind)];
}
const char* ShortText(HingeSide side) {
  return kHingeTexts[static_cast<std::size_t>(side)];
}
const char* ShortText(ViewSide side) {
  return kSideTexts[static_cast<std::size_t>(side)];
}

}  // namespace lintavo
