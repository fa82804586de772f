// What all pictures have in common: formats, statuses, files.
#include "lintavo/drawing/Picture.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "lintavo/platform/SaveFile.h"

#include "paper/Layout_intern.h"
#include "paper/Paper_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

struct Ending {
  std::string_view text;
  PictureFormat format;
};

constexpr Ending kEndings[] = {{".svg", PictureFormat::kSvg},
                               {".pdf", PictureFormat::kPdf},
                               {".png", PictureFormat::kPng},
                               {".dxf", PictureFormat::kDxf}};

bool EndsWithInAnyCase(std::string_view text, std::string_view lowerCaseEnding) {
  if (text.size() < lowerCaseEnding.size()) return false;
  text.remove_prefix(text.size() - lowerCaseEnding.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    if (lower != lowerCaseEnding[i]) return false;
  }
  return true;
}

constexpr double kUsualDpi = 150.0;

double PixelsPerMillimetre(const Page& page, const PlanOptions& plan) {
  if (plan.pixels > 0) return plan.pixels / page.width;
  if (plan.dpi > 0.0) return plan.dpi / kMillimetresPerInch;
  if (page.toScale) return kUsualDpi / kMillimetresPerInch;
  return kLongSidePixels / std::max(page.width, page.height);
}

}  // namespace

const char* StatusText(PictureStatus status) {
  switch (status) {
    case PictureStatus::kOk:
      return "ok";
    case PictureStatus::kEmpty:
      return "the window has nothing to draw";
    case PictureStatus::kUnbounded:
      return "the window's coordinates are out of range";
    case PictureStatus::kFailed:
      return "the picture could not be drawn";
    case PictureStatus::kNotWritten:
      return "the file cannot be written";
    case PictureStatus::kNoGraphics:
      return "this build has no graphics library";
    case PictureStatus::kTooLarge:
      return "the picture would be too large";
  }
  return "unknown status";
}

bool FormatFromPath(std::string_view path, PictureFormat& format) {
  for (const Ending& ending : kEndings) {
    if (!EndsWithInAnyCase(path, ending.text)) continue;
    format = ending.format;
    return true;
  }
  return false;
}

PictureStatus RenderPage(const Page& page, PictureFormat format, const PlanOptions& plan,
                         std::string& bytes) {
  std::string drawn;
  PictureStatus status = PictureStatus::kOk;
  switch (format) {
    case PictureFormat::kSvg:
      drawn = WriteSvg(page);
      break;
    case PictureFormat::kDxf:
      drawn = WriteDxf(page);
      break;
    case PictureFormat::kPdf:
      status = WritePdf({page}, drawn);
      break;
    case PictureFormat::kPng:
      status = WritePng(page, PixelsPerMillimetre(page, plan), drawn);
      break;
  }
  if (status == PictureStatus::kOk) bytes = std::move(drawn);
  return status;
}

PictureStatus RenderPicture(const Scene& scene, PictureFormat format, std::string& bytes,
                            const Style& style, const PlanOptions& plan) {
  Page page;
  const PictureStatus status = LayOut(scene, style, plan, page);
  return status == PictureStatus::kOk ? RenderPage(page, format, plan, bytes) : status;
}

PictureStatus WritePicture(const Scene& scene, PictureFormat format, const std::string& path,
                           const Style& style, const PlanOptions& plan) {
  std::string bytes;
  const PictureStatus status = RenderPicture(scene, format, bytes, style, plan);
  if (status != PictureStatus::kOk) return status;
  return SaveFile(path, bytes) ? PictureStatus::kOk : PictureStatus::kNotWritten;
}

}  // namespace lintavo::drawing
