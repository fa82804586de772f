// Asking the façade, whose answer 0 may stand for "there is none" and for "there was
// no memory to tell".
#pragma once

#include <cstddef>
#include <new>

namespace lintavo::drawing {

/// What `call`, a question to the façade, answers. One that answers 0 is asked once
/// more while there is memory to spare, so that nothing is missing in a picture because
/// there was none. Throws std::bad_alloc.
template <class Call>
auto Ask(Call call) {
  if (const auto answer = call()) return answer;
  constexpr std::size_t kToSpare = 65536;
  ::operator delete(::operator new(kToSpare));
  return call();
}

}  // namespace lintavo::drawing
