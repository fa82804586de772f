// Every file under data/hostile once broke, or was written to break, something:
// each is read in every form, and taken through all that a host can ask.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <zlib.h>

#include "lintavo/api/CFeApi.h"

#include "fuzz/Abfragen.h"
#include "fuzz/Fensterlauf.h"
#include "fuzz/Positionslauf.h"
#include "fuzz/Vergleich.h"
#include "support/Beispiele.h"
#include "support/Gesetze.h"
#include "support/Ordner.h"

namespace {

using lintavo::fuzz::PruefeFenster;

std::vector<std::string> Dateien() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(LINTAVO_TEST_DATA_DIR "/hostile")) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  for (char& c : name) {
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  }
  return name;
}

std::string Inhalt(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string MitCrLf(const std::string& text) {
  std::string lines;
  for (const char c : text) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return lines;
}

std::string Gepackt(const std::string& text) {
  std::string stream(compressBound(static_cast<uLong>(text.size())), '\0');
  uLongf length = static_cast<uLongf>(stream.size());
  compress(reinterpret_cast<Bytef*>(stream.data()), &length,
           reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()));
  stream.resize(length);
  return stream;
}

class HostileTest : public testing::TestWithParam<std::string> {
 protected:
  std::string Pfad() const { return LINTAVO_TEST_DATA_DIR "/hostile/" + GetParam(); }
};

TEST_P(HostileTest, FileIsReadAsPlainAndAsCompressed) {
  char name[256];
  CFeApi::GetBezeichnungFromFile(Pfad().c_str(), name);
  CFeApi plain;
  plain.ReadFromFile(Pfad().c_str());
  EXPECT_EQ(PruefeFenster(plain), "");
  CFeApi compressed;
  compressed.ReadFromCompressedFile(Pfad().c_str());
  EXPECT_EQ(PruefeFenster(compressed), "");
}

TEST_P(HostileTest, TextIsReadAsBuffer) {
  const std::string text = Inhalt(Pfad());
  EXPECT_EQ(lintavo::fuzz::PruefeMakroText(text), "");
  const std::string lines = MitCrLf(text);
  CFeApi fenster;
  fenster.ReadFromBuffer(static_cast<long>(lines.size()), lines.data(), '\r');
  EXPECT_EQ(PruefeFenster(fenster), "");
}

TEST_P(HostileTest, TextIsReadPackedAndWrittenWithItsForm) {
  const lintavo::test::Ordner ordner;
  const std::string path = ordner / "gepackt.cqz";
  std::ofstream(path, std::ios::binary) << Gepackt(MitCrLf(Inhalt(Pfad())));
  char name[256];
  CFeApi::GetBezeichnungFromFile(path.c_str(), name);
  CFeApi fenster;
  fenster.ReadFromCompressedFile(path.c_str());
  EXPECT_EQ(PruefeFenster(fenster), "");
  EXPECT_EQ(lintavo::fuzz::PruefeModell(Inhalt(Pfad()), ordner / "fenster.aqz"), "");
}

TEST_P(HostileTest, TextIsReadAsPositionAndAsSettings) {
  const lintavo::test::Ordner ordner;
  EXPECT_EQ(lintavo::fuzz::PruefePosition(Inhalt(Pfad()), ordner / ""), "");
  EXPECT_EQ(lintavo::fuzz::PruefeEinstellungen(Inhalt(Pfad()), ordner / ""), "");
}

// --- numbers that are none, in every place of every example --------------------------

// Where the items of the text's entries and lists stand that are numbers.
std::vector<std::pair<std::size_t, std::size_t>> ZahlenIn(const std::string& text) {
  std::vector<std::pair<std::size_t, std::size_t>> zahlen;
  for (std::size_t i = text.find_first_of("=,"); i < text.size();
       i = text.find_first_of("=,", i + 1)) {
    const std::size_t ende = text.find_first_of(",\r\n", i + 1);
    const std::string item = text.substr(i + 1, ende == std::string::npos ? ende : ende - i - 1);
    const bool istZahl = item.find_first_of("0123456789") != std::string::npos &&
                         item.find_first_not_of("-.0123456789") == std::string::npos;
    if (istZahl) zahlen.emplace_back(i + 1, item.size());
  }
  return zahlen;
}

// The text with one of them, which the dice choose, replaced.
std::string MitUnzahl(std::string text, lintavo::test::Wuerfel& wuerfel) {
  static const char* const unzahlen[] = {"nan",    "inf",  "-inf", "1e308",
                                         "-1e308", "1e12", "-1",   "0"};
  const auto zahlen = ZahlenIn(text);
  const auto [ort, laenge] =
      zahlen[static_cast<std::size_t>(wuerfel.Zahl(0, static_cast<int>(zahlen.size()) - 1))];
  return text.replace(ort, laenge, unzahlen[wuerfel.Zahl(0, 7)]);
}

// Whether an item of a written window is not finite.
bool HatUnzahl(const std::string& text) {
  constexpr const char* kUnzahlen[] = {"nan,", "nan#", "inf,", "inf#"};
  for (const std::string zeichen : {"=", ",", "=-", ",-"}) {
    for (const char* unzahl : kUnzahlen) {
      if (text.find(zeichen + unzahl) != std::string::npos) return true;
    }
  }
  return false;
}

template <class Names>
const auto& Eines(const Names& names, lintavo::test::Wuerfel& wuerfel) {
  return names[static_cast<std::size_t>(wuerfel.Zahl(0, static_cast<int>(std::size(names)) - 1))];
}

TEST(Unzahlen, AWindowFailsOrAnswersAndWritesFiniteNumbers) {
  lintavo::test::JederWurf([](lintavo::test::Wuerfel& wuerfel) {
    const std::string& name = Eines(lintavo::test::BeispielNamen(), wuerfel);
    const std::string text = MitUnzahl(Inhalt(lintavo::test::BeispielPfad(name)), wuerfel);
    EXPECT_EQ(lintavo::fuzz::PruefeMakroText(text, wuerfel.Zahl(0, 2)), "") << text;
    std::string buffer = text;
    std::replace(buffer.begin(), buffer.end(), '\n', '#');
    CFeApi fenster;
    fenster.ReadFromBuffer(static_cast<long>(buffer.size()), buffer.data());
    EXPECT_FALSE(HatUnzahl(lintavo::fuzz::Geschrieben(fenster))) << text;
    EXPECT_TRUE(lintavo::fuzz::SindEndlich(lintavo::fuzz::FrageAlles(fenster).Angaben)) << text;
  });
}

TEST(Unzahlen, APositionFailsOrAnswersFiniteNumbers) {
  const lintavo::test::Ordner ordner;
  lintavo::test::JederWurf(
      [&](lintavo::test::Wuerfel& wuerfel) {
        constexpr const char* kPositionen[] = {"diele", "kueche", "schlafzimmer"};
        constexpr const char* kTypen[] = {"Einfluegelig", "Oberlicht", "Rundbogen",
                                          "Zweifluegelig"};
        constexpr const char* kBilder[] = {"01", "02", "03", "04", "Rauten"};
        const std::string beispiele = LINTAVO_EXAMPLES_DIR "/";
        std::string teile[] = {
            Inhalt(beispiele + "Positionen/" + Eines(kPositionen, wuerfel) + ".txt"),
            Inhalt(beispiele + "Fenster/" + Eines(kTypen, wuerfel) + ".ini"),
            Inhalt(beispiele + "Sprossen/" + Eines(kBilder, wuerfel) + ".ini")};
        std::string& teil = teile[wuerfel.Zahl(0, 2)];
        teil = MitUnzahl(teil, wuerfel);
        const std::string text = teile[0] + "----\n" + teile[1] + "----\n" + teile[2];
        EXPECT_EQ(lintavo::fuzz::PruefePosition(text, ordner / "", wuerfel.Zahl(0, 2)), "") << text;
      },
      60);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileTest, testing::ValuesIn(Dateien()), TestName);

}  // namespace
