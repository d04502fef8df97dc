// A horoscope model from hand-made positions, without a store.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "chart/house_table.h"
#include "chart/planet_table.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"

namespace orvex::test {

struct PlanetAt {
  const char* Name;
  const char* Degree;
  int House;  // chalit house
  const char* StarLord = "";
  const char* SubLord = "";
  bool Retrograde = false;
};

using CuspDegrees = std::array<std::string, chart::kHouses>;

// Cusps so many degrees into each sign, from Aries.
inline CuspDegrees CuspsAt(double degreeInSign) {
  CuspDegrees cusps;
  for (std::size_t house = 0; house < cusps.size(); ++house) {
    cusps.at(house) = core::TwoDecimals(30 * static_cast<double>(house) + degreeInSign);
  }
  return cusps;
}

// The signs, as much of them as the tables of houses and planets take.
inline core::ReferenceData SignsOnly() {
  core::ReferenceData reference;
  for (int rashi = 1; rashi <= 12; ++rashi) {
    core::SignRow sign;
    sign.Rashi = rashi;
    sign.Zodiac = chart::RashiName(rashi);
    sign.RulingPlanet = chart::RashiLordName(rashi);
    reference.Signs.push_back(sign);
  }
  return reference;
}

inline std::vector<chart::StoredPlanet> Stored(const std::vector<PlanetAt>& planets) {
  std::vector<chart::StoredPlanet> stored;
  for (const PlanetAt& planet : planets) {
    chart::StoredPlanet row;
    row.Name = planet.Name;
    row.Code = chart::PlanetCode(planet.Name);
    row.Degree = core::ToDouble(planet.Degree);
    row.ChalitHouse = core::WholeText(planet.House);
    row.StarLord = planet.StarLord;
    row.SubLord = planet.SubLord;
    row.InRetro = planet.Retrograde;
    stored.push_back(row);
  }
  return stored;
}

// Houses, cusps and planets; Aries stands in the first house unless told otherwise. The planets
// keep their order, in the table as in the houses. The lords of the cusps are left to the test.
inline chart::HoroscopeModel BuildModel(const std::vector<PlanetAt>& planets,
                                        const CuspDegrees& cusps = CuspsAt(15),
                                        int houseOfAries = 1) {
  const core::ReferenceData reference = SignsOnly();
  const std::vector<chart::StoredPlanet> stored = Stored(planets);
  chart::HoroscopeModel model;
  model.FirstRashiHouse = houseOfAries;
  chart::AddHouseRows(model);
  chart::FillCusps(model, cusps);
  chart::FillBcPlanets(model, stored);
  chart::FillRashis(reference, model);
  chart::FillRcPlanets(model, stored);
  chart::FillPlanetTable(reference, model, stored);
  chart::AppendOwnedHouses(model);
  chart::FillRashiLords(reference, model);
  chart::FillSignLords(model);
  chart::FillTenancy(model);
  model.CuspTable.Columns.resize(core::Table::Index(chart::CuspColumn::PlanetsSig) + 1);
  for (std::size_t row = 0; row < chart::kHouses; ++row) {
    model.CuspTable.AddRow();
    model.CuspTable.At(row, chart::CuspColumn::House).Text =
        HouseText(model, row, chart::HouseColumn::House);
    model.CuspTable.At(row, chart::CuspColumn::Degree).Text = cusps.at(row);
  }
  return model;
}

// Every planet in the sign of its house, each cusp in the middle of a sign. Venus stands in its own
// star; in the stars of Mars and Mercury stands nobody.
inline chart::HoroscopeModel WorkedModel() {
  return BuildModel({{"Ketu", "200.00", 7, "Venus", "Rahu"},
                     {"Venus", "40.00", 2, "Venus", "Sun"},
                     {"Sun", "100.00", 4, "Saturn", "Ketu"},
                     {"Moon", "75.00", 3, "Rahu", "Moon"},
                     {"Mars", "130.00", 5, "Ketu", "Jupiter"},
                     {"Rahu", "20.00", 1, "Moon", "Mars"},
                     {"Jupiter", "250.00", 9, "Ketu", "Saturn"},
                     {"Saturn", "310.00", 11, "Jupiter", "Venus"},
                     {"Mercury", "105.00", 4, "Sun", "Mars"}});
}

// Only the first rows and no cell of the last of them, as a damaged store gives.
inline chart::HoroscopeModel DamagedModel(std::size_t houses, std::size_t planets) {
  chart::HoroscopeModel model = WorkedModel();
  const auto cut = [](core::Table& table, std::size_t rows) {
    table.Rows.resize(rows);
    if (rows > 0) {
      table.Rows.back().Cells.assign(table.Columns.size(), {});
    }
  };
  cut(model.HouseTable, houses);
  cut(model.PlanetTable, planets);
  return model;
}

// The texts of a column from top to bottom.
template <typename ColumnName>
std::vector<std::string> TextsOf(const core::Table& table, ColumnName column) {
  std::vector<std::string> texts;
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    texts.push_back(table.At(row, column).Text);
  }
  return texts;
}

}  // namespace orvex::test
