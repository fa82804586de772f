// The window's life, files, dimensions and opening for C: each function hands
// its arguments to the façade.
#include "lintavo/capi/window_c.h"

#include <algorithm>

#include "lintavo/capi/Handles_intern.h"

using lintavo::capi::Create;
using lintavo::capi::HandOutText;
using lintavo::capi::Output;
using lintavo::capi::Record;

namespace {

CFeApiWandOeffnungsParameter ToParameter(const lintavo_opening* opening) {
  CFeApiWandOeffnungsParameter parameter;
  if (!opening) return parameter;
  parameter.iSchraege1 = opening->schraege1;
  parameter.iSchraege2 = opening->schraege2;
  parameter.dWinkel1 = opening->winkel1;
  parameter.dWinkel2 = opening->winkel2;
  parameter.dLeibungA = opening->leibung_a;
  parameter.dLeibungB = opening->leibung_b;
  parameter.dLeibungC = opening->leibung_c;
  parameter.dLeibungD = opening->leibung_d;
  parameter.dTiefe = opening->tiefe;
  return parameter;
}

// A handle whose window there was memory for, too; else null.
lintavo_window* Whole(lintavo_window* window) {
  if (window && window->api.GetFensterPtr()) return window;
  delete window;
  return nullptr;
}

}  // namespace

// --- life -------------------------------------------------------------------

lintavo_window* lintavo_window_create(void) {
  return Whole(Create<lintavo_window>());
}

lintavo_window* lintavo_window_copy(const lintavo_window* window) {
  return window ? Whole(Create<lintavo_window>(window->api)) : nullptr;
}

int lintavo_window_assign(lintavo_window* window, const lintavo_window* source) {
  return window && source ? window->api.SetFenster(*source->api.GetFensterPtr()) : 0;
}

void lintavo_window_destroy(lintavo_window* window) {
  delete window;
}

void lintavo_window_delete_fenster(lintavo_window* window) {
  if (window) window->api.DeleteFenster();
}

// --- errors -----------------------------------------------------------------

long lintavo_window_get_error_id(const lintavo_window* window) {
  return window ? window->api.GetErrorID() : -1;
}

size_t lintavo_window_get_error_msg(const lintavo_window* window, char* text, size_t size) {
  return HandOutText(text, size,
                     [&](char(&to)[256]) { return window ? window->api.GetErrorMsg(to) : 0; });
}

// --- reading and writing ----------------------------------------------------

int lintavo_window_read_from_file(lintavo_window* window, const char* path) {
  return window && path ? window->api.ReadFromFile(path) : 0;
}

int lintavo_window_read_from_compressed_file(lintavo_window* window, const char* path) {
  return window && path ? window->api.ReadFromCompressedFile(path) : 0;
}

int lintavo_window_read_from_buffer(lintavo_window* window, const char* bytes, long length,
                                    int separator) {
  return window && bytes ? window->api.ReadFromBuffer(length, bytes, separator) : 0;
}

int lintavo_window_write_to_file(lintavo_window* window, const char* path) {
  return window && path ? window->api.WriteToFile(path) : 0;
}

int lintavo_window_write_parameter_formular(lintavo_window* window, const char* path,
                                            const char* type) {
  return window && path ? window->api.WriteParameterFormular(path, type) : 0;
}

int lintavo_window_write_to_buffer(const lintavo_window* window, lintavo_bytes* bytes) {
  if (!window || !bytes) return 0;
  long length = 0;
  char* block = nullptr;
  window->api.WriteToBuffer(&length, &block);
  if (!block) return 0;
  const int stored = lintavo_bytes_set(bytes, block, static_cast<size_t>(length));
  window->api.FreeBuffer(&block);
  return stored;
}

// --- files, without a window ------------------------------------------------

int lintavo_is_file_compressed(const char* path) {
  return path ? CFeApi::IsFileCompressed(path) : 0;
}

int lintavo_is_file_temporary(const char* path) {
  return path ? CFeApi::IsFileTemporary(path) : 0;
}

size_t lintavo_get_bezeichnung_from_file(const char* path, char* name, size_t size) {
  return HandOutText(name, size, [&](char(&to)[256]) {
    return path ? CFeApi::GetBezeichnungFromFile(path, to) : 0;
  });
}

size_t lintavo_get_valid_makro_file(const char* directory, char* path, size_t size) {
  return HandOutText(path, size, [&](char(&to)[256]) {
    const bool found = directory && CFeApi::GetValidMakroFile(directory, to) == 1;
    return found ? static_cast<long>(std::find(to, to + sizeof to, '\0') - to) : 0L;
  });
}

// --- the window -------------------------------------------------------------

size_t lintavo_window_get_fenster_bezeichnung(const lintavo_window* window, char* name,
                                              size_t size) {
  return HandOutText(name, size, [&](char(&to)[256]) {
    return window ? window->api.GetFensterBezeichnung(to) : 0;
  });
}

double lintavo_window_get_fenster_breite(const lintavo_window* window) {
  return window ? window->api.GetFensterBreite() : 0.0;
}

double lintavo_window_get_fenster_hoehe(const lintavo_window* window) {
  return window ? window->api.GetFensterHoehe() : 0.0;
}

int lintavo_window_berechne(lintavo_window* window) {
  return window ? window->api.Berechne() : 0;
}

// --- additional dimensions --------------------------------------------------

long lintavo_window_get_anzahl_zusatz_masze(const lintavo_window* window) {
  return window ? window->api.GetAnzahlZusatzMasze() : 0;
}

size_t lintavo_window_get_zmasz_name(const lintavo_window* window, long i, char* name,
                                     size_t size) {
  return HandOutText(name, size,
                     [&](char(&to)[256]) { return window ? window->api.GetZMaszName(i, to) : 0; });
}

double lintavo_window_get_zmasz_laenge(const lintavo_window* window, long i) {
  return window ? window->api.GetZMaszLaenge(i) : 0.0;
}

int lintavo_window_set_zmasz_laenge(lintavo_window* window, long i, double length) {
  return window ? window->api.SetZMaszLaenge(i, length) : 0;
}

int lintavo_window_set_zmasz_laenge_mit_name(lintavo_window* window, long i, double length) {
  return window ? window->api.SetZMaszLaengeMitName(i, length) : 0;
}

int lintavo_window_is_zmasz_breite_hoehe(const lintavo_window* window, long* h, long* v) {
  if (!window) return 0;
  return window->api.IsZMaszBreiteHoehe(Output(h), Output(v));
}

// --- the wall opening -------------------------------------------------------

int lintavo_window_get_wand_oeffnung(const lintavo_window* window, const lintavo_opening* opening,
                                     lintavo_polygon* polygon) {
  return window ? window->api.GetWandOeffnung(ToParameter(opening), Record(polygon)) : 0;
}

int lintavo_window_get_oeff_masze(const lintavo_window* window, const lintavo_opening* opening,
                                  double* width, double* height) {
  return window ? window->api.GetOeffMasze(ToParameter(opening), Output(width), Output(height)) : 0;
}

int lintavo_window_set_breite_hoehe(lintavo_window* window, const lintavo_opening* opening,
                                    double width, double height) {
  return window ? window->api.SetBreiteHoehe(ToParameter(opening), width, height) : 0;
}
