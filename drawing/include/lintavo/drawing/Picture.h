// Pictures of a scene: SVG, PDF and PNG.
#pragma once

#include <string>
#include <string_view>

#include "lintavo/drawing/Export.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

namespace lintavo::drawing {

enum class PictureFormat { kSvg, kPdf, kPng };

/// How making a picture ended.
enum class PictureStatus {
  kOk,
  kEmpty,       ///< the scene has nothing to draw
  kUnbounded,   ///< a coordinate or the extent is no finite number
  kFailed,      ///< the graphics library reported an error
  kNotWritten,  ///< the file cannot be written in full
  kNoGraphics   ///< the library was built without a graphics library
};

/// One English sentence part for a status, "ok" for `kOk`. The text is static.
LINTAVO_DRAWING_API const char* StatusText(PictureStatus status);

/// The format that a file name's ending asks for (svg, pdf, png, in any case).
/// False, leaving `format` as it is, for any other ending.
LINTAVO_DRAWING_API bool FormatFromPath(std::string_view path, PictureFormat& format);

/// Draws the scene to fit a picture whose longer side is 1600 pixels or SVG
/// units, or 800 points in a PDF. The shorter side follows the scene's
/// proportions and never falls below the margins, so the size of a picture is
/// bounded whatever the scene holds. PNG has a white ground, the others none.
/// Texts are drawn as lines: no font is needed, pictures are the same everywhere.
/// Of the style's sizes only the smallest text counts here, the others are the scene's.
/// `bytes` receives the file's content on `kOk` and is left alone otherwise.
LINTAVO_DRAWING_API PictureStatus RenderPicture(const Scene& scene, PictureFormat format,
                                                std::string& bytes, const Style& style = {});

/// Renders the picture and writes it to `path`, replacing a file of that name, which
/// stays as it is when rendering or writing fails (see `SaveFile`).
LINTAVO_DRAWING_API PictureStatus WritePicture(const Scene& scene, PictureFormat format,
                                               const std::string& path, const Style& style = {});

}  // namespace lintavo::drawing
