#include <benchmark/benchmark.h>

#include "bench_home.h"
#include "exact/crossings.h"

namespace orvex::bench {
namespace {

using exact::Depth;
using exact::Point;

// A search with what it needs: the zodiac and the sky of the KP reading.
struct Searcher {
  BenchHome Home;
  std::unique_ptr<core::Session> Session = Home.Start(core::StartMode::Writer);
  exact::ExactZodiac Zodiac{Session->Reference};
  exact::ExactSky Sky{Session->Ephemeris, exact::Reading::Kp, 'M'};

  std::size_t Rows(Point body, core::DateTime until, Depth depth) const {
    return Crossings(Sky, Zodiac, {body, From, until, depth, {25.07, 55.31}}).size();
  }

  const core::DateTime From = core::ParseDateTime("2026-11-01 00:00").value();
};

void MonthOfTheMoonBySub(benchmark::State& state) {
  const Searcher searcher;
  for (auto _ : state) {
    state.counters["rows"] = static_cast<double>(
        searcher.Rows(Point::Moon, searcher.From + std::chrono::days(30), Depth::Sub));
  }
}
BENCHMARK(MonthOfTheMoonBySub)->Unit(benchmark::kMillisecond);

// Three positions a border: the fewest by which a passage is closed in to the second.
void BareCallsOfAMonthOfTheMoon(benchmark::State& state) {
  const Searcher searcher;
  const std::size_t calls =
      3 * searcher.Rows(Point::Moon, searcher.From + std::chrono::days(30), Depth::Sub);
  for (auto _ : state) {
    for (std::size_t call = 0; call < calls; ++call) {
      benchmark::DoNotOptimize(
          searcher.Sky.PositionOf(Point::Moon, searcher.From + std::chrono::seconds(3'000 * call)));
    }
  }
}
BENCHMARK(BareCallsOfAMonthOfTheMoon)->Unit(benchmark::kMillisecond);

void YearOfAllPlanetsBySub(benchmark::State& state) {
  const Searcher searcher;
  for (auto _ : state) {
    std::size_t rows = 0;
    for (const Point planet : exact::kPlanets) {
      rows += searcher.Rows(planet, searcher.From + std::chrono::days(365), Depth::Sub);
    }
    state.counters["rows"] = static_cast<double>(rows);
  }
}
BENCHMARK(YearOfAllPlanetsBySub)->Unit(benchmark::kMillisecond);

void DayOfTheAscendantBySubSub(benchmark::State& state) {
  const Searcher searcher;
  for (auto _ : state) {
    state.counters["rows"] = static_cast<double>(
        searcher.Rows(Point::Ascendant, searcher.From + std::chrono::days(1), Depth::SubSub));
  }
}
BENCHMARK(DayOfTheAscendantBySubSub)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
