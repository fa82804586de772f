// A polygon as it crosses the library's boundary: a count and two arrays.
#pragma once

#include "lintavo/platform/Export.h"

/// Closed outline handed to a host, in drawing units; the last point is not a
/// repetition of the first. The record owns its arrays; they are allocated and
/// released inside the library, so that no host frees with its own allocator.
class LINTAVO_API CFeApiPolygon {
 public:
  CFeApiPolygon() = default;
  CFeApiPolygon(const CFeApiPolygon& other);
  CFeApiPolygon& operator=(const CFeApiPolygon& other);
  ~CFeApiPolygon();

  /// Stores `n` as the count and allocates two arrays of n + 1 zeroes. Arrays
  /// that were there before are not released: a caller that reuses a record
  /// calls `Delete` first. A negative `n` counts as 0.
  void SetOrder(int n);

  /// Releases the arrays; count 0, both pointers null.
  void Delete();

  int lAnzahl = 0;        ///< number of points
  double* pdX = nullptr;  ///< x of every point, owned
  double* pdY = nullptr;  ///< y of every point, owned
};
