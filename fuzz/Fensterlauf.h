// One walk over a window as hosts take it: read, ask everything, fit, calculate,
// write, read again, copy. The fuzz targets and the test of hostile files share it.
#pragma once

#include <string>
#include <string_view>

class CFeApi;

namespace lintavo::fuzz {

/// Takes the walk over a window that was just read (whether or not that went
/// well), through every member of the façade, indices out of range included.
///
/// What must hold for any input that calculates well is checked on the way:
/// outlines are finite; calculating again changes nothing; a copy gives the same
/// bytes; what was written, read and written again does not change any more.
/// Rounding to the file's six decimals is allowed for.
///
/// Changed windows, too, are calculated and checked: fitted into an opening, into
/// one with reveals, and given slender parts. `aenderung` 0, 1 or 2 is one of
/// these alone, to save time; any other number all three.
///
/// @return the first law that is broken, in words; empty when all hold.
std::string PruefeFenster(CFeApi& fenster, int aenderung = -1);

/// The same walk for the text of a plain macro file, whose lines end in LF, read
/// as a buffer.
std::string PruefeMakroText(std::string_view text, int aenderung = -1);

/// Reads the same text into the model and uses what the façade does not offer:
/// mullions set automatically, the compacted grid, drawings, and the blank
/// parameter form, for which files are written beside `path`.
std::string PruefeModell(std::string_view text, const std::string& path);

}  // namespace lintavo::fuzz
