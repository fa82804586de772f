// The window: its grid, frame, sashes and dimensions, and their calculation.
//
// Sources by theme: CMFenster.cpp (lists, state), _Datei (macro file),
// _Berechnung (the calculation), _Pfosten (mullions and transoms),
// _Masze (dimensions that drive the grid), _Raster (the grid of a saved window),
// _Schraegen (slanted edges that follow the grid), _Stich (dimensions that follow springing
// lines), _Zeichnung (sizes, dimension lines and symbols), _View (what the window shows, the
// front view with hidden lines removed).
#pragma once

#include <memory>
#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/model/CMAchsen.h"
#include "lintavo/model/CMBauteil.h"
#include "lintavo/model/CMException.h"
#include "lintavo/model/CMKnoten.h"
#include "lintavo/model/CMZusatzMasz.h"
#include "lintavo/platform/CSize.h"
#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"
#include "lintavo/sash/CMFensterSatz.h"

class CIniFile;
namespace lintavo {
struct Achsbereich;
struct WindowView;
}  // namespace lintavo

/// A parametric window.
///
/// The window owns its grid, frame, sashes and dimensions; a copy is deep.
/// Pointers that it hands out stay valid until the list they point into
/// changes or the window is emptied. Lengths are drawing units; x grows to the
/// right and y upwards, seen from inside the building.
///
/// Reading and calculating never throw: they answer false and keep the error's
/// number and text; running out of memory has the number 1. Operations that build
/// the window step by step (`AddFluegel`,
/// `ZusatzMaszeFuerBreiteUndHoeheAutomatisch`, the dimension steps) throw
/// `CMException`. Whatever else hands out or stores lists or texts may throw
/// std::bad_alloc.
class LINTAVO_API CMFenster {
 public:
  CMFenster();
  CMFenster(const CMFenster& other);
  CMFenster& operator=(const CMFenster& other);
  virtual ~CMFenster();

  // --- state -----------------------------------------------------------------

  /// Empties the window and clears the error. Throws std::bad_alloc, with nothing
  /// changed: an empty frame needs some memory, too.
  void Delete();
  /// True once the window was read or changed after its last calculation.
  bool IsNeu() const { return neu_; }
  /// Marks the window changed and drops the axes of mullions and transoms, so
  /// that the next calculation lays them between their nodes.
  void Invalidiere();
  /// The same; with `neuLaden` the window is also written to a document and
  /// read back from it.
  void Invalidiere(bool neuLaden);
  /// Number of the last error, 0 for none.
  long GetFehler() const { return fehlerNummer_; }
  /// The same, and its text.
  long GetFehler(CString& text) const;
  /// Keeps a free text as the last error, with the number 1.
  void SetErrorMsg(const CString& text);

  const CString& GetName() const { return name_; }
  void SetName(const CString& name) { name_ = name; }
  const CString& GetTypName() const { return typName_; }
  void SetTypName(const CString& name) { typName_ = name; }
  const CString& GetDateiName() const { return dateiName_; }
  /// Whether the window refers to bitmaps.
  bool IsBitmap() const { return !bitmap1_.IsEmpty() || !bitmap2_.IsEmpty(); }
  const CString& GetBitmap1() const { return bitmap1_; }
  const CString& GetBitmap2() const { return bitmap2_; }
  void SetBitmaps(const CString& bitmap1, const CString& bitmap2);

  CMAchsen& GetAchsen() { return achsen_; }
  const CMAchsen& GetAchsen() const { return achsen_; }
  /// The outer frame, owned by the window; never null.
  CMFensterSatz* GetRahmenPtr() { return &rahmen_; }
  const CMFensterSatz* GetRahmenPtr() const { return &rahmen_; }
  /// The frame's section value, in drawing units: sides shorter than this that turn by
  /// less than 25 degrees are merged into one bent frame part, of the frame and of the
  /// sashes. Where none is set it is 100 or, if that is more, a sixth of the larger extent
  /// of the frame's outline as last calculated, so that an arch is one part in millimetres
  /// as it is in centimetres.
  double GetRahmenAbschnitt() const;
  /// Sets it for the next calculations; what is not above 0 and finite sets back the
  /// default. It is a setting of this object and in no file: copies have it, and emptying
  /// or reading a window keeps it.
  void SetRahmenAbschnitt(double length);
  /// Template of the mullions and transoms that a calculation sets by itself.
  CMBauteil& GetPfostenVorlage() { return pfostenVorlage_; }
  const CMBauteil& GetPfostenVorlage() const { return pfostenVorlage_; }

  // --- sashes ----------------------------------------------------------------

  /// A new, empty sash of shape 1 rectangle, 2 arch, 3 ellipse, 4 half arch,
  /// owned by the caller; null for any other number.
  static CMFensterSatz* NewFluegelPtr(long lForm);
  /// Creates a sash between two corner nodes and appends it. Returns the sash,
  /// owned by the window; null for an unknown shape. Throws 22 when its outline
  /// has no area, 23 when it overlaps another sash, and what its shape throws;
  /// the window is then unchanged.
  CMFensterSatz* AddFluegel(long lForm, long lTyp2, const CMKnoten& k1, const CMKnoten& k2);
  /// The same with the reference nodes of a shared arch.
  CMFensterSatz* AddFluegel(long lForm, long lTyp2, const CMKnoten& k1, const CMKnoten& k2,
                            const CMKnoten& kAL, const CMKnoten& kAR);
  long GetAnzahlFluegel() const { return static_cast<long>(fluegel_.size()); }
  /// Sash `i` or, by name in any case, the first one; null when there is none.
  CMFensterSatz* GetFluegelPtr(long i);
  const CMFensterSatz* GetFluegelPtr(long i) const;
  CMFensterSatz* GetFluegelPtr(const CString& name);
  /// Index of a sash of this window, else -1.
  long GetFluegelNr(const CMFensterSatz* fluegel) const;
  /// Removes sash `i`, all dimensions and the content of the frame. False for a
  /// bad index.
  bool DeleteFluegel(long i);

  // --- mullions and transoms -------------------------------------------------

  /// Appends a copy of the template between two nodes to the frame's single
  /// parts; the calculation gives it its axis. Returns the stored component.
  CMBauteil* AddRahmenEinzelBauteil(const CMKnoten& k1, const CMKnoten& k2,
                                    const CMBauteil& vorlage);
  CMBauteil* GetRahmenEinzelBauteilPtr(long i) { return rahmen_.GetEinzelBauteilPtr(i); }
  long GetRahmenEinzelBauteilNr(const CMBauteil* bauteil) const {
    return rahmen_.GetEinzelBauteilNr(bauteil);
  }
  /// Removes one; the next calculation lays the others anew, since some may have
  /// ended at it. False for a bad index.
  bool DeleteRahmenEinzelBauteil(long i);

  // --- collections -----------------------------------------------------------

  /// Appends copies of all components: the frame's parts and single parts, then of each
  /// sash its parts, single parts and bars.
  void GetBauteile(std::vector<CMBauteil>& bauteile) const;
  /// Appends copies of the fillings: the frame's, then one per sash, in sash order.
  void GetFuellungen(std::vector<CMFuellung>& fuellungen) const;

  // --- macro file ------------------------------------------------------------

  /// Reads a plain macro file; the window is emptied first. False, with the
  /// window empty and error 28, when the file cannot be opened. A document
  /// whose content is rejected still counts as read.
  bool ReadFromFile(const CString& path);
  /// Fills the (empty) window from a document.
  bool ReadFromBuffer(CIniFile& document);
  /// Writes the window into a fresh document, axis 0 of both directions at the origin: a
  /// grid that begins elsewhere, and with it all coordinates, is written moved. Always true.
  bool SaveToBuffer(CIniFile& document) const;
  /// Compacts the grid and writes the macro file, and beside it on request the
  /// blank parameter form (same name in lower case, its last three characters replaced by
  /// txt; none for a path without a dot behind its second character). False when
  /// the path is empty or a file cannot be written; the window is then as it was, its grid
  /// included.
  bool SaveToFile(const CString& path);
  bool SaveToFile(bool withParameterForm, const CString& path);
  /// Writes the blank parameter form to exactly this path: an INI file with the
  /// window's type name as "Typ" and its values in tenths, to be filled in and
  /// read by `CMFensterPosition`. Lists the frame parts of the last calculation.
  /// False when the path is empty or the file cannot be written.
  bool SaveParameterFormular(const CString& path) const;
  /// Drops axes outside the range that nodes of sashes, dimensions and single parts use,
  /// and brings the first used one of each direction to 0. Everything that has coordinates
  /// moves along, so that a calculated window stays calculated.
  void AchsRasterOptimieren();

  // --- calculation -----------------------------------------------------------

  /// Derives everything from the stored description: axis distances, frame
  /// outline and parts, mullions and transoms, sashes, bars. Mullions and transoms
  /// with two nodes are laid between these each time before they are cut, so that
  /// calculating again gives the same. On request it sets others along the sashes'
  /// common edges by itself, and lays those whose nodes are nearest to the ends of such
  /// an edge along it. False on an error, which is kept; the window then holds what
  /// the completed steps wrote.
  bool Berechne(bool bPfostenRiegelAutomatisch);
  /// One outline per sash, in sash order. `dExtrem` is raised to the highest y
  /// of all outlines.
  void GetFluegelGrundformen(std::vector<GEOM2_Polygon>& grundformen, double& dExtrem);
  /// Lets arched sashes fit their rise to the dimensions; true when one changed.
  bool FluegelStichAnpassung(std::vector<GEOM2_Polygon>& grundformen);
  /// Sets mullions and transoms along the lines between the sashes: edges that do not run
  /// along the frame with all of their length, those that are collinear and touch as one,
  /// in the order of the first edge of each. A new one runs from the lower to the higher
  /// end, of a level line from left to right, between the nodes nearest to its ends; where
  /// both go to one node it has the template's axis. A line that has members already gets
  /// them where they leave it free.
  void PfostenUndRiegelAutomatischSetzen(const GEOM2_Polygon& innen,
                                         const std::vector<GEOM2_Polygon>& grundformen);
  void PfostenUndRiegelVerschneiden(const GEOM2_Polygon& innen);
  /// Widens the bounding box by the outer extra parts and fits their ends.
  void AussenZusatzteilAnschluesseBerechnen();

  // --- dimensions ------------------------------------------------------------

  /// Appends a copy; returns its index.
  long AddZusatzMasz(const CMZusatzMasz& masz);
  long GetAnzahlZusatzMasze() const { return static_cast<long>(zusatzMasze_.size()); }
  /// Dimension `i`, null for a bad index.
  CMZusatzMasz* GetZusatzMaszPtr(long i);
  const CMZusatzMasz* GetZusatzMaszPtr(long i) const;
  /// Index by identity, else -1.
  long GetZusatzMaszNr(const CMZusatzMasz* masz) const;
  bool DeleteZusatzMasz(long i);
  /// Removes all dimensions and makes every axis movable. Always true.
  bool DeleteZusatzMasze();
  /// Attaches a dimension to the grid: its length becomes the present span of
  /// its two nodes. False unless the nodes lie on different axes of the measured
  /// direction, both on the grid, in the order of the length's sign.
  bool ZusatzMaszVerbinden(CMZusatzMasz& masz) const;
  /// Makes the span from axis i1 to axis i2 equal `dSoll`, spreading the change
  /// evenly over movable axes between them; i1 and i2 are fixed afterwards. The movable
  /// coefficients of every sash whose extent changes grow with it. False
  /// when i2 is fixed already, i1 equals i2, or no dimension is given. A length
  /// below 1e-6 changes nothing and is no failure; nor does a change of up to 2e-6 where
  /// length and axes have six decimals, since files round them. No such change is spread.
  bool NeuenAchsAbstandSetzen(const CMZusatzMasz* masz, long i1, long i2, double dSoll);
  /// Moves one axis so that its span from axis `iVon` becomes `dWert`; all other
  /// axes keep their positions. Throws 49 with `name` when `iAchse` is not an
  /// axis or the shift is not finite or beyond 1e9.
  void AchseVerschieben(bool bVerti, int iVon, int iAchse, double dWert, const CString& name);
  /// Applies all dimensions to the axes. The movable coefficients of every sash whose
  /// extent changes grow with it; then those between the ends of a straight slope over
  /// several sashes are set so that it stays straight. Returns the first that cannot be
  /// applied, or null. Throws 49, naming the dimension, when axes in use end up
  /// in the wrong order.
  CMZusatzMasz* ZusatzMaszAchsVerschiebungen();
  /// Applies dimensions between free corner points to the frame outline and the
  /// given sash outlines; the frame's is then made anew from these. Returns the first
  /// that cannot be applied, or null.
  CMZusatzMasz* ZusatzMaszRahmenEckenVerschiebungen(std::vector<GEOM2_Polygon>& grundformen);
  /// The corner of the frame outline nearest to a corner point, at most
  /// `tolerance` away.
  bool RahmenEckpunktFangen(const CMKnoten& knoten, double tolerance, long& index) const;
  /// Moves one corner of the frame outline, and of every sash outline that has a
  /// vertex there, along one direction. Throws when both shifts are given.
  void RahmenEckpunktVerschieben(const CMKnoten& knoten, long index, double dx, double dy,
                                 std::vector<GEOM2_Polygon>& grundformen);
  /// Replaces all dimensions by the overall width and height, named "Breite"
  /// and "Hoehe", with their lines at distance `dAbstand`. Returns false on
  /// success, on purpose: callers do not test it. Throws 24.
  bool ZusatzMaszeFuerBreiteUndHoeheAutomatisch(double dAbstand);
  /// Start value of the minima in the search below.
  static constexpr long kKleinsterIndexStart = 30000;
  /// Widens the given range by the axes that the sashes' nodes use. Callers
  /// preset the minima with `kKleinsterIndexStart` and the maxima with 0.
  void GetMinMaxAchsIndizes(long& minJ, long& maxJ, long& minK, long& maxK) const;

  // --- size ------------------------------------------------------------------

  /// Width and height of the bounding box, never negative.
  void GetSize(XY& size) const;
  void GetSize(CSize& size) const;
  /// The bounding box (xmin, ymin, xmax, ymax) widened by the extension lines,
  /// `dUeberstand` long, of every dimension that has some.
  void GetBox(double dUeberstand, double box[4]) const;
  /// The same with the dimension lines of `GetMaszline (i, s, bSkaliert, dFaktor)`.
  void GetBox(double dUeberstand, bool bSkaliert, double dFaktor, double box[4]) const;

  // --- drawings --------------------------------------------------------------

  /// What the last calculation has made of the window, as plain values. Throws the kept error
  /// where that failed.
  lintavo::WindowView View() const;
  /// The line of dimension `i`, at distance `dAbst` from node 1, from left to
  /// right or upwards. It is as long as the dimension; where its other nodes lie
  /// does not matter. False, with `s` untouched, when there is no such dimension
  /// or it is neither horizontal nor vertical, or neither one-sided nor centred.
  bool GetMaszline(long i, CMStrecke& s, double dAbst) const;
  /// The same at the dimension's own distance. On purpose true whenever there is
  /// a dimension `i`, even where it has no line and `s` stays untouched.
  bool GetMaszline(long i, CMStrecke& s) const;
  /// The same at `dFaktor` times the dimension's own distance when `bSkaliert`.
  bool GetMaszline(long i, CMStrecke& s, bool bSkaliert, double dFaktor) const;
  /// The extension lines of dimension `i`: each crosses an end of the dimension
  /// line at a right angle, is `d` long and halved by it. False, with both
  /// untouched, when there is no dimension or its line is shorter than 1e-6.
  bool GetMaszHilfsLinien(long i, double d, CMStrecke& l1, CMStrecke& l2) const;
  /// The same for a given dimension line.
  static bool GetMaszHilfsLinien(const CMStrecke& s, double d, CMStrecke& l1, CMStrecke& l2);
  /// The arrowheads of dimension `i`: triangles whose tips lie on the ends of its
  /// line and point outwards. False, with both untouched, in the same cases.
  bool GetMaszBegrenzung(long i, double dPfeilLaenge, double dPfeilBreite, GEOM2_Polygon& p1,
                         GEOM2_Polygon& p2) const;
  /// The same for a given dimension line.
  static bool GetMaszBegrenzung(const CMStrecke& s, double dPfeilLaenge, double dPfeilBreite,
                                GEOM2_Polygon& p1, GEOM2_Polygon& p2);
  /// Appends the opening symbol of sash `i`. False when there is no such sash or it
  /// has no symbol.
  bool GetFluegelOeffnungsSymbol(long i, std::vector<CMStrecke>& lines) const;
  /// The front view of the calculated window, hidden lines removed: frame, mullions
  /// and transoms, extra parts, and of each sash its frame, bars, slats and filling.
  ///
  /// `lines` is emptied first. It receives the long edges of every part (of outer
  /// extra parts also the ends; joints inside a bent part, mitres and other cuts are
  /// not drawn) where no part nearer to the viewer covers them. The picture is never
  /// mirrored: x grows to the right from both sides. What is nearer:
  ///
  /// - sashes that open towards the viewer cover the frame, the frame covers those
  ///   that open away from him; it covers panes without a sash frame from both sides;
  /// - of two sashes that overlap, the one with the smaller depth offset on the viewer's
  ///   side; at equal offset the one that opens towards the viewer; where both open to
  ///   one side, seen from there, the one that opens first, then the earlier one of the
  ///   list, and the other way round from behind;
  /// - a sash covers with all of its outline, its glass included. Inside it the order is
  ///   frame parts, single parts, glazing bars, slats, filling; in the frame extra parts,
  ///   frame parts, mullions and transoms;
  /// - of equal parts that cross, such as two bars, the earlier one runs through.
  ///
  /// Where edges coincide (within 0.001) only that of higher Prio is drawn, of equals
  /// that of the nearer part, a filling's last of all. The attributes of a part come in
  /// two pairs, one for each side: from inside Farbe is a1 and Prio a3, from outside
  /// Farbe is a2 and Prio a4; a filling's are I1 to I4 in the same way.
  ///
  /// The same window always gives the same lines in the same order. True when there
  /// are lines; false, without any, for a window that is not calculated and for a
  /// picture of more than 100,000 lines.
  bool GetHiddenLineBild(std::vector<CMStrecke>& lines, bool bVonAussen) const;

  /// Dumps the window and its frame polygon, readable, to standard error; nothing in
  /// a production build.
  void Trace() const;
  /// The same for the frame polygon alone.
  void TRACE_RahmenPolygon() const;

 private:
  struct Box {
    double xmin = 0.0;
    double ymin = 0.0;
    double xmax = 0.0;
    double ymax = 0.0;
  };

  // The present grid from axis (j, k) on, brought to the origin.
  struct Raster {
    long j = 0;
    long k = 0;
    CMAchsen achsen;
  };

  lintavo::WindowView MakeView() const;
  bool FehlerMerken(CMException&& fehler);
  bool Lies(CIniFile& document);
  bool SaveParameterBlankoFormularToBuffer(CIniFile& document) const;
  Raster RasterVon(const lintavo::Achsbereich& bereich) const;
  Raster KompaktesRaster() const;
  void SetzeRaster(Raster&& raster) noexcept;
  bool IsRasterVerschoben() const;
  void RasterAnDenUrsprung();
  void SenkeKnoten(long dj, long dk) noexcept;
  void Verschiebe(double dx, double dy) noexcept;
  void FluegelFormBeiwerteAnpassen(const CMAchsen& before);
  bool AchsAbstandSetzen(const CMZusatzMasz* masz, long i1, long i2, double dSoll);
  CMZusatzMasz* AchsenNachMaszenSetzen();
  bool AchsenNachMaszSetzen(const CMZusatzMasz& masz);
  void AchsenNachfuehren(const CMAchsen& before);
  void EckpunktKnotenNachfuehren(const CMAchsen& before);
  void BoxBilden(const std::vector<GEOM2_Polygon>& grundformen);
  bool EckenNachMaszSetzen(const CMZusatzMasz& masz, const GEOM2_Polygon& before,
                           std::vector<GEOM2_Polygon>& grundformen);
  void Rechne(bool bPfostenRiegelAutomatisch);
  void RahmenUmrissBilden(const std::vector<GEOM2_Polygon>& grundformen);
  void RahmenUmrissBeginnen(const std::vector<GEOM2_Polygon>& grundformen);
  void RahmenBauen(bool bPfostenRiegelAutomatisch, const std::vector<GEOM2_Polygon>& grundformen);
  void PfostenUndRiegelLegen();
  void FluegelBauen(const std::vector<GEOM2_Polygon>& grundformen);

  bool neu_ = true;
  CString dateiName_;
  CString name_;
  CString typName_;
  CString bitmap1_;
  CString bitmap2_;
  CMAchsen achsen_;
  CMFensterSatz rahmen_;
  double rahmenAbschnitt_ = 0.0;  // 0 for the default
  CMBauteil pfostenVorlage_;
  std::vector<std::unique_ptr<CMFensterSatz>> fluegel_;
  Box box_;
  std::vector<CMZusatzMasz> zusatzMasze_;
  long fehlerNummer_ = 0;
  CString fehlerText_;
};
