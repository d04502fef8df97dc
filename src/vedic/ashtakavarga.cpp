#include "vedic/ashtakavarga.h"

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/ashtakavarga_bits.h"
#include "vedic/aspect_grid_places.h"

namespace orvex::vedic {

namespace {

constexpr const char* kAscendant = "LA";

constexpr std::size_t RowOf(AshtakavargaRow row) { return static_cast<std::size_t>(row); }

constexpr AshtakavargaColumn SignColumn(int sign) {
  return static_cast<AshtakavargaColumn>(static_cast<int>(AshtakavargaColumn::FirstSign) + sign -
                                         1);
}

core::Table EmptyBindus() {
  core::Table table;
  table.Columns = {{"Rashi", 72}};
  for (int sign = 1; sign <= chart::kSignCount; ++sign) {
    table.Columns.push_back({" " + core::WholeText(sign), 42, "", true});
  }
  table.Columns.push_back({"Total ", 60});
  for (std::size_t row = 0; row <= RowOf(AshtakavargaRow::Total); ++row) {
    for (core::Cell& cell : table.AddRow().Cells) {
      cell.Text = "0";
    }
  }
  return table;
}

void FillHouses(chart::HoroscopeModel& model) {
  core::Table& table = model.AshtakavargaTable;
  constexpr std::size_t kRow = RowOf(AshtakavargaRow::House);
  table.At(kRow, AshtakavargaColumn::Rashi).Text = "House";
  for (int sign = 1; sign <= chart::kSignCount; ++sign) {
    core::Cell& cell = table.At(kRow, SignColumn(sign));
    core::Attempt([&] { cell.Text = GridHouse(model, sign).Text; });
    cell.Bold = true;
  }
  table.At(kRow, AshtakavargaColumn::Total).Text = "N/A";
}

SourceBindus BindusOfPlanet(const chart::HoroscopeModel& model, const AshtakavargaBits& planet) {
  SourceBindus sums{};
  for (const std::string& entry : core::Split(planet.Bits, '-')) {
    const SourceBindus given = AddSourceBindus(model, entry, core::FirstCharacters(entry, 2));
    for (std::size_t sign = 1; sign < sums.size(); ++sign) {
      sums.at(sign) += given.at(sign);
    }
  }
  return sums;
}

// Fills a row with the bindus and their total, and returns that.
int FillSums(core::Table& table, std::size_t row, const SourceBindus& bindus) {
  int total = 0;
  for (int sign = 1; sign <= chart::kSignCount; ++sign) {
    const int count = bindus.at(static_cast<std::size_t>(sign));
    table.At(row, SignColumn(sign)).Text = core::WholeText(count);
    total += count;
  }
  table.At(row, AshtakavargaColumn::Total).Text = core::WholeText(total);
  return total;
}

// The flags from the sign on. A source in sign 12 gives as one in sign 1 does, flag k in sign k:
// the totals of the signs in every such chart depend on that.
SourceBindus Rotated(const std::vector<std::string>& flags, int sourceSign) {
  SourceBindus bindus{};
  const int shift = sourceSign == chart::kSignCount ? 0 : sourceSign - 1;
  for (int place = 0; place < chart::kSignCount; ++place) {
    const auto sign = static_cast<std::size_t>((place + shift) % chart::kSignCount + 1);
    bindus.at(sign) = flags.at(static_cast<std::size_t>(place) + 1) == "1" ? 1 : 0;
  }
  return bindus;
}

}  // namespace

SourceBindus AddSourceBindus(const chart::HoroscopeModel& model, const std::string& entry,
                             const std::string& sourceCode) {
  SourceBindus bindus{};
  const std::vector<std::string> flags = core::Split(entry, '*');
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const bool holds =
          sourceCode == kAscendant
              ? row == 0
              : core::Contains(chart::HouseText(model, row, chart::HouseColumn::RcPlanets),
                               sourceCode);
      if (holds) {
        const std::string& rashi = chart::HouseText(model, row, chart::HouseColumn::Rashi);
        bindus = Rotated(flags, static_cast<int>(core::ParseWhole(rashi).value()));
      }
    });
  }
  return bindus;
}

void ComputeAshtakavarga(chart::HoroscopeModel& model) {
  model.AshtakavargaTable = EmptyBindus();
  core::Table& table = model.AshtakavargaTable;
  FillHouses(model);

  SourceBindus columnSums{};
  std::size_t row = RowOf(AshtakavargaRow::FirstPlanet);
  for (const AshtakavargaBits& planet : kAshtakavargaBits) {
    const SourceBindus bindus = BindusOfPlanet(model, planet);
    table.Rows.at(row).Tag = planet.Code;
    table.At(row, AshtakavargaColumn::Rashi).Text = planet.Planet;
    FillSums(table, row, bindus);
    for (std::size_t sign = 1; sign < columnSums.size(); ++sign) {
      columnSums.at(sign) += bindus.at(sign);
    }
    ++row;
  }
  table.At(row, AshtakavargaColumn::Rashi).Text = "Total";
  FillSums(table, row, columnSums);
}

}  // namespace orvex::vedic
