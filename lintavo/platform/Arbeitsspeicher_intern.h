// Memory for what a calculation needs only while it runs.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <vector>

namespace lintavo {

/// Where lists take their memory from; made from an Arbeitsspeicher's address or from
/// another list's allocator, by default the heap.
using Speicher = std::pmr::polymorphic_allocator<>;

/// A list that a calculation needs only while it runs.
template <class T>
using Liste = std::pmr::vector<T>;

/// Gives lists their memory from the stack as long as that suffices, for windows of the
/// usual size without asking the heap at all. It takes nothing back before it goes
/// itself: made for the lists of one operation, not for those of a loop without end.
class Arbeitsspeicher : public std::pmr::monotonic_buffer_resource {
 public:
  Arbeitsspeicher() : monotonic_buffer_resource(anfang_, sizeof anfang_) {}

 private:
  static constexpr std::size_t kAnfang = 16384;
  alignas(std::max_align_t) std::byte anfang_[kAnfang];
};

}  // namespace lintavo
