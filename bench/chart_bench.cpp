#include <benchmark/benchmark.h>
#include <swephexp.h>

#include "bench_home.h"

namespace orvex::bench {
namespace {

chart::ChartInput Birth() {
  return {core::ParseDateTime("1990-07-05 14:30").value(), "5.5", "19.07283", "72.88261", 5.5};
}

chart::ChartInput Horary() {
  chart::ChartInput input = Birth();
  input.Ascendant = chart::AscendantChoice::Horary;
  input.HoraryNumber = 147;
  return input;
}

void PrepareBare(double& ut, double& et) {
  swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
  ut = swe_julday(1990, 7, 5, 9.0, SE_GREG_CAL);
  swe_date_conversion(1990, 7, 5, 9.0, 'g', &ut);
  et = ut + swe_deltat(ut);
}

void PlanetsBare(double et) {
  double numbers[6];
  char error[AS_MAXCH];
  for (int planet = 0; planet <= 11; ++planet) {
    swe_calc_ut(et, planet, astro::kChartFlags, numbers, error);
    benchmark::DoNotOptimize(numbers);
  }
}

// The library calls of the planets and those of the houses, and nothing else.
template <typename Houses>
void BareCalls(benchmark::State& state, Houses houses) {
  for (auto _ : state) {
    double ut = 0;
    double et = 0;
    double cusps[13];
    double angles[10];
    PrepareBare(ut, et);
    PlanetsBare(et);
    houses(ut, cusps, angles);
    swe_close();
  }
}

void BareCallsOfABirth(benchmark::State& state) {
  BareCalls(state, [](double ut, double* cusps, double* angles) {
    swe_houses_ex(ut, SEFLG_SIDEREAL, 19.07283, 72.88261, 'P', cusps, angles);
    benchmark::DoNotOptimize(cusps);
  });
}
BENCHMARK(BareCallsOfABirth)->Unit(benchmark::kMicrosecond);

// The 2,363 house calls that a horary chart needs beside its planets.
void BareCallsOfAHoraryChart(benchmark::State& state) {
  BareCalls(state, [](double /*ut*/, double* cusps, double* angles) {
    for (int call = 0; call < 2363; ++call) {
      swe_houses_armc(call % 360, 19.07283, 23.44, 'P', cusps, angles);
      benchmark::DoNotOptimize(cusps);
    }
  });
}
BENCHMARK(BareCallsOfAHoraryChart)->Unit(benchmark::kMicrosecond);

void ComputeOf(benchmark::State& state, const chart::ChartInput& input) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  for (auto _ : state) {
    benchmark::DoNotOptimize(chart::ComputeChart(*session, input));
  }
}

void ComputeChartOfABirth(benchmark::State& state) { ComputeOf(state, Birth()); }
BENCHMARK(ComputeChartOfABirth)->Unit(benchmark::kMicrosecond);

void ComputeChartOfAHoraryNumber(benchmark::State& state) { ComputeOf(state, Horary()); }
BENCHMARK(ComputeChartOfAHoraryNumber)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orvex::bench
