// Checks of words on the command line, in the form that its parser takes: the empty
// text for a good word, else what is wrong with it.
#pragma once

#include <string>

namespace lintavo::tools {

/// A finite number, with "." where it has decimals.
std::string CheckNumber(const std::string& text);

/// What is wrong with a text that is no length greater than zero.
std::string NoLength(const std::string& text);

/// A length greater than zero.
std::string CheckLength(const std::string& text);

/// "WIDTHxHEIGHT".
std::string CheckSize(const std::string& text);

}  // namespace lintavo::tools
