#include <iostream>

#include "astro/sun_events.h"
#include "chart/chart_computation.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"

namespace orvex::cli {

namespace {

struct ChartOptions {
  std::string Birth;
  std::string Offset;
  std::string Latitude;
  std::string Longitude;
  std::string CityOffset;
  std::string Horary;
  std::string Ascendant;
};

struct SunOptions {
  std::string Date;
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
};

chart::ChartInput InputOf(const ChartOptions& options) {
  constexpr double kFarthestOffset = 27;
  NumberOption("--latitude", options.Latitude, -90, 90);
  NumberOption("--longitude", options.Longitude, -180, 180);
  const double offset = NumberOption("--offset", options.Offset, -kFarthestOffset, kFarthestOffset);
  chart::ChartInput input{MomentOption("--birth", options.Birth), options.Offset, options.Latitude,
                          options.Longitude, offset};
  if (!options.CityOffset.empty()) {
    input.CityOffset =
        NumberOption("--city-offset", options.CityOffset, -kFarthestOffset, kFarthestOffset);
  }
  if (!options.Horary.empty()) {
    input.Ascendant = chart::AscendantChoice::Horary;
    NumberOption("--horary", options.Horary, 1, 249);
    input.HoraryNumber = WholeOption("--horary", options.Horary);
  } else if (!options.Ascendant.empty()) {
    input.Ascendant = chart::AscendantChoice::ByHand;
    NumberOption("--ascendant", options.Ascendant, 0, 360);
    input.AscendantDegree = options.Ascendant;
  }
  return input;
}

Json HouseJson(const std::optional<int>& house) { return house ? Json(*house) : Json(nullptr); }

Json ChartJson(const chart::ChartResult& chart) {
  const astro::EphemerisMoment& moment = chart.Moment;
  Json json = {{"moment",
                {{"Year", moment.Year},
                 {"Month", moment.Month},
                 {"Day", moment.Day},
                 {"Hour", moment.Hour},
                 {"Minute", moment.Minute},
                 {"JulianDayUT", moment.JulianDayUT.Days},
                 {"JulianDayET", moment.JulianDayET.Days}}},
               {"cusps", Json::array()},
               {"planets", Json::array()}};
  for (const chart::CuspRow& cusp : chart.Cusps) {
    json["cusps"].push_back({{"Cusp", cusp.Cusp},
                             {"DegStart", cusp.DegStart},
                             {"DegEnd", cusp.DegEnd},
                             {"RashiHouse", cusp.RashiHouse}});
  }
  for (const chart::PlanetRow& planet : chart.Planets) {
    json["planets"].push_back({{"Planet", planet.Planet},
                               {"Degree", planet.Degree},
                               {"RashiHouse", HouseJson(planet.RashiHouse)},
                               {"ChalitHouse", HouseJson(planet.ChalitHouse)},
                               {"StarLord", planet.StarLord},
                               {"SubLord", planet.SubLord},
                               {"InRetro", planet.InRetro}});
  }
  json["firstrashihouse"] = chart.FirstRashiHouse;
  return json;
}

std::string HouseText(const std::optional<int>& house) {
  return house ? core::WholeText(*house) : "";
}

core::Table CuspTable(const chart::ChartResult& chart) {
  core::Table table{{{"Cusp"}, {"Deg Start"}, {"Deg End"}, {"Rashi House"}}, {}};
  for (const chart::CuspRow& cusp : chart.Cusps) {
    table.Rows.push_back({{{core::WholeText(cusp.Cusp)},
                           {cusp.DegStart},
                           {cusp.DegEnd},
                           {core::WholeText(cusp.RashiHouse)}}});
  }
  return table;
}

core::Table PlanetTable(const chart::ChartResult& chart) {
  core::Table table{{{"Planet"},
                     {"Degree"},
                     {"Rashi House"},
                     {"Chalit House"},
                     {"Star Lord"},
                     {"Sub Lord"},
                     {"In Retro"}},
                    {}};
  for (const chart::PlanetRow& planet : chart.Planets) {
    table.Rows.push_back({{{planet.Planet},
                           {planet.Degree},
                           {HouseText(planet.RashiHouse)},
                           {HouseText(planet.ChalitHouse)},
                           {planet.StarLord},
                           {planet.SubLord},
                           {planet.InRetro}}});
  }
  return table;
}

void RunChart(Context& context, const ChartOptions& options) {
  const chart::ChartInput input = InputOf(options);
  const chart::ChartResult chart = chart::ComputeChart(context.Reading(), input);
  if (context.Json) {
    PrintJson(ChartJson(chart));
    return;
  }
  PrintTable(CuspTable(chart));
  std::cout << "\n";
  PrintTable(PlanetTable(chart));
}

void RunSun(Context& context, const SunOptions& options) {
  const core::DateTime date = MomentOption("DATE", options.Date);
  const double latitude = NumberOption("--latitude", options.Latitude, -90, 90);
  const double longitude = NumberOption("--longitude", options.Longitude, -180, 180);
  const double offset = NumberOption("--offset", options.Offset, -27, 27);
  core::ApplicationState state;
  astro::ComputeSunTimes(state, date, static_cast<float>(offset), static_cast<float>(latitude),
                         static_cast<float>(longitude));
  if (context.Json) {
    PrintJson({{"SunriseText", state.SunriseText}, {"SunsetText", state.SunsetText}});
  } else {
    std::cout << "Sunrise  " << state.SunriseText << "\nSunset   " << state.SunsetText << "\n";
  }
}

}  // namespace

void AddChartCommands(Command app, Context& context) {
  auto chartOptions = std::make_shared<ChartOptions>();
  Command chart = AddCommand(app, "chart", "compute a chart; nothing is stored",
                             [&context, chartOptions] { RunChart(context, *chartOptions); });
  chart.add_option("--birth", chartOptions->Birth, "local moment, YYYY-MM-DD HH:MM").required();
  chart.add_option("--offset", chartOptions->Offset, "hours east of Greenwich").required();
  chart.add_option("--latitude", chartOptions->Latitude, "degrees north").required();
  chart.add_option("--longitude", chartOptions->Longitude, "degrees east").required();
  chart.add_option("--city-offset", chartOptions->CityOffset, "offset of the city's row");
  Option horary = chart.add_option("--horary", chartOptions->Horary, "number 1 to 249");
  chart.add_option("--ascendant", chartOptions->Ascendant, "degree 0 to 360").excludes(horary);

  auto sunOptions = std::make_shared<SunOptions>();
  Command sun = AddCommand(app, "sun", "sunrise and sunset of a day",
                           [&context, sunOptions] { RunSun(context, *sunOptions); });
  sun.add_option("DATE", sunOptions->Date, "YYYY-MM-DD").required();
  sun.add_option("--latitude", sunOptions->Latitude, "degrees north").required();
  sun.add_option("--longitude", sunOptions->Longitude, "degrees east").required();
  sun.add_option("--offset", sunOptions->Offset, "hours east of Greenwich").required();
}

}  // namespace orvex::cli
