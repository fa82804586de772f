/* Pictures of a window for C: SVG, PDF and PNG, in memory or as a file. The
 * rules at the head of lintavo/lintavo_c.h hold here too. Part of the drawing
 * library (pkg-config lintavo-drawing, CMake lintavo::drawing). */
#pragma once

#include "lintavo/capi/records_c.h"
#include "lintavo/capi/window_c.h"
#include "lintavo/drawing/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Formats of a picture. */
enum {
  LINTAVO_FORMAT_SVG = 0, /**< the longer side is 1600 units; no ground */
  LINTAVO_FORMAT_PDF = 1, /**< the longer side is 800 points; no ground */
  LINTAVO_FORMAT_PNG = 2  /**< the longer side is 1600 pixels; white ground */
};

/** What a picture shows: any of these added up. 0: filled shapes seen from inside,
 * with dimensions and opening symbols. */
enum {
  LINTAVO_VON_AUSSEN = 1,   /**< seen from outside */
  LINTAVO_OHNE_MASZE = 2,   /**< without dimension lines and their texts */
  LINTAVO_OHNE_SYMBOLE = 4, /**< without opening symbols */
  LINTAVO_NUR_SICHTBARE = 8 /**< visible edges instead of filled shapes */
};

/** How making a picture ended. Note that success is 0 here. */
enum {
  LINTAVO_PICTURE_OK = 0,
  LINTAVO_PICTURE_EMPTY = 1,       /**< the window has nothing to draw */
  LINTAVO_PICTURE_UNBOUNDED = 2,   /**< a coordinate or the extent is no finite number */
  LINTAVO_PICTURE_FAILED = 3,      /**< the graphics library reported an error */
  LINTAVO_PICTURE_NOT_WRITTEN = 4, /**< the file cannot be written in full; an old one stays */
  LINTAVO_PICTURE_NO_GRAPHICS = 5, /**< the library was built without a graphics library */
  LINTAVO_PICTURE_BAD_ARGUMENT = 6 /**< a null argument, an unknown format or option */
};

/** One English sentence part for a status, "ok" for LINTAVO_PICTURE_OK. The text
 * is static. */
LINTAVO_DRAWING_API const char* lintavo_picture_status_text(int status);

/** The format that a file name's ending asks for (svg, pdf, png, in any case),
 * -1 for any other ending. */
LINTAVO_DRAWING_API int lintavo_picture_format_from_path(const char* path);

/** Draws the calculated window as `options` say and replaces the block's content by the picture.
 * Returns LINTAVO_PICTURE_...; unless that is OK the content is left as it was. */
LINTAVO_DRAWING_API int lintavo_window_draw(const lintavo_window* window, int format, int options,
                                            lintavo_bytes* picture);

/** Draws the calculated window as `options` say into the file `path`, replacing one of that name.
 * Returns LINTAVO_PICTURE_...; nothing is opened when drawing fails. */
LINTAVO_DRAWING_API int lintavo_window_draw_to_file(const lintavo_window* window, int format,
                                                    int options, const char* path);

#ifdef __cplusplus
}
#endif
