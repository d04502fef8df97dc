#include "chart/rotation.h"

#include <array>

#include "chart/house_table.h"
#include "chart/planet_table.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

// The number that a house has when counted from another one.
int CountedFrom(int first, int house) { return (house - first + 12) % 12 + 1; }

// A list of houses counted from another house, in ascending order.
std::string RotatedList(const std::string& houses, int first) {
  std::array<bool, kHouses> marked{};
  for (const std::string& house : core::SplitWords(houses)) {
    const auto number = static_cast<int>(core::ParseWhole(house).value());
    marked.at(static_cast<std::size_t>(CountedFrom(first, number)) - 1) = true;
  }
  std::string rotated;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    rotated += marked.at(i) ? core::WholeText(static_cast<int>(i) + 1) + " " : "";
  }
  return core::Trim(rotated);
}

// The row that a row of the rotated table comes from.
std::size_t SourceRow(std::size_t row, int first) {
  return (row + static_cast<std::size_t>(first) - 1) % kHouses;
}

// Takes the columns that belong to the sign and its cusp; numbers and aspect houses stay.
void RotateHouses(const BirthTables& birth, HoroscopeModel& model, int first) {
  constexpr std::array<HouseColumn, 8> kMoving = {
      HouseColumn::BcPlanets,         HouseColumn::Rashi,      HouseColumn::RcPlanets,
      HouseColumn::RashiLord,         HouseColumn::CuspDegree, HouseColumn::KpChartRashi,
      HouseColumn::KpChartRashiOwner, HouseColumn::RetroRashi};
  for (std::size_t row = 0; row < kHouses; ++row) {
    for (const HouseColumn column : kMoving) {
      model.HouseTable.At(row, column) = birth.HouseTable.At(SourceRow(row, first), column);
    }
  }
}

void RotateCusps(const BirthTables& birth, HoroscopeModel& model, int first) {
  for (std::size_t row = 0; row < kHouses; ++row) {
    model.CuspTable.Rows[row] = birth.CuspTable.Rows[SourceRow(row, first)];
    model.CuspTable.At(row, CuspColumn::House).Text = core::WholeText(static_cast<int>(row) + 1);
  }
}

// Lords stand bare again, for their houses to be written anew.
void RotatePlanet(core::Table& planets, std::size_t row, int first) {
  core::Cell& place = planets.At(row, PlanetColumn::In);
  core::Cell& owner = planets.At(row, PlanetColumn::Owner);
  place.Text = RotatedList(place.Text, first);
  owner.Text = RotatedList(owner.Text, first);
  owner.Tag = core::Trim(place.Text + " " + owner.Text);
  core::Cell& name = planets.At(row, PlanetColumn::Planet);
  name.Tag = RotatedList(name.Tag, first);
  for (const PlanetColumn lord :
       {PlanetColumn::StarLord, PlanetColumn::SubLord, PlanetColumn::SubSubLord}) {
    planets.At(row, lord).Text = planets.At(row, lord).Tag;
  }
}

}  // namespace

std::string RotationMark(int house) {
  return house == 1 ? "" : " (Rotated to " + core::WholeText(house) + ")";
}

BirthTables TakeBirthTables(const HoroscopeModel& model) {
  return {model.HouseTable, model.CuspTable, model.PlanetTable, model.Captions.Title};
}

core::Table RotatedRows(const HoroscopeModel& model, int house) {
  core::Table table{{{"H"}, {"Rashi"}, {"KP"}, {"Cusp Deg"}, {"BC Planets"}, {"RC Planets"}}, {}};
  for (std::size_t row = 0; row < kHouses; ++row) {
    const std::string rashi = house == 1
                                  ? core::WholeText(static_cast<int>(row) + 1)
                                  : HouseText(model, SourceRow(row, house), HouseColumn::Rashi);
    table.AddRow();
    table.At(row, RotatedColumn::H).Text = core::WholeText(static_cast<int>(row) + 1);
    table.At(row, RotatedColumn::Rashi).Text = rashi;
    if (const std::optional<std::size_t> source = HouseOfRashi(model, rashi)) {
      table.At(row, RotatedColumn::Kp).Text = HouseText(model, *source, HouseColumn::KpChartRashi);
      table.At(row, RotatedColumn::CuspDeg).Text =
          HouseText(model, *source, HouseColumn::CuspDegree);
      table.At(row, RotatedColumn::BcPlanets).Text =
          HouseText(model, *source, HouseColumn::BcPlanets);
      table.At(row, RotatedColumn::RcPlanets).Text =
          HouseText(model, *source, HouseColumn::RcPlanets);
    }
  }
  return table;
}

void RotateTables(const core::ReferenceData& reference, const BirthTables& birth,
                  HoroscopeModel& model, int house) {
  model.HouseTable = birth.HouseTable;
  model.CuspTable = birth.CuspTable;
  model.PlanetTable = birth.PlanetTable;
  model.Captions.Title = birth.Title;
  model.RotatedTable = RotatedRows(model, house);
  model.RotatedTo = house;
  if (house == 1) {
    return;
  }
  RotateHouses(birth, model, house);
  RotateCusps(birth, model, house);
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] { RotatePlanet(model.PlanetTable, row, house); });
  }
  AppendOwnedHouses(model);
  FillRashiLords(reference, model);
  FillSignLords(model);
  model.Captions.Title = birth.Title + RotationMark(house);
}

}  // namespace orvex::chart
