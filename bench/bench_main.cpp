// Times every row with Google Benchmark and counts what it allocates.
#include <exception>

#include <benchmark/benchmark.h>

#include "Allocations.h"
#include "Rows.h"

namespace {

void Run(benchmark::State& state, const lintavo::bench::Row& row) {
  try {
    const std::function<void()> work = row.prepare();
    // The first rounds fill what later ones use again.
    for (int i = 0; i < 2; ++i) work();
    const long before = lintavo::bench::AllocationCount();
    for (auto _ : state) work();
    const auto units = static_cast<double>(row.units);
    state.counters["units"] = units;
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(lintavo::bench::AllocationCount() - before) / units,
                           benchmark::Counter::kAvgIterations);
  } catch (const std::exception& e) {
    state.SkipWithError(e.what());
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  for (const lintavo::bench::Row& row : lintavo::bench::AllRows()) {
    benchmark::RegisterBenchmark(row.name.c_str(), Run, row);
  }
  benchmark::RunSpecifiedBenchmarks();
}
