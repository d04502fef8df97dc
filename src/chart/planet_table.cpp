#include "chart/planet_table.h"

#include <array>

#include "chart/sub_sub_lord.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

std::string GenderText(const std::string& letter) {
  if (letter == "M") {
    return "Male";
  }
  return letter == "F" ? "Female" : "Neutral";
}

core::Table EmptyTable() {
  core::Table table;
  table.Columns = {{"Planet"},    {"In"},        {"Rashi"},    {"Type"},         {"Owner"},
                   {"Sign Lord"}, {"Star Lord"}, {"Sub Lord"}, {"Sub Sub Lord"}, {"Degree"},
                   {"Nakshatra"}, {"Pada"},      {"Gunas"},    {"S/T/U"},        {"DB/EX"},
                   {"R"},         {"C"}};
  return table;
}

// One planet's row while it is filled.
struct PlanetFill {
  const core::ReferenceData& Reference;
  const HoroscopeModel& Model;
  const StoredPlanet& Planet;
  core::Table& Table;
  std::size_t Row;

  core::Cell& Cell(PlanetColumn column) const { return Table.At(Row, column); }
  int Rashi() const { return RashiOfDegree(Planet.Degree); }
  std::string Degree() const { return core::TwoDecimals(Planet.Degree); }
  const core::SignRow& Sign() const {
    return Reference.Signs.at(static_cast<std::size_t>(Rashi()) - 1);
  }
};

void FillName(const PlanetFill& fill) {
  core::Cell& cell = fill.Cell(PlanetColumn::Planet);
  cell.Text = fill.Planet.Name;
  cell.Tooltip = "Astro Number for " + fill.Planet.Name + ": " + fill.Planet.AstroNumber +
                 " | Dasha Years: " + fill.Planet.DashaYears;
  const std::optional<std::size_t> house = HouseOfRashi(fill.Model, core::WholeText(fill.Rashi()));
  cell.Tag = house ? HouseText(fill.Model, *house, HouseColumn::House) : "";
  core::Cell& tenancy = fill.Cell(PlanetColumn::Stu);
  tenancy.Tag = PlanetCode(fill.Planet.Name);
}

void FillSign(const PlanetFill& fill) {
  core::Cell& cell = fill.Cell(PlanetColumn::Rashi);
  cell.Tag = core::WholeText(fill.Rashi());
  cell.Text = fill.Sign().Zodiac;
}

// The last of the three lists that names the planet counts.
void FillType(const PlanetFill& fill) {
  std::string type = "Neutral";
  const core::SignRow& sign = fill.Sign();
  if (core::Contains(sign.BeneficPlanets, fill.Planet.Name)) {
    type = "Benefic";
  }
  if (core::Contains(sign.MaleficPlanets, fill.Planet.Name)) {
    type = "Malefic";
  }
  if (core::Contains(sign.NeutralPlanets, fill.Planet.Name)) {
    type = "Neutral";
  }
  fill.Cell(PlanetColumn::Type).Text = type;
}

void FillOwner(const PlanetFill& fill) {
  std::string houses;
  for (std::size_t row = 0; row < kHouses; ++row) {
    const std::string& rashi = HouseText(fill.Model, row, HouseColumn::KpChartRashi);
    for (const core::SignRow& sign : fill.Reference.Signs) {
      if (core::WholeText(sign.Rashi) == rashi && sign.RulingPlanet == fill.Planet.Name) {
        houses = core::Trim(houses + " " + HouseText(fill.Model, row, HouseColumn::House));
      }
    }
  }
  core::Cell& cell = fill.Cell(PlanetColumn::Owner);
  cell.Text = houses;
  cell.Tag = core::Trim(fill.Planet.ChalitHouse + " " + houses);
}

void FillLord(const PlanetFill& fill, PlanetColumn column, const std::string& lord) {
  fill.Cell(column).Text = lord;
  fill.Cell(column).Tag = lord;
}

void FillDegree(const PlanetFill& fill) {
  constexpr double kSignDegrees = 30;
  constexpr double kLastOfAries = 29.99;
  core::Cell& cell = fill.Cell(PlanetColumn::Degree);
  cell.Text = fill.Degree();
  cell.Tag = cell.Text;
  cell.Tooltip = cell.Text;
  cell.SortKey = cell.Text;
  const double within = fill.Planet.Degree > kLastOfAries
                            ? fill.Planet.Degree - (fill.Rashi() - 1) * kSignDegrees
                            : fill.Planet.Degree;
  fill.Cell(PlanetColumn::R).Tag = core::TwoDecimals(within);
}

void FillStar(const PlanetFill& fill) {
  const std::optional<StarAndPada> inSign =
      StarInSign(fill.Reference, fill.Rashi(), fill.Planet.Degree);
  const StarAndPada star = inSign ? *inSign : StarOfDegree(fill.Reference, fill.Planet.Degree);
  core::Cell& name = fill.Cell(PlanetColumn::Nakshatra);
  name.Text = star.Star->StarName;
  name.Tooltip = "Gender: " + GenderText(star.Star->Gender);
  fill.Cell(PlanetColumn::Pada).Text = core::WholeText(star.Pada->Pada);
  fill.Cell(PlanetColumn::Gunas).Text =
      core::Join({star.Star->Guna1, star.Star->Guna2, star.Star->Guna3}, " ");
}

void FillRow(const PlanetFill& fill) {
  fill.Table.Rows[fill.Row].Tag = fill.Planet.Id;
  core::Attempt([&] { FillName(fill); });
  core::Attempt([&] { fill.Cell(PlanetColumn::In).Text = fill.Planet.ChalitHouse; });
  core::Attempt([&] { FillSign(fill); });
  core::Attempt([&] { FillType(fill); });
  core::Attempt([&] { FillOwner(fill); });
  core::Attempt([&] { FillLord(fill, PlanetColumn::StarLord, fill.Planet.StarLord); });
  core::Attempt([&] { FillLord(fill, PlanetColumn::SubLord, fill.Planet.SubLord); });
  core::Attempt([&] {
    FillLord(fill, PlanetColumn::SubSubLord, SubSubLord(fill.Reference, fill.Planet.Degree));
  });
  core::Attempt([&] { FillDegree(fill); });
  core::Attempt([&] { FillStar(fill); });
  core::Attempt([&] { fill.Cell(PlanetColumn::R).Text = fill.Planet.InRetro ? "R" : ""; });
}

bool IsTenanted(const HoroscopeModel& model, const std::string& planet) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    if (PlanetTag(model, row, PlanetColumn::StarLord) == planet) {
      return true;
    }
  }
  return false;
}

}  // namespace

void FillPlanetTable(const core::ReferenceData& reference, HoroscopeModel& model,
                     const std::vector<StoredPlanet>& planets) {
  model.PlanetTable = EmptyTable();
  for (const StoredPlanet& planet : planets) {
    model.PlanetTable.AddRow();
    FillRow({reference, model, planet, model.PlanetTable, model.PlanetTable.Rows.size() - 1});
  }
}

void AppendOwnedHouses(HoroscopeModel& model) {
  constexpr std::array<PlanetColumn, 3> kLords = {PlanetColumn::StarLord, PlanetColumn::SubLord,
                                                  PlanetColumn::SubSubLord};
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    for (const PlanetColumn lord : kLords) {
      core::Cell& cell = model.PlanetTable.At(row, lord);
      cell.Text = WithHouses(model, cell.Text);
    }
  }
}

void FillSignLords(HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const std::string& house = PlanetTag(model, row, PlanetColumn::Planet);
      const auto houseRow = static_cast<std::size_t>(core::ParseWhole(house).value()) - 1;
      const core::Cell& lord = model.HouseTable.At(houseRow, HouseColumn::RashiLord);
      // Text and tag alone: the tint of the row stays.
      model.PlanetTable.At(row, PlanetColumn::SignLord).Text = lord.Text;
      model.PlanetTable.At(row, PlanetColumn::SignLord).Tag = lord.Tag;
    });
  }
}

void FillTenancy(HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::string& planet = PlanetText(model, row, PlanetColumn::Planet);
    std::string& tenancy = model.PlanetTable.At(row, PlanetColumn::Stu).Text;
    if (!IsTenanted(model, planet)) {
      tenancy = "Untenanted";
    } else {
      tenancy = PlanetTag(model, row, PlanetColumn::StarLord) == planet ? "Self" : "Tenanted";
    }
  }
}

void FillDignity(const core::ReferenceData& reference, HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    const std::string& planet = PlanetText(model, row, PlanetColumn::Planet);
    for (const core::SignRow& sign : reference.Signs) {
      if (PlanetText(model, row, PlanetColumn::Rashi) != sign.Zodiac) {
        continue;
      }
      std::string& dignity = model.PlanetTable.At(row, PlanetColumn::DbEx).Text;
      if (sign.ExaltedPlanet == planet) {
        dignity = "EX";
      } else if (sign.DebilitatedPlanet == planet) {
        dignity = "DB";
      }
    }
  }
}

void FillStarTable(const core::ReferenceData& reference, HoroscopeModel& model) {
  core::Table& table = model.StarTable;
  table = {};
  table.Columns = {{"Star Name"}, {"Gender"}, {"Guna 1"}, {"Guna 2"},       {"Guna 3"},
                   {"Star Lord"}, {"Rashi"},  {"Pada"},   {"Start Degree"}, {"End Degree"}};
  for (const core::StarRow& star : reference.Stars) {
    for (const core::PadaRow& pada : reference.Padas) {
      if (pada.StarId != star.Sequence) {
        continue;
      }
      table.AddRow();
      const std::size_t row = table.Rows.size() - 1;
      table.At(row, StarColumn::StarName).Text = star.StarName;
      table.At(row, StarColumn::Gender).Text = GenderText(star.Gender);
      table.At(row, StarColumn::Guna1).Text = star.Guna1;
      table.At(row, StarColumn::Guna2).Text = star.Guna2;
      table.At(row, StarColumn::Guna3).Text = star.Guna3;
      table.At(row, StarColumn::StarLord).Text = star.StarLord;
      table.At(row, StarColumn::Rashi).Text = core::WholeText(pada.Rashi);
      table.At(row, StarColumn::Pada).Text = core::WholeText(pada.Pada);
      table.At(row, StarColumn::StartDegree).Text = core::DoubleText(pada.StartCDegree);
      table.At(row, StarColumn::EndDegree).Text = core::DoubleText(pada.EndCDegree);
    }
  }
}

}  // namespace orvex::chart
