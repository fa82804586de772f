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

// What is read so far, and the elements around.
struct Reading {
  SvgFile svg;
  std::vector<SvgElement> open;
  std::string text;
};

void OnStart(void* data, const XML_Char* name, const XML_Char** attributes) {
  Reading& reading = *static_cast<Reading*>(data);
  SvgFile& svg = reading.svg;
  if (reading.open.empty()) {
    svg.root = name;
    svg.viewBox = Attribute(attributes, "viewBox");
    svg.width = Attribute(attributes, "width");
    svg.height = Attribute(attributes, "height");
  }
  SvgElement element;
  if (!reading.open.empty()) {
    element.look = reading.open.back().look;
    element.groups = reading.open.back().groups;
    const std::string& around = reading.open.back().id;
    if (!around.empty()) element.groups.push_back(around);
  }
  element.name = name;
  element.id = Attribute(attributes, "id");
  element.klass = Attribute(attributes, "class");
  if (!element.id.empty()) svg.ids.push_back(element.id);
  for (int i = 0; attributes[i] != nullptr; i += 2) element.look[attributes[i]] = attributes[i + 1];
  if (element.name == "path") ReadPath(Attribute(attributes, "d"), svg);
  reading.open.push_back(element);
  reading.text.clear();
}

void OnEnd(void* data, const XML_Char* name) {
  Reading& reading = *static_cast<Reading*>(data);
  SvgElement element = reading.open.back();
  reading.open.pop_back();
  if (std::strcmp(name, "title") == 0) reading.svg.title = reading.text;
  if (std::strcmp(name, "path") != 0 && std::strcmp(name, "text") != 0) return;
  if (element.name == "text") element.text = reading.text;
  reading.svg.elements.push_back(element);
}

void OnText(void* data, const XML_Char* text, int length) {
  static_cast<Reading*>(data)->text.append(text, static_cast<std::size_t>(length));
}

unsigned BigEndianAt(const std::string& bytes, std::size_t i) {
  unsigned value = 0;
  for (std::size_t k = 0; k < 4; ++k) {
    value = (value << 8) | static_cast<unsigned char>(bytes[i + k]);
  }
  return value;
}

}  // namespace

long SvgFile::Count(const std::string& klass) const {
  return std::count_if(elements.begin(), elements.end(), [&](const SvgElement& element) {
    return klass.empty() || element.klass == klass;
  });
}

long SvgFile::Dashed() const {
  return std::count_if(elements.begin(), elements.end(), [](const SvgElement& element) {
    const auto dashes = element.look.find("stroke-dasharray");
    return dashes != element.look.end() && dashes->second != "none";
  });
}

SvgElement SvgFile::First(const std::string& klass) const {
  for (const SvgElement& element : elements) {
    if (element.klass == klass) return element;
  }
  return {};
}

SvgFile ParseSvg(const std::string& text) {
  Reading reading;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &reading);
  XML_SetElementHandler(parser, OnStart, OnEnd);
  XML_SetCharacterDataHandler(parser, OnText);
  reading.svg.wellFormed =
      XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_OK;
  XML_ParserFree(parser);
  return reading.svg;
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
