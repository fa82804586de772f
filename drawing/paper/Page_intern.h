// A page ready to be written: what stands on it as traces with pens and fills, grouped as
// the parts of the window are. Layout makes it, the writers turn it into a file's bytes.
//
// Each view on a page has coordinates of its own, the window's, with y upwards; its place
// tells where they lie on paper. Widths of pens and dashes are millimetres on paper.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

namespace lintavo::drawing {

/// A row of straight lines. A closed one has no repetition of its first point.
struct Trace {
  std::vector<Point> points;
  bool closed = false;
};

/// How lines are drawn. One of width 0 is not drawn.
struct Pen {
  double width = 0.0;
  Colour colour{};
  bool dashed = false;
};

/// Traces that belong together: the outline of one part, the hatching of a panel.
struct Figure {
  std::string id;  ///< empty for a piece of its group that has no id of its own
  const char* klass = "";
  const char* layer = "0";
  std::vector<Trace> traces{};
  std::optional<Colour> fill{};  ///< fills the traces, which are closed then
  Pen pen{};
  std::vector<Trace> strokes{};  ///< what the pen follows instead of the traces, if any
  long seite = -1;               ///< side of the part of which this is a visible edge, else -1
};

/// One line of text.
struct Label {
  std::string id;
  const char* klass = "";
  const char* layer = "0";
  Point mitte{};  ///< middle of the text, or of its left end
  bool fromLeft = false;
  double hoehe = 0.0;  ///< height of a digit
  double width = 0.0;  ///< what it may take at most; a wider font is squeezed
  bool upright = false;
  std::string text{};  ///< valid UTF-8 without control characters
  Colour colour{};
};

/// Painted in this order: its figures, its groups, its labels.
struct Group {
  std::string id;
  const char* klass = "";
  std::vector<Figure> figures{};
  std::vector<Group> groups{};
  std::vector<Label> labels{};
};

/// One drawing on a page.
struct View {
  Point place{};       ///< where its origin lies, in millimetres from the lower left corner
  double scale = 1.0;  ///< millimetres on paper per unit
  Group content{};
};

/// Sizes in millimetres.
struct Page {
  double width = 0.0;
  double height = 0.0;
  std::string title{};
  bool toScale = false;  ///< millimetres are meant, else the page is a picture of any size
  /// Whether the first view is what the page shows, and a CAD file has its coordinates; else
  /// the file has those of the page, in millimetres.
  bool single = false;
  std::vector<View> views{};
};

/// Calls `visit (figure)` and `visit (label)` for everything in a group, in painting order.
template <class Visit>
void ForEach(const Group& group, const Visit& visit) {
  for (const Figure& figure : group.figures) visit(figure);
  for (const Group& inner : group.groups) ForEach(inner, visit);
  for (const Label& label : group.labels) visit(label);
}

}  // namespace lintavo::drawing
