// What a calculated window is made of: plain values that pictures, lists, exported data and
// every interface read. `CMFenster::View` makes them.
//
// Lengths are drawing units, angles degrees; x grows to the right and y upwards, seen from
// inside the building. Indices count from 0, as the façade's do. Texts are the bytes of the
// window's file.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Achse.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// From where a window is seen. Neither view is mirrored: x grows to the right.
enum class ViewSide { kInside, kOutside };

/// What a piece is; lists are in this order.
enum class PieceKind {
  kFramePart,  ///< part of the window's frame
  kSashPart,   ///< part of a sash's frame
  kMullion,    ///< divides a frame, rather upright than level
  kTransom,    ///< divides a frame, rather level than upright
  kInnerPart,  ///< extra part inside a frame
  kOuterPart,  ///< extra part around the window's frame: sill, trim, roller-shutter box
  kBar,        ///< glazing bar
  kSlat,
  kGlass,
  kPanel,
  kSlatGround  ///< what is seen between slats
};

enum class SashShape { kRectangle = 1, kArch, kEllipse, kHalfArch };
enum class FillingKind { kGlass, kPanel, kSlats };
enum class FittingKind { kHandle, kHinge, kOther };
enum class DimensionRole { kNone, kWidth, kHeight };

/// How a sash opens, in the order of the macro file's short texts.
enum class OpeningKind {
  kFixed,
  kTurn,
  kTilt,
  kTopHung,
  kTurnTilt,
  kLiftTurn,
  kPivotLevel,
  kPivotUpright,
  kSlide,
  kLiftSlide,
  kFold,
  kLiftSlideTilt
};
enum class HingeSide { kLeft, kRight, kTop, kBottom };

/// Stands for the window's frame among the indices of sashes.
inline constexpr int kFrameRecord = -1;

/// A stretch across the wall: 0 is the inner face of the window's frame, and it grows
/// outwards.
struct Depth {
  double from = 0.0;
  double to = 0.0;
};

/// One bar, pane or slat that is there to be seen.
struct Piece {
  PieceKind kind = PieceKind::kFramePart;
  int sash = kFrameRecord;
  int index = 0;          ///< among the parts, single parts, bars or slats of its record
  GEOM2_Polygon outline;  ///< what is seen of it; attribute 1 where the edge is to be drawn
  /// Its centre lines with their cut angles, first to last; none for a pane.
  std::vector<GEOM2_Achse> axes{};
  /// How far the section reaches to the right (negative) and to the left of its axes.
  double right = 0.0;
  double left = 0.0;
  double thickness = 0.0;
  Depth depth{};
  std::array<long, 4> attributes{};  ///< a1 and a3 count from inside, a2 and a4 from outside

  /// Across the axes.
  double Width() const { return left - right; }
  LINTAVO_API double AxisLength() const;
  /// The section lies centred on its axes.
  bool IsCentred() const { return left == -right; }  // exact: halves of one width
};

/// The window's frame, or what a sash has in common with it.
struct Record {
  GEOM2_Polygon outline;   ///< outer edge of its parts
  double width = 0.0;      ///< of its first part, 0 without one
  double thickness = 0.0;  ///< the same
  std::vector<Piece> parts{};
  std::vector<Piece> singles{};  ///< mullions, transoms and extra parts
};

struct Filling {
  FillingKind kind = FillingKind::kGlass;
  double thickness = 0.0;
  std::array<long, 4> attributes{};
  GEOM2_Polygon contour;      ///< as it is glazed; empty where there is no room for it
  std::optional<Piece> pane;  ///< as it is seen
  std::vector<Piece> slats{};
};

struct Fitting {
  FittingKind kind = FittingKind::kOther;
  int type = 0;             ///< as the file numbers it
  std::optional<XY> place;  ///< none where its part is not there
  double angle = 0.0;       ///< of the part that carries it
  std::vector<CMStrecke> lines{};
  GEOM2_Polygon outline{};  ///< what a handle or a hinge covers; empty for others
};

struct Opening {
  OpeningKind kind = OpeningKind::kFixed;
  HingeSide hinge = HingeSide::kLeft;
  ViewSide side = ViewSide::kInside;  ///< towards which it opens
  bool first = false;                 ///< opens before its neighbour
};

struct Sash : Record {
  std::string name{};
  SashShape shape = SashShape::kRectangle;
  Opening opening{};
  double overlap = 0.0;
  Depth depth{};
  /// Depth of its face behind the frame's, by the side of the viewer.
  std::array<double, 2> offset{};
  GEOM2_Polygon inner;  ///< contour inside its parts and inner extra parts; may be empty
  std::vector<Piece> bars{};
  Filling filling{};
  std::vector<Fitting> fittings{};
  std::vector<CMStrecke> symbol{};
  std::vector<CMStrecke> glassWidths{};
  std::vector<CMStrecke> glassHeights{};
};

struct Dimension {
  std::string name{};
  double length = 0.0;  ///< with its sign
  bool horizontal = true;
  DimensionRole role = DimensionRole::kNone;
  std::optional<CMStrecke> line;  ///< from left to right, or upwards
};

/// Smallest box with sides parallel to the axes; empty where left lies right of right.
struct ViewBox {
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;
  double top = 0.0;
};

/// A calculated window. One that was never calculated has no pieces.
struct WindowView {
  std::string name{};
  double width = 0.0;
  double height = 0.0;
  ViewBox box{};                ///< with the dimension lines
  std::vector<double> axesX{};  ///< places of the upright axes
  std::vector<double> axesY{};
  Record frame{};
  GEOM2_Polygon outer;  ///< contour around the frame's outer extra parts
  std::vector<Sash> sashes{};
  std::vector<Dimension> dimensions{};
  /// Indices of sashes and, once, kFrameRecord, the nearest first, by the side of the viewer.
  std::array<std::vector<int>, 2> order{};

  const std::vector<int>& Order(ViewSide side) const {
    return order[static_cast<std::size_t>(side)];
  }
};

/// The pieces of the frame in the order in which they cover each other, the nearest first:
/// outer extra parts, frame parts, mullions and transoms.
LINTAVO_API std::vector<const Piece*> FromNearest(const Record& frame);
/// The same of a sash: parts, single parts, bars, slats, pane.
LINTAVO_API std::vector<const Piece*> FromNearest(const Sash& sash);

/// Outline of a section along one axis: right start, right end, left end, left start; where a
/// mitre ends before the left side with one corner more for each.
LINTAVO_API GEOM2_Polygon SegmentOutline(const Piece& piece, std::size_t axis);

/// The end of an axis.
LINTAVO_API XY EndOf(const GEOM2_Achse& axis);

/// The corners of a piece's centre line: where its axes start, and the end of the last one.
LINTAVO_API std::vector<XY> AxisCorners(const Piece& piece);

/// The short texts by which macro files name how a sash opens; static.
LINTAVO_API const char* ShortText(OpeningKind kind);
LINTAVO_API const char* ShortText(HingeSide side);
LINTAVO_API const char* ShortText(ViewSide side);

/// Whether the sash opens towards the viewer.
inline bool OpensTowards(const Sash& sash, ViewSide side) {
  return sash.opening.side == side;
}

}  // namespace lintavo
