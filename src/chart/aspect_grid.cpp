#include "chart/aspect_grid.h"

#include <array>
#include <cmath>

#include "chart/vastu_direction.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

constexpr int kColumnWidth = 63;

constexpr std::array<const char*, kSignCount> kIndianNames = {
    "Mesha", "Rishaba",   "Mithuna", "Karka",  "Simha",  "Kanya",
    "Tula",  "Vrischika", "Dhanu",   "Makara", "Kumbha", "Meena"};
constexpr std::array<const char*, 4> kElements = {"Fire", "Earth", "Air", "Water"};
constexpr std::array<const char*, 3> kModalities = {"Movable", "Fixed", "Dual"};

core::Cell& GridCell(HoroscopeModel& model, GridRow row, std::size_t sign) {
  return model.AspectGrid.Rows.at(static_cast<std::size_t>(row)).Cells.at(sign);
}

void AddHeads(HoroscopeModel& model) {
  core::Table& grid = model.AspectGrid;
  grid = {{{"Dir", kColumnWidth, "Direction"}}, {}};
  for (int sign = 1; sign <= static_cast<int>(kSignCount); ++sign) {
    grid.Columns.push_back({VastuDirection(sign), kColumnWidth, VastuPadsOfSign(sign), true});
  }
  for (const char* head : {"Zodiac", "Owner", "Element", "Modality", "Rashi No.", "House"}) {
    grid.AddRow().Cells.front().Text = head;
  }
}

void FillGridSign(HoroscopeModel& model, std::size_t sign) {
  const int rashi = static_cast<int>(sign);
  core::Cell& name = GridCell(model, GridRow::Zodiac, sign);
  name.Text = RashiName(rashi);
  name.Tooltip = kIndianNames.at(sign - 1);
  GridCell(model, GridRow::Owner, sign).Text = RashiLordName(rashi);
  GridCell(model, GridRow::Element, sign).Text = kElements.at((sign - 1) % kElements.size());
  GridCell(model, GridRow::Modality, sign).Text = kModalities.at((sign - 1) % kModalities.size());
  core::Cell& number = GridCell(model, GridRow::RashiNo, sign);
  number.Tag = core::WholeText(rashi);
  number.Text = number.Tag + (sign % 2 == 1 ? " (M)" : " (F)");
}

// A sign without a house keeps its own number and no tag.
void FillHouse(HoroscopeModel& model, std::size_t sign) {
  core::Cell& cell = GridCell(model, GridRow::House, sign);
  cell.Text = core::WholeText(static_cast<int>(sign));
  cell.Bold = true;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    if (HouseText(model, row, HouseColumn::Rashi) == GridCell(model, GridRow::RashiNo, sign).Tag) {
      cell.Tag = HouseText(model, row, HouseColumn::House);
    }
  }
  if (cell.Tag.empty()) {
    return;
  }
  cell.Text = cell.Tag;
  core::Attempt([&] {
    const auto house = static_cast<std::size_t>(core::ParseWhole(cell.Tag).value()) - 1;
    const double cusp = core::ToDouble(HouseText(model, house, HouseColumn::CuspDegree));
    cell.Tooltip = core::TwoDecimals(cusp) + " degree(s)";
  });
}

float AngleToCusp(const HoroscopeModel& model, std::size_t sign, float longitude) {
  const std::string& house =
      model.AspectGrid.Rows.at(static_cast<std::size_t>(GridRow::House)).Cells.at(sign).Tag;
  const auto row = static_cast<std::size_t>(core::ParseWhole(house).value()) - 1;
  float angle = core::ToSingle(HouseText(model, row, HouseColumn::CuspDegree)) - longitude;
  if (angle < 0) {
    angle += 360;
  }
  if (angle > 360) {
    angle = 360 - angle;
  }
  return std::fabs(angle);
}

}  // namespace

void BuildAspectGrid(HoroscopeModel& model, const core::AspectBandLimits& bands) {
  AddHeads(model);
  for (std::size_t sign = 1; sign <= kSignCount; ++sign) {
    FillGridSign(model, sign);
    FillHouse(model, sign);
  }
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    CalcAspect(model, bands, row);
  }
}

void CalcAspect(HoroscopeModel& model, const core::AspectBandLimits& bands, std::size_t planetRow) {
  const std::string& planet = PlanetText(model, planetRow, PlanetColumn::Planet);
  const bool node = planet == "Rahu" || planet == "Ketu";
  core::Row& row = model.AspectGrid.AddRow();
  row.Cells.front().Text = planet;
  row.Cells.front().Bold = true;
  core::Attempt([&] {
    const auto rashi = core::ParseWhole(PlanetTag(model, planetRow, PlanetColumn::Rashi));
    row.Cells.front().Tag = VastuDirection(static_cast<int>(rashi.value()));
  });
  for (std::size_t sign = 1; sign <= kSignCount; ++sign) {
    core::Attempt([&] {
      const float longitude = core::ToSingle(PlanetTag(model, planetRow, PlanetColumn::Degree));
      const float angle = AngleToCusp(model, sign, longitude);
      row.Cells.at(sign).Text = core::TwoDecimals(angle);
      row.Cells.at(sign).Background = node ? "" : core::AspectCellColor(bands, angle);
    });
  }
}

}  // namespace orvex::chart
