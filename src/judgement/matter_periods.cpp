#include "judgement/matter_periods.h"

#include <algorithm>
#include <map>

#include "core/exact_numbers.h"
#include "judgement/houses.h"
#include "judgement/matter_planets.h"

namespace orvex::judgement {

namespace {

constexpr std::size_t kLords = 3;

struct Lord {
  std::vector<int> Supporting;
  int Score = 0;
};

using Lords = std::map<std::string, Lord>;

Lords LordsOf(const core::Table& matterPlanets) {
  Lords lords;
  for (std::size_t row = 0; row < matterPlanets.Rows.size(); ++row) {
    const auto text = [&matterPlanets, row](MatterPlanetColumn column) {
      return matterPlanets.At(row, column).Text;
    };
    Lord lord{HousesOfText(text(MatterPlanetColumn::Supporting)), 0};
    lord.Score = static_cast<int>(lord.Supporting.size()) -
                 static_cast<int>(HousesOfText(text(MatterPlanetColumn::Denying)).size()) +
                 (text(MatterPlanetColumn::Fruitful) == kFruitful ? 1 : 0);
    lords[text(MatterPlanetColumn::Planet)] = std::move(lord);
  }
  return lords;
}

struct RankedPeriod {
  const chart::TreeRow* Antara = nullptr;
  std::vector<int> Houses;
  int Score = 0;
};

RankedPeriod RankOf(const chart::TreeRow& antara, const Lords& lords) {
  RankedPeriod ranked{&antara, {}, 0};
  for (std::size_t level = 0; level < kLords; ++level) {
    const auto lord = lords.find(antara.Planets.at(level));
    if (lord != lords.end()) {
      ranked.Houses.insert(ranked.Houses.end(), lord->second.Supporting.begin(),
                           lord->second.Supporting.end());
      ranked.Score += lord->second.Score;
    }
  }
  return ranked;
}

void WriteDate(core::Cell& cell, core::DateTime date) {
  cell.Text = core::LongDateText(date, true);
  cell.SortKey = core::StoredDateTimeText(date);
}

std::string AgeAt(core::DateTime birth, core::DateTime date) {
  return date < core::DateOnly(birth) ? "-" : core::WholeText(core::AgeText(birth, date).Years);
}

void AddPeriod(const RankedPeriod& ranked, core::DateTime birth, core::Table& table) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  const chart::TreeRow& antara = *ranked.Antara;
  table.At(row, MatterPeriodColumn::Dasha).Text = antara.Planets[0];
  table.At(row, MatterPeriodColumn::Bhukti).Text = antara.Planets[1];
  table.At(row, MatterPeriodColumn::Antara).Text = antara.Planets[2];
  WriteDate(table.At(row, MatterPeriodColumn::From), antara.Start);
  WriteDate(table.At(row, MatterPeriodColumn::Until), antara.End);
  table.At(row, MatterPeriodColumn::Age).Text = AgeAt(birth, antara.Start);
  table.At(row, MatterPeriodColumn::Houses).Text = HousesWithin(ranked.Houses, ranked.Houses);
  table.At(row, MatterPeriodColumn::Score).Text = core::WholeText(ranked.Score);
}

}  // namespace

core::Table BuildMatterPeriods(const std::vector<chart::TreeRow>& antaras,
                               const core::Table& matterPlanets, core::DateTime birth,
                               const PeriodWindow& window) {
  const Lords lords = LordsOf(matterPlanets);
  std::vector<RankedPeriod> periods;
  for (const chart::TreeRow& antara : antaras) {
    if (antara.End > window.From && antara.Start < window.To) {
      periods.push_back(RankOf(antara, lords));
    }
  }
  std::stable_sort(periods.begin(), periods.end(),
                   [](const RankedPeriod& left, const RankedPeriod& right) {
                     return left.Score != right.Score ? left.Score > right.Score
                                                      : left.Antara->Start < right.Antara->Start;
                   });
  core::Table table{{{"Dasha", 80},
                     {"Bhukti", 80},
                     {"Antara", 80},
                     {"From", 100},
                     {"Until", 100},
                     {"Age", 45},
                     {"Houses", 90},
                     {"Score", 50}},
                    {}};
  for (const RankedPeriod& period : periods) {
    AddPeriod(period, birth, table);
  }
  return table;
}

core::DateTime MomentOfPeriod(const core::Cell& cell) {
  return core::ParseDateTime(cell.SortKey).value_or(core::DateTime{});
}

}  // namespace orvex::judgement
