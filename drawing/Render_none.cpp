// Stands for the drawing of pictures in builds without a graphics library; scenes
// can be built there all the same.
#include "lintavo/drawing/Picture.h"

namespace lintavo::drawing {

PictureStatus RenderPicture(const Scene&, PictureFormat, std::string&, const Style&) {
  return PictureStatus::kNoGraphics;
}

}  // namespace lintavo::drawing
