#include "support/Beispiele.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "lintavo/ini/CIniFile.h"

namespace lintavo::test {

const std::vector<std::string>& BeispielNamen() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> found;
    for (const auto& entry :
         std::filesystem::directory_iterator(LINTAVO_EXAMPLES_DIR "/windows")) {
      if (entry.path().extension() == ".aqz") found.push_back(entry.path().filename().string());
    }
    std::sort(found.begin(), found.end());
    return found;
  }();
  return names;
}

std::string BeispielPfad(const std::string& name) {
  return std::string(LINTAVO_EXAMPLES_DIR "/windows/") + name;
}

CMFenster Beispiel(const std::string& name) {
  CMFenster fenster;
  EXPECT_TRUE(fenster.ReadFromFile(BeispielPfad(name).c_str())) << name;
  const bool calculated = fenster.Berechne(false);
  CString text;
  fenster.GetFehler(text);
  EXPECT_TRUE(calculated) << name << ": " << text;
  return fenster;
}

std::vector<std::string> Zeilen(const CMFenster& fenster) {
  CIniFile document;
  fenster.SaveToBuffer(document);
  std::vector<std::string> lines;
  for (const CString& line : document.GetLines()) lines.emplace_back(line.View());
  return lines;
}

CMFenster Raster(int spalten, int zeilen, double breite, double hoehe) {
  CMFenster fenster;
  fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
  fenster.GetAchsen().AddVerti(0.0);
  fenster.GetAchsen().AddHori(0.0);
  for (int j = 0; j < spalten; ++j) fenster.GetAchsen().AddVerti(breite);
  for (int k = 0; k < zeilen; ++k) fenster.GetAchsen().AddHori(hoehe);
  for (int k = 0; k < zeilen; ++k) {
    for (int j = 0; j < spalten; ++j) {
      CMFensterSatz* fluegel =
          fenster.AddFluegel(eFormRechteck, 0, CMKnoten(j, k), CMKnoten(j + 1, k + 1));
      fluegel->SetRahmenDefaults(7.8, 6.8, 1.5, 1, 3);
    }
  }
  return fenster;
}

bool Einpassen(CMFenster& fenster, double breite, double hoehe) {
  bool found = false;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (masz.strName == "Breite") masz.dLaenge = breite;
    if (masz.strName == "Hoehe") masz.dLaenge = hoehe;
    found = found || masz.strName == "Breite";
  }
  return found && fenster.Berechne(false);
}

}  // namespace lintavo::test
