// The string type, the table of texts, and how paths reach files. Numbers and
// files are seen through the document class, as a host sees them.
#include <climits>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/platform/CSize.h"
#include "lintavo/platform/CString.h"
#include "lintavo/resources/StringTable.h"

namespace {

namespace fs = std::filesystem;

TEST(CStringValue, ComesFromEveryKindOfText) {
  const char* none = nullptr;
  EXPECT_TRUE(CString(none).IsEmpty());
  EXPECT_EQ(CString(std::string("ab")), "ab");
  EXPECT_EQ(CString(std::string_view("abc").substr(1)), "bc");
  EXPECT_EQ(CString("abc", 2), "ab");
  EXPECT_EQ(CString("abc", -1), "");
  EXPECT_EQ(CString(none, 3), none);
}

TEST(CStringValue, HoldsZeroBytes) {
  const CString text("a\0b", 3);
  EXPECT_EQ(text.GetLength(), 3);
  EXPECT_EQ(text.View(), std::string_view("a\0b", 3));
  EXPECT_STREQ(text, "a");
  EXPECT_NE(text, CString("a"));
  EXPECT_EQ((text + "c").GetLength(), 4);
}

TEST(CStringValue, ComparesTextAndNotPointers) {
  const char literal[] = "Achse";
  const CString text = literal;
  EXPECT_TRUE(text == literal && literal == text && text == CString(literal));
  EXPECT_TRUE(text != "Achsen" && "Achsen" != text);
  EXPECT_TRUE(text < "Achsen" && "Abc" < text && CString("Z") < CString("a"));
  EXPECT_TRUE(text == std::string(literal));
  EXPECT_LT(text.Compare("Achsf"), 0);
  // Bytes above 127 sort behind ASCII, whether char is signed or not.
  EXPECT_GT(CString("\xC3\x84").Compare("z"), 0);
}

TEST(CStringValue, AnswersPositionsOutOfRangeWithNothing) {
  const CString text = "Fenster";
  EXPECT_EQ(text[0], 'F');
  EXPECT_EQ(text[6L], 'r');
  for (const long long index : {-1LL, 7LL, LLONG_MIN, LLONG_MAX}) EXPECT_EQ(text[index], '\0');
  EXPECT_EQ(text.GetAt(INT_MIN), '\0');
  EXPECT_EQ(text.Left(3) + text.Mid(3), text);
  EXPECT_EQ(text.Left(-1) + text.Right(-1) + text.Mid(8) + text.Mid(2, -1), "");
  EXPECT_EQ(text.Left(INT_MAX), text);
  EXPECT_EQ(text.Right(3), "ter");
  EXPECT_EQ(text.Right(INT_MAX), text);
  EXPECT_EQ(text.Mid(-5, 2), "Fe");
  EXPECT_EQ(text.Mid(5, INT_MAX), "er");
}

TEST(CStringValue, Finds) {
  const CString path = "a/b/c.aqz";
  EXPECT_EQ(path.Find('/'), 1);
  EXPECT_EQ(path.Find('/', 2), 3);
  EXPECT_EQ(path.ReverseFind('/'), 3);
  EXPECT_EQ(path.Find("aqz"), 6);
  EXPECT_EQ(path.Find("a", 1), 6);
  EXPECT_EQ(path.Find("a", -7), 0);
  EXPECT_EQ(path.Find("a", 99), -1);
  EXPECT_EQ(path.Find('\\') + path.ReverseFind('x') + path.Find(static_cast<char*>(nullptr)), -3);
}

TEST(CStringValue, AppendsItself) {
  CString text = "ab";
  text += text;
  text += 'c';
  text += static_cast<const char*>(text);
  EXPECT_EQ(text, "ababcababc");
  EXPECT_EQ('<' + text.Left(1) + '>', "<a>");
}

TEST(CStringValue, FormatsFromItself) {
  CString text = "Masz";
  text.Format("%s%d", static_cast<const char*>(text), 12);
  EXPECT_EQ(text, "Masz12");
  const std::string wide(300, 'x');
  text.Format("<%s>", wide.c_str());
  EXPECT_EQ(text.GetLength(), 302);
  text.Format("%s", "");
  EXPECT_TRUE(text.IsEmpty());
}

TEST(CStringValue, TrimsWhiteSpaceOnly) {
  CString text("\t \v\fx y\r\n ");
  text.TrimLeft();
  EXPECT_EQ(text, "x y\r\n ");
  text.TrimRight();
  EXPECT_EQ(text, "x y");
  // The no-break space of a Windows file is a character like any other.
  CString blank = " \xA0 ";
  blank.TrimLeft();
  blank.TrimRight();
  EXPECT_EQ(blank, "\xA0");
}

TEST(CStringCase, FoldsAsciiAndLatin1Letters) {
  CString text = "aZ[ äÖüß ÿ×÷ àÞ";
  text.MakeUpper();
  EXPECT_EQ(text, "AZ[ ÄÖÜß ÿ×÷ ÀÞ");
  EXPECT_EQ(text.CompareNoCase("az[ ÄöÜß ÿ×÷ Àþ"), 0);
  text.MakeLower();
  EXPECT_EQ(text, "az[ äöüß ÿ×÷ àþ");
  EXPECT_NE(CString("×").CompareNoCase("÷"), 0);
}

TEST(CStringCase, LeavesOtherCharactersAlone) {
  // The second bytes are those of "Ü" and "ü", but not behind their lead byte:
  // Cyrillic, a three-byte character, and the same letters in Windows-1252.
  for (const char* text : {"\xD0\x9C", "\xE2\x82\x9C", "\xDC\xFC"}) {
    CString upper = text;
    CString lower = text;
    upper.MakeUpper();
    lower.MakeLower();
    EXPECT_EQ(upper, text);
    EXPECT_EQ(lower, text);
  }
  EXPECT_NE(CString("\xD0\x9C").CompareNoCase("\xD0\xBC"), 0);
}

TEST(CStringCase, SortsByLowerCase) {
  EXPECT_LT(CString("Rahmen").CompareNoCase("rahmenX"), 0);
  EXPECT_LT(CString("_").CompareNoCase("A"), 0);
  EXPECT_GT(CString("b").CompareNoCase("A"), 0);
  EXPECT_LT(CString("A").CompareNoCase("b"), 0);
}

TEST(StringTable, KeepsTheMessagesAtTheirNumbers) {
  using lintavo::LoadText;
  EXPECT_EQ(LoadText(20), "Das Rahmenpolygon von Flügel Nr.%s kann nicht erzeugt werden !");
  EXPECT_EQ(LoadText(28), "Die Datei '%s' ist nicht vorhanden !");
  EXPECT_EQ(LoadText(47), "Der rechte Bezugspunkt liegt innenhalb des Flügels !");
  EXPECT_EQ(LoadText(81), "Unzulässige Eingabe wegen Formänderung  (zu wenig Rahmenbauteile) !");
  EXPECT_EQ(LoadText(84),
            "Unzulässige Eingabe wegen Formänderung !\n\nEs sind zu wenig Rahmenbauteile im "
            "Flügel '%s'.");
  for (const int id : {19, 20, 22, 23, 24, 27, 28, 41, 46, 47, 48, 49, 53, 80, 81, 82, 84, 85}) {
    EXPECT_GT(LoadText(id).GetLength(), 25) << id;
  }
}

TEST(StringTable, GivesEachTextOnceAndNothingElse) {
  std::set<CString> texts;
  int count = 0;
  for (int id = 0; id <= 95; ++id) {
    const CString text = lintavo::LoadText(id);
    EXPECT_STREQ(lintavo::Text(lintavo::StringId{id}), text);
    if (text.IsEmpty()) continue;
    ++count;
    texts.insert(text);
  }
  EXPECT_EQ(texts.size(), static_cast<std::size_t>(count));
  for (const int id : {INT_MIN, -1, 0, 96, 61245, 61247, INT_MAX}) {
    CString text = "before";
    EXPECT_FALSE(text.LoadString(id)) << id;
    EXPECT_TRUE(text.IsEmpty() && lintavo::LoadText(id).IsEmpty()) << id;
  }
}

TEST(StringTable, NumbersNames) {
  EXPECT_EQ(lintavo::NumberedName("Fluegel", 12), "Fluegel12");
  EXPECT_EQ(lintavo::NumberedName("50%d", -3), "50%d-3");
  EXPECT_EQ(lintavo::NumberedName(lintavo::StringId::PraefixR, 101), "R101");
  EXPECT_EQ(lintavo::NumberedName(lintavo::StringId::Beschlag, 7), "Beschlag7");
  CString key;
  EXPECT_TRUE(key.LoadString(61246));
  EXPECT_EQ(key, "Beschlag%d");
}

// A fresh folder of the running test alone, with the working directory in it.
class Paths : public testing::Test {
 protected:
  void SetUp() override {
    before_ = fs::current_path();
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::path(testing::TempDir()) / (std::string("lintavo_Paths") + test->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_ / "out");
    fs::current_path(folder_);
    document_.AddLine("[S]");
  }
  void TearDown() override {
    fs::current_path(before_);
    fs::remove_all(folder_);
  }

  fs::path before_;
  fs::path folder_;
  CIniFile document_;
};

TEST_F(Paths, TakeEitherSeparator) {
  EXPECT_EQ(document_.Write("out\\a.ini"), 1);
  EXPECT_TRUE(fs::is_regular_file("out/a.ini"));
  CIniFile read;
  EXPECT_EQ(read.Read("out\\a.ini"), 1);
  EXPECT_EQ(read.Read((folder_.string() + "\\out/a.ini").c_str()), 1);
  EXPECT_EQ(read.Read("out\\b.ini"), 0);
}

#ifndef _WIN32
TEST_F(Paths, PreferWhatIsNamedAsGiven) {
  // A folder that no separator names: the backslash is part of the file's name.
  EXPECT_EQ(document_.Write("neu\\a.ini"), 1);
  EXPECT_TRUE(fs::is_regular_file("neu\\a.ini"));
  fs::create_directory("neu");
  document_.AddLine("zweite");
  EXPECT_EQ(document_.Write("neu\\a.ini"), 1);
  EXPECT_FALSE(fs::exists("neu/a.ini"));
  CIniFile read;
  EXPECT_EQ(read.Read("neu\\a.ini"), 1);
  EXPECT_EQ(read.GetLines().size(), 2U);
}
#endif

TEST_F(Paths, OpenNoFolders) {
  CIniFile read;
  EXPECT_EQ(read.Read("out"), 0);
  EXPECT_EQ(read.Read(""), 0);
  EXPECT_EQ(document_.Write("out"), 0);
  EXPECT_EQ(document_.Write("fehlt/a.ini"), 0);
}

TEST(CSizeValue, StartsAtZero) {
  EXPECT_EQ(CSize{}, (CSize{0, 0}));
}

}  // namespace
