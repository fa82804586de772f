// Characters of UTF-8 and Windows-1252 text.
#include "scene/Utf8_intern.h"

namespace lintavo::drawing {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Windows-1252 differs from Latin-1 in these 32 places only.
constexpr char32_t kWindows1252[32] = {
    0x20AC,       kReplacement, 0x201A, 0x0192, 0x201E, 0x2026,       0x2020, 0x2021,
    0x02C6,       0x2030,       0x0160, 0x2039, 0x0152, kReplacement, 0x017D, kReplacement,
    kReplacement, 0x2018,       0x2019, 0x201C, 0x201D, 0x2022,       0x2013, 0x2014,
    0x02DC,       0x2122,       0x0161, 0x203A, 0x0153, kReplacement, 0x017E, 0x0178};

unsigned char ByteAt(std::string_view text, std::size_t i) {
  return static_cast<unsigned char>(text[i]);
}

}  // namespace

std::size_t LengthFromLead(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool DecodeUtf8(std::string_view text, std::size_t& i, char32_t& character) {
  const unsigned char lead = ByteAt(text, i);
  const std::size_t length = LengthFromLead(lead);
  if (length == 0 || length > text.size() - i) return false;
  character = length == 1 ? lead : lead & (0x7Fu >> length);
  for (std::size_t k = 1; k < length; ++k) {
    const unsigned char next = ByteAt(text, i + k);
    if ((next & 0xC0) != 0x80) return false;
    character = (character << 6) | (next & 0x3Fu);
  }
  constexpr char32_t kSmallest[5] = {0, 0, 0x80, 0x800, 0x10000};
  if (character < kSmallest[length] || character > 0x10FFFF) return false;
  if (character >= 0xD800 && character <= 0xDFFF) return false;
  i += length;
  return true;
}

void AppendUtf8(std::string& out, char32_t character) {
  const auto tail = [&](int shift) {
    out += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
  };
  if (character < 0x80) {
    out += static_cast<char>(character);
  } else if (character < 0x800) {
    out += static_cast<char>(0xC0 | (character >> 6));
    tail(0);
  } else if (character < 0x10000) {
    out += static_cast<char>(0xE0 | (character >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | (character >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

char32_t FromWindows1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
}

bool ToWindows1252(char32_t character, char& byte) {
  for (unsigned int i = 1; i < 256; ++i) {
    const auto candidate = static_cast<unsigned char>(i);
    if (character == kReplacement || FromWindows1252(candidate) != character) continue;
    byte = static_cast<char>(candidate);
    return true;
  }
  return false;
}

}  // namespace lintavo::drawing
