// Window schedules: many windows on pages of paper, each with its name, size, opening kinds
// and drawing.
#pragma once

#include <string>
#include <vector>

#include "lintavo/drawing/Export.h"
#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Plan.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Style.h"

class CFeApi;

namespace lintavo::drawing {

/// One place on a sheet.
struct SheetEntry {
  /// A calculated window, which outlives the call; null leaves the place to the message.
  const CFeApi* window = nullptr;
  std::string name;     ///< stands in place of a window that there is not, such as its file's
  std::string message;  ///< why there is none
};

/// A page upright; the longer side lies across in landscape.
enum class PageSize { kA4, kA3, kA2 };

struct SheetOptions {
  PageSize size = PageSize::kA4;
  bool landscape = false;
  std::string title;  ///< stands at the head of every page; empty: "Fensterliste"
  /// Scale, unit, language and resolution. Without a scale all windows share the largest of
  /// the usual ones at which about six of the largest fit on a page.
  PlanOptions plan;
  SceneOptions scene;  ///< what is shown; `millimetre` is set for each window's scale
};

/// A sheet as files.
struct Sheet {
  /// One for all pages as PDF, else one for each page.
  std::vector<std::string> files;
  /// How drawing each entry ended: `kOk` for one without a window too. What has nothing to
  /// draw, or no finite extent, stands on the sheet as a place without a drawing.
  std::vector<PictureStatus> entries;
};

/// Draws a sheet. A window too large for a place at the common scale is drawn at a smaller one
/// of its own, which its caption names. In SVG and DXF the ids of window `i` begin with
/// "fenster-i-"; a DXF has the page's coordinates in millimetres.
/// Not `kOk`, and `sheet` is left alone, when there are no entries (`kEmpty`) or a page cannot
/// be written.
LINTAVO_DRAWING_API PictureStatus RenderSheet(const std::vector<SheetEntry>& entries,
                                              PictureFormat format, Sheet& sheet,
                                              const SheetOptions& options = {},
                                              const Style& style = {});

}  // namespace lintavo::drawing
