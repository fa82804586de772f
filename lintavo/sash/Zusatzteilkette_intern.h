// Walks the chain of extra parts that hang on a frame part.
#pragma once

#include <vector>

#include "lintavo/model/CMBauteil.h"

namespace lintavo {

/// Calls `visit` for every part of the chain that starts with link `glied`,
/// until it returns false, the chain ends, or a link names no part. A chain
/// that bites its own tail, as a damaged record may hold one, ends after as
/// many steps as there are parts.
template <class Visit>
void KetteDurchlaufen(const std::vector<CMBauteil>& teile, long glied, Visit visit) {
  for (std::size_t steps = 0; steps < teile.size(); ++steps) {
    if (glied < 0 || static_cast<std::size_t>(glied) >= teile.size()) return;
    const CMBauteil& teil = teile[static_cast<std::size_t>(glied)];
    if (!visit(teil)) return;
    glied = teil.lKette;
  }
}

}  // namespace lintavo
