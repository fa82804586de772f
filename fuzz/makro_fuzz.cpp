// Target: the text of a plain macro file through the façade and the model.
#include <cstring>
#include <string_view>

#include "Arbeitsordner.h"
#include "Fensterlauf.h"
#include "Gesetz.h"
#include "MakroMutator.h"

namespace {

std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

std::size_t Uebernimm(const std::string& text, std::uint8_t* data) {
  std::memcpy(data, text.data(), text.size());
  return text.size();
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  // Now and then the engine's own changes, which know the dictionary.
  if (size == 0 || seed % 8 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  return Uebernimm(lintavo::fuzz::MutiereMakro(Text(data, size), seed, maxSize), data);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1,
                                                 const std::uint8_t* data2, std::size_t size2,
                                                 std::uint8_t* out, std::size_t maxSize,
                                                 unsigned seed) {
  return Uebernimm(
      lintavo::fuzz::KreuzeMakros(Text(data1, size1), Text(data2, size2), seed, maxSize), out);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lintavo::fuzz::Arbeitsordner ordner;
  lintavo::fuzz::Fordere(
      lintavo::fuzz::PruefeMakroText(Text(data, size), static_cast<int>(size % 3)));
  lintavo::fuzz::Fordere(lintavo::fuzz::PruefeModell(Text(data, size), ordner.Pfad("fenster.aqz")));
  return 0;
}
