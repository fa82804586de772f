// Lines of a drawing for C: each function hands its arguments to the façade.
#include "lintavo/capi/drawings_c.h"

#include "lintavo/capi/Handles_intern.h"

using lintavo::capi::Output;
using lintavo::capi::Record;

int lintavo_window_get_box(const lintavo_window* window, double overhang, double* xmin,
                           double* ymin, double* xmax, double* ymax) {
  return window
             ? window->api.GetBox(overhang, Output(xmin), Output(ymin), Output(xmax), Output(ymax))
             : 0;
}

int lintavo_window_get_zmasz_linie(const lintavo_window* window, long i, lintavo_segments* lines) {
  return window ? window->api.GetZMaszLinie(i, Record(lines)) : 0;
}

int lintavo_window_get_zmasz_hilfslinien(const lintavo_window* window, long i, double d,
                                         lintavo_segments* lines) {
  return window ? window->api.GetZMaszHilfslinien(i, d, Record(lines)) : 0;
}

int lintavo_window_get_zmasz_pfeile(const lintavo_window* window, long i, double length,
                                    double width, lintavo_polygon* first, lintavo_polygon* second) {
  return window ? window->api.GetZMaszPfeile(i, length, width, Record(first), Record(second)) : 0;
}

int lintavo_window_get_ansicht(const lintavo_window* window, int from_outside,
                               lintavo_segments* lines) {
  return window ? window->api.GetAnsicht(from_outside, Record(lines)) : 0;
}

int lintavo_window_get_fluegel_ansicht(const lintavo_window* window, long i, int with_symbol,
                                       lintavo_segments* lines) {
  return window ? window->api.GetFluegelAnsicht(i, with_symbol, Record(lines)) : 0;
}

int lintavo_window_get_fluegel_oeffnungs_symbol(const lintavo_window* window, long i,
                                                lintavo_segments* lines) {
  return window ? window->api.GetFluegelOeffnungsSymbol(i, Record(lines)) : 0;
}

int lintavo_window_get_fluegel_glaslichte_hori(const lintavo_window* window, long i,
                                               lintavo_segments* lines) {
  return window ? window->api.GetFluegelGlaslichteHori(i, Record(lines)) : 0;
}

int lintavo_window_get_fluegel_glaslichte_vert(const lintavo_window* window, long i,
                                               lintavo_segments* lines) {
  return window ? window->api.GetFluegelGlaslichteVert(i, Record(lines)) : 0;
}

int lintavo_window_get_beschlag_zeichnung(const lintavo_window* window, long i, long j,
                                          lintavo_segments* lines) {
  return window ? window->api.GetBeschlagZeichnung(i, j, Record(lines)) : 0;
}
