// Text from a window's file, made fit to be shown: UTF-8 or Windows-1252; lengths.
#include "lintavo/drawing/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

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

// Length of the UTF-8 character that a byte begins, 0 when it begins none.
std::size_t LengthFromLead(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// Decodes the character at `i` and moves `i` behind it. False for anything that
// is no well-formed UTF-8, overlong forms and surrogates included.
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

bool IsUtf8(std::string_view text) {
  char32_t character = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (!DecodeUtf8(text, i, character)) return false;
  }
  return true;
}

char32_t FromWindows1252(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
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

bool IsControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

// The text without an unfinished UTF-8 character at its end.
std::string_view WithoutCutCharacter(std::string_view text) {
  std::size_t start = text.size();
  for (int k = 0; k < 3 && start > 0; ++k) {
    --start;
    if ((ByteAt(text, start) & 0xC0) != 0x80) break;
  }
  if (start < text.size() && LengthFromLead(ByteAt(text, start)) > text.size() - start) {
    return text.substr(0, start);
  }
  return text;
}

constexpr double kLargestPlain = 1e15;
constexpr int kDecimals = 3;

std::string WithoutTrailingZeros(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace

std::string ToDisplayText(std::string_view bytes) {
  const bool utf8 = IsUtf8(bytes);
  std::string out;
  out.reserve(bytes.size());
  bool inControls = false;
  for (std::size_t i = 0; i < bytes.size();) {
    char32_t character = 0;
    if (!utf8) {
      character = FromWindows1252(ByteAt(bytes, i++));
    } else if (!DecodeUtf8(bytes, i, character)) {
      break;
    }
    const bool control = IsControl(character);
    if (!control) AppendUtf8(out, character);
    if (control && !inControls) out += ' ';
    inControls = control;
  }
  return out;
}

std::string ToDisplayText(const char (&buffer)[256], long length) {
  const long used = std::clamp(length, 0L, 256L);
  const std::string_view text(buffer, static_cast<std::size_t>(used));
  if (used < 256) return ToDisplayText(text);
  const std::string_view whole = WithoutCutCharacter(text);
  return ToDisplayText(IsUtf8(whole) ? whole : text);
}

std::string LengthText(double length) {
  char buffer[64];
  if (!(std::abs(length) < kLargestPlain)) {
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, length).ptr;
    return std::string(buffer, end);
  }
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, length, std::chars_format::fixed, kDecimals)
          .ptr;
  return WithoutTrailingZeros(std::string(buffer, end));
}

}  // namespace lintavo::drawing
