/* What results are received in: polygons, segments, bytes. The rules that hold
 * for every function are at the head of lintavo/lintavo_c.h. */
#pragma once

#include <stddef.h>

#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Size of a buffer that every text of a window fits into, its zero included. */
enum { LINTAVO_TEXT_SIZE = 257 };

/** The library's version, "1.0.0". The text is static. */
LINTAVO_API const char* lintavo_version(void);

/* --- polygons ------------------------------------------------------------- */

/** A closed outline in drawing units, counter-clockwise; the last point is not
 * a repetition of the first. */
typedef struct lintavo_polygon lintavo_polygon;

/** An empty polygon, to be returned through lintavo_polygon_destroy; null when
 * there is no memory. */
LINTAVO_API lintavo_polygon* lintavo_polygon_create(void);
/** Releases a polygon and the arrays it holds; null is left alone. */
LINTAVO_API void lintavo_polygon_destroy(lintavo_polygon* polygon);
/** Number of points. */
LINTAVO_API long lintavo_polygon_get_anzahl(const lintavo_polygon* polygon);
/** The x and the y of every point, null for an empty polygon. The arrays belong
 * to the polygon and are valid until it is filled again or destroyed. */
LINTAVO_API const double* lintavo_polygon_get_x(const lintavo_polygon* polygon);
LINTAVO_API const double* lintavo_polygon_get_y(const lintavo_polygon* polygon);
/** Point `i`; 0 for a bad index, the outputs are then left as they were. */
LINTAVO_API int lintavo_polygon_get_punkt(const lintavo_polygon* polygon, long i, double* x,
                                          double* y);

/* --- segments ------------------------------------------------------------- */

/** Line segments of a drawing, each with the colour index and the drawing
 * priority of what it belongs to. */
typedef struct lintavo_segments lintavo_segments;

/** One segment, in drawing units. */
typedef struct lintavo_segment {
  double x1, y1; /**< start */
  double x2, y2; /**< end */
  int farbe;     /**< colour index of the part */
  int prio;      /**< drawing priority of the part */
} lintavo_segment;

/** No segments, to be returned through lintavo_segments_destroy; null when
 * there is no memory. */
LINTAVO_API lintavo_segments* lintavo_segments_create(void);
/** Releases a list of segments; null is left alone. */
LINTAVO_API void lintavo_segments_destroy(lintavo_segments* segments);
/** Number of segments. */
LINTAVO_API long lintavo_segments_get_anzahl(const lintavo_segments* segments);
/** Copies segment `i`; 0 for a bad index, the output is then left as it was. */
LINTAVO_API int lintavo_segments_get_strecke(const lintavo_segments* segments, long i,
                                             lintavo_segment* segment);

/* --- bytes ---------------------------------------------------------------- */

/** A block of bytes: a macro file, or a picture in memory. */
typedef struct lintavo_bytes lintavo_bytes;

/** No bytes, to be returned through lintavo_bytes_destroy; null when there is
 * no memory. */
LINTAVO_API lintavo_bytes* lintavo_bytes_create(void);
/** Releases the block; null is left alone. */
LINTAVO_API void lintavo_bytes_destroy(lintavo_bytes* bytes);
/** Replaces the content by a copy of `size` bytes; a null `data` empties the
 * block. 0 when there is no memory, the content is then left as it was. */
LINTAVO_API int lintavo_bytes_set(lintavo_bytes* bytes, const char* data, size_t size);
/** Number of bytes, without the zero that follows them. */
LINTAVO_API size_t lintavo_bytes_get_size(const lintavo_bytes* bytes);
/** The bytes, followed by a zero; never null for a block. They belong to the
 * block and are valid until it is filled again or destroyed. */
LINTAVO_API const char* lintavo_bytes_get_data(const lintavo_bytes* bytes);

#ifdef __cplusplus
}
#endif
