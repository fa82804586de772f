// The scene: what a picture of a calculated window shows, as plain data.
//
// A scene knows nothing of paper, pixels or colours; Picture.h turns it into a
// file. A host with its own graphics can build a scene and draw that itself.
#pragma once

#include <string>
#include <vector>

#include "lintavo/drawing/Export.h"

class CFeApi;

namespace lintavo::drawing {

/// A point in the window's own units; x runs to the right, y upwards.
struct Point {
  double x = 0.0;
  double y = 0.0;
};

/// What a shape is a part of.
enum class ShapeKind {
  kRahmenteil,         ///< part of the window's frame
  kEinzelteil,         ///< mullion, transom or extra part of the frame
  kGlas,               ///< a sash's filling: glass
  kPaneel,             ///< a sash's filling: a panel of constant thickness
  kLamellen,           ///< a sash's filling: slats
  kFluegelteil,        ///< part of a sash's frame
  kFluegelEinzelteil,  ///< single or extra part of a sash
  kSprosse             ///< glazing bar
};

/// One closed outline; its last point is not a repetition of the first.
struct Shape {
  ShapeKind kind = ShapeKind::kRahmenteil;
  long fluegel = -1;  ///< index of the sash, -1 for what belongs to the frame
  long bauteil = -1;  ///< index of the component within its kind, -1 for a filling
  std::vector<Point> outline;
};

/// All shapes of a window in the order in which they are painted: a later one
/// covers an earlier one.
struct Scene {
  std::string name;  ///< the window's designation, valid UTF-8
  std::vector<Shape> shapes;
};

/// Smallest box with sides parallel to the axes.
struct Box {
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;
  double top = 0.0;
};

/// The scene of a calculated window: its frame, then every sash with filling,
/// frame and bars. Bent parts are one shape each, without joints. Parts that
/// have no outline are left out; a window that was never calculated gives a
/// scene without shapes.
LINTAVO_DRAWING_API Scene BuildScene(const CFeApi& window);

/// The box of all outlines. False, leaving `box` as it is, when there is no
/// point or any coordinate is infinite or not a number.
LINTAVO_DRAWING_API bool GetBox(const Scene& scene, Box& box);

}  // namespace lintavo::drawing
