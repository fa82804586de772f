// The document: reading and writing files, finding sections and entries. Its
// typed values are in CIniFile_Werte.cpp.
#include "lintavo/ini/CIniFile.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>

#include "lintavo/platform/CaseFold_intern.h"
#include "lintavo/platform/Files_intern.h"
#include "lintavo/platform/Grenzen_intern.h"
#include "lintavo/platform/SaveFile.h"
#include "lintavo/platform/Whitespace_intern.h"

namespace {

constexpr std::size_t kBlockLength = 16384;

bool IsHeader(std::string_view line) {
  return !line.empty() && line.front() == '[';
}

// "[" + name + "]" without forming it.
bool IsHeaderOf(std::string_view line, std::string_view name) {
  return line.size() == name.size() + 2 && line.front() == '[' && line.back() == ']' &&
         lintavo::EqualNoCase(line.substr(1, name.size()), name);
}

// key + "=" at the beginning of the line, without forming it.
bool IsEntryOf(std::string_view line, std::string_view key) {
  return line.size() > key.size() && line[key.size()] == '=' &&
         lintavo::StartsWithNoCase(line, key);
}

// A text as part of a line: what would end the line, or the text in it, becomes a blank.
CString OneLine(const CString& text) {
  std::string line(text.View());
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
  return line;
}

bool IsInsideCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// As many bytes of a line as Read takes in one piece. Bytes that are no UTF-8 are cut
// where they have to be.
std::size_t PieceLength(std::string_view line) {
  constexpr std::size_t kCharacterMax = 4;
  std::size_t length = std::min(line.size(), lintavo::kMaxZeile);
  if (length == line.size()) return length;
  while (length + kCharacterMax > lintavo::kMaxZeile && IsInsideCharacter(line[length])) --length;
  return length;
}

// Reads a file in blocks and hands it out in pieces: up to and with a line
// feed, at most kMaxZeile bytes, the rest at the end of the file.
class PieceReader {
 public:
  explicit PieceReader(std::FILE* file) : file_(file) {}

  // The next piece, valid until the next call; empty at the end of the file.
  std::string_view Next() {
    if (end_ - begin_ < lintavo::kMaxZeile) Refill();
    const char* start = block_ + begin_;
    const std::size_t rest = end_ - begin_;
    const std::size_t most = rest < lintavo::kMaxZeile ? rest : lintavo::kMaxZeile;
    const void* lineEnd = most > 0 ? std::memchr(start, '\n', most) : nullptr;
    const std::size_t length =
        lineEnd != nullptr ? static_cast<std::size_t>(static_cast<const char*>(lineEnd) - start) + 1
                           : most;
    begin_ += length;
    return {start, length};
  }

  // Whether what was handed out is less than the whole file.
  bool HasFailed() const { return failed_; }

 private:
  // Moves what is left to the front and fills up behind it.
  void Refill() {
    if (atEnd_) return;
    std::memmove(block_, block_ + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    const std::size_t wanted = kBlockLength - end_;
    const std::size_t read = std::fread(block_ + end_, 1, wanted, file_);
    end_ += read;
    total_ += read;
    failed_ = total_ > lintavo::kMaxDatei || std::ferror(file_) != 0;
    atEnd_ = failed_ || read < wanted;
  }

  std::FILE* file_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t total_ = 0;
  bool atEnd_ = false;
  bool failed_ = false;
  char block_[kBlockLength] = {};
};

}  // namespace

CIniFile::~CIniFile() = default;

CIniFile::CIniFile(CIniFile&& other) noexcept {
  Tausche(other);
}

CIniFile& CIniFile::operator=(CIniFile&& other) noexcept {
  CIniFile neu(std::move(other));
  Tausche(neu);
  return *this;
}

// The places remembered belong to the lines.
void CIniFile::Tausche(CIniFile& other) noexcept {
  std::swap(m_Lines, other.m_Lines);
  std::swap(m_LastSectionName, other.m_LastSectionName);
  std::swap(m_LastSectionLine, other.m_LastSectionLine);
  std::swap(m_SectionEndLine, other.m_SectionEndLine);
  std::swap(m_LastEntryLine, other.m_LastEntryLine);
  std::swap(m_CntSections, other.m_CntSections);
  std::swap(m_Headers, other.m_Headers);
  std::swap(m_IsIndexed, other.m_IsIndexed);
  std::swap(m_LookedAt, other.m_LookedAt);
}

int CIniFile::Read(const CString& path) {
  const lintavo::FilePtr file = lintavo::OpenFile(path, "r");
  if (file == nullptr) return 0;
  const std::size_t linesBefore = m_Lines.size();
  const int sectionsBefore = m_CntSections;
  ForgetHeaders();
  PieceReader reader(file.get());
  for (std::string_view piece = reader.Next(); !piece.empty(); piece = reader.Next()) {
    AppendPiece(piece);
    if (m_Lines.size() > lintavo::kMaxZeilen) break;
  }
  if (!reader.HasFailed() && m_Lines.size() <= lintavo::kMaxZeilen) return 1;
  m_Lines.resize(linesBefore);
  m_CntSections = sectionsBefore;
  return 0;
}

void CIniFile::AppendPiece(std::string_view piece) {
  // A piece is a C text: it ends at a zero byte, whatever follows.
  piece = piece.substr(0, piece.find('\0'));
  const std::string_view line = lintavo::TrimmedRight(lintavo::TrimmedLeft(piece));
  if (line.empty()) return;
  if (IsHeader(line)) ++m_CntSections;
  m_Lines.emplace_back(line);
}

int CIniFile::Write(const CString& path) const {
  std::string text;
  for (const CString& line : m_Lines) {
    if (!text.empty() && IsHeader(line.View())) text += lintavo::kLineEnd;
    // Like every piece read, a line is a C text.
    text.append(static_cast<const char*>(line)).append(lintavo::kLineEnd);
  }
  return lintavo::SaveFile(path, text) ? 1 : 0;
}

void CIniFile::WriteTrace() const {
#ifndef NDEBUG
  std::fputs("--- CIniFile: 'Testausgabe' ----\n", stderr);
  for (const CString& line : m_Lines) {
    std::fputs(line, stderr);
    std::fputc('\n', stderr);
  }
#endif
}

void CIniFile::AddLine(CString line) {
  m_Lines.push_back(std::move(line));
  ForgetHeaders();
}

void CIniFile::CutLines() {
  for (CString& line : m_Lines) {
    const std::size_t length = PieceLength(line.View());
    if (length < line.View().size()) line = line.Left(static_cast<int>(length));
  }
  ForgetHeaders();
}

void CIniFile::ForgetHeaders() {
  m_Headers.clear();
  m_IsIndexed = false;
  m_LookedAt = 0;
}

std::string_view CIniFile::HeaderName(int i) const {
  const std::string_view line = Line(i);
  return line.substr(1, line.size() - 2);
}

void CIniFile::IndexHeaders() {
  std::vector<int> headers;
  for (int i = 0; i < LineCount(); ++i) {
    const std::string_view line = Line(i);
    if (line.size() >= 2 && IsHeader(line) && line.back() == ']') headers.push_back(i);
  }
  std::sort(headers.begin(), headers.end(), [this](int a, int b) {
    const int order = lintavo::CompareNoCase(HeaderName(a), HeaderName(b));
    return order != 0 ? order < 0 : a < b;
  });
  m_Headers = std::move(headers);
  m_IsIndexed = true;
}

long CIniFile::LookForHeader(std::string_view name, long from, long to) {
  for (long i = from; i < to; ++i) {
    if (!IsHeaderOf(Line(i), name)) continue;
    m_LookedAt += i - from;
    return i;
  }
  m_LookedAt += std::max(0L, to - from);
  return -1;
}

// The first header of this name at or behind a line, else the first in the document; -1
// when there is none. Sections in file order are met at once by looking through the lines.
// In any other order that would take the square of the file, so the headers are sorted
// once it has gone through the document several times.
long CIniFile::FindHeader(std::string_view name, long from) {
  constexpr long kPassesBeforeIndex = 8;
  if (!m_IsIndexed && m_LookedAt <= kPassesBeforeIndex * LineCount()) {
    const long line = LookForHeader(name, from, LineCount());
    return line >= 0 ? line : LookForHeader(name, 0, std::min(from, LineCount()));
  }
  if (!m_IsIndexed) IndexHeaders();
  const auto first = std::partition_point(m_Headers.begin(), m_Headers.end(), [&](int i) {
    return lintavo::CompareNoCase(HeaderName(i), name) < 0;
  });
  const auto end = std::partition_point(
      first, m_Headers.end(), [&](int i) { return lintavo::EqualNoCase(HeaderName(i), name); });
  if (first == end) return -1;
  const auto behind = std::lower_bound(first, end, from);
  return behind != end ? *behind : *first;
}

long CIniFile::FindSection(const CString& name) {
  if (lintavo::EqualNoCase(name.View(), m_LastSectionName.View())) return m_LastSectionLine;
  // Forward from the end of the last section, so that sections read in file
  // order are met at once; what lies before it only afterwards.
  const long line = FindHeader(name.View(), m_SectionEndLine > 1 ? m_SectionEndLine : 0);
  m_SectionEndLine = -1;
  m_LastEntryLine = -1;
  if (line >= 0) {
    m_LastSectionName = name;
    m_LastSectionLine = static_cast<int>(line);
  }
  return line;
}

// Sets the cached section end to the first header at or behind from, or to the
// last line when there is none; tells which.
bool CIniFile::FindNextHeader(long from) {
  for (long i = from; i < LineCount(); ++i) {
    if (IsHeader(Line(i))) {
      m_SectionEndLine = static_cast<int>(i);
      return true;
    }
  }
  m_SectionEndLine = static_cast<int>(LineCount() - 1);
  return false;
}

// End of a section for reading: one past the header that ends it. The header
// is inside the range, which does no harm: it is never an entry.
long CIniFile::FindSection(long from) {
  if (m_SectionEndLine >= 0) return m_SectionEndLine + 1;
  return FindNextHeader(from) ? m_SectionEndLine + 1 : LineCount();
}

// End of a section for writing. In the last section the first call gives the
// number of lines and a repeated one, from the cache, one less: meant so.
// Evened out, the entries that writers add twice would change.
long CIniFile::FindEndOfSection(long from) {
  if (m_SectionEndLine >= 0) return m_SectionEndLine;
  return FindNextHeader(from) ? m_SectionEndLine : LineCount();
}

long CIniFile::FindEntryPos(std::string_view key, long from, long to) const {
  for (long i = from; i < to; ++i) {
    if (IsEntryOf(Line(i), key)) return i;
  }
  return -1;
}

// The value of a key between two lines, leading blanks included; empty when
// there is none. The line behind the entry last found is tried first, so of
// two entries with one key the later one may answer.
std::string_view CIniFile::FindEntry(std::string_view key, long from, long to) {
  long line = m_LastEntryLine + 1;
  if (m_LastEntryLine < 0 || line >= to || !IsEntryOf(Line(line), key)) {
    line = FindEntryPos(key, from, to);
  }
  if (line < 0) return {};
  m_LastEntryLine = static_cast<int>(line);
  return Line(line).substr(key.size() + 1);
}

int CIniFile::GetString(const CString& section, const CString& key, CString& value) {
  // A missing section gives line 0: the lookup then runs over the lines before
  // the first header. Meant so; FindNumbers differs in this.
  const long start = FindSection(section) + 1;
  const long end = FindSection(start);
  const std::string_view text = lintavo::TrimmedRight(FindEntry(key.View(), start, end));
  if (text.empty()) return 0;
  value = text;
  return 1;
}

int CIniFile::SetString(CString& section, const CString& key, const CString& value) {
  section = OneLine(section);
  const CString name = OneLine(key);
  const CString line = name + "=" + OneLine(value);
  const long start = FindSection(section) + 1;
  ForgetHeaders();
  long place = 0;
  if (start < 1) {
    section.TrimLeft();
    section.TrimRight();
    m_Lines.push_back("[" + section + "]");
    m_SectionEndLine = -1;
    // The search stops at the new header itself.
    place = FindEndOfSection(LineCount() - 1) + 1;
  } else {
    const long known = FindEntryPos(name.View(), start, FindEndOfSection(start));
    if (known >= 0) {
      m_Lines[static_cast<std::size_t>(known)] = line;
      return 1;
    }
    m_SectionEndLine = -1;
    place = FindEndOfSection(start);
  }
  // The section end found stays cached although the header there moves down by
  // one: entries added later are placed by a new search anyway.
  m_Lines.insert(m_Lines.begin() + place, line);
  return 1;
}
