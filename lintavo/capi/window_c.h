/* A window in C: its life, its files, its dimensions and its wall opening. The
 * rules that hold for every function are at the head of lintavo/lintavo_c.h. */
#pragma once

#include <stddef.h>

#include "lintavo/capi/records_c.h"
#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** A parametric window. Lengths are in the window's own drawing units, angles
 * in degrees unless said otherwise, indices count from 0. Queries answer from
 * the last calculation; setters only store, and lintavo_window_berechne
 * applies what they stored. */
typedef struct lintavo_window lintavo_window;

/* --- life ------------------------------------------------------------------ */

/** An empty window, to be returned through lintavo_window_destroy; null when
 * there is no memory. */
LINTAVO_API lintavo_window* lintavo_window_create(void);
/** A window of its own with all that `window` holds, to be returned through
 * lintavo_window_destroy; null for null or when there is no memory. */
LINTAVO_API lintavo_window* lintavo_window_copy(const lintavo_window* window);
/** Gives `window` all that `source` holds. 0, with nothing changed, when one of
 * them is null or there is no memory. */
LINTAVO_API int lintavo_window_assign(lintavo_window* window, const lintavo_window* source);
/** Releases the window; null is left alone. */
LINTAVO_API void lintavo_window_destroy(lintavo_window* window);
/** Empties the window; it stays usable. Without any memory it keeps what it has. */
LINTAVO_API void lintavo_window_delete_fenster(lintavo_window* window);

/* --- errors ---------------------------------------------------------------- */

/** Number of the last error, 0 for none, -1 for a null window. Only reading and
 * lintavo_window_berechne change it. */
LINTAVO_API long lintavo_window_get_error_id(const lintavo_window* window);
/** Text of the last error, German, UTF-8. Returns its length. */
LINTAVO_API size_t lintavo_window_get_error_msg(const lintavo_window* window, char* text,
                                                size_t size);

/* --- reading and writing --------------------------------------------------- */

/** Reads a plain macro file and calculates the window. 1 only if both succeed;
 * afterwards lintavo_window_get_error_id and ..._msg tell what was wrong. */
LINTAVO_API int lintavo_window_read_from_file(lintavo_window* window, const char* path);
/** Reads a compressed macro file and calculates the window. A file that cannot
 * be opened leaves no error number. */
LINTAVO_API int lintavo_window_read_from_compressed_file(lintavo_window* window, const char* path);
/** Reads `length` bytes of a macro file whose lines end with `separator`: '#'
 * as lintavo_window_write_to_buffer makes it, '\r' for a file's text. Line feeds
 * are skipped and bytes after the last separator are dropped. The bytes remain
 * the caller's. */
LINTAVO_API int lintavo_window_read_from_buffer(lintavo_window* window, const char* bytes,
                                                long length, int separator);
/** Writes a plain macro file. 0 when it cannot be written in full. */
LINTAVO_API int lintavo_window_write_to_file(lintavo_window* window, const char* path);
/** Names the window's type (null counts as empty) and writes its blank parameter
 * form. 0 when it cannot be written. */
LINTAVO_API int lintavo_window_write_parameter_formular(lintavo_window* window, const char* path,
                                                        const char* type);
/** Replaces the block's content by the macro file's lines, each followed by
 * '#'. 0 when there is no memory, the content is then left as it was. */
LINTAVO_API int lintavo_window_write_to_buffer(const lintavo_window* window, lintavo_bytes* bytes);

/* --- files, without a window ----------------------------------------------- */

/** 1 when the path ends in "cqz" in any case (a dot is not asked for). */
LINTAVO_API int lintavo_is_file_compressed(const char* path);
/** 1 when the path ends in "tmp" in any case. */
LINTAVO_API int lintavo_is_file_temporary(const char* path);
/** The designation that a plain or compressed macro file stores. Returns its
 * length, 0 when there is none. */
LINTAVO_API size_t lintavo_get_bezeichnung_from_file(const char* path, char* name, size_t size);
/** The path of the first macro file ("aqz" or "cqz") of a folder tree, depth
 * first. Returns its length, 0 when there is none. */
LINTAVO_API size_t lintavo_get_valid_makro_file(const char* directory, char* path, size_t size);

/* --- the window ------------------------------------------------------------ */

/** The window's designation. Returns its length. */
LINTAVO_API size_t lintavo_window_get_fenster_bezeichnung(const lintavo_window* window, char* name,
                                                          size_t size);
/** Overall width and height of the calculated window, 0.0 for an empty one. */
LINTAVO_API double lintavo_window_get_fenster_breite(const lintavo_window* window);
LINTAVO_API double lintavo_window_get_fenster_hoehe(const lintavo_window* window);
/** Recalculates the window from what is stored. After a failure the changes
 * remain stored and the error's number and text can be asked for. */
LINTAVO_API int lintavo_window_berechne(lintavo_window* window);

/* --- additional dimensions ------------------------------------------------- */

/** Number of dimensions by which the window can be changed. */
LINTAVO_API long lintavo_window_get_anzahl_zusatz_masze(const lintavo_window* window);
/** The name of dimension `i`. Returns its length, 0 for a bad index. */
LINTAVO_API size_t lintavo_window_get_zmasz_name(const lintavo_window* window, long i, char* name,
                                                 size_t size);
/** The stored length with its sign, which is the side it is counted to; 0.0 for
 * a bad index. */
LINTAVO_API double lintavo_window_get_zmasz_laenge(const lintavo_window* window, long i);
/** Stores a length of at least 1e-6; the sign of the stored one is kept. */
LINTAVO_API int lintavo_window_set_zmasz_laenge(lintavo_window* window, long i, double length);
/** The same for dimension `i` and every other one of its name (any case). */
LINTAVO_API int lintavo_window_set_zmasz_laenge_mit_name(lintavo_window* window, long i,
                                                         double length);
/** 1 when the window has an overall width and an overall height dimension. `h`
 * and `v` receive the index of the one for the width and for the height, -1 for
 * one that is missing. */
LINTAVO_API int lintavo_window_is_zmasz_breite_hoehe(const lintavo_window* window, long* h,
                                                     long* v);

/* --- the wall opening ------------------------------------------------------ */

/** Margins between a frame and its wall opening. Lengths in drawing units,
 * angles in radians. A positive reveal makes the opening smaller than the frame
 * on that side, a splay makes it larger. All zero: the opening is the frame's
 * outline. */
typedef struct lintavo_opening {
  int schraege1;    /**< 1: the right side is splayed by winkel1 */
  int schraege2;    /**< 1: the left side is splayed by winkel2 */
  double winkel1;   /**< splay angle of schraege1, radians */
  double winkel2;   /**< splay angle of schraege2, radians */
  double leibung_a; /**< reveal at the top */
  double leibung_b; /**< reveal at the bottom */
  double leibung_c; /**< reveal on the right, without splay */
  double leibung_d; /**< reveal on the left, without splay */
  double tiefe;     /**< depth of the reveal; a splay's margin is tan(angle) * depth */
} lintavo_opening;

/* In the following a null `opening` stands for one without any margins. */

/** Outline of the opening that this window fits into. */
LINTAVO_API int lintavo_window_get_wand_oeffnung(const lintavo_window* window,
                                                 const lintavo_opening* opening,
                                                 lintavo_polygon* polygon);
/** Width and height of that opening's bounding box. */
LINTAVO_API int lintavo_window_get_oeff_masze(const lintavo_window* window,
                                              const lintavo_opening* opening, double* width,
                                              double* height);
/** Gives the overall dimensions the lengths with which the window fits into an
 * opening of width x height; lintavo_window_berechne then applies them. 0 when
 * the window has not both dimensions. */
LINTAVO_API int lintavo_window_set_breite_hoehe(lintavo_window* window,
                                                const lintavo_opening* opening, double width,
                                                double height);

#ifdef __cplusplus
}
#endif
