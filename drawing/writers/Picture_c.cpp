// Pictures for C: the only place of this library that C code calls, so nothing
// may be thrown out of it.
#include <cmath>
#include <string>

#include "lintavo/api/CFeApi.h"
#include "lintavo/capi/Handles.h"
#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing_c.h"

using lintavo::FacadeOf;

namespace lintavo::drawing {
namespace {

// Both sides count alike, so numbers are handed through.
static_assert(static_cast<int>(PictureStatus::kOk) == LINTAVO_PICTURE_OK);
static_assert(static_cast<int>(PictureStatus::kEmpty) == LINTAVO_PICTURE_EMPTY);
static_assert(static_cast<int>(PictureStatus::kUnbounded) == LINTAVO_PICTURE_UNBOUNDED);
static_assert(static_cast<int>(PictureStatus::kFailed) == LINTAVO_PICTURE_FAILED);
static_assert(static_cast<int>(PictureStatus::kNotWritten) == LINTAVO_PICTURE_NOT_WRITTEN);
static_assert(static_cast<int>(PictureStatus::kNoGraphics) == LINTAVO_PICTURE_NO_GRAPHICS);
static_assert(static_cast<int>(PictureStatus::kTooLarge) == LINTAVO_PICTURE_TOO_LARGE);
static_assert(static_cast<int>(PictureFormat::kSvg) == LINTAVO_FORMAT_SVG);
static_assert(static_cast<int>(PictureFormat::kPdf) == LINTAVO_FORMAT_PDF);
static_assert(static_cast<int>(PictureFormat::kPng) == LINTAVO_FORMAT_PNG);
static_assert(static_cast<int>(PictureFormat::kDxf) == LINTAVO_FORMAT_DXF);
static_assert(static_cast<int>(LengthUnit::kMillimetre) == LINTAVO_UNIT_MM);
static_assert(static_cast<int>(LengthUnit::kCentimetre) == LINTAVO_UNIT_CM);
static_assert(static_cast<int>(LengthUnit::kMetre) == LINTAVO_UNIT_M);

bool IsFormat(int format) {
  return format >= LINTAVO_FORMAT_SVG && format <= LINTAVO_FORMAT_DXF;
}

bool IsOptions(int options) {
  constexpr int kAll = LINTAVO_VON_AUSSEN | LINTAVO_OHNE_MASZE | LINTAVO_OHNE_SYMBOLE |
                       LINTAVO_NUR_SICHTBARE | LINTAVO_MASZKETTEN | LINTAVO_TITEL |
                       LINTAVO_ENGLISCH;
  return (options & ~kAll) == 0;
}

bool IsPlan(const lintavo_plan* plan) {
  return plan && plan->unit >= LINTAVO_UNIT_MM && plan->unit <= LINTAVO_UNIT_M &&
         plan->pixels >= 0 && std::isfinite(plan->scale) && std::isfinite(plan->dpi) &&
         plan->scale >= 0.0 && plan->dpi >= 0.0;
}

SceneOptions ToOptions(int options, const PlanOptions& plan) {
  SceneOptions scene;
  scene.side = (options & LINTAVO_VON_AUSSEN) ? ViewSide::kOutside : ViewSide::kInside;
  scene.dimensions = (options & LINTAVO_OHNE_MASZE) == 0;
  scene.symbols = (options & LINTAVO_OHNE_SYMBOLE) == 0;
  scene.hiddenLine = (options & LINTAVO_NUR_SICHTBARE) != 0;
  scene.chains = (options & LINTAVO_MASZKETTEN) != 0;
  scene.millimetre = UnitsPerMillimetre(plan);
  return scene;
}

PlanOptions ToPlan(int options, const lintavo_plan& plan) {
  PlanOptions made;
  made.scale = plan.scale;
  made.unit = static_cast<LengthUnit>(plan.unit);
  made.language = (options & LINTAVO_ENGLISCH) ? Language::kEnglish : Language::kDeutsch;
  made.title = (options & LINTAVO_TITEL) != 0;
  made.pixels = plan.pixels;
  made.dpi = plan.dpi;
  return made;
}

constexpr lintavo_plan kUsualPlan = {0.0, LINTAVO_UNIT_CM, 0, 0.0};

// The result of `operation`, or a failure when it throws, as it does when it
// runs out of memory.
template <class Operation>
int Guarded(Operation operation) noexcept {
  try {
    return operation();
  } catch (...) {
    return LINTAVO_PICTURE_FAILED;
  }
}

}  // namespace
}  // namespace lintavo::drawing

using namespace lintavo::drawing;

const char* lintavo_picture_status_text(int status) {
  if (status == LINTAVO_PICTURE_BAD_ARGUMENT) return "a null argument, an unknown format or option";
  return StatusText(static_cast<PictureStatus>(status));
}

int lintavo_picture_format_from_path(const char* path) {
  PictureFormat format{};
  return path && FormatFromPath(path, format) ? static_cast<int>(format) : -1;
}

int lintavo_window_draw(const lintavo_window* window, int format, int options,
                        lintavo_bytes* picture) {
  return lintavo_window_draw_plan(window, format, options, &kUsualPlan, picture);
}

int lintavo_window_draw_to_file(const lintavo_window* window, int format, int options,
                                const char* path) {
  return lintavo_window_draw_plan_to_file(window, format, options, &kUsualPlan, path);
}

int lintavo_window_draw_plan(const lintavo_window* window, int format, int options,
                             const lintavo_plan* plan, lintavo_bytes* picture) {
  if (!window || !picture || !IsFormat(format) || !IsOptions(options) || !IsPlan(plan))
    return LINTAVO_PICTURE_BAD_ARGUMENT;
  return Guarded([&] {
    const PlanOptions made = ToPlan(options, *plan);
    std::string bytes;
    PictureStatus status = RenderPicture(BuildScene(*FacadeOf(window), ToOptions(options, made)),
                                         static_cast<PictureFormat>(format), bytes, {}, made);
    if (status == PictureStatus::kOk && !lintavo_bytes_set(picture, bytes.data(), bytes.size())) {
      status = PictureStatus::kFailed;
    }
    return static_cast<int>(status);
  });
}

int lintavo_window_draw_plan_to_file(const lintavo_window* window, int format, int options,
                                     const lintavo_plan* plan, const char* path) {
  if (!window || !path || !IsFormat(format) || !IsOptions(options) || !IsPlan(plan))
    return LINTAVO_PICTURE_BAD_ARGUMENT;
  return Guarded([&] {
    const PlanOptions made = ToPlan(options, *plan);
    return static_cast<int>(WritePicture(BuildScene(*FacadeOf(window), ToOptions(options, made)),
                                         static_cast<PictureFormat>(format), path, {}, made));
  });
}
