#include <random>
#include <string>

#include "lintavo/ini/CIniFile.h"

#include "Results.h"

namespace lintavo::bench {
namespace {

constexpr int kDocuments = 800;
constexpr int kQuestions = 60;

using Random = std::mt19937;

// Few names, in either case and with their parts in common, so that sections and
// keys repeat and almost match.
CString SectionName(Random& random) {
  constexpr const char* kNames[] = {"A", "a", "AB", "B", "Ärger", "ärger", "", " C", "Nie"};
  return kNames[random() % std::size(kNames)];
}

CString KeyName(Random& random) {
  constexpr const char* kNames[] = {"x", "X", "x1", "Höhe", "höhe", "y", "", "nie"};
  return kNames[random() % std::size(kNames)];
}

CString Value(Random& random) {
  constexpr const char* kValues[] = {"1", "2.5,3", " 7 ", "", "text", ",4,,5", "1e400", "=1", "-0"};
  return kValues[random() % std::size(kValues)];
}

CIniFile RandomDocument(Random& random) {
  CIniFile document;
  const std::size_t lines = random() % 30U;
  for (std::size_t i = 0; i < lines; ++i) {
    if (random() % 4U == 0) {
      document.AddLine("[" + SectionName(random) + "]");
    } else {
      const CString key = KeyName(random);
      document.AddLine(key + "=" + Value(random));
    }
  }
  return document;
}

void Ask(CIniFile& document, Random& random) {
  CString section = SectionName(random);
  const CString key = KeyName(random);
  CString text;
  double numbers[4];
  long count = -1;
  switch (random() % 8U) {
    case 0:
      std::printf("set %d\n", document.SetString(section, key, Value(random)));
      return;
    case 1:
      std::printf("section %ld\n", document.FindSection(section));
      return;
    case 2:
    case 3:
    case 4:
      std::printf("text %d", document.GetString(section, key, text));
      std::printf(" %s\n", static_cast<const char*>(text));
      return;
    default:
      std::printf("numbers %d", document.GetDoubles(section, key, 4, numbers, &count));
      std::printf(" %ld", count);
      for (const double number : numbers) std::printf(" %a", number);
      std::printf("\n");
  }
}

}  // namespace

void PrintDocuments() {
  std::printf("== documents\n");
  Random random(4711);
  for (int i = 0; i < kDocuments; ++i) {
    CIniFile document = RandomDocument(random);
    for (int n = 0; n < kQuestions; ++n) Ask(document, random);
    for (const CString& line : document.GetLines()) {
      std::printf("%s\n", static_cast<const char*>(line));
    }
  }
}

}  // namespace lintavo::bench
