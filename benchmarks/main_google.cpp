// Runs the rows under Google Benchmark. Takes its arguments and those of settings.h.
#include <benchmark/benchmark.h>

#include "all_rows.h"
#include "heap.h"

namespace {

void measure(benchmark::State& state, const bench::Row& row) {
  const auto workload = row.make();
  bench::Done total{0, 0};
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    workload->prepare();
    state.ResumeTiming();
    const bench::Done done = workload->run();
    state.PauseTiming();
    workload->tidy();
    total.operations += done.operations;
    total.bytes += done.bytes;
    state.ResumeTiming();
  }
  using benchmark::Counter;
  state.counters["operations"] =
      Counter(static_cast<double>(total.operations), Counter::kAvgIterations);
  state.counters["bytes"] = Counter(static_cast<double>(total.bytes), Counter::kAvgIterations);
}

}  // namespace

int main(int argc, char** argv) {
  bench::keepFreedMemory();
  benchmark::Initialize(&argc, argv);
  std::vector<char*> others;
  const bench::Settings settings = bench::parseSettings(argc - 1, argv + 1, others);
  others.insert(others.begin(), argv[0]);
  int count = static_cast<int>(others.size());
  if (benchmark::ReportUnrecognizedArguments(count, others.data())) return 1;
  for (const bench::Row& row : bench::allRows(settings)) {
    auto* const registered = benchmark::RegisterBenchmark(
        row.name.c_str(), [row](benchmark::State& state) { measure(state, row); });
    if (row.runs == bench::Runs::once) registered->Iterations(1);
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::ClearRegisteredBenchmarks();  // with what the rows share, while the library is there
  return 0;
}
