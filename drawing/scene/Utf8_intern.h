// Characters of UTF-8 and Windows-1252 text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lintavo::drawing {

/// Decodes the character at `i` and moves `i` behind it. False for anything that
/// is no well-formed UTF-8, overlong forms and surrogates included.
bool DecodeUtf8(std::string_view text, std::size_t& i, char32_t& character);

/// The number of bytes of the UTF-8 character that a byte begins, 0 when it begins none.
std::size_t LengthFromLead(unsigned char lead);

void AppendUtf8(std::string& out, char32_t character);

/// The character of a byte; the five unassigned ones give U+FFFD.
char32_t FromWindows1252(unsigned char byte);

/// The byte of a character; false when there is none.
bool ToWindows1252(char32_t character, char& byte);

}  // namespace lintavo::drawing
