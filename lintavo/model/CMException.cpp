#include "lintavo/model/CMException.h"

#include "lintavo/resources/StringTable.h"

namespace {

// The argument comes from a file and may hold anything, a '%' included, so it
// is never used as a format.
CString Insert(const CString& format, const CString& arg) {
  const int place = format.Find("%s");
  if (place < 0) return format;
  return format.Left(place) + arg + format.Mid(place + 2);
}

CString Decimal(long n) {
  CString text;
  text.Format("%ld", n);
  return text;
}

}  // namespace

CMException::CMException(const CString& text) : strText(text), iNummer(1) {}

CMException::CMException(int id) : strText(lintavo::LoadText(id)), iNummer(id) {}

CMException::CMException(int id, const CString& arg)
    : strText(Insert(lintavo::LoadText(id), arg)), iNummer(id) {}

CMException::CMException(int id, long n) : CMException(id, Decimal(n)) {}
