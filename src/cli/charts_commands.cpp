#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "report/chart_cells.h"

namespace orvex::cli {

namespace {

template <typename Cells>
Json CellsJson(const Cells& cells) {
  Json json = Json::array();
  for (const core::Cell& cell : cells) {
    json.push_back(CellJson(cell));
  }
  return json;
}

Json GridJson(const report::SouthGrid& grid) {
  Json json = Json::array();
  for (const auto& row : grid) {
    json.push_back(CellsJson(row));
  }
  return json;
}

void PrintGrid(const report::SouthGrid& grid) {
  core::Table table{{{""}, {""}, {""}, {""}}, {}};
  for (const auto& row : grid) {
    table.Rows.push_back({{row.begin(), row.end()}});
  }
  PrintTable(table);
}

void PrintCells(const char* caption, const std::array<core::Cell, chart::kHouses>& cells) {
  core::Table table{{{caption}, {"Planets"}}, {}};
  for (std::size_t i = 0; i < cells.size(); ++i) {
    table.Rows.push_back({{{core::PaddedWhole(static_cast<int>(i) + 1, 1)}, cells.at(i)}});
  }
  PrintTable(table);
}

void RunCharts(Context& context, const ChartStyleOptions& options) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  const report::ChartCells cells = report::BuildChartCells(opened.Model);
  if (context.Json) {
    PrintJson({{"north", CellsJson(cells.North)},
               {"east", CellsJson(cells.East)},
               {"southRashi", GridJson(cells.SouthRashi)},
               {"southKP", GridJson(cells.SouthKP)}});
    return;
  }
  switch (StyleOf(context, options)) {
    case 'E':
      PrintCells("Sign", cells.East);
      break;
    case 'S':
      PrintGrid(cells.SouthRashi);
      std::cout << "\n";
      PrintGrid(cells.SouthKP);
      break;
    default:
      PrintCells("House", cells.North);
  }
}

}  // namespace

void AddChartsCommands(CLI::App& app, Context& context) {
  auto options = std::make_shared<ChartStyleOptions>();
  CLI::App* command = AddCommand(app, "charts", "the cells of a client's charts",
                                 [&context, options] { RunCharts(context, *options); });
  AddStyleOptions(*command, *options);
}

}  // namespace orvex::cli
