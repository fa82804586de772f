// How often memory was asked for.
#pragma once

namespace lintavo::bench {

/// Calls of operator new by this program and the libraries that it loads, so far.
long AllocationCount();

}  // namespace lintavo::bench
