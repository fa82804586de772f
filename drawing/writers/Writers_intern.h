// The writers: each turns pages into the bytes of one format.
#pragma once

#include <string>
#include <vector>

#include "lintavo/drawing/Picture.h"

#include "paper/Page_intern.h"

namespace lintavo::drawing {

/// One SVG file. A page to scale has its size in millimetres, any other 1600 units on the
/// longer side.
std::string WriteSvg(const Page& page);

/// One DXF file of the version R12. Lengths are those of the page's first view, or
/// millimetres where the page holds more than one drawing.
std::string WriteDxf(const Page& page);

/// One PDF file; pages to scale in points, of any other 800 on the longer side. Appends to
/// `bytes`.
PictureStatus WritePdf(const std::vector<Page>& pages, std::string& bytes);

/// One PNG file with a white ground. Appends to `bytes`.
PictureStatus WritePng(const Page& page, double pixelsPerMillimetre, std::string& bytes);

/// The pixels of a page, none for one that would be too large.
struct PixelSize {
  int width = 0;
  int height = 0;
};
PixelSize PixelsOf(const Page& page, double pixelsPerMillimetre);

/// The file's bytes of one page in any format. `bytes` is left alone unless that succeeds.
PictureStatus RenderPage(const Page& page, PictureFormat format, const PlanOptions& plan,
                         std::string& bytes);

/// Where a point of a view lies on its page, in millimetres from the lower left corner.
inline Point OnPaper(const View& view, const Point& point) {
  return {view.place.x + point.x * view.scale, view.place.y + point.y * view.scale};
}

/// A number with at most so many decimals and no needless zeros, "." under every locale.
void AppendNumber(double number, int decimals, std::string& out);

}  // namespace lintavo::drawing
