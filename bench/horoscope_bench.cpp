#include <benchmark/benchmark.h>

#include "bench_home.h"
#include "chart/dasha_tree.h"
#include "chart/transit_now.h"
#include "horoscope/create_horoscope.h"

namespace orvex::bench {
namespace {

struct OpenedBench {
  OpenedBench() : Session(Home.Start(core::StartMode::Writer)) {
    Id = chart::SaveNewClient(*Session, BenchHome::Form(*Session), 1).Id;
    Opened = horoscope::CreateHoroscope(*Session, Id).value();
  }

  BenchHome Home;
  std::unique_ptr<core::Session> Session;
  std::int32_t Id = 0;
  horoscope::OpenedHoroscope Opened;
};

void OpenAHoroscope(benchmark::State& state) {
  OpenedBench bench;
  for (auto _ : state) {
    benchmark::DoNotOptimize(horoscope::CreateHoroscope(*bench.Session, bench.Id));
  }
}
BENCHMARK(OpenAHoroscope)->Unit(benchmark::kMillisecond);

void TransitNowOfAHoroscope(benchmark::State& state) {
  OpenedBench bench;
  for (auto _ : state) {
    chart::BuildTransitNow(*bench.Session, bench.Opened.Model);
  }
}
BENCHMARK(TransitNowOfAHoroscope)->Unit(benchmark::kMillisecond);

void RotateAHoroscope(benchmark::State& state) {
  OpenedBench bench;
  int house = 1;
  for (auto _ : state) {
    house = house % 12 + 1;
    horoscope::RotateNow(*bench.Session, bench.Opened, house);
  }
}
BENCHMARK(RotateAHoroscope)->Unit(benchmark::kMillisecond);

void FullTreeOf6561Periods(benchmark::State& state) {
  OpenedBench bench;
  for (auto _ : state) {
    benchmark::DoNotOptimize(chart::FullDashaTree(bench.Session->Reference, bench.Opened.Model,
                                                  chart::TreeDepth::Sookshma));
  }
}
BENCHMARK(FullTreeOf6561Periods)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
