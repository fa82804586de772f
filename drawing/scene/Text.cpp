// Text from a window's file, made fit to be shown: UTF-8 or Windows-1252; lengths.
#include "lintavo/drawing/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "scene/Utf8_intern.h"

namespace lintavo::drawing {
namespace {

unsigned char ByteAt(std::string_view text, std::size_t i) {
  return static_cast<unsigned char>(text[i]);
}

bool IsUtf8(std::string_view text) {
  char32_t character = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (!DecodeUtf8(text, i, character)) return false;
  }
  return true;
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
