#include <benchmark/benchmark.h>

#include "astro/sky_bodies.h"
#include "bench_home.h"
#include "panchang/sky_view.h"

namespace orvex::bench {
namespace {

void SkyView(benchmark::State& state, core::StartMode mode) {
  BenchHome home;
  home.Start(core::StartMode::Writer);
  const auto session = home.Start(mode);
  panchang::SkyView view;
  for (auto _ : state) {
    home.Tick();
    panchang::GetCurrentTransit(*session, view);
  }
}
BENCHMARK_CAPTURE(SkyView, OfAReader, core::StartMode::Reader)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SkyView, OfTheWorkbench, core::StartMode::Owner)->Unit(benchmark::kMillisecond);

void BareCallsOfASkyView(benchmark::State& state) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  for (auto _ : state) {
    const auto day = session->Ephemeris.PrepareMoment(session->Time.Now()).JulianDayUT;
    benchmark::DoNotOptimize(astro::SkyBodiesAt(session->Ephemeris, day, "M"));
    benchmark::DoNotOptimize(session->Ephemeris.SiderealHouses(day, 25, 55));
    session->Ephemeris.Close();
  }
}
BENCHMARK(BareCallsOfASkyView)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
