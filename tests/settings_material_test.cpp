// General settings and materials.
#include <limits>

#include <gtest/gtest.h>

#include "lintavo/settings/CAcFeInis.h"

#include "support/Ordner.h"
#include "support/Saetze.h"

namespace lintavo::test {
namespace {

constexpr const char* kEinstellungen = LINTAVO_EXAMPLES_DIR "/Einstellungen/";

CString Pfad(const char* name) {
  return CString(kEinstellungen) + name;
}

CAcMatEntry Gelesen(std::initializer_list<const char*> lines) {
  CIniFile document = Dokument({"[M1]"});
  for (const char* line : lines) document.AddLine(line);
  CAcMatEntry entry;
  EXPECT_TRUE(CAcMatList().LoadFromIniFile(document, "M", 1, entry));
  return entry;
}

void ErwarteFarbe(const COLOR_RGB& farbe, float rot, float gruen, float blau) {
  EXPECT_EQ(farbe.fRot, rot);
  EXPECT_EQ(farbe.fGruen, gruen);
  EXPECT_EQ(farbe.fBlau, blau);
}

// --- one material ------------------------------------------------------------------

TEST(Material, MissingKeysLeaveTheDefaults) {
  const CAcMatEntry entry = Gelesen({});
  ErwarteFarbe(entry.Typ.Diffus, 1, 1, 1);
  ErwarteFarbe(entry.Typ.Spiegel, 1, 1, 1);
  ErwarteFarbe(entry.Typ.Rgb2d, 0, 0, 0);
  EXPECT_EQ(entry.Typ.fAlpha, 0.0F);
  EXPECT_EQ(entry.Typ.fAmbient, 0.5F);
  EXPECT_EQ(entry.Typ.fDiffus, 0.4F);
  EXPECT_EQ(entry.Typ.fSpiegel, 1.0F);
  EXPECT_EQ(entry.Typ.fExponent, 3.0F);
  EXPECT_EQ(entry.Typ.iFlags, 0U);
  EXPECT_EQ(entry.iTexturID, -1);
  EXPECT_EQ(entry.dXSkale, 1.0);
  EXPECT_TRUE(entry == CAcMatEntry());
}

TEST(Material, EveryKeyGoesToItsField) {
  const CAcMatEntry entry = Gelesen(
      {"Name=Eiche", "RGB2d=300, 12.7, -5", "kdiffus=0.125", "kambient=0.25", "kspiegel=0.375",
       "alpha=0.625", "Oe=7", "RGBDiffus=0.5,300,-1", "RGBSpiegel=0.75,0.875,2",
       "Textur=Holz>eiche.bmp", "X-Skalierung=1.5", "Y-Skalierung=-2.5", "Beidseitig=1"});
  EXPECT_EQ(entry.strName, "Eiche");
  ErwarteFarbe(entry.Typ.Rgb2d, 255, 12, 0);
  EXPECT_EQ(entry.Typ.fDiffus, 0.125F);
  EXPECT_EQ(entry.Typ.fAmbient, 0.25F);
  EXPECT_EQ(entry.Typ.fSpiegel, 0.375F);
  EXPECT_EQ(entry.Typ.fAlpha, 0.625F);
  EXPECT_EQ(entry.Typ.fExponent, 7.0F);
  ErwarteFarbe(entry.Typ.Diffus, 0.5F, 300.0F, -1.0F);
  ErwarteFarbe(entry.Typ.Spiegel, 0.75F, 0.875F, 2.0F);
  EXPECT_EQ(entry.strTextur, "eiche.bmp");
  EXPECT_EQ(entry.Typ.iFlags, 17U);
  EXPECT_EQ(entry.dXSkale, 1.5);
  EXPECT_EQ(entry.dYSkale, -2.5);
}

TEST(Material, SharesOfThePlaneColourAreCutToBytes) {
  ErwarteFarbe(Gelesen({"RGB2d=254.9999985,254.9999995,0.0000005"}).Typ.Rgb2d, 254, 255, 0);
  ErwarteFarbe(Gelesen({"RGB2d=nan,inf,-inf"}).Typ.Rgb2d, 0, 255, 0);
  ErwarteFarbe(Gelesen({"RGB2d=1e308,,7"}).Typ.Rgb2d, 255, 0, 7);
}

TEST(Material, ATextureNeedsMoreThanFourCharacters) {
  const CAcMatEntry kurz = Gelesen({"Textur=a.bm", "Beidseitig=1"});
  EXPECT_EQ(kurz.strTextur, "");
  EXPECT_EQ(kurz.Typ.iFlags, 16U);
  EXPECT_EQ(Gelesen({"Textur=a.bmp"}).strTextur, "a.bmp");
  EXPECT_EQ(Gelesen({"Textur=a>b>c.bmp"}).strTextur, "b>c.bmp");
  const CAcMatEntry leer = Gelesen({"Textur=Holz>"});
  EXPECT_EQ(leer.strTextur, "");
  EXPECT_EQ(leer.Typ.iFlags, 1U);
}

TEST(Material, ATextureClearsTheOtherFlagsAndTwoSidesDoNot) {
  CAcMatEntry entry;
  entry.Typ.iFlags = 0xFFFFFFFFU;
  CIniFile document = Dokument({"[M1]", "Beidseitig=1", "Textur=holz.bmp", "[M2]", "Beidseitig=2"});
  ASSERT_TRUE(CAcMatList().LoadFromIniFile(document, "M", 1, entry));
  EXPECT_EQ(entry.Typ.iFlags, 17U);
  entry.Typ.iFlags = 8U;
  ASSERT_TRUE(CAcMatList().LoadFromIniFile(document, "M", 2, entry));
  EXPECT_EQ(entry.Typ.iFlags, 8U);
  entry.strName = "bleibt";
  EXPECT_FALSE(CAcMatList().LoadFromIniFile(document, "M", 3, entry));
  EXPECT_EQ(entry.strName, "bleibt");
}

TEST(Material, EqualMeansLookingTheSame) {
  const CAcMatEntry entry;
  CAcMatEntry other;
  other.strName = "anders";
  other.Typ.Rgb2d = {1, 2, 3};
  other.dXSkale = 1.00009;
  EXPECT_TRUE(entry == other);
  const auto unequal = [&](auto change) {
    CAcMatEntry changed;
    change(changed);
    return !(entry == changed);
  };
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.Diffus.fRot = 0.5F; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.Spiegel.fBlau = 0.5F; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.fAlpha = -0.0F; }));  // byte by byte
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.fExponent = 4; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.iReserve[3] = 1; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.Typ.iFlags = 16; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.dXSkale = 1.0002; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.dYSkale = 0.9998; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.iTexturID = 0; }));
  EXPECT_TRUE(unequal([](CAcMatEntry& e) { e.strTextur = "A.BMP"; }));
  CAcMatEntry nan;
  nan.Typ.fAlpha = std::numeric_limits<float>::quiet_NaN();
  EXPECT_TRUE(nan == CAcMatEntry(nan));
}

// --- lists -------------------------------------------------------------------------

TEST(Materialliste, AddNeverComparesAndAddNoComparedDoes) {
  CAcMatList list;
  CAcMatEntry a;
  a.strName = "a";
  CAcMatEntry b;
  b.strName = "b";
  EXPECT_EQ(list.Add(&a), 0);
  EXPECT_EQ(list.Add(&b), 1);
  EXPECT_EQ(list.AddNoCompared(&b), 0);
  EXPECT_EQ(list.AddNoCompared(nullptr), 0);
  b.strTextur = "b.bmp";
  EXPECT_EQ(list.AddNoCompared(&b), 2);
  EXPECT_EQ(list.Add(nullptr), 3);
  for (int i = 0; i < 100; ++i) list.Add(list.GetEntryPtr(2));  // one of its own
  EXPECT_EQ(list.GetCnt(), 104);
  EXPECT_STREQ(list.GetTextureName(103), "b.bmp");
  EXPECT_EQ(list.GetEntryPtr(0)->strName, "a");
}

TEST(Materialliste, BadIndicesAreAnswered) {
  CAcMatList list;
  list.Add(nullptr);
  for (const long i :
       {-1L, 1L, std::numeric_limits<long>::min(), std::numeric_limits<long>::max()}) {
    EXPECT_EQ(list.GetEntryPtr(i), nullptr);
    EXPECT_EQ(list.GetMatPtr(i), nullptr);
    EXPECT_EQ(list.GetTextureName(i), nullptr);
    EXPECT_EQ(list.dGetXSkale(i), 1.0);
    EXPECT_EQ(list.dGetYSkale(i), 1.0);
    EXPECT_EQ(list.GetColor2d(i), 0UL);
    list.SetTextureID(i, 5);
  }
  EXPECT_EQ(list.GetEntryPtr(0)->iTexturID, -1);
  list.SetTextureID(0, 5);
  EXPECT_EQ(list.GetEntryPtr(0)->iTexturID, 5);
  EXPECT_STREQ(list.GetTextureName(0), "");
}

TEST(Materialliste, PackedColourHasTheLowBytes) {
  CAcMatList list;
  list.Add(nullptr);
  list.GetMatPtr(0)->Rgb2d = {255.0F, 12.0F, 0.0F};
  EXPECT_EQ(list.GetColor2d(0), 3327UL);
  list.GetMatPtr(0)->Rgb2d = {256.0F + 7.9F, -1.0F, 2.0F};
  EXPECT_EQ(list.GetColor2d(0), 7UL + 256UL * 255UL + 65536UL * 2UL);
  list.GetMatPtr(0)->Rgb2d = {std::numeric_limits<float>::quiet_NaN(), 0.0F, 0.0F};
  EXPECT_EQ(list.GetColor2d(0), 0UL);
  CIniFile document = Dokument({"[M7]", "RGB2d=300,12.7,-5", "[M8]", "Name=farblos"});
  EXPECT_EQ(list.GetColor2d(7, document, "M"), 3327UL);
  EXPECT_EQ(list.GetColor2d(8, document, "M"), 0UL);
  EXPECT_EQ(list.GetColor2d(9, document, "M"), 0UL);
}

TEST(Materialliste, ReadingAppendsUpToTheFirstGap) {
  CIniFile document =
      Dokument({"[Bauteil1]", "Name=eins", "[Bauteil2]", "Name=zwei", "[Bauteil4]", "Name=vier"});
  CAcMatList list;
  EXPECT_TRUE(list.LoadFromIniFile(document, "Bauteil"));
  EXPECT_EQ(list.GetCnt(), 2);  // equal ones, but both are kept
  EXPECT_TRUE(list.LoadFromIniFile(document, "Bauteil"));
  EXPECT_EQ(list.GetCnt(), 4);
  EXPECT_FALSE(list.LoadFromIniFile(document, "Vermaszung"));
  CAcMatList kopie = list;
  list.Delete();
  EXPECT_EQ(list.GetCnt(), 0);
  EXPECT_EQ(kopie.GetEntryPtr(3)->strName, "zwei");
}

// --- settings ------------------------------------------------------------------------

TEST(Einstellungen, LengthsAreTenthsUnlessInPixels) {
  CAcFeInis inis;
  ASSERT_TRUE(inis.ReadGenerelles(Pfad("allgemein.ini")));
  EXPECT_FALSE(inis.bPixel);
  EXPECT_EQ(inis.dMaszlinienFaktor, 1.5);
  EXPECT_DOUBLE_EQ(inis.dTexthoehe, 3.5);
  EXPECT_DOUBLE_EQ(inis.dTextbreite, 2.2);
  EXPECT_EQ(inis.lMinTextpixel, 8);
  EXPECT_DOUBLE_EQ(inis.dHilfslinienlaenge, 12.0);
  EXPECT_DOUBLE_EQ(inis.dPfeillaenge, 2.5);
  EXPECT_DOUBLE_EQ(inis.dPfeilbreite, 1.2);
  EXPECT_EQ(inis.fStiftRahmen, 0.5F);
  EXPECT_EQ(inis.fStiftSymbole, 0.18F);
  EXPECT_EQ(inis.fStiftSprossen, 0.35F);
  EXPECT_EQ(inis.fStiftMaszlinien, 0.25F);

  // The next file replaces only what it holds, and its flag counts for it.
  ASSERT_TRUE(inis.ReadGenerelles(Pfad("bildschirm.ini")));
  EXPECT_TRUE(inis.bPixel);
  EXPECT_EQ(inis.dTexthoehe, 14.0);
  EXPECT_EQ(inis.dMaszlinienFaktor, 1.5);
  EXPECT_EQ(inis.fStiftSymbole, 0.18F);
}

TEST(Einstellungen, AMissingLengthIsNotScaled) {
  CAcFeInis inis;
  CIniFile document = Dokument({"[Vermaszung]", "Textbreite=30"});
  EXPECT_TRUE(inis.ReadGenerelles(document));
  EXPECT_EQ(inis.dTexthoehe, 10.0);
  EXPECT_DOUBLE_EQ(inis.dTextbreite, 3.0);
  CIniFile leer;
  EXPECT_TRUE(CAcFeInis().ReadGenerelles(leer));
}

TEST(Einstellungen, SavingShrinksTheFiveLengths) {
  CAcFeInis inis;
  ASSERT_TRUE(inis.ReadGenerelles(Pfad("allgemein.ini")));
  CIniFile document;
  EXPECT_TRUE(inis.SaveGenerelles(document));
  EXPECT_EQ(Eintrag(document, "Vermaszung", "Texthoehe"), "3.5");
  EXPECT_EQ(Eintrag(document, "Vermaszung", "Hilfslinienlaenge"), "12");
  EXPECT_EQ(Eintrag(document, "Vermaszung", "MaszlinienAbstandsFaktor"), "1.5");
  EXPECT_DOUBLE_EQ(inis.dTexthoehe, 0.35);
  EXPECT_DOUBLE_EQ(inis.dTextbreite, 0.22);
  EXPECT_DOUBLE_EQ(inis.dHilfslinienlaenge, 1.2);
  EXPECT_DOUBLE_EQ(inis.dPfeillaenge, 0.25);
  EXPECT_DOUBLE_EQ(inis.dPfeilbreite, 0.12);
  EXPECT_EQ(inis.dMaszlinienFaktor, 1.5);
  EXPECT_EQ(inis.lMinTextpixel, 8);
}

TEST(Einstellungen, PixelsAreSavedAndReadAsTheyAre) {
  CAcFeInis inis;
  ASSERT_TRUE(inis.ReadGenerelles(Pfad("bildschirm.ini")));
  CIniFile document;
  EXPECT_TRUE(inis.SaveGenerelles(document));
  EXPECT_EQ(inis.dTexthoehe, 14.0);
  const Ordner ordner;
  ASSERT_TRUE(document.Write((ordner / "e.ini").c_str()));
  EXPECT_EQ(document.GetLines().front(), "[Vermaszung]");
  EXPECT_EQ(document.GetLines()[1], "Angaben in Pixel=1");
  EXPECT_EQ(document.GetLines().back(), "Maszlinien=1");
  CAcFeInis wieder;
  ASSERT_TRUE(wieder.ReadGenerelles((ordner / "e.ini").c_str()));
  EXPECT_EQ(wieder.dPfeilbreite, 4.0);
  EXPECT_EQ(wieder.dMaszlinienFaktor, 1.0);
}

TEST(Einstellungen, MaterialsOfThreeKindsFromOneFile) {
  CAcFeInis inis;
  ASSERT_TRUE(inis.ReadMaterials(Pfad("materialien.ini")));
  EXPECT_EQ(inis.BauteilMaterialien.GetCnt(), 4);
  EXPECT_EQ(inis.SymbolMaterialien.GetCnt(), 2);
  EXPECT_EQ(inis.MaszMaterialien.GetCnt(), 2);
  EXPECT_STREQ(inis.BauteilMaterialien.GetTextureName(0), "eiche_natur.bmp");
  EXPECT_EQ(inis.BauteilMaterialien.dGetXSkale(0), 0.5);
  EXPECT_EQ(inis.BauteilMaterialien.dGetYSkale(0), 2.0);
  EXPECT_EQ(inis.BauteilMaterialien.GetMatPtr(2)->iFlags, 17U);
  EXPECT_EQ(inis.SymbolMaterialien.GetColor2d(1), 160UL + 256UL * 30 + 65536UL * 30);

  ASSERT_TRUE(inis.ReadMaterialIniFile(Pfad("materialien.ini")));
  EXPECT_EQ(inis.MaterialIni.GetCntSections(), 8);
  EXPECT_EQ(inis.BauteilMaterialien.GetColor2d(2, inis.MaterialIni, "Bauteil"),
            245UL * (1 + 256 + 65536));

  // Read again, the file replaces what is there; a missing one changes nothing.
  ASSERT_TRUE(inis.ReadMaterials(Pfad("materialien.ini")));
  ASSERT_TRUE(inis.ReadMaterialIniFile(Pfad("materialien.ini")));
  EXPECT_FALSE(inis.ReadMaterials(Pfad("gibtsnicht.ini")));
  EXPECT_FALSE(inis.ReadMaterialIniFile(Pfad("gibtsnicht.ini")));
  EXPECT_FALSE(inis.ReadGenerelles(Pfad("gibtsnicht.ini")));
  EXPECT_EQ(inis.BauteilMaterialien.GetCnt(), 4);
  EXPECT_EQ(inis.MaterialIni.GetCntSections(), 8);
}

TEST(Einstellungen, ACopyIsItsOwn) {
  CAcFeInis inis;
  ASSERT_TRUE(inis.ReadMaterials(Pfad("materialien.ini")));
  ASSERT_TRUE(inis.ReadMaterialIniFile(Pfad("materialien.ini")));
  CAcFeInis kopie = inis;
  inis.BauteilMaterialien.Delete();
  EXPECT_EQ(kopie.BauteilMaterialien.GetCnt(), 4);
  EXPECT_EQ(kopie.MaterialIni.GetCntSections(), 8);
  EXPECT_EQ(kopie.dTexthoehe, inis.dTexthoehe);
}

}  // namespace
}  // namespace lintavo::test
