// Target: the document alone: a file, then reads, look-ups and insertions in any
// order, as the bytes of the input say.
#include <cmath>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "lintavo/ini/CExIniFile.h"
#include "lintavo/resources/StringTable.h"

#include "Arbeitsordner.h"
#include "Gesetz.h"

namespace {

using lintavo::fuzz::Fordere;

constexpr double kRundung = 5.1e-7;
constexpr double kGenau = 1e8;  // up to here six decimals are kept
constexpr int kOperationen = 13;

CString Wort(FuzzedDataProvider& bytes) {
  switch (bytes.ConsumeIntegralInRange<int>(0, 3)) {
    case 0:
      return CString(std::string_view(bytes.ConsumeRandomLengthString(40)));
    case 1:
      return lintavo::NumberedName(lintavo::StringId::Fluegel, bytes.ConsumeIntegral<long>());
    default:
      return lintavo::LoadText(bytes.ConsumeIntegralInRange<int>(0, 100));
  }
}

// A name without white space at its ends and without signs of the format.
bool IstName(const CString& name) {
  const std::string_view text = name.View();
  return !text.empty() && static_cast<unsigned char>(text.front()) > ' ' &&
         static_cast<unsigned char>(text.back()) > ' ' &&
         text.find_first_of(std::string_view("[]=\r\n\0", 6)) == std::string_view::npos;
}

void Lies(FuzzedDataProvider& bytes, CExIniFile& document, int operation) {
  const CString section = Wort(bytes);
  const CString key = Wort(bytes);
  CString text;
  double v = 0.0;
  float f = 0.0F;
  long n = 0;
  bool b = false;
  LOGFONT font;
  std::vector<double> list(bytes.ConsumeIntegralInRange<std::size_t>(0, 20));
  switch (operation) {
    case 0:
      Fordere(document.FindSection(section) < static_cast<long>(document.GetLines().size()),
              "a section lies in the document");
      break;
    case 1:
      Fordere(document.GetString(section, key, text) == 0 || !text.IsEmpty(),
              "an empty value counts as missing");
      break;
    case 2:
      document.GetDouble(section, key, v);
      document.GetFloat(section, key, f);
      break;
    case 3:
      document.GetLong(section, key, n);
      document.GetBool(section, key, b);
      break;
    case 4:
      document.GetDoubles(section, key, static_cast<long>(list.size()), list.data(), &n);
      Fordere(n >= 0 && n <= static_cast<long>(list.size()), "a list is as long as asked at most");
      break;
    default:
      document.GetLogFont(section, key, font);
  }
}

void Schreibe(FuzzedDataProvider& bytes, CExIniFile& document, int operation) {
  CString section = Wort(bytes);
  const CString key = Wort(bytes);
  const double v = bytes.ConsumeFloatingPoint<double>();
  const double list[3] = {v, bytes.ConsumeFloatingPoint<double>(), 0.5};
  switch (operation) {
    case 6:
      document.SetString(section, key, Wort(bytes));
      break;
    case 7:
      document.SetDouble(section, key, v);
      document.SetFloat(section, key, static_cast<float>(std::fmod(v, 1e30)));
      break;
    case 8:
      document.SetLong(section, key, bytes.ConsumeIntegral<long>());
      document.SetBool(section, key, bytes.ConsumeBool());
      break;
    case 9:
      document.SetDoubles(section, key, bytes.ConsumeIntegralInRange<long>(-1, 3), list);
      break;
    case 10:
      document.SetLogFont(section, key, LOGFONT{});
      break;
    default:
      document.AddLine(Wort(bytes));
  }
}

// A number that is stored in a fresh document comes back.
void PruefeZahl(FuzzedDataProvider& bytes) {
  CString section = Wort(bytes);
  const CString key = Wort(bytes);
  const double v = bytes.ConsumeFloatingPoint<double>();
  if (!IstName(section) || !IstName(key)) return;
  CIniFile document;
  document.SetDouble(section, key, v);
  double back = 0.0;
  Fordere(document.GetDouble(section, key, back) == 1, "a stored number is found");
  const double tolerance = std::fabs(v) < kGenau ? kRundung : std::fabs(v) * 1e-14;
  Fordere(!std::isfinite(v) || std::fabs(back - v) <= tolerance, "a stored number comes back");
}

// What was read once stays as it is through every further writing and reading.
void PruefeDatei(const CIniFile& document, const lintavo::fuzz::Arbeitsordner& ordner) {
  const std::string path = ordner.Pfad("wieder.ini");
  Fordere(document.Write(path.c_str()) == 1, "a document can be written");
  CIniFile again;
  Fordere(again.Read(path.c_str()) == 1, "a written document can be read");
  Fordere(again.Write(path.c_str()) == 1, "a document can be written");
  CIniFile third;
  third.Read(path.c_str());
  Fordere(again.GetLines() == third.GetLines(), "a document that was read stays the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lintavo::fuzz::Arbeitsordner ordner;
  CExIniFile document;
  document.Read(ordner.Datei("dokument.ini", data, size).c_str());
  PruefeDatei(document, ordner);
  // The operations are at the end of the input, which the provider takes first.
  FuzzedDataProvider bytes(data, size);
  for (int n = 0; n < 60 && bytes.remaining_bytes() > 0; ++n) {
    const int operation = bytes.ConsumeIntegralInRange<int>(0, kOperationen - 1);
    if (operation < 6) {
      Lies(bytes, document, operation);
    } else if (operation == kOperationen - 1) {
      PruefeZahl(bytes);
    } else {
      Schreibe(bytes, document, operation);
    }
  }
  PruefeDatei(document, ordner);
  return 0;
}
