// Target: the bytes of a compressed macro file, and the same bytes as a plain one.
#include <cstring>
#include <string>

#include <zlib.h>

#include "lintavo/api/CFeApi.h"

#include "Arbeitsordner.h"
#include "Fensterlauf.h"
#include "Gesetz.h"
#include "MakroMutator.h"

namespace {

std::string Entpackt(const std::uint8_t* data, std::size_t size) {
  std::string text(20000, '\0');
  uLongf length = text.size();
  if (uncompress(reinterpret_cast<Bytef*>(text.data()), &length, data, size) != Z_OK) return {};
  text.resize(length);
  return text;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

// Mostly changes the text within a sound stream, since a change of the stream
// itself rarely gets past its checksum.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  std::string text = seed % 4 == 0 ? std::string() : Entpackt(data, size);
  if (text.empty()) return LLVMFuzzerMutate(data, size, maxSize);
  text = lintavo::fuzz::MutiereMakro(text, seed, text.size() + 4000);
  uLongf length = maxSize;
  const int result = compress2(data, &length, reinterpret_cast<const Bytef*>(text.data()),
                               text.size(), static_cast<int>(seed / 4 % 10));
  return result == Z_OK ? length : LLVMFuzzerMutate(data, size, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lintavo::fuzz::Arbeitsordner ordner;
  char name[256];
  for (const char* file : {"fenster.cqz", "fenster.aqz"}) {
    const std::string path = ordner.Datei(file, data, size);
    CFeApi::GetBezeichnungFromFile(path.c_str(), name);
    CFeApi fenster;
    if (CFeApi::IsFileCompressed(path.c_str()) != 0) {
      fenster.ReadFromCompressedFile(path.c_str());
    } else {
      fenster.ReadFromFile(path.c_str());
    }
    lintavo::fuzz::Fordere(lintavo::fuzz::PruefeFenster(fenster, static_cast<int>(size % 3)));
  }
  CFeApi::GetValidMakroFile(ordner.Pfad("").c_str(), name);
  return 0;
}
