// A segment with the colour and priority it is drawn with. Every picture that the
// library hands out is a list of these.
#pragma once

#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

class GEOM2_Polygon;

/// A directed segment from P1 to P2. It may be degenerate (P1 = P2): operations
/// that need a direction treat lengths below 1e-6 as zero and say what they answer.
class LINTAVO_API CMStrecke {
 public:
  /// Both points (0,0), Zustand 1, Farbe and Prio 0.
  CMStrecke() = default;
  CMStrecke(const XY& p1, const XY& p2) : p1_(p1), p2_(p2) {}
  CMStrecke(double x1, double y1, double x2, double y2) : p1_{x1, y1}, p2_{x2, y2} {}
  CMStrecke(const CMStrecke&) = default;
  CMStrecke& operator=(const CMStrecke&) = default;
  virtual ~CMStrecke();

  void GetPunkte(XY& p1, XY& p2) const;
  /// Sets both points; Zustand stays.
  void SetPunkte(const XY& p1, const XY& p2);
  /// Sets both points and Zustand to 1.
  void SetPunkte(double x1, double y1, double x2, double y2);
  /// P2 - P1, signed.
  void GetProjektionen(double& dx, double& dy) const;

  int GetZustand() const { return zustand_; }
  /// Colour index with which the host draws the segment.
  int GetFarbe() const { return farbe_; }
  void SetFarbe(int farbe) { farbe_ = farbe; }
  /// Which of two coinciding lines wins.
  int GetPrio() const { return prio_; }
  void SetPrio(int prio) { prio_ = prio; }

  double GetLaenge() const;
  /// Keeps P1 and the direction; nothing changes for a degenerate segment.
  void SetLaengeP1_P2(double laenge);
  /// The point at distance d from P1 towards P2; d may be negative or exceed the
  /// length. A degenerate segment gives the origin, not P1.
  void GetPunktAufStrecke(double d, XY& p) const;
  /// Distance of p from its perpendicular foot on the line; bInnerhalb tells whether
  /// the foot lies on the segment. A degenerate segment gives 0 and false.
  double GetLotAbstand(const XY& p, bool& bInnerhalb) const;
  /// The perpendicular foot itself. False, outputs untouched, for a degenerate
  /// segment.
  bool GetLot(const XY& p, XY& fuss, bool& bInnerhalb) const;
  /// Shifts the segment by d to its right-hand side; false, nothing changed, for a
  /// degenerate segment.
  bool ParallelVerschieben(double d);

  /// True when the segments cross or touch without sharing an end point.
  bool IsCross(const CMStrecke& s) const;
  /// The same; schnitt receives the intersection of the two lines as soon as there is
  /// one, so also where the segments themselves miss it and the answer is false. It
  /// is untouched for a shared end point and for parallel lines.
  bool IsCross(const CMStrecke& s, XY& schnitt) const;
  /// True when the segments lie on one line within 0.001 and overlap or touch.
  bool IsUeberlagerung(const CMStrecke& s) const;
  /// True when the segment's midpoint lies strictly inside the polygon.
  bool IsInside(const GEOM2_Polygon& poly) const;
  /// Cuts the segment to its longest piece inside the polygon; a segment wholly
  /// inside or wholly outside stays as it is. Always true.
  bool Clipp(const GEOM2_Polygon& poly);

 private:
  XY p1_;
  XY p2_;
  int zustand_ = 1;
  int farbe_ = 0;
  int prio_ = 0;
};
