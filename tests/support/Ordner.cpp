#include "support/Ordner.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace lintavo::test {

Ordner::Ordner() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string("lintavo_") + test->test_suite_name() + "_" + test->name() + "_" +
                     std::to_string(std::random_device{}());
  std::replace(name.begin(), name.end(), '/', '_');
  path_ = std::filesystem::temp_directory_path() / name;
  std::filesystem::create_directories(path_);
}

Ordner::~Ordner() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace lintavo::test
