// The document: what a file becomes, what is found where, what is written.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/ini/CIniFile.h"
#include "lintavo/resources/StringTable.h"

namespace {

using Lines = std::vector<std::string>;

// A file of the running test alone, since tests run side by side.
std::string FilePath() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  return testing::TempDir() + "lintavo_" + test->test_suite_name() + test->name() + ".ini";
}

// Reads a text through a file into a document.
void ReadText(CIniFile& document, const std::string& bytes) {
  std::ofstream(FilePath(), std::ios::binary) << bytes;
  ASSERT_EQ(document.Read(FilePath()), 1);
  std::filesystem::remove(FilePath());
}

Lines LinesOf(const CIniFile& document) {
  Lines lines;
  for (const CString& line : document.GetLines()) lines.emplace_back(line.View());
  return lines;
}

Lines LinesOf(const std::string& bytes) {
  CIniFile document;
  ReadText(document, bytes);
  return LinesOf(document);
}

CIniFile Document(const Lines& lines) {
  CIniFile document;
  for (const std::string& line : lines) document.AddLine(line);
  return document;
}

// The value of a key, or "-" where the getter answers 0.
std::string Get(CIniFile& document, const char* section, const char* key) {
  CString value = "-";
  const int found = document.GetString(section, key, value);
  EXPECT_EQ(found, value == "-" ? 0 : 1);
  return std::string(value.View());
}

void Set(CIniFile& document, CString section, const char* key, const char* value) {
  EXPECT_EQ(document.SetString(section, key, value), 1);
}

TEST(IniRead, TrimsLinesAndDropsBlankOnes) {
  EXPECT_EQ(LinesOf(" [A] \r\n\r\n\t\n x = 1 \n;c\nlast"), (Lines{"[A]", "x = 1", ";c", "last"}));
  CIniFile blank;
  ReadText(blank, "\n \r\n\t\v\f\n");
  EXPECT_EQ(blank.IsReading(), 0);
  EXPECT_EQ(blank.GetCntSections(), 0);
}

TEST(IniRead, SplitsLongLinesAt255Characters) {
  const std::string digits(255, '1');
  EXPECT_EQ(LinesOf(digits + "\n2\n"), (Lines{digits, "2"}));
  EXPECT_EQ(LinesOf(std::string(300, 'a') + "\n"),
            (Lines{std::string(255, 'a'), std::string(45, 'a')}));
  // Leading blanks belong to the piece that they fill; a piece of blanks only
  // is dropped, and the rest of the line may become a header.
  EXPECT_EQ(LinesOf(std::string(255, ' ') + "[A]\n"), (Lines{"[A]"}));
  EXPECT_EQ(LinesOf(std::string("a").append(254, ' ') + " b\n"), (Lines{"a", "b"}));
}

TEST(IniRead, CutsAPieceAtAZeroByte) {
  const std::string zero(1, '\0');
  EXPECT_EQ(LinesOf("a=1" + zero + "lost\nb=2\n"), (Lines{"a=1", "b=2"}));
  EXPECT_EQ(LinesOf(zero + "lost\nb=2\n" + zero), (Lines{"b=2"}));
  // What is lost ends with the piece: 255 bytes further the line goes on.
  EXPECT_EQ(LinesOf("a" + zero + std::string(253, 'x') + "rest\n"), (Lines{"a", "rest"}));
}

TEST(IniRead, GivesTheSameLinesWhateverTheBlocks) {
  // Lines of every length over a file much longer than any block.
  std::string bytes;
  Lines expected;
  for (std::size_t i = 0; i < 2000; ++i) {
    const std::string line(1 + (i * 37) % 255, static_cast<char>('a' + i % 26));
    bytes += line + "\n";
    expected.push_back(line);
  }
  EXPECT_EQ(LinesOf(bytes), expected);
}

// Two bytes each, a line takes sixteen times that in memory.
TEST(IniRead, AMillionLinesAreReadAndNotOneMore) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += i % 2 == 0 ? "x\n" : "[\n";
  CIniFile document;
  ReadText(document, text);
  EXPECT_EQ(document.GetLines().size(), 1'000'000U);
  std::ofstream(FilePath()) << "x\n";
  EXPECT_EQ(document.Read(FilePath()), 0);
  std::filesystem::remove(FilePath());
  EXPECT_EQ(document.GetLines().size(), 1'000'000U);
  EXPECT_EQ(document.GetCntSections(), 500'000);
}

TEST(IniRead, AddsASecondFile) {
  CIniFile document;
  ReadText(document, "[A]\nx=1\n[B]\n");
  ReadText(document, "[C]\n");
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=1", "[B]", "[C]"}));
  EXPECT_EQ(document.GetCntSections(), 3);
  EXPECT_EQ(document.Read("/missing/file.ini"), 0);
  EXPECT_EQ(document.IsReading(), 1);
}

TEST(IniRead, IsLinearInFileAndLookups) {
  constexpr int kSections = 25000;
  constexpr int kKeys = 15;
  std::vector<CString> sections;
  std::vector<CString> keys;
  sections.reserve(kSections);
  keys.reserve(kKeys);
  for (int s = 0; s < kSections; ++s) sections.push_back(lintavo::NumberedName("Fluegel", s));
  for (int k = 0; k < kKeys; ++k) keys.push_back(lintavo::NumberedName("R", k));
  std::ostringstream bytes;
  for (const CString& section : sections) {
    bytes << '[' << section << "]\n";
    for (const CString& key : keys) bytes << key << "=10,20,1,2,1,2,40\n";
  }
  const auto start = std::chrono::steady_clock::now();
  CIniFile document;
  ReadText(document, bytes.str());
  CString value;
  int found = 0;
  for (const CString& section : sections) {
    for (const CString& key : keys) found += document.GetString(section, key, value);
  }
  EXPECT_EQ(found, kSections * kKeys);
  // In falling order too, with whatever stands between.
  for (auto section = sections.rbegin(); section != sections.rend(); ++section) {
    found -= document.GetString(*section, keys.front(), value) * kKeys;
  }
  EXPECT_EQ(found, 0);
  // Milliseconds when linear; minutes when each lookup starts at the top.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(IniLookup, IgnoresCaseButNoBlanks) {
  CIniFile document = Document({"[Flügel]", "breite=12", "Höhe =5", " Tiefe=3", "[ Masze ]"});
  EXPECT_EQ(document.FindSection("FLÜGEL"), 0);
  EXPECT_EQ(document.FindSection("Masze"), -1);
  EXPECT_EQ(document.FindSection(" Masze "), 4);
  EXPECT_EQ(Get(document, "flügel", "BREITE"), "12");
  EXPECT_EQ(Get(document, "flügel", "Höhe"), "-");
  EXPECT_EQ(Get(document, "flügel", "Tiefe"), "-");
  EXPECT_EQ(Get(document, "flügel", "Breit"), "-");
}

TEST(IniLookup, KeepsLeadingBlanksAndTakesEmptyForMissing) {
  CIniFile document = Document({"[A]", "x= 1 = 2 \t", "leer=", "blank=  ", "=ohne"});
  EXPECT_EQ(Get(document, "A", "x"), " 1 = 2");
  EXPECT_EQ(Get(document, "A", "leer"), "-");
  EXPECT_EQ(Get(document, "A", "blank"), "-");
  EXPECT_EQ(Get(document, "A", ""), "ohne");
}

TEST(IniLookup, StaysInsideTheSection) {
  CIniFile document = Document({"[A]", "x=1", "[B]", "y=2", "[A]", "z=3"});
  EXPECT_EQ(Get(document, "A", "y"), "-");
  EXPECT_EQ(Get(document, "B", "y"), "2");
  EXPECT_EQ(Get(document, "B", "z"), "-");
}

TEST(IniLookup, AnswersForMissingSectionsFromBeforeTheFirstHeader) {
  CIniFile document = Document({"x=0", "[A]", "y=1"});
  EXPECT_EQ(Get(document, "Fehlt", "x"), "0");
  EXPECT_EQ(Get(document, "Fehlt", "y"), "-");
  EXPECT_EQ(Get(document, "A", "x"), "-");
}

TEST(IniLookup, FindsTheNextOfEqualHeadersInFileOrder) {
  CIniFile document = Document({"[A]", "x=1", "[B]", "x=2", "[A]", "x=3"});
  EXPECT_EQ(document.FindSection("A"), 0);
  EXPECT_EQ(Get(document, "B", "x"), "2");
  EXPECT_EQ(document.FindSection("A"), 4);
}

// Of headers with one name, and whatever was searched before: the first at or behind the
// end of the section last read, else the first of all.
TEST(IniLookup, FindsTheSameSectionHoweverOftenItIsAsked) {
  std::mt19937 dice(4711);
  const char* const names[] = {"A", "b", "AB", "ä", "Ä", "a", "B", "C]", "missing"};
  CIniFile document;
  for (int i = 0; i < 60; ++i) {
    document.AddLine(dice() % 3 == 0 ? CString("x=1") : CString("[") + names[dice() % 8] + "]");
  }
  const std::vector<CString>& lines = document.GetLines();
  const long count = static_cast<long>(lines.size());
  const auto first = [&](long from, auto matches) {
    while (from < count && !matches(lines[static_cast<std::size_t>(from)])) ++from;
    return from < count ? from : -1;
  };
  CString last;
  long at = -1;
  long end = -1;
  for (int i = 0; i < 500; ++i) {
    const CString name = names[dice() % 9];
    if (last.CompareNoCase(name) != 0) {
      const auto isIt = [&](const CString& line) {
        return line.CompareNoCase("[" + name + "]") == 0;
      };
      const long behind = end > 1 ? first(end, isIt) : -1;
      const long found = behind >= 0 ? behind : first(0, isIt);
      end = -1;
      if (found >= 0) last = name;
      if (found >= 0) at = found;
      ASSERT_EQ(document.FindSection(name), found) << i;
    }
    if (dice() % 2 == 0 || last.CompareNoCase(name) != 0) continue;
    CString value;
    document.GetString(name, "none", value);
    if (end < 0) end = first(at + 1, [](const CString& line) { return line.Left(1) == "["; });
    if (end < 0) end = count - 1;
  }
}

TEST(IniLookup, TriesTheLineBehindTheLastEntryFirst) {
  CIniFile document = Document({"[A]", "x=1", "y=2", "x=3"});
  EXPECT_EQ(Get(document, "A", "x"), "1");
  EXPECT_EQ(Get(document, "A", "y"), "2");
  EXPECT_EQ(Get(document, "A", "x"), "3");
  EXPECT_EQ(Get(document, "A", "x"), "1");
}

TEST(IniLookup, KeepsTheSectionEndOfAMissingSection) {
  // Asking for a missing section leaves the first header as the known end; the
  // section found before is then empty until another one is searched.
  CIniFile document = Document({"[A]", "x=1", "[B]", "y=2"});
  EXPECT_EQ(Get(document, "B", "y"), "2");
  EXPECT_EQ(Get(document, "Fehlt", "y"), "-");
  EXPECT_EQ(Get(document, "B", "y"), "-");
  EXPECT_EQ(Get(document, "A", "x"), "1");
  EXPECT_EQ(Get(document, "B", "y"), "2");
}

TEST(IniLookup, CopiesWhatItRemembers) {
  CIniFile document = Document({"[A]", "x=1", "y=2", "x=3"});
  EXPECT_EQ(Get(document, "A", "y"), "2");
  CIniFile copy(document);
  CIniFile assigned;
  assigned = document;
  EXPECT_EQ(Get(copy, "A", "x"), "3");
  EXPECT_EQ(Get(assigned, "A", "x"), "3");
}

TEST(IniLookup, SurvivesAnEmptyDocument) {
  CIniFile document;
  EXPECT_EQ(document.FindSection(""), -1);
  EXPECT_EQ(Get(document, "", ""), "-");
  EXPECT_EQ(Get(document, "A", "x"), "-");
  EXPECT_EQ(document.IsReading(), 0);
}

TEST(IniSet, FillsAFreshDocumentInOrder) {
  CIniFile document;
  for (const char* section : {"A", "B"}) {
    for (const char* key : {"x", "y", "z"}) Set(document, section, key, "1");
  }
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=1", "y=1", "z=1", "[B]", "x=1", "y=1", "z=1"}));
  EXPECT_EQ(document.GetCntSections(), 0);
}

TEST(IniSet, InsertsBeforeTheNextHeaderAndReplacesInPlace) {
  CIniFile document = Document({"[A]", "x=1", "[B]", "y=2"});
  Set(document, "a", "neu", "3");
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=1", "neu=3", "[B]", "y=2"}));
  Set(document, "B", "Y", "");
  Set(document, "B", "z", " 4 ");
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=1", "neu=3", "[B]", "Y=", "z= 4 "}));
}

TEST(IniSet, TrimsTheTextOfANewSection) {
  CIniFile document;
  CString section = " \tMasze ";
  document.SetString(section, "B", "1");
  EXPECT_EQ(section, "Masze");
  EXPECT_EQ(LinesOf(document), (Lines{"[Masze]", "B=1"}));
  CString known = "Masze ";
  document.SetString(known, "B", "2");
  EXPECT_EQ(known, "Masze");
}

TEST(IniSet, DoesNotFindTheEntryItHasJustAdded) {
  CIniFile document = Document({"[A]", "[B]"});
  Set(document, "A", "x", "1");
  Set(document, "A", "x", "2");
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=1", "x=2", "[B]"}));
  // Another section in between, and the entry is known.
  document.FindSection("B");
  Set(document, "A", "x", "3");
  EXPECT_EQ(LinesOf(document), (Lines{"[A]", "x=3", "x=2", "[B]"}));
}

TEST(IniWrite, SetsSectionsApart) {
  const CIniFile document = Document({"a=1", "[S]", "b=2", "[T]"});
  EXPECT_EQ(document.Write(FilePath()), 1);
  // Read as text: line ends are the system's own.
  const auto written = [] {
    std::ostringstream text;
    text << std::ifstream(FilePath()).rdbuf();
    return text.str();
  };
  EXPECT_EQ(written(), "a=1\n\n[S]\nb=2\n\n[T]\n");
  CIniFile again;
  EXPECT_EQ(again.Read(FilePath()), 1);
  EXPECT_EQ(LinesOf(again), LinesOf(document));
  EXPECT_EQ(Document({"[S]"}).Write(FilePath()), 1);
  EXPECT_EQ(written(), "[S]\n");
  std::filesystem::remove(FilePath());
}

TEST(IniFile, IsEmptyWhenMovedFrom) {
  CIniFile first = Document({"a=1", "[S]", "b=2"});
  CString value;
  EXPECT_EQ(first.GetString("S", "b", value), 1);
  CIniFile second = std::move(first);
  EXPECT_EQ(first.GetString("S", "b", value), 0);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(second.GetString("S", "b", value), 1);
  first = std::move(second);
  EXPECT_EQ(second.GetString("S", "b", value), 0);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(second.IsReading(), 0);
  EXPECT_EQ(first.GetString("S", "b", value), 1);
}

}  // namespace
