// Line segments as they cross the library's boundary.
#pragma once

#include "lintavo/platform/Export.h"

/// Segments of a drawing, in drawing units, each with the colour index and the
/// drawing priority of what it belongs to. The record owns its arrays; they
/// are allocated and released inside the library.
class LINTAVO_API CFeApiStrecken {
 public:
  CFeApiStrecken() = default;
  CFeApiStrecken(const CFeApiStrecken& other);
  CFeApiStrecken& operator=(const CFeApiStrecken& other);
  ~CFeApiStrecken();

  /// Replaces what the record holds by `n` segments of zeroes. A negative `n`
  /// counts as 0.
  void SetOrder(int n);

  /// Releases the arrays; count 0, all pointers null.
  void Delete();

  int lAnzahl = 0;         ///< number of segments
  double* pdX1 = nullptr;  ///< start of every segment, owned
  double* pdY1 = nullptr;
  double* pdX2 = nullptr;  ///< end of every segment, owned
  double* pdY2 = nullptr;
  int* piFarbe = nullptr;  ///< colour index of every segment, owned
  int* piPrio = nullptr;   ///< priority of every segment, owned
};
