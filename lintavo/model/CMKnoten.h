// A node: a crossing of two grid axes, or a free corner point.
#pragma once

#include "lintavo/platform/Export.h"

/// A point of the window, addressed by the indices of a vertical axis (J) and
/// a horizontal axis (K). As a corner point it also carries coordinates of its
/// own in drawing units; these count only while `IsAufAchse()` is false.
class LINTAVO_API CMKnoten {
 public:
  CMKnoten() = default;
  CMKnoten(int j, int k) : iJ(j), iK(k) {}
  CMKnoten(const CMKnoten&) = default;
  CMKnoten& operator=(const CMKnoten&) = default;
  virtual ~CMKnoten() = default;

  int J() const { return iJ; }
  int K() const { return iK; }
  double X() const { return dX; }
  double Y() const { return dY; }
  /// True for a node on the grid, false for a corner point.
  bool IsAufAchse() const { return !bEckpunkt; }

  /// Makes it a grid node of axes (j, k); X and Y stay as they were.
  void Set(int j, int k);
  void SetJ(int j) { iJ = j; }
  void SetK(int k) { iK = k; }
  void SetX(double x) { dX = x; }
  void SetY(double y) { dY = y; }
  /// Makes it a corner point at (x, y); J and K are kept.
  void SetEckpu(double x, double y);
  /// Makes it a corner point at (x, y) that belongs to axes (j, k).
  void SetEckpu(int j, int k, double x, double y);
  void XPlus(double d) { dX += d; }
  void YPlus(double d) { dY += d; }

 private:
  int iJ = 0;
  int iK = 0;
  double dX = 0.0;
  double dY = 0.0;
  bool bEckpunkt = false;
};
