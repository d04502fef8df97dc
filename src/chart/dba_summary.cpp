#include "chart/dba_summary.h"

#include <array>

#include "chart/dasha.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr std::size_t kLevels = 4;
constexpr const char* kCountColor = "B7DA7F";

constexpr std::array<DbaColumn, kLevels> kLevelColumns = {DbaColumn::Dasha, DbaColumn::Bhukti,
                                                          DbaColumn::Antara, DbaColumn::Sookshma};

constexpr std::array<const char*, 6> kDescriptions = {
    "End Date", "1. Planet", "2. Star Lord", "3. Sub Lord", "4. Star of Sub", "Conjunct at 1"};

constexpr std::array<const char*, 10> kCountRows = {
    "Dasha Planet",    "Bhukti Planet",    "Antara Planet",    "Sookshma Planet",
    "Dasha Star Lord", "Bhukti Star Lord", "Antara Star Lord", "Sookshma Star Lord",
    "Total",           "Sub Lord Support"};
constexpr std::size_t kTotalRow = 8;
constexpr std::size_t kSupportRow = 9;

struct SelectedPlanet {
  std::string Planet;
  std::string EndDate;
};

// The selected path, level by level; nothing for a level without a selection.
std::array<std::optional<SelectedPlanet>, kLevels> SelectedPath(const DashaTree& periods) {
  std::array<std::optional<SelectedPlanet>, kLevels> path;
  if (const std::optional<std::size_t> row = SelectedRow(periods.DashaList)) {
    path[0] = {periods.DashaList.At(*row, DashaColumn::Planet).Text,
               periods.DashaList.At(*row, DashaColumn::EndDate).Text};
  }
  std::size_t level = 1;
  for (const core::Table* list :
       {&periods.BhuktiList, &periods.AntaraList, &periods.SookshmaList}) {
    if (const std::optional<std::size_t> row = SelectedRow(*list)) {
      path.at(level) = {list->At(*row, PeriodColumn::Planet).Text,
                        list->At(*row, PeriodColumn::EndDate).Text};
    }
    ++level;
  }
  return path;
}

// The planets that share the period planet's house in the rashi chart, in the order of the store.
std::string ConjunctPlanets(const core::ReferenceData& reference, const HoroscopeModel& model,
                            const std::string& planet) {
  const std::string code = PlanetCode(planet);
  const std::optional<std::size_t> house = HouseOfCode(model, code);
  if (!house) {
    return "None";
  }
  const std::string codes =
      core::Trim(core::ReplaceAll(HouseText(model, *house, HouseColumn::RcPlanets), code, ""));
  std::string names;
  for (const core::PlanetInfo& other : reference.Planets) {
    if (core::Contains(codes, other.PlanetCode)) {
      names += WithHouses(model, other.PlanetName) + " ";
    }
  }
  return names.empty() ? "None" : core::Trim(names);
}

void FillLevel(const core::ReferenceData& reference, HoroscopeModel& model, DbaColumn column,
               const SelectedPlanet& selected) {
  const auto cell = [&](DbaRow row) -> std::string& {
    return model.DBAPeriods.At(static_cast<std::size_t>(row), column).Text;
  };
  cell(DbaRow::EndDate) = selected.EndDate;
  cell(DbaRow::Planet) = WithHouses(model, selected.Planet);
  const std::size_t row = RowOfPlanet(model, selected.Planet).value();
  cell(DbaRow::StarLord) = PlanetText(model, row, PlanetColumn::StarLord);
  cell(DbaRow::SubLord) = PlanetText(model, row, PlanetColumn::SubLord);
  core::Attempt([&] {
    const std::size_t sub = RowOfCode(model, PlanetCode(cell(DbaRow::SubLord))).value();
    cell(DbaRow::StarOfSub) = PlanetText(model, sub, PlanetColumn::StarLord);
  });
  cell(DbaRow::Conjunct) = ConjunctPlanets(reference, model, selected.Planet);
}

void FillPeriods(const core::ReferenceData& reference, HoroscopeModel& model) {
  core::Table& table = model.DBAPeriods;
  table = {
      {{"Description", 100}, {"Dasha", 150}, {"Bhukti", 150}, {"Antara", 150}, {"Sookshma", 150}},
      {}};
  for (const char* description : kDescriptions) {
    table.AddRow().Cells.front().Text = description;
  }
  const auto path = SelectedPath(model.Periods);
  for (std::size_t level = 0; level < kLevels; ++level) {
    if (path.at(level)) {
      core::Attempt([&] { FillLevel(reference, model, kLevelColumns.at(level), *path.at(level)); });
    }
  }
}

// The houses in the brackets of both cells of a node's caption.
std::string AgentHouses(const std::string& caption) {
  std::string houses;
  for (const std::string& cell : core::Split(caption, '+')) {
    houses = core::Trim(houses + " " + core::LastBracketText(cell));
  }
  return houses;
}

// The houses that a cell names: those in its brackets, and for a node those of its agents too. A
// house in both is named twice.
std::vector<std::string> HousesOf(const HoroscopeModel& model, const std::string& cell) {
  std::string houses = core::LastBracketText(cell);
  if (core::Contains(cell, "Rahu")) {
    houses += " " + AgentHouses(model.Captions.Rahu);
  }
  if (core::Contains(cell, "Ketu")) {
    houses += " " + AgentHouses(model.Captions.Ketu);
  }
  return core::SplitWords(houses);
}

core::Cell& CountCell(HoroscopeModel& model, std::size_t row, std::size_t house) {
  return model.DBAHouseCount.Rows.at(row).Cells.at(house);
}

std::size_t HouseNumber(const std::string& house) {
  return static_cast<std::size_t>(core::ParseWhole(house).value());
}

int CountOf(const core::Cell& cell) {
  return static_cast<int>(core::ParseWhole(cell.Text).value());
}

void AddToCount(core::Cell& cell, int more) {
  cell.Text = core::WholeText(CountOf(cell) + more);
  cell.Background = kCountColor;
}

void CountHouses(HoroscopeModel& model, DbaRow source, std::size_t firstRow) {
  for (std::size_t level = 0; level < kLevels; ++level) {
    const std::string& cell =
        model.DBAPeriods.At(static_cast<std::size_t>(source), kLevelColumns.at(level)).Text;
    for (const std::string& house : HousesOf(model, cell)) {
      core::Attempt([&] { AddToCount(CountCell(model, firstRow + level, HouseNumber(house)), 1); });
    }
  }
}

void SumCounts(HoroscopeModel& model) {
  for (std::size_t house = 1; house <= kHouses; ++house) {
    for (std::size_t row = 0; row < kTotalRow; ++row) {
      if (const int count = CountOf(CountCell(model, row, house)); count > 0) {
        AddToCount(CountCell(model, kTotalRow, house), count);
      }
    }
  }
}

void MarkSubLords(HoroscopeModel& model) {
  for (const DbaColumn level : kLevelColumns) {
    const std::string& cell =
        model.DBAPeriods.At(static_cast<std::size_t>(DbaRow::SubLord), level).Text;
    for (const std::string& house : HousesOf(model, cell)) {
      core::Attempt([&] {
        core::Cell& support = CountCell(model, kSupportRow, HouseNumber(house));
        support.Text = "Yes";
        support.Background = kCountColor;
      });
    }
  }
}

void FillHouseCount(HoroscopeModel& model) {
  core::Table& table = model.DBAHouseCount;
  table = {{{"House", 100}}, {}};
  for (int house = 1; house <= static_cast<int>(kHouses); ++house) {
    table.Columns.push_back({core::WholeText(house), 50});
  }
  for (std::size_t row = 0; row < kCountRows.size(); ++row) {
    table.AddRow().Cells.front().Text = kCountRows.at(row);
    for (std::size_t house = 1; house <= kHouses; ++house) {
      CountCell(model, row, house).Text = row == kSupportRow ? "" : "0";
    }
  }
  CountHouses(model, DbaRow::Planet, 0);
  CountHouses(model, DbaRow::StarLord, kLevels);
  SumCounts(model);
  MarkSubLords(model);
}

}  // namespace

void ShowDBA(const core::Session& session, HoroscopeModel& model) {
  FillPeriods(session.Reference, model);
  FillHouseCount(model);
}

void WriteCurrentDba(HoroscopeModel& model) {
  // The house of the running year: one house a year, around and around.
  const int house = (model.RunningYear - 1) % static_cast<int>(kHouses) + 1;
  model.Captions.CurrentDBA =
      "Current DBA: " + model.RunningPeriods + "  |  Current BCP House: " + core::WholeText(house);
}

}  // namespace orvex::chart
