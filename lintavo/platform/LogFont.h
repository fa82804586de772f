// The font record that settings documents store. On Windows it is the system's
// own (in its byte-character form: compile without UNICODE); elsewhere the
// same record, field for field.
#pragma once

#ifdef _WIN32

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#else

#include <cstdint>

/// A logical font. Heights and widths in logical units, angles in tenths of a
/// degree; the byte fields hold the system's own codes.
struct LOGFONT {
  std::int32_t lfHeight;
  std::int32_t lfWidth;
  std::int32_t lfEscapement;
  std::int32_t lfOrientation;
  std::int32_t lfWeight;
  unsigned char lfItalic;
  unsigned char lfUnderline;
  unsigned char lfStrikeOut;
  unsigned char lfCharSet;
  unsigned char lfOutPrecision;
  unsigned char lfClipPrecision;
  unsigned char lfQuality;
  unsigned char lfPitchAndFamily;
  /// At most 31 bytes and their terminating zero.
  char lfFaceName[32];
};

#endif
