// Every tolerance of the geometry, named for the quantity that it bounds. They
// are absolute values in drawing units; no other file carries a bare one.
#pragma once

namespace lintavo {

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kGradJeRadiant = 180.0 / kPi;
inline constexpr double kRadiantJeGrad = kPi / 180.0;

/// Lengths below this are zero; points closer than this coincide; also the
/// tolerance of line intersections and of the kernel in general.
inline constexpr double kNullLaenge = 1e-6;
/// Rounding noise of sums and differences of coordinates.
inline constexpr double kRechenrauschen = 1e-9;
/// Lengths that were equal may differ by this much once a file has kept its six decimals
/// of everything that they are reckoned from.
inline constexpr double kDateirundung = 2e-6 + kRechenrauschen;
/// Areas below this are none.
inline constexpr double kNullFlaeche = 1e-6;
/// Strict inside test of a segment's midpoint.
inline constexpr double kInnenTest = 1e-5;
/// How far beside an edge its two sides are looked at when surfaces may cover it.
inline constexpr double kNebenKante = kInnenTest;
/// Shift of a single side when extra parts are placed beside it.
inline constexpr double kSeitenVerschiebung = 1e-5;
/// Collinearity and overlap of segments and sides. A thousand times coarser than
/// kNullLaenge on purpose: "does one line hide another" is another question than
/// "do two edges cut each other".
inline constexpr double kUeberlagerung = 0.001;
/// Gap up to which neighbouring shapes are united.
inline constexpr double kVereinigung = 0.001;
/// Overlap up to which two sashes still count as touching.
inline constexpr double kUeberlappung = 1e-4;
/// How far the outline of a sash may stand out of the frame's.
inline constexpr double kFluegelImRahmen = 0.1;
/// Simplifying outlines: the coarse clean-up of frame polygons.
inline constexpr double kBereinigenGrob = 1e-4;
/// Edges below this are dropped by the clean-up of short edges.
inline constexpr double kKurzeKante = 0.1;

/// |cos| up to which a direction counts as exactly vertical.
inline constexpr double kSenkrecht = 1e-6;
/// Slope that stands for a vertical line.
inline constexpr double kSenkrechteSteigung = 1e10;
/// Twice the signed area above which a ring is counter-clockwise.
inline constexpr double kOrientierung = 1e-6;

/// Where the ends of an axis count as lying on an outline, in parts of its length: files
/// keep six decimals of its angle, which move its end by that much to the side.
inline constexpr double kAchsende = 1e-8;

/// Width of the strip along an outline by which its area may exceed another's while both
/// still count as equal. Files keep six decimals of every distance between axes: when one
/// of two equal outlines has to be chosen, the rest that got lost must not choose it.
inline constexpr double kGleicheFlaeche = 1e-4;

/// Texture scales that differ by no more than this are the same one.
inline constexpr double kGleicheTexturskala = 1e-4;

/// Start value of a bounding box that has not met a point yet.
inline constexpr double kLeereBox = 1e30;
/// Coordinates beyond this are no drawing; operations that need whole numbers or
/// squares of coordinates answer them with "no result".
inline constexpr double kGroessteKoordinate = 1e9;

/// Sine of the angle below which two directions are parallel for the kernel's
/// own intersections.
inline constexpr double kParallelSinus = 1e-12;
/// Turn, in radians, by which two sides may miss a half turn and still be opposite.
inline constexpr double kHalbeDrehung = 1e-9;

/// Largest lean of an end cut from the perpendicular, in degrees. An outline
/// that runs almost along the axis would send the corners of the cut to infinity.
inline constexpr double kGroessterSchnittwinkel = 85.0;
/// Rotation, in degrees, by which a bar may lean and still run straight across.
inline constexpr double kGeraderWinkel = 1e-6;
/// Cut angles, in degrees, that differ by no more than this are the same one.
inline constexpr double kGleicherWinkel = 1e-7;

}  // namespace lintavo
