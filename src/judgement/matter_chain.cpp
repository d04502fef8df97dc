#include "judgement/matter_chain.h"

#include <array>

#include "chart/significators.h"
#include "core/exact_numbers.h"
#include "judgement/houses.h"
#include "judgement/planet_marks.h"

namespace orvex::judgement {

namespace {

using chart::HoroscopeModel;
using chart::LevelColumn;
using chart::PlanetColumn;

struct LevelPair {
  LevelColumn Level;
  ChainColumn Chain;
};

constexpr std::array<LevelPair, 4> kLevels = {{{LevelColumn::L1, ChainColumn::L1},
                                               {LevelColumn::L2, ChainColumn::L2},
                                               {LevelColumn::L3, ChainColumn::L3},
                                               {LevelColumn::L4, ChainColumn::L4}}};

core::Table EmptyTable(const char* first) {
  return {{{first, 110},
           {"Planet", 80},
           {"L1", 45},
           {"L2", 45},
           {"L3", 60},
           {"L4", 60},
           {"Supporting", 90},
           {"Denying", 90},
           {"Marks", 140}},
          {}};
}

void AddPlanet(const HoroscopeModel& model, const Matter& matter, const std::string& of,
               std::optional<std::size_t> planetRow, core::Table& table) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, ChainColumn::Of).Text = of;
  if (!planetRow) {
    return;
  }
  table.At(row, ChainColumn::Planet).Text = PlanetText(model, *planetRow, PlanetColumn::Planet);
  std::vector<int> houses;
  for (const LevelPair& level : kLevels) {
    const std::string& text = model.PlanetLevels.At(*planetRow, level.Level).Text;
    table.At(row, level.Chain).Text = text;
    for (const int house : HousesOfText(text)) {
      houses.push_back(house);
    }
  }
  table.At(row, ChainColumn::Supporting).Text = HousesWithin(GivingHouses(matter), houses);
  table.At(row, ChainColumn::Denying).Text = HousesWithin(matter.Denying, houses);
  table.At(row, ChainColumn::Marks).Text = MarksText(StoredMarks(model, *planetRow));
}

std::optional<std::size_t> SubLordOfCusp(const HoroscopeModel& model, int house) {
  const auto row = static_cast<std::size_t>(house) - 1;
  return RowOfPlanet(model, model.CuspTable.At(row, chart::CuspColumn::SubLord).Text);
}

std::optional<std::size_t> LordOf(const HoroscopeModel& model, std::optional<std::size_t> planet,
                                  PlanetColumn lord) {
  return planet ? RowOfPlanet(model, PlanetTag(model, *planet, lord)) : std::nullopt;
}

}  // namespace

core::Table BuildMatterChain(const HoroscopeModel& model, const Matter& matter) {
  core::Table table = EmptyTable("Role");
  const std::optional<std::size_t> subLord = SubLordOfCusp(model, matter.MainCusp);
  AddPlanet(model, matter, "Cusp Sub Lord", subLord, table);
  AddPlanet(model, matter, "Its Star Lord", LordOf(model, subLord, PlanetColumn::StarLord), table);
  AddPlanet(model, matter, "Its Sub Lord", LordOf(model, subLord, PlanetColumn::SubLord), table);
  return table;
}

core::Table BuildMatterCusps(const HoroscopeModel& model, const Matter& matter) {
  core::Table table = EmptyTable("House");
  for (const int house : matter.Supporting) {
    AddPlanet(model, matter, core::WholeText(house), SubLordOfCusp(model, house), table);
  }
  return table;
}

}  // namespace orvex::judgement
