// Positions: windows made from a type template and a parameter file.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/settings/CMFensterPosition.h"

#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBeispiele = LINTAVO_EXAMPLES_DIR;

// Read as text: line ends are the system's own.
std::string Inhalt(const std::string& path) {
  std::ifstream file(path);
  EXPECT_TRUE(file) << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void Schreibe(const std::string& path, const std::string& text) {
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

std::string Ersetzt(std::string text, const std::string& alt, const std::string& neu) {
  const std::size_t place = text.find(alt);
  EXPECT_NE(place, std::string::npos) << alt;
  if (place != std::string::npos) text.replace(place, alt.size(), neu);
  return text;
}

// A text with paths, whatever the system's separator.
std::string Neutral(std::string text) {
#ifdef _WIN32
  std::replace(text.begin(), text.end(), '\\', '/');
#endif
  return text;
}

std::string Fehlertext(const CMFensterPosition& position) {
  CString text;
  position.GetError(text);
  return std::string(text.View());
}

// A base directory of its own, filled test by test.
class Position : public testing::Test {
 protected:
  // The path as the position names it.
  std::string Vorlagenpfad(const std::string& typ) const {
    return ordner_ / ("Fenster/" + typ + ".ini");
  }
  void Vorlage(const std::string& typ, const std::string& text) {
    Schreibe(Vorlagenpfad(typ), text);
  }
  void Bild(const std::string& name, const std::string& text) {
    Schreibe(ordner_ / ("Sprossen/" + name + ".ini"), text);
  }
  bool Lies(CMFensterPosition& position, const std::string& parameter,
            const std::string& basis) const {
    Schreibe(ordner_ / "parameter.txt", parameter);
    return position.ReadFromFile((ordner_ / "parameter.txt").c_str(), basis.c_str());
  }
  // With the templates and patterns of this test.
  bool Lies(CMFensterPosition& position, const std::string& parameter) const {
    return Lies(position, parameter, ordner_ / "");
  }
  // With those of the examples.
  bool LiesBeispiel(CMFensterPosition& position, const std::string& parameter) const {
    return Lies(position, parameter, kBeispiele);
  }

  Ordner ordner_;
};

bool LiesBeispielposition(CMFensterPosition& position, const std::string& name) {
  const std::string path = std::string(kBeispiele) + "/Positionen/" + name;
  return position.ReadFromFile(path.c_str(), kBeispiele);
}

void ErwarteSprosse(const CMBauteil& sprosse, const XY& von, const XY& bis, double breite,
                    double tol = 1e-6) {
  XY a;
  XY b;
  ASSERT_TRUE(sprosse.GetAchspunkte(a, b));
  EXPECT_NEAR(a.x, von.x, tol);
  EXPECT_NEAR(a.y, von.y, tol);
  EXPECT_NEAR(b.x, bis.x, tol);
  EXPECT_NEAR(b.y, bis.y, tol);
  EXPECT_DOUBLE_EQ(sprosse.dBreite, breite);
}

// a1 to a4, and before them what the lists of a form say of a part.
using Liste = std::vector<double>;

Liste Attribute(const CMBauteil& teil) {
  return Liste(std::begin(teil.lAttribut), std::end(teil.lAttribut));
}

Liste Angaben(const CMBauteil& teil) {
  Liste angaben = Attribute(teil);
  angaben.insert(angaben.begin(), {teil.dBreite, teil.dBreite2, teil.dDicke});
  return angaben;
}

// --- the example positions -------------------------------------------------------

TEST(Beispielpositionen, KitchenHasItsSizeTextsAndCross) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "kueche.txt")) << Fehlertext(position);
  EXPECT_EQ(position.GetError(), 0);
  EXPECT_EQ(Fehlertext(position), "");
  EXPECT_EQ(position.GetText(1), "Küche, Nordseite");
  EXPECT_EQ(position.GetText(2), "Pos. 1.01");
  EXPECT_EQ(position.GetText(3), "");
  const CMFenster& fenster = *position.GetFensterPtr();
  EXPECT_EQ(fenster.GetTypName(), "Einfluegelig");
  XY size;
  fenster.GetSize(size);
  EXPECT_NEAR(size.x, 111.0, 1e-9);
  EXPECT_NEAR(size.y, 126.0, 1e-9);
  const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  EXPECT_EQ(fluegel.lGangart, CMFensterSatz::GetGangArtIndex("Dr"));
  EXPECT_EQ(fluegel.lAnschlag, CMFensterSatz::GetAnschlagIndex("Re"));
  // The glass begins 7 - 1.5 + 7.8 inside the outline.
  ASSERT_EQ(fluegel.Sprossen.size(), 2U);
  ErwarteSprosse(fluegel.Sprossen[0], {13.3, 63}, {97.7, 63}, 2.5);
  ErwarteSprosse(fluegel.Sprossen[1], {55.5, 13.3}, {55.5, 112.7}, 2.5);
  for (const CMBauteil& sprosse : fluegel.Sprossen) {
    EXPECT_EQ(Attribute(sprosse), (Liste{4, 4, 1, 1}));
    EXPECT_EQ(sprosse.lSprossenBild, 1);
  }
}

TEST(Beispielpositionen, BedroomHasOuterPartsAndEqualFields) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "schlafzimmer.txt")) << Fehlertext(position);
  const CMFenster& fenster = *position.GetFensterPtr();
  XY size;
  fenster.GetSize(size);
  EXPECT_NEAR(size.x, 176.0 + 2 * 4.5, 1e-9);
  EXPECT_NEAR(size.y, 148.0 + 3.0 + 20.0, 1e-9);
  // Glass of the left sash: 7.5 - 1.5 + 7.8 to 88 - 4 + 1.5 - 7.8 and 9 - 1.5 +
  // 7.8 to 148 - 13.8. Three rows and two columns with bars of 2 between them.
  const CMFensterSatz& links = *fenster.GetFluegelPtr(0L);
  ASSERT_EQ(links.Sprossen.size(), 3U);
  const double feld = (134.2 - 15.3 - 2 * 2.0) / 3;
  ErwarteSprosse(links.Sprossen[0], {13.8, 15.3 + feld + 1}, {77.7, 15.3 + feld + 1}, 2.0);
  ErwarteSprosse(links.Sprossen[1], {13.8, 134.2 - feld - 1}, {77.7, 134.2 - feld - 1}, 2.0);
  ErwarteSprosse(links.Sprossen[2], {45.75, 15.3}, {45.75, 134.2}, 2.0);
  EXPECT_EQ(fenster.GetFluegelPtr(1L)->Sprossen.size(), 3U);
}

TEST(Beispielpositionen, HallwayHasASunInItsArch) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "diele.txt")) << Fehlertext(position);
  const CMFensterSatz& fluegel = *position.GetFensterPtr()->GetFluegelPtr(0L);
  ASSERT_EQ(fluegel.Sprossen.size(), 8U);
  // On the springing line at 100, and the middle ray up to the crown of the
  // glass, whose radius is 50 - 13.3, but for the segments of the arch.
  ErwarteSprosse(fluegel.Sprossen[0], {13.3, 100}, {86.7, 100}, 2.5, 0.05);
  ErwarteSprosse(fluegel.Sprossen[6], {50, 110}, {50, 136.7}, 2.5, 0.05);
  EXPECT_DOUBLE_EQ(fluegel.Fuellung.D3, 3.2);
}

// --- values ----------------------------------------------------------------------

TEST_F(Position, EveryLengthIsATenthAndNothingElse) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispiel(
      position,
      "[Allgemeines]\nTyp=Einfluegelig\nText1=eins\nText49=letzter\nText50=zuviel\n"
      "[Masze]\nBreite=1210\nHoehe=1430\n"
      "[Rahmen]\nRahmendicke=69\nR1=81,11,12,13,14\nR2=82,15,16,17,18\nR4=84,19,20,21,22\n"
      "Z1=1,31,32,33,34,35,36,1,2\nZ2=3,41,42,43,44,45,46,3,4\nZ4=2,51,52,53,54,55,56,0,0\n"
      "OeffSeite=Au\n"
      "[Fluegel1]\nRahmendicke=71\nF1=91,11,61,62,63,64\nF3=93,13,65,66,67,68\n"
      "F4=94,14,69,70,71.9,-72.9\nF5=99,99,9,9,9,9\nMit Rahmen=1\nOeffSeite=Au\nGangart=Ki\n"
      "Anschlag=Un\nZuerstAufgehend=1\nFuellung=2,6,1.5,0.5,1.25,1.75,2.25,2.75,3,4,5,6\n"))
      << Fehlertext(position);

  const CMFenster& fenster = *position.GetFensterPtr();
  double breite = 0.0;
  double hoehe = 0.0;
  ASSERT_TRUE(Gesamtmasze(fenster, breite, hoehe));
  EXPECT_DOUBLE_EQ(breite, 121.0);
  EXPECT_DOUBLE_EQ(hoehe, 143.0);
  EXPECT_EQ(position.GetText(1), "eins");
  EXPECT_EQ(position.GetText(49), "letzter");
  EXPECT_EQ(position.GetText(50), "");

  const auto zehntel = [](double wert) { return wert * 0.1; };
  const CMFensterSatz& rahmen = *fenster.GetRahmenPtr();
  const double dicke = zehntel(69);
  EXPECT_EQ(rahmen.RahmenVorlage.dDicke, dicke);
  ASSERT_EQ(rahmen.RahmenTeile.size(), 4U);
  EXPECT_EQ(Angaben(rahmen.RahmenTeile[0]), (Liste{zehntel(81), 0, dicke, 12, 14, 11, 13}));
  EXPECT_EQ(Angaben(rahmen.RahmenTeile[1]), (Liste{zehntel(82), 0, dicke, 16, 18, 15, 17}));
  EXPECT_EQ(Angaben(rahmen.RahmenTeile[2]), (Liste{7, 0, dicke, 2, 2, 1, 1})) << "not in the file";
  EXPECT_EQ(rahmen.RahmenTeile[3].dBreite, zehntel(84));
  EXPECT_EQ(rahmen.lOeffSeite, 1);

  ASSERT_EQ(rahmen.EinzelTeile.size(), 2U);  // Z3 is missing
  const CMBauteil& unten = rahmen.EinzelTeile[0];
  EXPECT_TRUE(unten.IsZusatzteilAussen());
  EXPECT_EQ(Angaben(unten), (Liste{zehntel(31), zehntel(32), dicke, 34, 36, 33, 35}));
  EXPECT_EQ(rahmen.EinzelTeile[1].dBreite, zehntel(41));
  EXPECT_EQ((Liste{0, 1, 2, 2, 3, 4}),
            (Liste{double(unten.lSeite), double(unten.cAbschnittsTypAnfang),
                   double(unten.cAbschnittsTypEnde), double(rahmen.EinzelTeile[1].lSeite),
                   double(rahmen.EinzelTeile[1].cAbschnittsTypAnfang),
                   double(rahmen.EinzelTeile[1].cAbschnittsTypEnde)}));

  const CMFensterSatz& fluegel = *fenster.GetFluegelPtr(0L);
  ASSERT_EQ(fluegel.RahmenTeile.size(), 4U);
  const double duenner = zehntel(71);
  EXPECT_EQ(fluegel.RahmenVorlage.dDicke, duenner);
  EXPECT_EQ(Angaben(fluegel.RahmenTeile[0]),
            (Liste{zehntel(91), zehntel(11), duenner, 62, 64, 61, 63}));
  EXPECT_EQ(fluegel.RahmenTeile[1].dBreite, 7.8);
  EXPECT_EQ(fluegel.RahmenTeile[1].dBreite2, 1.5);
  EXPECT_EQ(Angaben(fluegel.RahmenTeile[3]),
            (Liste{zehntel(94), zehntel(14), duenner, 70, -72, 69, 71}));
  EXPECT_EQ(fluegel.lOeffSeite, 1);
  EXPECT_EQ(fluegel.lGangart, CMFensterSatz::GetGangArtIndex("Ki"));
  EXPECT_EQ(fluegel.lAnschlag, CMFensterSatz::GetAnschlagIndex("Un"));
  EXPECT_TRUE(fluegel.bZuerstAufgehend);
  // The filling stands in the window's own unit.
  EXPECT_EQ(fluegel.Fuellung.lArt, 2);
  EXPECT_DOUBLE_EQ(fluegel.Fuellung.D2, 6.0);
  EXPECT_DOUBLE_EQ(fluegel.Fuellung.D1, 1.5);
  EXPECT_DOUBLE_EQ(fluegel.Fuellung.D7, 2.75);
}

TEST_F(Position, LengthsKeepTheSignOfTheTemplate) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispiel(position, "[Allgemeines]\nTyp=Oberlicht\n[Masze]\nOberlicht=520\n"));
  EXPECT_DOUBLE_EQ(position.GetFensterPtr()->GetZusatzMaszPtr(3)->dLaenge, -52.0);
  EXPECT_NEAR(position.GetFensterPtr()->GetAchsen().dGetAchsAbstY(2), 52.0, 1e-9);
}

TEST_F(Position, APartWithAThicknessOfItsOwnKeepsIt) {
  Vorlage("T", Ersetzt(Inhalt(std::string(kBeispiele) + "/Fenster/Einfluegelig.ini"),
                       "R2=7,0,1,2,1,2,6.8", "R2=7,0,1,2,1,2,5.5"));
  CMFensterPosition position;
  ASSERT_TRUE(Lies(position, "[Allgemeines]\nTyp=T\n[Rahmen]\nRahmendicke=80\n"));
  const std::vector<CMBauteil>& teile = position.GetFensterPtr()->GetRahmenPtr()->RahmenTeile;
  EXPECT_DOUBLE_EQ(teile[0].dDicke, 8.0);
  EXPECT_DOUBLE_EQ(teile[1].dDicke, 5.5);
}

TEST_F(Position, MullionsFollowAThinnerFrame) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispiel(position, "[Allgemeines]\nTyp=Zweifluegelig\n[Rahmen]\nR1=50,1,2,1,2\n"))
      << Fehlertext(position);
  XY a;
  XY b;
  ASSERT_TRUE(position.GetFensterPtr()->GetRahmenPtr()->EinzelTeile[0].GetAchspunkte(a, b));
  EXPECT_NEAR(std::min(a.y, b.y), 5.0, 1e-9);
  EXPECT_NEAR(std::max(a.y, b.y), 133.0, 1e-9);
}

// --- patterns --------------------------------------------------------------------

TEST_F(Position, PatternListsOfFiveAndSix) {
  CMFensterPosition position;
  ASSERT_TRUE(
      LiesBeispiel(position,
                   "[Allgemeines]\nTyp=Einfluegelig\n[Fluegel1]\n"
                   "Sprossenbild1=00,1,2,1,2\nSprossenbild2= 01 ,5,6,7,8\n"
                   "Sprossenbild3=Rauten,31,9.9,10,11,12\nSprossenbild5=gibtsnicht,0,0,0,0\n"))
      << Fehlertext(position);
  const std::vector<CMBauteil>& sprossen = position.GetFensterPtr()->GetFluegelPtr(0L)->Sprossen;
  ASSERT_EQ(sprossen.size(), 2U + 4U);
  EXPECT_EQ(sprossen[0].lSprossenBild, 2);
  EXPECT_DOUBLE_EQ(sprossen[0].dBreite, 2.5);
  EXPECT_EQ(Attribute(sprossen[0]), (Liste{6, 8, 5, 7}));
  EXPECT_EQ(sprossen[2].lSprossenBild, 3);
  EXPECT_DOUBLE_EQ(sprossen[2].dBreite, 3.1);
  EXPECT_DOUBLE_EQ(sprossen[2].dDicke, 2.0);
  EXPECT_EQ(Attribute(sprossen[2]), (Liste{10, 12, 9, 11}));
}

TEST_F(Position, BarsOfTheTemplateStay) {
  Vorlage("T", Inhalt(BeispielPfad("sprossen_und_zusatzteile.aqz")));
  Bild("01", "[Allgemeines]\nBereich=100\nA1=0,0,0,100\n");
  CMFensterPosition position;
  ASSERT_TRUE(Lies(position, "[Allgemeines]\nTyp=T\n[Fluegel2]\nSprossenbild1=01,1,4,1,4\n"));
  EXPECT_EQ(position.GetFensterPtr()->GetFluegelPtr(0L)->Sprossen.size(), 3U);
  EXPECT_EQ(position.GetFensterPtr()->GetFluegelPtr(1L)->Sprossen.size(), 4U);
}

TEST_F(Position, PatternsTogetherAreBounded) {
  std::string bild = "[Allgemeines]\nBereich=100\n";
  std::string parameter = "[Allgemeines]\nTyp=T\n[Fluegel1]\n";
  for (int i = 1; i <= 999; ++i) {
    const std::string nummer = std::to_string(i);
    bild.append("A").append(nummer).append("=-40,50,40,50\n");
    parameter.append("Sprossenbild").append(nummer).append("=voll,1,4,1,4\n");
  }
  Bild("voll", bild);
  Vorlage("T", Inhalt(std::string(kBeispiele) + "/Fenster/Einfluegelig.ini"));
  CMFensterPosition position;
  EXPECT_FALSE(Lies(position, parameter));
  EXPECT_EQ(position.GetError(), 53);
  // 1001 lines and one more for each use: nineteen fit.
  EXPECT_EQ(position.GetFensterPtr()->GetFluegelPtr(0L)->Sprossen.size(), 19U * 999U);
}

// --- what is refused ---------------------------------------------------------------

struct Fehlerfall {
  const char* name;
  const char* parameter;
  long nummer;
  const char* text;  // a part of it
};

void PrintTo(const Fehlerfall& fall, std::ostream* out) {
  *out << fall.name;
}

class Fehler : public Position, public testing::WithParamInterface<Fehlerfall> {};

TEST_P(Fehler, HasItsNumberAndText) {
  Bild("ohne", "[Allgemeines]\nA1=0,0,10,10\n");
  fs::copy(fs::path(kBeispiele) / "Fenster", ordner_ / "Fenster");
  fs::copy(fs::path(kBeispiele) / "Sprossen/01.ini", ordner_ / "Sprossen/01.ini");
  Vorlage("Flach", Ersetzt(Inhalt(Vorlagenpfad("Einfluegelig")), "R1=7,0", "R1=0,0"));
  Vorlage("Schmal",
          Ersetzt(Inhalt(Vorlagenpfad("Einfluegelig")), "Breite\nLaenge=100", "Breite\nLaenge=12"));
  Schreibe(ordner_ / "draussen.ini", Inhalt(Vorlagenpfad("Einfluegelig")));
  Schreibe(ordner_ / "Fenster/tief/T.ini", Inhalt(Vorlagenpfad("Einfluegelig")));
  Schreibe(ordner_ / "Sprossen/tief/01.ini", Inhalt(ordner_ / "Sprossen/01.ini"));

  CMFensterPosition position;
  EXPECT_FALSE(Lies(position, GetParam().parameter));
  EXPECT_EQ(position.GetError(), GetParam().nummer);
  EXPECT_NE(Neutral(Fehlertext(position)).find(Neutral(GetParam().text)), std::string::npos)
      << Fehlertext(position);

  // What failed does not show in the next read.
  ASSERT_TRUE(LiesBeispielposition(position, "schlafzimmer.txt"));
  CMFensterPosition frisch;
  ASSERT_TRUE(LiesBeispielposition(frisch, "schlafzimmer.txt"));
  EXPECT_EQ(Zeilen(*position.GetFensterPtr()), Zeilen(*frisch.GetFensterPtr()));
  EXPECT_EQ(position.GetText(1), "Schlafzimmer");
}

const Fehlerfall kFehler[] = {
    {"NoType", "[Masze]\nBreite=1000\n", 27, "keine Angabe für den Fenstertyp"},
    {"NoTemplate", "[Allgemeines]\nTyp=Gibtsnicht\n", 28, "/Fenster/Gibtsnicht.ini' ist nicht"},
    {"TypeLeadsUp", "[Allgemeines]\nTyp=../draussen\n", 28, "/Fenster/../draussen.ini'"},
    {"TypeLeadsUpBackwards", "[Allgemeines]\nTyp=..\\draussen\n", 28, "..\\draussen.ini'"},
    {"TypeInAFolder", "[Allgemeines]\nTyp=tief/T\n", 28, "/Fenster/tief/T.ini'"},
    {"TypeOnADrive", "[Allgemeines]\nTyp=C:Flach\n", 28, "C:Flach.ini'"},
    {"TemplateFails", "[Allgemeines]\nTyp=Schmal\n", 22, "Flügelfläche ist gleich Null"},
    {"ValuesFail", "[Allgemeines]\nTyp=Einfluegelig\n[Masze]\nBreite=120\n", 22,
     "Flügelfläche ist gleich Null"},
    {"WidthsFail", "[Allgemeines]\nTyp=Einfluegelig\n[Rahmen]\nR2=600,1,2,1,2\nR4=600,1,2,1,2\n",
     22, "Flügelfläche"},
    {"NoPattern", "[Allgemeines]\nTyp=Zweifluegelig\n[Fluegel2]\nSprossenbild1=99,1,4,1,4\n", 53,
     "'Flügel rechts' enthält eine unzulässige Sprossenbild"},
    {"PatternWithoutRange",
     "[Allgemeines]\nTyp=Zweifluegelig\n[Fluegel1]\nSprossenbild1=ohne,1,4,1,4\n", 53,
     "'Flügel links'"},
    {"PatternOfFour", "[Allgemeines]\nTyp=Einfluegelig\n[Fluegel1]\nSprossenbild1=01,1,4,1\n", 53,
     "'Flügel'"},
    {"PatternOfSeven",
     "[Allgemeines]\nTyp=Einfluegelig\n[Fluegel1]\nSprossenbild1=01,1,4,1,4,5,6\n", 53, "'Flügel'"},
    {"PatternElsewhere",
     "[Allgemeines]\nTyp=Einfluegelig\n[Fluegel1]\nSprossenbild1=tief/01,1,4,1,4\n", 53,
     "'Flügel'"},
    {"FewerFrameParts", "[Allgemeines]\nTyp=Einfluegelig\n[Rahmen]\nR3=0,1,2,1,2\n", 80,
     "(zu viele Rahmenbauteile) !"},
    {"NoFrame", "[Allgemeines]\nTyp=Einfluegelig\n[Rahmen]\nMit Rahmen=0\n", 80, "(zu viele"},
    {"MoreFrameParts", "[Allgemeines]\nTyp=Flach\n[Rahmen]\nR1=70,1,2,1,2\n", 81,
     "Formänderung  (zu wenig Rahmenbauteile) !"},
    {"FewerSashParts", "[Allgemeines]\nTyp=Oberlicht\n[Fluegel3]\nF1=0,15,1,3,1,3\n", 82,
     "Es sind zu viele Rahmenbauteile im Flügel 'Flügel rechts'."},
    {"MoreSashParts", "[Allgemeines]\nTyp=Oberlicht\n[Fluegel2]\nMit Rahmen=1\n", 84,
     "Es sind zu wenig Rahmenbauteile im Flügel 'Festfeld Mitte'."},
    // An overlap of 10 on a frame part of 7.
    {"SashOutsideTheFrame", "[Allgemeines]\nTyp=Zweifluegelig\n[Fluegel2]\nF2=78,100,1,3,1,3\n", 85,
     "Formänderung im Flügel 'Flügel rechts' !"},
    // An overlap of 5 on the half of a transom of 9.
    {"SashAcrossATransom", "[Allgemeines]\nTyp=Oberlicht\n[Fluegel3]\nF3=78,50,1,3,1,3\n", 85,
     "Formänderung im Flügel 'Flügel rechts' !"},
};

std::string FehlerName(const testing::TestParamInfo<Fehlerfall>& fall) {
  return fall.param.name;
}

INSTANTIATE_TEST_SUITE_P(Position, Fehler, testing::ValuesIn(kFehler), FehlerName);

TEST_F(Position, BeforeTheFirstReadThereIsNone) {
  CMFensterPosition position;
  EXPECT_EQ(position.GetError(), 48);
  EXPECT_EQ(Fehlertext(position), "Es wurde noch keine Position geladen !");
  EXPECT_EQ(position.GetFensterPtr()->GetAnzahlFluegel(), 0);
}

TEST_F(Position, FilesThatCannotBeReadOrWrittenAreNamed) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "kueche.txt"));
  const std::string path = ordner_ / "gibtsnicht/position.aqz";
  EXPECT_FALSE(position.SaveToFile(path.c_str()));
  EXPECT_EQ(position.GetError(), 41);
  EXPECT_EQ(Fehlertext(position), "Die Datei '" + path + "' kann nicht gespeichert werden !");
  EXPECT_FALSE(position.SaveToFile(""));

  // A read that fails leaves nothing of the one before.
  EXPECT_FALSE(position.ReadFromFile(path.c_str(), kBeispiele));
  EXPECT_EQ(position.GetError(), 28);
  EXPECT_EQ(Fehlertext(position), "Die Datei '" + path + "' ist nicht vorhanden !");
  EXPECT_EQ(position.GetText(1), "");
  EXPECT_EQ(position.GetFensterPtr()->GetAnzahlFluegel(), 0);
  EXPECT_EQ(position.GetFensterPtr()->GetTypName(), "");
  EXPECT_FALSE(position.ReadFromFile("", ""));
  EXPECT_FALSE(position.ReadFromFile(kBeispiele, kBeispiele)) << "a folder";
  EXPECT_FALSE(position.ReadFromFile(path.c_str()));
  EXPECT_EQ(position.GetError(), 28);
  ASSERT_TRUE(LiesBeispielposition(position, "kueche.txt"));
  EXPECT_EQ(position.GetError(), 0);
}

TEST_F(Position, NoValueDoesHarm) {
  const char* const kZeilen[] = {"[Masze]\nBreite=#\n",
                                 "[Rahmen]\nRahmendicke=#\n",
                                 "[Rahmen]\nR2=#,#,#,#,#\n",
                                 "[Rahmen]\nZ1=#,#,#,#,#,#,#,#,#\n",
                                 "[Rahmen]\nZ1=1,#,#,1,2,1,2,3,4\nZ2=2,#,0,1,2,1,2,4,4\n",
                                 "[Fluegel1]\nF2=#,#,#,#,#,#\n",
                                 "[Fluegel1]\nFuellung=2,#,#,#,#,#,#,#,#,#,#,#\n",
                                 "[Fluegel1]\nSprossenbild1=01,#,#,#,#,#\n",
                                 "[Fluegel1]\nSprossenbild1=#,#,#,#,#,#\n"};
  for (const char* wert : {"nan", "inf", "-inf", "1e308", "-1e308", "1e12", "-1", "0", "1e-320",
                           "9223372036854775807", "-9223372036854775808", ",", "x"}) {
    for (const char* muster : kZeilen) {
      std::string zeilen;
      for (const char* c = muster; *c != '\0'; ++c) zeilen += *c == '#' ? wert : std::string(1, *c);
      CMFensterPosition position;
      const bool gelesen = LiesBeispiel(position, "[Allgemeines]\nTyp=Zweifluegelig\n" + zeilen);
      EXPECT_EQ(gelesen, position.GetError() == 0) << zeilen;
      EXPECT_EQ(gelesen, Fehlertext(position).empty()) << zeilen;
    }
  }
}

// --- there and back ------------------------------------------------------------------

class Rundweg : public Position, public testing::WithParamInterface<std::string> {
 protected:
  // The blank form of an example, whose file serves as the template "T".
  std::string Formular() {
    Vorlage("T", Inhalt(BeispielPfad(GetParam())));
    CMFenster fenster = Beispiel(GetParam());
    fenster.SetTypName("T");
    EXPECT_TRUE(fenster.SaveToFile(true, (ordner_ / "form.aqz").c_str()));
    return Inhalt(ordner_ / "form.txt");
  }
};

void ErwarteGleicheUmrisse(const CMFenster& a, const CMFenster& b) {
  const std::vector<GEOM2_Polygon> links = Umrisse(a);
  const std::vector<GEOM2_Polygon> rechts = Umrisse(b);
  ASSERT_EQ(links.size(), rechts.size());
  for (std::size_t i = 0; i < links.size(); ++i) {
    EXPECT_TRUE(GleichePunkte(links[i], rechts[i], 1e-6)) << i;
  }
}

TEST_P(Rundweg, AnUnchangedFormGivesTheSameWindow) {
  const std::string formular = Formular();
  CMFensterPosition position;
  ASSERT_TRUE(Lies(position, formular)) << Fehlertext(position);
  const CMFenster original = Beispiel(GetParam());
  ErwarteGleicheUmrisse(original, *position.GetFensterPtr());
  EXPECT_EQ(Zeilen(original), Zeilen(*position.GetFensterPtr()));
  // And the form of the position is the form that it was read from.
  ASSERT_TRUE(position.GetFensterPtr()->SaveToFile(true, (ordner_ / "form2.aqz").c_str()));
  EXPECT_EQ(Inhalt(ordner_ / "form2.txt"), formular);
}

TEST_P(Rundweg, NewDimensionsGiveTheWindowWithThem) {
  CMFenster erwartet = Beispiel(GetParam());
  double breite = 0.0;
  double hoehe = 0.0;
  ASSERT_TRUE(Gesamtmasze(erwartet, breite, hoehe));
  const auto eintrag = [](const char* name, double wert) {
    std::ostringstream zeile;
    zeile << "\n" << name << "=" << wert << "\n";
    return zeile.str();
  };
  std::string formular = Formular();
  formular = Ersetzt(formular, eintrag("Breite", breite * 10), eintrag("Breite", breite * 10 + 30));
  formular = Ersetzt(formular, eintrag("Hoehe", hoehe * 10), eintrag("Hoehe", hoehe * 10 + 20));
  ASSERT_TRUE(Einpassen(erwartet, breite + 3, hoehe + 2));
  CMFensterPosition position;
  const bool gelesen = Lies(position, formular);
  // A circle of two arches gets straight sides between them, a new form.
  const long teileVorher = Beispiel(GetParam()).GetRahmenPtr()->lGetAnzahlRahmenBauteile();
  if (erwartet.GetRahmenPtr()->lGetAnzahlRahmenBauteile() > teileVorher) {
    EXPECT_EQ(GetParam(), "rundfenster.aqz");
    EXPECT_EQ(position.GetError(), 81);
    return;
  }
  ASSERT_TRUE(gelesen) << Fehlertext(position);
  ErwarteGleicheUmrisse(erwartet, *position.GetFensterPtr());
}

TEST_P(Rundweg, ASavedPositionReadsBack) {
  CMFensterPosition position;
  ASSERT_TRUE(Lies(position, Formular()));
  const std::string path = ordner_ / "position.aqz";
  ASSERT_TRUE(position.SaveToFile(path.c_str(), "Küche"));
  CMFensterPosition wieder;
  ASSERT_TRUE(wieder.ReadFromFile(path.c_str())) << Fehlertext(wieder);
  EXPECT_EQ(wieder.GetError(), 0);
  EXPECT_EQ(wieder.GetText(1), "Küche");
  ErwarteGleicheUmrisse(*position.GetFensterPtr(), *wieder.GetFensterPtr());
}

INSTANTIATE_TEST_SUITE_P(Position, Rundweg, testing::ValuesIn(BeispielNamen()), BeispielTestName);

TEST_F(Position, EveryOuterPartOfTheFileIsAddedToThoseOfTheTemplate) {
  Vorlage("T", Inhalt(BeispielPfad("sprossen_und_zusatzteile.aqz")));
  CMFensterPosition ohne;
  ASSERT_TRUE(Lies(ohne, "[Allgemeines]\nTyp=T\n"));
  CMFensterPosition position;
  ASSERT_TRUE(Lies(
      position, "[Allgemeines]\nTyp=T\n[Rahmen]\nZ1=2,60,50,1,2,1,2,3,3\nZ2=4,10,0,1,2,1,2,4,4\n"))
      << Fehlertext(position);
  const std::vector<CMBauteil>& vorher = ohne.GetFensterPtr()->GetRahmenPtr()->EinzelTeile;
  const std::vector<CMBauteil>& teile = position.GetFensterPtr()->GetRahmenPtr()->EinzelTeile;
  ASSERT_EQ(teile.size(), vorher.size() + 2U);
  for (std::size_t i = 0; i < vorher.size(); ++i) EXPECT_EQ(teile[i].dBreite, vorher[i].dBreite);
  const CMBauteil& neu = teile[vorher.size()];
  EXPECT_EQ(Angaben(neu), (Liste{6.0, 5.0, 6.8, 2, 2, 1, 1}));
  XY size;
  XY groesser;
  ohne.GetFensterPtr()->GetSize(size);
  position.GetFensterPtr()->GetSize(groesser);
  EXPECT_NEAR(groesser.x, size.x + 6 + 1, 1e-9);
}

TEST_F(Position, TextsAreOneLineInTheFile) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "diele.txt"));
  const std::string path = ordner_ / "position.aqz";
  ASSERT_TRUE(position.SaveToFile(path.c_str()));
  CMFensterPosition wieder;
  ASSERT_TRUE(wieder.ReadFromFile(path.c_str()));
  EXPECT_EQ(wieder.GetText(1), "Diele");
  EXPECT_EQ(wieder.GetText(2), "");  // only the first goes along
  ASSERT_TRUE(position.SaveToFile(path.c_str(), "zwei\r\n[Fluegel1]\nTyp=9"));
  ASSERT_TRUE(wieder.ReadFromFile(path.c_str()));
  EXPECT_EQ(wieder.GetText(1), "zwei  [Fluegel1] Typ=9");
  EXPECT_EQ(wieder.GetFensterPtr()->GetAnzahlFluegel(), 1);
}

TEST_F(Position, ACopyIsItsOwn) {
  CMFensterPosition position;
  ASSERT_TRUE(LiesBeispielposition(position, "kueche.txt"));
  CMFensterPosition kopie(position);
  EXPECT_TRUE(kopie.SetText(1, "anders"));
  EXPECT_FALSE(kopie.SetText(0, "keiner"));
  EXPECT_FALSE(kopie.SetText(50, "keiner"));
  kopie.GetFensterPtr()->GetFluegelPtr(0L)->DeleteAlleSprossen();
  EXPECT_EQ(position.GetText(1), "Küche, Nordseite");
  EXPECT_EQ(position.GetFensterPtr()->GetFluegelPtr(0L)->Sprossen.size(), 2U);
  EXPECT_FALSE(position.ReadFromFile("gibtsnicht"));
  kopie = position;
  EXPECT_EQ(kopie.GetError(), 28);
  EXPECT_EQ(kopie.GetFensterPtr()->GetAnzahlFluegel(), 0);
}

}  // namespace
}  // namespace lintavo::test
