#include "Positionslauf.h"

#include <array>
#include <climits>
#include <cmath>
#include <fstream>

#include "lintavo/api/CFeApi.h"
#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"
#include "lintavo/settings/CAcFeInis.h"
#include "lintavo/settings/CMFensterPosition.h"

#include "Fensterlauf.h"
#include "Vergleich.h"

namespace lintavo::fuzz {

namespace {

constexpr std::array kMuster = {"01", "02", "03", "04", "Rauten"};
constexpr std::array kIndizes = {0L, 1L, -1L, LONG_MAX, LONG_MIN};
constexpr std::array kMaterialien = {"Bauteil", "Oeffnungssymbol", "Vermaszung", ""};

CString Schreibe(const std::filesystem::path& path, std::string_view text) {
  std::ofstream(path, std::ios::binary)
      .write(text.data(), static_cast<std::streamsize>(text.size()));
  return CString(path.string());
}

// The text up to the next separating line, which is taken off as well.
std::string_view NaechstesDokument(std::string_view& rest) {
  const std::string_view all = rest;
  while (!rest.empty()) {
    const std::size_t start = all.size() - rest.size();
    if (BisTrenner(rest, '\n') == kTrennzeile) return all.substr(0, start);
  }
  return all;
}

bool IstDateiname(std::string_view name) {
  return !name.empty() && name.size() < 100 &&
         name.find_first_of(std::string_view("/\\:\0", 4)) == std::string_view::npos;
}

// Lays the template where the parameter file looks for it.
void LegeVorlage(const CString& parameter, std::string_view text,
                 const std::filesystem::path& folder) {
  CIniFile document;
  CString type;
  document.Read(parameter);
  if (document.GetString("Allgemeines", "Typ", type) == 0 || !IstDateiname(type.View())) return;
  Schreibe(folder / (std::string(type.View()) + ".ini"), text);
}

void FrageTexte(CMFensterPosition& position) {
  for (const long i : {0L, 1L, 49L, 50L, LONG_MAX, LONG_MIN}) {
    position.SetText(i, position.GetText(i) + CString("\n\r#"));
  }
}

void FrageListe(CAcMatList& list, CIniFile& document) {
  for (const long i : kIndizes) {
    list.GetEntryPtr(i);
    list.GetMatPtr(i);
    list.GetTextureName(i);
    list.SetTextureID(i, 7);
    list.dGetXSkale(i);
    list.dGetYSkale(i);
    list.GetColor2d(i);
    for (const char* prefix : kMaterialien) list.GetColor2d(i, document, prefix);
  }
  const CAcMatEntry* first = list.GetEntryPtr(0);
  if (first == nullptr) return;
  const CAcMatEntry copy = *first;
  list.Add(&copy);
  list.AddNoCompared(&copy);
  list.AddNoCompared(nullptr);
}

std::vector<double> AlleWerte(const CAcFeInis& s) {
  return {s.dMaszlinienFaktor,
          s.dTexthoehe,
          s.dTextbreite,
          static_cast<double>(s.lMinTextpixel),
          s.dHilfslinienlaenge,
          s.dPfeillaenge,
          s.dPfeilbreite,
          static_cast<double>(s.fStiftRahmen),
          static_cast<double>(s.fStiftSymbole),
          static_cast<double>(s.fStiftSprossen),
          static_cast<double>(s.fStiftMaszlinien)};
}

// Saving divides the lengths of the object, so a copy is saved. What was read
// from its document is a tenth of what it wrote.
std::string PruefeGespeichert(const CAcFeInis& settings) {
  CAcFeInis pixels = settings;
  pixels.bPixel = true;
  CIniFile document;
  CAcFeInis copy = pixels;
  copy.SaveGenerelles(document);
  CAcFeInis back;
  back.ReadGenerelles(document);
  return !SindEndlich(AlleWerte(pixels)) || GleicheZahlen(AlleWerte(back), AlleWerte(pixels))
             ? ""
             : "settings that were saved come back otherwise";
}

}  // namespace

std::string PruefePosition(std::string_view text, const std::filesystem::path& ordner,
                           int aenderung) {
  std::filesystem::create_directories(ordner / "Fenster");
  std::filesystem::create_directories(ordner / "Sprossen");
  const CString parameter = Schreibe(ordner / "position.txt", NaechstesDokument(text));
  LegeVorlage(parameter, NaechstesDokument(text), ordner / "Fenster");
  for (const char* name : kMuster) {
    Schreibe(ordner / "Sprossen" / (std::string(name) + ".ini"), text);
  }
  CMFensterPosition position;
  const bool made = position.ReadFromFile(parameter, CString(ordner.string()));
  if (made != (position.GetError() == 0)) return "a position's result and its error disagree";
  FrageTexte(position);
  const CString saved(((ordner / "fenster.aqz").string()));
  if (!position.SaveToFile(saved, "Text")) return "a position cannot be saved";
  CMFensterPosition again;
  again.ReadFromFile(saved);
  if (!made) return "";
  CFeApi fenster;
  fenster.ReadFromFile(saved);
  return PruefeFenster(fenster, aenderung);
}

std::string PruefeEinstellungen(std::string_view text, const std::filesystem::path& ordner) {
  const CString path = Schreibe(ordner / "einstellungen.ini", text);
  CAcFeInis settings;
  if (!settings.ReadGenerelles(path) || !settings.ReadMaterials(path) ||
      !settings.ReadMaterialIniFile(path)) {
    return "a file that is there cannot be read";
  }
  FrageListe(settings.BauteilMaterialien, settings.MaterialIni);
  FrageListe(settings.SymbolMaterialien, settings.MaterialIni);
  FrageListe(settings.MaszMaterialien, settings.MaterialIni);
  for (const long i : kIndizes) {
    CAcMatEntry entry;
    settings.BauteilMaterialien.LoadFromIniFile(settings.MaterialIni, "Bauteil", i, entry);
  }
  CIniFile document;
  CAcFeInis(settings).SaveGenerelles(document);
  return PruefeGespeichert(settings);
}

}  // namespace lintavo::fuzz
