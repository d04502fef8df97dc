#include "vedic/lal_kitab.h"

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "vedic/lal_kitab_years.h"

namespace orvex::vedic {

namespace {

constexpr int kYears = 120;

core::Table EmptyTable() {
  core::Table table;
  table.Columns = {{"House"}, {"Planets"}};
  for (std::size_t row = 0; row < chart::kHouses; ++row) {
    table.AddRow();
    table.At(row, LalKitabColumn::House).Text = core::WholeText(static_cast<std::int64_t>(row) + 1);
  }
  return table;
}

}  // namespace

int RunningYearOfAge(int age) { return age % kYears + 1; }

void ShowLalKitabYear(const core::Table& natalHouses, int year, core::Table& annual) {
  const std::array<int, chart::kHouses>& houses =
      kLalKitabYears.at(static_cast<std::size_t>(year) - 1);
  if (annual.Rows.empty()) {
    annual = EmptyTable();
  }
  for (std::size_t natal = 0; natal < chart::kHouses; ++natal) {
    core::Attempt([&] {
      const auto house = static_cast<std::size_t>(houses.at(natal)) - 1;
      annual.At(house, LalKitabColumn::Planets).Text =
          natalHouses.At(natal, chart::HouseColumn::RcPlanets).Text;
    });
  }
}

}  // namespace orvex::vedic
