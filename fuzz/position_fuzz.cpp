// Target: a parameter file, the template that it names, and a pattern, in one
// text of three documents.
#include "Arbeitsordner.h"
#include "Gesetz.h"
#include "Positionslauf.h"
#include "Textmutation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Names of types differ from input to input, so each gets an empty folder.
  const lintavo::fuzz::Arbeitsordner ordner;
  lintavo::fuzz::Fordere(lintavo::fuzz::PruefePosition(
      lintavo::fuzz::AlsText(data, size), ordner.Pfad(""), static_cast<int>(size % 3)));
  return 0;
}
