#include "lintavo/view/DimensionLine.h"

#include <cmath>

#include "lintavo/geom/Toleranzen.h"

namespace lintavo {
namespace {

// A dimension line's own frame: u along it from its start, v to its left.
struct Frame {
  XY start;
  XY direction;
  double length = 0.0;

  XY ToPlane(double u, double v) const {
    return {start.x + u * direction.x - v * direction.y,
            start.y + u * direction.y + v * direction.x};
  }
};

// None for a line without a direction.
std::optional<Frame> FrameOf(const CMStrecke& line) {
  Frame frame;
  XY end;
  line.GetPunkte(frame.start, end);
  frame.length = line.GetLaenge();
  if (!(frame.length >= kNullLaenge) || !std::isfinite(frame.length)) return std::nullopt;
  frame.direction = {(end.x - frame.start.x) / frame.length,
                     (end.y - frame.start.y) / frame.length};
  return frame;
}

CMStrecke Across(const Frame& frame, double u, double half) {
  return CMStrecke(frame.ToPlane(u, half), frame.ToPlane(u, -half));
}

GEOM2_Polygon Triangle(const Frame& frame, double tip, double foot, double half) {
  GEOM2_Polygon triangle;
  triangle.AddPunkt(tip, 0.0);
  triangle.AddPunkt(foot, -half);
  triangle.AddPunkt(foot, half);
  triangle.Transformieren(frame.direction.x, frame.direction.y, frame.start.x, frame.start.y);
  return triangle;
}

}  // namespace

std::optional<std::array<CMStrecke, 2>> ExtensionLines(const CMStrecke& line, double length) {
  const std::optional<Frame> frame = FrameOf(line);
  if (!frame) return std::nullopt;
  const double half = 0.5 * length;
  return std::array{Across(*frame, 0.0, half), Across(*frame, frame->length, half)};
}

std::optional<std::array<GEOM2_Polygon, 2>> Arrowheads(const CMStrecke& line, double length,
                                                       double width) {
  const std::optional<Frame> frame = FrameOf(line);
  if (!frame) return std::nullopt;
  const double half = 0.5 * width;
  // The base of the second one runs the other way.
  return std::array{Triangle(*frame, 0.0, length, half),
                    Triangle(*frame, frame->length, frame->length - length, -half)};
}

}  // namespace lintavo
