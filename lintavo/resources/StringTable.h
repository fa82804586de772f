// The texts of the library by number: messages, and the names of sections,
// keys and folders that files are written and read with. The number of a
// message is also its error number. All texts are UTF-8.
#pragma once

#include <string_view>

#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

namespace lintavo {

/// Numbers of the texts. The enumerator of a name is the name itself where it
/// can be written that way; a prefix is the part of a key that stands before
/// its running number (NumberedName).
enum class StringId : int {
  // Macro file
  Allgemeines = 1,
  Version = 2,
  Name = 3,
  Bitmap1 = 4,
  Bitmap2 = 5,
  Typ = 6,
  Text = 7,  ///< a key of its own, and the prefix of the numbered ones
  Achsen = 8,
  PraefixX = 9,
  PraefixY = 10,
  MaszSektion = 11,  ///< prefix of the sections of the additional dimensions
  Laenge = 12,
  Richtung = 13,
  Knoten1 = 14,
  Knoten2 = 15,
  Knoten3 = 16,
  Rahmen = 17,   ///< section, and key of the pen widths
  Fluegel = 18,  ///< prefix of the sash sections

  // Messages
  MeldungKeinRahmenpolygon = 19,
  MeldungKeinFluegelpolygon = 20,  ///< "%s": number of the sash
  Masze = 21,                      // section of the parameter form
  MeldungFluegelflaecheNull = 22,
  MeldungFluegelUeberlappen = 23,
  MeldungZusatzmaszNichtAngebracht = 24,  ///< "%s": name of the dimension
  Sprossenbild = 25,                      // prefix
  Fuellung = 26,
  MeldungKeinFenstertyp = 27,
  MeldungDateiFehlt = 28,  ///< "%s": path

  // Sash sections
  Rahmendicke = 29,
  ZVersatz = 30,
  RahmenDefaults = 31,
  SprossenDefaults = 32,
  KnotenAL = 33,
  KnotenAR = 34,
  MitRahmen = 35,
  OeffSeite = 36,
  Gangart = 37,
  Anschlag = 38,
  ZuerstAufgehend = 39,
  PraefixR = 40,
  MeldungDateiNichtGespeichert = 41,  ///< "%s": path
  PraefixZ = 42,
  PraefixS = 43,
  PraefixF = 44,
  PraefixA = 45,
  MeldungBezugspunktLinks = 46,
  MeldungBezugspunktRechts = 47,
  MeldungKeinePosition = 48,
  MeldungZusatzmaszLaenge = 49,  ///< "%s": name of the dimension
  PraefixD = 50,
  Stich = 51,
  StichUnten = 52,
  MeldungSprossenbild = 53,  ///< "%s": name of the sash
  Korbbogen = 54,
  Gespiegelt = 55,

  // Glazing-bar patterns; names of the automatic dimensions
  Skalieren = 56,
  Bereich = 57,
  Breite = 58,
  Hoehe = 59,
  Dicke = 60,

  // Folders of the templates; Sprossen is a key of the pen widths too
  Fenster = 61,
  Sprossen = 62,

  // General settings
  Vermaszung = 63,  ///< section, and prefix of the material sections
  AngabenInPixel = 64,
  MaszlinienAbstandsFaktor = 65,
  Texthoehe = 66,
  Textbreite = 67,
  MinTextpixel = 68,
  Hilfslinienlaenge = 69,
  Pfeillaenge = 70,
  Pfeilbreite = 71,
  Stiftbreiten = 72,
  Oeffnungssymbole = 73,
  Maszlinien = 74,

  // Materials
  Bauteil = 75,          ///< prefix of the material sections
  Oeffnungssymbol = 76,  ///< prefix of the material sections
  Rgb2d = 77,
  Kdiffus = 78,
  Kambient = 79,
  MeldungZuVieleBauteile = 80,
  MeldungZuWenigBauteile = 81,
  MeldungZuVieleBauteileFluegel = 82,  ///< "%s": name of the sash
  Kspiegel = 83,
  MeldungZuWenigBauteileFluegel = 84,  ///< "%s": name of the sash
  MeldungFormaenderungFluegel = 85,    ///< "%s": name of the sash
  Alpha = 86,
  Oe = 87,
  RgbDiffus = 88,
  RgbSpiegel = 89,
  Textur = 90,
  XSkalierung = 91,
  YSkalierung = 92,
  Beidseitig = 93,
  MeldungBauteilFehlt = 94,

  Beschlag = 61246,  ///< "Beschlag%d": the number stands at "%d"
};

/// The text with this number; empty when there is none.
LINTAVO_API CString LoadText(int id);

/// The text, without a copy; never null, valid for the life of the library.
LINTAVO_API const char* Text(StringId id);

/// prefix followed by n in decimal digits, as numbered keys and sections are named.
LINTAVO_API CString NumberedName(const CString& prefix, long n);

/// The text of id followed by n, or with n in the place of its "%d".
LINTAVO_API CString NumberedName(StringId id, long n);

}  // namespace lintavo
