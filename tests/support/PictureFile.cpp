// What the tests ask of a picture: its size, and for SVG its form and paths.
#include "support/PictureFile.h"

#include <cstring>
#include <fstream>
#include <iterator>

#include <expat.h>

namespace lintavo::testing {
namespace {

void OnElement(void* data, const XML_Char* name, const XML_Char** attributes) {
  auto* svg = static_cast<SvgFile*>(data);
  if (svg->root.empty()) {
    svg->root = name;
    for (int i = 0; attributes[i] != nullptr; i += 2) {
      if (std::strcmp(attributes[i], "viewBox") == 0) svg->viewBox = attributes[i + 1];
    }
  }
  if (std::strcmp(name, "path") == 0) ++svg->paths;
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
