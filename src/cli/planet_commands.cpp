#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/text.h"
#include "transit/planet_sheet.h"

namespace orvex::cli {

namespace {

struct PlanetOptions {
  std::string Id;
  std::string Planet;
};

std::size_t RowOfName(const chart::HoroscopeModel& model, const std::string& name) {
  for (std::size_t row = 0; row < model.PlanetTable.Rows.size(); ++row) {
    if (core::LowerCase(chart::PlanetText(model, row, chart::PlanetColumn::Planet)) ==
        core::LowerCase(name)) {
      return row;
    }
  }
  throw CommandFailed("There is no planet of that name in the horoscope.");
}

void RunPlanet(Context& context, const PlanetOptions& options) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  const transit::PlanetSheet sheet = transit::ShowPlanetDetails(
      opened.Model, RowOfName(opened.Model, options.Planet), context.Reading().Time.Today());
  if (context.Json) {
    PrintJson({{"captions",
                {{"Title", sheet.Title},
                 {"Direction", sheet.Direction},
                 {"Dasha", sheet.Dasha},
                 {"Aspecting", sheet.AspectingCaption},
                 {"AspectingNote", sheet.AspectingNote},
                 {"AspectedBy", sheet.AspectedByCaption}}},
               {"tables",
                {{"Sheet", TableJson(sheet.Sheet)},
                 {"Aspecting", TableJson(sheet.Aspecting)},
                 {"AspectedBy", TableJson(sheet.AspectedBy)}}}});
    return;
  }
  std::cout << sheet.Title << "\n" << sheet.Direction << "\n" << sheet.Dasha << "\n";
  PrintTable(sheet.Sheet);
  std::cout << "\n" << sheet.AspectingCaption << " " << sheet.AspectingNote << "\n";
  PrintTable(sheet.Aspecting);
  std::cout << "\n" << sheet.AspectedByCaption << "\n";
  PrintTable(sheet.AspectedBy);
}

}  // namespace

void AddPlanetCommands(Command app, Context& context) {
  auto options = std::make_shared<PlanetOptions>();
  Command command = AddCommand(app, "planet", "all that a horoscope knows of a planet",
                               [&context, options] { RunPlanet(context, *options); });
  command.add_option("ID", options->Id, "id of the client").required();
  command.add_option("PLANET", options->Planet, "name of the planet").required();
}

}  // namespace orvex::cli
