// What all pictures have in common: formats, statuses, files.
#include "lintavo/drawing/Picture.h"

#include "lintavo/platform/SaveFile.h"

namespace lintavo::drawing {
namespace {

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
  }
  return "unknown status";
}

bool FormatFromPath(std::string_view path, PictureFormat& format) {
  if (EndsWithInAnyCase(path, ".svg")) {
    format = PictureFormat::kSvg;
  } else if (EndsWithInAnyCase(path, ".pdf")) {
    format = PictureFormat::kPdf;
  } else if (EndsWithInAnyCase(path, ".png")) {
    format = PictureFormat::kPng;
  } else {
    return false;
  }
  return true;
}

PictureStatus WritePicture(const Scene& scene, PictureFormat format, const std::string& path,
                           const Style& style) {
  std::string bytes;
  const PictureStatus status = RenderPicture(scene, format, bytes, style);
  if (status != PictureStatus::kOk) return status;
  return SaveFile(path, bytes) ? PictureStatus::kOk : PictureStatus::kNotWritten;
}

}  // namespace lintavo::drawing
