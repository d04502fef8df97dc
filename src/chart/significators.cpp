#include "chart/significators.h"

#include <array>

#include "chart/aspects.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using HouseTexts = std::array<std::string, kHouses>;

std::size_t HouseIndex(const std::string& house) {
  return static_cast<std::size_t>(core::ParseWhole(house).value()) - 1;
}

void Append(std::string& text, const std::string& word) { text = core::Trim(text + " " + word); }

void AppendOnce(std::string& text, const std::string& code) {
  if (!core::ContainsIgnoringCase(text, code)) {
    Append(text, code);
  }
}

void AddOccupantAndOwner(const HoroscopeModel& model, std::size_t row, HouseTexts& texts) {
  const std::string code = CodeOfRow(model, row);
  core::Attempt(
      [&] { Append(texts.at(HouseIndex(PlanetText(model, row, PlanetColumn::In))), code); });
  for (const std::string& house : core::SplitWords(PlanetText(model, row, PlanetColumn::Owner))) {
    core::Attempt([&] { AppendOnce(texts.at(HouseIndex(house)), code); });
  }
}

void AddByStarLord(const HoroscopeModel& model, std::size_t row, HouseTexts& texts) {
  const std::vector<std::string> pieces =
      core::Split(PlanetText(model, row, PlanetColumn::StarLord), '(');
  for (const std::string& house : core::SplitWords(core::ReplaceAll(pieces.at(1), ")", ""))) {
    AppendOnce(texts.at(HouseIndex(house)), CodeOfRow(model, row));
  }
}

// The houses of a planet row; "" where the table has no such planet.
std::string HousesOfCode(const HoroscopeModel& model, const std::string& code) {
  const std::optional<std::size_t> row = RowOfCode(model, code);
  return row ? HouseList(model, *row) : "";
}

std::string LordCode(const HoroscopeModel& model, std::size_t row, PlanetColumn lord) {
  return PlanetCode(PlanetText(model, row, lord));
}

// Planets that stand with a node, planets that stand opposite, planets that aspect it.
std::string OtherAgents(const HoroscopeModel& model, const std::string& node) {
  const std::string otherNode = node == "RA" ? "KE" : "RA";
  std::string houses;
  if (const std::optional<std::size_t> house = HouseOfCode(model, node)) {
    for (const std::string& code :
         core::SplitWords(HouseText(model, *house, HouseColumn::RcPlanets))) {
      Append(houses, code == node ? "" : HousesOfCode(model, code));
    }
    for (const std::string& code :
         core::SplitWords(AspectedPlanets(model, *house, HouseColumn::Asp7))) {
      Append(houses, code == otherNode ? "" : HousesOfCode(model, code));
    }
  }
  struct Aspecting {
    const char* Code;
    HouseColumn Aspect;
  };
  constexpr std::array<Aspecting, 6> kAspecting = {{{"SA", HouseColumn::Asp3},
                                                    {"SA", HouseColumn::Asp10},
                                                    {"MA", HouseColumn::Asp4},
                                                    {"MA", HouseColumn::Asp8},
                                                    {"JU", HouseColumn::Asp5},
                                                    {"JU", HouseColumn::Asp9}}};
  for (const Aspecting& planet : kAspecting) {
    if (core::Contains(AspectedBy(model, planet.Code, planet.Aspect), node)) {
      Append(houses, HousesOfCode(model, planet.Code));
    }
  }
  return houses;
}

std::string NadiHouses(const HoroscopeModel& model, std::size_t row) {
  const std::string code = CodeOfRow(model, row);
  std::string houses = HouseList(model, row);
  if (code == "RA" || code == "KE") {
    const std::string lords = HousesOfCode(model, LordCode(model, row, PlanetColumn::SignLord)) +
                              " " +
                              HousesOfCode(model, LordCode(model, row, PlanetColumn::StarLord));
    houses = core::Trim(houses + " " + lords + " " + OtherAgents(model, code));
  }
  return houses;
}

// The houses of a list in ascending order, each once.
std::string Ascending(const std::string& houses) {
  std::array<bool, kHouses> marked{};
  for (const std::string& house : core::SplitWords(houses)) {
    marked.at(HouseIndex(house)) = true;
  }
  std::string ascending;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    Append(ascending, marked.at(i) ? core::WholeText(static_cast<int>(i) + 1) : "");
  }
  return ascending;
}

void AddNadiRow(HoroscopeModel& model, std::size_t planetRow) {
  core::Row& row = model.NadiTable.AddRow();
  row.Tag = CodeOfRow(model, planetRow);
  core::Attempt([&] {
    core::Cell& cell = row.Cells.at(core::Table::Index(NadiColumn::Planet));
    cell.Tag = Ascending(NadiHouses(model, planetRow));
    cell.Text = row.Tag + " (" + cell.Tag + ")";
  });
}

// The cell of the planet with that code; its text is code and houses.
std::string NadiText(const HoroscopeModel& model, const std::string& code) {
  for (std::size_t row = 0; row < model.NadiTable.Rows.size(); ++row) {
    if (model.NadiTable.Rows[row].Tag == code) {
      return model.NadiTable.At(row, NadiColumn::Planet).Text;
    }
  }
  return "";
}

void CountNadiHouses(HoroscopeModel& model) {
  core::Table& table = model.NadiHouseTimes;
  table = {{{"House", 50}}, {}};
  for (int house = 1; house <= static_cast<int>(kHouses); ++house) {
    table.Columns.push_back({core::WholeText(house), 27, "", true});
  }
  std::array<int, kHouses> times{};
  for (std::size_t row = 0; row < model.NadiTable.Rows.size(); ++row) {
    for (const std::string& house :
         core::SplitWords(model.NadiTable.At(row, NadiColumn::Planet).Tag)) {
      ++times.at(HouseIndex(house));
    }
  }
  core::Row& counts = table.AddRow();
  counts.Cells.front().Text = "Times";
  for (std::size_t house = 0; house < kHouses; ++house) {
    counts.Cells.at(house + 1).Text = core::WholeText(times.at(house));
  }
}

struct LordOf {
  LevelColumn Column;
  CuspColumn CuspLord;
  PlanetColumn PlanetLord;
};

constexpr std::array<LordOf, 2> kLordsOf = {
    {{LevelColumn::StarLordOf, CuspColumn::StarLord, PlanetColumn::StarLord},
     {LevelColumn::SubLordOf, CuspColumn::SubLord, PlanetColumn::SubLord}}};

// Cusps, then in brackets planets, of which a planet is that lord.
std::string RuledBy(const HoroscopeModel& model, const std::string& planet, const LordOf& lord) {
  std::string planets;
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    if (LordCode(model, row, lord.PlanetLord) == PlanetCode(planet)) {
      Append(planets, CodeOfRow(model, row));
    }
  }
  std::string cusps;
  for (std::size_t row = 0; row < model.CuspTable.Rows.size(); ++row) {
    if (model.CuspTable.At(row, lord.CuspLord).Text == planet) {
      Append(cusps, model.CuspTable.At(row, CuspColumn::House).Text);
    }
  }
  return core::Trim(cusps + (planets.empty() ? "" : " (" + planets + ")"));
}

void FillLevels(HoroscopeModel& model, std::size_t row) {
  core::Table& table = model.PlanetLevels;
  const std::string& planet = PlanetText(model, row, PlanetColumn::Planet);
  table.At(row, LevelColumn::Planet).Text = planet;
  const std::string& tenancy = PlanetText(model, row, PlanetColumn::Stu);
  table.At(row, LevelColumn::Stu).Text = core::FirstCharacters(tenancy, 1);
  table.At(row, LevelColumn::Stu).Tooltip = tenancy;
  if (const std::optional<std::size_t> lord =
          RowOfPlanet(model, PlanetTag(model, row, PlanetColumn::StarLord))) {
    table.At(row, LevelColumn::L1).Text = PlanetText(model, *lord, PlanetColumn::In);
    table.At(row, LevelColumn::L3).Text = PlanetText(model, *lord, PlanetColumn::Owner);
  }
  table.At(row, LevelColumn::L2).Text = PlanetText(model, row, PlanetColumn::In);
  table.At(row, LevelColumn::L4).Text = PlanetText(model, row, PlanetColumn::Owner);
  for (const LordOf& lord : kLordsOf) {
    table.At(row, lord.Column).Text = RuledBy(model, planet, lord);
  }
}

}  // namespace

void CuspSignificators(HoroscopeModel& model) {
  HouseTexts texts;
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    AddOccupantAndOwner(model, row, texts);
  }
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    core::Attempt([&] { AddByStarLord(model, row, texts); });
  }
  for (std::size_t row = 0; row < model.CuspTable.Rows.size(); ++row) {
    model.CuspTable.At(row, CuspColumn::PlanetsSig).Text = core::UpperCase(texts.at(row));
  }
}

void NadiSignificators(HoroscopeModel& model) {
  model.NadiTable = {{{"Planet", 125}, {"Star Lord", 125}, {"Sub Lord", 125}}, {}};
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    AddNadiRow(model, row);
  }
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    model.NadiTable.At(row, NadiColumn::StarLord).Text =
        NadiText(model, LordCode(model, row, PlanetColumn::StarLord));
    model.NadiTable.At(row, NadiColumn::SubLord).Text =
        NadiText(model, LordCode(model, row, PlanetColumn::SubLord));
  }
  CountNadiHouses(model);
}

void PlanetLevels(HoroscopeModel& model) {
  model.PlanetLevels = {{{"Planet", 68},
                         {"STU", 36},
                         {"L1", 45},
                         {"L2", 45},
                         {"L3", 45},
                         {"L4", 45},
                         {"Star Lord Of", 100},
                         {"Sub Lord Of", 100}},
                        {}};
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    model.PlanetLevels.AddRow();
    core::Attempt([&] { FillLevels(model, row); });
  }
}

}  // namespace orvex::chart
