// The section of a sash in the macro file, and the lists of the parameter form.
#include <climits>
#include <cstdio>

#include <gtest/gtest.h>

#include "lintavo/sash/CMFensterSatzBogen.h"
#include "lintavo/sash/CMFensterSatzEllipse.h"
#include "lintavo/sash/CMFensterSatzHalbBogen.h"
#include "lintavo/sash/CMFensterSatzRechteck.h"

#include "support/Saetze.h"

namespace lintavo::test {
namespace {

const char* const kSektion = "Fluegel1";

CIniFile VolleSektion() {
  return Dokument({"[Fluegel1]",
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
                   "Z1=1,2,3,4,9,8,7,34,14,44,24",
                   "Z2=3,2.5,1.5,35,15,45,25",
                   "Z3=2,3.5,4.5,36,16,46,26,4,5",
                   "S1=10,20,30,40,2,37,17,47,27,3",
                   "Beschlag1=1,2,1,50,0,3.5"});
}

void ErwarteAttribute(const CMBauteil& bauteil, long a1, long a2, long a3, long a4) {
  EXPECT_EQ(bauteil.lAttribut[0], a1);
  EXPECT_EQ(bauteil.lAttribut[1], a2);
  EXPECT_EQ(bauteil.lAttribut[2], a3);
  EXPECT_EQ(bauteil.lAttribut[3], a4);
}

}  // namespace

TEST(SatzLesen, PlainFields) {
  CIniFile document = VolleSektion();
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.strName, "Links");
  EXPECT_EQ(satz.dZVersatz, -1.25);
  EXPECT_FALSE(satz.bMitRahmen);
  EXPECT_EQ(satz.lOeffSeite, 1);
  EXPECT_EQ(satz.lGangart, 11);
  EXPECT_EQ(satz.lAnschlag, 3);
  EXPECT_TRUE(satz.bZuerstAufgehend);
  EXPECT_EQ(satz.Knoten1.J(), 1);
  EXPECT_EQ(satz.Knoten1.K(), 2);
  EXPECT_EQ(satz.Knoten2.J(), -3);
  EXPECT_EQ(satz.KnotenAL.J(), 5);
  EXPECT_EQ(satz.KnotenAR.J(), -3) << "a missing reference node is the corner node";
  EXPECT_EQ(satz.RahmenVorlage.dBreite, 8.0);
  EXPECT_EQ(satz.RahmenVorlage.dBreite2, 2.0);
  EXPECT_EQ(satz.RahmenVorlage.dDicke, 7.5) << "not the seventh number of the defaults";
  ErwarteAttribute(satz.RahmenVorlage, 11, 21, 31, 41);
  EXPECT_EQ(satz.SprossenVorlage.dBreite, 3.0);
  EXPECT_EQ(satz.SprossenVorlage.dDicke, 5.0);
  ErwarteAttribute(satz.SprossenVorlage, 12, 22, 32, 42);

  EXPECT_TRUE(satz.Fuellung.IsLamellen());
  EXPECT_EQ(satz.Fuellung.D2, 30.0) << "slat widths lose their decimals";
  EXPECT_EQ(satz.Fuellung.D1, 1.5);
  EXPECT_EQ(satz.Fuellung.D3, 2.5);
  EXPECT_EQ(satz.Fuellung.D4, 4.0);
  EXPECT_EQ(satz.Fuellung.D5, 5.0);
  EXPECT_EQ(satz.Fuellung.D6, 6.0);
  EXPECT_EQ(satz.Fuellung.D7, 0.25);
  EXPECT_EQ(satz.Fuellung.I1, 11);
  EXPECT_EQ(satz.Fuellung.I4, 14);
}

TEST(SatzLesen, Components) {
  CIniFile document = VolleSektion();
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  ASSERT_EQ(satz.RahmenTeile.size(), 1U);
  EXPECT_EQ(satz.RahmenTeile[0].dBreite, 10.0);
  EXPECT_EQ(satz.RahmenTeile[0].dBreite2, 1.0);
  EXPECT_EQ(satz.RahmenTeile[0].dDicke, 6.0);
  ErwarteAttribute(satz.RahmenTeile[0], 13, 23, 33, 43);

  ASSERT_EQ(satz.EinzelTeile.size(), 3U);
  const CMBauteil& pfosten = satz.EinzelTeile[0];
  EXPECT_TRUE(pfosten.IsRahmenteil());
  EXPECT_EQ(pfosten.kAnfang.J(), 1);
  EXPECT_EQ(pfosten.kAnfang.K(), 2);
  EXPECT_EQ(pfosten.kEnde.J(), 3);
  EXPECT_EQ(pfosten.kEnde.K(), 4);
  EXPECT_EQ(pfosten.dBreite, 9.0);
  EXPECT_EQ(pfosten.dDicke, 8.0);
  EXPECT_EQ(pfosten.dBreite2, 7.0);
  ErwarteAttribute(pfosten, 14, 24, 34, 44);
  const CMBauteil& innen = satz.EinzelTeile[1];
  EXPECT_TRUE(innen.IsZusatzteilInnen());
  EXPECT_EQ(innen.lSeite, 3);
  EXPECT_EQ(innen.dBreite, 2.5);
  EXPECT_EQ(innen.dDicke, 1.5);
  EXPECT_EQ(innen.lKette, -1);
  ErwarteAttribute(innen, 15, 25, 35, 45);
  const CMBauteil& aussen = satz.EinzelTeile[2];
  EXPECT_TRUE(aussen.IsZusatzteilAussen());
  EXPECT_EQ(aussen.lSeite, 2);
  EXPECT_EQ(aussen.cAbschnittsTypAnfang, 4);
  EXPECT_EQ(aussen.cAbschnittsTypEnde, 0) << "5 is no section type";
  ErwarteAttribute(aussen, 16, 26, 36, 46);

  ASSERT_EQ(satz.Sprossen.size(), 1U);
  EXPECT_TRUE(satz.Sprossen[0].IsSprosse());
  EXPECT_EQ(satz.Sprossen[0].Achse(0).Start.x, 10.0);
  EXPECT_EQ(satz.Sprossen[0].Achse(0).Start.y, 20.0);
  EXPECT_EQ(satz.Sprossen[0].Achse(0).dWinkel, 30.0);
  EXPECT_EQ(satz.Sprossen[0].Achse(0).dLaenge, 40.0);
  EXPECT_EQ(satz.Sprossen[0].dBreite, 2.0);
  EXPECT_EQ(satz.Sprossen[0].dDicke, 3.0);
  ErwarteAttribute(satz.Sprossen[0], 17, 27, 37, 47);

  ASSERT_EQ(satz.Beschlaege.size(), 1U);
  EXPECT_EQ(satz.Beschlaege[0].eTyp, eBeschlagBand);
  EXPECT_EQ(satz.Beschlaege[0].lBauteil, 2);
  EXPECT_EQ(satz.Beschlaege[0].eMasz1, eVermaszungProzent);
  EXPECT_EQ(satz.Beschlaege[0].dAbstand1, 50.0);
  EXPECT_EQ(satz.Beschlaege[0].eMasz2, eVermaszungAbsolut);
  EXPECT_EQ(satz.Beschlaege[0].dAbstand2, 3.5);
}

TEST(SatzLesen, WhatMayBeMissing) {
  const char* const zeilen[] = {"Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1"};
  for (std::size_t fehlt = 0; fehlt < 3; ++fehlt) {
    CIniFile document = Dokument({"[Fluegel1]", "Name=Rest"});
    for (std::size_t i = 0; i < 3; ++i) {
      if (i != fehlt) document.AddLine(zeilen[i]);
    }
    CMFensterSatzRechteck satz;
    satz.SetFormBeiwertX(0, 12.0, false);
    EXPECT_FALSE(satz.ReadFromIniFile(kSektion, document)) << "without " << zeilen[fehlt];
    EXPECT_EQ(satz.strName, "Rest") << "what was read before stays";
    EXPECT_EQ(satz.FormBeiwertX[0].dWert, 12.0) << "the shape reads nothing then";
  }

  CIniFile document = Dokument(
      {"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1", "OeffSeite=Weg", "Gangart="});
  CMFensterSatz satz;
  satz.lOeffSeite = 1;
  satz.lGangart = 4;
  satz.dZVersatz = 3.0;
  const double dicke = satz.RahmenVorlage.dDicke;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.RahmenVorlage.dDicke, dicke) << "no defaults, no thickness";
  EXPECT_EQ(satz.lOeffSeite, 1);
  EXPECT_EQ(satz.lGangart, 4);
  EXPECT_EQ(satz.dZVersatz, 3.0);
}

TEST(SatzLesen, GapsEndListsAndOtherCountsArePassedOver) {
  CIniFile document =
      Dokument({"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1", "R1=1,0,0,0,0,0,1",
                "R2=2,0,0,0,0,0,1", "R4=4,0,0,0,0,0,1", "Z1=0,1,1,1,1,1,1,1", "Z2=0,2,1,1,1,1,1",
                "Z3=1,1,1,1,1,1,1,1,1,1,1,1", "Z4=0,3,1,1,1,1,1,1,1,1", "Z5=0,4,1,1,1,1,1,1,1",
                "Z7=0,5,1,1,1,1,1"});
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.RahmenTeile.size(), 2U);
  ASSERT_EQ(satz.EinzelTeile.size(), 2U);
  EXPECT_EQ(satz.EinzelTeile[0].dBreite, 2.0);
  EXPECT_EQ(satz.EinzelTeile[1].dBreite, 4.0);

  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.RahmenTeile.size(), 4U) << "reading appends";
  EXPECT_EQ(satz.EinzelTeile.size(), 4U);
}

TEST(SatzLesen, HighestNumbers) {
  CIniFile document = Dokument({"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1"});
  for (int i = 1; i <= 300; ++i) {
    for (const char* format : {"R%d=1,0,0,0,0,0,1", "Z%d=0,1,1,1,1,1,1", "S%d=0,0,0,10,1,1,1,1,1,1",
                               "Beschlag%d=1,1,1,1,1,1"}) {
      char text[64];
      std::snprintf(text, sizeof text, format, i);
      document.AddLine(text);
    }
  }
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.RahmenTeile.size(), 101U);
  EXPECT_EQ(satz.EinzelTeile.size(), 199U);
  EXPECT_EQ(satz.Sprossen.size(), 199U);
  EXPECT_EQ(satz.Beschlaege.size(), 199U);
}

TEST(SatzLesen, HostileNumbers) {
  CIniFile document =
      Dokument({"[Fluegel1]", "Fuellung=nan,1e30,inf,0,0,0,0,0,1e30,-1e30,nan,0", "Rahmendicke=nan",
                "RahmenDefaults=inf,1,1e300,nan,-1e300,1", "Knoten1=1e30,nan", "Knoten2=-1e30,0",
                "Z1=1e300,1,1,1,1,1,1", "Beschlag1=1e30,-1e30,7,nan,1e9,inf"});
  CMFensterSatz satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.Knoten1.J(), INT_MAX);
  EXPECT_EQ(satz.Knoten1.K(), 0);
  EXPECT_EQ(satz.Knoten2.J(), INT_MIN);
  EXPECT_EQ(satz.Fuellung.lArt, 0);
  EXPECT_EQ(satz.Fuellung.I1, INT_MAX);
  EXPECT_EQ(satz.EinzelTeile.at(0).lSeite, LONG_MAX);
  EXPECT_EQ(satz.RahmenVorlage.lAttribut[2], LONG_MAX);
  EXPECT_EQ(satz.Beschlaege.at(0).lBauteil, INT_MIN);
}

TEST(SatzSchreiben, AlwaysTheSameAttributes) {
  CMFensterSatz satz;
  CIniFile quelle = VolleSektion();
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, quelle));
  satz.RahmenTeile[0].Achse(0).dLaenge = 100.0;
  CIniFile document;
  ASSERT_TRUE(satz.SaveToIniFile(kSektion, document));
  ASSERT_TRUE(satz.SaveToIniFile("Rahmen", document));
  const auto fluegel = [&](const char* key) { return Eintrag(document, kSektion, key); };
  EXPECT_EQ(fluegel("Fuellung"), "2,30,1.5,2.5,6,5,4,0.25,5,5,1,1");
  EXPECT_EQ(fluegel("Rahmendicke"), "7.5");
  EXPECT_EQ(fluegel("Z-Versatz"), "-1.25");
  EXPECT_EQ(fluegel("Mit Rahmen"), "0");
  EXPECT_EQ(fluegel("OeffSeite"), "Au");
  EXPECT_EQ(fluegel("Gangart"), "HSK");
  EXPECT_EQ(fluegel("Anschlag"), "Un");
  EXPECT_EQ(fluegel("ZuerstAufgehend"), "1");
  EXPECT_EQ(fluegel("RahmenDefaults"), "8,2,1,3,1,3,7.5");
  EXPECT_EQ(fluegel("SprossenDefaults"), "3,5,1,1,4,4");
  EXPECT_EQ(fluegel("Knoten2"), "-3,4");
  EXPECT_EQ(fluegel("KnotenAL"), "5,6");
  EXPECT_EQ(fluegel("KnotenAR"), "(fehlt)");
  EXPECT_EQ(fluegel("R1"), "10,1,1,3,1,3,6");
  EXPECT_EQ(fluegel("Z1"), "1,2,3,4,9,8,7,1,2,1,2");
  EXPECT_EQ(fluegel("Z2"), "3,2.5,1.5,1,3,1,3");
  EXPECT_EQ(fluegel("Z3"), "2,3.5,4.5,1,3,1,3,4,0");
  EXPECT_EQ(fluegel("S1"), "10,20,30,40,2,1,4,1,4,3");
  EXPECT_EQ(fluegel("Beschlag1"), "1,2,1,50,0,3.5");
  EXPECT_EQ(Eintrag(document, "Rahmen", "RahmenDefaults"), "8,2,1,2,1,2,7.5");
  EXPECT_EQ(Eintrag(document, "Rahmen", "R1"), "10,1,1,2,1,2,6");
  EXPECT_EQ(Eintrag(document, "Rahmen", "Z2"), "3,2.5,1.5,1,2,1,2");
}

TEST(SatzSchreiben, WhatIsLeftOut) {
  CMFensterSatz satz;
  satz.SetName("A");
  satz.Knoten1.Set(1, 1);
  satz.KnotenAL.Set(1, 5);
  satz.RahmenTeile.resize(3);
  satz.RahmenTeile[0].Achse(0).dLaenge = 10.0;
  satz.RahmenTeile[2].Achse(0).dLaenge = 10.0;
  satz.EinzelTeile.resize(4);
  satz.EinzelTeile[0].lTyp = eZusatzteilInnen;
  satz.EinzelTeile[1].dBreite = 0.0;
  satz.EinzelTeile[2].dBreite = 12.0;
  satz.EinzelTeile[3].lTyp = eSprosse;
  satz.Sprossen.resize(2);
  satz.Sprossen[0].dBreite = 0.0;
  CIniFile document;
  satz.SaveToIniFile(kSektion, document);
  EXPECT_EQ(Eintrag(document, kSektion, "Name"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, kSektion, "KnotenAL"), "(fehlt)");
  EXPECT_NE(Eintrag(document, kSektion, "R1"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, kSektion, "R2"), "(fehlt)");
  EXPECT_NE(Eintrag(document, kSektion, "R3"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, kSektion, "Z1"), "0,0,0,0,12,4,0,1,2,1,2") << "frame parts first";
  EXPECT_EQ(Eintrag(document, kSektion, "Z2"), "-1,6,4,1,3,1,3");
  EXPECT_EQ(Eintrag(document, kSektion, "Z3"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, kSektion, "S1"), "0,0,0,0,6,1,4,1,4,4") << "numbered without gaps";
}

TEST(SatzSchreiben, ReadAndWrittenAgainIsTheSame) {
  CIniFile geschrieben;
  {
    CIniFile quelle = VolleSektion();
    CMFensterSatzHalbBogen satz;
    ASSERT_TRUE(satz.ReadFromIniFile(kSektion, quelle));
    satz.RahmenTeile[0].Achse(0).dLaenge = 1.0;
    satz.dStich = 123.456789;
    satz.dStichUnten = 0.5;
    satz.bKorbbogen = satz.bGespiegelt = true;
    ASSERT_TRUE(satz.SaveToIniFile(kSektion, geschrieben));
  }
  CIniFile erstes;
  for (const CString& line : geschrieben.GetLines()) erstes.AddLine(line);
  CIniFile zweites;
  CMFensterSatzHalbBogen satz;
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, erstes));
  EXPECT_EQ(satz.dStich, 123.456789);
  EXPECT_TRUE(satz.bKorbbogen);
  EXPECT_TRUE(satz.bGespiegelt);
  satz.RahmenTeile[0].Achse(0).dLaenge = 1.0;
  ASSERT_TRUE(satz.SaveToIniFile(kSektion, zweites));
  ASSERT_EQ(erstes.GetLines().size(), zweites.GetLines().size());
  for (std::size_t i = 0; i < erstes.GetLines().size(); ++i) {
    EXPECT_EQ(erstes.GetLines()[i], zweites.GetLines()[i]);
  }
}

TEST(FormSchluessel, RectangleReadsMissingKeysAsMovableZero) {
  CIniFile document = Dokument({"[Fluegel1]", "Rahmendicke=5", "Knoten1=0,0", "Knoten2=1,1",
                                "X1=10,1", "X2=20,0.1", "Y4=-5,0.2"});
  CMFensterSatzRechteck satz;
  satz.SetFormBeiwertY(0, 77.0, true);
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, document));
  EXPECT_EQ(satz.FormBeiwertX[0].dWert, 10.0);
  EXPECT_TRUE(satz.FormBeiwertX[0].bFest);
  EXPECT_FALSE(satz.FormBeiwertX[1].bFest);
  EXPECT_EQ(satz.FormBeiwertY[3].dWert, -5.0);
  EXPECT_TRUE(satz.FormBeiwertY[3].bFest);
  EXPECT_EQ(satz.FormBeiwertY[0].dWert, 0.0);
  EXPECT_FALSE(satz.FormBeiwertY[0].bFest);

  CIniFile geschrieben;
  ASSERT_TRUE(satz.SaveToIniFile(kSektion, geschrieben));
  EXPECT_EQ(Eintrag(geschrieben, kSektion, "X1"), "10,1");
  EXPECT_EQ(Eintrag(geschrieben, kSektion, "X2"), "20,0");
  EXPECT_EQ(Eintrag(geschrieben, kSektion, "Y1"), "0,0");
}

TEST(FormSchluessel, EachShapeHasItsOwn) {
  CMFensterSatzBogen bogen;
  bogen.dStich = 1.5;
  CMFensterSatzEllipse ellipse;
  CIniFile document;
  bogen.SaveToIniFile("Fluegel1", document);
  ellipse.SaveToIniFile("Fluegel2", document);
  EXPECT_EQ(Eintrag(document, "Fluegel1", "Stich"), "1.5");
  EXPECT_EQ(Eintrag(document, "Fluegel1", "Stich unten"), "0");
  EXPECT_EQ(Eintrag(document, "Fluegel1", "Korbbogen"), "0");
  EXPECT_EQ(Eintrag(document, "Fluegel1", "Gespiegelt"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, "Fluegel2", "Stich"), "(fehlt)");
}

TEST(Formular, ListsOfFrameAndSashes) {
  CMFensterSatz satz;
  CIniFile quelle = VolleSektion();
  ASSERT_TRUE(satz.ReadFromIniFile(kSektion, quelle));
  satz.RahmenTeile.push_back(satz.RahmenTeile[0]);
  satz.RahmenTeile[1].Achse(0).dLaenge = 100.0;
  CIniFile document;
  satz.SaveBauteileToParameterFormular(0, "Rahmen", document);
  satz.SaveBauteileToParameterFormular(1, kSektion, document);
  EXPECT_EQ(Eintrag(document, "Rahmen", "Rahmendicke"), "75");
  EXPECT_EQ(Eintrag(document, "Rahmen", "R1"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, "Rahmen", "R2"), "100,33,13,43,23");
  EXPECT_EQ(Eintrag(document, "Rahmen", "Z1"), "3,35,0,36,16,46,26,4,0") << "outer parts only";
  EXPECT_EQ(Eintrag(document, "Rahmen", "Z2"), "(fehlt)");
  EXPECT_EQ(Eintrag(document, kSektion, "F2"), "100,10,33,13,43,23");
  EXPECT_EQ(Eintrag(document, kSektion, "Z1"), "(fehlt)");
}

}  // namespace lintavo::test
