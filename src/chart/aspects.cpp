#include "chart/aspects.h"

#include <algorithm>
#include <array>

#include "chart/vastu_direction.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

struct SpecialAspects {
  const char* Planet;
  const char* Code;
  HouseColumn First;
  int FirstPlaces;
  const char* FirstName;
  HouseColumn Second;
  int SecondPlaces;
  const char* SecondName;
  std::string HoroscopeCaptions::*Caption;
};

constexpr std::array<SpecialAspects, 3> kSpecialAspects = {
    {{"Saturn", "SA", HouseColumn::Asp3, 3, "3rd", HouseColumn::Asp10, 10, "10th",
      &HoroscopeCaptions::SaturnAspects},
     {"Mars", "MA", HouseColumn::Asp4, 4, "4th", HouseColumn::Asp8, 8, "8th",
      &HoroscopeCaptions::MarsAspects},
     {"Jupiter", "JU", HouseColumn::Asp5, 5, "5th", HouseColumn::Asp9, 9, "9th",
      &HoroscopeCaptions::JupiterAspects}}};

std::string AspectPiece(const char* name, const std::string& planets) {
  return planets.empty() ? "" : std::string(" (") + name + " Aspect - " + planets + ")";
}

bool IsNodeCode(const std::string& code) { return code == "RA" || code == "KE"; }

struct PlanetPair {
  std::string From;
  std::string To;
};

float LongitudeOf(const HoroscopeModel& model, const std::string& code) {
  const std::size_t row = RowOfCode(model, code).value();
  return core::ToSingle(PlanetTag(model, row, PlanetColumn::Degree));
}

// The angle forward from one planet to the other: 360 for two at one degree.
float ForwardAngle(const HoroscopeModel& model, const PlanetPair& pair) {
  const float from = LongitudeOf(model, pair.From);
  const float to = LongitudeOf(model, pair.To);
  return to > from ? to - from : to + (360 - from);
}

bool IsWanted(const std::string& filter, bool good) {
  if (filter == "+") {
    return good;
  }
  return filter != "-" || !good;
}

// The code and, as tag, the name of a planet.
void WritePlanet(const HoroscopeModel& model, const std::string& code, core::Cell& cell) {
  cell.Text = code;
  if (const std::optional<std::size_t> row = RowOfCode(model, code)) {
    cell.Tag = PlanetText(model, *row, PlanetColumn::Planet);
  }
}

void WriteDirection(const HoroscopeModel& model, const std::string& code, core::Cell& cell) {
  if (const std::optional<std::size_t> house = HouseOfCode(model, code)) {
    const std::string& rashi = HouseText(model, *house, HouseColumn::Rashi);
    cell.Text = VastuDirection(static_cast<int>(core::ParseWhole(rashi).value_or(0)));
    cell.Tag = rashi;
  }
}

void AddAspect(HoroscopeModel& model, const PlanetPair& pair, float angle, bool good) {
  core::Table& list = model.PlanetAspectList;
  list.AddRow();
  const std::size_t row = list.Rows.size() - 1;
  WritePlanet(model, pair.From, list.At(row, AspectColumn::From));
  WritePlanet(model, pair.To, list.At(row, AspectColumn::To));
  WriteDirection(model, pair.From, list.At(row, AspectColumn::FromDir));
  list.At(row, AspectColumn::FromDir).Tag.clear();
  WriteDirection(model, pair.To, list.At(row, AspectColumn::ToDir));
  core::Cell& cell = list.At(row, AspectColumn::Angle);
  cell.Text = core::TwoDecimals(angle);
  cell.Tag = good ? "+" : "-";
  cell.Background = good ? core::kGoodColor : core::kHardColor;
}

void ListPair(HoroscopeModel& model, const core::AspectBandLimits& bands, const std::string& filter,
              const PlanetPair& pair) {
  const float angle = ForwardAngle(model, pair);
  if (angle == 360) {
    return;
  }
  const int aspect = core::AspectOfAngle(bands, angle);
  if (aspect < 0) {
    return;
  }
  const bool good = core::kAspects.at(static_cast<std::size_t>(aspect)).Good;
  if (IsWanted(filter, good)) {
    AddAspect(model, pair, angle, good);
  }
}

// All planets in the order of the houses that hold them.
std::vector<std::string> CodesByHouse(const HoroscopeModel& model) {
  std::vector<std::string> codes;
  for (std::size_t row = 0; row < model.HouseTable.Rows.size(); ++row) {
    for (std::string& code : core::SplitWords(HouseText(model, row, HouseColumn::RcPlanets))) {
      codes.push_back(std::move(code));
    }
  }
  return codes;
}

}  // namespace

std::string AspectedPlanets(const HoroscopeModel& model, std::size_t houseRow, HouseColumn aspect) {
  const std::optional<std::int64_t> house = core::ParseWhole(HouseText(model, houseRow, aspect));
  const std::size_t aspected = static_cast<std::size_t>(house.value_or(0)) - 1;
  if (aspected >= model.HouseTable.Rows.size()) {
    return "";
  }
  return HouseText(model, aspected, HouseColumn::RcPlanets);
}

std::string AspectedBy(const HoroscopeModel& model, const std::string& code, HouseColumn aspect) {
  const std::optional<std::size_t> house = HouseOfCode(model, code);
  return house ? AspectedPlanets(model, *house, aspect) : "";
}

bool AspectsPlace(const std::string& planet, int places) {
  constexpr int kOpposite = 7;
  if (planet == "Rahu" || planet == "Ketu") {
    return false;
  }
  const auto* special =
      std::find_if(kSpecialAspects.begin(), kSpecialAspects.end(),
                   [&planet](const SpecialAspects& row) { return planet == row.Planet; });
  return places == kOpposite ||
         (special != kSpecialAspects.end() &&
          (places == special->FirstPlaces || places == special->SecondPlaces));
}

void HouseAspectSummary(HoroscopeModel& model) {
  for (const SpecialAspects& planet : kSpecialAspects) {
    const std::string pieces =
        AspectPiece(planet.FirstName, AspectedBy(model, planet.Code, planet.First)) +
        AspectPiece(planet.SecondName, AspectedBy(model, planet.Code, planet.Second));
    model.Captions.*planet.Caption =
        std::string(planet.Planet) + " =" + (pieces.empty() ? " None" : pieces);
  }
}

void LoadPlanetAspects(HoroscopeModel& model, const core::AspectBandLimits& bands,
                       const std::string& filter) {
  model.PlanetAspectList = {{{"Frm", 34}, {"Dir", 65}, {"To", 30}, {"Dir", 65}, {"ASP", 55}}, {}};
  model.PlanetAspectList.Columns.back().Centred = true;
  const std::vector<std::string> codes = CodesByHouse(model);
  for (const std::string& from : codes) {
    for (const std::string& to : codes) {
      if (!IsNodeCode(from)) {
        core::Attempt([&] { ListPair(model, bands, filter, {from, to}); });
      }
    }
  }
}

}  // namespace orvex::chart
