// From the handles of the C interface to the façade, for C++ that is handed a
// handle by a C host or a script, and for libraries beside this one.
#pragma once

#include "lintavo/platform/Export.h"

class CFeApi;
struct lintavo_window;

namespace lintavo {

/// The façade behind a handle, null for null. It belongs to the handle.
LINTAVO_API CFeApi* FacadeOf(lintavo_window* window);
LINTAVO_API const CFeApi* FacadeOf(const lintavo_window* window);

}  // namespace lintavo
