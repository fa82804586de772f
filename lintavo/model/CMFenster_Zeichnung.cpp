// What a calculated window shows: its size and its drawings.
#include <algorithm>

#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/Numbers_intern.h"

void CMFenster::GetSize(XY& size) const {
  size.x = std::max(0.0, box_.xmax - box_.xmin);
  size.y = std::max(0.0, box_.ymax - box_.ymin);
}

void CMFenster::GetSize(CSize& size) const {
  XY exact;
  GetSize(exact);
  size.cx = lintavo::TruncateToInt(exact.x);
  size.cy = lintavo::TruncateToInt(exact.y);
}
