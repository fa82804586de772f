// Puts many windows onto pages: columns of equal width, rows as high as their highest drawing,
// which stand on one line with the captions below.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>

#include "lintavo/api/CFeApi.h"
#include "lintavo/drawing/Text.h"

#include "paper/Caption_intern.h"
#include "paper/Compose_intern.h"
#include "paper/Layout_intern.h"
#include "paper/Look_intern.h"
#include "paper/SheetLayout_intern.h"
#include "paper/SheetScale_intern.h"
#include "paper/Words_intern.h"
#include "scene/Lettering_intern.h"

namespace lintavo::drawing {
namespace {

// Millimetres.
constexpr double kMargin = 12.0;
constexpr double kHead = 12.0;
constexpr double kGap = 8.0;
constexpr double kCaptionGap = 4.0;
constexpr double kNarrowestCell = 45.0;
constexpr double kSheetNameHeight = 3.0;
constexpr double kSheetTextHeight = 2.2;
constexpr Extent kPlaceholder = {40.0, 25.0};
// Places across and down an upright page that the largest window leaves; the other way
// round on one that lies.
constexpr double kAcross = 2.0;
constexpr double kDown = 3.0;
constexpr double kCaptionRoom = 14.0;
constexpr std::size_t kMostLines = 3;

Extent PageExtent(const SheetOptions& options) {
  Extent page{210.0, 297.0};
  if (options.size == PageSize::kA3) page = {297.0, 420.0};
  if (options.size == PageSize::kA2) page = {420.0, 594.0};
  if (options.landscape) std::swap(page.width, page.height);
  return page;
}

// One window, or what stands in its place.
struct Cell {
  bool drawn = false;
  Scene scene;
  Box box;             // of the scene
  double scale = 0.0;  // its own denominator
  Extent size;         // of the drawing on paper
  std::string idPrefix;
  std::string name;
  std::string message;
  std::vector<CaptionLine> caption;
};

class SheetMaker {
 public:
  SheetMaker(const SheetOptions& options, const Style& style)
      : options_(options),
        style_(style),
        page_(PageExtent(options)),
        area_{page_.width - 2.0 * kMargin, page_.height - 2.0 * kMargin - kHead},
        place_{
            (area_.width + kGap) / (options.landscape ? kDown : kAcross) - kGap,
            (area_.height + kGap) / (options.landscape ? kAcross : kDown) - kGap - kCaptionRoom} {}

  std::vector<Page> Make(const std::vector<SheetEntry>& entries,
                         std::vector<PictureStatus>& statuses) {
    common_ = options_.plan.scale > 0.0 ? options_.plan.scale : ScaleOf(entries);
    for (const SheetEntry& entry : entries) {
      cells_.push_back(MakeCell(entry, cells_.size()));
      const bool failed = entry.window && !cells_.back().drawn;
      statuses.push_back(failed ? FailureOf(cells_.back()) : PictureStatus::kOk);
    }
    SetColumns();
    for (Cell& cell : cells_) SetCaption(cell);
    PlaceRows();
    AddHeads();
    return std::move(pages_);
  }

 private:
  static PictureStatus FailureOf(const Cell& cell) {
    const Scene& scene = cell.scene;
    const bool empty = scene.shapes.empty() && scene.lines.empty();
    return empty ? PictureStatus::kEmpty : PictureStatus::kUnbounded;
  }

  static Extent ExtentOf(const Box& box) { return {box.right - box.left, box.top - box.bottom}; }

  // The scale that all windows share, judged by what they are without dimensions.
  double ScaleOf(const std::vector<SheetEntry>& entries) const {
    SceneOptions bare = options_.scene;
    bare.dimensions = false;
    std::vector<Extent> windows;
    for (const SheetEntry& entry : entries) {
      Box box;
      if (entry.window && GetBox(BuildScene(*entry.window, bare), box)) {
        windows.push_back(ExtentOf(box));
      }
    }
    return CommonScale(windows, place_, options_.plan.unit);
  }

  // Draws at a scale; false when that is wider or higher than a place can be.
  bool Draw(const CFeApi& window, double scale, const Extent& room, Cell& cell) const {
    SceneOptions scene = options_.scene;
    PlanOptions plan = options_.plan;
    plan.scale = scale;
    scene.millimetre = UnitsPerMillimetre(plan);
    cell.scene = BuildScene(window, scene);
    cell.scale = scale;
    if (!GetBox(cell.scene, cell.box)) return false;
    const double perUnit = MillimetresPerUnit(scale, options_.plan.unit);
    const Extent extent = ExtentOf(cell.box);
    cell.size = {extent.width * perUnit, extent.height * perUnit};
    return cell.size.width > 0.0 && cell.size.height > 0.0 && cell.size.width <= room.width &&
           cell.size.height <= room.height;
  }

  // At the common scale, or at the largest of its own that fits.
  bool DrawSomehow(const CFeApi& window, Cell& cell) const {
    const Extent whole{area_.width, area_.height - kCaptionRoom - kCaptionGap};
    if (Draw(window, common_, whole, cell)) return true;
    SceneOptions bare = options_.scene;
    bare.dimensions = false;
    Box box;
    if (!GetBox(BuildScene(window, bare), box)) return false;
    const double own = ScaleFor(ExtentOf(box), place_, options_.plan.unit);
    return own > 0.0 && Draw(window, own, whole, cell);
  }

  Cell MakeCell(const SheetEntry& entry, std::size_t number) const {
    Cell cell;
    cell.idPrefix = "fenster-" + std::to_string(number) + '-';
    cell.drawn = entry.window && DrawSomehow(*entry.window, cell);
    cell.name = ToDisplayText(cell.drawn || entry.name.empty() ? cell.scene.name : entry.name);
    cell.message = ToDisplayText(entry.message);
    if (!cell.drawn) cell.size = kPlaceholder;
    return cell;
  }

  void SetColumns() {
    double widest = kNarrowestCell;
    for (const Cell& cell : cells_) widest = std::max(widest, cell.size.width);
    columns_ =
        static_cast<std::size_t>(std::max(1.0, std::floor((area_.width + kGap) / (widest + kGap))));
    const auto columns = static_cast<double>(columns_);
    cellWidth_ = (area_.width - (columns - 1.0) * kGap) / columns;
  }

  void SetCaption(Cell& cell) const {
    const auto add = [&](const std::string& text, double height) {
      AppendBroken(text, height, cellWidth_, kMostLines, cell.caption);
    };
    const Language language = options_.plan.language;
    add(cell.name, kSheetNameHeight);
    if (!cell.drawn) {
      add(cell.message, kSheetTextHeight);
      return;
    }
    std::string facts = SizeText(cell.scene, options_.plan);
    if (cell.scale != common_) facts += " · " + ScaleText(cell.scale, language);  // exact: the same
    add(facts, kSheetTextHeight);
    std::string openings;
    for (const std::string& text : OpeningTexts(cell.scene, language)) {
      openings += (openings.empty() ? "" : "; ") + text;
    }
    add(openings, kSheetTextHeight);
  }

  void PlaceRows() {
    double top = 0.0;  // of the next row; pages grow upwards
    for (std::size_t first = 0; first < cells_.size(); first += columns_) {
      const std::size_t last = std::min(first + columns_, cells_.size());
      double drawing = 0.0;
      double caption = 0.0;
      for (std::size_t i = first; i < last; ++i) {
        drawing = std::max(drawing, cells_[i].size.height);
        caption = std::max(caption, HeightOf(cells_[i].caption));
      }
      const double height = drawing + kCaptionGap + caption;
      if (pages_.empty() || top - height < kMargin) top = NewPage();
      for (std::size_t i = first; i < last; ++i) {
        const double left = kMargin + static_cast<double>(i - first) * (cellWidth_ + kGap);
        PlaceCell(cells_[i], {left, top - drawing});
      }
      top -= height + kGap;
    }
  }

  double NewPage() {
    Page page;
    page.width = page_.width;
    page.height = page_.height;
    page.toScale = true;
    page.title = Title();
    pages_.push_back(std::move(page));
    return page_.height - kMargin - kHead;
  }

  // `foot` is the left end of the line on which the drawing stands.
  void PlaceCell(const Cell& cell, const Point& foot) {
    const double left = foot.x + (cellWidth_ - cell.size.width) / 2.0;
    if (cell.drawn) {
      View view;
      view.scale = MillimetresPerUnit(cell.scale, options_.plan.unit);
      view.place = {left - cell.box.left * view.scale, foot.y - cell.box.bottom * view.scale};
      view.content =
          Compose(cell.scene, {style_, options_.plan.language, view.scale, 0.0, cell.idPrefix});
      pages_.back().views.push_back(std::move(view));
    } else {
      AddPlaceholder({left, foot.y});
    }
    View caption;
    AddCaption(cell.caption, {foot.x, foot.y - kCaptionGap}, cellWidth_, cell.idPrefix + "titel",
               caption.content);
    pages_.back().views.push_back(std::move(caption));
  }

  void AddPlaceholder(const Point& corner) {
    const Point far{corner.x + kPlaceholder.width, corner.y + kPlaceholder.height};
    Figure frame{"", "platzhalter", "TEXT"};
    frame.traces.push_back({{corner, {far.x, corner.y}, far, {corner.x, far.y}}, true});
    frame.pen = RulePen();
    Label label{"", "platzhalter", "TEXT"};
    label.mitte = {(corner.x + far.x) / 2.0, (corner.y + far.y) / 2.0};
    label.hoehe = kSheetTextHeight;
    label.text = NotDrawnText(options_.plan.language);
    label.width = std::min(LetteringWidth(label.text) * label.hoehe, kPlaceholder.width);
    label.colour = CaptionColour();
    View view;
    view.content.figures.push_back(std::move(frame));
    view.content.labels.push_back(std::move(label));
    pages_.back().views.push_back(std::move(view));
  }

  std::string Title() const {
    const std::string title = ToDisplayText(options_.title);
    return title.empty() ? ScheduleText(options_.plan.language) : title;
  }

  // Title, common scale and the page's number above a line.
  void AddHeads() {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      const double y = page_.height - kMargin;
      const std::string right = ScaleText(common_, options_.plan.language) + " · " +
                                SheetText(i + 1, pages_.size(), options_.plan.language);
      const double rightWidth = LetteringWidth(right) * kCaptionHeight;
      View view;
      AddCaption({{Title(), kNameHeight}}, {kMargin, y}, area_.width - rightWidth - kGap, "titel",
                 view.content);
      AddCaption({{right, kCaptionHeight}},
                 {page_.width - kMargin - rightWidth, y - kNameHeight + kCaptionHeight}, rightWidth,
                 "blatt", view.content);
      Figure rule{"", "linie", "TEXT"};
      const double below = y - 1.8 * kNameHeight;
      rule.traces.push_back({{{kMargin, below}, {page_.width - kMargin, below}}, false});
      rule.pen = RulePen();
      view.content.figures.push_back(std::move(rule));
      pages_[i].views.push_back(std::move(view));
    }
  }

  const SheetOptions& options_;
  const Style& style_;
  const Extent page_;
  const Extent area_;   // of all rows
  const Extent place_;  // that the largest window should fit into
  double common_ = 0.0;
  std::size_t columns_ = 1;
  double cellWidth_ = 0.0;
  std::vector<Cell> cells_;
  std::vector<Page> pages_;
};

}  // namespace

std::vector<Page> LayOutSheet(const std::vector<SheetEntry>& entries, const SheetOptions& options,
                              const Style& style, std::vector<PictureStatus>& statuses) {
  return SheetMaker(options, style).Make(entries, statuses);
}

}  // namespace lintavo::drawing
