#include "vedic/vastu.h"

#include <algorithm>
#include <array>
#include <string>

#include "chart/vastu_direction.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "vedic/aspect_grid_places.h"
#include "vedic/vastu_pads.h"
#include "vedic/vastu_plan.h"

namespace orvex::vedic {

namespace {

using chart::AspectColumn;
using chart::PlanetColumn;

constexpr std::size_t kFirstPlanet = static_cast<std::size_t>(GridRow::FirstPlanet);
constexpr std::array<int, 2> kStrikingAspects = {90, 180};

void LayOutTables(chart::HoroscopeModel& model) {
  model.ImpactTable = {};
  model.ImpactTable.Columns = {{"Aspect From", 125},
                               {"From Dir", 75},
                               {"To Dir", 75},
                               {"Impact on House/Planet", 168},
                               {"Aspect", 50}};
  model.HitsTable = {};
  model.HitsTable.Columns = {{"From Planet", 75}, {"From Dir", 75}, {"To Planet", 75},
                             {"To House", 75},    {"To Dir", 75},   {"Aspect", 50},
                             {"Type", 40}};
  core::Table& pads = model.VastuPads;
  pads = {};
  pads.Columns = {{"Pad"}, {"Sign"}, {"Inner"}, {"Outer"}};
  for (std::size_t row = 0; row < kVastuPads.size(); ++row) {
    const VastuPad& pad = kVastuPads.at(row);
    pads.AddRow();
    pads.At(row, PadColumn::Pad).Text = pad.Name;
    pads.At(row, PadColumn::Pad).Tooltip = PadSliceText(row);
    pads.At(row, PadColumn::Pad).Background = pad.Background;
    pads.At(row, PadColumn::Sign).Text = core::WholeText(pad.Sign);
    pads.At(row, PadColumn::Inner).Text = pad.Inner;
    pads.At(row, PadColumn::Outer).Text = pad.Outer;
  }
}

void MarkPads(core::Table& pads, const std::string& sign) {
  for (std::size_t row = 0; row < pads.Rows.size(); ++row) {
    if (pads.At(row, PadColumn::Sign).Text == sign) {
      pads.At(row, PadColumn::Inner).Foreground = core::kRed;
      pads.At(row, PadColumn::Outer).Foreground = core::kRed;
    }
  }
}

bool IsInBand(const core::AspectBandLimits& bands, int aspect, float angle) {
  for (std::size_t i = 0; i < bands.size(); ++i) {
    if (core::kAspects.at(i).Aspect == aspect) {
      return static_cast<float>(bands.at(i).Low) <= angle &&
             angle <= static_cast<float>(bands.at(i).High);
    }
  }
  return false;
}

// What an aspect strikes.
struct Target {
  std::string Direction;
  std::string Name;  // of a planet, or the number of a house
  std::string Sign;
};

// Adds a row for each striking aspect whose band holds the angle (wide bands may overlap) and marks
// the struck pads.
void AddImpacts(chart::HoroscopeModel& model, const core::AspectBandLimits& bands,
                const std::string& from, const std::string& angleText, const Target& target) {
  const float angle = core::ToSingle(angleText);
  for (const int aspect : kStrikingAspects) {
    if (!IsInBand(bands, aspect, angle)) {
      continue;
    }
    core::Table& table = model.ImpactTable;
    const std::size_t row = table.Rows.size();
    table.AddRow();
    table.At(row, ImpactColumn::AspectFrom).Text = from;
    table.At(row, ImpactColumn::ToDir).Text = target.Direction;
    table.At(row, ImpactColumn::Impact).Text = target.Name;
    table.At(row, ImpactColumn::Aspect).Text = core::WholeText(aspect);
    MarkPads(model.VastuPads, target.Sign);
  }
}

const std::string& GridCaption(const chart::HoroscopeModel& model, int sign) {
  return model.AspectGrid.Columns.at(core::Table::Index(GridSign(sign))).Caption;
}

void AddImpactsOnHouses(chart::HoroscopeModel& model, const core::AspectBandLimits& bands) {
  for (std::size_t row = kFirstPlanet; row < model.AspectGrid.Rows.size(); ++row) {
    const std::string& planet = model.AspectGrid.At(row, GridColumn::Dir).Text;
    if (planet == "Rahu" || planet == "Ketu") {
      continue;
    }
    for (int sign = 1; sign <= chart::kSignCount; ++sign) {
      core::Attempt([&] {
        AddImpacts(model, bands, planet, model.AspectGrid.At(row, GridSign(sign)).Text,
                   {GridCaption(model, sign), GridHouse(model, sign).Text, core::WholeText(sign)});
      });
    }
  }
}

void AddImpactsOnPlanets(chart::HoroscopeModel& model, const core::AspectBandLimits& bands) {
  const core::Table& aspects = model.PlanetAspectList;
  for (std::size_t row = 0; row < aspects.Rows.size(); ++row) {
    core::Attempt([&] {
      AddImpacts(model, bands, aspects.At(row, AspectColumn::From).Tag,
                 aspects.At(row, AspectColumn::Angle).Text,
                 {aspects.At(row, AspectColumn::ToDir).Text, aspects.At(row, AspectColumn::To).Tag,
                  aspects.At(row, AspectColumn::ToDir).Tag});
    });
  }
}

// Writes the houses behind the planets of the impacts, and the direction from which each strikes.
void NameHousesOfPlanets(chart::HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.ImpactTable.Rows.size(); ++row) {
    std::string& from = model.ImpactTable.At(row, ImpactColumn::AspectFrom).Text;
    std::string& impact = model.ImpactTable.At(row, ImpactColumn::Impact).Text;
    core::Attempt([&] {
      if (const auto planet = chart::RowOfPlanet(model, from)) {
        from += " (" + chart::HouseList(model, *planet) + ")";
        const std::string& sign = chart::PlanetTag(model, *planet, PlanetColumn::Rashi);
        model.ImpactTable.At(row, ImpactColumn::FromDir).Text =
            chart::VastuDirection(static_cast<int>(core::ParseWhole(sign).value()));
      }
    });
    core::Attempt([&] {
      if (const auto planet = chart::RowOfPlanet(model, impact)) {
        impact += " (" + chart::HouseList(model, *planet) + ")";
      }
    });
  }
}

void AddHit(core::Table& table, const std::array<std::string, 7>& texts) {
  core::Row& hit = table.AddRow();
  std::transform(texts.begin(), texts.end(), hit.Cells.begin(),
                 [](const std::string& text) { return core::Cell{text}; });
}

void AddHitsOnPlanets(chart::HoroscopeModel& model, const char* color, const char* type) {
  const core::Table& aspects = model.PlanetAspectList;
  for (std::size_t row = 0; row < aspects.Rows.size(); ++row) {
    core::Attempt([&] {
      const core::Cell& angle = aspects.At(row, AspectColumn::Angle);
      if (angle.Background == color) {
        AddHit(model.HitsTable,
               {aspects.At(row, AspectColumn::From).Text,
                aspects.At(row, AspectColumn::FromDir).Text, aspects.At(row, AspectColumn::To).Text,
                "", aspects.At(row, AspectColumn::ToDir).Text, angle.Text, type});
      }
    });
  }
}

void AddHitsOnHouses(chart::HoroscopeModel& model, const char* color, const char* type) {
  for (std::size_t row = kFirstPlanet; row < model.AspectGrid.Rows.size(); ++row) {
    for (int sign = 1; sign <= chart::kSignCount; ++sign) {
      core::Attempt([&] {
        const core::Cell& planet = model.AspectGrid.At(row, GridColumn::Dir);
        const core::Cell& angle = model.AspectGrid.At(row, GridSign(sign));
        if (angle.Background == color) {
          AddHit(model.HitsTable,
                 {chart::PlanetCode(planet.Text), planet.Tag, "", GridHouse(model, sign).Text,
                  GridCaption(model, sign), angle.Text, type});
        }
      });
    }
  }
}

}  // namespace

void VastuImpactAnalysis(chart::HoroscopeModel& model, const core::AspectBandLimits& bands) {
  LayOutTables(model);
  AddImpactsOnHouses(model, bands);
  AddImpactsOnPlanets(model, bands);
  NameHousesOfPlanets(model);
  AddHitsOnPlanets(model, core::kGoodColor, "P");
  AddHitsOnPlanets(model, core::kHardColor, "N");
  AddHitsOnHouses(model, core::kGoodColor, "P");
  AddHitsOnHouses(model, core::kHardColor, "N");
}

}  // namespace orvex::vedic
