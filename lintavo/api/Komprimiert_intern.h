// The compressed macro file, and text that ends its lines with a separator.
#pragma once

#include <string>
#include <string_view>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Grenzen_intern.h"

namespace lintavo {

/// What ends a line of the inflated text.
inline constexpr int kKomprimiertTrenner = '\r';

/// An inflated macro file. Where the stream is damaged or cut it holds what came out
/// before.
struct KomprimierterText {
  char Bytes[kMaxKomprimiert] = {};
  long lLaenge = 0;
};

/// Reads and inflates a compressed macro file; false only when the file cannot
/// be opened. Throws std::bad_alloc.
bool LiesKomprimiert(const CString& path, KomprimierterText& text);

/// Calls `visit` for every line that ends with `separator`, until it returns
/// false. Line feeds are skipped; bytes after the last separator are no line.
template <class Visit>
void JedeZeile(long length, const char* bytes, int separator, Visit visit) {
  constexpr char kZeilenvorschub = '\n';
  std::string line;
  for (long i = 0; bytes && i < length; ++i) {
    const char c = bytes[i];
    if (c == kZeilenvorschub) continue;
    if (static_cast<unsigned char>(c) != static_cast<unsigned char>(separator)) {
      line += c;
      continue;
    }
    if (!visit(std::string_view(line))) return;
    line.clear();
  }
}

}  // namespace lintavo
