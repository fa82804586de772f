// Memory that runs out at will. A program that links this has its own operator new
// and delete, and, where the C library lets it, its own malloc: so what the library
// asks for comes from here, be it through C++ or through a library in C.
#pragma once

namespace lintavo::test {

/// While one of these exists, allocations of its thread fail: from now on the
/// n-th (from 1), and with `dauerhaft` every one after it. Those of the clipping
/// library are none of them: it cannot bear it, and makes sure of its memory first.
class Speicherknappheit {
 public:
  Speicherknappheit(long n, bool dauerhaft);
  ~Speicherknappheit();
  Speicherknappheit(const Speicherknappheit&) = delete;
  Speicherknappheit& operator=(const Speicherknappheit&) = delete;

  /// Whether an allocation has failed since.
  bool IstEingetreten() const;
};

/// Blocks of operator new that are not released yet, of all threads.
long LebendeBloecke();

}  // namespace lintavo::test
