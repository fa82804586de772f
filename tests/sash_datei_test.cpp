// The section of a sash in the macro file, and the lists of the parameter form.
#include <climits>
#include <cstdio>

#include <gtest/gtest.h>

#include "lintavo/sash/CMFensterSatzHalbBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

#include "support/Saetze.h"

namespace lintavo::test {
namespace {

const char* const kSektion = "Fluegel1";

// A record with other values at every place of its lists.
void ReadVolleSektion(CMFensterSatz& satz) {
  CIniFile document = Dokument({"[Fluegel1]",
                                "Name=Links",
                                "Fuellung=2,30.75,1.5,2.5,6,5,4,0.25,11,12,13,14",
                                "Rahmendicke=7.5",
                                "Z-Versatz=-1.25",
                                "Mit Rahmen=0",
                                "OeffSeite=au",
                                "Gangart=hsk",
                                "Anschlag=Un",
                                "ZuerstAufgehend=1",
                                "RahmenDefaults=8,2,31,11,41,21,99",
                                "SprossenDefaults=3,5,42,32,22,12",
                                "Knoten1=1,2.9",
                                "Knoten2=-3.9,4",
                                "KnotenAL=5,6",
                                "R1=10,1,33,13,43,23,6",
                                "Z1=3,2.5,1.5,35,15,45,25",
                                "Z2=1,2,3,4,9,8,7,34,14,44,24",
                                "Z3=2,3.5,4.5,36,16,46,26,4,5",
                                "S1=10,20,30,40,2,37,17,47,27,3",
                                "Beschlag1=1,2,1,50,0,3.5"});
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  satz.RahmenTeile.at(0).Achse(0).dLaenge = 1.0;  // as if calculated
}

void ErwarteAttribute(const CMBauteil& bauteil, long zehner) {
  for (long i = 0; i < 4; ++i) EXPECT_EQ(bauteil.lAttribut[i], (i + 1) * 10 + zehner);
}

CIniFile Neu(const CIniFile& geschrieben) {
  CIniFile document;
  for (const CString& line : geschrieben.GetLines()) document.AddLine(line);
  return document;
}

}  // namespace

TEST(SatzDatei, WrittenAsReadButForTheAttributes) {
  CMFensterSatz satz;
  ReadVolleSektion(satz);
  CIniFile document;
  ASSERT_TRUE(satz.SaveToIniFile(kSektion, document));
  ASSERT_TRUE(satz.SaveToIniFile("Rahmen", document));
  const struct {
    const char* key;
    const char* value;
  } entries[] = {
      {"Name", "Links"},
      {"Fuellung", "2,30,1.5,2.5,6,5,4,0.25,5,5,1,1"},
      {"Rahmendicke", "7.5"},
      {"Z-Versatz", "-1.25"},
      {"Mit Rahmen", "0"},
      {"OeffSeite", "Au"},
      {"Gangart", "HSK"},
      {"Anschlag", "Un"},
      {"ZuerstAufgehend", "1"},
      {"RahmenDefaults", "8,2,1,3,1,3,7.5"},
      {"SprossenDefaults", "3,5,1,1,4,4"},
      {"Knoten1", "1,2"},
      {"Knoten2", "-3,4"},
      {"KnotenAL", "5,6"},
      {"KnotenAR", "(fehlt)"},
      {"R1", "10,1,1,3,1,3,6"},
      {"Z1", "1,2,3,4,9,8,7,1,2,1,2"},
      {"Z2", "3,2.5,1.5,1,3,1,3"},
      {"Z3", "2,3.5,4.5,1,3,1,3,4,0"},
      {"S1", "10,20,30,40,2,1,4,1,4,3"},
      {"Beschlag1", "1,2,1,50,0,3.5"},
  };
  for (const auto& entry : entries) {
    EXPECT_EQ(Eintrag(document, kSektion, entry.key), entry.value) << entry.key;
  }
  EXPECT_EQ(Eintrag(document, "Rahmen", "RahmenDefaults"), "8,2,1,2,1,2,7.5");
  EXPECT_EQ(Eintrag(document, "Rahmen", "R1"), "10,1,1,2,1,2,6");
  EXPECT_EQ(Eintrag(document, "Rahmen", "Z2"), "3,2.5,1.5,1,2,1,2");
}

TEST(SatzDatei, AttributesAreReadFromTheirPlaces) {
  CMFensterSatz satz;
  ReadVolleSektion(satz);
  ErwarteAttribute(satz.RahmenVorlage, 1);
  ErwarteAttribute(satz.SprossenVorlage, 2);
  ErwarteAttribute(satz.RahmenTeile.at(0), 3);
  ErwarteAttribute(satz.EinzelTeile.at(0), 5);
  ErwarteAttribute(satz.EinzelTeile.at(1), 4);
  ErwarteAttribute(satz.EinzelTeile.at(2), 6);
  ErwarteAttribute(satz.Sprossen.at(0), 7);
  EXPECT_EQ(satz.Fuellung.I1, 11);
  EXPECT_EQ(satz.Fuellung.I4, 14);
}

TEST(SatzDatei, WhatMayBeMissing) {
  const char* const zeilen[] = {"Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1"};
  for (const char* fehlt : zeilen) {
    CIniFile document = Dokument({"[Fluegel1]", "Name=Rest"});
    for (const char* zeile : zeilen) {
      if (zeile != fehlt) document.AddLine(zeile);
    }
    CMFensterSatzRechteck satz;
    satz.SetFormBeiwertX(0, 12.0, false);
    EXPECT_FALSE(satz.ReadFromIniFile(kSektion, document)) << "without " << fehlt;
    EXPECT_EQ(satz.strName, "Rest") << "what was read before stays";
    EXPECT_EQ(satz.FormBeiwertX[0].dWert, 12.0) << "the shape reads nothing then";
  }

  CIniFile document = Dokument(
      {"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1", "OeffSeite=Weg", "Gangart="});
  CMFensterSatz satz;
  satz.lOeffSeite = 1;
  satz.lGangart = 4;
  const double dicke = satz.RahmenVorlage.dDicke;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.RahmenVorlage.dDicke, dicke) << "no defaults, no thickness";
  EXPECT_EQ(satz.lOeffSeite, 1);
  EXPECT_EQ(satz.lGangart, 4);
  EXPECT_EQ(satz.KnotenAR.J(), 1) << "the corner node";
}

TEST(SatzDatei, GapsEndListsAndOtherCountsArePassedOver) {
  CIniFile document =
      Dokument({"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1", "R1=1,0,0,0,0,0,1",
                "R2=2,0,0,0,0,0,1", "R4=4,0,0,0,0,0,1", "Z1=0,1,1,1,1,1,1,1", "Z2=0,2,1,1,1,1,1",
                "Z3=1,1,1,1,1,1,1,1,1,1,1,1", "Z4=0,3,1,1,1,1,1,1,1,1", "Z5=0,4,1,1,1,1,1,1,1",
                "Z7=0,5,1,1,1,1,1"});
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document)) << "reading appends";
  EXPECT_EQ(satz.RahmenTeile.size(), 4U);
  ASSERT_EQ(satz.EinzelTeile.size(), 4U);
  EXPECT_EQ(satz.EinzelTeile[2].dBreite, 2.0);
  EXPECT_EQ(satz.EinzelTeile[3].dBreite, 4.0);
}

TEST(SatzDatei, HostileFilesStayBounded) {
  CIniFile document = Dokument({"[Fluegel1]", "Fuellung=nan,1e30,inf,0,0,0,0,0,1e30,-1e30,nan,0",
                                "Rahmendicke=5", "RahmenDefaults=inf,1,1e300,nan,-1e300,1",
                                "Knoten1=1e30,nan", "Knoten2=-1e30,0", "Z1=1e300,1,1,1,1,1,1"});
  for (int i = 1; i <= 300; ++i) {
    for (const char* format :
         {"R%d=1,0,0,0,0,0,1", "Z%d=0,1,1,1,1,1,1", "S%d=0,0,0,1,1,1,1,1,1,1", "Beschlag%d=1e30"}) {
      char text[64];
      std::snprintf(text, sizeof text, format, i);
      document.AddLine(text);
    }
  }
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  // Measures that are none leave what was there, whole numbers are cut.
  EXPECT_EQ(satz.Fuellung.D1, 0.0);
  EXPECT_EQ(satz.RahmenVorlage.dBreite, CMFensterSatz().RahmenVorlage.dBreite);
  EXPECT_EQ(satz.Knoten1.J(), INT_MAX);
  EXPECT_EQ(satz.Knoten1.K(), 0);
  EXPECT_EQ(satz.Knoten2.J(), INT_MIN);
  EXPECT_EQ(satz.EinzelTeile.at(0).lSeite, LONG_MAX);
  EXPECT_EQ(satz.RahmenTeile.size(), 101U);
  EXPECT_EQ(satz.EinzelTeile.size(), 199U);
  EXPECT_EQ(satz.Sprossen.size(), 199U);
  EXPECT_EQ(satz.Beschlaege.size(), 199U);
}

TEST(SatzDatei, WhatIsLeftOut) {
  CMFensterSatz satz;
  satz.SetName("A");
  satz.Knoten1.Set(1, 1);
  satz.KnotenAL.Set(1, 5);
  satz.RahmenTeile.resize(3);
  satz.RahmenTeile[0].Achse(0).dLaenge = satz.RahmenTeile[2].Achse(0).dLaenge = 10.0;
  satz.EinzelTeile.resize(3);
  satz.EinzelTeile[0].dBreite = 0.0;
  satz.EinzelTeile[2].lTyp = eSprosse;
  satz.Sprossen.resize(2);
  satz.Sprossen[0].dBreite = 0.0;
  CIniFile document;
  satz.SaveToIniFile(kSektion, document);
  for (const char* key : {"Name", "KnotenAL", "R2", "Z2", "S2"}) {
    EXPECT_EQ(Eintrag(document, kSektion, key), "(fehlt)") << key;
  }
  for (const char* key : {"R1", "R3", "Z1", "S1"}) {
    EXPECT_NE(Eintrag(document, kSektion, key), "(fehlt)") << key;
  }
}

TEST(SatzDatei, ShapeKeys) {
  CMFensterSatzHalbBogen bogen;
  bogen.dStich = 123.456789;
  bogen.dStichUnten = 0.5;
  bogen.bKorbbogen = bogen.bGespiegelt = true;
  CIniFile geschrieben;
  ASSERT_TRUE(bogen.SaveToIniFile(kSektion, geschrieben));
  CIniFile gelesen = Neu(geschrieben);
  CMFensterSatzHalbBogen zweiter;
  ASSERT_TRUE(zweiter.ReadFromIniFile(kSektion, gelesen));
  EXPECT_EQ(zweiter.dStich, 123.456789);
  EXPECT_EQ(zweiter.dStichUnten, 0.5);
  EXPECT_TRUE(zweiter.bKorbbogen);
  EXPECT_TRUE(zweiter.bGespiegelt);

  CIniFile document = Dokument({"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1",
                                "X1=10,1", "X2=20,0.1", "Y4=-5,0.2"});
  CMFensterSatzRechteck rechteck;
  rechteck.SetFormBeiwertY(0, 77.0, true);
  ASSERT_TRUE(rechteck.ReadFromIniFile(kSektion, document));
  CIniFile ecken;
  ASSERT_TRUE(rechteck.SaveToIniFile(kSektion, ecken));
  EXPECT_EQ(Eintrag(ecken, kSektion, "X1"), "10,1");
  EXPECT_EQ(Eintrag(ecken, kSektion, "X2"), "20,0");
  EXPECT_EQ(Eintrag(ecken, kSektion, "Y4"), "-5,1");
  EXPECT_EQ(Eintrag(ecken, kSektion, "Y1"), "0,0") << "a missing key is a movable zero";
}

TEST(ParameterFormular, ListsOfFrameAndSashes) {
  CMFensterSatz satz;
  ReadVolleSektion(satz);
  satz.RahmenTeile.insert(satz.RahmenTeile.begin(), CMBauteil());
  CIniFile document;
  satz.SaveBauteileToParameterFormular(0, "Rahmen", document);
  satz.SaveBauteileToParameterFormular(1, kSektion, document);
  EXPECT_EQ(Eintrag(document, "Rahmen", "Rahmendicke"), "75");
  EXPECT_EQ(Eintrag(document, "Rahmen", "R1"), "(fehlt)") << "no axis, but it keeps its number";
  EXPECT_EQ(Eintrag(document, "Rahmen", "R2"), "100,33,13,43,23");
  EXPECT_EQ(Eintrag(document, "Rahmen", "Z1"), "(fehlt)") << "it would be one part more";
  EXPECT_EQ(Eintrag(document, kSektion, "F2"), "100,10,33,13,43,23");
  EXPECT_EQ(Eintrag(document, kSektion, "Z1"), "(fehlt)");
}

}  // namespace lintavo::test
