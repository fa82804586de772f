// Numbers on the command line, the same under every locale.
#pragma once

#include <string_view>

namespace lintavo::tools {

/// Reads a plain, finite decimal number with ".". False, leaving `number` as it is, for
/// anything else.
bool ParseNumber(std::string_view text, double& number);

/// Reads a plain decimal number with "." that is finite and greater than zero.
/// False, leaving `length` as it is, for anything else.
bool ParseLength(std::string_view text, double& length);

/// Reads "WIDTHxHEIGHT", two lengths joined by "x" or "X".
bool ParseSize(std::string_view text, double& width, double& height);

}  // namespace lintavo::tools
