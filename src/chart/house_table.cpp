#include "chart/house_table.h"

#include <utility>

#include "chart/house_placement.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

struct AspectHouse {
  HouseColumn Column;
  int Places;
};

constexpr std::array<AspectHouse, 7> kAspectHouses = {{{HouseColumn::Asp3, 3},
                                                       {HouseColumn::Asp4, 4},
                                                       {HouseColumn::Asp5, 5},
                                                       {HouseColumn::Asp7, 7},
                                                       {HouseColumn::Asp8, 8},
                                                       {HouseColumn::Asp9, 9},
                                                       {HouseColumn::Asp10, 10}}};

void AppendWord(std::string& text, const std::string& word) {
  text = core::Trim(text + " " + word);
}

std::string SignTypeText(const std::string& letter) {
  if (letter == "M") {
    return "Movable";
  }
  if (letter == "F") {
    return "Fixed";
  }
  return letter == "D" ? "Dual" : "";
}

std::string SignFacts(const core::SignRow& sign) {
  std::string facts = sign.Zodiac + " (" + sign.StartDegree + " to " + sign.EndDegree + " | " +
                      sign.Element + " | " + (sign.Gender == "M" ? "Male" : "Female") + " | " +
                      SignTypeText(sign.SignType);
  facts += sign.Barren ? " | Barren" : "";
  facts += sign.Mute ? " | Mute" : "";
  facts += sign.Fruitful ? " | Fruitful" : "";
  facts += sign.Voice ? " | Voice" : "";
  return facts + ")";
}

}  // namespace

int HouseOnFrom(int house, int places) {
  const int on = house + places - 1;
  return on > static_cast<int>(kHouses) ? on - static_cast<int>(kHouses) : on;
}

void AddHouseRows(HoroscopeModel& model) {
  model.HouseTable = {};
  model.HouseTable.Columns = {{"House"},          {"BC Planets"},
                              {"Rashi"},          {"RC Planets"},
                              {"Rashi Lord"},     {"Cusp Degree"},
                              {"ASP3"},           {"ASP4"},
                              {"ASP5"},           {"ASP8"},
                              {"ASP9"},           {"ASP10"},
                              {"KP Chart Rashi"}, {"KP Chart Rashi Owner"},
                              {"ASP7"},           {"Retro Rashi"}};
  for (int house = 1; house <= static_cast<int>(kHouses); ++house) {
    model.HouseTable.AddRow();
    const auto row = static_cast<std::size_t>(house) - 1;
    model.HouseTable.At(row, HouseColumn::House).Text = core::WholeText(house);
    for (const AspectHouse& aspect : kAspectHouses) {
      model.HouseTable.At(row, aspect.Column).Text =
          core::WholeText(HouseOnFrom(house, aspect.Places));
    }
  }
}

void FillCusps(HoroscopeModel& model, const std::array<std::string, kHouses>& cuspDegrees) {
  for (std::size_t row = 0; row < kHouses; ++row) {
    core::Attempt([&] {
      model.HouseTable.At(row, HouseColumn::CuspDegree).Text = cuspDegrees.at(row);
      const int rashi = RashiOfDegree(core::ToDouble(cuspDegrees.at(row)));
      model.HouseTable.At(row, HouseColumn::KpChartRashi).Text = core::WholeText(rashi);
      model.HouseTable.At(row, HouseColumn::KpChartRashiOwner).Text = RashiLordName(rashi);
    });
  }
}

void FillRashis(const core::ReferenceData& reference, HoroscopeModel& model) {
  for (std::size_t row = 0; row < kHouses; ++row) {
    const int rashi = RashiOfHouse(static_cast<int>(row) + 1, model.FirstRashiHouse);
    core::Cell& cell = model.HouseTable.At(row, HouseColumn::Rashi);
    cell.Text = core::WholeText(rashi);
    core::Attempt(
        [&] { cell.Tag = SignFacts(reference.Signs.at(static_cast<std::size_t>(rashi) - 1)); });
  }
}

void FillBcPlanets(HoroscopeModel& model, const std::vector<StoredPlanet>& planets) {
  for (std::size_t row = 0; row < kHouses; ++row) {
    std::string& codes = model.HouseTable.At(row, HouseColumn::BcPlanets).Text;
    for (const StoredPlanet& planet : planets) {
      if (planet.ChalitHouse == HouseText(model, row, HouseColumn::House)) {
        AppendWord(codes, planet.Code);
      }
    }
  }
}

void FillRcPlanets(HoroscopeModel& model, const std::vector<StoredPlanet>& planets) {
  for (const StoredPlanet& planet : planets) {
    const std::string rashi = core::WholeText(RashiOfDegree(planet.Degree));
    if (const std::optional<std::size_t> row = HouseOfRashi(model, rashi)) {
      AppendWord(model.HouseTable.At(*row, HouseColumn::RcPlanets).Text, planet.Code);
    }
  }
}

void FillRashiLords(const core::ReferenceData& reference, HoroscopeModel& model) {
  for (const core::SignRow& sign : reference.Signs) {
    if (const std::optional<std::size_t> row = HouseOfRashi(model, core::WholeText(sign.Rashi))) {
      core::Cell& cell = model.HouseTable.At(*row, HouseColumn::RashiLord);
      cell.Text = WithHouses(model, sign.RulingPlanet);
      cell.Tag = sign.RulingPlanet;
    }
  }
}

}  // namespace orvex::chart
