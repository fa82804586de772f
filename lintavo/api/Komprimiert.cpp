#include <new>

#include <zlib.h>

#include "lintavo/api/Komprimiert_intern.h"
#include "lintavo/platform/Files_intern.h"

namespace lintavo {

bool LiesKomprimiert(const CString& path, KomprimierterText& text) {
  std::string input;
  if (!ReadFileStart(path, static_cast<std::size_t>(kMaxKomprimiert), input)) return false;
  // Bytes past the end of the file count as zeroes, up to the limit.
  input.resize(static_cast<std::size_t>(kMaxKomprimiert));
  uLongf length = kMaxKomprimiert;
  // A damaged or cut stream is not an error here, on purpose: what could be
  // inflated is parsed, and the area counts whole then.
  const int result =
      uncompress(reinterpret_cast<Bytef*>(text.Bytes), &length,
                 reinterpret_cast<const Bytef*>(input.data()), static_cast<uLong>(input.size()));
  if (result == Z_MEM_ERROR) throw std::bad_alloc();
  text.lLaenge = result == Z_OK ? static_cast<long>(length) : kMaxKomprimiert;
  return true;
}

}  // namespace lintavo
