/* The lines that a host needs to draw a window itself, in C. The rules that
 * hold for every function are at the head of lintavo/lintavo_c.h; finished
 * pictures are in lintavo/drawing_c.h. */
#pragma once

#include "lintavo/capi/records_c.h"
#include "lintavo/capi/window_c.h"
#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* In each of these the handles handed in are emptied first; 1 on success. */

/** The bounding box, widened by the extension lines (`overhang` long) of all
 * dimensions. */
LINTAVO_API int lintavo_window_get_box(const lintavo_window* window, double overhang, double* xmin,
                                       double* ymin, double* xmax, double* ymax);
/** The line of dimension `i`, one segment. */
LINTAVO_API int lintavo_window_get_zmasz_linie(const lintavo_window* window, long i,
                                               lintavo_segments* lines);
/** Its two extension lines, each `d` long. */
LINTAVO_API int lintavo_window_get_zmasz_hilfslinien(const lintavo_window* window, long i, double d,
                                                     lintavo_segments* lines);
/** Its two arrowheads, triangles whose tips lie on the ends of the line. */
LINTAVO_API int lintavo_window_get_zmasz_pfeile(const lintavo_window* window, long i, double length,
                                                double width, lintavo_polygon* first,
                                                lintavo_polygon* second);
/** The front view with hidden lines removed, from inside (0) or outside (1). */
LINTAVO_API int lintavo_window_get_ansicht(const lintavo_window* window, int from_outside,
                                           lintavo_segments* lines);
/** Sash `i` alone with hidden lines removed, with its opening symbol when
 * `with_symbol` is 1. */
LINTAVO_API int lintavo_window_get_fluegel_ansicht(const lintavo_window* window, long i,
                                                   int with_symbol, lintavo_segments* lines);
/** The opening symbol of sash `i`; 0 for a sash that shows none. */
LINTAVO_API int lintavo_window_get_fluegel_oeffnungs_symbol(const lintavo_window* window, long i,
                                                            lintavo_segments* lines);
/** Clear glass dimensions between the axes of the bars, from left to right and
 * from bottom to top. */
LINTAVO_API int lintavo_window_get_fluegel_glaslichte_hori(const lintavo_window* window, long i,
                                                           lintavo_segments* lines);
LINTAVO_API int lintavo_window_get_fluegel_glaslichte_vert(const lintavo_window* window, long i,
                                                           lintavo_segments* lines);
/** The drawing of fitting `j` of sash `i` in its place. */
LINTAVO_API int lintavo_window_get_beschlag_zeichnung(const lintavo_window* window, long i, long j,
                                                      lintavo_segments* lines);

#ifdef __cplusplus
}
#endif
