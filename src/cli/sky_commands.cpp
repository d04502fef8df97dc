#include <iostream>

#include "cli/context.h"
#include "cli/output.h"
#include "panchang/hora.h"
#include "panchang/sky_view.h"
#include "report/sky_chart.h"

namespace orvex::cli {

namespace {

struct HoraOptions {
  std::string Date;
  std::string City;
};

Json CaptionsJson(const panchang::SkyCaptions& captions) {
  return {{"SkyView", captions.SkyView},
          {"Ascendant", captions.Ascendant},
          {"NodeMode", captions.NodeMode},
          {"DishaShool", captions.DishaShool},
          {"DishaShoolColor", captions.DishaShoolColor},
          {"Date", captions.Date},
          {"Weekday", captions.WeekdayName},
          {"WeekdayLord", captions.WeekdayLord},
          {"City", captions.City},
          {"Place", captions.Place},
          {"MoonStatus", captions.MoonStatus},
          {"Tithi", captions.Tithi},
          {"YogaKaran", captions.YogaKaran},
          {"PanchaPakshi", captions.PanchaPakshi},
          {"VikramSamvat", captions.VikramSamvat},
          {"CurrentHora", captions.CurrentHora},
          {"CurrentHoraPlanet", captions.CurrentHoraPlanet},
          {"HoraMantra", captions.HoraMantra},
          {"RulingPlanetsText", captions.RulingPlanetsText},
          {"Sunrise", captions.Sunrise},
          {"Sunset", captions.Sunset},
          {"Ganapathi", captions.Ganapathi},
          {"GanapathiRuling", captions.GanapathiRuling},
          {"AscendantNext", captions.AscendantNext},
          {"MoonNext", captions.MoonNext}};
}

Json ChartsJson(const report::ChartCells& cells) {
  Json south = Json::array();
  for (const auto& row : cells.SouthRashi) {
    south.push_back(CellsJson(row));
  }
  return {{"north", CellsJson(cells.North)},
          {"east", CellsJson(cells.East)},
          {"southRashi", std::move(south)}};
}

void RunSky(Context& context) {
  panchang::SkyView view;
  panchang::GetCurrentTransit(context.Reading(), view);
  const Json captions = CaptionsJson(view.Captions);
  if (context.Json) {
    PrintJson({{"captions", captions},
               {"tables",
                {{"SkyPlanets", TableJson(view.SkyPlanets)},
                 {"Panchang", TableJson(view.Panchang)},
                 {"SkyRulingPlanets", TableJson(view.SkyRulingPlanets)},
                 {"DayHoras", TableJson(view.DayHoras)},
                 {"NightHoras", TableJson(view.NightHoras)},
                 {"SkyHouses", TableJson(view.SkyHouses)}}},
               {"charts", ChartsJson(report::BuildSkyChart(view))}});
    return;
  }
  for (const auto& [name, caption] : captions.items()) {
    std::cout << name << ": " << caption.text() << "\n";
  }
  for (const core::Table* table : {&view.Panchang, &view.SkyPlanets, &view.SkyRulingPlanets,
                                   &view.DayHoras, &view.NightHoras, &view.SkyHouses}) {
    std::cout << "\n";
    PrintTable(*table);
  }
}

void RunHora(Context& context, const HoraOptions& options) {
  core::Session& session = context.Reading();
  const core::DateTime date = core::DateOnly(MomentOption("DATE", options.Date));
  const std::int32_t cityId =
      options.City.empty() ? session.State.UserCityId : WholeOption("--city", options.City);
  const std::optional<panchang::HoraView> view = panchang::CalcHora(session, date, cityId);
  if (!view) {
    throw CommandFailed("There is no city with that id.");
  }
  if (context.Json) {
    PrintJson(
        {{"captions",
          {{"Title", view->Title}, {"Sunrise", view->Sunrise}, {"Sunset", view->Sunset}}},
         {"tables",
          {{"DayHoras", TableJson(view->DayHoras)}, {"NightHoras", TableJson(view->NightHoras)}}}});
    return;
  }
  std::cout << view->Title << "\nSunrise  " << view->Sunrise << "\nSunset   " << view->Sunset
            << "\n\n";
  PrintTable(view->DayHoras);
  std::cout << "\n";
  PrintTable(view->NightHoras);
}

}  // namespace

void AddSkyCommands(Command app, Context& context) {
  AddCommand(app, "sky", "the sky view of the user city", [&context] { RunSky(context); });
  auto options = std::make_shared<HoraOptions>();
  Command hora = AddCommand(app, "hora", "the horas of a day and its night",
                            [&context, options] { RunHora(context, *options); });
  hora.add_option("DATE", options->Date, "YYYY-MM-DD").required();
  hora.add_option("--city", options->City, "id of a city; else the user city");
}

}  // namespace orvex::cli
