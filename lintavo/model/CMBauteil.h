// A component: one bar of a window, laid along one or more axes.
#pragma once

#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Achse.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/model/CMKnoten.h"
#include "lintavo/platform/Export.h"

/// Kinds of components, the values of `CMBauteil::lTyp`.
enum eBauteilTypen : long {
  eRahmenteil = 0,        ///< frame part, mullion or transom
  eSprosse = 1,           ///< glazing bar
  eZusatzteilInnen = 2,   ///< inner extra part
  eZusatzteilAussen = 3,  ///< outer extra part
  eLamelle = 4            ///< slat
};

/// Where a section lies relative to its axis, the values of
/// `CMBauteil::lLage`.
enum eBauteilLagen : long {
  eLageMitte = 0,   ///< centred; so is every value but the two below
  eLageRechts = 1,  ///< wholly on the right of the axis direction
  eLageLinks = 2    ///< wholly on the left of the axis direction
};

/// One bar: a frame member, glazing bar, extra part or slat.
///
/// The section of width `dBreite` (plus `dUeberBreite`) runs along each axis;
/// both ends are cut by the axis' cut angles: the angle by which the cut leans
/// from the perpendicular, positive when its left end lies further along the
/// axis. Lengths are drawing units, angles degrees.
class LINTAVO_API CMBauteil {
 public:
  /// A component with one axis of length zero.
  CMBauteil();
  CMBauteil(const CMBauteil&) = default;
  CMBauteil(CMBauteil&&) noexcept = default;
  CMBauteil& operator=(const CMBauteil&) = default;
  CMBauteil& operator=(CMBauteil&&) noexcept = default;
  virtual ~CMBauteil() = default;

  bool IsRahmenteil() const { return lTyp == eRahmenteil; }
  bool IsSprosse() const { return lTyp == eSprosse; }
  bool IsZusatzteilInnen() const { return lTyp == eZusatzteilInnen; }
  bool IsZusatzteilAussen() const { return lTyp == eZusatzteilAussen; }
  bool IsLamelle() const { return lTyp == eLamelle; }

  long lGetAnzAchsen() const { return static_cast<long>(Achsen.size()); }
  /// Axis `i`; the caller guarantees 0 <= i < lGetAnzAchsen().
  GEOM2_Achse& Achse(long i);
  const GEOM2_Achse& Achse(long i) const;
  /// Removes all axes / appends one.
  void DeleteAchsen() { Achsen.clear(); }
  void AddAchse(const GEOM2_Achse& achse) { Achsen.push_back(achse); }

  void SetUeberBreite(double ueberBreite) { dUeberBreite = ueberBreite; }
  /// Sets both section-end types; a value outside 0..4 is stored as 0. The
  /// spelling is part of the interface.
  void SetAbschittsTypen(long anfang, long ende);

  /// End points of axis 0, or of axis `i`; false when there is no such axis.
  bool GetAchspunkte(XY& a, XY& b) const;
  bool GetAchspunkte(long i, XY& a, XY& b) const;
  bool GetAchspunkte(CMStrecke& strecke) const;
  /// Sum of the lengths of all axes.
  double GetAchsLaenge() const;
  /// Direction of axis 0 in degrees, from its end points; 0.0 without an axis.
  double dGetDrehwinkel() const;
  /// True when both width and axis length are at least 1e-6: the component is
  /// there to be seen, counted and stored.
  bool IsVorhanden() const;

  /// Moves every axis. Always true.
  bool Verschieben(double dx, double dy);
  /// With `iEnde` 1 or 2 the start of axis 0 is put to (x + dx, y + dy) and its
  /// length and direction stay; both values act alike on purpose. Any other
  /// value moves every axis by (dx, dy). Always true.
  bool Verschieben(double dx, double dy, int iEnde, double x, double y);
  /// Lengthens axis 0 at both ends; its cut angles become 0.
  void Verlaengern(double anfang, double ende);
  /// Turns the component about the start of axis 0; all cut angles become 0.
  void Drehen(double winkel);

  /// Outline of the section along axis `i`: right start, right end, left end,
  /// left start. The vertex attribute is 1 where the edge is to be drawn. False,
  /// with an empty polygon, when there is no such axis.
  bool GetUmrissPunkteAchsSegment(long i, GEOM2_Polygon& umriss) const;
  /// Outline of the whole component, one ring around all segments: along the
  /// right sides forward, along the left sides back, one vertex per joint.
  /// Where segments are too short for the component's width on the inside of a
  /// bend, the neighbouring left sides meet instead. False without an axis.
  bool GetUmrissPunkte(GEOM2_Polygon& umriss) const;

  /// Brings a list into the order of `lReihenfolge`, components of one key in
  /// their present order. The list stays as it is when its largest key is below
  /// 1 or when a key is negative. True when it was ordered.
  static bool Ordnen(std::vector<CMBauteil>& bauteile, bool bAufsteigend);

  long lTyp = eRahmenteil;  ///< one of `eBauteilTypen`
  long lLage = eLageMitte;  ///< one of `eBauteilLagen`
  std::vector<GEOM2_Achse> Achsen;
  double dDicke = 4.0;               ///< section dimension along the view
  double dBreite = 6.0;              ///< section width across the axis
  long lAttribut[4] = {2, 2, 1, 1};  ///< display attributes a1 to a4
  double dBreite2 = 0.0;             ///< second width: the overlap of a sash's part
  double dWert = 0.0;                ///< carried for the callers
  long lSeite = -1;  ///< side of the frame polygon: of an extra part its own, of a frame part
                     ///< its first; else -1
  long lKette = -1;  ///< index of the next extra part of the chain
  int cAbschnittsTypAnfang = 0;  ///< section-end type at the start, 0..4
  int cAbschnittsTypEnde = 0;    ///< section-end type at the end, 0..4
  CMKnoten kAnfang;              ///< node at the start
  CMKnoten kEnde;                ///< node at the end
  long lSprossenBild = -1;       ///< number of the pattern that made the bar
  long lReferenz = -1;           ///< carried for the callers
  long lReihenfolge = 0;         ///< ordering key of `Ordnen`
  double dUeberBreite = 0.0;     ///< extra width of the outline
};
