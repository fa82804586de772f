#include "lintavo/geom/SegmentOutline_intern.h"

#include <cmath>

#include "lintavo/geom/Toleranzen.h"

namespace lintavo {
namespace {

// How far a cut has moved along the axis at distance v from it.
double CutOffset(double v, double angle) {
  const double offset = v * std::tan(angle * kRadiantJeGrad);
  return std::fabs(offset) < kNullLaenge ? 0.0 : offset;
}

// Places in the frame of an axis: u along it, v to its left.
class AxisFrame {
 public:
  explicit AxisFrame(const GEOM2_Achse& axis)
      : axis_(axis), angle_(axis.dWinkel * kRadiantJeGrad) {}

  XY Direction() const { return {cos_, sin_}; }
  XY Place(double u, double v) const {
    return {axis_.Start.x + u * cos_ - v * sin_, axis_.Start.y + u * sin_ + v * cos_};
  }
  XY AtStart(double v) const { return Place(CutOffset(v, axis_.dWinkelAnfang), v); }
  XY AtEnd(double v) const { return Place(axis_.dLaenge + CutOffset(v, axis_.dWinkelEnde), v); }

 private:
  const GEOM2_Achse& axis_;
  double angle_;
  double cos_ = std::cos(angle_);
  double sin_ = std::sin(angle_);
};

}  // namespace

SegmentCorners CornersOf(const GEOM2_Achse& axis, const SectionReach& reach) {
  const AxisFrame frame(axis);
  return {frame.AtStart(reach.right), frame.AtEnd(reach.right), frame.AtEnd(reach.left),
          frame.AtStart(reach.left), frame.Direction()};
}

LeftCorners LeftCornersOf(const GEOM2_Achse& axis, const SectionReach& reach) {
  const AxisFrame frame(axis);
  const bool atStart = axis.bLinkeSeite && axis.dTiefeAnfang != 0.0;
  const bool atEnd = axis.bLinkeSeite && axis.dTiefeEnde != 0.0;
  LeftCorners corners;
  corners.Add(frame.AtStart(atStart ? axis.dTiefeAnfang : reach.left));
  if (atStart) corners.Add(frame.Place(axis.dWegAnfang, reach.left));
  if (atEnd) corners.Add(frame.Place(axis.dLaenge + axis.dWegEnde, reach.left));
  corners.Add(frame.AtEnd(atEnd ? axis.dTiefeEnde : reach.left));
  return corners;
}

bool IsTrimmed(const GEOM2_Achse& axis) {
  return axis.bLinkeSeite && (axis.dTiefeAnfang != 0.0 || axis.dTiefeEnde != 0.0);
}

XY VanishedSideOf(const GEOM2_Achse& axis) {
  return AxisFrame(axis).AtStart(axis.dTiefeAnfang);
}

}  // namespace lintavo
