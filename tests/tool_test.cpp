// The `lintavo` command, run as a user runs it: output, messages, exit statuses.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/PictureFile.h"

namespace lintavo::testing {
namespace {

namespace fs = std::filesystem;

const std::string kWindows = LINTAVO_EXAMPLES_DIR "/windows/";
const std::string kFanlight = kWindows + "dreiteilig_mit_oberlicht.aqz";

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// Runs the command in a folder of its own, which is removed afterwards.
class Tool : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("lintavo_tool_" + std::to_string(getpid()));
    fs::create_directories(folder_);
  }

  void TearDown() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  // `arguments` are words for the shell.
  Outcome Run(const std::string& arguments, const std::string& environment = "") const {
    const std::string out = Path("stdout");
    const std::string err = Path("stderr");
    const std::string line = environment + " '" LINTAVO_TOOL "' " + arguments + " >'" + out +
                             "' 2>'" + err + "' </dev/null";
    const int raw = std::system(line.c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, ReadBytes(out), ReadBytes(err)};
  }

  // The command fails with one line on standard error that holds `message`.
  void ExpectError(const std::string& arguments, const std::string& message) const {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
    EXPECT_TRUE(Contains(outcome.err, message)) << outcome.err;
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
  }

 private:
  fs::path folder_;
};

TEST_F(Tool, ShowsPlainAndCompressedWindows) {
  const Outcome plain = Run("show '" + kFanlight + "'");
  EXPECT_EQ(plain.status, 0) << plain.err;
  EXPECT_TRUE(Contains(plain.out, "Name    Wohnzimmer mit Oberlicht\n")) << plain.out;
  EXPECT_TRUE(Contains(plain.out, "Size    240 x 175\n")) << plain.out;
  EXPECT_TRUE(Contains(plain.out, "width 7, thickness 6.8, 4 frame parts, 3 single parts"))
      << plain.out;
  EXPECT_TRUE(Contains(plain.out, "Fl\xc3\xbcgel links")) << plain.out;
  EXPECT_EQ(plain.err, "");

  const Outcome macro = Run("show '" + kWindows + "drehkipp_einfluegelig.aqz'");
  const Outcome compressed = Run("show '" + kWindows + "drehkipp_einfluegelig.cqz'");
  EXPECT_EQ(compressed.status, 0) << compressed.err;
  EXPECT_EQ(compressed.out, macro.out);
}

TEST_F(Tool, FitsAndWritesAWindow) {
  const std::string target = Path("fitted.aqz");
  const Outcome fitted = Run("fit '" + kFanlight + "' 270 190.5 -o '" + target + "'");
  EXPECT_EQ(fitted.status, 0) << fitted.err;
  EXPECT_TRUE(Contains(fitted.out, "Opening 270 x 190.5\n")) << fitted.out;
  EXPECT_TRUE(Contains(fitted.out, "Size    270 x 190.5\n")) << fitted.out;
  EXPECT_TRUE(Contains(fitted.out, target)) << fitted.out;

  const Outcome shown = Run("show '" + target + "'");
  EXPECT_EQ(shown.status, 0) << shown.err;
  EXPECT_TRUE(Contains(shown.out, "Size    270 x 190.5\n")) << shown.out;
}

TEST_F(Tool, NumbersAreIndependentOfTheLocale) {
  const std::string arguments = "fit '" + kFanlight + "' 270.5 190";
  const Outcome plain = Run(arguments);
  const Outcome german = Run(arguments, "LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8");
  EXPECT_EQ(german.status, 0) << german.err;
  EXPECT_EQ(german.out, plain.out);
}

TEST_F(Tool, DrawsPictures) {
  // Outer frame 240 x 175 in a picture 1600 wide with 64 margin on each side.
  const unsigned height = 1472u * 175 / 240 + 1 + 128;
  const std::string plain = "draw '" + kFanlight + "' --no-dims --no-symbols -o '";
  EXPECT_EQ(Run(plain + Path("a.png") + "'").status, 0);
  const PngSize png = ParsePng(ReadBytes(Path("a.png")));
  EXPECT_EQ(png.width, 1600u);
  EXPECT_EQ(png.height, height);

  EXPECT_EQ(Run(plain + Path("a.svg") + "'").status, 0);
  const SvgFile svg = ParseSvg(ReadBytes(Path("a.svg")));
  EXPECT_TRUE(svg.wellFormed);
  // Four frame parts, three mullions and transoms, four panes, and three sashes
  // with four parts each; the field in the middle has no frame of its own. Each of
  // the sashes has a handle of eleven lines and two hinges of six.
  EXPECT_EQ(svg.paths, 4 + 3 + 4 + 3 * 4 + 3 * (11 + 2 * 6));

  EXPECT_EQ(Run(plain + Path("a.pdf") + "'").status, 0);
  EXPECT_EQ(ReadBytes(Path("a.pdf")).compare(0, 5, "%PDF-"), 0);
}

TEST_F(Tool, DrawOptionsChooseWhatIsShown) {
  const auto draw = [&](const std::string& options) {
    const std::string target = Path("options.svg");
    const Outcome outcome = Run("draw '" + kFanlight + "' " + options + " -o '" + target + "'");
    EXPECT_EQ(outcome.status, 0) << options << ": " << outcome.err;
    return ParseSvg(ReadBytes(target));
  };
  // Four dimensions with a line, two extension lines, two arrowheads and a text each; two
  // turn-and-tilt symbols of four lines, one of two, and two lines for the fixed field.
  const SvgFile bare = draw("--no-dims --no-symbols");
  const SvgFile whole = draw("");
  EXPECT_EQ(whole.paths, bare.paths + 4 * 6 + 12);
  EXPECT_EQ(whole.dashed, 0);
  EXPECT_EQ(draw("--inside").paths, whole.paths);
  EXPECT_EQ(draw("--no-dims").paths, bare.paths + 12);
  EXPECT_EQ(draw("--no-symbols").paths, bare.paths + 4 * 6);
  // From outside the fittings are hidden and all but the fixed field's lines dashed.
  const SvgFile outside = draw("--outside");
  EXPECT_EQ(outside.dashed, 10);
  EXPECT_EQ(outside.paths, whole.paths - 3 * (11 + 2 * 6));
  EXPECT_EQ(draw("--hidden-line --outside --no-dims").dashed, 10);
}

TEST_F(Tool, DrawsAWindowFittedFirst) {
  const Outcome drawn =
      Run("draw '" + kFanlight + "' --fit 200x200 --no-dims -o '" + Path("a.png") + "'");
  EXPECT_EQ(drawn.status, 0) << drawn.err;
  const PngSize png = ParsePng(ReadBytes(Path("a.png")));
  EXPECT_EQ(png.width, 1600u);
  EXPECT_EQ(png.height, 1600u);
}

TEST_F(Tool, DrawsEveryExample) {
  int drawn = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(kWindows)) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".aqz" && ending != ".cqz") continue;
    const Outcome outcome =
        Run("draw '" + entry.path().string() + "' -o '" + Path("example.svg") + "'");
    EXPECT_EQ(outcome.status, 0) << entry.path() << ": " << outcome.err;
    EXPECT_GE(ParseSvg(ReadBytes(Path("example.svg"))).paths, 2) << entry.path();
    ++drawn;
  }
  EXPECT_GT(drawn, 10);
}

TEST_F(Tool, FilesThatCannotBeOpenedAreNamed) {
  const std::string missing = Path("nicht_da.aqz");
  ExpectError("show '" + missing + "'", "Die Datei '" + missing + "' ist nicht vorhanden !");
  ExpectError("show '" + Path("nicht_da.cqz") + "'", Path("nicht_da.cqz"));
  ExpectError("fit '" + missing + "' 100 100", missing);
  ExpectError("draw '" + missing + "' -o '" + Path("a.png") + "'", missing);
  ExpectError("fit '" + kFanlight + "' 200 200 -o /no/such/folder/a.aqz",
              "/no/such/folder/a.aqz: the file cannot be written");
  ExpectError("draw '" + kFanlight + "' -o /no/such/folder/a.png",
              "/no/such/folder/a.png: the file cannot be written");
}

TEST_F(Tool, WindowsThatCannotBeCalculatedAreRefused) {
  std::ofstream(Path("leer.aqz")) << "[Allgemeines]\nName=Leer\n";
  std::ofstream(Path("muell.cqz")) << "no zlib stream";
  ExpectError("show '" + Path("leer.aqz") + "'", "leer.aqz: there is no window in this file");
  ExpectError("draw '" + Path("muell.cqz") + "' -o '" + Path("a.svg") + "'", Path("muell.cqz"));
  EXPECT_FALSE(fs::exists(Path("a.svg")));
}

TEST_F(Tool, OpeningsThatAWindowCannotTakeAreRefused) {
  const std::string target = Path("zu_klein.aqz");
  ExpectError("fit '" + kFanlight + "' 20 20 -o '" + target + "'",
              "dreiteilig_mit_oberlicht.aqz: Die L\xc3\xa4nge des Zusatzma\xc3\x9f"
              "es");
  EXPECT_FALSE(fs::exists(target));

  std::string macro = ReadBytes(kFanlight);
  for (std::size_t i = macro.find("[Masz"); i != std::string::npos; i = macro.find("[Masz", i)) {
    macro.replace(i, 5, "[Ohne");
  }
  std::ofstream(Path("ohne_masze.aqz"), std::ios::binary) << macro;
  ExpectError("draw '" + Path("ohne_masze.aqz") + "' --fit 200x200 -o '" + Path("a.svg") + "'",
              "no dimensions for its overall width and height");
}

TEST_F(Tool, OutputThatCannotBeWrittenIsAnError) {
  const std::string line = "'" LINTAVO_TOOL "' show '" + kFanlight + "' >/dev/full 2>/dev/null";
  const int raw = std::system(line.c_str());
  ASSERT_TRUE(WIFEXITED(raw));
  EXPECT_EQ(WEXITSTATUS(raw), 1);
}

TEST_F(Tool, WrongUsageEndsWithTwo) {
  const std::string file = "'" + kFanlight + "'";
  for (const std::string& arguments :
       {std::string(), std::string("show"), std::string("unknown ") + file,
        "show " + file + " more", "fit " + file + " 100", "fit " + file + " 100 0",
        "fit " + file + " 100 -5", "fit " + file + " 100,5 100", "fit " + file + " nan 100",
        "fit " + file + " 1e999 100", "fit " + file + " 100 100 -o a.CQZ", "draw " + file,
        "draw " + file + " -o a.gif", "draw " + file + " -o a.png --fit 100",
        "draw " + file + " -o a.png --fit 100x0",
        "draw " + file + " -o a.png --inside --outside"}) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_NE(outcome.err, "") << arguments;
  }
}

TEST_F(Tool, HelpAndVersionAreNoErrors) {
  const Outcome help = Run("--help");
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"show", "fit", "draw"}) EXPECT_TRUE(Contains(help.out, command));
  EXPECT_EQ(Run("fit --help").status, 0);
  EXPECT_EQ(Run("--version").out, "lintavo 1.0.0\n");
}

}  // namespace
}  // namespace lintavo::testing
