// The string type: searching, cutting, case and formatting.
#include "lintavo/platform/CString.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <limits>

#include "lintavo/platform/CaseFold_intern.h"
#include "lintavo/platform/Whitespace_intern.h"

namespace {

// A count or position of the caller as one inside 0..limit.
std::size_t Clamp(int value, std::size_t limit) {
  return value < 0 ? 0 : std::min(static_cast<std::size_t>(value), limit);
}

int Position(std::size_t found) {
  return found == std::string::npos ? -1 : static_cast<int>(found);
}

using FoldByte = unsigned char (*)(unsigned char c, unsigned char previous);

// The lead byte of a two-byte letter never changes, so the text may be folded
// in place: what stands before the current byte is what stood there.
void FoldAll(std::string& text, FoldByte fold) {
  unsigned char previous = 0;
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    c = static_cast<char>(fold(byte, previous));
    previous = byte;
  }
}

}  // namespace

CString::CString(const char* text, int length) {
  if (text != nullptr && length > 0) text_.assign(text, static_cast<std::size_t>(length));
}

int CString::GetLength() const {
  return static_cast<int>(
      std::min(text_.size(), static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

int CString::CompareNoCase(const CString& other) const {
  return lintavo::CompareNoCase(text_, other.text_);
}

CString& CString::operator+=(const CString& other) {
  text_ += other.text_;
  return *this;
}

CString& CString::operator+=(const char* text) {
  text_ += OrEmpty(text);
  return *this;
}

CString& CString::operator+=(char c) {
  text_ += c;
  return *this;
}

int CString::Find(const char* part, int start) const {
  return part == nullptr ? -1 : Position(text_.find(part, Clamp(start, text_.size())));
}

int CString::Find(char c, int start) const {
  return Position(text_.find(c, Clamp(start, text_.size())));
}

int CString::ReverseFind(char c) const {
  return Position(text_.rfind(c));
}

CString CString::Left(int count) const {
  return View().substr(0, Clamp(count, text_.size()));
}

CString CString::Right(int count) const {
  return View().substr(text_.size() - Clamp(count, text_.size()));
}

CString CString::Mid(int first) const {
  return View().substr(Clamp(first, text_.size()));
}

CString CString::Mid(int first, int count) const {
  return View().substr(Clamp(first, text_.size()), Clamp(count, text_.size()));
}

void CString::MakeUpper() {
  FoldAll(text_, lintavo::UpperByte);
}

void CString::MakeLower() {
  FoldAll(text_, lintavo::LowerByte);
}

void CString::TrimLeft() {
  text_.erase(0, text_.size() - lintavo::TrimmedLeft(text_).size());
}

void CString::TrimRight() {
  text_.resize(lintavo::TrimmedRight(text_).size());
}

void CString::Format(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  // Built beside the old text, which the arguments may point into.
  std::string result;
  if (length > 0) {
    result.resize(static_cast<std::size_t>(length));
    std::vsnprintf(result.data(), result.size() + 1, format, again);
  }
  va_end(again);
  text_ = std::move(result);
}
