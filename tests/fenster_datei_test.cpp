// The macro file: read = write = read, and what a reader leaves out.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/model/CMFenster.h"

#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

CIniFile Dokument(const std::string& text) {
  CIniFile document;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) document.AddLine(line);
  return document;
}

CIniFile Dokument(const std::vector<std::string>& lines) {
  CIniFile document;
  for (const std::string& line : lines) document.AddLine(line);
  return document;
}

// A sash section between two nodes.
std::string Fluegel(int number, const std::string& typ = "1,0") {
  return "[Fluegel" + std::to_string(number) + "]\nTyp=" + typ +
         "\nRahmendicke=6.8\nRahmenDefaults=7.8,1.5,1,3,1,3\nKnoten1=0,0\nKnoten2=1,1\n";
}

const std::string kRahmen =
    "[Rahmen]\nRahmendicke=6.8\nRahmenDefaults=7,0,1,2,1,2\nKnoten1=0,0\nKnoten2=1,1\n";

class JedeDatei : public testing::TestWithParam<std::string> {};

TEST_P(JedeDatei, ReadWriteReadIsTheSameBytes) {
  const CMFenster fenster = Beispiel(GetParam());
  const std::vector<std::string> first = Zeilen(fenster);
  CIniFile document = Dokument(first);
  CMFenster again;
  ASSERT_TRUE(again.ReadFromBuffer(document));
  ASSERT_TRUE(again.Berechne(false));
  EXPECT_EQ(Zeilen(again), first);
}

TEST_P(JedeDatei, CalculatingTwiceChangesNothing) {
  CMFenster fenster = Beispiel(GetParam());
  const std::vector<std::string> first = Zeilen(fenster);
  const CMFenster before = fenster;
  ASSERT_TRUE(fenster.Berechne(false));
  EXPECT_EQ(Zeilen(fenster), first);
  const std::vector<GEOM2_Polygon> outlines = Umrisse(fenster);
  const std::vector<GEOM2_Polygon> outlinesBefore = Umrisse(before);
  ASSERT_EQ(outlines.size(), outlinesBefore.size());
  for (std::size_t n = 0; n < outlines.size(); ++n) {
    // To the last bit.
    EXPECT_TRUE(GleichePunkte(outlines[n], outlinesBefore[n], 0.0)) << "outline " << n;
  }
}

TEST_P(JedeDatei, FittingThereAndBackIsTheIdentity) {
  CMFenster fenster = Beispiel(GetParam());
  const std::vector<GEOM2_Polygon> before = Umrisse(fenster, false);
  double breite = 0.0;
  double hoehe = 0.0;
  ASSERT_TRUE(Gesamtmasze(fenster, breite, hoehe));
  ASSERT_TRUE(Einpassen(fenster, breite * 1.1, hoehe * 1.2));
  ASSERT_TRUE(Einpassen(fenster, breite, hoehe));
  const std::vector<GEOM2_Polygon> after = Umrisse(fenster, false);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t n = 0; n < before.size(); ++n) {
    EXPECT_TRUE(GleichePunkte(before[n], after[n], 1e-6)) << "outline " << n;
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, JedeDatei, testing::ValuesIn(BeispielNamen()), BeispielTestName);

TEST(Makrodatei, AGapEndsTheDimensionsButNotTheSashesThatFail) {
  CIniFile document = Dokument(
      "[Achsen]\nY1=100\nX1=80\n"
      "[Masz1]\nName=B\nLaenge=80,10\nRichtung=1\nKnoten1=0,0\nKnoten2=1,0\n"
      "[Masz3]\nName=C\nLaenge=80,10\nRichtung=1\nKnoten1=0,0\nKnoten2=1,0\n" +
      kRahmen + Fluegel(1) + "[Fluegel2]\nTyp=1,0\nKnoten1=0,0\n" + Fluegel(3, "1,7") +
      Fluegel(4, "9,0") + Fluegel(5));
  CMFenster fenster;
  ASSERT_TRUE(fenster.ReadFromBuffer(document));
  EXPECT_EQ(fenster.GetAnzahlZusatzMasze(), 1);
  // Sash 2 lacks its thickness and is left out; sash 4 has no known shape and
  // ends the list.
  ASSERT_EQ(fenster.GetAnzahlFluegel(), 2);
  EXPECT_EQ(fenster.GetFluegelPtr(1L)->lTyp2, 7);
}

TEST(Makrodatei, AtMost49SashesAreRead) {
  std::string text = "[Achsen]\nY1=100\nX1=80\n" + kRahmen;
  for (int i = 1; i <= 60; ++i) text += Fluegel(i);
  CIniFile document = Dokument(text);
  CMFenster fenster;
  ASSERT_TRUE(fenster.ReadFromBuffer(document));
  EXPECT_EQ(fenster.GetAnzahlFluegel(), 49);
}

TEST(Makrodatei, FourNumbersMakeACornerPointAndThreeDoNot) {
  CIniFile document = Dokument(
      "[Masz1]\nName=B\nLaenge=80\nRichtung=0\nKnoten1=3,4,120.5,80\nKnoten2=3,4,120.5\n"
      "Knoten3=1,2,3,4,5\n" +
      kRahmen);
  CMFenster fenster;
  ASSERT_TRUE(fenster.ReadFromBuffer(document));
  const CMZusatzMasz& masz = *fenster.GetZusatzMaszPtr(0);
  EXPECT_FALSE(masz.kKnoten1.IsAufAchse());
  EXPECT_EQ(masz.kKnoten1.X(), 120.5);
  EXPECT_TRUE(masz.kKnoten2.IsAufAchse());
  EXPECT_TRUE(masz.IsZentrisch() && masz.kKnoten3.IsAufAchse());
  EXPECT_TRUE(masz.IsVertikal());
}

TEST(Makrodatei, AMissingFrameStillCountsAsRead) {
  const Ordner ordner;
  const std::string path = ordner / "ohne_rahmen.aqz";
  std::ofstream(path) << "[Allgemeines]\nName=Ohne Rahmen\n";
  CMFenster fenster;
  EXPECT_TRUE(fenster.ReadFromFile(path.c_str()));
  EXPECT_EQ(fenster.GetName(), "Ohne Rahmen");
  EXPECT_FALSE(fenster.IsBitmap());
}

TEST(Makrodatei, AnUnreadablePathLeavesAnEmptyWindowWithMessage28) {
  CMFenster fenster = Beispiel("raster_3x3.aqz");
  EXPECT_FALSE(fenster.ReadFromFile("/gibt/es/nicht.aqz"));
  CString text;
  EXPECT_EQ(fenster.GetFehler(text), 28);
  EXPECT_STREQ(text, "Die Datei '/gibt/es/nicht.aqz' ist nicht vorhanden !");
  EXPECT_EQ(fenster.GetAnzahlFluegel(), 0);
  EXPECT_FALSE(fenster.ReadFromFile(""));
  EXPECT_EQ(fenster.GetFehler(text), 28);
}

TEST(Makrodatei, TheParameterFormStandsBesideTheFile) {
  const Ordner ordner;
  CMFenster fenster = Beispiel("zweifluegelig_mit_pfosten.aqz");
  CMZusatzMasz repeated = *fenster.GetZusatzMaszPtr(0);
  repeated.dLaenge = 1.0;
  fenster.AddZusatzMasz(repeated);
  EXPECT_TRUE(fenster.SaveToFile(true, (ordner / "Fenster1.aqz").c_str()));
  EXPECT_TRUE(std::filesystem::exists(ordner / "Fenster1.aqz"));
  CIniFile form;
  ASSERT_TRUE(form.Read((ordner / "fenster1.txt").c_str()));
  double breite = 0.0;
  EXPECT_TRUE(form.GetDouble("Masze", "Breite", breite));
  // Ten times the first dimension of that name.
  EXPECT_DOUBLE_EQ(breite, 10.0 * fenster.GetZusatzMaszPtr(0)->dLaenge);
  CString sample;
  EXPECT_TRUE(form.GetString("Fluegel2", "Sprossenbild1", sample));
  EXPECT_EQ(sample, "00,1,2,1,2");
  // Under a name of its own it is the same form, and the name is taken as it is.
  EXPECT_TRUE(fenster.SaveParameterFormular((ordner / "Formular").c_str()));
  CIniFile same;
  ASSERT_TRUE(same.Read((ordner / "Formular").c_str()));
  EXPECT_EQ(same.GetLines(), form.GetLines());
  EXPECT_FALSE(fenster.SaveParameterFormular(""));
  EXPECT_FALSE(fenster.SaveParameterFormular("/gibt/es/nicht/f.txt"));
  EXPECT_FALSE(fenster.SaveToFile(false, "/gibt/es/nicht/f.aqz"));
  EXPECT_FALSE(fenster.SaveToFile(""));
}

// No text of a window, whatever it holds and however long it is, brings lines of its own
// into the file or into its parameter form.
TEST(Makrodatei, NoTextBringsLinesOfItsOwn) {
  const Ordner ordner;
  const std::string lines = "[Achsen]\nX1=5\r[Masz1]\r\nName=B\nLaenge=7,1\nRichtung=1";
  for (const std::string& text :
       {"N\r\n" + lines, std::string("N\0\n", 3) + lines, std::string(250, 'x') + "[Achsen]",
        std::string(255, 'x') + "X1=5", "x" + std::string(249, '\xC3') + "[Achsen]"}) {
    CMFenster harmless = Beispiel("zweifluegelig_mit_pfosten.aqz");
    CMFenster fenster = harmless;
    fenster.SetTypName(std::string_view(text));
    fenster.SetName(std::string_view(text));
    fenster.GetZusatzMaszPtr(0)->strName = std::string_view(text);
    fenster.GetFluegelPtr(0)->SetName(std::string_view(text));
    ASSERT_TRUE(harmless.SaveToFile(true, (ordner / "harmlos.aqz").c_str()));
    ASSERT_TRUE(fenster.SaveToFile(true, (ordner / "fenster.aqz").c_str()));
    for (const char* name : {".aqz", ".txt"}) {
      CIniFile written;
      CIniFile expected;
      ASSERT_TRUE(written.Read((ordner / (std::string("fenster") + name)).c_str()));
      ASSERT_TRUE(expected.Read((ordner / (std::string("harmlos") + name)).c_str()));
      EXPECT_EQ(written.GetLines().size(), expected.GetLines().size()) << text;
      EXPECT_EQ(written.GetCntSections(), expected.GetCntSections()) << text;
    }
    CMFenster again;
    ASSERT_TRUE(again.ReadFromFile((ordner / "fenster.aqz").c_str()));
    EXPECT_EQ(again.GetName().Left(1), text.substr(0, 1).c_str());
    ASSERT_TRUE(again.Berechne(false));
    EXPECT_EQ(Umrisse(again).size(), Umrisse(harmless).size());
  }
}

TEST(Makrodatei, TheLastDotOfThePathTellsWhetherThereIsAForm) {
  const Ordner ordner;
  const CMFenster fenster = Raster(1, 1, 100.0, 80.0);
  const struct {
    const char* makro;
    const char* formular;
  } kFaelle[] = {{"Ab.C/Punktlos", "Ab.C/punkttxt"},
                 {"Ab.C/ab", "Ab.C/txt"},
                 {"Ab.C/Name.XY", "Ab.C/nametxt"},
                 {"Ab.C/Name.lang", "Ab.C/name.ltxt"}};
  for (const auto& fall : kFaelle) {
    std::filesystem::create_directories(ordner / "Ab.C");
    EXPECT_TRUE(CMFenster(fenster).SaveToFile(true, (ordner / fall.makro).c_str()));
    EXPECT_TRUE(std::filesystem::exists(ordner / fall.makro)) << fall.makro;
    EXPECT_TRUE(std::filesystem::exists(ordner / fall.formular)) << fall.makro;
    std::filesystem::remove_all(ordner / "Ab.C");
  }
}

TEST(Makrodatei, SavingDropsUnusedAxesAndBringsTheFirstUsedOneToZero) {
  CMFenster fenster = Raster(4, 2, 50.0, 60.0);
  while (fenster.GetAnzahlFluegel() > 0) fenster.DeleteFluegel(0);
  fenster.AddFluegel(eFormRechteck, 0, CMKnoten(2, 0), CMKnoten(3, 1));
  fenster.AddFluegel(eFormRechteck, 0, CMKnoten(3, 0), CMKnoten(4, 1));
  fenster.AddRahmenEinzelBauteil(CMKnoten(3, 0), CMKnoten(3, 1), CMBauteil());
  CMZusatzMasz masz;
  masz.SetHorizontal(CMKnoten(2, 0), CMKnoten(4, 0));
  fenster.AddZusatzMasz(masz);
  fenster.AchsRasterOptimieren();
  EXPECT_EQ(fenster.GetAchsen().iGetCntVerti(), 3);
  EXPECT_EQ(fenster.GetAchsen().iGetCntHori(), 2);
  EXPECT_DOUBLE_EQ(fenster.GetAchsen().dGetPosVerti(2), 100.0);
  EXPECT_EQ(fenster.GetFluegelPtr(0L)->Knoten1.J(), 0);
  EXPECT_EQ(fenster.GetFluegelPtr(1L)->Knoten2.J(), 2);
  EXPECT_EQ(fenster.GetZusatzMaszPtr(0)->kKnoten2.J(), 2);
  EXPECT_EQ(fenster.GetRahmenEinzelBauteilPtr(0)->kAnfang.J(), 1);
}

TEST(Makrodatei, HostileIndicesKeepTheGridBounded) {
  CMFenster fenster = Raster(2, 1, 50.0, 60.0);
  fenster.GetFluegelPtr(0L)->Knoten2.Set(2147483647, -2147483647);
  fenster.AchsRasterOptimieren();
  EXPECT_LE(fenster.GetAchsen().iGetCntVerti(), 3);
  EXPECT_LE(fenster.GetAchsen().iGetCntHori(), 2);
  fenster.Berechne(false);  // any result, no crash
}

}  // namespace
}  // namespace lintavo::test
