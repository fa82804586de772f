// The words of a cutting list, German or English.
#pragma once

#include "PartsList.h"

namespace lintavo::tools {

enum class Sprache { kDeutsch, kEnglisch };

/// Columns of a cutting list.
enum class Spalte {
  kFenster,
  kAnzahl,
  kTeil,
  kLaenge,
  kAchslaenge,
  kBreite,
  kHoehe,
  kDicke,
  kSchnittAnfang,
  kSchnittEnde,
  kRadius,
  kSegmente,
  kFlaeche,
  kForm,
  kVerwendung
};
inline constexpr std::size_t kAnzahlSpalten = 15;

/// A word in two languages; the texts are static.
struct Wort {
  const char* deutsch;
  const char* englisch;

  const char* In(Sprache sprache) const {
    return sprache == Sprache::kDeutsch ? deutsch : englisch;
  }
};

Wort ArtWort(TeilArt art);
/// The key of a kind, which programs read; the same in every language.
const char* ArtSchluessel(TeilArt art);
Wort SpaltenTitel(Spalte spalte);

inline constexpr Wort kStaebeWort{"Stäbe", "Bars"};
inline constexpr Wort kProfileWort{"Profile", "Sections"};
inline constexpr Wort kGesamtlaengeWort{"Gesamtlänge", "Total length"};
inline constexpr Wort kScheibenWort{"Scheiben und Paneele", "Panes and panels"};
inline constexpr Wort kBeschlaegeWort{"Beschläge", "Fittings"};
inline constexpr Wort kRechteckWort{"Rechteck", "rectangle"};
inline constexpr Wort kModellWort{"Modell", "shaped"};
inline constexpr Wort kRahmenWort{"Rahmen", "frame"};
inline constexpr Wort kFluegelWort{"Flügel", "sash"};
inline constexpr Wort kDateiWort{"Datei", "File"};

}  // namespace lintavo::tools
