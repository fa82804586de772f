/* Pictures of a window for C: SVG, PDF, PNG and DXF, in memory or as a file. The
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
  LINTAVO_FORMAT_PNG = 2, /**< the longer side is 1600 pixels; white ground */
  LINTAVO_FORMAT_DXF = 3  /**< DXF R12 in the window's own coordinates */
};

/** What a picture shows: any of these added up. 0: filled shapes seen from inside,
 * with dimensions and opening symbols. */
enum {
  LINTAVO_VON_AUSSEN = 1,    /**< seen from outside */
  LINTAVO_OHNE_MASZE = 2,    /**< without dimension lines and their texts */
  LINTAVO_OHNE_SYMBOLE = 4,  /**< without opening symbols */
  LINTAVO_NUR_SICHTBARE = 8, /**< visible edges instead of filled shapes */
  LINTAVO_MASZKETTEN = 16,   /**< dimension lines in rows below and left of the drawing */
  LINTAVO_TITEL = 32,        /**< name, size, scale and opening kinds below the drawing */
  LINTAVO_ENGLISCH = 64      /**< words in English instead of German */
};

/** What one unit of a window's numbers is. */
enum { LINTAVO_UNIT_MM = 0, LINTAVO_UNIT_CM = 1, LINTAVO_UNIT_M = 2 };

/** How a picture stands on paper. */
typedef struct lintavo_plan {
  double scale; /**< 20 draws to a scale of 1:20; 0 fits into a picture of usual size */
  int unit;     /**< LINTAVO_UNIT_...; only a scale asks for it */
  int pixels;   /**< width of a PNG in pixels; 0 leaves that to dpi */
  double dpi;   /**< pixels per inch of a PNG; 0 is the usual size, 150 of one to scale */
} lintavo_plan;

/** How making a picture ended. Note that success is 0 here. */
enum {
  LINTAVO_PICTURE_OK = 0,
  LINTAVO_PICTURE_EMPTY = 1,        /**< the window has nothing to draw */
  LINTAVO_PICTURE_UNBOUNDED = 2,    /**< a coordinate or the extent is no finite number */
  LINTAVO_PICTURE_FAILED = 3,       /**< the graphics library reported an error */
  LINTAVO_PICTURE_NOT_WRITTEN = 4,  /**< the file cannot be written in full; an old one stays */
  LINTAVO_PICTURE_NO_GRAPHICS = 5,  /**< the library was built without a graphics library */
  LINTAVO_PICTURE_BAD_ARGUMENT = 6, /**< a null argument, an unknown format or option */
  LINTAVO_PICTURE_TOO_LARGE = 7 /**< a page above 5 m, a PNG above 30000 pixels or 150 million */
};

/** One English sentence part for a status, "ok" for LINTAVO_PICTURE_OK. The text
 * is static. */
LINTAVO_DRAWING_API const char* lintavo_picture_status_text(int status);

/** The format that a file name's ending asks for (svg, pdf, png, dxf, in any case),
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

/** As lintavo_window_draw, on paper as `plan` says. Sizes of dimensions are those of plans when
 * it names a scale: texts are 2.5 mm high. */
LINTAVO_DRAWING_API int lintavo_window_draw_plan(const lintavo_window* window, int format,
                                                 int options, const lintavo_plan* plan,
                                                 lintavo_bytes* picture);

/** As lintavo_window_draw_to_file, on paper as `plan` says. */
LINTAVO_DRAWING_API int lintavo_window_draw_plan_to_file(const lintavo_window* window, int format,
                                                         int options, const lintavo_plan* plan,
                                                         const char* path);

#ifdef __cplusplus
}
#endif
