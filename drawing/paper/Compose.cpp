// Groups what a scene shows: the frame and each sash with its parts and its symbol, then the
// frame's outline, the fittings and the dimensions.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "lintavo/drawing/Ids.h"
#include "lintavo/drawing/Text.h"

#include "paper/Compose_intern.h"
#include "paper/Hatching_intern.h"
#include "paper/Look_intern.h"
#include "paper/Seam_intern.h"
#include "paper/Words_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kHatchingMillimetres = 2.5;
constexpr double kLargestCoordinate = 1e9;

constexpr const char* kTextLayer = "BEMASSUNG";

class Composer {
 public:
  Composer(const Scene& scene, const Composition& composition)
      : scene_(scene), composition_(composition) {}

  Group Run() {
    Group root{Id("fenster"), "fenster"};
    AddParts(root);
    AddEdgesAndSymbols(root);
    AddUmriss(root);
    AddFittings(root);
    AddMeasures(root);
    return root;
  }

 private:
  std::string Id(const std::string& id) const { return composition_.idPrefix + id; }

  // The group of the frame (-1) or of a sash.
  Group PartGroup(long fluegel) const {
    if (fluegel < 0) return {Id("rahmen"), "rahmen"};
    return {Id(FluegelId(fluegel)), "fluegel"};
  }

  Figure FigureOf(const Shape& shape) const {
    Figure figure{Id(IdOf(shape.kind, shape.fluegel, shape.bauteil)), ClassOf(shape.kind),
                  LayerOf(shape.kind)};
    figure.traces.push_back({shape.outline, true});
    figure.fill = FillOf(shape, composition_.style);
    figure.pen = PenOf(shape, composition_.style);
    figure.strokes = WithoutSeam(shape.outline);
    return figure;
  }

  // Traces that cannot be told apart from nothing, or lie beyond all drawings, stay away.
  void AddHatching(const Shape& shape, Group& group) const {
    if (shape.kind != ShapeKind::kPaneel) return;
    Figure hatching{Id(FluegelId(shape.fluegel) + "-schraffur"), "schraffur", "SCHRAFFUR"};
    const bool drawable =
        std::all_of(shape.outline.begin(), shape.outline.end(), [](const Point& p) {
          return std::abs(p.x) < kLargestCoordinate && std::abs(p.y) < kLargestCoordinate;
        });
    if (!drawable) return;
    hatching.traces = HatchingOf(shape.outline, kHatchingMillimetres / composition_.scale);
    hatching.pen = HatchingPen(composition_.style);
    if (!hatching.traces.empty()) group.figures.push_back(std::move(hatching));
  }

  // Shapes of one sash stand together in a scene, as layers are painted whole.
  void AddParts(Group& root) const {
    bool first = true;
    long before = 0;
    for (const Shape& shape : scene_.shapes) {
      if (shape.kind == ShapeKind::kMaszPfeil) continue;
      if (first || shape.fluegel != before) root.groups.push_back(PartGroup(shape.fluegel));
      first = false;
      before = shape.fluegel;
      root.groups.back().figures.push_back(FigureOf(shape));
      AddHatching(shape, root.groups.back());
    }
  }

  Figure FigureOf(const Line& line) const {
    Figure figure{"", ClassOf(line.kind), LayerOf(line.kind)};
    figure.traces.push_back({{line.from, line.to}, false});
    figure.pen = PenOf(line, composition_.style);
    figure.seite = line.seite;
    return figure;
  }

  // The surface; its lines are the strokes.
  Figure FigureOf(const FittingShape& fitting) const {
    Line line;
    line.kind = LineKind::kBeschlag;
    Figure figure{"", ClassOf(line.kind), LayerOf(line.kind)};
    figure.traces.push_back({fitting.outline, true});
    figure.fill = FittingFill();
    figure.pen = PenOf(line, composition_.style);
    return figure;
  }

  static Group& Named(Group& parent, std::string id, const char* klass) {
    const auto found = std::find_if(parent.groups.rbegin(), parent.groups.rend(),
                                    [&](const Group& group) { return group.id == id; });
    if (found != parent.groups.rend()) return *found;
    parent.groups.push_back({std::move(id), klass});
    return parent.groups.back();
  }

  // The group of a line: its sash's symbol, or the part that it is an edge of.
  Group& GroupOf(const Line& line, Group& root) const {
    const Group wanted = PartGroup(line.fluegel);
    Group& part = Named(root, wanted.id, wanted.klass);
    if (line.kind == LineKind::kOeffnungsSymbol) {
      return Named(part, Id(SymbolId(line.fluegel)), "symbol");
    }
    if (line.seite < 0) return part;
    return Named(part, Id(IdOf(line.teil, line.fluegel, line.bauteil)), ClassOf(line.teil));
  }

  void AddEdgesAndSymbols(Group& root) const {
    for (const Line& line : scene_.lines) {
      if (line.kind != LineKind::kAnsicht && line.kind != LineKind::kOeffnungsSymbol) continue;
      GroupOf(line, root).figures.push_back(FigureOf(line));
    }
  }

  void AddUmriss(Group& root) const {
    if (scene_.umriss.size() < 3) return;
    Group group{Id(kUmrissId), "umriss"};
    Figure figure{"", "umriss", "UMRISS"};
    figure.traces.push_back({scene_.umriss, true});
    figure.pen = UmrissPen(composition_.style);
    group.figures.push_back(std::move(figure));
    root.groups.push_back(std::move(group));
  }

  void AddFittings(Group& root) const {
    Group all{Id("beschlaege"), "beschlaege"};
    const auto group = [&](long fluegel, long beschlag) -> Group& {
      return Named(all, Id(BeschlagId(fluegel, beschlag)), "beschlag");
    };
    for (const FittingShape& fitting : scene_.beschlaege) {
      group(fitting.fluegel, fitting.beschlag).figures.push_back(FigureOf(fitting));
    }
    for (const Line& line : scene_.lines) {
      if (line.kind != LineKind::kBeschlag) continue;
      Group& own = group(line.fluegel, line.bauteil);
      if (own.figures.empty() || !own.figures.front().fill) {
        own.figures.push_back(FigureOf(line));
      } else {
        own.figures.front().strokes.push_back({{line.from, line.to}, false});
      }
    }
    if (!all.groups.empty()) root.groups.push_back(std::move(all));
  }

  Label LabelOf(const Text& text) const {
    Label label{"", "masztext", kTextLayer};
    const Box box = GetBox(text);
    label.mitte = text.mitte;
    label.hoehe = text.hoehe;
    label.width = text.upright ? box.top - box.bottom : box.right - box.left;
    label.upright = text.upright;
    label.text = WithDecimalMark(ToDisplayText(text.inhalt), composition_.language);
    label.colour = ColourOf(text, composition_.style);
    return label;
  }

  bool IsTooSmall(const Text& text) const {
    const double height = text.hoehe * composition_.scale;
    return composition_.pixel > 0.0 &&
           height < composition_.style.sizes.smallestText * composition_.pixel;
  }

  void AddMeasures(Group& root) const {
    std::map<long, Group> byMasz;
    const auto group = [&](long masz) -> Group& {
      return byMasz.try_emplace(masz, Group{Id(MaszId(masz)), "masz"}).first->second;
    };
    for (const Line& line : scene_.lines) {
      if (line.kind != LineKind::kMaszLinie && line.kind != LineKind::kHilfsLinie) continue;
      group(line.masz).figures.push_back(FigureOf(line));
    }
    for (const Shape& shape : scene_.shapes) {
      if (shape.kind != ShapeKind::kMaszPfeil) continue;
      Figure arrow = FigureOf(shape);
      arrow.id.clear();  // the group's own
      group(shape.bauteil).figures.push_back(std::move(arrow));
    }
    for (const Text& text : scene_.texts) {
      if (!IsTooSmall(text)) group(text.masz).labels.push_back(LabelOf(text));
    }
    if (byMasz.empty()) return;
    Group all{Id("masze"), "masze"};
    for (auto& masz : byMasz) all.groups.push_back(std::move(masz.second));
    root.groups.push_back(std::move(all));
  }

  const Scene& scene_;
  const Composition& composition_;
};

}  // namespace

Group Compose(const Scene& scene, const Composition& composition) {
  return Composer(scene, composition).Run();
}

}  // namespace lintavo::drawing
