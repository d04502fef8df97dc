#include "chart/horoscope_model.h"

#include "chart/zodiac_lookups.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

template <typename Matches>
std::optional<std::size_t> FirstMatch(const core::Table& table, Matches matches) {
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    if (matches(row)) {
      return row;
    }
  }
  return std::nullopt;
}

}  // namespace

const std::string& PlanetText(const HoroscopeModel& model, std::size_t row, PlanetColumn column) {
  return model.PlanetTable.At(row, column).Text;
}

std::string CodeOfRow(const HoroscopeModel& model, std::size_t row) {
  return PlanetCode(PlanetText(model, row, PlanetColumn::Planet));
}

const std::string& PlanetTag(const HoroscopeModel& model, std::size_t row, PlanetColumn column) {
  return model.PlanetTable.At(row, column).Tag;
}

const std::string& HouseText(const HoroscopeModel& model, std::size_t row, HouseColumn column) {
  return model.HouseTable.At(row, column).Text;
}

std::optional<std::size_t> RowOfPlanet(const HoroscopeModel& model, const std::string& name) {
  return FirstMatch(model.PlanetTable, [&](std::size_t row) {
    return PlanetText(model, row, PlanetColumn::Planet) == name;
  });
}

std::optional<std::size_t> RowOfCode(const HoroscopeModel& model, const std::string& code) {
  return FirstMatch(model.PlanetTable, [&](std::size_t row) {
    return PlanetCode(PlanetText(model, row, PlanetColumn::Planet)) == code;
  });
}

std::optional<std::size_t> HouseOfCode(const HoroscopeModel& model, const std::string& code) {
  return FirstMatch(model.HouseTable, [&](std::size_t row) {
    return core::Contains(HouseText(model, row, HouseColumn::RcPlanets), code);
  });
}

std::optional<std::size_t> HouseOfRashi(const HoroscopeModel& model, const std::string& rashi) {
  return FirstMatch(model.HouseTable, [&](std::size_t row) {
    return HouseText(model, row, HouseColumn::Rashi) == rashi;
  });
}

std::string HouseList(const HoroscopeModel& model, std::size_t row) {
  return core::Trim(PlanetText(model, row, PlanetColumn::In) + " " +
                    PlanetText(model, row, PlanetColumn::Owner));
}

std::string WithHouses(const HoroscopeModel& model, const std::string& name) {
  const std::optional<std::size_t> row = RowOfPlanet(model, name);
  return row ? name + " (" + PlanetTag(model, *row, PlanetColumn::Owner) + ")" : name;
}

}  // namespace orvex::chart
