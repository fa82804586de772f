// The scene: what a picture of a calculated window shows, as plain data.
//
// A scene knows nothing of paper, pixels or colours; Picture.h turns it into a
// file. A host with its own graphics can build a scene and draw that itself.
#pragma once

#include <string>
#include <vector>

#include "lintavo/drawing/Export.h"
#include "lintavo/drawing/Ids.h"
#include "lintavo/drawing/Style.h"
#include "lintavo/view/WindowView.h"

class CFeApi;

namespace lintavo::drawing {

using lintavo::ViewSide;

/// A point in the window's own units; x runs to the right, y upwards.
struct Point {
  double x = 0.0;
  double y = 0.0;
};

/// One closed outline; its last point is not a repetition of the first.
struct Shape {
  ShapeKind kind = ShapeKind::kRahmenteil;
  long fluegel = -1;  ///< index of the sash, -1 for what belongs to none
  long bauteil = -1;  ///< index of the component within its kind, of a dimension for
                      ///< an arrowhead, -1 for a filling
  std::vector<Point> outline;
  long attribut = 0;  ///< number of its colour; of a part the one for the view's side
};

/// One straight line.
struct Line {
  LineKind kind = LineKind::kAnsicht;
  long fluegel = -1;  ///< index of the sash that it belongs to, else -1
  long masz = -1;     ///< index of the dimension that it belongs to, else -1
  Point from;
  Point to;
  bool dashed = false;
  long attribut = 0;  ///< number of its colour, as `Style` tells; 0 for the usual one
  /// Index of the fitting within its sash; of a visible edge the part's within its kind; of
  /// extension lines 0 for the start and 1 for the end of what is measured; else -1.
  long bauteil = -1;
  ShapeKind teil = ShapeKind::kRahmenteil;  ///< what a visible edge is an edge of
  /// The side of that part: it begins at this corner of the part's outline. -1 where the edge
  /// lies on no side of a part, and for lines of other kinds.
  long seite = -1;
};

/// What a handle or a hinge covers.
struct FittingShape {
  long fluegel = -1;   ///< index of the sash
  long beschlag = -1;  ///< index of the fitting within it
  std::vector<Point> outline;
};

/// The length that is written at a dimension line.
struct Text {
  long masz = -1;        ///< index of the dimension
  Point mitte;           ///< middle of the text
  double hoehe = 0.0;    ///< height of a digit
  bool upright = false;  ///< turned by 90°, so that it reads from bottom to top
  std::string inhalt;    ///< ASCII, with "." as the decimal mark
  long attribut = 0;     ///< number of its colour
};

/// How a sash opens, in the short texts of the macro file.
struct Oeffnung {
  std::string gangart;  ///< "Fe", "Dr", "Ki", "Kl", "DK", "HD", "Sw", "We", "Sc", "HS", "Fa", "HSK"
  std::string anschlag;   ///< "Li", "Re", "Ob", "Un"
  std::string oeffSeite;  ///< "In", "Au"
};

/// All that a picture shows. The shapes stand in the order in which they are
/// painted, a later one covers an earlier one; then come the lines, which are
/// already cut where a part in front covers them, and the texts.
struct Scene {
  std::string name;  ///< the window's designation, valid UTF-8
  std::vector<Shape> shapes{};
  std::vector<Line> lines{};
  std::vector<Text> texts{};
  /// The surfaces of handles and hinges, painted over all shapes below their own lines; none
  /// where edges are shown instead of shapes, which are cut there.
  std::vector<FittingShape> beschlaege{};
  std::vector<Point> umriss{};  ///< outline of the window's frame, drawn over the shapes
  double breite = 0.0;          ///< the window's overall width
  double hoehe = 0.0;           ///< and height
  ViewSide side = ViewSide::kInside;
  std::vector<Oeffnung> fluegel{};  ///< one for each sash
};

/// Smallest box with sides parallel to the axes.
struct Box {
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;
  double top = 0.0;
};

/// What a scene shows of a window.
struct SceneOptions {
  ViewSide side = ViewSide::kInside;
  bool dimensions = true;   ///< dimension lines with their texts
  bool symbols = true;      ///< opening symbols
  bool hiddenLine = false;  ///< visible edges instead of filled shapes
  MeasureSizes sizes;       ///< how large dimensions are drawn
  /// Places dimension lines in rows below and left of all that is drawn, the shorter ones
  /// nearer to it, instead of where the window's file puts them.
  bool chains = false;
  /// How many of the window's units are one millimetre on paper, as `UnitsPerMillimetre`
  /// tells: sizes that are not asked for are then those of plans, 2.5 mm for texts. Not
  /// above zero: sizes suit the window.
  double millimetre = 0.0;
};

/// The scene of a calculated window.
///
/// Parts cover each other as `CMFenster::GetHiddenLineBild` tells for the side:
/// sashes that open towards the viewer cover the frame, which covers the others
/// and panes without a sash frame. Bent parts are one shape each, without joints.
///
/// An opening symbol is solid when the sash opens towards the viewer and dashed
/// when it opens away from him. The lines of fixed sashes and of those that slide
/// in their own plane ("Sc", "HS") are solid from both sides.
///
/// Fittings sit on the inside and on the side to which their sash opens: from
/// outside only those of sashes that open outwards are shown.
///
/// Dimension lines lie where the window's file puts them, or in rows; extension lines reach
/// from those that lie beside the window up to it. The lengths are written
/// beside the middle of their lines, or wherever nearby they meet no other line;
/// short dimensions have their arrowheads outside. A dimension without length,
/// and one farther than ten times the window's size away from it, is left out.
///
/// Parts that have no outline are left out; a window that was never calculated
/// gives an empty scene.
LINTAVO_DRAWING_API Scene BuildScene(const WindowView& view, const SceneOptions& options = {});
/// The same of a façade's window, empty where its calculation failed.
LINTAVO_DRAWING_API Scene BuildScene(const CFeApi& window, const SceneOptions& options = {});

/// The box that a text fills, reckoned with the widths of a common sans-serif font. A host
/// with another font fits its text in, as the pictures do.
LINTAVO_DRAWING_API Box GetBox(const Text& text);

/// The box of all shapes, lines and texts. False, leaving `box` as it is, when
/// there is no point or any coordinate is infinite or not a number.
LINTAVO_DRAWING_API bool GetBox(const Scene& scene, Box& box);

}  // namespace lintavo::drawing
