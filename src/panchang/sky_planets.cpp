#include "panchang/sky_planets.h"

#include <cmath>

#include "chart/combustion.h"
#include "chart/planet_marks.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::panchang {

namespace {

constexpr const char* kRed = "FF0000";
constexpr int kHouses = 12;

// Mars has a second test beside the common one. Unlike that, it holds across 0 degrees on the lower
// side of the Sun.
bool IsNearTheSun(const std::string& planet, float degree, float sun) {
  constexpr float kMarsOrb = 17;
  return planet == "Mars" && degree - kMarsOrb <= sun && degree + kMarsOrb >= sun;
}

}  // namespace

core::Table EmptySkyPlanets() {
  return {{{"Planet", 70},
           {"Rashi", 100},
           {"Degree", 70},
           {"Nakshatra", 120},
           {"Pada", 70},
           {"DB/EX", 70, "Debilitated/Exalted"},
           {"C", 70, "Combust"},
           {"Sign Lord", 80},
           {"Star Lord", 80},
           {"Sub Lord", 80}},
          {}};
}

void AddSkyPlanet(const core::ReferenceData& reference, core::Table& table, const std::string& name,
                  bool retrograde, int rashi, const std::string& degree) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  core::Cell& nameCell = table.At(row, SkyPlanetColumn::Planet);
  nameCell.Text = name;
  if (retrograde) {
    nameCell.Tag = "R";
    nameCell.Foreground = kRed;
  }
  table.At(row, SkyPlanetColumn::Rashi).Text = chart::RashiName(rashi);
  table.At(row, SkyPlanetColumn::Rashi).Tag = core::WholeText(rashi);
  table.At(row, SkyPlanetColumn::Degree).Text = degree;
  if (const auto star = chart::StarInSign(reference, rashi, core::ToDouble(degree))) {
    table.At(row, SkyPlanetColumn::Nakshatra).Text = star->Star->StarName;
    table.At(row, SkyPlanetColumn::Nakshatra).Tag = star->Star->StarLord;
    table.At(row, SkyPlanetColumn::Pada).Text = core::WholeText(star->Pada->Pada);
  }
}

void CheckCombustion(core::Table& planets) {
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    const std::string& sun = planets.At(0, SkyPlanetColumn::Degree).Text;
    const core::Cell& name = planets.At(row, SkyPlanetColumn::Planet);
    core::Attempt([&] {
      const float degree = core::ToSingle(planets.At(row, SkyPlanetColumn::Degree).Text);
      if (chart::IsCombust(name.Text, name.Foreground == kRed, sun, degree) ||
          IsNearTheSun(name.Text, degree, core::ToSingle(sun))) {
        planets.At(row, SkyPlanetColumn::C).Text = "C";
      }
    });
  }
}

void WriteSkyLords(const core::ReferenceData& reference, core::Table& planets) {
  for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
    core::Attempt([&] {
      const core::SubRow& sub = chart::SubOfDegree(
          reference, core::ToDouble(planets.At(row, SkyPlanetColumn::Degree).Text));
      planets.At(row, SkyPlanetColumn::SignLord).Text = sub.RashiLord;
      planets.At(row, SkyPlanetColumn::StarLord).Text = sub.StarLord;
      planets.At(row, SkyPlanetColumn::SubLord).Text = sub.SubLord;
    });
  }
}

void WriteDignities(const core::ReferenceData& reference, core::Table& planets) {
  for (const core::SignRow& sign : reference.Signs) {
    for (std::size_t row = 0; row < planets.Rows.size(); ++row) {
      if (planets.At(row, SkyPlanetColumn::Rashi).Text != sign.Zodiac) {
        continue;
      }
      const std::string& planet = planets.At(row, SkyPlanetColumn::Planet).Text;
      core::Cell& dignity = planets.At(row, SkyPlanetColumn::DbEx);
      if (planet == sign.ExaltedPlanet) {
        dignity.Text = "EX";
      }
      if (planet == sign.DebilitatedPlanet) {
        dignity.Text = "DB";
      }
    }
  }
}

core::Table BuildSkyHouses(const std::vector<PlanetPosition>& positions, int ascendantRashi) {
  core::Table houses{{{"House"}, {"Rashi"}, {"Planets"}}, {}};
  for (int house = 0; house < kHouses; ++house) {
    const int rashi = (ascendantRashi - 1 + house) % kHouses + 1;
    std::vector<std::string> codes;
    if (house == 0) {
      codes.emplace_back("Asc");
    }
    for (const PlanetPosition& planet : positions) {
      if (planet.Rashi == rashi) {
        codes.push_back(chart::PlanetCode(planet.PlanetName) +
                        (planet.InRetro ? chart::kRetrogradeMark : ""));
      }
    }
    houses.AddRow();
    const std::size_t row = houses.Rows.size() - 1;
    houses.At(row, SkyHouseColumn::House).Text = core::WholeText(house + 1);
    houses.At(row, SkyHouseColumn::Rashi).Text = core::WholeText(rashi);
    houses.At(row, SkyHouseColumn::Planets).Text = core::Join(codes, " ");
  }
  return houses;
}

void MarkCombustInHouses(const core::Table& planets, core::Table& houses) {
  for (std::size_t planet = 0; planet < planets.Rows.size(); ++planet) {
    if (planets.At(planet, SkyPlanetColumn::C).Text != "C") {
      continue;
    }
    const std::string code = chart::PlanetCode(planets.At(planet, SkyPlanetColumn::Planet).Text);
    for (std::size_t house = 0; house < houses.Rows.size(); ++house) {
      core::Cell& cell = houses.At(house, SkyHouseColumn::Planets);
      cell.Text = core::ReplaceAll(cell.Text, code, code + chart::kCombustMark);
    }
  }
}

}  // namespace orvex::panchang
