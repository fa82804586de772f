// Where the outer extra parts of a frame end: at the mitre with the next side's, at the
// contour of their own side, or at that of the whole frame.
#pragma once

class CMBauteil;
class CMFensterSatz;
class GEOM2_Polygon;

namespace lintavo {

/// Fits both ends of an outer extra part, which lies beside its side, by their section-end
/// types. Each end is fitted by itself: neither moves the other one's point or angle. As
/// placed stay ends of other types, an end at a corner that the contour has lost, and both
/// where nothing would be left between them.
///
/// @param rahmen  the frame with all its extra parts placed.
/// @param aussen  the contour around them, as ErzeugeRahmenAussenPolygon gives it.
void FuegeAussenteil(const CMFensterSatz& rahmen, const GEOM2_Polygon& aussen, CMBauteil& teil);

}  // namespace lintavo
