#include <benchmark/benchmark.h>

#include "bench_home.h"

namespace orvex::bench {
namespace {

void CreateAHome(benchmark::State& state) {
  for (auto _ : state) {
    BenchHome home;
    benchmark::DoNotOptimize(home.Start(core::StartMode::Writer));
  }
}
BENCHMARK(CreateAHome)->Unit(benchmark::kMillisecond);

void OpenAHome(benchmark::State& state) {
  BenchHome home;
  home.Start(core::StartMode::Writer);
  for (auto _ : state) {
    benchmark::DoNotOptimize(home.Start(core::StartMode::Reader));
  }
}
BENCHMARK(OpenAHome)->Unit(benchmark::kMillisecond);

void SaveAClient(benchmark::State& state) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  const chart::ClientForm form = BenchHome::Form(*session);
  for (auto _ : state) {
    benchmark::DoNotOptimize(chart::SaveNewClient(*session, form, 1));
    home.Tick();
  }
}
BENCHMARK(SaveAClient)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
