// The record of a sash, and of the window's outer frame.
//
// The record holds what a sash is made of and derives its frame parts, contours
// and bars; the outline comes from its shape class. Sources by theme:
// CMFensterSatz.cpp (state, lists), _Datei (file section), _Rahmen (frame
// polygon and parts), _Sprossen (glazing bars), _Stich (rise fitting),
// _Zusatzteile (extra parts), _Fuellung (filling, fittings, glass dimensions),
// _Symbole (opening symbols), _Bild (the picture of one sash).
#pragma once

#include <memory_resource>
#include <vector>

#include "lintavo/geom/CMStrecke.h"
#include "lintavo/geom/GEOM2_Polygon.h"
#include "lintavo/geom/XY.h"
#include "lintavo/model/CMBauteil.h"
#include "lintavo/model/CMKnoten.h"
#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"
#include "lintavo/sash/CMBeschlag.h"
#include "lintavo/sash/CMFuellung.h"

class CIniFile;
class CMAchsen;
class CMFenster;

namespace lintavo {
class Auflager;
}

/// Shape codes of sashes, the values of `CMFensterSatz::lForm`.
enum eFluegelFormen : int {
  eFormRechteck = 1,
  eFormBogen = 2,
  eFormEllipse = 3,
  eFormHalbBogen = 4
};

/// Opening kinds, the values of `CMFensterSatz::lGangart`.
enum eGangarten : int {
  eGangartFest = 0,              ///< "Fe": fixed glazing
  eGangartDreh = 1,              ///< "Dr": turns about an upright side
  eGangartKipp = 2,              ///< "Ki": tilts about its lower side
  eGangartKlapp = 3,             ///< "Kl": swings about its upper side
  eGangartDrehKipp = 4,          ///< "DK": turns and tilts
  eGangartHebeDreh = 5,          ///< "HD": is lifted, then turns
  eGangartSchwing = 6,           ///< "Sw": pivots about its level middle axis
  eGangartWende = 7,             ///< "We": pivots about its upright middle axis
  eGangartSchiebe = 8,           ///< "Sc": slides
  eGangartHebeSchiebe = 9,       ///< "HS": is lifted, then slides
  eGangartFalt = 10,             ///< "Fa": folds
  eGangartHebeSchiebeKipp = 11,  ///< "HSK": is lifted, then slides, and tilts
};

/// Hinge sides, the values of `CMFensterSatz::lAnschlag`. A sliding sash moves
/// away from its hinge side.
enum eAnschlagSeiten : int {
  eAnschlagLinks = 0,
  eAnschlagRechts = 1,
  eAnschlagOben = 2,
  eAnschlagUnten = 3
};

/// One coefficient of a rectangle's corner, in drawing units.
struct FormBeiwert {
  double dWert = 0.0;
  bool bFest = true;  ///< keeps its value when the sash is stretched
};

/// A sash ("Fluegel") or the window's frame ("Rahmen").
///
/// The object owns its lists, filling and fittings by value; a copy is deep.
/// Pointers to components stay valid until their list changes. Lengths are
/// drawing units, angles degrees. Outlines run counter-clockwise, so a frame
/// part lies on the left of its axes.
class LINTAVO_API CMFensterSatz {
 public:
  CMFensterSatz();
  CMFensterSatz(const CMFensterSatz&) = default;
  CMFensterSatz(CMFensterSatz&&) noexcept = default;
  CMFensterSatz& operator=(CMFensterSatz&&) noexcept = default;

  // --- virtual operations, in the order that every shape keeps ---------------

  virtual ~CMFensterSatz() = default;
  /// Copies every field, the shape code included.
  virtual CMFensterSatz& operator=(const CMFensterSatz&) = default;
  /// Appends what `section` holds. False, without a message, when the frame
  /// thickness or a corner node is missing; what was read until then stays.
  virtual bool ReadFromIniFile(const CString& section, CIniFile& document);
  /// Writes the whole section. Always true.
  virtual bool SaveToIniFile(const CString& section, CIniFile& document) const;
  /// Stretches movable shape coefficients after the sash's extent along one
  /// direction grew by `delta` per axis interval.
  virtual void FormBeiwerteAnpassen(bool horizontal, const CMAchsen& axes, long i1, long i2,
                                    double delta);
  /// Fits the rise of an arch to the window's vertical dimensions; true when it
  /// changed. May throw message 49.
  virtual bool bStichAnpassen(CMFenster& fenster);
  /// Corners of the outline's bounding box: top left, bottom left, top right,
  /// bottom right. Always true.
  virtual bool Get4BorderPoints(XY& a, XY& b, XY& c, XY& d, const GEOM2_Polygon& outline) const;
  /// Builds the outline from the placement points (two opposite corners, left
  /// and right reference point). The record without a shape has none: false.
  virtual bool BerechneGrundform(const XY& p1, const XY& p2, const XY& p3, const XY& p4,
                                 GEOM2_Polygon& outline);
  /// Diagnostic hook without effect.
  virtual void Trace() const {}

  // --- state ---------------------------------------------------------------

  /// Resets the plain fields; nodes, frame template, lists, filling and rises
  /// stay as they are.
  void Init();
  /// Empties the lists and the frame polygon, then `Init`. The single parts go
  /// only when `auchEinzelTeile` is true.
  void Delete(bool auchEinzelTeile = true);
  void DeleteAlleSprossen() { Sprossen.clear(); }
  void DeleteBeschlaege() { Beschlaege.clear(); }
  void SetName(const CString& name) { strName = name; }
  bool IsZuerstAufgehend() const { return bZuerstAufgehend; }

  /// Stores coefficient `i`: 0 top left, 1 top right, 2 bottom left, 3 bottom
  /// right. The index must be 0..3; it is not checked in release builds.
  void SetFormBeiwertX(long i, double value, bool fixed);
  void SetFormBeiwertY(long i, double value, bool fixed);

  /// Sets the frame template; p, q, r, s become the attributes a3, a1, a4, a2.
  void SetRahmenDefaults(double width, double thickness, double width2, int p, int q, int r, int s);
  /// The same with p = q and r = s.
  void SetRahmenDefaults(double width, double thickness, double width2, int p, int r);

  // --- short texts of opening side, opening kind and hinge side --------------

  /// Index of a short text in any case; -1 when there is none.
  static long GetOeffSeitenIndex(const CString& text);
  static long GetGangArtIndex(const CString& text);
  static long GetAnschlagIndex(const CString& text);
  /// Short text of an index, which must be valid; it is not checked in release
  /// builds.
  static CString GetOeffSeitenKurzText(long i);
  static CString GetGangArtKurzText(long i);
  static CString GetAnschlagKurzText(long i);

  // --- parts of the file section ---------------------------------------------

  bool ReadFuellungFromIniFile(const CString& section, CIniFile& document);
  bool SaveFuellungToIniFile(const CString& section, CIniFile& document) const;
  bool ReadGangartFromIniFile(const CString& section, CIniFile& document);
  bool SaveGangartToIniFile(CString& section, CIniFile& document) const;
  /// Writes the components into a blank parameter form, lengths times ten:
  /// `lArt` 0 the window's frame ("R" lists), 1 a sash ("F" lists). Outer extra parts are
  /// left out: every "Z" list that is read adds one to those that the type has.
  void SaveBauteileToParameterFormular(long lArt, const CString& section, CIniFile& document) const;

  // --- frame polygon, frame parts and contours -------------------------------

  /// Numbers the polygon's sides by frame part in its attributes: runs of sides
  /// shorter than `maxLength` that turn by less than `maxAngle` share a number.
  /// Returns the number of frame parts, -1 for an empty polygon.
  long RahmenSegmenteZusammenfassen(double maxLength, double maxAngle,
                                    GEOM2_Polygon& polygon) const;
  /// Builds the frame polygon of this sash from its outline: each side moves in
  /// by the window frame's part or the mullion it lies on, and out by the
  /// overlap. False when nothing of the outline remains. The last argument is
  /// not used.
  bool BerechneRahmenPolygon(double maxLength, double maxAngle, const CMFensterSatz& frame,
                             const GEOM2_Polygon& outline, long unused = 0);
  /// The same for all sashes of a window, whose frame is looked at once.
  bool BerechneRahmenPolygon(double maxLength, double maxAngle, const lintavo::Auflager& auflager,
                             const GEOM2_Polygon& outline);
  /// Creates or updates the frame parts along the frame polygon, mitred so that
  /// their outlines tile the ring between it and the inner contour. False with
  /// fewer than three vertices; throws 19 or 22 when the ring cannot be built.
  bool ErzeugeRahmenBauteile();
  /// Contour around all extra parts; the second further value of a vertex is the
  /// side that starts there. False with fewer than three vertices; throws 22 when
  /// nothing remains.
  bool ErzeugeRahmenAussenPolygon(GEOM2_Polygon& out) const;
  /// The same with the extra parts of one side only.
  bool ErzeugeRahmenAussenPolygon(GEOM2_Polygon& out, long side) const;
  /// Contour inside the frame parts and, on request, the inner extra parts.
  /// False with fewer than three vertices; throws 22 when nothing remains.
  bool ErzeugeRahmenInnenPolygon(bool mitZusatzteilen, GEOM2_Polygon& out) const;
  bool ErzeugeRahmenInnenPolygon(GEOM2_Polygon& out) const {
    return ErzeugeRahmenInnenPolygon(true, out);
  }
  /// Widths of all extra parts on a side, without the frame part's own.
  double GetAbstandZurRahmenAussenSeite(long side) const;
  /// Width of the side's frame part and, on request, of the inner extra parts
  /// on it. 0.0 without a frame part.
  double GetAbstandZurRahmenInnenSeite(bool mitZusatzteilen, long side) const;

  /// Number of the frame part to which a side belongs; -1 for a bad index.
  long GetBauteilNr(const GEOM2_Polygon& polygon, long side) const;
  /// The frame part to which a side belongs, or null.
  CMBauteil* GetBauteilPtr(const GEOM2_Polygon& polygon, long side);
  const CMBauteil* GetBauteilPtr(const GEOM2_Polygon& polygon, long side) const;
  /// Frame part `i`; the template when `i` is past the end, so that callers get
  /// the defaults; null for a negative index or a sash without a frame.
  CMBauteil* GetRahmenBauteilPtr(long i);
  const CMBauteil* GetRahmenBauteilPtr(long i) const;
  /// Single part / glazing bar `i`, null for a bad index.
  CMBauteil* GetEinzelBauteilPtr(long i);
  const CMBauteil* GetEinzelBauteilPtr(long i) const;
  CMBauteil* GetSprossenBauteilPtr(long i);
  const CMBauteil* GetSprossenBauteilPtr(long i) const;
  /// Moves everything that has coordinates: the frame polygon, all components and the
  /// filling's outline.
  void Verschieben(double dx, double dy);
  /// Number of components that have a width and a length.
  long lGetAnzahlRahmenBauteile() const;
  long lGetAnzahlEinzelBauteile() const;
  long lGetAnzahlSprossenBauteile() const;
  /// Position of a component in its list, by identity; -1 when it is not there.
  long GetRahmenBauteilNr(const CMBauteil* bauteil) const;
  long GetEinzelBauteilNr(const CMBauteil* bauteil) const;

  /// Grid positions of the four placement nodes.
  void GetPlazierungsPunkte(const CMAchsen& axes, XY& p1, XY& p2, XY& pAL, XY& pAR) const;
  /// Larger column and larger row of the corner nodes: j, k, j, k. All four are
  /// maxima on purpose, in spite of the name; callers are tuned to it.
  void GetMinMaxKnotenIndizes(long indices[4]) const;

  // --- glazing bars ----------------------------------------------------------

  /// Appends the bars of a pattern, clipped to the inner contour, and gives
  /// them the pattern's number. False when the pattern has no range; throws 53
  /// with the sash's name when there is no inner contour.
  /// A `breite` above 0 is the bars' width in drawing units, whatever the pattern
  /// says.
  bool ErzeugeSprossenBild(long nummer, CIniFile& pattern, double breite = 0.0);
  /// Appends a bar from p1 to p2, clipped to `contour`. Returns the new bar, or
  /// null when nothing of it remains.
  CMBauteil* AddSprosse(const CMBauteil& vorlage, const XY& p1, const XY& p2,
                        const GEOM2_Polygon& contour);
  /// Cuts every bar to the inner contour. Bars are only ever shortened.
  void ClippSprossen();

  // --- extra parts -----------------------------------------------------------

  /// Attaches a copy of `part` to a straight side of the frame polygon: an outer
  /// extra part when `aussen`, else an inner one. Returns the stored part, or
  /// null when it cannot be attached.
  CMBauteil* AddZusatzteil(long side, const CMBauteil& part, bool aussen = false);
  /// Removes single part `i`; false for a bad index.
  bool DeleteEinzelBauteil(long i);
  /// Lays axis 0 of an extra part along its side, outside or inside everything
  /// that its side carries. False when it has no place.
  bool PlaziereZusatzteil(CMBauteil& part) const;
  /// Places all outer (true) or all inner (false) extra parts, and those of
  /// either kind that hang in a chain already, in the order of the list. A part
  /// that has no place gets an axis of length zero and leaves its chain, so that
  /// its width counts nowhere. Always true; throws when a chain names a part that
  /// does not exist.
  bool PlaziereZusatzteile(bool aussen);

  // --- filling ---------------------------------------------------------------

  /// The contour of the filling and, where it is slats, the slats.
  ///
  /// The contour is the inner contour with extra parts, without edges shorter
  /// than the filling's `D7` (all of them stay where none would be long enough).
  /// Slats lie level from its lower edge upwards, one gap before each, cut to the
  /// contour. More than 0.1 of remaining height gets one more slat of that width,
  /// behind a gap as well, so that it may reach past the top. They are appended
  /// and carry `nummer` in `lReferenz`. No more than 1000 are made, from below;
  /// none when the slats' width or their pitch is below 1e-6 or not finite.
  ///
  /// @return false, with an empty contour, when there is no inner contour, and
  ///         for slats in a contour without height or width.
  bool GetFuellung(long nummer, GEOM2_Polygon& contour, std::vector<CMBauteil>& slats) const;
  /// Number of those slats, 0 for any other filling, and slat `i` of them alone, to the
  /// bit the same: for hosts that ask for one slat after the other. False, with
  /// `lamelle` left alone, when there is no slat `i`.
  long GetAnzahlLamellen() const;
  bool GetLamelle(long nummer, long i, CMBauteil& lamelle) const;
  /// What is seen of slat `i`: the strip of its width across the inner contour with extra
  /// parts. The slat itself is sawn straight, so under an arch its own outline leaves a gap
  /// or stands out. In a contour that is not convex, as corners moved far inwards can make
  /// it, it is the slat's own outline all the same. False, with an empty outline, when there
  /// is no slat `i`.
  bool GetLamellenUmriss(long i, GEOM2_Polygon& umriss) const;

  /// Appends the glass dimensions: the chain from one side of the inner contour's
  /// box to the other along the axes of the bars that run straight across it.
  /// Hori measures between upright bars on the box's lower edge, from left to
  /// right; Vert between level bars on its left edge, upwards. Bars that end half
  /// way divide the chain too. False when there is no inner contour.
  bool GetMaszeGlaslichteHori(std::vector<CMStrecke>& masze) const;
  bool GetMaszeGlaslichteVert(std::vector<CMStrecke>& masze) const;

  // --- fittings --------------------------------------------------------------

  /// Puts a fitting on frame part `part` and returns its index; -1 when there is
  /// no such part. The distances are brought into their range: 0 to the length
  /// and the width of the part, or 0 to 100 percent. A handle sits on the outer
  /// edge: its second distance becomes 0 percent.
  long ErzeugeBeschlag(long part, eBeschlagTypen type, eVermaszung mode1, double d1,
                       eVermaszung mode2, double d2);
  long lGetAnzahlBeschlaege() const { return static_cast<long>(Beschlaege.size()); }
  /// Fitting `i`, null for a bad index.
  CMBeschlag* GetBeschlagPtr(long i);
  const CMBeschlag* GetBeschlagPtr(long i) const;

  // --- drawings --------------------------------------------------------------

  /// Appends the symbol of how the sash opens, by `lGangart` and `lAnschlag`,
  /// inside the inner contour without extra parts; colour and priority of the
  /// lines are 0. Only a sash filled with glass has one.
  ///
  /// @return whether the list holds any line then; false without glass or inner
  ///         contour, whatever the list holds.
  bool GetOeffSymbol(std::vector<CMStrecke>& lines) const;

  /// Appends the picture of the sash alone, seen from inside, hidden lines
  /// removed, and on request its opening symbol.
  ///
  /// Frame parts cover single parts, these glazing bars, and these the filling,
  /// whose slats show inside its border; of equal parts the earlier one runs
  /// through. Drawn are the edges of the parts that their outlines mark as visible
  /// (no mitres and joints), with the part's attributes a1 as colour and a3 as
  /// priority. Where edges coincide (within 0.001) that of the highest priority is
  /// drawn, of equals the nearer.
  ///
  /// @return whether the list holds any line then; false, with nothing appended,
  ///         when the picture would have more than 100,000 lines.
  bool GetFluegelBild2D(std::vector<CMStrecke>& lines, bool bMitOeffnungssymbol) const;

  // --- fields ----------------------------------------------------------------

  int lForm = eFormRechteck;  ///< shape code, one of `eFluegelFormen`
  CMKnoten Knoten1;           ///< two opposite corners of the placement
  CMKnoten Knoten2;           ///< rectangle
  CMKnoten KnotenAL;          ///< left and right end of a shared arch
  CMKnoten KnotenAR;
  CString strName;
  GEOM2_Polygon RahmenPolygon;  ///< outer edge of the frame parts; attribute = part
  CMBauteil RahmenVorlage;      ///< defaults of new frame parts
  std::vector<CMBauteil> RahmenTeile;
  std::vector<CMBauteil> EinzelTeile;  ///< mullions, transoms and extra parts
  CMBauteil SprossenVorlage;           ///< defaults of new glazing bars
  std::vector<CMBauteil> Sprossen;
  double dZVersatz = 0.0;  ///< depth offset against the window
  bool bMitRahmen = true;  ///< has a frame of its own
  int lOeffSeite = 0;      ///< index of the opening side
  int lGangart = 0;        ///< index of the opening kind
  int lAnschlag = 0;       ///< index of the hinge side
  CMFuellung Fuellung;
  std::vector<CMBeschlag> Beschlaege;
  bool bZuerstAufgehend = false;  ///< this leaf of a pair opens first
  double dBreite = 0.0;           ///< placement width of the last outline
  double dHoehe = 0.0;            ///< placement height of the last outline
  FormBeiwert FormBeiwertX[4];    ///< rectangles: along the horizontal edge
  FormBeiwert FormBeiwertY[4];    ///< rectangles: along the vertical edge
  double dStich = 0.0;            ///< arches: rise at the top
  double dStichUnten = 0.0;       ///< arches: rise at the bottom
  bool bKorbbogen = false;        ///< arches: half ellipse instead of a circle
  bool bGespiegelt = false;       ///< half arches: crown on the left
  int lTyp2 = 0;                  ///< second number of the file's "Typ"

 protected:
  /// Fits the top rise to the first vertical, one-sided dimension that starts
  /// at a corner point and ends on this arch's springing line: the line moves so
  /// that the span becomes the dimension's length, and so does that of every
  /// other arch of the window on whose line the dimension ends. The end nodes of
  /// the fitted dimensions move along, so that fitting again changes nothing.
  /// True when the rise changed; throws 49 when it would be negative or exceed
  /// the sash's width.
  bool bBaseStichAnpassen(CMFenster& fenster);
  /// The keys that arches and half arches share.
  void ReadBogenFromIniFile(const CString& section, CIniFile& document);
  void SaveBogenToIniFile(const CString& section, CIniFile& document) const;

 private:
  void BauteileDenSeitenZuordnen();
  template <class Gilt>
  bool AussenPolygon(Gilt gilt, GEOM2_Polygon& out) const;
  /// How far every side of the frame polygon moves for the inner contour.
  std::pmr::vector<double> InnenAbstaende(bool mitZusatzteilen,
                                          std::pmr::polymorphic_allocator<> speicher) const;
  bool SprossenKontur(GEOM2_Polygon& contour) const;
  bool KonturLesen(bool mitZusatzteilen, GEOM2_Polygon& contour) const;
  bool FuellungsKontur(GEOM2_Polygon& contour) const;
  bool MaszeGlaslichte(bool hori, std::vector<CMStrecke>& masze) const;
  void SymbolDreh(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                  const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const;
  void SymbolDreh(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                  std::vector<CMStrecke>& lines) const;
  void SymbolKipp(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                  const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const;
  void SymbolKlapp(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                   const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const;
  void SymbolRaute(const XY& tl, const XY& bl, const XY& tr, const XY& br,
                   const GEOM2_Polygon& contour, std::vector<CMStrecke>& lines) const;
  CMBauteil* SprosseAnfuegen(const CMBauteil& vorlage, GEOM2_Achse achse,
                             const GEOM2_Polygon& contour);
  long* KettenEnde(const CMBauteil& part);
  bool ZusatzteilAnschliessen(CMBauteil& part, bool aussen);
  std::vector<bool> KettenAufloesen();
};
