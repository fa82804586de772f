// What a sash, or the window's frame, shows of itself.
#pragma once

#include "lintavo/view/WindowView.h"

class CMFensterSatz;

namespace lintavo {

/// Thickness of a record's first frame part; of its template where it has none.
double ThicknessOf(const CMFensterSatz& satz);

/// The parts of the window's frame.
Record FrameViewOf(const CMFensterSatz& rahmen);

/// Sash `index`, calculated, in a frame of the given thickness.
Sash SashViewOf(const CMFensterSatz& fluegel, int index, const CMFensterSatz& rahmen);

}  // namespace lintavo
