// A window in its place in a building: a type template with the values of a
// parameter file.
//
// Sources by theme: CMFensterPosition.cpp (files, structural checks),
// _Parameter.cpp (what a parameter file changes).
#pragma once

#include <array>

#include "lintavo/model/CMException.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/platform/CString.h"
#include "lintavo/platform/Export.h"

class CIniFile;

/// A window position: the window, its texts and the last error.
///
/// The object owns its window; a copy is deep. Reading never throws: it answers
/// false and keeps the error's number and text, the number 1 for running out of
/// memory; everything else may throw std::bad_alloc. Every read starts from an empty
/// window without texts. After a failed one the window holds what was read until
/// then, and the object may be read anew.
///
/// Lengths in a parameter file are ten times those of the window; those of the
/// filling are not.
class LINTAVO_API CMFensterPosition {
 public:
  /// A position without a window; its error is 48.
  CMFensterPosition();

  /// Makes the window of a parameter file. It names its type T and its patterns
  /// P; they are the files Fenster/T.ini and Sprossen/P.ini of the base
  /// directory. Both are plain file names: a name that is empty or holds "/",
  /// "\" or ":" counts as missing, so that no file outside these two folders is
  /// read.
  ///
  /// Errors: 28 parameter file or template missing, 27 no type, those of
  /// `CMFenster::Berechne`, 53 unknown pattern, or more than 20000 lines in all
  /// patterns of the window together, each counted as often as it is named;
  /// 80 and 82 fewer frame parts than the template has, in the frame or in a
  /// sash, 81 and 84 more of them; 85 a sash stands out of the frame or lies
  /// across a mullion, transom or extra part.
  bool ReadFromFile(const CString& parameterFile, const CString& baseDirectory);
  /// Reads a saved position and calculates its window. Error 28 when the file is
  /// missing, else those of `CMFenster::Berechne`.
  bool ReadFromFile(const CString& path);

  /// Writes the window as a macro file, with text 1 as the key "Text". Line ends
  /// in the text become blanks; what is longer than a line of a file, 250 bytes,
  /// is not read back. False, with error 41, when the file cannot be written.
  bool SaveToFile(const CString& path);
  /// Makes `text` text 1 and saves.
  bool SaveToFile(const CString& path, const CString& text);

  /// Number of the last error, 0 after a successful read.
  long GetError() const { return fehlerNummer_; }
  /// The same, and its text.
  long GetError(CString& text) const;

  /// The window, never null; valid as long as the position.
  CMFenster* GetFensterPtr() { return &fenster_; }
  const CMFenster* GetFensterPtr() const { return &fenster_; }

  /// Text `i` of the position, 1 to 49; empty for any other index.
  CString GetText(long i) const;
  /// False for a bad index.
  bool SetText(long i, const CString& text);

 private:
  static constexpr long kAnzahlTexte = 49;

  template <class Schritte>
  bool Lies(Schritte schritte);
  void ReadVorlage(const CString& path, CMFenster& vorlage);
  void PruefeForm(const CMFenster& vorlage) const;

  void ReadParameter(CIniFile& document);
  void ReadFensterSatz(long lArt, const CString& section, CIniFile& document,
                       CMFensterSatz& satz) const;
  void ReadSprossenBilder(const CString& folder, CIniFile& document);
  void Berechne();

  CMFenster fenster_;
  CString fehlerText_;
  int fehlerNummer_ = 0;
  std::array<CString, kAnzahlTexte> texte_;
};
