// The façade as a host uses it.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <numeric>
#include <set>

#include <gtest/gtest.h>
#include <zlib.h>

#include "lintavo/api/CFeApi.h"

#include "support/Beispiele.h"
#include "support/Ordner.h"

namespace lintavo::test {
namespace {

using Parameter = CFeApiWandOeffnungsParameter;

void Schreibe(const std::string& path, const std::string& bytes) {
  std::filesystem::create_directories(std::filesystem::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Lies(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Komprimiert(const std::string& text) {
  std::string crlf;
  for (const char c : text) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  uLongf length = compressBound(static_cast<uLong>(crlf.size()));
  std::string bytes(length, '\0');
  EXPECT_EQ(compress(reinterpret_cast<Bytef*>(bytes.data()), &length,
                     reinterpret_cast<const Bytef*>(crlf.data()), static_cast<uLong>(crlf.size())),
            Z_OK);
  bytes.resize(length);
  return bytes;
}

std::string Puffer(const CFeApi& api) {
  long length = -1;
  char* block = nullptr;
  api.WriteToBuffer(&length, &block);
  std::string text(block, static_cast<std::size_t>(length));
  api.FreeBuffer(&block);
  EXPECT_EQ(block, nullptr);
  api.FreeBuffer(&block);
  return text;
}

bool HatAussenteile(const std::string& name) {
  const CMFenster fenster = Beispiel(name);
  const std::vector<CMBauteil>& teile = fenster.GetRahmenPtr()->EinzelTeile;
  return std::any_of(teile.begin(), teile.end(),
                     [](const CMBauteil& teil) { return teil.IsZusatzteilAussen(); });
}

bool IstRechtwinklig(const std::string& name) {
  const CMFenster fenster = Beispiel(name);
  const GEOM2_Polygon& umriss = fenster.GetRahmenPtr()->RahmenPolygon;
  for (int i = 0; i < umriss.GetAnzahl(); ++i) {
    XY a;
    XY b;
    umriss.GetKante(i, a, b);
    if (std::fabs(a.x - b.x) > 1e-9 && std::fabs(a.y - b.y) > 1e-9) return false;
  }
  return true;
}

class JedeFassade : public testing::TestWithParam<std::string> {};

TEST_P(JedeFassade, BufferAndFileGiveTheWindowBack) {
  const Ordner ordner;
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad(GetParam()).c_str()), 1);
  const std::string text = Puffer(api);
  EXPECT_EQ(text.back(), '#');
  CFeApi copy;
  ASSERT_EQ(copy.ReadFromBuffer(static_cast<long>(text.size()), text.data()), 1);
  EXPECT_EQ(Puffer(copy), text);
  ASSERT_EQ(copy.WriteToFile((ordner / "f.aqz").c_str()), 1);
  ASSERT_EQ(api.ReadFromFile((ordner / "f.aqz").c_str()), 1);
  EXPECT_EQ(Puffer(api), text);
}

TEST_P(JedeFassade, FitsIntoAnOpeningWithAnyReveals) {
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad(GetParam()).c_str()), 1);
  Parameter none;
  Parameter reveals;
  reveals.dLeibungA = 3.0;
  reveals.dLeibungB = -1.0;
  reveals.dLeibungC = 2.5;
  reveals.dLeibungD = 0.5;
  Parameter splay = reveals;
  splay.iSchraege1 = 1;
  splay.dWinkel1 = std::atan(0.25);
  splay.dTiefe = 20.0;
  for (const Parameter& param : {none, reveals, splay}) {
    double width = 0.0;
    double height = 0.0;
    ASSERT_EQ(api.GetOeffMasze(param, width, height), 1);
    const double wantedWidth = width * 1.08;
    const double wantedHeight = height * 1.04;
    // Where sides are slanted or bent their margins are those of the shape
    // before the fit; fitting again closes in.
    for (int step = 0; step < (IstRechtwinklig(GetParam()) ? 1 : 12); ++step) {
      ASSERT_EQ(api.SetBreiteHoehe(param, wantedWidth, wantedHeight), 1);
      ASSERT_EQ(api.Berechne(), 1);
    }
    ASSERT_EQ(api.GetOeffMasze(param, width, height), 1);
    // A fit without margins sets the grid alone, which knows no outer extra parts.
    if (HatAussenteile(GetParam())) continue;
    EXPECT_NEAR(width, wantedWidth, 1e-6);
    EXPECT_NEAR(height, wantedHeight, 1e-6);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, JedeFassade, testing::ValuesIn(BeispielNamen()),
                         BeispielTestName);

TEST(Fassade, FitsARectangleInOneStep) {
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad("zweifluegelig_mit_pfosten.aqz").c_str()), 1);
  Parameter param;
  param.dLeibungA = 4.0;
  param.dLeibungC = 2.0;
  param.dLeibungD = 1.0;
  ASSERT_EQ(api.SetBreiteHoehe(param, 150.0, 120.0), 1);
  ASSERT_EQ(api.Berechne(), 1);
  // The frame is covered by 2 + 1 at the sides and 4 at the top.
  EXPECT_NEAR(api.GetFensterBreite(), 153.0, 1e-9);
  EXPECT_NEAR(api.GetFensterHoehe(), 124.0, 1e-9);
}

TEST(Fassade, OpeningParametersCompareByMagnitude) {
  Parameter a;
  Parameter b;
  a.dLeibungC = 2.0;
  b.dLeibungC = -2.0;
  EXPECT_TRUE(a == b);
  b.dLeibungC = 2.1;
  EXPECT_TRUE(a != b);
  b = a;
  b.iSchraege2 = 1;
  EXPECT_TRUE(a != b);
}

TEST(Fassade, TheSectionValueIsOfTheObjectAndGrowsWithTheWindow) {
  CFeApi api;
  EXPECT_EQ(api.GetRahmenAbschnitt(), 100.0);
  for (const double bad : {-1.0, std::nan(""), HUGE_VAL}) EXPECT_EQ(api.SetRahmenAbschnitt(bad), 0);
  CMFenster grosz = Raster(2, 1, 600.0, 900.0);
  ASSERT_TRUE(grosz.Berechne(false));
  ASSERT_EQ(api.SetFenster(grosz), 1);
  EXPECT_EQ(api.GetRahmenAbschnitt(), 200.0);
  ASSERT_EQ(api.SetRahmenAbschnitt(1.0), 1);
  // An arch of single sides, of a copy and of the next file too.
  CFeApi copy(api);
  const std::string bogen = BeispielPfad("rundbogen.aqz");
  ASSERT_EQ(copy.ReadFromFile(bogen.c_str()), 1);
  EXPECT_EQ(copy.GetRahmenAbschnitt(), 1.0);
  const long sides = copy.GetAnzahlRahmenBauteile(1);
  EXPECT_EQ(copy.SetRahmenAbschnitt(0.0), 1);
  ASSERT_EQ(copy.Berechne(), 1);
  EXPECT_EQ(copy.GetRahmenAbschnitt(), 100.0);
  EXPECT_LT(copy.GetAnzahlRahmenBauteile(1), sides);
}

TEST(Fassade, SettersRefuseWhatIsNoMeasureAndChangeTheNextCalculation) {
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad("drehkipp_einfluegelig.aqz").c_str()), 1);
  const double nan = std::nan("");
  for (const double bad : {0.0, -1.0, 1e-7, nan, HUGE_VAL}) {
    EXPECT_EQ(api.SetRahmenBreite(bad), 0) << bad;
    EXPECT_EQ(api.SetFluegelRahmenDicke(0, bad), 0) << bad;
    EXPECT_EQ(api.SetZMaszLaenge(0, bad), 0) << bad;
  }
  for (const double wert : {-0.1, std::nan(""), HUGE_VAL}) {
    EXPECT_EQ(api.SetFluegelUeberschlag(0, wert), 0);
    EXPECT_EQ(api.SetFluegelZVersatz(0, wert), 0);
    EXPECT_EQ(api.SetFluegelRahmenBreite(0, wert), 0);
  }
  EXPECT_EQ(api.SetFluegelUeberschlag(0, 0.0), 1);

  const auto area = [&](const CFeApiPolygon& p) {
    double sum = 0.0;
    for (int i = 0; i < p.lAnzahl; ++i) {
      const int n = (i + 1) % p.lAnzahl;
      sum += p.pdX[i] * p.pdY[n] - p.pdX[n] * p.pdY[i];
    }
    return sum / 2.0;
  };
  ASSERT_EQ(api.SetRahmenBreite(5.0), 1);
  ASSERT_EQ(api.SetFluegelRahmenBreite(0, 10.0), 1);
  ASSERT_EQ(api.SetFluegelUeberschlag(0, 2.0), 1);
  ASSERT_EQ(api.Berechne(), 1);
  // 100 x 130 less 5 - 2 + 10 on every side.
  CFeApiPolygon innen;
  ASSERT_EQ(api.GetFluegelInnenPolygon(0, 0.0, innen), 1);
  EXPECT_NEAR(area(innen), 74.0 * 104.0, 1e-9);
  ASSERT_EQ(api.GetFluegelInnenPolygon(0, 1.5, innen), 1);
  EXPECT_NEAR(area(innen), 77.0 * 107.0, 1e-9);
  EXPECT_DOUBLE_EQ(api.GetFluegelUeberschlag(0), 2.0);
}

TEST(Fassade, SettersOfBarsAndDimensionsShowInTheNextOutlines) {
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad("sprossen_und_zusatzteile.aqz").c_str()), 1);
  CFeApiPolygon umriss;
  double d[3];
  const auto extent = [&](const double* values) {
    const auto [low, high] = std::minmax_element(values, values + umriss.lAnzahl);
    return *high - *low;
  };
  ASSERT_EQ(api.SetSprossenBreite(0, 0, 5.5), 1);
  ASSERT_EQ(api.SetSprossenDicke(0, 0, 1.25), 1);
  ASSERT_EQ(api.Berechne(), 1);
  ASSERT_EQ(api.GetFluegelBauteilUmriss(3, 0, 0, 0, umriss, d[0], d[1], d[2]), 1);
  EXPECT_NEAR(std::min(extent(umriss.pdX), extent(umriss.pdY)), 5.5, 1e-9);
  EXPECT_DOUBLE_EQ(api.GetFluegelBauteilDicke(3, 0, 0), 1.25);

  ASSERT_EQ(api.SetRahmenDicke(9.0), 1);
  ASSERT_EQ(api.SetFluegelRahmenDicke(0, 8.0), 1);
  ASSERT_EQ(api.SetFluegelZVersatz(0, 0.5), 1);
  ASSERT_EQ(api.SetZMaszLaenge(0, 180.0), 1);
  ASSERT_EQ(api.Berechne(), 1);
  EXPECT_DOUBLE_EQ(api.GetRahmenBauteilDicke(1, 3), 9.0);
  EXPECT_DOUBLE_EQ(api.GetFluegelZVersatz(0, 0), 0.5);
  EXPECT_DOUBLE_EQ(api.GetFluegelZVersatz(0, 1), 9.0 - 8.0 - 0.5);
  for (const long seite : {-1L, 2L}) EXPECT_EQ(api.GetFluegelZVersatz(0, seite), 0.0);
  ASSERT_EQ(api.GetRahmenBauteilUmriss(1, 0, -1, umriss, d[0], d[1], d[2]), 1);
  EXPECT_NEAR(extent(umriss.pdX), 180.0, 1e-9);
}

TEST(Fassade, DimensionLengthsKeepTheirSignAndShareByName) {
  CFeApi api;
  const std::string text =
      "[Allgemeines]#Name=A#[Achsen]#Y1=100#X1=50#X2=50#"
      "[Masz1]#Name=Teil#Laenge=-50,10#Richtung=1#Knoten1=2,0#Knoten2=1,0#"
      "[Masz2]#Name=TEIL#Laenge=100,10#Richtung=0#Knoten1=0,0#Knoten2=0,1#"
      "[Masz3]#Name=Ecken#Laenge=100,10#Richtung=1#Knoten1=0,0,0,0#Knoten2=2,0,100,0#"
      "[Rahmen]#Rahmendicke=7#RahmenDefaults=7,0,1,2,1,2#Knoten1=0,0#Knoten2=2,1#"
      "[Fluegel1]#Typ=1,0#Rahmendicke=7#RahmenDefaults=7,1,1,3,1,3#Knoten1=0,0#Knoten2=2,1#";
  ASSERT_EQ(api.ReadFromBuffer(static_cast<long>(text.size()), text.data()), 1);
  EXPECT_EQ(api.SetZMaszLaengeMitName(1, 60.0), 1);
  EXPECT_DOUBLE_EQ(api.GetZMaszLaenge(0), -60.0);
  EXPECT_DOUBLE_EQ(api.GetZMaszLaenge(1), 60.0);
  long h = 7;
  long v = 7;
  // One horizontal one spans half the window only, the other one no axes.
  EXPECT_EQ(api.IsZMaszBreiteHoehe(h, v), 0);
  EXPECT_EQ(h, -1);
  EXPECT_EQ(v, 1);
  EXPECT_EQ(api.SetBreiteHoehe(Parameter(), 120.0, 120.0), 0);
  EXPECT_DOUBLE_EQ(api.GetZMaszLaenge(1), 60.0);
}

TEST(Fassade, AnEmptyWindowAndBadIndicesAnswerFailureValues) {
  CFeApi api;
  char name[256];
  CFeApiPolygon polygon;
  double d[3];
  EXPECT_EQ(api.GetErrorID(), 0);
  EXPECT_EQ(api.GetAnzahlFluegel(), 0);
  EXPECT_EQ(api.GetFensterBreite(), 0.0);
  EXPECT_EQ(api.Berechne(), 1);
  ASSERT_EQ(api.ReadFromFile(BeispielPfad("raster_3x3.aqz").c_str()), 1);
  for (const long i :
       {-1L, 9L, std::numeric_limits<long>::max(), std::numeric_limits<long>::min()}) {
    EXPECT_EQ(api.GetFluegelName(i, name), 0);
    EXPECT_EQ(api.GetAnzahlSprossen(i), -1);
    EXPECT_EQ(api.GetFluegelRahmenBreite(i), 0.0);
    EXPECT_EQ(api.GetFluegelZVersatz(i, 0), 0.0);
    EXPECT_EQ(api.GetFluegelFuellungArt(i), eFeApiFuellungGlas);
    EXPECT_EQ(api.GetFluegelInnenPolygon(i, 0.0, polygon), 0);
    EXPECT_EQ(api.GetRahmenBauteilUmriss(1, i, 0, polygon, d[0], d[1], d[2]), 0);
    EXPECT_EQ(api.GetRahmenBauteilUmriss(1, 0, i == -1 ? -2 : i, polygon, d[0], d[1], d[2]), 0);
    EXPECT_EQ(api.GetFluegelBauteilUmriss(i, 0, 0, 0, polygon, d[0], d[1], d[2]), 0);
    EXPECT_EQ(api.GetFluegelAnzahlBauteile(1, i), 0);
    EXPECT_EQ(api.GetZMaszLaenge(i), 0.0);
    EXPECT_EQ(api.SetSprossenBreite(0, i, 2.0), 0);
    EXPECT_EQ(api.GetRahmenBauteilAttribut(1, i, 1), 0);
    EXPECT_EQ(api.GetRahmenBauteilAttribut(i, 0, 1), 0);
    EXPECT_EQ(api.GetFluegelBauteilAttribut(1, i, 0, 1), 0);
    EXPECT_EQ(api.GetFluegelBauteilAttribut(1, 0, i, 1), 0);
    EXPECT_EQ(api.GetFluegelFuellungAttribut(i, 1), 0);
    for (const long n : {i, 0L, 5L}) {
      EXPECT_EQ(api.GetRahmenBauteilAttribut(1, 0, n), 0);
      EXPECT_EQ(api.GetFluegelBauteilAttribut(1, 0, 0, n), 0);
      EXPECT_EQ(api.GetFluegelFuellungAttribut(0, n), 0);
    }
  }
  EXPECT_EQ(api.GetAnzahlRahmenBauteile(3), 0);
}

TEST(Fassade, AttributesComeInTheOrderOfTheirNumbers) {
  // The file gives them as a3, a1, a4, a2; the filling as a1 to a4.
  const std::string macro =
      "[Achsen]#Y1=120#X1=80#[Rahmen]#Rahmendicke=6.8#RahmenDefaults=7,0,11,12,13,14,6.8#"
      "Knoten1=0,0#Knoten2=1,1#"
      "[Fluegel1]#Typ=1,0#Knoten1=0,0#Knoten2=1,1#Rahmendicke=6.8#"
      "RahmenDefaults=7.8,1.5,21,22,23,24,6.8#"
      "Fuellung=0,0,0,2.4,0,0,0,0.5,31,32,33,34#";
  CFeApi api;
  ASSERT_EQ(api.ReadFromBuffer(static_cast<long>(macro.size()), macro.c_str()), 1);
  const long rahmen[] = {12, 14, 11, 13};
  const long fluegel[] = {22, 24, 21, 23};
  for (long n = 1; n <= 4; ++n) {
    EXPECT_EQ(api.GetRahmenBauteilAttribut(1, 0, n), rahmen[n - 1]) << n;
    EXPECT_EQ(api.GetFluegelBauteilAttribut(1, 0, 0, n), fluegel[n - 1]) << n;
    EXPECT_EQ(api.GetFluegelFuellungAttribut(0, n), 30 + n) << n;
  }
}

TEST(Fassade, OutlinesComeWithLengthAndCutAnglesForACuttingList) {
  CFeApi api;
  ASSERT_EQ(api.ReadFromFile(BeispielPfad("drehkipp_einfluegelig.aqz").c_str()), 1);
  CFeApiPolygon polygon;
  double length = 0.0;
  double start = 0.0;
  double end = 0.0;
  ASSERT_EQ(api.GetAnzahlRahmenBauteile(1), 4);
  ASSERT_EQ(api.GetRahmenBauteilUmriss(1, 0, 0, polygon, length, start, end), 1);
  EXPECT_EQ(polygon.lAnzahl, 4);
  EXPECT_NEAR(length, 100.0, 1e-9);
  EXPECT_NEAR(start, 45.0, 1e-9);
  EXPECT_NEAR(end, -45.0, 1e-9);
  ASSERT_EQ(api.GetRahmenBauteilUmriss(1, 1, -1, polygon, length, start, end), 1);
  EXPECT_NEAR(length, 130.0, 1e-9);
  EXPECT_EQ(api.GetAnzahlRahmenBauteilSegmente(1, 1), 1);
}

TEST(Fassade, BufferLinesEndWithTheirSeparator) {
  CFeApi api;
  std::string text = "[Allgemeines]#Name=A";
  EXPECT_EQ(api.ReadFromBuffer(static_cast<long>(text.size()), text.data()), 0);
  char name[256];
  EXPECT_EQ(api.GetFensterBezeichnung(name), 0);
  // Any bytes: nothing is lost but what does not parse.
  std::string noise(4096, '\0');
  std::iota(noise.begin(), noise.end(), '\0');
  EXPECT_EQ(api.ReadFromBuffer(static_cast<long>(noise.size()), noise.data(), 13), 0);
  EXPECT_EQ(api.ReadFromBuffer(0, nullptr), 0);
  EXPECT_EQ(api.ReadFromBuffer(-5, noise.data()), 0);
}

TEST(Fassade, ErrorsAreReportedByNumberAndText) {
  CFeApi api;
  const std::string path = "/gibt/es/nicht/" + std::string(300, 'x');
  EXPECT_EQ(api.ReadFromFile(path.c_str()), 0);
  EXPECT_EQ(api.GetErrorID(), 28);
  char text[256];
  EXPECT_EQ(api.GetErrorMsg(text), 256);
  EXPECT_EQ(text[255], 'x');
  EXPECT_EQ(api.ReadFromFile(nullptr), 0);
  api.DeleteFenster();
  EXPECT_EQ(api.GetErrorID(), 0);
  EXPECT_EQ(api.GetErrorMsg(text), 0);
  EXPECT_EQ(text[0], '\0');
}

TEST(Komprimiert, ReadsTheSameWindowAsThePlainFile) {
  const Ordner ordner;
  for (const std::string& name : BeispielNamen()) {
    const std::string plain = Lies(BeispielPfad(name));
    if (plain.size() > 9000) continue;
    Schreibe(ordner / "f.cqz", Komprimiert(plain));
    CFeApi api;
    CFeApi compressed;
    ASSERT_EQ(api.ReadFromFile(BeispielPfad(name).c_str()), 1);
    ASSERT_EQ(compressed.ReadFromCompressedFile((ordner / "f.cqz").c_str()), 1) << name;
    EXPECT_EQ(Puffer(compressed), Puffer(api));
    char one[256];
    char two[256];
    CFeApi::GetBezeichnungFromFile(BeispielPfad(name).c_str(), one);
    CFeApi::GetBezeichnungFromFile((ordner / "f.cqz").c_str(), two);
    EXPECT_STREQ(one, two);
  }
}

// A cut stream holds the first lines of its text, as far as they are whole, and nothing
// that the file does not say.
TEST(Komprimiert, ACutStreamIsTheBeginningOfItsText) {
  const Ordner ordner;
  const std::string text = Lies(BeispielPfad("schraegen.aqz"));
  std::set<std::string> beginnings;
  for (std::size_t end = 0; end != std::string::npos; end = text.find('\n', end + 1)) {
    std::string lines = text.substr(0, end) + '\n';
    std::replace(lines.begin(), lines.end(), '\n', '#');
    CFeApi api;
    api.ReadFromBuffer(static_cast<long>(lines.size()), lines.data());
    beginnings.insert(Puffer(api));
  }
  const std::string whole = Komprimiert(text);
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    Schreibe(ordner / "f.cqz", whole.substr(0, length));
    CFeApi api;
    api.ReadFromCompressedFile((ordner / "f.cqz").c_str());
    EXPECT_TRUE(beginnings.contains(Puffer(api))) << length;
  }
}

TEST(Komprimiert, DamagedAndOversizedStreamsNeverCrash) {
  const Ordner ordner;
  const std::string whole = Komprimiert(Lies(BeispielPfad("raster_3x3.aqz")));
  CFeApi api;
  for (std::size_t i = 0; i < whole.size(); i += 7) {
    std::string damaged = whole;
    damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
    Schreibe(ordner / "f.cqz", damaged);
    api.ReadFromCompressedFile((ordner / "f.cqz").c_str());
    EXPECT_GE(api.GetAnzahlFluegel(), 0);
  }
  // Text past 10000 bytes is lost: the window's head still counts.
  const std::string head = "[Allgemeines]\nName=Kopf\n";
  Schreibe(ordner / "f.cqz", Komprimiert(head + std::string(20000, 'x') + "\n[Achsen]\nX1=5\n"));
  EXPECT_EQ(api.ReadFromCompressedFile((ordner / "f.cqz").c_str()), 0);
  char name[256];
  EXPECT_EQ(api.GetFensterBezeichnung(name), 4);
  EXPECT_EQ(api.ReadFromCompressedFile((ordner / "fehlt.cqz").c_str()), 0);
}

TEST(Dateisuche, EndingsAreComparedWithoutCaseOrDot) {
  EXPECT_EQ(CFeApi::IsFileCompressed("X.CQZ"), 1);
  EXPECT_EQ(CFeApi::IsFileCompressed("cqz"), 1);
  EXPECT_EQ(CFeApi::IsFileCompressed("qz"), 0);
  EXPECT_EQ(CFeApi::IsFileCompressed(nullptr), 0);
  EXPECT_EQ(CFeApi::IsFileTemporary("a.tmp.bak"), 0);
  EXPECT_EQ(CFeApi::IsFileTemporary("a.TMP"), 1);
}

TEST(Dateisuche, FindsAMacroFileInASubfolder) {
  const Ordner ordner;
  char path[256];
  EXPECT_EQ(CFeApi::GetValidMakroFile((ordner / "").c_str(), path), 0);
  EXPECT_EQ(path[0], '\0');
  Schreibe(ordner / "a/b/notiz.txt", "");
  Schreibe(ordner / "a/b/Fenster.AQZ", "");
  EXPECT_EQ(CFeApi::GetValidMakroFile((ordner / "").c_str(), path), 1);
  EXPECT_TRUE(std::filesystem::exists(path)) << path;
  EXPECT_EQ(CFeApi::GetValidMakroFile(nullptr, path), 0);
}

TEST(Dateisuche, TheDesignationOfACompressedFileIsItsFirstLineThatBeginsWithName) {
  const Ordner ordner;
  char name[256];
  Schreibe(ordner / "f.cqz", Komprimiert("[Allgemeines]\nNAMEN=x\nName=y\n"));
  EXPECT_EQ(CFeApi::GetBezeichnungFromFile((ordner / "f.cqz").c_str(), name), 2);
  EXPECT_STREQ(name, "=x");
  EXPECT_EQ(CFeApi::GetBezeichnungFromFile((ordner / "fehlt.aqz").c_str(), name), 0);
}

TEST(Polygonsatz, SetOrderAndDelete) {
  CFeApiPolygon polygon;
  polygon.SetOrder(3);
  EXPECT_EQ(polygon.lAnzahl, 3);
  polygon.pdX[3] = 1.0;  // one more than counted
  CFeApiPolygon copy = polygon;
  copy.pdX[0] = 5.0;
  EXPECT_EQ(polygon.pdX[0], 0.0);
  polygon.Delete();
  EXPECT_EQ(polygon.lAnzahl, 0);
  EXPECT_EQ(polygon.pdX, nullptr);
}

}  // namespace
}  // namespace lintavo::test
