// Writes a page as DXF of the version R12, which every CAD program reads.
//
// Parts become polylines, or the pieces that are seen of them; arrowheads become solids. The
// id of what an entity belongs to stands in its extended data under "LINTAVO", and the index
// of the side with it where there is one.
#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "paper/Paper_intern.h"
#include "scene/Lettering_intern.h"
#include "writers/DxfTags_intern.h"
#include "writers/Visible_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr const char* kApplication = "LINTAVO";
constexpr const char* kDashed = "DASHED";
constexpr const char* kContinuous = "CONTINUOUS";
constexpr const char* kTextStyle = "STANDARD";

// Layers with their colours by number: 7 is black on white and white on black. The
// numbers tell pens apart where a program maps them to widths.
struct Layer {
  const char* name;
  long colour;
};
constexpr Layer kLayers[] = {
    {"0", 7},           {"UMRISS", 7},     {"RAHMEN", 32},   {"EINZELTEILE", 32},
    {"ZUSATZTEILE", 8}, {"FLUEGEL", 30},   {"SPROSSEN", 40}, {"GLAS", 4},
    {"PANEELE", 9},     {"SCHRAFFUR", 9},  {"LAMELLEN", 9},  {"ANSICHT", 7},
    {"SYMBOLE", 5},     {"BESCHLAEGE", 6}, {"BEMASSUNG", 3}, {"TEXT", 7}};

void Widen(const Point& p, Box& box) {
  box = {std::min(box.left, p.x), std::min(box.bottom, p.y), std::max(box.right, p.x),
         std::max(box.top, p.y)};
}

// The lower left and upper right corner of a label.
std::pair<Point, Point> CornersOf(const Label& label) {
  const double before = label.fromLeft ? 0.0 : label.width / 2.0;
  const double behind = label.width - before;
  const double half = label.hoehe / 2.0;
  const Point& m = label.mitte;
  if (label.upright) return {{m.x - half, m.y - before}, {m.x + half, m.y + behind}};
  return {{m.x - before, m.y - half}, {m.x + behind, m.y + half}};
}

class DxfWriter {
 public:
  explicit DxfWriter(const Page& page) : page_(page) {
    if (page.single && !page.views.empty()) base_ = &page.views.front();
  }

  std::string Write() {
    WriteHeader();
    WriteTables();
    Begin("BLOCKS");
    End();
    Begin("ENTITIES");
    for (const View& view : page_.views) WriteView(view);
    End();
    tags_.Add(0, "EOF");
    return tags_.Take();
  }

 private:
  double Scale() const { return base_ ? base_->scale : 1.0; }

  // --- sections and tables

  void Begin(std::string_view section) {
    tags_.Add(0, "SECTION");
    tags_.Add(2, section);
  }
  void End() { tags_.Add(0, "ENDSEC"); }

  void Variable(std::string_view name, int code, std::string_view value) {
    tags_.Add(9, name);
    tags_.Add(code, value);
  }
  void Variable(std::string_view name, const Point& point, bool flat) {
    tags_.Add(9, name);
    tags_.Add(10, point.x);
    tags_.Add(20, point.y);
    if (!flat) tags_.Add(30, 0.0);
  }

  // The box of everything, in the file's coordinates.
  Box Extent() {
    if (!base_) return {0.0, 0.0, page_.width, page_.height};
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    Box box{kInfinity, kInfinity, -kInfinity, -kInfinity};
    for (const View& view : page_.views) {
      view_ = &view;
      ForEach(view.content, [&](const auto& thing) { Widen(thing, box); });
    }
    return box;
  }
  void Widen(const Figure& figure, Box& box) const {
    for (const Trace& trace : figure.traces) {
      for (const Point& point : trace.points) drawing::Widen(ToModel(point), box);
    }
  }
  void Widen(const Label& label, Box& box) const {
    const auto [low, high] = CornersOf(label);
    drawing::Widen(ToModel(low), box);
    drawing::Widen(ToModel(high), box);
  }

  void WriteHeader() {
    const Box box = Extent();
    Begin("HEADER");
    Variable("$ACADVER", 1, "AC1009");
    Variable("$DWGCODEPAGE", 3, "ANSI_1252");
    Variable("$INSBASE", {}, false);
    Variable("$EXTMIN", {box.left, box.bottom}, false);
    Variable("$EXTMAX", {box.right, box.top}, false);
    Variable("$LIMMIN", {box.left, box.bottom}, true);
    Variable("$LIMMAX", {box.right, box.top}, true);
    tags_.Add(9, "$LTSCALE");
    tags_.Add(40, 1.0);
    End();
    box_ = box;
  }

  void BeginTable(std::string_view name, std::size_t count) {
    tags_.Add(0, "TABLE");
    tags_.Add(2, name);
    tags_.Add(70, static_cast<long>(count));
  }
  void EndTable() { tags_.Add(0, "ENDTAB"); }

  void Entry(std::string_view kind, std::string_view name) {
    tags_.Add(0, kind);
    tags_.Add(2, name);
    tags_.Add(70, 0L);
  }

  void WriteTables() {
    Begin("TABLES");
    WriteViewport();
    WriteLineTypes();
    WriteLayers();
    WriteTextStyle();
    BeginTable("APPID", 2);
    Entry("APPID", "ACAD");
    Entry("APPID", kApplication);
    EndTable();
    End();
  }

  // What is seen when the file is opened: all of it.
  void WriteViewport() {
    const double width = box_.right - box_.left;
    const double height = box_.top - box_.bottom;
    const Point middle{box_.left + width / 2.0, box_.bottom + height / 2.0};
    constexpr double kAspect = 1.5;
    BeginTable("VPORT", 1);
    Entry("VPORT", "*ACTIVE");
    const auto plane = [&](int index, double x, double y) {
      tags_.Add(10 + index, x);
      tags_.Add(20 + index, y);
    };
    plane(0, 0.0, 0.0);
    plane(1, 1.0, 1.0);
    plane(2, middle.x, middle.y);
    plane(3, 0.0, 0.0);
    plane(4, 1.0, 1.0);
    plane(5, 1.0, 1.0);
    tags_.Add(16, 0.0);
    tags_.Add(26, 0.0);
    tags_.Add(36, 1.0);
    tags_.Add(17, 0.0);
    tags_.Add(27, 0.0);
    tags_.Add(37, 0.0);
    tags_.Add(40, 1.05 * std::max(height, width / kAspect));
    tags_.Add(41, kAspect);
    tags_.Add(42, 50.0);
    for (int code = 43; code <= 44; ++code) tags_.Add(code, 0.0);
    for (int code = 50; code <= 51; ++code) tags_.Add(code, 0.0);
    tags_.Add(71, 0L);
    tags_.Add(72, 1000L);
    tags_.Add(73, 1L);
    tags_.Add(74, 1L);
    for (int code = 75; code <= 78; ++code) tags_.Add(code, 0L);
    EndTable();
  }

  void WriteLineTypes() {
    BeginTable("LTYPE", 2);
    Entry("LTYPE", kContinuous);
    tags_.Add(3, "Solid line");
    tags_.Add(72, 65L);
    tags_.Add(73, 0L);
    tags_.Add(40, 0.0);
    Entry("LTYPE", kDashed);
    tags_.Add(3, "__ __ __ __");
    tags_.Add(72, 65L);
    tags_.Add(73, 2L);
    tags_.Add(40, (kDash + kDashGap) / Scale());
    tags_.Add(49, kDash / Scale());
    tags_.Add(49, -kDashGap / Scale());
    EndTable();
  }

  void WriteLayers() {
    BeginTable("LAYER", std::size(kLayers));
    for (const Layer& layer : kLayers) {
      Entry("LAYER", layer.name);
      tags_.Add(62, layer.colour);
      tags_.Add(6, kContinuous);
    }
    EndTable();
  }

  void WriteTextStyle() {
    BeginTable("STYLE", 1);
    Entry("STYLE", kTextStyle);
    tags_.Add(40, 0.0);
    tags_.Add(41, 1.0);
    tags_.Add(50, 0.0);
    tags_.Add(71, 0L);
    tags_.Add(42, kCaptionMillimetres / Scale());
    tags_.Add(3, "arial.ttf");
    tags_.Add(4, "");
    EndTable();
  }

  // --- entities

  void WriteView(const View& view) {
    view_ = &view;
    const Covers covers(view.content);
    covers_ = &covers;
    place_ = 0;
    WriteGroup(view.content);
    covers_ = nullptr;
  }

  void WriteGroup(const Group& group) {
    for (const Figure& figure : group.figures) {
      WriteFigure(figure, figure.id.empty() ? group.id : figure.id);
    }
    for (const Group& inner : group.groups) WriteGroup(inner);
    for (const Label& label : group.labels) WriteLabel(label, group.id);
  }

  // The coordinates of the base view stay as they are.
  Point ToModel(const Point& point) const {
    if (view_ == base_) return point;
    const Point paper = OnPaper(*view_, point);
    if (!base_) return paper;
    return {(paper.x - base_->place.x) / base_->scale, (paper.y - base_->place.y) / base_->scale};
  }
  double ToModel(double length) const {
    return view_ == base_ ? length : length * view_->scale / Scale();
  }

  void WriteFigure(const Figure& figure, const std::string& id) {
    if (CoversOthers(figure)) ++place_;
    if (figure.fill && !(figure.pen.width > 0.0)) {
      for (const Trace& trace : figure.traces) WriteSolid(figure, trace, id);
      return;
    }
    if (!(figure.pen.width > 0.0)) return;
    for (const Trace& trace : figure.strokes.empty() ? figure.traces : figure.strokes) {
      std::vector<Covers::Piece> pieces;
      if (covers_->IsWhole(trace, place_, pieces)) {
        WriteTrace(figure, trace, figure.seite, id);
        continue;
      }
      for (const Covers::Piece& piece : pieces) {
        const bool sided = trace.closed && figure.strokes.empty();
        WriteTrace(figure, {{piece.from, piece.to}, false}, sided ? piece.seite : figure.seite, id);
      }
    }
  }

  void BeginEntity(const char* kind, const char* layer, bool dashed = false) {
    tags_.Add(0, kind);
    tags_.Add(8, layer);
    if (dashed) tags_.Add(6, kDashed);
  }

  void Origin(const std::string& id, long seite = -1) {
    tags_.Add(1001, kApplication);
    tags_.Add(1000, ToDxfText(id));
    if (seite >= 0) tags_.Add(1071, seite);
  }

  void WriteTrace(const Figure& figure, const Trace& trace, long seite, const std::string& id) {
    if (trace.points.size() < 2) return;
    const bool line = trace.points.size() == 2;
    BeginEntity(line ? "LINE" : "POLYLINE", figure.layer, figure.pen.dashed);
    if (line) {
      tags_.AddPoint(ToModel(trace.points[0]));
      tags_.AddPoint(1, ToModel(trace.points[1]));
      Origin(id, seite);
      return;
    }
    tags_.Add(66, 1L);
    tags_.AddPoint({});
    tags_.Add(70, trace.closed ? 1L : 0L);
    Origin(id, seite);
    for (const Point& point : trace.points) {
      BeginEntity("VERTEX", figure.layer);
      tags_.AddPoint(ToModel(point));
    }
    BeginEntity("SEQEND", figure.layer);
  }

  // A triangle is a solid whose last corner stands twice.
  void WriteSolid(const Figure& figure, const Trace& trace, const std::string& id) {
    if (trace.points.size() != 3) return;
    BeginEntity("SOLID", figure.layer);
    for (int i = 0; i < 4; ++i) {
      tags_.AddPoint(i, ToModel(trace.points[static_cast<std::size_t>(std::min(i, 2))]));
    }
    Origin(id);
  }

  void WriteLabel(const Label& label, const std::string& id) {
    if (label.text.empty()) return;
    const double height = ToModel(label.hoehe);
    const Point middle = ToModel(label.mitte);
    const double back = label.fromLeft ? 0.0 : ToModel(label.width) / 2.0;
    const Point foot = label.upright ? Point{middle.x + height / 2.0, middle.y - back}
                                     : Point{middle.x - back, middle.y - height / 2.0};
    BeginEntity("TEXT", label.layer);
    tags_.AddPoint(foot);
    tags_.Add(40, height);
    tags_.Add(1, ToDxfText(label.text));
    if (label.upright) tags_.Add(50, 90.0);
    tags_.Add(7, kTextStyle);
    if (!label.fromLeft) {
      // Centred about the middle of its height.
      tags_.Add(72, 1L);
      tags_.AddPoint(1, middle);
      tags_.Add(73, 2L);
    }
    Origin(id);
  }

  static constexpr double kCaptionMillimetres = 2.5;

  const Page& page_;
  const View* base_ = nullptr;
  const View* view_ = nullptr;
  const Covers* covers_ = nullptr;
  std::size_t place_ = 0;  // how many covering figures have been written
  Box box_;
  DxfTags tags_;
};

}  // namespace

std::string WriteDxf(const Page& page) {
  return DxfWriter(page).Write();
}

}  // namespace lintavo::drawing
