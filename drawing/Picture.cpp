// What all pictures have in common: formats, statuses, files.
#include "lintavo/drawing/Picture.h"

#include <exception>
#include <filesystem>
#include <fstream>

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

// Paths are UTF-8 on Windows and the system's own bytes elsewhere. One that is no
// UTF-8 becomes an empty path, which cannot be opened.
#ifdef _WIN32
std::filesystem::path FilePath(const std::string& path) {
  try {
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
  } catch (const std::exception&) {
    return {};
  }
}
#else
const std::string& FilePath(const std::string& path) {
  return path;
}
#endif

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
  std::ofstream file(FilePath(path), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file ? PictureStatus::kOk : PictureStatus::kNotWritten;
}

}  // namespace lintavo::drawing
