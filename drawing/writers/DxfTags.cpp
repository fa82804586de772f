// The tags of a DXF file.
#include <cstddef>
#include <cstdio>

#include "lintavo/drawing/Text.h"

#include "scene/Utf8_intern.h"
#include "writers/DxfTags_intern.h"
#include "writers/Writers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr int kDecimals = 6;
constexpr std::size_t kLongestValue = 250;

// "\U+00E4"; characters beyond four digits become a question mark.
std::string Escaped(char32_t character) {
  if (character > 0xFFFF) return "?";
  char text[16];
  std::snprintf(text, sizeof text, "\\U+%04X", static_cast<unsigned int>(character));
  return text;
}

bool Begins(std::string_view text, std::size_t i, std::string_view what) {
  return text.substr(i, what.size()) == what;
}

// One character, as a CAD program reads it as that character.
std::string ToDxf(char32_t character, std::string_view text, std::size_t next) {
  // "\U+" and "\M+" begin escapes, a doubled "%" a control code, "^" a control character.
  if (character == '\\' && (Begins(text, next, "U+") || Begins(text, next, "M+"))) {
    return Escaped(character);
  }
  const bool doubled = Begins(text, next, "%") || (next >= 2 && text[next - 2] == '%');
  if (character == '%' && doubled) return "%%%";
  if (character == '^') return "^ ";
  char byte = 0;
  return ToWindows1252(character, byte) ? std::string(1, byte) : Escaped(character);
}

}  // namespace

void DxfTags::Add(int code, std::string_view value) {
  const std::string number = std::to_string(code);
  text_.append(number.size() < 3 ? 3 - number.size() : 0, ' ');
  text_.append(number).append(kLineEnd).append(value).append(kLineEnd);
}

void DxfTags::Add(int code, long value) {
  Add(code, std::string_view(std::to_string(value)));
}

void DxfTags::Add(int code, double value) {
  std::string number;
  AppendNumber(value, kDecimals, number);
  if (number.find('.') == std::string::npos) number += ".0";
  Add(code, std::string_view(number));
}

void DxfTags::AddPoint(int index, const Point& point) {
  Add(10 + index, point.x);
  Add(20 + index, point.y);
  Add(30 + index, 0.0);
}

std::string ToDxfText(std::string_view text) {
  const std::string clean = ToDisplayText(text);
  std::string dxf;
  for (std::size_t i = 0; i < clean.size();) {
    char32_t character = 0;
    if (!DecodeUtf8(clean, i, character)) break;
    const std::string piece = ToDxf(character, clean, i);
    if (dxf.size() + piece.size() > kLongestValue) break;
    dxf += piece;
  }
  return dxf;
}

}  // namespace lintavo::drawing
