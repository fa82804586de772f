#include "support/Beispiele.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "lintavo/ini/CIniFile.h"

namespace lintavo::test {

const std::vector<std::string>& BeispielNamen() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(LINTAVO_EXAMPLES_DIR "/windows")) {
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

std::string BeispielTestName(const testing::TestParamInfo<std::string>& info) {
  return info.param.substr(0, info.param.find('.'));
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

std::vector<GEOM2_Polygon> Umrisse(const CMFenster& fenster, bool mitSprossen) {
  std::vector<GEOM2_Polygon> umrisse;
  const auto add = [&](const std::vector<CMBauteil>& teile) {
    for (const CMBauteil& teil : teile) {
      if (teil.IsVorhanden()) teil.GetUmrissPunkte(umrisse.emplace_back());
    }
  };
  const auto addAll = [&](const CMFensterSatz& satz) {
    add(satz.RahmenTeile);
    add(satz.EinzelTeile);
    if (mitSprossen) add(satz.Sprossen);
  };
  addAll(*fenster.GetRahmenPtr());
  for (long i = 0; i < fenster.GetAnzahlFluegel(); ++i) addAll(*fenster.GetFluegelPtr(i));
  return umrisse;
}

bool GleichePunkte(const GEOM2_Polygon& a, const GEOM2_Polygon& b, double tol) {
  if (a.GetAnzahl() != b.GetAnzahl()) return false;
  for (int i = 0; i < a.GetAnzahl(); ++i) {
    const GEOM2_Eckpunkt& p = a.GetEckpunkt(i);
    const GEOM2_Eckpunkt& q = b.GetEckpunkt(i);
    if (!(std::fabs(p.x - q.x) <= tol && std::fabs(p.y - q.y) <= tol)) return false;
  }
  return true;
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

bool Gesamtmasze(const CMFenster& fenster, double& breite, double& hoehe) {
  breite = 0.0;
  hoehe = 0.0;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (masz.strName == "Breite") breite = std::fabs(masz.dLaenge);
    if (masz.strName == "Hoehe") hoehe = std::fabs(masz.dLaenge);
  }
  return breite > 0.0 && hoehe > 0.0;
}

bool Einpassen(CMFenster& fenster, double breite, double hoehe) {
  double before[2];
  if (!Gesamtmasze(fenster, before[0], before[1])) return false;
  for (long i = 0; i < fenster.GetAnzahlZusatzMasze(); ++i) {
    CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(i);
    if (masz.strName == "Breite") masz.dLaenge = std::copysign(breite, masz.dLaenge);
    if (masz.strName == "Hoehe") masz.dLaenge = std::copysign(hoehe, masz.dLaenge);
  }
  return fenster.Berechne(false);
}

}  // namespace lintavo::test
