// The forms that a macro file's lines are kept in.
#include "MacroText.h"

#include <algorithm>

#include <zlib.h>

#include "Errors.h"

namespace lintavo::tools {
namespace {

// What a plain file holds of a line; a longer one is read in pieces.
constexpr std::size_t kPlainLineMax = 255;
// As many as the library itself reads.
constexpr std::size_t kLinesMax = 1'000'000;
constexpr char kBufferEnd = '#';
constexpr char kCompressedEnd = '\r';
constexpr std::string_view kBlanks = " \t\n\v\f\r";

// The first two bytes of a zlib stream: deflate, and a sum that fits.
bool IsZlib(std::string_view bytes) {
  if (bytes.size() < 2) return false;
  const auto first = static_cast<unsigned char>(bytes[0]);
  const auto second = static_cast<unsigned char>(bytes[1]);
  return (first & 0x0F) == Z_DEFLATED && (first * 256 + second) % 31 == 0;
}

std::string Inflated(std::string_view bytes) {
  const std::string_view counting = bytes.substr(0, kCompressedMax);
  std::string text(kCompressedMax, '\0');
  auto length = static_cast<uLongf>(text.size());
  const int result = uncompress(reinterpret_cast<Bytef*>(text.data()), &length,
                                reinterpret_cast<const Bytef*>(counting.data()),
                                static_cast<uLong>(counting.size()));
  const std::string limit = std::to_string(kCompressedMax);
  if (result == Z_BUF_ERROR && length == kCompressedMax) {
    throw CommandError("the compressed text is longer than the " + limit +
                       " bytes that are read of it");
  }
  if (result != Z_OK && bytes.size() > kCompressedMax) {
    throw CommandError("only " + limit + " of the " + std::to_string(bytes.size()) +
                       " bytes of a compressed file are read");
  }
  if (result != Z_OK) throw CommandError("the compressed file is damaged");
  text.resize(length);
  return text;
}

void Add(std::string_view line, std::vector<std::string>& lines) {
  if (lines.size() == kLinesMax) {
    throw CommandError("there are more than " + std::to_string(kLinesMax) + " lines");
  }
  lines.emplace_back(line);
}

std::vector<std::string> LinesEndedBy(char end, std::string_view text) {
  std::vector<std::string> lines;
  std::string line;
  for (const char c : text) {
    if (c == '\n') continue;
    if (c != end) {
      line += c;
      continue;
    }
    Add(line, lines);
    line.clear();
  }
  if (!line.empty()) throw CommandError("the last line has no end and is not read: " + line);
  return lines;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

// Pieces of a limited length, without blanks at their ends and without what follows
// a zero byte.
std::vector<std::string> PlainLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.substr(0, kPlainLineMax).find('\n');
    const std::size_t length =
        end == std::string_view::npos ? std::min(text.size(), kPlainLineMax) : end + 1;
    const std::string_view piece = text.substr(0, length);
    const std::string_view line = Trimmed(piece.substr(0, piece.find('\0')));
    if (!line.empty()) Add(line, lines);
    text.remove_prefix(length);
  }
  return lines;
}

std::string PlainBytes(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].size() > kPlainLineMax) {
      throw CommandError("line " + std::to_string(i + 1) + " has " +
                         std::to_string(lines[i].size()) + " bytes; a plain file's lines have " +
                         std::to_string(kPlainLineMax) + " at most");
    }
    if (lines[i].empty()) continue;
    if (!text.empty() && lines[i].starts_with('[')) text += '\n';
    text += lines[i] + '\n';
  }
  return text;
}

std::string BufferBytes(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (line.find(kBufferEnd) != std::string::npos) {
      throw CommandError("a buffer's lines end with '#', so none can hold it: " + line);
    }
    text += line + kBufferEnd;
  }
  return text;
}

std::string CompressedBytes(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  const std::string limit = std::to_string(kCompressedMax);
  if (text.size() > kCompressedMax) {
    throw CommandError("the text has " + std::to_string(text.size()) +
                       " bytes; a compressed file holds " + limit + " at most");
  }
  auto length = compressBound(static_cast<uLong>(text.size()));
  std::string bytes(length, '\0');
  if (compress2(reinterpret_cast<Bytef*>(bytes.data()), &length,
                reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()),
                Z_BEST_COMPRESSION) != Z_OK) {
    throw CommandError("the text cannot be compressed");
  }
  bytes.resize(length);
  if (bytes.size() > kCompressedMax) {
    throw CommandError("compressed it has " + std::to_string(bytes.size()) +
                       " bytes; a compressed file has " + limit + " at most");
  }
  return bytes;
}

}  // namespace

bool IsBuffer(std::string_view bytes) {
  const std::string_view line = bytes.substr(0, bytes.find('\n'));
  return line.starts_with('[') && line.find("]#") != std::string_view::npos;
}

MacroForm FormOf(std::string_view bytes) {
  if (IsZlib(bytes)) return MacroForm::kCompressed;
  return IsBuffer(bytes) ? MacroForm::kBuffer : MacroForm::kPlain;
}

std::vector<std::string> LinesOf(std::string_view bytes, MacroForm form) {
  switch (form) {
    case MacroForm::kPlain:
      break;
    case MacroForm::kCompressed:
      return LinesEndedBy(kCompressedEnd, Inflated(bytes));
    case MacroForm::kBuffer:
      return LinesEndedBy(kBufferEnd, bytes);
  }
  return PlainLines(bytes);
}

std::string BytesOf(const std::vector<std::string>& lines, MacroForm form) {
  switch (form) {
    case MacroForm::kPlain:
      break;
    case MacroForm::kCompressed:
      return CompressedBytes(lines);
    case MacroForm::kBuffer:
      return BufferBytes(lines);
  }
  return PlainBytes(lines);
}

}  // namespace lintavo::tools
