#include <benchmark/benchmark.h>

#include "bench_home.h"
#include "chart/dasha_tree.h"
#include "horoscope/create_horoscope.h"
#include "judgement/birth_times.h"
#include "judgement/chain_sentence.h"
#include "judgement/fruitful_tests.h"
#include "judgement/judge_matter.h"
#include "judgement/ranked_periods.h"
#include "judgement/rulers.h"
#include "judgement/triggers.h"

namespace orvex::bench {
namespace {

// A client's horoscope and a matter.
struct Question {
  std::unique_ptr<core::Session> Session;
  horoscope::OpenedHoroscope Opened;
  judgement::Matter Matter;
  judgement::MomentOfJudgement Moment;
  judgement::PeriodWindow Life;
};

Question Ask(BenchHome& home) {
  Question question;
  question.Session = home.Start(core::StartMode::Writer);
  core::Session& session = *question.Session;
  const std::int32_t id = chart::SaveNewClient(session, BenchHome::Form(session), 1).Id;
  question.Opened = horoscope::CreateHoroscope(session, id).value();
  question.Matter = judgement::FindMatter(session, "Marriage").value();
  question.Moment = judgement::NowAtUserCity(session);
  question.Life = {core::ParseDateTime("1950-01-01").value(),
                   core::ParseDateTime("2120-01-01").value()};
  return question;
}

core::Table PlanetsOf(const Question& question) {
  return judgement::JudgeMatter(*question.Session, question.Opened.Model, question.Matter,
                                question.Moment, question.Life)
      .MatterPlanets;
}

// The antaras of the whole life, ranked.
core::Table PeriodsOf(const Question& question, const core::Table& planets) {
  const chart::HoroscopeModel& model = question.Opened.Model;
  return judgement::BuildMatterPeriods(
      chart::FullDashaTree(question.Session->Reference, model, chart::TreeDepth::Antara), planets,
      model.Birth, question.Life);
}

// All tables of the page as it shows them, with the periods of ten years. Aim: under 50 ms.
void PageOfAMatter(benchmark::State& state) {
  BenchHome home;
  const Question question = Ask(home);
  const judgement::PeriodWindow tenYears{core::ParseDateTime("2026-11-24").value(),
                                         core::ParseDateTime("2036-11-24").value()};
  for (auto _ : state) {
    const judgement::Judgement judged = judgement::JudgeMatter(
        *question.Session, question.Opened.Model, question.Matter, question.Moment, tenYears);
    benchmark::DoNotOptimize(judgement::ChainSentence(judged.MatterChain));
    benchmark::DoNotOptimize(judgement::BuildFruitfulTests(judged.MatterPlanets));
    benchmark::DoNotOptimize(
        judgement::BuildRankedPeriods(judged.MatterPeriods, judged.MatterPlanets, question.Matter));
  }
}
BENCHMARK(PageOfAMatter)->Unit(benchmark::kMillisecond);

// The 729 antaras ranked. Aim: under 20 ms.
void PeriodsOfALife(benchmark::State& state) {
  BenchHome home;
  const Question question = Ask(home);
  const core::Table planets = PlanetsOf(question);
  for (auto _ : state) {
    benchmark::DoNotOptimize(PeriodsOf(question, planets));
  }
}
BENCHMARK(PeriodsOfALife)->Unit(benchmark::kMillisecond);

// What is shown when a filter asks for the whole life: ranked and marked. Aim: under 20 ms.
void PeriodsOfALifeAsShown(benchmark::State& state) {
  BenchHome home;
  const Question question = Ask(home);
  const core::Table planets = PlanetsOf(question);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        judgement::BuildRankedPeriods(PeriodsOf(question, planets), planets, question.Matter));
  }
}
BENCHMARK(PeriodsOfALifeAsShown)->Unit(benchmark::kMillisecond);

// Sun and Moon over four lords. Aim: under 1 s.
void TriggersOfAYear(benchmark::State& state) {
  BenchHome home;
  const auto session = home.Start(core::StartMode::Writer);
  judgement::TriggerSearch search;
  search.Bodies = {exact::Point::Sun, exact::Point::Moon};
  search.Lords = {"Moon", "Venus", "Mercury", "Saturn"};
  search.From = core::ParseDateTime("2026-11-24").value();
  search.To = core::ParseDateTime("2027-11-24").value();
  for (auto _ : state) {
    benchmark::DoNotOptimize(judgement::BuildTriggers(*session, search));
  }
}
BENCHMARK(TriggersOfAYear)->Unit(benchmark::kMillisecond);

// The widest window with five events.
void BenchOfABirthTime(benchmark::State& state) {
  BenchHome home;
  const Question question = Ask(home);
  core::Session& session = *question.Session;
  const core::Table rulers = judgement::RulersAt(session, question.Moment);
  const std::vector<judgement::LifeEvent> events(
      5, {core::ParseDateTime("2015-05-05").value(), question.Matter});
  for (auto _ : state) {
    benchmark::DoNotOptimize(judgement::BuildBirthTimes(
        session, question.Opened.Model, judgement::kLongestBenchMinutes, rulers, events));
  }
}
BENCHMARK(BenchOfABirthTime)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvex::bench
