#include <benchmark/benchmark.h>
#include <swephexp.h>

#include "bench_home.h"
#include "transit/find_transit_tool.h"
#include "transit/monthly_grid.h"

namespace orvex::bench {
namespace {

// The library calls of a month's grid: 31 moments of ten planets and the node.
void BareCallsOfAMonth(benchmark::State& state) {
  for (auto _ : state) {
    for (int day = 1; day <= 31; ++day) {
      double numbers[6];
      char error[AS_MAXCH];
      swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
      double moment = swe_julday(2026, 12, day, 6.0, SE_GREG_CAL);
      moment += swe_deltat(moment);
      for (int planet = 0; planet <= 10; ++planet) {
        swe_calc(moment, planet, astro::kTransitFlags, numbers, error);
        benchmark::DoNotOptimize(numbers);
      }
    }
    swe_close();
  }
}
BENCHMARK(BareCallsOfAMonth)->Unit(benchmark::kMillisecond);

void MonthlyGrid(benchmark::State& state) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  const transit::GridView view = transit::UserCityView(*session);
  for (auto _ : state) {
    benchmark::DoNotOptimize(transit::CreateGrid(*session, view, 12, 2026));
  }
}
BENCHMARK(MonthlyGrid)->Unit(benchmark::kMillisecond);

// The library calls of looking at every hour of ten years, for Saturn.
void BareCallsOfTenYearsHourByHour(benchmark::State& state) {
  for (auto _ : state) {
    swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
    const double start = swe_julday(2028, 3, 1, 0, SE_GREG_CAL);
    for (int hour = 0; hour < 10 * 365 * 24; ++hour) {
      double numbers[6];
      char error[AS_MAXCH];
      const double moment = start + hour / 24.0;
      swe_calc(moment + swe_deltat(moment), SE_SATURN, astro::kTransitFlags, numbers, error);
      benchmark::DoNotOptimize(numbers);
    }
    swe_close();
  }
}
BENCHMARK(BareCallsOfTenYearsHourByHour)->Unit(benchmark::kMillisecond);

// Saturn to a degree that it reaches in November 2036.
void FindSaturnNineYearsAhead(benchmark::State& state) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  const transit::FindForm form{transit::Planet::Saturn, core::ParseDateTime("2028-03-01").value(),
                               transit::TargetKind::Degree, "127.5"};
  for (auto _ : state) {
    benchmark::DoNotOptimize(transit::FindTransit(*session, form, 127.5F, {}, {}));
  }
}
BENCHMARK(FindSaturnNineYearsAhead)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
