// Every file under data/hostile once broke, or was written to break, something:
// each is read in every form, and taken through all that a host can ask.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <zlib.h>

#include "lintavo/api/CFeApi.h"

#include "fuzz/Fensterlauf.h"
#include "fuzz/Positionslauf.h"
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

INSTANTIATE_TEST_SUITE_P(Files, HostileTest, testing::ValuesIn(Dateien()), TestName);

}  // namespace
