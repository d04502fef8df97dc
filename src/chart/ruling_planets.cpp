#include "chart/ruling_planets.h"

#include <array>
#include <cmath>

#include "chart/point_text.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

// Sunday first.
constexpr std::array<const char*, 7> kDayLords = {"Sun",     "Moon",  "Mars",  "Mercury",
                                                  "Jupiter", "Venus", "Saturn"};

void AddRuler(core::Table& table, const char* description, const std::string& planet) {
  table.AddRow();
  const std::size_t row = table.Rows.size() - 1;
  table.At(row, RulingColumn::Description).Text = description;
  table.At(row, RulingColumn::Planet).Text = planet;
}

std::string MoonLord(const HoroscopeModel& model, PlanetColumn column) {
  std::string lord;
  core::Attempt([&] { lord = PlanetTag(model, RowOf(PlanetPlace::Moon), column); });
  return lord;
}

}  // namespace

std::string DayLord(core::DateTime date) {
  return kDayLords.at(static_cast<std::size_t>(core::WeekdayNumber(date)) - 1);
}

void BuildRulingPlanets(HoroscopeModel& model) {
  core::Table& table = model.RulingPlanets;
  table = {{{"Description"}, {"Planet"}}, {}};
  const core::Table& cusps = model.CuspTable;
  AddRuler(table, "Asc Sign Lord", cusps.At(0, CuspColumn::SignLord).Text);
  AddRuler(table, "Asc Star Lord", cusps.At(0, CuspColumn::StarLord).Text);
  AddRuler(table, "Asc Sub Lord", cusps.At(0, CuspColumn::SubLord).Text);
  AddRuler(table, "Moon Sign Lord", MoonLord(model, PlanetColumn::SignLord));
  AddRuler(table, "Moon Star Lord", MoonLord(model, PlanetColumn::StarLord));
  AddRuler(table, "Moon Sub Lord", MoonLord(model, PlanetColumn::SubLord));
  AddRuler(table, "Day Lord", DayLord(model.Birth));

  std::vector<std::string> names;
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    names.push_back(table.At(row, RulingColumn::Planet).Text);
  }
  model.Captions.RulingPlanetsText = core::Join(names, "*");
}

double PartOfFortune(double moon, double ascendant, double sun) {
  double f = moon + ascendant - sun;
  if (f < 0) {
    f = 360 + f;
  } else if (f > 360) {
    f = 360 - f;
  }
  return core::ToDouble(core::DoubleText(std::fabs(f)));
}

void WritePartOfFortune(const core::ReferenceData& reference, HoroscopeModel& model) {
  core::Attempt([&] {
    model.Captions.PartOfFortune =
        PointText(reference,
                  PartOfFortune(core::ToDouble(model.MoonDegree), core::ToDouble(model.CuspDegree1),
                                core::ToDouble(model.SunDegree)));
  });
}

void WriteBadhakHouse(HoroscopeModel& model) {
  constexpr std::array<const char*, 3> kHousesBySignType = {"11", "9", "7"};
  const std::optional<std::int64_t> rashi =
      core::ParseWhole(HouseText(model, 0, HouseColumn::Rashi));
  if (rashi && *rashi >= 1 && *rashi <= 12) {
    model.Captions.BadhakHouse = kHousesBySignType.at(static_cast<std::size_t>(*rashi - 1) % 3);
  }
}

}  // namespace orvex::chart
