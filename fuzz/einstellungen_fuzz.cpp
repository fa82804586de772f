// Target: general settings and materials.
#include "Arbeitsordner.h"
#include "Gesetz.h"
#include "Positionslauf.h"
#include "Textmutation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lintavo::fuzz::Arbeitsordner ordner;
  lintavo::fuzz::Fordere(
      lintavo::fuzz::PruefeEinstellungen(lintavo::fuzz::AlsText(data, size), ordner.Pfad("")));
  return 0;
}
