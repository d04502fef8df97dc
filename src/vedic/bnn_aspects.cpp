#include "vedic/bnn_aspects.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/attempt.h"
#include "core/text.h"
#include "vedic/bnn.h"

namespace orvex::vedic {

namespace {

using chart::HouseColumn;

// A house that planets aspect; no codes stand for all planets but the nodes.
struct AspectedHouse {
  std::string_view Codes;
  HouseColumn House;
  std::string_view Label;
};

// clang-format off
constexpr std::array<AspectedHouse, 7> kAspectedHouses = {{
    {"",   HouseColumn::Asp7,  "7th - "},
    {"MA", HouseColumn::Asp4,  "    4th - "},
    {"MA", HouseColumn::Asp8,  "    8th - "},
    {"JU", HouseColumn::Asp5,  "    5th - "},
    {"JU", HouseColumn::Asp9,  "    9th - "},
    {"SA", HouseColumn::Asp3,  "    3rd - "},
    {"SA", HouseColumn::Asp10, "    10th - "},
}};
// clang-format on

// The planets of the rashi chart in the house of that number, "" where there is no such house.
std::string PlanetsInHouse(const chart::HoroscopeModel& model, const std::string& house) {
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    if (chart::HouseText(model, row, HouseColumn::House) == house) {
      return chart::HouseText(model, row, HouseColumn::RcPlanets);
    }
  }
  return "";
}

std::string AspectedBy(const chart::HoroscopeModel& model, const std::string& code) {
  const std::optional<std::size_t> row = chart::HouseOfCode(model, code);
  if (!row || code.empty() || code == "RA" || code == "KE") {
    return "";
  }
  std::string text;
  for (const AspectedHouse& aspected : kAspectedHouses) {
    const bool aspects = aspected.Codes.empty() || aspected.Codes == code;
    const std::string planets =
        aspects ? PlanetsInHouse(model, chart::HouseText(model, *row, aspected.House)) : "";
    if (!planets.empty()) {
      text = core::Trim(text + std::string(aspected.Label) + planets);
    }
  }
  return text;
}

}  // namespace

void CheckandShowAllAspects(chart::HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.BnnTable.Rows.size(); ++row) {
    core::Attempt([&] {
      const std::string code =
          core::FirstCharacters(model.BnnTable.At(row, BnnColumn::Pln).Text, 2);
      model.BnnTable.At(row, BnnColumn::Aspecting).Text = AspectedBy(model, code);
    });
  }
}

}  // namespace orvex::vedic
