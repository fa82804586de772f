// Access to the elements of a list by an index that may be anything.
#pragma once

#include <cstddef>

namespace lintavo {

/// Element `i` of a list that keeps its elements in a row; null for a bad index.
template <class List>
auto ElementPtr(List& list, long i) -> decltype(list.data()) {
  if (i < 0 || static_cast<std::size_t>(i) >= list.size()) return nullptr;
  return list.data() + i;
}

}  // namespace lintavo
