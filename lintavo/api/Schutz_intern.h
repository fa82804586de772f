// The one wrapper at the library's edge: nothing is thrown to a host.
#pragma once

#include <algorithm>
#include <cstring>

#include "lintavo/platform/CString.h"

namespace lintavo {

/// The result of `operation`, or `failure` when it throws anything, running
/// out of memory included.
template <class Result, class Operation>
Result Geschuetzt(Result failure, Operation operation) noexcept {
  try {
    return operation();
  } catch (...) {
    return failure;
  }
}

/// The same for an operation without a result.
template <class Operation>
void Geschuetzt(Operation operation) noexcept {
  try {
    operation();
  } catch (...) {
    // The caller's outputs are as the operation left them; there is no other
    // channel to report through.
  }
}

/// Clears a text buffer of the boundary and copies at most 256 bytes into it;
/// a longer text has no terminating zero there. Returns the number copied.
inline long KopiereText(const CString& text, char (&buffer)[256]) {
  std::memset(buffer, 0, sizeof buffer);
  const std::size_t count = std::min(static_cast<std::size_t>(text.GetLength()), sizeof buffer);
  std::memcpy(buffer, text.View().data(), count);
  return static_cast<long>(count);
}

}  // namespace lintavo
