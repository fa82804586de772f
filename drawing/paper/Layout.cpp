// Puts one scene onto a page: fitted to a usual size or true to scale, its title below.
#include <algorithm>
#include <cmath>

#include "paper/Caption_intern.h"
#include "paper/Compose_intern.h"
#include "paper/Layout_intern.h"
#include "paper/Paper_intern.h"

namespace lintavo::drawing {
namespace {

constexpr double kTitleGap = 5.0;
// The narrowest column of a title beside which a window looks lost no more.
constexpr double kNarrowestTitle = 60.0;

bool HasPoint(const Scene& scene) {
  if (!scene.lines.empty() || !scene.texts.empty() || !scene.umriss.empty()) return true;
  return std::any_of(scene.shapes.begin(), scene.shapes.end(),
                     [](const Shape& shape) { return !shape.outline.empty(); });
}

double MillimetresOf(LengthUnit unit) {
  switch (unit) {
    case LengthUnit::kMillimetre:
      return 1.0;
    case LengthUnit::kCentimetre:
      return 10.0;
    case LengthUnit::kMetre:
      return 1000.0;
  }
  return 1.0;
}

// Where a box lies on the page before a title asks for more room.
struct Fit {
  double scale = 0.0;
  double margin = 0.0;
  double width = 0.0;  // of the drawing without margins
  double height = 0.0;
};

// False when no finite scale exists.
bool FitBox(const Box& box, const PlanOptions& plan, Fit& fit) {
  const double width = box.right - box.left;
  const double height = box.top - box.bottom;
  if (!std::isfinite(width) || !std::isfinite(height) || std::max(width, height) <= 0.0)
    return false;
  if (plan.scale > 0.0) {
    fit.scale = MillimetresPerUnit(plan.scale, plan.unit);
    fit.margin = kPlanMargin;
  } else {
    fit.margin = kLongSideMillimetres * kMarginShare;
    fit.scale = (kLongSideMillimetres - 2.0 * fit.margin) / std::max(width, height);
  }
  fit.width = width * fit.scale;
  fit.height = height * fit.scale;
  return std::isnormal(fit.scale) && std::isfinite(fit.width) && std::isfinite(fit.height);
}

}  // namespace

double MillimetresPerUnit(double scale, LengthUnit unit) {
  return MillimetresOf(unit) / scale;
}

double UnitsPerMillimetre(const PlanOptions& plan) {
  if (!(plan.scale > 0.0) || !std::isfinite(plan.scale)) return 0.0;
  return plan.scale / MillimetresOf(plan.unit);
}

PictureStatus LayOut(const Scene& scene, const Style& style, const PlanOptions& plan, Page& page) {
  if (!HasPoint(scene)) return PictureStatus::kEmpty;
  Box box;
  Fit fit;
  if (!GetBox(scene, box) || !FitBox(box, plan, fit)) return PictureStatus::kUnbounded;
  const double column = std::max(fit.width, kNarrowestTitle);
  const std::vector<CaptionLine> title =
      plan.title ? TitleLines(scene, plan, column) : std::vector<CaptionLine>();
  const double titleHeight = title.empty() ? 0.0 : kTitleGap + HeightOf(title);
  page.title = scene.name;
  page.toScale = plan.scale > 0.0;
  page.single = true;
  page.width = (title.empty() ? fit.width : column) + 2.0 * fit.margin;
  page.height = fit.height + titleHeight + 2.0 * fit.margin;
  if (std::max(page.width, page.height) > kLongestPage) return PictureStatus::kTooLarge;

  const double pixel = std::max(page.width, page.height) / kLongSidePixels;
  View view;
  view.scale = fit.scale;
  view.place = {(page.width - fit.width) / 2.0 - box.left * fit.scale,
                fit.margin + titleHeight - box.bottom * fit.scale};
  view.content = Compose(scene, {style, plan.language, fit.scale, pixel});
  page.views.push_back(std::move(view));
  if (!title.empty()) {
    View caption;
    AddCaption(title, {fit.margin, fit.margin + HeightOf(title)}, column, "titel", caption.content);
    page.views.push_back(std::move(caption));
  }
  return PictureStatus::kOk;
}

}  // namespace lintavo::drawing
