// Target: the text of a plain macro file through the façade and the model.
#include "Arbeitsordner.h"
#include "Fensterlauf.h"
#include "Gesetz.h"
#include "Textmutation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lintavo::fuzz::Arbeitsordner ordner;
  const std::string_view text = lintavo::fuzz::AlsText(data, size);
  lintavo::fuzz::Fordere(lintavo::fuzz::PruefeMakroText(text, static_cast<int>(size % 3)));
  lintavo::fuzz::Fordere(lintavo::fuzz::PruefeModell(text, ordner.Pfad("fenster.aqz")));
  return 0;
}
