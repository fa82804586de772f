// The forms that a macro file's lines are kept in: plain, compressed, and the buffer
// in which "#" ends a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lintavo::tools {

enum class MacroForm { kPlain, kCompressed, kBuffer };

/// Bytes of a compressed file and of its text that the format lets count.
inline constexpr std::size_t kCompressedMax = 10000;

/// Whether a file's content is a buffer: its first line goes on behind a header's "]".
bool IsBuffer(std::string_view bytes);

/// The form that a file's content shows.
MacroForm FormOf(std::string_view bytes);

/// The lines as the library reads them. Throws `CommandError`, which says what would be
/// lost, for a compressed stream that is damaged or cut off by the format's limits, and
/// for a last line without its end where that is not read.
std::vector<std::string> LinesOf(std::string_view bytes, MacroForm form);

/// The lines in a form. Throws `CommandError`, which says why, when it cannot hold them.
std::string BytesOf(const std::vector<std::string>& lines, MacroForm form);

}  // namespace lintavo::tools
