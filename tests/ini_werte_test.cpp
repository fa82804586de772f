// Typed values of the document: numbers, flags, lists and fonts.
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/ini/CExIniFile.h"

namespace {

// A document with one entry in one section.
CIniFile WithValue(const std::string& value) {
  CIniFile document;
  document.AddLine("[S]");
  document.AddLine("k=" + value);
  return document;
}

double Parsed(const std::string& text) {
  double value = -77.0;
  EXPECT_EQ(WithValue(text).GetDouble("S", "k", value), 1);
  return value;
}

std::string Formatted(double value) {
  CIniFile document;
  CString section = "S";
  EXPECT_EQ(document.SetDouble(section, "k", value), 1);
  return std::string(document.GetLines()[1].View().substr(2));
}

bool SameBits(double a, double b) {
  return (std::isnan(a) && std::isnan(b)) ||
         std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

TEST(IniNumbers, AreReadByTheirPrefix) {
  EXPECT_EQ(Parsed("12,5"), 12.0);
  EXPECT_EQ(Parsed(" +.5mm"), 0.5);
  EXPECT_EQ(Parsed("1e2x"), 100.0);
  EXPECT_EQ(Parsed("1e+"), 1.0);
  EXPECT_EQ(Parsed("0x1p4"), 16.0);
  EXPECT_EQ(Parsed("0xg"), 0.0);
  EXPECT_EQ(Parsed("+-5"), 0.0);
  EXPECT_FALSE(std::signbit(Parsed("-")));
  EXPECT_TRUE(std::signbit(Parsed("-0")));
  EXPECT_EQ(Parsed("-1e999"), -HUGE_VAL);
  EXPECT_EQ(Parsed("1e-999"), 0.0);
  EXPECT_EQ(Parsed("0." + std::string(400, '0') + "1e402"), 10.0);
  EXPECT_TRUE(std::isnan(Parsed("nan(x)")));
  EXPECT_EQ(Parsed("INFINITYx"), HUGE_VAL);
  EXPECT_EQ(Parsed(" "), 0.0);
}

TEST(IniNumbers, AreReadAsTheCLibraryReadsThem) {
#ifdef _WIN32
  GTEST_SKIP() << "the C library of Windows reads and writes some numbers otherwise";
#endif
  const std::vector<std::string> pieces = {"0",
                                           "1",
                                           "9",
                                           "5",
                                           "00000",
                                           "123456789",
                                           "e",
                                           "E",
                                           "e+",
                                           "e-",
                                           "+",
                                           "-",
                                           ".",
                                           "0x",
                                           "0X",
                                           "p",
                                           "P-",
                                           "p+",
                                           "a",
                                           "F",
                                           "x",
                                           "inf",
                                           "nan",
                                           "NaN(",
                                           ")",
                                           "infinity",
                                           "308",
                                           "324",
                                           " ",
                                           ",",
                                           "99999999999999999999"};
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (auto n = random() % 7 + 1; n > 0; --n) text += pieces[random() % pieces.size()];
    ASSERT_TRUE(SameBits(Parsed(text), std::strtod(text.c_str(), nullptr))) << text;
  }
}

TEST(IniNumbers, AreWrittenWithSixDecimalsAtMost) {
  EXPECT_EQ(Formatted(12.5), "12.5");
  EXPECT_EQ(Formatted(3.0), "3");
  EXPECT_EQ(Formatted(100.0), "100");
  EXPECT_EQ(Formatted(-2.25), "-2.25");
  EXPECT_EQ(Formatted(0.0000001), "0");
  EXPECT_EQ(Formatted(-0.0000001), "-0");
  EXPECT_EQ(Formatted(1234567.0000004), "1234567");
  EXPECT_EQ(Formatted(1e22), "10000000000000000000000");
  EXPECT_EQ(Formatted(HUGE_VAL), "inf");
  EXPECT_EQ(Formatted(std::numeric_limits<double>::max()).size(), 309U);
}

TEST(IniNumbers, ComeBackRoundedToSixDecimals) {
#ifdef _WIN32
  GTEST_SKIP() << "the C library of Windows reads and writes some numbers otherwise";
#endif
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937_64 random(seed);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t bits = random();
    double value = std::bit_cast<double>(bits);
    if (i % 2 == 0) value = static_cast<double>(static_cast<std::int64_t>(bits)) * 1e-12;
    char rounded[400];
    std::snprintf(rounded, sizeof rounded, "%f", value);
    const std::string text = Formatted(value);
    ASSERT_EQ(std::string(rounded).substr(0, text.size()), text);
    ASSERT_TRUE(SameBits(Parsed(text), std::strtod(rounded, nullptr))) << rounded;
    ASSERT_EQ(Formatted(Parsed(text)), text);
  }
}

TEST(IniNumbers, IgnoreTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  bool comma = false;
  for (const char* name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "German"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) continue;
    comma = comma || std::strcmp(std::localeconv()->decimal_point, ",") == 0;
    EXPECT_EQ(Formatted(12.5), "12.5");
    EXPECT_EQ(Parsed("12.5"), 12.5);
    EXPECT_EQ(Parsed("12,5"), 12.0);
  }
  std::setlocale(LC_ALL, before.c_str());
  if (!comma) GTEST_SKIP() << "no locale with a decimal comma is installed";
}

TEST(IniNumbers, BecomeWholeTowardZeroAndWithinBounds) {
  const auto asLong = [](const char* text) {
    long value = -77;
    EXPECT_EQ(WithValue(text).GetLong("S", "k", value), 1);
    return value;
  };
  EXPECT_EQ(asLong("-3.9"), -3);
  EXPECT_EQ(asLong("3.9"), 3);
  EXPECT_EQ(asLong("1e300"), std::numeric_limits<long>::max());
  EXPECT_EQ(asLong("-inf"), std::numeric_limits<long>::min());
  EXPECT_EQ(asLong("nan"), 0);
}

TEST(IniNumbers, BecomeFloatsByRounding) {
  const auto asFloat = [](const char* text) {
    float value = -77.0F;
    EXPECT_EQ(WithValue(text).GetFloat("S", "k", value), 1);
    return value;
  };
  EXPECT_EQ(asFloat("0.1"), 0.1F);
  EXPECT_EQ(asFloat("3.4028235e38"), std::numeric_limits<float>::max());
  EXPECT_EQ(asFloat("-1e39"), -std::numeric_limits<float>::infinity());
  EXPECT_TRUE(std::isnan(asFloat("nan")));
}

TEST(IniNumbers, AreTrueAbove099) {
  const auto asBool = [](const char* text, bool preset) {
    bool value = preset;
    EXPECT_EQ(WithValue(text).GetBool("S", "k", value), 1);
    return value;
  };
  EXPECT_TRUE(asBool("0.995", false));
  EXPECT_FALSE(asBool("0.99", true));
  EXPECT_FALSE(asBool("ja", true));
  EXPECT_FALSE(asBool("nan", true));
  EXPECT_FALSE(asBool("-1", true));
}

TEST(IniNumbers, KnowNothingOfLinesBeforeTheFirstHeader) {
  CIniFile document;
  for (const char* line : {"x=1", "[S]", "leer="}) document.AddLine(line);
  CString text;
  EXPECT_EQ(document.GetString("Fehlt", "x", text), 1);
  double number = 5.0;
  long whole = 5;
  double list[1] = {5.0};
  EXPECT_EQ(document.GetDouble("Fehlt", "x", number), 0);
  EXPECT_EQ(document.GetLong("S", "leer", whole), 0);
  EXPECT_EQ(number, 5.0);
  EXPECT_EQ(whole, 5);
  EXPECT_EQ(document.GetDoubles("Fehlt", "x", 1, list), 0);
  EXPECT_EQ(list[0], 0.0);
}

struct ListCase {
  const char* text;
  std::vector<double> values;  // as many as are asked for
  long count;
};

TEST(IniLists, AreReadItemByItem) {
  const ListCase cases[] = {{"1,2,3", {1, 2, 3, 0, 0}, 3},
                            {"1,2,3", {1, 2}, 2},
                            {"7", {7, 0, 0}, 1},
                            {"1,", {1, 0, 0}, 2},
                            {",4", {0, 4, 0}, 2},
                            {",,4", {0, 0, 4}, 3},
                            {" 1.5 , x,-2", {1.5, 0, -2}, 3},
                            {"1,2", {}, 0}};
  for (const ListCase& c : cases) {
    SCOPED_TRACE(c.text);
    std::vector<double> values(c.values.size(), -77.0);
    long count = -77;
    const long n = static_cast<long>(values.size());
    EXPECT_EQ(WithValue(c.text).GetDoubles("S", "k", n, values.data(), &count), 1);
    EXPECT_EQ(values, c.values);
    EXPECT_EQ(count, c.count);
  }
  long count = -77;
  EXPECT_EQ(WithValue("").GetDoubles("S", "k", 0, nullptr, &count), 0);
  EXPECT_EQ(WithValue("1").GetDoubles("S", "k", -1, nullptr), 1);
  EXPECT_EQ(count, 0);
}

TEST(IniLists, AndFlagsAreWrittenInPlainText) {
  CIniFile document;
  CString section = " S ";
  const double values[] = {1.0, -0.5, 1e-9, 1200.125};
  document.SetDoubles(section, "liste", 4, values);
  document.SetDoubles(section, "leer", 0, values);
  document.SetBool(section, "ja", true);
  document.SetBool(section, "nein", false);
  document.SetLong(section, "ganz", -12);
  document.SetFloat(section, "float", 0.1F);
  const std::vector<CString> expected = {
      "[S]", "liste=1,-0.5,0,1200.125", "leer=", "ja=1", "nein=0", "ganz=-12", "float=0.1"};
  EXPECT_EQ(document.GetLines(), expected);
  EXPECT_EQ(section, "S");
}

LOGFONT FilledFont() {
  LOGFONT font;
  std::memset(&font, 0x5A, sizeof font);
  return font;
}

TEST(IniFonts, HaveDefaults) {
  CExIniFile document;
  LOGFONT font = FilledFont();
  EXPECT_FALSE(document.GetLogFont("S", "Font", font));
  EXPECT_EQ(font.lfHeight, 10);
  EXPECT_EQ(font.lfQuality, 2);
  EXPECT_EQ(font.lfPitchAndFamily, 18);
  EXPECT_STREQ(font.lfFaceName, "Arial");
  EXPECT_EQ(font.lfWidth + font.lfEscapement + font.lfOrientation + font.lfWeight, 0);
  EXPECT_EQ(font.lfItalic + font.lfUnderline + font.lfStrikeOut + font.lfCharSet +
                font.lfOutPrecision + font.lfClipPrecision,
            0);
}

TEST(IniFonts, ComeBackAsWritten) {
  LOGFONT font{};
  font.lfHeight = -13;
  font.lfWidth = 1;
  font.lfEscapement = 900;
  font.lfOrientation = 2;
  font.lfWeight = 700;
  font.lfItalic = 1;
  font.lfUnderline = 3;
  font.lfStrikeOut = 4;
  font.lfCharSet = 255;
  font.lfOutPrecision = 5;
  font.lfClipPrecision = 6;
  font.lfQuality = 7;
  font.lfPitchAndFamily = 34;
  std::strcpy(font.lfFaceName, "Times New Roman");
  CExIniFile document;
  CString section = "S";
  EXPECT_TRUE(document.SetLogFont(section, "F", font));
  ASSERT_EQ(document.GetLines().size(), 15U);
  EXPECT_EQ(document.GetLines()[1], "F.lfCharSet=255");
  EXPECT_EQ(document.GetLines()[4], "F.lfFaceName=Times New Roman");
  EXPECT_EQ(document.GetLines()[14], "F.lfWidth=1");
  // Read from a document of its own: the writing one knows its newest entry
  // only after another section.
  CExIniFile fresh;
  for (const CString& line : document.GetLines()) fresh.AddLine(line);
  LOGFONT read = FilledFont();
  EXPECT_TRUE(fresh.GetLogFont("S", "F", read));
  EXPECT_EQ(std::memcmp(&read, &font, sizeof font), 0);
}

TEST(IniFonts, AreHeldWithinTheRecord) {
  CExIniFile document;
  const std::string face(40, 'f');
  for (const std::string& line :
       {std::string("[S]"), "F.lfFaceName=" + face, std::string("F.lfItalic=257"),
        std::string("F.lfCharSet=-1"), std::string("F.lfHeight=1e12")}) {
    document.AddLine(line);
  }
  LOGFONT font = FilledFont();
  EXPECT_FALSE(document.GetLogFont("S", "F", font));
  EXPECT_STREQ(font.lfFaceName, face.substr(0, 31).c_str());
  EXPECT_EQ(font.lfItalic, 1);
  EXPECT_EQ(font.lfCharSet, 255);
  EXPECT_EQ(font.lfHeight, std::numeric_limits<decltype(font.lfHeight)>::max());
  // A face name that fills its place to the last byte is written, not overrun.
  std::memset(font.lfFaceName, 'g', sizeof font.lfFaceName);
  CExIniFile written;
  CString section = "S";
  EXPECT_TRUE(written.SetLogFont(section, "F", font));
  EXPECT_EQ(written.GetLines()[4], CString("F.lfFaceName=" + std::string(32, 'g')));
}

}  // namespace
