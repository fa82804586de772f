// Every limit that the library sets to its input, in one place: what a file format has
// room for, and what no drawing needs and only costs time and memory. Distances below
// which things are one are in geom/Toleranzen.h, with the greatest coordinate.
#pragma once

#include <cstddef>

namespace lintavo {

// --- part of the formats: what lies beyond is not read ------------------------------

/// Bytes of a line. A longer one arrives in pieces, each a line of its own, since the
/// format's line buffer has 256 bytes with its zero.
inline constexpr std::size_t kMaxZeile = 255;
/// Bytes of a compressed file, and of the text that they inflate to.
inline constexpr long kMaxKomprimiert = 10000;
/// Running numbers of axes in each direction, besides the axis 0; of sashes; of
/// dimensions. A window of 49 sashes is larger than any wall.
inline constexpr long kMaxAchsen = 49;
inline constexpr long kMaxFluegel = 49;
inline constexpr long kMaxMasze = 49;
/// Running numbers of frame parts in a section of a macro file: a round window of 32
/// sides, three times over.
inline constexpr long kMaxRahmenteile = 101;
/// Running numbers of bars, of extra parts, mullions and transoms, and of fittings in a
/// section of a macro file.
inline constexpr long kMaxTeile = 199;
/// Running numbers of the lines of a pattern.
inline constexpr long kMaxBildsprossen = 999;
/// Running numbers of extra parts, and of patterns per sash, in a parameter file.
inline constexpr long kMaxParameter = 999;
/// Running numbers of materials of one kind.
inline constexpr long kMaxMaterialien = 9999;

// --- protection: what asks for more gets less, or an answer that there is none -------

/// Bytes of a document; of anything longer, an endless device for one, it would only fill
/// the memory. Files of windows have a thousandth of that.
inline constexpr std::size_t kMaxDatei = std::size_t{64} << 20;
/// Lines of a document: short ones take several times as much memory as bytes. A file of
/// 9,999 materials of each kind has a third of that, one of a window a hundredth.
inline constexpr std::size_t kMaxZeilen = 1'000'000;
/// Slats of a filling, from below. A shutter has a tenth of that; a file may ask for any
/// number by a width near 0.
inline constexpr long kMaxLamellen = 1000;
/// Lines that all patterns of a position may have together, each counted as often as it
/// is named; real ones have a hundredth of that. Beyond, a position is refused.
inline constexpr std::size_t kMaxBildzeilen = 20'000;
/// Passes in which ends of mullions and transoms are cut back until they rest, for bars
/// that are piled on each other. Real windows need one or two.
inline constexpr int kMaxSchnittgaenge = 50;
/// Visible pieces of edges in one view. A view of 49 sashes with twenty bars each way has
/// three quarters of that; slats behind bars ask for millions. Beyond, there is no view.
inline constexpr std::size_t kMaxBildkanten = 100'000;
/// Vertices that a polygon may be given at once by their number.
inline constexpr int kMaxEcken = 1'000'000;
/// Touching pairs of edges that areas are reckoned with; beyond, there is no result, so
/// that no operation takes more than about a second.
inline constexpr std::size_t kMaxBeruehrungen = 300'000;
/// Crossings that are cut one by one when outlines are united; beyond, they are left to
/// the clipping library, which is faster then.
inline constexpr std::size_t kMaxSchnittpaare = 20'000;
/// Corners of an area whose narrow passages are closed, which takes their square.
inline constexpr std::size_t kMaxEngstellenEcken = 2000;
/// Depth to which folders are searched: a longer path could not be handed out.
inline constexpr int kMaxOrdnertiefe = 100;

}  // namespace lintavo
