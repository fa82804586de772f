// Comparing text without case, byte by byte and without allocation. Folded are
// the ASCII letters and the Latin-1 letters in their two-byte UTF-8 form, so
// "Flügel" equals "FLÜGEL". Every folded letter keeps its length in bytes.
#pragma once

#include <cstring>
#include <string_view>

namespace lintavo {

/// First byte of the Latin-1 letters in UTF-8. It is never a later byte of
/// another character, so looking one byte back is enough to know a letter.
inline constexpr unsigned char kLatin1Lead = 0xC3;

/// The lower-case form of byte c behind byte previous. "ß" and "ÿ" have no
/// partner among the Latin-1 letters, "×" and "÷" are none: they stay.
constexpr unsigned char LowerByte(unsigned char c, unsigned char previous) {
  if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 0x20);
  if (previous == kLatin1Lead && c >= 0x80 && c <= 0x9E && c != 0x97) {
    return static_cast<unsigned char>(c + 0x20);
  }
  return c;
}

/// The upper-case form of byte c behind byte previous.
constexpr unsigned char UpperByte(unsigned char c, unsigned char previous) {
  if (c >= 'a' && c <= 'z') return static_cast<unsigned char>(c - 0x20);
  if (previous == kLatin1Lead && c >= 0xA0 && c <= 0xBE && c != 0xB7) {
    return static_cast<unsigned char>(c - 0x20);
  }
  return c;
}

/// Below, equal to or above 0 as a sorts before, with or behind b when both
/// are written in lower case.
inline int CompareNoCase(std::string_view a, std::string_view b) {
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  unsigned char previous = 0;  // equal in both texts wherever it is the lead byte
  for (std::size_t i = 0; i < common; ++i) {
    const auto left = static_cast<unsigned char>(a[i]);
    const auto right = static_cast<unsigned char>(b[i]);
    if (left != right) {
      const int difference = LowerByte(left, previous) - LowerByte(right, previous);
      if (difference != 0) return difference;
    }
    previous = left;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

/// True when both texts differ at most in the case of their letters.
inline bool EqualNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  // Names are nearly always spelled alike: one block comparison settles those.
  return a.empty() || std::memcmp(a.data(), b.data(), a.size()) == 0 || CompareNoCase(a, b) == 0;
}

/// True when text begins with prefix, case aside. An empty prefix begins every text.
inline bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualNoCase(text.substr(0, prefix.size()), prefix);
}

}  // namespace lintavo
