// The engine's hooks for targets whose input is text of the library's files.
// Included by the one source of such a target.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "MakroMutator.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace lintavo::fuzz {

inline std::string_view AlsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline std::size_t Uebernimm(const std::string& text, std::uint8_t* data) {
  std::memcpy(data, text.data(), text.size());
  return text.size();
}

}  // namespace lintavo::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  // Now and then the engine's own changes, which know the dictionary.
  if (size == 0 || seed % 8 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  return lintavo::fuzz::Uebernimm(
      lintavo::fuzz::MutiereMakro(lintavo::fuzz::AlsText(data, size), seed, maxSize), data);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1,
                                                 const std::uint8_t* data2, std::size_t size2,
                                                 std::uint8_t* out, std::size_t maxSize,
                                                 unsigned seed) {
  using lintavo::fuzz::AlsText;
  return lintavo::fuzz::Uebernimm(
      lintavo::fuzz::KreuzeMakros(AlsText(data1, size1), AlsText(data2, size2), seed, maxSize),
      out);
}
