// Pictures for C: the only place of this library that C code calls, so nothing
// may be thrown out of it.
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
static_assert(static_cast<int>(PictureFormat::kSvg) == LINTAVO_FORMAT_SVG);
static_assert(static_cast<int>(PictureFormat::kPdf) == LINTAVO_FORMAT_PDF);
static_assert(static_cast<int>(PictureFormat::kPng) == LINTAVO_FORMAT_PNG);

bool IsFormat(int format) {
  return format >= LINTAVO_FORMAT_SVG && format <= LINTAVO_FORMAT_PNG;
}

bool IsOptions(int options) {
  constexpr int kAll =
      LINTAVO_VON_AUSSEN | LINTAVO_OHNE_MASZE | LINTAVO_OHNE_SYMBOLE | LINTAVO_NUR_SICHTBARE;
  return (options & ~kAll) == 0;
}

SceneOptions ToOptions(int options) {
  return {(options & LINTAVO_VON_AUSSEN) ? ViewSide::kOutside : ViewSide::kInside,
          (options & LINTAVO_OHNE_MASZE) == 0,
          (options & LINTAVO_OHNE_SYMBOLE) == 0,
          (options & LINTAVO_NUR_SICHTBARE) != 0,
          {}};
}

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
  if (status < 0 || status > LINTAVO_PICTURE_BAD_ARGUMENT) return "unknown status";
  return StatusText(static_cast<PictureStatus>(status));
}

int lintavo_picture_format_from_path(const char* path) {
  PictureFormat format{};
  return path && FormatFromPath(path, format) ? static_cast<int>(format) : -1;
}

int lintavo_window_draw(const lintavo_window* window, int format, int options,
                        lintavo_bytes* picture) {
  if (!window || !picture || !IsFormat(format) || !IsOptions(options))
    return LINTAVO_PICTURE_BAD_ARGUMENT;
  return Guarded([&] {
    std::string bytes;
    PictureStatus status = RenderPicture(BuildScene(*FacadeOf(window), ToOptions(options)),
                                         static_cast<PictureFormat>(format), bytes);
    if (status == PictureStatus::kOk && !lintavo_bytes_set(picture, bytes.data(), bytes.size())) {
      status = PictureStatus::kFailed;
    }
    return static_cast<int>(status);
  });
}

int lintavo_window_draw_to_file(const lintavo_window* window, int format, int options,
                                const char* path) {
  if (!window || !path || !IsFormat(format) || !IsOptions(options))
    return LINTAVO_PICTURE_BAD_ARGUMENT;
  return Guarded([&] {
    return static_cast<int>(WritePicture(BuildScene(*FacadeOf(window), ToOptions(options)),
                                         static_cast<PictureFormat>(format), path));
  });
}
