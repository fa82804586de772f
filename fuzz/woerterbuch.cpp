// Prints the dictionary of the targets: the texts that files are written and
// read with, each as a section header and as the start of an entry, and words of
// the values. The string table is its source, so the two cannot drift apart.
#include <cstdio>
#include <string>

#include "lintavo/resources/StringTable.h"

namespace {

// Messages are told from names by their blank before "!" and their "%s".
bool IstName(const std::string& text) {
  return !text.empty() && text.find_first_of("%!\n") == std::string::npos;
}

void Drucke(const std::string& text) {
  std::putchar('"');
  for (const char c : text) {
    if (c == '"' || c == '\\') std::putchar('\\');
    std::putchar(c);
  }
  std::puts("\"");
}

}  // namespace

int main() {
  constexpr int kHoechsteNummer = 1000;
  for (int id = 0; id <= kHoechsteNummer; ++id) {
    const std::string text(lintavo::LoadText(id).View());
    if (!IstName(text)) continue;
    Drucke("[" + text);
    Drucke(text + "=");
    Drucke(text + "1");
  }
  for (const char* word :
       {"]",      "=",          ",",           "[Fluegel2]", "Beschlag1=", "nan", "inf", "1e308",
        "-1e308", "2147483647", "-2147483648", "0.000001",   "In",         "Au",  "Fe",  "DK",
        "HSK",    "Li",         "Re",          "Ob",         "Un",         "00"}) {
    Drucke(word);
  }
  return 0;
}
