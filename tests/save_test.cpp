// Saving files: what was there before is kept until all of the new is there.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/platform/SaveFile.h"

#include "support/Ordner.h"

namespace lintavo::test {
namespace {

namespace fs = std::filesystem;

// Names are UTF-8 on every system.
fs::path System(const std::string& path) {
  return fs::path(std::u8string(path.begin(), path.end()));
}

void Put(const std::string& path, const std::string& bytes) {
  std::ofstream(System(path), std::ios::binary) << bytes;
}

std::string Get(const std::string& path) {
  std::ifstream file(System(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Names(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::u8string name = entry.path().filename().u8string();
    names.emplace_back(name.begin(), name.end());
  }
  std::sort(names.begin(), names.end());
  return names;
}

using List = std::vector<std::string>;

TEST(SaveFile, MakesAndReplacesFilesByteForByte) {
  const Ordner folder;
  // Line ends and zero bytes are nothing special; shorter content leaves no rest.
  for (const std::string& bytes : {std::string("a\r\n\0b\n\x1A", 7), std::string(100000, 'x'),
                                   std::string("kurz"), std::string()}) {
    EXPECT_TRUE(SaveFile(folder / "Größe.ini", bytes));
    EXPECT_EQ(Get(folder / "Größe.ini"), bytes);
  }
  EXPECT_EQ(Names(folder / ""), List{"Größe.ini"});
}

TEST(SaveFile, RefusesWhatIsNoPlaceForAFile) {
  const Ordner folder;
  fs::create_directory(folder / "ordner");
  Put(folder / "alt.ini", "alt");
  const std::string file = folder / "alt.ini";
  const struct {
    const char* what;
    CString path;
  } kRows[] = {
      {"empty", ""},
      {"a folder", folder / "ordner"},
      {"in a folder that is not there", folder / "fehlt/neu.ini"},
      {"below a file", folder / "alt.ini/neu.ini"},
      {"a zero byte", CString(std::string_view(file + std::string("\0.ini", 5)))},
      {"a name of 300 characters", folder / std::string(300, 'n')},
      {"a path of 5000 characters", folder /
                                        [] {
                                          std::string path;
                                          while (path.size() < 5000) path += "ordner/";
                                          return path + "alt.ini";
                                        }()},
  };
  for (const auto& row : kRows) EXPECT_FALSE(SaveFile(row.path, "neu")) << row.what;
  EXPECT_EQ(Get(file), "alt");
  EXPECT_EQ(Names(folder / ""), (List{"alt.ini", "ordner"}));
  EXPECT_EQ(Names(folder / "ordner"), List{});
}

}  // namespace
}  // namespace lintavo::test
