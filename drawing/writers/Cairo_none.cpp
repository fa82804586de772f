// Stands for PDF and PNG in builds without a graphics library; SVG and DXF need none.
#include "writers/Writers_intern.h"

namespace lintavo::drawing {

PictureStatus WritePdf(const std::vector<Page>&, std::string&) {
  return PictureStatus::kNoGraphics;
}

PictureStatus WritePng(const Page&, double, std::string&) {
  return PictureStatus::kNoGraphics;
}

}  // namespace lintavo::drawing
