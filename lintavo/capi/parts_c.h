/* A window's frame and sashes in C. The rules that hold for every function are
 * at the head of lintavo/lintavo_c.h. */
#pragma once

#include <stddef.h>

#include "lintavo/capi/records_c.h"
#include "lintavo/capi/window_c.h"
#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Kinds of components, the argument `art` of the functions below. */
enum {
  LINTAVO_RAHMENTEILE = 1, /**< frame parts */
  LINTAVO_EINZELTEILE = 2, /**< mullions, transoms and extra parts */
  LINTAVO_SPROSSEN = 3     /**< glazing bars; sashes only */
};

/** The argument `segment` that stands for a component's joined outline. */
enum { LINTAVO_ALLE_SEGMENTE = -1 };

/** Kinds of a sash's filling. */
enum {
  LINTAVO_FUELLUNG_GLAS = 0,     /**< glass; also the answer for a bad index */
  LINTAVO_FUELLUNG_KONSTANT = 1, /**< a panel of constant thickness */
  LINTAVO_FUELLUNG_LAMELLEN = 2  /**< horizontal slats */
};

/* --- the frame ------------------------------------------------------------- */

/** Width and thickness of the first frame part, 0.0 without one. */
LINTAVO_API double lintavo_window_get_rahmen_breite(const lintavo_window* window);
LINTAVO_API double lintavo_window_get_rahmen_dicke(const lintavo_window* window);
/** Give all frame parts one width or thickness, at least 1e-6. */
LINTAVO_API int lintavo_window_set_rahmen_breite(lintavo_window* window, double width);
LINTAVO_API int lintavo_window_set_rahmen_dicke(lintavo_window* window, double thickness);
/**
 * The frame's section value: sides shorter than this that turn by less than 25 degrees are
 * merged into one bent frame part, of the frame and of the sashes. Where none is set it is
 * 100 or, if that is more, a sixth of the larger extent of the calculated frame.
 */
LINTAVO_API double lintavo_window_get_rahmen_abschnitt(const lintavo_window* window);
/**
 * Sets it for the next calculations, above 0; 0 sets back the default. No file has it:
 * reading another window keeps it, copies have it.
 */
LINTAVO_API int lintavo_window_set_rahmen_abschnitt(lintavo_window* window, double length);
/** Number of frame components of kind 1 or 2 that have a width and a length. */
LINTAVO_API long lintavo_window_get_anzahl_rahmen_bauteile(const lintavo_window* window, long art);
/** Number of segments of frame component `i`; a straight part has one. */
LINTAVO_API long lintavo_window_get_anzahl_rahmen_bauteil_segmente(const lintavo_window* window,
                                                                   long art, long i);
/** Thickness of frame component `i`. */
LINTAVO_API double lintavo_window_get_rahmen_bauteil_dicke(const lintavo_window* window, long art,
                                                           long i);
/** What a component is: 0 frame part, mullion or transom, 1 glazing bar, 2 inner
 * extra part, 3 outer extra part; -1 for a bad kind or index. */
LINTAVO_API long lintavo_window_get_rahmen_bauteil_typ(const lintavo_window* window, long art,
                                                       long i);
/** Display attribute a1 to a4 (`n` 1 to 4) of a frame component; 0 for any bad index. */
LINTAVO_API long lintavo_window_get_rahmen_bauteil_attribut(const lintavo_window* window, long art,
                                                            long i, long n);
/** Outline of a segment of frame component `i`, the length of the segment's axis
 * and its two cut angles in degrees. Segment LINTAVO_ALLE_SEGMENTE: the joined
 * outline, the total length and the outer angles. */
LINTAVO_API int lintavo_window_get_rahmen_bauteil_umriss(const lintavo_window* window, long art,
                                                         long i, long segment,
                                                         lintavo_polygon* outline, double* length,
                                                         double* start_angle, double* end_angle);

/* --- the sashes ------------------------------------------------------------ */

/** Number of sashes; -1 for a null window. */
LINTAVO_API long lintavo_window_get_anzahl_fluegel(const lintavo_window* window);
/** The name of sash `i`. Returns its length, 0 for a bad index. */
LINTAVO_API size_t lintavo_window_get_fluegel_name(const lintavo_window* window, long i, char* name,
                                                   size_t size);
/** Width and thickness of the sash's first frame part, 0.0 without one. */
LINTAVO_API double lintavo_window_get_fluegel_rahmen_breite(const lintavo_window* window, long i);
LINTAVO_API double lintavo_window_get_fluegel_rahmen_dicke(const lintavo_window* window, long i);
/** Overlap of the sash on its frame. */
LINTAVO_API double lintavo_window_get_fluegel_ueberschlag(const lintavo_window* window, long i);
/** Depth offset of sash `i` on one side: 0 is inside, 1 outside. */
LINTAVO_API double lintavo_window_get_fluegel_zversatz(const lintavo_window* window, long i,
                                                       long side);
/** Widths and thicknesses are at least 1e-6, overlap and offset at least 0.0. */
LINTAVO_API int lintavo_window_set_fluegel_rahmen_breite(lintavo_window* window, long i,
                                                         double width);
LINTAVO_API int lintavo_window_set_fluegel_rahmen_dicke(lintavo_window* window, long i,
                                                        double thickness);
LINTAVO_API int lintavo_window_set_fluegel_ueberschlag(lintavo_window* window, long i,
                                                       double overlap);
LINTAVO_API int lintavo_window_set_fluegel_zversatz(lintavo_window* window, long i, double offset);
/** Number of components of sash `fluegel` of kind 1, 2 or 3. */
LINTAVO_API long lintavo_window_get_fluegel_anzahl_bauteile(const lintavo_window* window, long art,
                                                            long fluegel);
/** Number of segments of component `i` of sash `fluegel`. */
LINTAVO_API long lintavo_window_get_fluegel_anzahl_bauteil_segmente(const lintavo_window* window,
                                                                    long art, long fluegel, long i);
/** Thickness of component `i` of sash `fluegel`. */
LINTAVO_API double lintavo_window_get_fluegel_bauteil_dicke(const lintavo_window* window, long art,
                                                            long fluegel, long i);
/** As lintavo_window_get_rahmen_bauteil_typ, for component `i` of sash `fluegel`. */
LINTAVO_API long lintavo_window_get_fluegel_bauteil_typ(const lintavo_window* window, long art,
                                                        long fluegel, long i);
/** As lintavo_window_get_rahmen_bauteil_attribut, for component `i` of sash `fluegel`. */
LINTAVO_API long lintavo_window_get_fluegel_bauteil_attribut(const lintavo_window* window, long art,
                                                             long fluegel, long i, long n);
/** The same of the filling of sash `i`. */
LINTAVO_API long lintavo_window_get_fluegel_fuellung_attribut(const lintavo_window* window, long i,
                                                              long n);
/** As lintavo_window_get_rahmen_bauteil_umriss, for component `i` of sash
 * `fluegel`. */
LINTAVO_API int lintavo_window_get_fluegel_bauteil_umriss(const lintavo_window* window, long art,
                                                          long fluegel, long i, long segment,
                                                          lintavo_polygon* outline, double* length,
                                                          double* start_angle, double* end_angle);
/** The sash's inner outline with inner extra parts, moved outwards by `d` (0: as
 * it is; the rebate in which the glass sits is positive). */
LINTAVO_API int lintavo_window_get_fluegel_innen_polygon(const lintavo_window* window, long i,
                                                         double d, lintavo_polygon* polygon);

/* --- a sash's filling, fittings and bars ----------------------------------- */

/** Kind of the filling, LINTAVO_FUELLUNG_...; glass for a bad index. */
LINTAVO_API int lintavo_window_get_fluegel_fuellung_art(const lintavo_window* window, long i);
/** Thickness of the filling. */
LINTAVO_API double lintavo_window_get_fluegel_fuellung_dicke(const lintavo_window* window, long i);
/** Contour of the filling of sash `i`. */
LINTAVO_API int lintavo_window_get_fluegel_fuellung_umriss(const lintavo_window* window, long i,
                                                           lintavo_polygon* outline);
/** Number of slats of the filling of sash `i`. */
LINTAVO_API long lintavo_window_get_fluegel_anzahl_lamellen(const lintavo_window* window, long i);
/** What is seen of slat `j` of sash `i`: its strip of the inner contour. */
LINTAVO_API int lintavo_window_get_fluegel_lamellen_umriss(const lintavo_window* window, long i,
                                                           long j, lintavo_polygon* outline);
/** Number of fittings of sash `i`; -1 for a bad index. */
LINTAVO_API long lintavo_window_get_anzahl_beschlaege(const lintavo_window* window, long i);
/** Where fitting `j` of sash `i` sits, and its direction in degrees. A distance
 * that reaches past its frame part is capped and stored so. */
LINTAVO_API int lintavo_window_get_beschlag_punkt(const lintavo_window* window, long i, long j,
                                                  double* x, double* y, double* angle);
/** Kind of a fitting: 0 a handle, 1 a hinge, other numbers as stored; -1 for a bad
 * index. */
LINTAVO_API long lintavo_window_get_beschlag_typ(const lintavo_window* window, long i, long j);
/** Number of glazing bars of sash `i`; -1 for a bad index. */
LINTAVO_API long lintavo_window_get_anzahl_sprossen(const lintavo_window* window, long i);
/** Width and thickness of bar `j` of sash `i`. */
LINTAVO_API double lintavo_window_get_sprossen_breite(const lintavo_window* window, long i, long j);
LINTAVO_API double lintavo_window_get_sprossen_dicke(const lintavo_window* window, long i, long j);
/** Set them, at least 1e-6. */
LINTAVO_API int lintavo_window_set_sprossen_breite(lintavo_window* window, long i, long j,
                                                   double width);
LINTAVO_API int lintavo_window_set_sprossen_dicke(lintavo_window* window, long i, long j,
                                                  double thickness);

/* --- how a sash opens ------------------------------------------------------ */

/** Short texts of a sash's opening kind ("DK"), hinge side ("Li") and opening
 * side ("In"). Return the text's length, 0 for a bad index. */
LINTAVO_API size_t lintavo_window_get_fluegel_gangart(const lintavo_window* window, long i,
                                                      char* text, size_t size);
LINTAVO_API size_t lintavo_window_get_fluegel_anschlag(const lintavo_window* window, long i,
                                                       char* text, size_t size);
LINTAVO_API size_t lintavo_window_get_fluegel_oeff_seite(const lintavo_window* window, long i,
                                                         char* text, size_t size);
/** 1 when sash `i` is the leaf of a pair that opens first, else 0. */
LINTAVO_API int lintavo_window_get_fluegel_zuerst_aufgehend(const lintavo_window* window, long i);

#ifdef __cplusplus
}
#endif
