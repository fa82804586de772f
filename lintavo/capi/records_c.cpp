// Polygons, segments and bytes of the C interface.
#include "lintavo/capi/records_c.h"

#include "lintavo/capi/Handles.h"
#include "lintavo/capi/Handles_intern.h"

using lintavo::Geschuetzt;
using lintavo::capi::Create;

CFeApi* lintavo::FacadeOf(lintavo_window* window) {
  return window ? &window->api : nullptr;
}

const CFeApi* lintavo::FacadeOf(const lintavo_window* window) {
  return window ? &window->api : nullptr;
}

const char* lintavo_version(void) {
  return LINTAVO_VERSION;
}

// --- polygons ---------------------------------------------------------------

lintavo_polygon* lintavo_polygon_create(void) {
  return Create<lintavo_polygon>();
}

void lintavo_polygon_destroy(lintavo_polygon* polygon) {
  delete polygon;
}

long lintavo_polygon_get_anzahl(const lintavo_polygon* polygon) {
  return polygon ? polygon->record.lAnzahl : 0;
}

const double* lintavo_polygon_get_x(const lintavo_polygon* polygon) {
  return polygon ? polygon->record.pdX : nullptr;
}

const double* lintavo_polygon_get_y(const lintavo_polygon* polygon) {
  return polygon ? polygon->record.pdY : nullptr;
}

int lintavo_polygon_get_punkt(const lintavo_polygon* polygon, long i, double* x, double* y) {
  if (i < 0 || i >= lintavo_polygon_get_anzahl(polygon)) return 0;
  if (x) *x = polygon->record.pdX[i];
  if (y) *y = polygon->record.pdY[i];
  return 1;
}

// --- segments ---------------------------------------------------------------

lintavo_segments* lintavo_segments_create(void) {
  return Create<lintavo_segments>();
}

void lintavo_segments_destroy(lintavo_segments* segments) {
  delete segments;
}

long lintavo_segments_get_anzahl(const lintavo_segments* segments) {
  return segments ? segments->record.lAnzahl : 0;
}

int lintavo_segments_get_strecke(const lintavo_segments* segments, long i,
                                 lintavo_segment* segment) {
  if (i < 0 || i >= lintavo_segments_get_anzahl(segments)) return 0;
  const CFeApiStrecken& from = segments->record;
  if (segment) {
    *segment = {from.pdX1[i], from.pdY1[i],    from.pdX2[i],
                from.pdY2[i], from.piFarbe[i], from.piPrio[i]};
  }
  return 1;
}

// --- bytes ------------------------------------------------------------------

lintavo_bytes* lintavo_bytes_create(void) {
  return Create<lintavo_bytes>();
}

void lintavo_bytes_destroy(lintavo_bytes* bytes) {
  delete bytes;
}

int lintavo_bytes_set(lintavo_bytes* bytes, const char* data, std::size_t size) {
  if (!bytes) return 0;
  return Geschuetzt(0, [&] {
    bytes->content = data ? std::string(data, size) : std::string();
    return 1;
  });
}

std::size_t lintavo_bytes_get_size(const lintavo_bytes* bytes) {
  return bytes ? bytes->content.size() : 0;
}

const char* lintavo_bytes_get_data(const lintavo_bytes* bytes) {
  return bytes ? bytes->content.c_str() : nullptr;
}
