// The string type of the whole library: a plain value over bytes. Text of the
// library itself is UTF-8; text from files is whatever the file holds.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "lintavo/platform/Export.h"

#if defined(__GNUC__)
#define LINTAVO_PRINTF_LIKE(text, first) __attribute__((format(printf, text, first)))
#else
#define LINTAVO_PRINTF_LIKE(text, first)
#endif

/// A text of bytes, zero bytes included. Positions and lengths count bytes.
/// Nothing here depends on the locale. Positions out of range are no error:
/// they are moved to the nearest end or answered with nothing, as said below.
class LINTAVO_API CString {
 public:
  CString() = default;
  /// A null pointer gives the empty text.
  CString(const char* text) : text_(text != nullptr ? text : "") {}
  CString(std::string text) : text_(std::move(text)) {}
  CString(std::string_view text) : text_(text) {}
  /// The first length bytes of text; empty when text is null or length below 1.
  CString(const char* text, int length);

  /// Number of bytes.
  int GetLength() const;
  bool IsEmpty() const { return text_.empty(); }
  void Empty() { text_.clear(); }

  /// The byte at index; zero when there is none.
  char GetAt(int index) const { return (*this)[index]; }
  template <std::integral Index>
  char operator[](Index index) const {
    return std::in_range<std::size_t>(index) && static_cast<std::size_t>(index) < text_.size()
               ? text_[static_cast<std::size_t>(index)]
               : '\0';
  }

  /// The bytes with a terminating zero; valid until the text is changed.
  operator const char*() const { return text_.c_str(); }
  /// All bytes, those behind a zero byte too; valid until the text is changed.
  std::string_view View() const { return text_; }

  /// Below, equal to or above 0, by the values of the bytes.
  int Compare(const CString& other) const { return text_.compare(other.text_); }
  /// The same with letters folded: ASCII, and Latin-1 letters in UTF-8 form (Ü = ü).
  int CompareNoCase(const CString& other) const;

  CString& operator+=(const CString& other);
  CString& operator+=(const char* text);
  CString& operator+=(char c);

  /// Position of the first occurrence at or behind start; -1 when there is none.
  int Find(const char* part, int start = 0) const;
  int Find(char c, int start = 0) const;
  /// Position of the last occurrence; -1 when there is none.
  int ReverseFind(char c) const;

  /// The first or last count bytes, at most the whole text.
  CString Left(int count) const;
  CString Right(int count) const;
  /// What begins at first, all of it or at most count bytes.
  CString Mid(int first) const;
  CString Mid(int first, int count) const;

  /// Changes the case of ASCII letters and of Latin-1 letters in UTF-8 form.
  void MakeUpper();
  void MakeLower();
  /// Removes blanks, tabs, vertical tabs, form feeds and line ends at one end.
  void TrimLeft();
  void TrimRight();

  /// Replaces the text by one formatted as by printf. An argument may point
  /// into this text. Numbers with a point follow the host's locale here: what
  /// goes into a file is formatted by CIniFile instead.
  void Format(const char* format, ...) LINTAVO_PRINTF_LIKE(2, 3);

  /// Replaces the text by the library's own text with this number. False, and
  /// the text is emptied, when there is none. Defined beside the string table
  /// (lintavo/resources/StringTable.cpp), which lies above this class.
  bool LoadString(int id);

  // Exact forms for both kinds of operand: with one form for two CStrings a
  // comparison with a literal could as well compare pointers.
  friend bool operator==(const CString& a, const CString& b) { return a.text_ == b.text_; }
  friend bool operator==(const CString& a, const char* b) { return a.text_ == OrEmpty(b); }
  friend bool operator==(const char* a, const CString& b) { return OrEmpty(a) == b.text_; }
  friend bool operator!=(const CString& a, const CString& b) { return !(a == b); }
  friend bool operator!=(const CString& a, const char* b) { return !(a == b); }
  friend bool operator!=(const char* a, const CString& b) { return !(a == b); }
  friend bool operator<(const CString& a, const CString& b) { return a.text_ < b.text_; }
  friend bool operator<(const CString& a, const char* b) { return a.text_ < OrEmpty(b); }
  friend bool operator<(const char* a, const CString& b) { return OrEmpty(a) < b.text_; }

  friend CString operator+(const CString& a, const CString& b) { return CString(a) += b; }
  friend CString operator+(const CString& a, const char* b) { return CString(a) += b; }
  friend CString operator+(const char* a, const CString& b) { return CString(a) += b; }
  friend CString operator+(const CString& a, char b) { return CString(a) += b; }
  friend CString operator+(char a, const CString& b) { return (CString() += a) += b; }

 private:
  static const char* OrEmpty(const char* text) { return text != nullptr ? text : ""; }

  std::string text_;
};
