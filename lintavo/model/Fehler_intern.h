// How a read or a calculation ended: what was thrown becomes the kept error.
#pragma once

#include <new>
#include <stdexcept>
#include <utility>

#include "lintavo/model/CMException.h"

namespace lintavo {

/// The error of running out of memory. Its text is short enough to need none.
inline CMException KeinSpeicher() {
  return CMException(CString("Kein Speicher"));
}

/// Runs the steps and hands out what they threw, memory that ran out included;
/// number 0 when nothing was.
template <class Schritte>
CMException FehlerVon(Schritte schritte) {
  try {
    schritte();
    return {};
  } catch (CMException& e) {
    return std::move(e);
  } catch (const std::bad_alloc&) {
    return KeinSpeicher();
  } catch (const std::length_error&) {
    return KeinSpeicher();  // a list longer than any memory
  }
}

}  // namespace lintavo
