/* The library for C, and for every language that can call C.
 *
 * A thin layer over the façade (lintavo/api/CFeApi.h): one function per
 * operation, plain types, opaque handles. All headers of this interface compile
 * as C99. Pictures are a library of their own: lintavo/drawing_c.h.
 *
 * Names. A member of the façade becomes lintavo_window_ and the member's name
 * in small letters, with an underscore before each capital that follows a small
 * letter: CFeApi::GetFluegelRahmenBreite is lintavo_window_get_fluegel_rahmen_breite.
 * What needs no window has no "window_" in its name. German words are
 * explained in the glossary of the documentation.
 *
 * Ownership. Every ..._create (and ..._copy) is paired with one ..._destroy;
 * there is nothing else to release, and the host's own free() is never used on
 * what the library made. Results of no fixed size are received in handles that
 * the host creates once and may fill again and again: lintavo_polygon,
 * lintavo_segments, lintavo_bytes. Pointers into such a handle are valid until
 * it is filled again or destroyed.
 *
 * Text. Text is bytes: the library's own texts are UTF-8, names from files come
 * through as they stand. A function that hands out text takes a buffer and its
 * size and returns the text's length in bytes, without the terminating zero. As
 * much as fits is copied and always terminated (unless the size is 0), so a
 * result of `size` or more means that the text was cut. LINTAVO_TEXT_SIZE
 * suffices for every text that a window hands out. Paths are UTF-8.
 *
 * Errors. Nothing is thrown. Functions with an int result answer 1 for success
 * and 0 for failure unless said otherwise; reading and
 * lintavo_window_berechne also leave a number and a text with the window.
 *
 * Arguments. Any handle, buffer or output pointer may be null: a null handle
 * fails like a window that is not there, a null output is not stored. Any index
 * may be passed.
 *
 * Threads. There is no state outside the handles: different handles may be used
 * from different threads at once. Of one handle, several threads may call functions
 * that take it as const at once while none calls another.
 */
#pragma once

#include "lintavo/capi/drawings_c.h"
#include "lintavo/capi/parts_c.h"
#include "lintavo/capi/position_c.h"
#include "lintavo/capi/records_c.h"
#include "lintavo/capi/settings_c.h"
#include "lintavo/capi/window_c.h"
