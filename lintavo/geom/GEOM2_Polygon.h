// The kernel's closed polygon: the outline of a frame, a sash, a pane, a component.
#pragma once

#include <cstdlib>
#include <span>
#include <vector>

#include "lintavo/geom/GEOM2_Achse.h"
#include "lintavo/geom/GEOM2_Eckpunkt.h"
#include "lintavo/geom/XY.h"
#include "lintavo/platform/Export.h"

/// A closed ring of attributed vertices, a plain value.
///
/// Edge i runs from vertex i to vertex i + 1, the last one back to vertex 0; no
/// closing vertex is repeated. y points up, so counter-clockwise outlines have their
/// inside on the left of every edge and a positive area. "Right" and "left" of an
/// edge are meant along its direction. With fewer than 3 vertices a polygon contains
/// nothing and has no orientation.
class LINTAVO_API GEOM2_Polygon {
 public:
  /// @name Vertices
  /// @{
  int GetAnzahl() const { return static_cast<int>(ecken_.size()); }
  /// 0 after construction and Clear, 1 after SetAnzahl; carried, never read.
  int GetStatus() const { return status_; }
  /// All vertices in order, valid until the polygon changes.
  std::span<const GEOM2_Eckpunkt> GetEcken() const { return ecken_; }
  /// Makes room for n vertices in all, so that appending them is quick; ignores a
  /// count that no drawing has.
  void Reservieren(int n);
  /// Appends a vertex and returns the new count.
  int AddPunkt(double x, double y);
  int AddPunkt(double x, double y, double dWert1);
  int AddPunkt(double x, double y, double dWert1, double dWert2, int attribut);
  int AddPunkt(const GEOM2_Eckpunkt& ecke);
  /// Coordinates of vertex i; false and zeros for a bad index.
  bool GetPunkt(int i, double& x, double& y) const;
  /// Coordinates and first further value of vertex i. A bad index is a programming
  /// error and ends the program.
  void GetPunkt(int i, GEOM2_Punkt& punkt) const;
  /// The whole record of vertex i, valid until the polygon changes. A bad index is a
  /// programming error and ends the program.
  const GEOM2_Eckpunkt& GetEckpunkt(int i) const {
    if (!IsIndex(i)) std::abort();
    return ecken_[static_cast<std::size_t>(i)];
  }
  /// Coordinates only; false for a bad index.
  bool SetPunkt(int i, double x, double y);
  /// Attribute of the edge that starts at vertex i; 0 for a bad index.
  int GetAttribut(int i) const { return IsIndex(i) ? GetEckpunkt(i).Attribut : 0; }
  /// These three ignore a bad index.
  void SetAttribut(int i, int attribut);
  void SetWert1(int i, double wert);
  void SetWert2(int i, double wert);
  /// Ends of edge i; false, outputs untouched, for a bad index.
  bool GetKante(int i, XY& a, XY& b) const {
    if (!IsIndex(i)) return false;
    const GEOM2_Eckpunkt& anfang = GetEckpunkt(i);
    const GEOM2_Eckpunkt& ende = GetEckpunkt(Naechster(i));
    a = {anfang.x, anfang.y};
    b = {ende.x, ende.y};
    return true;
  }
  bool GetKante(int i, GEOM2_Punkt& a, GEOM2_Punkt& b) const;
  /// 0.0 for a bad index.
  double GetKantenLaenge(int i) const;
  /// Cuts or fills up (with zeros) to n vertices. False, nothing changed, for a
  /// negative n and for one that no drawing has (above 1,000,000).
  bool SetAnzahl(int n);
  void Clear();
  /// @}

  /// @name Shape
  /// @{
  /// Twice the signed area is above 1e-6; false with fewer than 3 vertices.
  bool IsGegenUhrzeigersinn() const;
  /// Reverses the polygon if its orientation differs (3 vertices and more).
  void SetOrientierung(bool gegenUhrzeigersinn);
  /// Reverses the order; vertex 0 stays first, and so does a last vertex that repeats
  /// it (within 1e-6) stay last. Values and attributes go with their vertex: the
  /// attributes are not shifted to the reversed edges.
  void Umkehren();
  /// Signed area, positive for counter-clockwise order.
  double GetFlaeche() const;
  /// p lies on some edge within tol.
  bool IsAufRand(const XY& p, double tol) const;
  /// Whether p lies inside; randGilt is the answer for points on an edge within tol.
  bool IsInside(const XY& p, bool randGilt, double tol) const;
  /// Bounding box; true with more than one vertex. An empty polygon gives min
  /// (1e30, 1e30) and max (-1e30, -1e30).
  bool GetMinMax(XY& min, XY& max) const;
  /// Turns by the angle whose cosine and sine are given, then shifts.
  void Transformieren(double c, double s, double tx, double ty);
  /// @}

  /// @name Clean-up
  /// @{
  /// Drops the vertices whose outgoing edge is shorter than minLaenge, the closing
  /// edge included; but a polygon whose only short edge is the closing one stays as it
  /// is. Always true.
  bool KurzeKantenEntfernen(double minLaenge);
  /// Cuts off loops and folds, then drops superfluous vertices: those that coincide
  /// with a neighbour within tol (of two coincident ones the later stays, and with it
  /// the attribute of its edge) and those on the line of their neighbours within tol.
  /// Where loops leave several pieces the largest with the polygon's own orientation
  /// remains. Every first further value becomes 0.
  ///
  /// @return false when nothing with at least 3 vertices remains: the polygon is empty
  ///         then. With fewer than 2 vertices false and nothing is changed.
  bool Bereinigen(double tol);
  /// The same; with schleifen false only the superfluous vertices are dropped.
  bool Bereinigen(double tol, bool schleifen);
  /// @}

  /// @name Offset
  /// @{
  /// Moves every edge by d to its right (outwards for counter-clockwise outlines) and
  /// joins the moved edges again. Sides that vanish on the way are dropped and their
  /// neighbours joined, in the order in which they vanish while all distances grow
  /// together; what cuts itself even then is taken apart, and the largest piece remains.
  /// So no loop comes out, and with all edges moving inwards nothing outside the outline.
  ///
  /// At a corner that points inwards the moved edges of a narrow notch meet far away.
  /// Beyond three times the larger distance the corner is cut square to its bisector at
  /// the larger distance; where the edges hardly turn but move by different distances, the
  /// cut stands in the bisector. Corners that point outwards have no limit.
  ///
  /// It takes n log n for n edges, unless the outline falls into pieces; areas are then
  /// reckoned with, up to 300,000 pairs of edges that touch. Beyond, nothing remains.
  ///
  /// ergebnis keeps what it had when nothing with at least 3 vertices remains. It may be
  /// this polygon itself.
  void ParallelPolygon(double d, GEOM2_Polygon& ergebnis) const;
  /// The same with one distance per edge, in edge order. A side that has come to run the
  /// other way between two that move side by side stays: a step between two heights that
  /// now falls the other way.
  ///
  /// A corner gets the second further value and the attribute of the vertex whose side
  /// starts there, both ends of a cut those of the corner's vertex, and a first further
  /// value of 0. Corners between parallel neighbours and beside edges shorter than 1e-6
  /// are dropped.
  ///
  /// @param abstaende  GetAnzahl() distances.
  /// @param bereinigen false: the bare corners, which fold over where a side is turned
  ///                   round, without a limit. true: without vanished sides, loops and
  ///                   superfluous vertices.
  /// @return whether at least 3 vertices remain; else ergebnis is empty.
  bool ParallelPolygon(const double* abstaende, GEOM2_Polygon& ergebnis, bool bereinigen) const;
  /// @}

  /// @name Cutting
  /// @{
  /// Cuts the segment to its longest piece inside (the first of equals); a stretch
  /// along an edge counts as inside. True when that changed something: a segment
  /// wholly inside or wholly outside stays as it is.
  bool StreckeClippen(XY& p1, XY& p2) const;
  /// Cuts the axis to its longest piece inside the polygon and gives the ends that
  /// meet the outline the cut angle of the outline there.
  ///
  /// The cut angle is that of the line through the points in which the two parallels
  /// of the axis at +d and -d meet the outline; where one of them misses, of the line
  /// through the other's point and that of the axis, and where both miss, that of the edge
  /// which the axis meets. An end that does not meet the outline keeps its angle, also one
  /// that the axis reaches along an edge. An end that already lies on it, within 2e-6 and
  /// 2e-8 of the axis' length, is not moved, so that an axis whose place and angle were
  /// rounded to six decimals is the same; and the axis never gets
  /// longer: cutting a second time changes nothing at all. Angles are bounded by 85
  /// degrees; where the two cuts would cross within d of the axis, neither takes more
  /// than half of its length.
  ///
  /// @param d half of the component's width, or the whole of it; the sign is ignored.
  /// @return false when less than 1e-6 remains or the axis is not finite: its length
  ///         is 0 then and all else is as it was.
  bool AchseClippen(GEOM2_Achse& achse, double d) const;
  /// The same for the piece that has most in common with the stretch from `von` to `bis`,
  /// counted from the axis' start; where none has, for the nearest to it. For an axis that
  /// was lengthened to meet the outline and is not to be moved past a gap.
  bool AchseClippen(GEOM2_Achse& achse, double d, double von, double bis) const;
  /// @}

  /// Lays the axis from p1 towards p2, with both cut angles 0. False for points closer
  /// than 1e-6: only dLaenge has the new value then.
  static bool SetAchse(const XY& p1, const XY& p2, GEOM2_Achse& achse);
  /// The kernel's general tolerance, 1e-6.
  static double GetEpsilon();

 private:
  bool IsIndex(int i) const { return 0 <= i && i < GetAnzahl(); }
  int Naechster(int i) const { return i + 1 < GetAnzahl() ? i + 1 : 0; }
  bool IsStrahlInnen(const XY& p, double tol) const;
  /// Takes over other vertices, which must not be this polygon's own.
  void SetEcken(std::span<const GEOM2_Eckpunkt> ecken);

  int status_ = 0;
  std::vector<GEOM2_Eckpunkt> ecken_;
};
