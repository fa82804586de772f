// Text from a window's file, made fit to be shown, and lengths as text.
#pragma once

#include <string>
#include <string_view>

#include "lintavo/drawing/Export.h"

namespace lintavo::drawing {

/// One line of UTF-8 for tables, pictures and messages. Macro files hold bytes
/// of unstated encoding: what is valid UTF-8 is taken as such, everything else
/// as Windows-1252, whose five unassigned bytes become U+FFFD. Each run of
/// control characters becomes one blank, so no text can steer a terminal.
LINTAVO_DRAWING_API std::string ToDisplayText(std::string_view bytes);

/// The same for the first `length` bytes of one of the façade's text buffers.
/// A text that fills its buffer may have been cut inside a UTF-8 character;
/// such a rest is dropped instead of turning the text into Windows-1252.
LINTAVO_DRAWING_API std::string ToDisplayText(const char (&buffer)[256], long length);

/// A length as a reader likes it: at most three decimals, no trailing zeros, "."
/// under every locale. Beyond 1e15, where decimals say nothing, in exponent form.
LINTAVO_DRAWING_API std::string LengthText(double length);

}  // namespace lintavo::drawing
