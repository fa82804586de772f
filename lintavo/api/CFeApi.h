// The façade: one window behind plain C types, for hosts built with any tools.
//
// Every member forwards to the window (CMFenster) that the object owns; see
// there for the meaning of a window's parts. Nothing is ever thrown across this
// boundary, and any index may be passed.
#pragma once

#include "lintavo/api/CFeApiPolygon.h"
#include "lintavo/api/CFeApiStrecken.h"
#include "lintavo/api/CFeApiWandOeffnungsParameter.h"
#include "lintavo/platform/Export.h"

class CMBauteil;
class CMFenster;
class CMFensterSatz;
class CMZusatzMasz;
class CString;

/// Kinds of a sash's filling.
enum eFeApiFuellArten {
  eFeApiFuellungGlas = 0,      ///< glass; also the answer for a bad index
  eFeApiFuellungKonstant = 1,  ///< a panel of constant thickness
  eFeApiFuellungLamellen = 2   ///< horizontal slats
};

/// A window as a host sees it.
///
/// Lengths are in the window's own drawing units, angles in degrees unless
/// said otherwise; indices count from 0. Members with an `int` result answer 1
/// for success and 0 for failure. Queries read the last calculation; setters
/// only store, and the host calls `Berechne` when its changes are complete.
/// Only reading and `Berechne` change the error number and text.
///
/// Where there is no memory for a call it fails like any other and leaves the
/// object usable: what reads or calculates with the error number 1; what has no
/// result to tell by changes nothing.
///
/// Kinds of components (`lArt`): 1 frame parts, 2 single parts (mullions,
/// transoms, extra parts), 3 glazing bars (sashes only).
///
/// Different objects are independent. Of one object, several threads may call
/// const members at once while none calls another.
class LINTAVO_API CFeApi {
 public:
  /// An empty window.
  CFeApi();
  /// A copy of the other's window; without memory for it there is no window object.
  CFeApi(const CFeApi& other);
  /// Copies the other's window when both objects have one.
  CFeApi& operator=(const CFeApi& other);
  ~CFeApi();

  /// Empties the window; the object stays usable.
  void DeleteFenster();
  /// The window behind the façade, for C++ that works on the model too; it
  /// belongs to the façade. Null when there is no window object.
  const CMFenster* GetFensterPtr() const { return pFenster_; }
  /// Takes over a copy of a window that was made otherwise, as it is, last
  /// calculation included.
  int SetFenster(const CMFenster& fenster);

  // --- errors -------------------------------------------------------------

  /// Number of the last error, 0 for none, -1 when there is no window object.
  long GetErrorID() const;
  /// Text of the last error: the 256 bytes are zeroed, then at most 256 are
  /// copied, so a text of 256 bytes or more has no terminating zero. Returns
  /// the number of bytes copied.
  long GetErrorMsg(char (&text)[256]) const;

  // --- reading and writing ------------------------------------------------

  /// Reads a plain macro file and calculates the window. 1 only if both succeed.
  int ReadFromFile(const char* path);
  /// Reads a compressed macro file (one zlib stream of CR LF text) and
  /// calculates the window. Part of the format: at most 10000 bytes of the file
  /// and 10000 bytes of text count, and a damaged stream gives what could be
  /// inflated. 0 when the file cannot be opened or the window fails.
  int ReadFromCompressedFile(const char* path);
  /// Reads a buffer whose lines end with '#', as `WriteToBuffer` makes it.
  int ReadFromBuffer(long length, const char* buffer);
  /// Reads `length` bytes whose lines end with `separator`; line feeds are
  /// skipped and bytes after the last separator are dropped. 0 beyond 1,000,000 lines.
  int ReadFromBuffer(long length, const char* buffer, int separator);
  /// Writes the plain macro file. The axis grid is compacted first.
  int WriteToFile(const char* path);
  /// Hands out the macro file's lines, each followed by '#', without a
  /// terminating zero. The block belongs to the caller, who returns it through
  /// `FreeBuffer`. On failure both outputs are left as they were.
  void WriteToBuffer(long* length, char** buffer) const;
  /// Releases a block of `WriteToBuffer` and sets the pointer to null; a null
  /// pointer is left alone.
  void FreeBuffer(char** buffer) const;

  /// Names the window's type and writes its blank parameter form, see
  /// `CMFenster::SaveParameterFormular`. A null type name counts as empty.
  int WriteParameterFormular(const char* path, const char* typ);

  // --- files, without a window --------------------------------------------

  /// 1 when the path ends in "cqz" in any case (a dot is not asked for).
  static int IsFileCompressed(const char* path);
  /// 1 when the path ends in "tmp" in any case.
  static int IsFileTemporary(const char* path);
  /// The window's designation as stored in a plain or compressed macro file.
  /// `name` is cleared in every case. Returns the number of bytes copied.
  static long GetBezeichnungFromFile(const char* path, char (&name)[256]);
  /// First macro file ("aqz" or "cqz") of a folder tree, depth first, in the
  /// order of the file system. 1 and its path, or 0 and a cleared `path`.
  static int GetValidMakroFile(const char* directory, char (&path)[256]);

  // --- the window ---------------------------------------------------------

  /// Copies the window's designation; returns the number of bytes copied.
  long GetFensterBezeichnung(char (&name)[256]) const;
  double GetFensterBreite() const;  ///< overall width of the calculated window
  double GetFensterHoehe() const;   ///< overall height of the calculated window
  /// Recalculates the window from its stored description.
  int Berechne();

  // --- the frame ----------------------------------------------------------

  double GetRahmenBreite() const;        ///< width of the first frame part, 0.0 without one
  double GetRahmenDicke() const;         ///< thickness of the first frame part, 0.0 without one
  int SetRahmenBreite(double width);     ///< all frame parts; width at least 1e-6
  int SetRahmenDicke(double thickness);  ///< all frame parts; thickness at least 1e-6
  /// The frame's section value: sides shorter than this that turn by less than 25 degrees
  /// are merged into one bent frame part, of the frame and of the sashes. Where none is set
  /// it is 100 or, if that is more, a sixth of the larger extent of the calculated frame.
  double GetRahmenAbschnitt() const;
  /// Sets it for the next calculations, above 0; 0 sets back the default. No file has it:
  /// reading another window keeps it, copies have it.
  int SetRahmenAbschnitt(double length);
  /// Number of frame components of kind 1 or 2 that have a width and a length.
  long GetAnzahlRahmenBauteile(long lArt) const;
  long GetAnzahlRahmenBauteilSegmente(long lArt, long i) const;
  double GetRahmenBauteilDicke(long lArt, long i) const;
  /// What a component is: 0 frame part, mullion or transom, 1 glazing bar, 2 inner
  /// extra part, 3 outer extra part; -1 for a bad kind or index.
  long GetRahmenBauteilTyp(long lArt, long i) const;
  /// Display attribute a1 to a4 (`n` 1 to 4) of a frame component: from inside
  /// a1 is its colour, from outside a2. 0 for any bad index.
  long GetRahmenBauteilAttribut(long lArt, long i, long n) const;
  /// Outline of segment `lSegment` of a frame component, the length of the
  /// segment's axis and its two cut angles in degrees. Segment -1: the joined
  /// outline of all segments, the total length and the outer angles. The record
  /// handed in is emptied first.
  int GetRahmenBauteilUmriss(long lArt, long i, long lSegment, CFeApiPolygon& umriss,
                             double& dLaenge, double& dWinkelAnfang, double& dWinkelEnde) const;

  // --- the sashes ---------------------------------------------------------

  /// Number of sashes; -1 when there is no window object.
  long GetAnzahlFluegel() const;
  long GetFluegelName(long i, char (&name)[256]) const;
  double GetFluegelRahmenBreite(long i) const;
  double GetFluegelRahmenDicke(long i) const;
  double GetFluegelUeberschlag(long i) const;  ///< overlap of the sash on its frame
  /// Depth offset of sash `i` on one side: side 0 is inside, 1 outside; 0.0 for any
  /// other side.
  double GetFluegelZVersatz(long i, long side) const;
  int SetFluegelRahmenBreite(long i, double width);
  int SetFluegelRahmenDicke(long i, double thickness);
  int SetFluegelUeberschlag(long i, double overlap);  ///< overlap at least 0.0, finite
  int SetFluegelZVersatz(long i, double offset);      ///< offset at least 0.0, finite
  /// Number of components of sash `i` of kind 1, 2 or 3.
  long GetFluegelAnzahlBauteile(long lArt, long iFluegel) const;
  long GetFluegelAnzahlBauteilSegmente(long lArt, long iFluegel, long i) const;
  double GetFluegelBauteilDicke(long lArt, long iFluegel, long i) const;
  long GetFluegelBauteilTyp(long lArt, long iFluegel, long i) const;
  /// As `GetRahmenBauteilAttribut`, for component `i` of sash `iFluegel`.
  long GetFluegelBauteilAttribut(long lArt, long iFluegel, long i, long n) const;
  /// As `GetRahmenBauteilUmriss`, for component `i` of sash `iFluegel`.
  int GetFluegelBauteilUmriss(long lArt, long iFluegel, long i, long lSegment,
                              CFeApiPolygon& umriss, double& dLaenge, double& dWinkelAnfang,
                              double& dWinkelEnde) const;
  /// The sash's inner outline with inner extra parts, moved outwards by `d`
  /// (0 = as it is; the rebate in which the glass sits is positive).
  int GetFluegelInnenPolygon(long i, double d, CFeApiPolygon& polygon) const;
  eFeApiFuellArten GetFluegelFuellungArt(long i) const;
  double GetFluegelFuellungDicke(long i) const;
  /// The same of the filling of sash `i`, slats included.
  long GetFluegelFuellungAttribut(long i, long n) const;
  long GetAnzahlBeschlaege(long i) const;  ///< fittings of sash `i`; -1 for a bad index
  long GetAnzahlSprossen(long i) const;    ///< glazing bars of sash `i`; -1 for a bad index
  double GetSprossenBreite(long i, long j) const;
  double GetSprossenDicke(long i, long j) const;
  int SetSprossenBreite(long i, long j, double width);
  int SetSprossenDicke(long i, long j, double thickness);

  // --- additional dimensions ----------------------------------------------

  long GetAnzahlZusatzMasze() const;
  long GetZMaszName(long i, char (&name)[256]) const;
  /// The stored length with its sign; 0.0 for a bad index.
  double GetZMaszLaenge(long i) const;
  /// Stores a length of at least 1e-6. A dimension whose stored length is
  /// negative takes the negated value: the sign is the side it is counted to.
  int SetZMaszLaenge(long i, double length);
  /// The same for dimension `i` and every other one of its name (any case).
  int SetZMaszLaengeMitName(long i, double length);
  /// 1 when the window has an overall width and an overall height dimension.
  int IsZMaszBreiteHoehe() const;
  /// The same, with the index of each that was found, else -1.
  int IsZMaszBreiteHoehe(long& h, long& v) const;

  // --- drawings -------------------------------------------------------------

  // In each of these the records handed in are emptied first; 1 on success.

  /// The bounding box, widened by the extension lines (`dUeberstand` long) of
  /// all dimensions.
  int GetBox(double dUeberstand, double& xmin, double& ymin, double& xmax, double& ymax) const;
  /// The line of dimension `i`, one segment.
  int GetZMaszLinie(long i, CFeApiStrecken& linie) const;
  /// Its two extension lines, each `d` long.
  int GetZMaszHilfslinien(long i, double d, CFeApiStrecken& linien) const;
  /// Its two arrowheads, triangles whose tips lie on the ends of the line.
  int GetZMaszPfeile(long i, double dPfeilLaenge, double dPfeilBreite, CFeApiPolygon& p1,
                     CFeApiPolygon& p2) const;
  /// The front view with hidden lines removed, from inside (0) or outside (1).
  int GetAnsicht(int iVonAussen, CFeApiStrecken& linien) const;
  /// Sash `i` alone with hidden lines removed, with its opening symbol on request.
  int GetFluegelAnsicht(long i, int iMitSymbol, CFeApiStrecken& linien) const;
  /// The opening symbol of sash `i`; 0 for a sash that shows none.
  int GetFluegelOeffnungsSymbol(long i, CFeApiStrecken& linien) const;
  /// Short texts of a sash's opening kind ("DK"), hinge side ("Li") and opening
  /// side ("In"). Return the number of bytes copied, 0 for a bad index.
  long GetFluegelGangart(long i, char (&text)[256]) const;
  long GetFluegelAnschlag(long i, char (&text)[256]) const;
  long GetFluegelOeffSeite(long i, char (&text)[256]) const;
  /// 1 when sash `i` is the leaf of a pair that opens first, else 0.
  int GetFluegelZuerstAufgehend(long i) const;
  /// Contour of the filling of sash `i`.
  int GetFluegelFuellungUmriss(long i, CFeApiPolygon& umriss) const;
  /// Number of slats, and what is seen of one: its strip of the inner contour.
  long GetFluegelAnzahlLamellen(long i) const;
  int GetFluegelLamellenUmriss(long i, long j, CFeApiPolygon& umriss) const;
  /// Clear glass dimensions between the axes of the bars, from left to right
  /// and from bottom to top.
  int GetFluegelGlaslichteHori(long i, CFeApiStrecken& linien) const;
  int GetFluegelGlaslichteVert(long i, CFeApiStrecken& linien) const;
  /// Where fitting `j` of sash `i` sits, and its direction in degrees. A
  /// distance that reaches past its frame part counts as its end.
  int GetBeschlagPunkt(long i, long j, double& x, double& y, double& dWinkel) const;
  /// The fitting's drawing in its place.
  int GetBeschlagZeichnung(long i, long j, CFeApiStrecken& linien) const;
  /// Kind of a fitting: 0 a handle, 1 a hinge, other numbers as stored; -1 for a bad
  /// index.
  long GetBeschlagTyp(long i, long j) const;

  // --- the wall opening ---------------------------------------------------

  /// Outline of the opening that this window fits into.
  int GetWandOeffnung(const CFeApiWandOeffnungsParameter& param, CFeApiPolygon& polygon) const;
  /// Width and height of that opening's bounding box.
  int GetOeffMasze(const CFeApiWandOeffnungsParameter& param, double& width, double& height) const;
  /// Gives the overall width and height dimensions the lengths with which the
  /// window fits into an opening of width × height; `Berechne` then applies
  /// them. 0 without both dimensions.
  int SetBreiteHoehe(const CFeApiWandOeffnungsParameter& param, double width, double height);

 private:
  // The addressed object, or null for a bad index.
  const CMFensterSatz* Rahmen() const;
  const CMFensterSatz* Fluegel(long i) const;
  CMFensterSatz* Fluegel(long i);
  CMZusatzMasz* ZusatzMasz(long i) const;
  int SetzeRahmen(CMFensterSatz* satz, double CMBauteil::*masz, double value);
  template <class Zeichnen>
  int FluegelStrecken(long i, CFeApiStrecken& linien, Zeichnen zeichnen) const;
  long KurzText(long i, char (&text)[256], int CMFensterSatz::*index,
                CString (*kurzText)(long)) const;
  int SetzeSprosse(long i, long j, double CMBauteil::*masz, double value);

  CMFenster* pFenster_ = nullptr;
};
