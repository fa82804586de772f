// Counts the instructions of every row, or of those whose names contain an
// argument. To be run as
//   valgrind --tool=callgrind --collect-atstart=no lintavo_count [TEXT...]
// which leaves one profile per row. The rounds of a row are printed beside its
// name: a profile holds them all.
#include <algorithm>
#include <cstdio>
#include <string_view>

#include <valgrind/callgrind.h>

#include "Rows.h"

namespace {

constexpr int kRounds = 10;

bool IsAskedFor(const std::string& name, int argc, char** argv) {
  return argc < 2 || std::any_of(argv + 1, argv + argc, [&](std::string_view part) {
           return name.find(part) != std::string::npos;
         });
}

void Count(const lintavo::bench::Row& row) {
  const std::function<void()> work = row.prepare();
  for (int i = 0; i < 2; ++i) work();
  CALLGRIND_ZERO_STATS;
  CALLGRIND_TOGGLE_COLLECT;
  for (int i = 0; i < kRounds; ++i) work();
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(row.name.c_str());
}

}  // namespace

int main(int argc, char** argv) {
  for (const lintavo::bench::Row& row : lintavo::bench::AllRows()) {
    if (!IsAskedFor(row.name, argc, argv)) continue;
    Count(row);
    std::printf("%d\t%ld\t%s\n", kRounds, row.units, row.name.c_str());
  }
}
