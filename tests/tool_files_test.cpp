// The `lintavo` command with files in several forms, several at once, and streams.
#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <zlib.h>

#include "support/PictureFile.h"
#include "support/Tool.h"

namespace lintavo::testing {
namespace {

namespace fs = std::filesystem;

// The text of a plain file as the compressed form holds it.
std::string WithCrLf(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return result;
}

std::string Compressed(const std::string& text) {
  uLongf length = compressBound(static_cast<uLong>(text.size()));
  std::string bytes(length, '\0');
  compress2(reinterpret_cast<Bytef*>(bytes.data()), &length,
            reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()), 9);
  bytes.resize(length);
  return bytes;
}

std::size_t CompressedSize(const std::string& text) {
  std::size_t size = 0;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) size += line.empty() ? 0 : line.size() + 2;
  return size;
}

class ToolFiles : public Tool {
 protected:
  // Each line exits with `status`, and its messages hold `message`.
  struct Row {
    std::string line;
    int status;
    std::string message;
  };

  void ExpectRows(std::initializer_list<Row> rows) const {
    for (const Row& row : rows) {
      const Outcome outcome = RunLine(row.line);
      EXPECT_EQ(outcome.status, row.status) << row.line << '\n' << outcome.err;
      EXPECT_TRUE(Contains(outcome.err, row.message)) << row.line << '\n' << outcome.err;
      EXPECT_EQ(row.message.empty(), outcome.err.empty()) << row.line << '\n' << outcome.err;
    }
  }

  void ExpectOutput(const std::string& line, const std::string& part) const {
    const Outcome outcome = RunLine(line);
    EXPECT_EQ(outcome.status, 0) << line << '\n' << outcome.err;
    EXPECT_TRUE(Contains(outcome.out, part)) << line << '\n' << outcome.out;
  }

  bool Exists(const std::string& name) const { return fs::exists(Path(name)); }
};

// The examples are written as the library writes, so the way through all forms and back
// gives the same bytes.
TEST_F(ToolFiles, FormsHoldTheSameLines) {
  int converted = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(kWindows)) {
    if (entry.path().extension() != ".aqz") continue;
    const Outcome outcome = RunLine(
        "f='" + entry.path().string() +
        "'; lintavo convert \"$f\" -o a.cqz && lintavo convert a.cqz --to buffer -o a.txt && "
        "lintavo convert a.txt -o b.aqz && cmp \"$f\" b.aqz");
    EXPECT_EQ(outcome.status, 0) << entry.path() << outcome.out << outcome.err;
    ++converted;
  }
  EXPECT_GT(converted, 20);
}

TEST_F(ToolFiles, ConvertingKeepsLinesThatMeanNothing) {
  Write("a.aqz", "; note\n" + ReadBytes(kFanlight) + "Unbekannt=1\n");
  ExpectOutput("lintavo convert a.aqz -o a.cqz && lintavo convert a.cqz --to aqz -o -",
               "Unbekannt=1\n");
}

TEST_F(ToolFiles, FormsThatCannotHoldAWindowAreRefused) {
  const std::string text = ReadBytes(kFanlight);
  const std::string name = "Name=Wohnzimmer mit Oberlicht";
  const auto renamed = [&](const std::string& line) {
    return std::string(text).replace(text.find(name), name.size(), line);
  };
  // As many bytes as the compressed form holds, with its line ends and without empty lines.
  std::string full = text;
  for (std::size_t rest = 10000 - CompressedSize(text); rest > 0;) {
    const std::size_t line = rest > 200 ? 100 : rest;
    full += std::string(line - 2, 'x') + "\n";
    rest -= line;
  }
  Write("voll.aqz", full);
  Write("lang.aqz", full + "x\n");
  Write("raute.aqz", renamed("Name=Nr. #5"));
  Write("muell.aqz", "no window");
  Write("zeile.cqz", Compressed(WithCrLf(renamed("Name=" + std::string(300, 'x')))));
  Write("lang.cqz", Compressed(WithCrLf(full + "x\n")));
  const std::string whole = Compressed(WithCrLf(text));
  Write("kurz.cqz", whole.substr(0, whole.size() / 2));
  Write("ende.cqz", Compressed(WithCrLf(text) + "Name=offen"));
  Write("ziel", "old");
  ExpectRows({
      {"lintavo convert voll.aqz -o voll.cqz && lintavo check voll.cqz", 0, ""},
      {"lintavo convert lang.aqz --to cqz -o ziel", 1, "the text has 10003 bytes"},
      {"lintavo fit lang.aqz 240 175 -o neu.cqz", 0, ""},
      {"lintavo convert raute.aqz --to buffer -o ziel", 1, "so none can hold it: Name=Nr. #5"},
      {"lintavo convert muell.aqz --to cqz -o ziel", 1, "muell.aqz: there is no window"},
      {"lintavo convert zeile.cqz --to aqz -o ziel", 1, "has 305 bytes; a plain file's lines"},
      {"lintavo convert lang.cqz --to aqz -o ziel", 1, "longer than the 10000 bytes"},
      {"lintavo check kurz.cqz", 1, "kurz.cqz: the compressed file is damaged"},
      {"lintavo check ende.cqz", 1, "the last line has no end and is not read: Name=offen"},
      {"lintavo check - <kurz.cqz", 1, "standard input: the compressed file is damaged"},
      {"lintavo convert fehlt.aqz --to cqz -o ziel", 1, "fehlt.aqz: the file cannot be read"},
      {"lintavo convert lang.aqz -o lang.aqz", 1, "would overwrite"},
  });
  EXPECT_EQ(ReadBytes(Path("ziel")), "old");
}

TEST_F(ToolFiles, StandardStreamsStandForFiles) {
  ExpectOutput("lintavo show - <\"$E/windows/drehkipp_einfluegelig.cqz\"", "Size    100 x 130");
  ExpectOutput("lintavo convert \"$E/windows/rundbogen.aqz\" --to buffer -o - | lintavo show -",
               "Size    100 x 150");
  ExpectOutput("cat '" + kFanlight + "' | lintavo show /dev/stdin", "Size    240 x 175");
  ExpectOutput("lintavo fit - 270 190 -o - <'" + kFanlight + "' | lintavo show -",
               "Size    270 x 190");
  ExpectOutput("lintavo set - Breite=250 -o - <'" + kFanlight + "' | lintavo check -",
               "standard input: ok, 250 x 175, 4 sashes");
  ExpectOutput(
      "lintavo position - --base \"$E\" -o - <\"$E/Positionen/kueche.txt\" >a && "
      "lintavo position \"$E/Positionen/kueche.txt\" --base \"$E\" -o b.aqz >/dev/null && "
      "cmp a b.aqz && echo same",
      "same");
  ExpectOutput("lintavo form - -o - <'" + kFanlight + "'", "[Allgemeines]");
  EXPECT_EQ(RunLine("lintavo draw - -o - --format png <'" + kFanlight + "'").out.substr(0, 4),
            "\x89PNG");
  // Nothing but the window is on that stream.
  ExpectOutput("lintavo fit '" + kFanlight + "' 260 175 -o c.aqz >/dev/null && lintavo fit '" +
                   kFanlight + "' 260 175 -o - | cmp - c.aqz && echo same",
               "same");
  ExpectRows({{"lintavo show -", 1, "standard input: there is no window in this file"},
              {"lintavo draw '" + kFanlight + "' -o - --format svg >/dev/full", 1,
               "standard output cannot be written"}});
}

TEST_F(ToolFiles, SetGivesNamedDimensionsNewLengths) {
  const std::string file = " '" + kFanlight + "' ";
  ExpectOutput("lintavo set" + file + "BREITE=250 hoehe=180", "Size    250 x 180");
  // The sign is kept: the fanlight is counted down from the top.
  ExpectOutput("lintavo set" + file + "Oberlicht=50", "Oberlicht     -50");
  ExpectOutput(
      "lintavo set \"$E/windows/balkontuer_mit_fenster.aqz\" TÜRBREITE=100 -o a.aqz && "
      "lintavo show a.aqz",
      "Türbreite     100");
  std::string latin = ReadBytes(kFanlight);
  latin.replace(latin.find("Name=Mitte"), 10, "Name=H\xf6he=1");
  Write("latin.aqz", latin);
  ExpectOutput("lintavo set latin.aqz 'höhe=1=110'", "Höhe=1        110");
  ExpectRows({
      {"lintavo set" + file + "Tiefe=5 -o a.txt", 1,
       "no dimension 'Tiefe'; it has Breite, Mitte, Hoehe, Oberlicht"},
      {"lintavo set" + file + "Oberlicht=500 -o a.txt", 1, "dreiteilig_mit_oberlicht.aqz: Die L"},
  });
  EXPECT_FALSE(Exists("a.txt"));
}

TEST_F(ToolFiles, OneBadFileStopsNoOther) {
  RunLine(
      "mkdir -p in/tief; cp \"$E\"/windows/rundbogen.aqz in/c.aqz; "
      "cp \"$E\"/windows/rundfenster.aqz in/A.AQZ; cp \"$E\"/windows/ellipse.aqz in/tief/");
  Write("in/b.aqz", "no window");
  Write("in/notes.txt", "no window either");
  const std::string fault = "lintavo: in/b.aqz: there is no window in this file\n";
  const std::string summary = "3 files: 2 done, 1 failed\n";

  const Outcome checked = RunLine("lintavo check in");
  EXPECT_EQ(checked.status, 1);
  EXPECT_EQ(checked.out, "in/A.AQZ: ok, 100 x 100, 1 sash\nin/c.aqz: ok, 100 x 150, 1 sash\n");
  EXPECT_EQ(checked.err, fault + summary);
  const Outcome quiet = RunLine("lintavo check in -q");
  EXPECT_EQ(quiet.out, "");
  EXPECT_EQ(quiet.err, fault);

  EXPECT_EQ(RunLine("lintavo draw in -o neu/").err, fault + summary);
  EXPECT_TRUE(Exists("neu/A.svg") && Exists("neu/c.svg") && !Exists("neu/b.svg"));
  EXPECT_EQ(RunLine("lintavo fit in 200x200 -r -o groesser/").status, 1);
  ExpectOutput("lintavo show groesser/tief/ellipse.aqz", "Size    200 x 200");
  ExpectOutput("lintavo show in/c.aqz in/A.AQZ", "\n\nFile    in/A.AQZ\nName ");
  EXPECT_EQ(RunLine("lintavo parts in").out, "");
}

TEST_F(ToolFiles, TargetsForSeveralFiles) {
  RunLine(
      "mkdir -p in leer da; cp \"$E\"/windows/drehkipp_einfluegelig.?qz in; "
      "cp \"$E\"/windows/rundbogen.aqz in");
  ExpectRows({
      {"lintavo draw in -o 'bild/{name}_innen.png' -q", 0, ""},
      {"lintavo form in -o da -q", 0, ""},
      {"lintavo convert in/rundbogen.aqz -o da --to cqz", 0, ""},
      {"lintavo position \"$E/Positionen\" --base \"$E\" -o da", 0, "3 files: all done"},
      {"lintavo draw in -o bild.png", 2, "several files cannot all be written to 'bild.png'"},
      {"lintavo fit in 100 150 -o bild.aqz", 2, "name a folder"},
      {"lintavo fit in/rundbogen.aqz in/rundbogen.aqz 100 150 -o da", 2, "two files would be"},
      {"lintavo check leer", 1, "leer: there is no .aqz or .cqz file in this folder"},
      {"lintavo check fehlt/", 1, "fehlt/"},
      {"lintavo draw in -o /dev/null/bild/ 2>err; test $(wc -l <err) = 1", 0, ""},
      {"lintavo fit in 100,5 150", 2, "'100,5' is no length greater than zero, decimals stand"},
      {"lintavo draw in/rundbogen.aqz -o in/rundbogen.aqz --format svg", 1, "would overwrite"},
  });
  for (const char* made :
       {"bild/rundbogen_innen.png", "bild/drehkipp_einfluegelig_innen.png",
        "bild/drehkipp_einfluegelig.cqz_innen.png", "da/rundbogen.txt",
        "da/drehkipp_einfluegelig.cqz.txt", "da/rundbogen.cqz", "da/kueche.aqz"}) {
    EXPECT_TRUE(Exists(made)) << made;
  }
  EXPECT_FALSE(Exists("bild.png"));
}

}  // namespace
}  // namespace lintavo::testing
