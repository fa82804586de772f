// The library's one exception type.
#pragma once

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

/// An error as text and number. Numbers are those of the message texts in the
/// string table; 1 stands for a free text, 0 for none. The window's reads and
/// calculations catch it and keep both as the window's last error.
class LINTAVO_API CMException {
 public:
  CMException() = default;
  /// A free text with the number 1.
  explicit CMException(const CString& text);
  /// Message `id` of the string table.
  explicit CMException(int id);
  /// Message `id` with its "%s" replaced by `arg`, taken as it stands.
  CMException(int id, const CString& arg);
  /// Message `id` with its "%s" replaced by `n` in decimal.
  CMException(int id, long n);

  /// Shows nothing: an empty hook that hosts may still call.
  void Message() const {}

  CString strText;
  int iNummer = 0;
};
