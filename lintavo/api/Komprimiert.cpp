#include <new>

#include <zlib.h>

#include "lintavo/api/Komprimiert_intern.h"
#include "lintavo/platform/Files_intern.h"

namespace lintavo {

bool LiesKomprimiert(const CString& path, KomprimierterText& text) {
  std::string input;
  if (!ReadFileStart(path, static_cast<std::size_t>(kMaxKomprimiert), input)) return false;
  uLongf length = kMaxKomprimiert;
  // A damaged or cut stream is not an error here, on purpose: what the bytes of the file
  // inflate to before they end is parsed. Nothing is added to them, since a stream goes on
  // to inflate whatever stands behind it into text that nobody wrote.
  const int result =
      uncompress(reinterpret_cast<Bytef*>(text.Bytes), &length,
                 reinterpret_cast<const Bytef*>(input.data()), static_cast<uLong>(input.size()));
  if (result == Z_MEM_ERROR) throw std::bad_alloc();
  text.lLaenge = static_cast<long>(length);
  return true;
}

}  // namespace lintavo
