#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>

#include <fstream>
#include <sstream>

#include "bench_home.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "exchange/exchange_import.h"
#include "practice/birthdays.h"
#include "practice/client_import.h"
#include "practice/client_list.h"
#include "practice/client_search.h"
#include "practice/groups.h"

namespace orvex::bench {
namespace {

// A session on 100,000 clients, made once.
core::Session& LargePractice() {
  static BenchHome home;
  static const std::unique_ptr<core::Session> session = [] {
    auto started = home.Start(core::StartMode::Writer);
    std::ostringstream script;
    script << std::ifstream(ORVEX_BENCH_FOLDER "/practice_100k.sql").rdbuf();
    started->StoreConnection.ExecuteScript(script.str());
    return started;
  }();
  return *session;
}

void ListAGroupOf5000(benchmark::State& state) {
  const core::Session& session = LargePractice();
  for (auto _ : state) {
    benchmark::DoNotOptimize(practice::LoadClientsOfGroup(session, 5));
  }
}
BENCHMARK(ListAGroupOf5000)->Unit(benchmark::kMillisecond);

void FilterAGroupOf5000(benchmark::State& state) {
  const core::Table list = practice::LoadClientsOfGroup(LargePractice(), 5);
  for (auto _ : state) {
    std::size_t shown = 0;
    for (const core::Row& row : list.Rows) {
      for (const core::Cell& cell : row.Cells) {
        if (core::ContainsIgnoringCase(cell.Text, "client 77")) {
          ++shown;
          break;
        }
      }
    }
    benchmark::DoNotOptimize(shown);
  }
}
BENCHMARK(FilterAGroupOf5000)->Unit(benchmark::kMillisecond);

void BirthdaysOf100000(benchmark::State& state) {
  const core::Session& session = LargePractice();
  for (auto _ : state) {
    benchmark::DoNotOptimize(practice::GetBirthdaysToday(session));
  }
}
BENCHMARK(BirthdaysOf100000)->Unit(benchmark::kMillisecond);

practice::SearchFilter FilterNumber(std::int64_t number) {
  using practice::DateRange;
  const core::DateTime from = core::ParseDateTime("1990-01-01").value();
  const core::DateTime to = core::ParseDateTime("1990-12-31").value();
  switch (number) {
    case 0:
      return {.GroupIds = std::vector<std::int32_t>{5, 6}};
    case 1:
      return {.RetrogradePlanetId = 4, .AscendantRashi = 3};
    case 2:
      return {.AscendantRashi = 12};
    case 3:
      return {.Text = "a house"};
    case 4:
      return {.Dates = DateRange::Between, .From = from, .To = to};
    case 5:
      return {.GroupIds = std::vector<std::int32_t>{5, 6},
              .Gender = "F",
              .RetrogradePlanetId = 4,
              .AscendantRashi = 3,
              .Text = "visits",
              .Dates = DateRange::After,
              .From = from};
    case 6:
      return {.Mode = practice::SearchMode::Remedies, .Text = "no sleep"};
    default:
      return {};
  }
}

// 0 groups, 1 retrograde and Ascendant, 2 Ascendant, 3 text, 4 dates, 5 all filters, 6 remedies by
// text, 7 no filter: all 100,000.
void SearchOf100000(benchmark::State& state) {
  const core::Session& session = LargePractice();
  const practice::SearchFilter filter = FilterNumber(state.range(0));
  std::size_t found = 0;
  for (auto _ : state) {
    found = practice::SearchClients(session, filter).Results.Rows.size();
  }
  state.counters["rows"] = static_cast<double>(found);
}
BENCHMARK(SearchOf100000)->DenseRange(0, 7)->Unit(benchmark::kMillisecond);

// What the search page does until its first rows are in sight, and the memory of what it keeps.
void FirstRowsOf100000(benchmark::State& state) {
  constexpr std::size_t kInSight = 64;
  constexpr double kMegabyte = 1024.0 * 1024.0;
  const core::Session& session = LargePractice();
  const practice::SearchFilter all;
  const std::size_t before = ::mallinfo2().uordblks;
  practice::FoundRows found;
  for (auto _ : state) {
    found = practice::FindRows(session, all);
    benchmark::DoNotOptimize(
        practice::ReadFoundRows(session, all, {found.Rows.begin(), found.Rows.begin() + kInSight}));
  }
  state.counters["rows"] = static_cast<double>(found.Rows.size());
  state.counters["MB kept"] = static_cast<double>(::mallinfo2().uordblks - before) / kMegabyte;
  rusage used{};
  ::getrusage(RUSAGE_SELF, &used);
  state.counters["MB at most"] = static_cast<double>(used.ru_maxrss) / 1024.0;
}
BENCHMARK(FirstRowsOf100000)->Unit(benchmark::kMillisecond);

void ImportOf10000Lines(benchmark::State& state) {
  std::string text = "name,birth,city id\n";
  for (int line = 0; line < 10000; ++line) {
    text += "Client " + core::PaddedWhole(line, 5) +
            ",1990-07-05 14:" + core::PaddedWhole(line % 60, 2) + ",1\n";
  }
  for (auto _ : state) {
    BenchHome home;
    const auto session = home.Start(core::StartMode::Writer);
    benchmark::DoNotOptimize(
        practice::ImportClients(*session, {text, 1}, [](std::size_t, std::size_t) {}));
  }
}
BENCHMARK(ImportOf10000Lines)->Unit(benchmark::kSecond)->Iterations(1);

// Each birth has a place of its own, half of them one that no city is named for.
std::string AafOf10000Births() {
  std::string text;
  for (int birth = 0; birth < 10000; ++birth) {
    const std::string minutes = core::PaddedWhole(birth % 60, 2);
    text += "#A93:Client," + core::PaddedWhole(birth, 5) + ",f,5.7.1990,14:" + minutes +
            (birth % 2 == 0 ? ",Pune,IN" : ",Village " + core::PaddedWhole(birth, 5) + ",IN") +
            "\n#B93:*,18N" + minutes + ":" + core::PaddedWhole(birth / 60 % 60, 2) +
            ",73E51,5hE30,0\n";
  }
  return text;
}

void ImportOf10000AafBirths(benchmark::State& state) {
  const auto goOn = [](std::size_t, std::size_t) { return true; };
  for (auto _ : state) {
    BenchHome home;
    const auto session = home.Start(core::StartMode::Writer);
    const auto file = session->Place.Folder / "births.aaf";
    core::WriteFileSafely(file, AafOf10000Births());
    const exchange::ImportPlan plan =
        exchange::PlanImport(*session, {{file}, 1, ORVEX_DATA_FOLDER}, goOn);
    state.counters["saved"] = static_cast<double>(
        exchange::SaveImport(*session, plan, exchange::WithRefused::SaveNothing, goOn));
  }
}
BENCHMARK(ImportOf10000AafBirths)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace orvex::bench
