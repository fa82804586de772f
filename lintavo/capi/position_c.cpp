// Positions for C: each function hands its arguments to CMFensterPosition.
#include "lintavo/capi/position_c.h"

#include "lintavo/capi/Handles_intern.h"
#include "lintavo/settings/CMFensterPosition.h"

using lintavo::Geschuetzt;
using lintavo::capi::Create;
using lintavo::capi::HandOut;

struct lintavo_position {
  CMFensterPosition position;
};

lintavo_position* lintavo_position_create(void) {
  return Create<lintavo_position>();
}

void lintavo_position_destroy(lintavo_position* position) {
  delete position;
}

int lintavo_position_read_from_parameter_file(lintavo_position* position,
                                              const char* parameter_file,
                                              const char* base_directory) {
  if (!position || !parameter_file || !base_directory) return 0;
  return Geschuetzt(
      0, [&] { return position->position.ReadFromFile(parameter_file, base_directory) ? 1 : 0; });
}

int lintavo_position_read_from_file(lintavo_position* position, const char* path) {
  if (!position || !path) return 0;
  return Geschuetzt(0, [&] { return position->position.ReadFromFile(path) ? 1 : 0; });
}

int lintavo_position_save_to_file(lintavo_position* position, const char* path, const char* text) {
  if (!position || !path) return 0;
  return Geschuetzt(0, [&] {
    CMFensterPosition& saved = position->position;
    return (text ? saved.SaveToFile(path, text) : saved.SaveToFile(path)) ? 1 : 0;
  });
}

long lintavo_position_get_error(const lintavo_position* position) {
  return position ? position->position.GetError() : -1;
}

size_t lintavo_position_get_error_msg(const lintavo_position* position, char* text, size_t size) {
  return Geschuetzt(size_t{0}, [&] {
    CString message;
    if (position) position->position.GetError(message);
    return HandOut(message.View(), text, size);
  });
}

size_t lintavo_position_get_text(const lintavo_position* position, long i, char* text,
                                 size_t size) {
  return Geschuetzt(size_t{0}, [&] {
    const CString found = position ? position->position.GetText(i) : CString();
    return HandOut(found.View(), text, size);
  });
}

int lintavo_position_set_text(lintavo_position* position, long i, const char* text) {
  if (!position) return 0;
  return Geschuetzt(0, [&] { return position->position.SetText(i, text) ? 1 : 0; });
}

int lintavo_position_get_fenster(const lintavo_position* position, lintavo_window* window) {
  return position && window ? window->api.SetFenster(*position->position.GetFensterPtr()) : 0;
}

int lintavo_position_set_fenster(lintavo_position* position, const lintavo_window* window) {
  if (!position || !window || !window->api.GetFensterPtr()) return 0;
  return Geschuetzt(0, [&] {
    *position->position.GetFensterPtr() = *window->api.GetFensterPtr();
    return 1;
  });
}
