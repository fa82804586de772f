// The document behind every file of the library: trimmed lines of text,
// answering for the value of a key in a section.
#pragma once

#include <string_view>
#include <vector>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

/// A document of section headers ("[name]"), entries ("key=value", no blanks
/// around the sign) and other lines, which are kept but never looked up.
///
/// Names of sections and keys are compared without case. Getters return 1 or
/// 0 and leave the output alone on 0, so that callers set a default first and
/// ignore the result; nothing throws but std::bad_alloc.
///
/// Lookups remember where they found the last section and the last entry:
/// asking, or writing into a fresh document, in file order is cheap, and a
/// document is used by one thread at a time, for reading too. A document is
/// either read or written: the places remembered are not adjusted when an
/// entry is inserted (see SetString).
class LINTAVO_API CIniFile {
 public:
  CIniFile() = default;
  CIniFile(const CIniFile&) = default;
  /// A document moved from is empty, as a new one.
  CIniFile(CIniFile&& other) noexcept;
  CIniFile& operator=(const CIniFile&) = default;
  CIniFile& operator=(CIniFile&& other) noexcept;
  virtual ~CIniFile();

  /// Appends the lines of a file: 1, or 0 when it cannot be opened or not be read
  /// to its end, is longer than 64 MiB or makes more than a million lines; nothing is appended
  /// then. Lines are trimmed at both ends and blank ones dropped. A line longer than 255 characters
  /// becomes several lines of at most 255, each trimmed; what follows a zero byte in a piece is
  /// dropped with the rest of that piece. What was there before stays, so a second file adds to the
  /// first.
  int Read(const CString& path);

  /// Writes all lines, with an empty line before each section header but one
  /// in the first line, up to a zero byte in each: 1, or 0 when the file cannot be
  /// written in full. A file that was there before is then as it was (see
  /// lintavo::SaveFile).
  int Write(const CString& path) const;

  /// Prints the document to the standard error stream in debug builds; does
  /// nothing in release builds.
  void WriteTrace() const;

  /// Index of the header line of a section, -1 when there is none. Of several
  /// headers with this name the first one behind the section last worked with
  /// counts, else the first in the document. The header must spell the name
  /// without blanks inside the brackets.
  long FindSection(const CString& name);

  /// 1 when the document holds at least one line, else 0.
  int IsReading() const { return m_Lines.empty() ? 0 : 1; }

  /// Number of header lines met by Read; headers added otherwise do not count.
  long GetCntSections() const { return m_CntSections; }

  /// The value of a key without trailing white space; an empty one counts as
  /// missing. For a section that the document lacks, the lines before the
  /// first header are looked through: entries there answer for any such name.
  int GetString(const CString& section, const CString& key, CString& value);

  /// The value of a key as a number: what leads the text as strtod reads it
  /// (point as decimal sign, the rest ignored), 0.0 for a text without a
  /// number. Unlike GetString, this and the other getters of numbers know
  /// nothing of lines before the first header, and white space is a text.
  int GetDouble(const CString& section, const CString& key, double& v);
  /// As GetDouble, rounded to a float.
  int GetFloat(const CString& section, const CString& key, float& v);
  /// As GetDouble, without its decimals, at the bounds of the type at most.
  int GetLong(const CString& section, const CString& key, long& v);
  /// As GetDouble; true when the number is above 0.99.
  int GetBool(const CString& section, const CString& key, bool& v);

  /// A list of at most n numbers separated by ",". All n outputs are set to
  /// 0.0 and the count to 0 first, in any case; count receives how many items
  /// were read. v holds n numbers; count may be null.
  int GetDoubles(const CString& section, const CString& key, long n, double* v, long* count);
  int GetDoubles(const CString& section, const CString& key, long n, double* v);

  /// Replaces the value of a key or adds the entry: directly behind the header
  /// of a new section at the end of the document, else at the end of its
  /// section. Always 1. When the section is new, the caller's text of it is
  /// trimmed at both ends. What ends a line of a file (line feed, carriage return, zero
  /// byte) becomes a blank in all three, so that no value brings lines of its own.
  ///
  /// Meant for filling a fresh document in the order of the file: the entries
  /// last added to a section are not found, and so added twice or read as
  /// missing, until another section has been worked with.
  int SetString(CString& section, const CString& key, const CString& value);

  /// Store a number, rounded to six decimals, as plain decimal text with a
  /// point, without trailing zeros; a flag as "1" or "0"; n numbers joined
  /// with ",". Otherwise as SetString.
  int SetDouble(CString& section, const CString& key, double v);
  int SetFloat(CString& section, const CString& key, float v);
  int SetLong(CString& section, const CString& key, long v);
  int SetBool(CString& section, const CString& key, bool v);
  int SetDoubles(CString& section, const CString& key, long n, const double* v);

  /// Cuts every line to the 255 bytes that Read takes in one piece, behind a whole UTF-8
  /// character: the rest would be read as a line of its own, a header perhaps.
  void CutLines();

  /// Appends a line as it stands, for documents that come from a buffer:
  /// neither trimmed nor cut, and a header among them is not counted.
  void AddLine(CString line);

  /// All lines, in order.
  const std::vector<CString>& GetLines() const { return m_Lines; }

 private:
  void Tausche(CIniFile& other) noexcept;
  long LineCount() const { return static_cast<long>(m_Lines.size()); }
  std::string_view Line(long i) const { return m_Lines[static_cast<std::size_t>(i)].View(); }

  void AppendPiece(std::string_view piece);

  long FindHeader(std::string_view name, long from);
  long LookForHeader(std::string_view name, long from, long to);
  void IndexHeaders();
  std::string_view HeaderName(int i) const;
  void ForgetHeaders();
  bool FindNextHeader(long from);
  long FindSection(long from);
  long FindEndOfSection(long from);
  long FindEntryPos(std::string_view key, long from, long to) const;
  std::string_view FindEntry(std::string_view key, long from, long to);
  std::string_view FindNumbers(const CString& section, const CString& key);

  // Tausche swaps them all.
  std::vector<CString> m_Lines;  // trimmed by Read
  CString m_LastSectionName;     // the section last found by a search
  int m_LastSectionLine = -1;    // line of its header
  int m_SectionEndLine = -1;     // header that ends the current section; -1 = not known
  int m_LastEntryLine = 0;       // entry last found by FindEntry; -1 = none
  int m_CntSections = 0;         // headers met by Read
  std::vector<int> m_Headers;    // lines of the headers by name and place, once indexed
  bool m_IsIndexed = false;
  long m_LookedAt = 0;  // lines that searches for headers went through since the last change
};
