// Pictures of a scene: SVG, PDF, PNG and DXF.
#pragma once

#include <string>
#include <string_view>

#include "lintavo/drawing/Export.h"
#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

namespace lintavo::drawing {

enum class PictureFormat { kSvg, kPdf, kPng, kDxf };

/// How making a picture ended.
enum class PictureStatus {
  kOk,
  kEmpty,        ///< the scene has nothing to draw
  kUnbounded,    ///< a coordinate or the extent is no finite number
  kFailed,       ///< the graphics library reported an error
  kNotWritten,   ///< the file cannot be written in full
  kNoGraphics,   ///< the library was built without a graphics library, which PDF and PNG need
  kTooLarge = 7  ///< the page would be larger than 5 m, or a PNG than 30000 pixels or 150 million
};

/// One English sentence part for a status, "ok" for `kOk`. The text is static.
LINTAVO_DRAWING_API const char* StatusText(PictureStatus status);

/// The format that a file name's ending asks for (svg, pdf, png, dxf, in any case).
/// False, leaving `format` as it is, for any other ending.
LINTAVO_DRAWING_API bool FormatFromPath(std::string_view path, PictureFormat& format);

/// Draws the scene on a page of its own, as `plan` says.
///
/// Without a scale it fits a picture whose longer side is 1600 pixels or SVG units, or 800
/// points in a PDF; the shorter side follows the proportions and never falls below the
/// margins, so the size of a picture is bounded whatever the scene holds. To scale, SVG and
/// PDF are as large as the paper, with true widths of pens.
///
/// SVG names every part and dimension by the ids and classes of Ids.h. DXF is the version R12
/// in the window's own coordinates, a layer for each kind of thing, the ids as extended data
/// of the application "LINTAVO"; what is covered is left out. PNG has a white ground, the
/// others none. Texts are texts in all of them; a font that is wider than what was laid out
/// is squeezed. Of the style's sizes only the smallest text counts here, the others are the
/// scene's. docs/drawing.md tells the conventions.
/// `bytes` receives the file's content on `kOk` and is left alone otherwise.
LINTAVO_DRAWING_API PictureStatus RenderPicture(const Scene& scene, PictureFormat format,
                                                std::string& bytes, const Style& style = {},
                                                const PlanOptions& plan = {});

/// Renders the picture and writes it to `path`, replacing a file of that name, which
/// stays as it is when rendering or writing fails (see `SaveFile`).
LINTAVO_DRAWING_API PictureStatus WritePicture(const Scene& scene, PictureFormat format,
                                               const std::string& path, const Style& style = {},
                                               const PlanOptions& plan = {});

}  // namespace lintavo::drawing
