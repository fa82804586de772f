// The `lintavo` command, run as a user runs it: output, messages, exit statuses.
#include "support/Tool.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "support/PictureFile.h"

namespace lintavo::testing {
namespace {

namespace fs = std::filesystem;

// An SVG file with all its attributes as name:value, in whichever of the two forms that
// SVG allows they stand.
std::string Attributes(std::string svg) {
  std::erase_if(svg, [](char c) { return c == ' ' || c == '"'; });
  std::replace(svg.begin(), svg.end(), '=', ':');
  return svg;
}

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
  // the sashes has a handle and two hinges, of a surface and its lines each.
  EXPECT_EQ(svg.Count(), 4 + 3 + 4 + 3 * 4 + 3 * 3 * 2 + 1);
  EXPECT_EQ(svg.Count("umriss"), 1);

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
  EXPECT_EQ(whole.Count(), bare.Count() + 4 * 6 + 12);
  EXPECT_EQ(whole.Dashed(), 0);
  EXPECT_EQ(draw("--inside").Count(), whole.Count());
  EXPECT_EQ(draw("--no-dims").Count(), bare.Count() + 12);
  EXPECT_EQ(draw("--no-symbols").Count(), bare.Count() + 4 * 6);
  // From outside the fittings, of two paths each, are hidden and all but the fixed field's lines
  // dashed.
  const SvgFile outside = draw("--outside");
  EXPECT_EQ(outside.Dashed(), 10);
  EXPECT_EQ(outside.Count(), whole.Count() - 3 * 3 * 2);
  EXPECT_EQ(draw("--hidden-line --outside --no-dims").Dashed(), 10);
}

TEST_F(Tool, DrawsAWindowFittedFirst) {
  const Outcome drawn =
      Run("draw '" + kFanlight + "' --fit 200x200 --no-dims -o '" + Path("a.png") + "'");
  EXPECT_EQ(drawn.status, 0) << drawn.err;
  const PngSize png = ParsePng(ReadBytes(Path("a.png")));
  EXPECT_EQ(png.width, 1600u);
  EXPECT_EQ(png.height, 1600u);
}

TEST_F(Tool, ASectionValueBelowItsSidesTakesAnArchApart) {
  const std::string form = "form '" + kWindows + "rundbogen.aqz' -o - ";
  EXPECT_GT(Run(form + "--section 1").out.size(), Run(form).out.size());
  EXPECT_EQ(Run(form + "--section 100").out, Run(form).out);
}

TEST_F(Tool, DrawsEveryExample) {
  int drawn = 0;
  for (const fs::directory_entry& entry : fs::directory_iterator(kWindows)) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".aqz" && ending != ".cqz") continue;
    const Outcome outcome =
        Run("draw '" + entry.path().string() + "' -o '" + Path("example.svg") + "'");
    EXPECT_EQ(outcome.status, 0) << entry.path() << ": " << outcome.err;
    EXPECT_GE(ParseSvg(ReadBytes(Path("example.svg"))).Count(), 2) << entry.path();
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

TEST_F(Tool, AFullDiskLeavesTheOldFilesUntouched) {
  const std::string target = Path("alt.svg");
  for (const std::string& command :
       {"draw '" + kFanlight + "'", "fit '" + kFanlight + "' 240 175", "form '" + kFanlight + "'",
        "convert '" + kFanlight + "' --to aqz",
        "position '" + kExamples + "Positionen/diele.txt' --base '" + kExamples + "'"}) {
    std::ofstream(target) << "old content";
    // Files may have 512 or 1024 bytes in this shell, depending on which it is.
    const std::string full = "'" LINTAVO_TOOL "' " + command + " -o '" + target + "' 2>'" +
                             Path("stderr") + "' >/dev/null";
    const int raw = std::system(("trap '' XFSZ; ulimit -f 1; " + full).c_str());
    EXPECT_TRUE(WIFEXITED(raw) && WEXITSTATUS(raw) == 1) << command;
    EXPECT_EQ(
        ReadBytes(Path("stderr")),
        "lintavo: " + target + ": the file cannot be written; what it held before is untouched\n");
    EXPECT_EQ(ReadBytes(target), "old content");
    const fs::directory_iterator folder(Path(""));
    EXPECT_EQ(std::distance(begin(folder), end(folder)), 2) << "the target and the message";
  }
}

TEST_F(Tool, MakesTheWindowOfAParameterFile) {
  // As the examples' page tells: with the parts outside, 185 x 171.
  const std::string target = Path("schlafzimmer.aqz");
  const Outcome made = Run("position '" + kExamples + "Positionen/schlafzimmer.txt' --base '" +
                           kExamples + "' -o '" + target + "'");
  EXPECT_EQ(made.status, 0) << made.err;
  EXPECT_TRUE(Contains(made.out, "Size    185 x 171\n")) << made.out;
  EXPECT_TRUE(Contains(made.out, "Written to " + target)) << made.out;
  const Outcome shown = Run("show '" + target + "'");
  EXPECT_EQ(shown.status, 0) << shown.err;
  EXPECT_EQ(made.out, shown.out + "\nWritten to " + target + "\n");

  const Outcome unsaved =
      Run("position '" + kExamples + "Positionen/schlafzimmer.txt' --base '" + kExamples + "'");
  EXPECT_EQ(unsaved.status, 0) << unsaved.err;
  EXPECT_EQ(unsaved.out, shown.out);
}

TEST_F(Tool, ParameterFilesThatGiveNoWindowAreRefused) {
  const auto position = [&](const std::string& file) {
    return "position '" + file + "' --base '" + kExamples + "'";
  };
  const auto write = [&](const std::string& name, const std::string& text) {
    std::ofstream(Path(name), std::ios::binary) << text;
    return Path(name);
  };
  ExpectError(position(Path("fehlt.txt")), "Die Datei '" + Path("fehlt.txt") + "'");
  const std::string ohneTyp = write("ohne_typ.txt", "[Allgemeines]\nText1=Bad\n");
  ExpectError(position(ohneTyp), "lintavo: " + ohneTyp + ": ");
  const std::string fremd = write("fremd.txt", "[Allgemeines]\nTyp=Gibt es nicht\n");
  ExpectError(position(fremd), fremd + ": Die Datei '" + kExamples);
  const std::string muster =
      write("muster.txt",
            "[Allgemeines]\nTyp=Einfluegelig\n[Fluegel1]\nSprossenbild1=Kein Muster,1,2,1,2\n");
  ExpectError(position(muster), muster + ": ");
  ExpectError(position(muster) + " -o '" + Path("a.aqz") + "'", "muster.txt");
  EXPECT_FALSE(fs::exists(Path("a.aqz")));

  const std::string kitchen = position(kExamples + "Positionen/kueche.txt");
  ExpectError(kitchen + " -o /no/such/folder/a.aqz",
              "/no/such/folder/a.aqz: the file cannot be written");
  const std::string kueche = ReadBytes(kExamples + "Positionen/kueche.txt");
  const std::string own = write("kueche.txt", kueche);
  ExpectError(position(own) + " -o '" + own + "'", "would overwrite");
  EXPECT_EQ(ReadBytes(own), kueche);
}

TEST_F(Tool, AFormFilledInIsAPosition) {
  const std::string form = Path("Formular");
  const Outcome written = Run("form '" + kExamples + "Fenster/Einfluegelig.ini' -o '" + form + "'");
  EXPECT_EQ(written.status, 0) << written.err;
  EXPECT_EQ(written.out, "");
  std::string text = ReadBytes(form);
  EXPECT_TRUE(Contains(text, "Typ=Einfluegelig\n")) << text;
  // 100 x 130 in tenths; the form's sample is a pattern that no folder has.
  const std::size_t width = text.find("Breite=1000\n");
  ASSERT_NE(width, std::string::npos) << text;
  text.replace(width, 11, "Breite=1200");
  const std::size_t sample = text.find("Sprossenbild1=");
  ASSERT_NE(sample, std::string::npos);
  text.erase(sample, text.find('\n', sample) + 1 - sample);
  std::ofstream(form, std::ios::binary) << text;
  const Outcome made = Run("position '" + form + "' --base '" + kExamples + "'");
  EXPECT_EQ(made.status, 0) << made.err;
  EXPECT_TRUE(Contains(made.out, "Size    120 x 130\n")) << made.out;

  const std::string packed = "form '" + kWindows + "drehkipp_einfluegelig.cqz' -o '";
  EXPECT_EQ(Run(packed + form + "'").status, 0);
  EXPECT_TRUE(Contains(ReadBytes(form), "Typ=drehkipp_einfluegelig\n"));
  ExpectError(packed + "/no/such/folder/f.txt'", "/no/such/folder/f.txt: the file cannot be");
  ExpectError("form '" + Path("fehlt.aqz") + "' -o '" + Path("f.txt") + "'", "fehlt.aqz");
  EXPECT_FALSE(fs::exists(Path("f.txt")));
  fs::copy_file(kFanlight, Path("eigen.aqz"));
  ExpectError("form '" + Path("eigen.aqz") + "' -o '" + Path("eigen.aqz") + "'", "would overwrite");
  EXPECT_EQ(ReadBytes(Path("eigen.aqz")), ReadBytes(kFanlight));
}

TEST_F(Tool, PicturesTakeColoursPensAndSizesFromFiles) {
  // Attributes stand as a3, a1, a4, a2: frame 1 inside and 2 outside, sash 3 and 9.
  std::string macro = ReadBytes(kWindows + "drehkipp_einfluegelig.aqz");
  const auto replace = [&](const std::string& from, const std::string& to) {
    for (std::size_t i = macro.find(from); i != std::string::npos; i = macro.find(from, i + 1)) {
      macro.replace(i, from.size(), to);
    }
  };
  replace("=7,0,1,2,1,2,6.8", "=7,0,5,1,5,2,6.8");
  replace("=7.8,1.5,1,3,1,3,6.8", "=7.8,1.5,5,3,5,9,6.8");
  std::ofstream(Path("a.aqz"), std::ios::binary) << macro;
  std::ofstream(Path("m.ini")) << "[Bauteil1]\nRGB2d=255,0,0\n[Bauteil2]\nRGB2d=0,255,0\n"
                                  "[Bauteil3]\nRGB2d=0,0,255\n"
                                  "[Oeffnungssymbol1]\nRGB2d=255,255,0\n"
                                  "[Vermaszung1]\nRGB2d=0,255,255\n"
                                  "[Vermaszung2]\nRGB2d=255,0,255\n";
  std::ofstream(Path("s.ini")) << "[Stiftbreiten]\nOeffnungssymbole=4\n";
  const auto draw = [&](const std::string& options) {
    const Outcome outcome =
        Run("draw '" + Path("a.aqz") + "' -o '" + Path("a.svg") + "' " + options);
    EXPECT_EQ(outcome.status, 0) << options << ": " << outcome.err;
    return Attributes(ReadBytes(Path("a.svg")));
  };
  const std::string red = "#ff0000";
  const std::string green = "#00ff00";
  const std::string blue = "#0000ff";
  const std::string plain = draw("");
  for (const std::string& colour : {red, green, blue}) EXPECT_FALSE(Contains(plain, colour));

  const std::string materials = "--materials '" + Path("m.ini") + "'";
  const std::string inside = draw(materials);
  for (const std::string& colour :
       {red, blue, std::string("#ffff00"), std::string("#00ffff"), std::string("#ff00ff")}) {
    EXPECT_TRUE(Contains(inside, colour)) << colour;
  }
  EXPECT_FALSE(Contains(inside, green));
  // There is no ninth material: the sash has its usual colour.
  const std::string outside = draw(materials + " --outside");
  EXPECT_TRUE(Contains(outside, green));
  EXPECT_FALSE(Contains(outside, red));
  EXPECT_FALSE(Contains(outside, blue));

  // Pens are shares of the usual width, 0.25 mm of a side of 297 that has 1600: four times.
  const std::string thick = "stroke-width:5.387";
  EXPECT_FALSE(Contains(plain, thick));
  EXPECT_TRUE(Contains(draw("--settings '" + Path("s.ini") + "'"), thick));

  const std::string command = "draw '" + Path("a.aqz") + "' -o '" + Path("b.svg") + "' ";
  ExpectError(command + "--settings '" + Path("x.ini") + "'", "x.ini: the file cannot be opened");
  ExpectError(command + "--materials '" + Path("x.ini") + "'", "x.ini: the file cannot be opened");
  EXPECT_FALSE(fs::exists(Path("b.svg")));
}

TEST_F(Tool, ListsAndExportsComeWholeOrNotAtAll) {
  const std::string good = "'" + kFanlight + "'";
  for (const std::string command : {"parts ", "export "}) {
    ExpectError(command + good + " missing.aqz", "missing.aqz");
    ExpectError(command + good + " -o no/folder/list", "no/folder/list");

    const std::string copy = Path("copy.aqz");
    fs::copy_file(kFanlight, copy, fs::copy_options::overwrite_existing);
    ExpectError(command + "'" + copy + "' -o '" + copy + "'", "would overwrite");
    EXPECT_EQ(ReadBytes(copy), ReadBytes(kFanlight));

    const std::string target = Path("list");
    const Outcome plain = Run(command + good);
    EXPECT_EQ(plain.status, 0) << plain.err;
    EXPECT_EQ(Run(command + good + " -o '" + target + "'").out, "");
    EXPECT_EQ(ReadBytes(target), plain.out);
    EXPECT_EQ(Run(command + good, "LC_ALL=de_DE.UTF-8").out, plain.out);
    EXPECT_EQ(Run(command + good + " -q -o '" + Path("each-{name}") + "'").status, 0);
    EXPECT_EQ(ReadBytes(Path("each-dreiteilig_mit_oberlicht")), plain.out);
  }
  const std::string list = "parts --format csv " + good;
  const std::string csv = Run(list).out;
  EXPECT_EQ(csv.compare(0, 7, "Anzahl;"), 0) << csv;
  EXPECT_EQ(Run(list + " --bom").out, "\xEF\xBB\xBF" + csv);
  EXPECT_TRUE(Contains(Run(list + " --scale 10 --lang en").out, "\n2,sash frame,365,365,78,,68,"));
  for (const char* wrong : {" --rebate nan", " --scale 0", " --format xls", " --decimal ,"}) {
    EXPECT_EQ(Run(list + wrong).status, 2) << wrong;
  }
}

TEST_F(Tool, WrongUsageEndsWithTwo) {
  const std::string file = "'" + kFanlight + "'";
  for (const std::string& arguments : {std::string(),
                                       std::string("show"),
                                       std::string("unknown ") + file,
                                       "fit " + file + " 100",
                                       "fit " + file + " 100 0",
                                       "fit " + file + " 100 -5",
                                       "fit " + file + " 100,5 100",
                                       "fit " + file + " nan 100",
                                       "fit " + file + " 1e999 100",
                                       "draw " + file,
                                       "draw " + file + " -o a.gif",
                                       "draw " + file + " -o a.png --fit 100",
                                       "draw " + file + " -o a.png --fit 100x0",
                                       "draw " + file + " -o a.png --dpi nan",
                                       "draw " + file + " -o a.png --dpi inf",
                                       "draw " + file + " -o a.png --width nan",
                                       "draw " + file + " -o a.png --scale nan",
                                       "draw " + file + " -o a.png --fit nanx100",
                                       "sheet " + file + " -o a.pdf --dpi nan",
                                       "set " + file + " Breite=inf",
                                       "draw " + file + " -o a.png --inside --outside",
                                       "draw " + file + " -o a.png --settings",
                                       "position " + file,
                                       std::string("position --base ."),
                                       "form " + file,
                                       "draw " + file + " -o -",
                                       std::string("check"),
                                       "set " + file,
                                       "set " + file + " Breite=0",
                                       "set " + file + " Breite=breit",
                                       "convert " + file,
                                       "convert " + file + " -o a.txt",
                                       "convert " + file + " -o a.cqz --to zip",
                                       "show --unknown " + file}) {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_NE(outcome.err, "") << arguments;
  }
}

TEST_F(Tool, HelpAndVersionAreNoErrors) {
  const Outcome help = Run("--help");
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"show", "fit", "draw", "position", "form"})
    EXPECT_TRUE(Contains(help.out, command));
  EXPECT_EQ(Run("fit --help").status, 0);
  EXPECT_EQ(Run("help fit").out, Run("fit --help").out);
  EXPECT_EQ(Run("--version").out, "lintavo 1.0.0\n");
}

}  // namespace
}  // namespace lintavo::testing
