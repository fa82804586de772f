// What of a page's figures is seen: a CAD file has no surfaces that cover what lies behind.
#pragma once

#include <cstddef>
#include <vector>

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// The filled figures of a view in painting order, which cover those that come before.
class Covers {
 public:
  explicit Covers(const Group& content);

  /// A visible piece of a trace, and the index of the side on which it lies.
  struct Piece {
    Point from;
    Point to;
    long seite;
  };

  /// Whether nothing of the trace is covered by what is painted after the `place`-th filled
  /// figure; else `pieces` receives what is seen of it.
  bool IsWhole(const Trace& trace, std::size_t place, std::vector<Piece>& pieces) const;

 private:
  struct Cover {
    Box box;
    std::vector<Point> outline;
  };
  std::vector<Cover> covers_;
};

/// Whether a figure covers what lies behind it: it is filled, and no arrowhead.
bool CoversOthers(const Figure& figure);

}  // namespace lintavo::drawing
