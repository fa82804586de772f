// What the tests ask of a picture: its size, and for SVG its form and content.
#include "support/PictureFile.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include <expat.h>

namespace lintavo::testing {
namespace {

const char* Attribute(const XML_Char** attributes, const char* name) {
  for (int i = 0; attributes[i] != nullptr; i += 2) {
    if (std::strcmp(attributes[i], name) == 0) return attributes[i + 1];
  }
  return "";
}

bool IsDashed(const XML_Char** attributes) {
  return std::strstr(Attribute(attributes, "style"), "stroke-dasharray") != nullptr ||
         *Attribute(attributes, "stroke-dasharray") != '\0';
}

void Widen(double x, double y, SvgFile& svg) {
  svg.left = std::min(svg.left, x);
  svg.right = std::max(svg.right, x);
  svg.top = std::min(svg.top, y);
  svg.bottom = std::max(svg.bottom, y);
}

// Paths are letters for the commands and pairs of numbers.
void ReadPath(const char* text, SvgFile& svg) {
  double pair[2];
  int count = 0;
  while (*text != '\0') {
    char* end = nullptr;
    pair[count] = std::strtod(text, &end);
    if (end == text) {
      ++text;
      continue;
    }
    text = end;
    if (++count < 2) continue;
    Widen(pair[0], pair[1], svg);
    count = 0;
  }
}

void OnElement(void* data, const XML_Char* name, const XML_Char** attributes) {
  SvgFile& svg = *static_cast<SvgFile*>(data);
  if (svg.root.empty()) {
    svg.root = name;
    svg.viewBox = Attribute(attributes, "viewBox");
  }
  if (std::strcmp(name, "path") != 0) return;
  ++svg.paths;
  if (IsDashed(attributes)) ++svg.dashed;
  ReadPath(Attribute(attributes, "d"), svg);
}

unsigned BigEndianAt(const std::string& bytes, std::size_t i) {
  unsigned value = 0;
  for (std::size_t k = 0; k < 4; ++k) {
    value = (value << 8) | static_cast<unsigned char>(bytes[i + k]);
  }
  return value;
}

}  // namespace

SvgFile ParseSvg(const std::string& text) {
  SvgFile svg;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &svg);
  XML_SetElementHandler(parser, OnElement, nullptr);
  svg.wellFormed =
      XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
  XML_ParserFree(parser);
  return svg;
}

std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

PngSize ParsePng(const std::string& bytes) {
  static const std::string kSignature("\x89PNG\r\n\x1a\n", 8);
  constexpr std::size_t kHeaderEnd = 24;
  if (bytes.size() < kHeaderEnd || bytes.compare(0, 8, kSignature) != 0) return {};
  return {BigEndianAt(bytes, 16), BigEndianAt(bytes, 20)};
}

}  // namespace lintavo::testing
