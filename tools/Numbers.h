// Numbers on the command line and in tables, the same under every locale.
#pragma once

#include <string>
#include <string_view>

namespace lintavo::tools {

/// A length as a reader likes it: at most three decimals, no trailing zeros.
/// Beyond 1e15, where decimals say nothing, in exponent form.
std::string LengthText(double length);

/// Reads a plain decimal number with "." that is finite and greater than zero.
/// False, leaving `length` as it is, for anything else.
bool ParseLength(std::string_view text, double& length);

/// Reads "WIDTHxHEIGHT", two lengths joined by "x" or "X".
bool ParseSize(std::string_view text, double& width, double& height);

}  // namespace lintavo::tools
