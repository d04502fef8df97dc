#include "chart/cusp_table.h"

#include "chart/sub_sub_lord.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

void FillLords(const core::ReferenceData& reference, double degree, core::Table& table,
               std::size_t row) {
  const core::SubRow& sub = SubOfDegree(reference, degree);
  table.At(row, CuspColumn::SignLord).Text = sub.RashiLord;
  table.At(row, CuspColumn::StarLord).Text = sub.StarLord;
  table.At(row, CuspColumn::SubLord).Text = sub.SubLord;
  table.At(row, CuspColumn::SubSubLord).Text = SubSubLord(reference, degree);
}

void FillCuspStar(const core::ReferenceData& reference, double degree, core::Table& table,
                  std::size_t row) {
  const StarAndPada star = StarOfDegree(reference, degree);
  table.At(row, CuspColumn::Nakshatra).Text = star.Star->StarName;
  table.At(row, CuspColumn::Pada).Text = core::WholeText(star.Pada->Pada);
}

}  // namespace

void FillCuspTable(const core::ReferenceData& reference, HoroscopeModel& model) {
  core::Table& table = model.CuspTable;
  table = {};
  table.Columns = {{"House"},
                   {"Degree"},
                   {"Sign Lord"},
                   {"Star Lord"},
                   {"Sub Lord"},
                   {"Sub Sub Lord"},
                   {"Nakshatra"},
                   {"Pada"},
                   {"Planet(s) Sig", core::Column::kNoWidth, "Planet(s) Signified"}};
  for (std::size_t row = 0; row < kHouses; ++row) {
    table.AddRow();
    const std::string& stored = HouseText(model, row, HouseColumn::CuspDegree);
    core::Cell& house = table.At(row, CuspColumn::House);
    house.Text = HouseText(model, row, HouseColumn::House);
    house.Tag = stored;
    core::Attempt([&] {
      table.At(row, CuspColumn::Degree).Text = core::TwoDecimals(core::ToDouble(stored));
    });
    core::Attempt([&] { FillLords(reference, core::ToDouble(stored), table, row); });
    core::Attempt([&] { FillCuspStar(reference, core::ToDouble(stored), table, row); });
  }
}

}  // namespace orvex::chart
