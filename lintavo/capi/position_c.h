/* Window positions in C: a window made from a type template and a parameter
 * file. The rules that hold for every function are at the head of
 * lintavo/lintavo_c.h. */
#pragma once

#include <stddef.h>

#include "lintavo/capi/window_c.h"
#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** A window in its place in a building, with 49 texts of its own. */
typedef struct lintavo_position lintavo_position;

/** A position without a window, to be returned through
 * lintavo_position_destroy; null when there is no memory. */
LINTAVO_API lintavo_position* lintavo_position_create(void);
/** Releases the position; null is left alone. */
LINTAVO_API void lintavo_position_destroy(lintavo_position* position);

/** Makes and calculates the window of a parameter file; the template that it
 * names lies in the folder "Fenster" of `base_directory`, the patterns in
 * "Sprossen". After a failure the position holds what was read until then, and
 * lintavo_position_get_error and ..._msg tell what was wrong. */
LINTAVO_API int lintavo_position_read_from_parameter_file(lintavo_position* position,
                                                          const char* parameter_file,
                                                          const char* base_directory);
/** Reads a saved position and calculates its window. Errors as above. */
LINTAVO_API int lintavo_position_read_from_file(lintavo_position* position, const char* path);
/** Writes the position as a macro file. A `text` that is not null becomes text 1
 * first. 0 when the file cannot be written. */
LINTAVO_API int lintavo_position_save_to_file(lintavo_position* position, const char* path,
                                              const char* text);

/** Number of the last error, 0 after a successful read, -1 for a null position. */
LINTAVO_API long lintavo_position_get_error(const lintavo_position* position);
/** Text of the last error, German, UTF-8; it may hold a whole path and be longer
 * than LINTAVO_TEXT_SIZE. Returns its length. */
LINTAVO_API size_t lintavo_position_get_error_msg(const lintavo_position* position, char* text,
                                                  size_t size);

/** Text `i` of the position, 1 to 49, of any length. Returns its length, 0 for
 * any other index. */
LINTAVO_API size_t lintavo_position_get_text(const lintavo_position* position, long i, char* text,
                                             size_t size);
/** Sets text `i`, 1 to 49; null stands for an empty text. 0 for a bad index. */
LINTAVO_API int lintavo_position_set_text(lintavo_position* position, long i, const char* text);

/** Gives `window` a copy of the position's window, calculation included. */
LINTAVO_API int lintavo_position_get_fenster(const lintavo_position* position,
                                             lintavo_window* window);
/** Gives the position a copy of `window`; its texts stay. */
LINTAVO_API int lintavo_position_set_fenster(lintavo_position* position,
                                             const lintavo_window* window);

#ifdef __cplusplus
}
#endif
