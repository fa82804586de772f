/* A host in C: reads a window, fits it into an opening of the given size,
 * prints the outline of every frame part and draws the window.
 *
 * host FILE WIDTH HEIGHT [PICTURE]
 */
#include <stdio.h>
#include <stdlib.h>

#include "lintavo/lintavo_c.h"
#ifdef WITH_PICTURES
#include "lintavo/drawing_c.h"
#endif

static int read_window(lintavo_window* window, const char* path) {
  return lintavo_is_file_compressed(path) ? lintavo_window_read_from_compressed_file(window, path)
                                          : lintavo_window_read_from_file(window, path);
}

static int fit(lintavo_window* window, double width, double height) {
  return lintavo_window_set_breite_hoehe(window, NULL, width, height) &&
         lintavo_window_berechne(window);
}

static void print_parts(const lintavo_window* window) {
  lintavo_polygon* outline = lintavo_polygon_create();
  long parts = lintavo_window_get_anzahl_rahmen_bauteile(window, LINTAVO_RAHMENTEILE);
  long part, i;
  double length, x, y;
  for (part = 0; part < parts; ++part) {
    if (!lintavo_window_get_rahmen_bauteil_umriss(window, LINTAVO_RAHMENTEILE, part,
                                                  LINTAVO_ALLE_SEGMENTE, outline, &length, NULL,
                                                  NULL)) {
      continue;
    }
    printf("part %ld, length %.1f:", part, length);
    for (i = 0; lintavo_polygon_get_punkt(outline, i, &x, &y); ++i) printf(" (%.1f, %.1f)", x, y);
    printf("\n");
  }
  lintavo_polygon_destroy(outline);
}

static int draw(const lintavo_window* window, const char* path) {
#ifdef WITH_PICTURES
  int status = lintavo_window_draw_to_file(window, lintavo_picture_format_from_path(path), 0, path);
  if (status != LINTAVO_PICTURE_OK) {
    fprintf(stderr, "%s: %s\n", path, lintavo_picture_status_text(status));
  }
  return status == LINTAVO_PICTURE_OK;
#else
  (void)window;
  fprintf(stderr, "%s: built without pictures\n", path);
  return 0;
#endif
}

int main(int argc, char** argv) {
  lintavo_window* window = lintavo_window_create();
  int done = window != NULL && argc >= 4 && read_window(window, argv[1]) &&
             fit(window, atof(argv[2]), atof(argv[3]));
  if (done) {
    print_parts(window);
    if (argc > 4) done = draw(window, argv[4]);
  } else if (argc >= 4) {
    char text[LINTAVO_TEXT_SIZE];
    lintavo_window_get_error_msg(window, text, sizeof text);
    fprintf(stderr, "%s: error %ld %s\n", argv[1], lintavo_window_get_error_id(window), text);
  } else {
    fprintf(stderr, "usage: host FILE WIDTH HEIGHT [PICTURE]\n");
  }
  lintavo_window_destroy(window);
  return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
