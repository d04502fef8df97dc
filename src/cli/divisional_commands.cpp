#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "vedic/divisional.h"

namespace orvex::cli {

namespace {

Json DivisionJson(const vedic::DivisionChart& chart) {
  Json json = {{"HouseSigns", Json::array()},
               {"north", Json::array()},
               {"east", Json::array()},
               {"south", Json::array()}};
  for (std::size_t place = 1; place <= chart::kHouses; ++place) {
    json["HouseSigns"].push_back(chart.HouseSigns.at(place));
    json["north"].push_back(chart.North.at(place));
    json["east"].push_back(chart.East.at(place));
  }
  for (const auto& row : chart.South) {
    Json cells = Json::array();
    for (const chart::SouthCell& cell : row) {
      cells.push_back(cell.Text);
    }
    json["south"].push_back(cells);
  }
  return json;
}

void PrintDivision(const vedic::DivisionChart& chart, char style) {
  if (style == 'S') {
    core::Table table{{{""}, {""}, {""}, {""}}, {}};
    for (const auto& row : chart.South) {
      table.Rows.push_back({{{row[0].Text}, {row[1].Text}, {row[2].Text}, {row[3].Text}}});
    }
    PrintTable(table);
    return;
  }
  core::Table table{{{style == 'E' ? "Sign" : "House"}, {"Planets"}}, {}};
  for (std::size_t place = 1; place <= chart::kHouses; ++place) {
    table.Rows.push_back({{{core::WholeText(static_cast<int>(place))},
                           {style == 'E' ? chart.East.at(place) : chart.North.at(place)}}});
  }
  PrintTable(table);
}

void RunDivisional(Context& context, const ChartStyleOptions& options) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  const char style = StyleOf(context, options);
  const vedic::DivisionChart d9 = vedic::BuildDivision(opened.Birth, vedic::Division::Navamsha);
  const vedic::DivisionChart d10 = vedic::BuildDivision(opened.Birth, vedic::Division::Dashamsha);
  if (context.Json) {
    PrintJson({{"D9", DivisionJson(d9)}, {"D10", DivisionJson(d10)}});
    return;
  }
  std::cout << "Navamsha (D9):\n";
  PrintDivision(d9, style);
  std::cout << "\nDashamsha (D10):\n";
  PrintDivision(d10, style);
}

}  // namespace

void AddDivisionalCommands(Command app, Context& context) {
  auto options = std::make_shared<ChartStyleOptions>();
  Command command = AddCommand(app, "divisional", "navamsha and dashamsha of a client",
                               [&context, options] { RunDivisional(context, *options); });
  AddStyleOptions(command, *options);
}

}  // namespace orvex::cli
