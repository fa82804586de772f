// The grid of axes on which a window is laid out, and its file section.
#pragma once

#include <vector>

#include "lintavo/geom/XY.h"
#include "lintavo/model/CMKnoten.h"
#include "lintavo/platform/Export.h"

class CIniFile;

/// One axis: its distance from the axis before it, in drawing units, and
/// whether dimensions may still move it.
class LINTAVO_API CMAchsInfo {
 public:
  CMAchsInfo() = default;
  CMAchsInfo(double abstand, bool fest) : dAbst(abstand), bFest(fest) {}

  double GetAbst() const { return dAbst; }
  bool IsFest() const { return bFest; }
  void Set(double abstand) { dAbst = abstand; }
  void Set(bool fest) { bFest = fest; }

 private:
  double dAbst = 0.0;
  bool bFest = false;
};

/// Vertical axes (constant X, counted by j) and horizontal axes (constant Y,
/// counted by k), each a list of distances. The position of an axis is the sum
/// of the distances up to its own; X grows with j, Y with k.
class LINTAVO_API CMAchsen {
 public:
  CMAchsen() = default;
  CMAchsen(const CMAchsen&) = default;
  CMAchsen(CMAchsen&&) noexcept = default;
  CMAchsen& operator=(const CMAchsen&) = default;
  CMAchsen& operator=(CMAchsen&&) noexcept = default;
  virtual ~CMAchsen() = default;

  int iGetCntHori() const { return static_cast<int>(horizontal_.size()); }
  int iGetCntVerti() const { return static_cast<int>(vertikal_.size()); }

  /// Appends a movable axis at distance `d` from the last one.
  void AddHori(double d) { horizontal_.emplace_back(d, false); }
  void AddVerti(double d) { vertikal_.emplace_back(d, false); }

  /// Sets the distance of one axis. The index must be valid; this is not
  /// checked in release builds.
  void SetAchsAbstX(int j, double d);
  void SetAchsAbstY(int k, double d);

  /// Marks an axis as fixed or movable; any other index is ignored.
  void SetAchseHori(int k, bool fest);
  void SetAchseVerti(int j, bool fest);
  /// Whether the axis is fixed; false for any other index.
  bool IsHoriFest(int k) const;
  bool IsVertiFest(int j) const;
  /// Makes every axis movable (true) or fixed (false).
  void AlleVerschiebungenZulassen(bool zulassen);

  /// Removes all axes.
  void Delete();

  /// Position of an axis; 0.0 outside the list.
  double dGetPosVerti(int j) const;
  double dGetPosHori(int k) const;
  /// Position of the last axis; 0.0 without axes.
  double dGetGridSizeX() const;
  double dGetGridSizeY() const;
  /// Distance of an axis from the one before; 0.0 for axis 0 and outside.
  double dGetAchsAbstX(int j) const;
  double dGetAchsAbstY(int k) const;

  /// Crossing of two axes. An index beyond the last axis means the last one, a
  /// negative index the origin of its direction.
  void GetPunkt(int j, int k, XY& p) const;
  /// The same for the node's indices; the coordinates of a corner point are
  /// not looked at.
  void GetPunkt(const CMKnoten& knoten, XY& p) const;

  /// The shift that axis i2 still needs so that its span from i1 becomes
  /// `dSoll`.
  double dGetEffVersch(bool bVerti, int i1, int i2, double dSoll) const;

  /// Snaps `p` to the nearest crossing among those at most `dTol` away in x
  /// and in y; of equally near ones the lowest j, then the lowest k. False,
  /// with the node (0, 0), when there is none.
  bool GetKnoten(const XY& p, CMKnoten& knoten, double dTol) const;

  /// Appends the axes of section "Achsen": one at 0 and those listed, at most
  /// 49 more in each direction. Always true.
  bool ReadFromIniFile(CIniFile& document);
  /// Writes the distances of all axes but the first, as differences of positions with six
  /// decimals: what is read has every axis within half a millionth of where it was, however
  /// many lie before it, and written again it gives the same numbers. Always true.
  bool SaveToIniFile(CIniFile& document) const;

 private:
  std::vector<CMAchsInfo> vertikal_;
  std::vector<CMAchsInfo> horizontal_;
};
