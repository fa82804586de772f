// White space as the C library's isspace has it in the "C" locale; the host's
// locale must not decide which lines of a file are blank.
#pragma once

#include <string_view>

namespace lintavo {

constexpr bool IsSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

/// text without the white space at its beginning.
constexpr std::string_view TrimmedLeft(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  return text;
}

/// text without the white space at its end.
constexpr std::string_view TrimmedRight(std::string_view text) {
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace lintavo
