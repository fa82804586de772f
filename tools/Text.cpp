// Text in the columns of a terminal.
#include "Text.h"

#include <algorithm>

namespace lintavo::tools {
namespace {

bool BeginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

}  // namespace

std::size_t CharacterCount(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), BeginsCharacter));
}

std::string CutTo(const std::string& utf8, std::size_t width) {
  if (CharacterCount(utf8) <= width) return utf8;
  if (width == 0) return {};
  std::size_t characters = 0;
  const auto end = std::find_if(utf8.begin(), utf8.end(), [&](char c) {
    return BeginsCharacter(c) && ++characters == width;
  });
  return std::string(utf8.begin(), end) + "\xe2\x80\xa6";
}

}  // namespace lintavo::tools
