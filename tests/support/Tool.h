// Runs the `lintavo` command as a user runs it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/PictureFile.h"

namespace lintavo::testing {

inline const std::string kExamples = LINTAVO_EXAMPLES_DIR "/";
inline const std::string kWindows = kExamples + "windows/";
inline const std::string kFanlight = kWindows + "dreiteilig_mit_oberlicht.aqz";

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

inline bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// Runs the command in a folder of its own, which is removed afterwards.
class Tool : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() / ("lintavo_tool_" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }

  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }

  // `arguments` are words for the shell.
  Outcome Run(const std::string& arguments, const std::string& environment = "") const {
    return RunLine(environment + " '" LINTAVO_TOOL "' " + arguments);
  }

  // A line for the shell in the folder, in which `lintavo` and $E, the examples, are known.
  Outcome RunLine(const std::string& line) const {
    const std::string out = folder_.string() + ".out";
    const std::string err = folder_.string() + ".err";
    const std::string folder = std::filesystem::path(LINTAVO_TOOL).parent_path().string();
    const std::string all = "cd '" + folder_.string() + "'; PATH='" + folder + "':$PATH; E='" +
                            kExamples + "'; { " + line + "\n} >'" + out + "' 2>'" + err +
                            "' </dev/null";
    const int raw = std::system(all.c_str());
    const Outcome outcome{WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, ReadBytes(out), ReadBytes(err)};
    std::filesystem::remove(out);
    std::filesystem::remove(err);
    return outcome;
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
  std::filesystem::path folder_;
};

}  // namespace lintavo::testing
