#include <iostream>

#include "cli/chart_style.h"
#include "cli/context.h"
#include "cli/output.h"
#include "core/exact_numbers.h"
#include "core/own_files.h"
#include "core/staged_files.h"
#include "core/text.h"
#include "report/chart_cells.h"
#include "report/chart_picture.h"
#include "ui/painting/offscreen.h"
#include "ui/painting/picture_files.h"

namespace orvex::cli {

namespace {

Json GridJson(const report::SouthGrid& grid) {
  Json json = Json::array();
  for (const auto& row : grid) {
    json.push_back(Json::array());
    for (const report::SouthSignCell& cell : row) {
      json.back().push_back(CellJson(cell));
      if (cell.Sign != 0) {
        json.back().back()["sign"] = cell.Sign;
      }
    }
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
    table.Rows.push_back({{{core::WholeText(static_cast<int>(i) + 1)}, cells.at(i)}});
  }
  PrintTable(table);
}

// Both charts in every format, named as those of the report.
void WritePictures(const core::Session& session, const report::ChartCells& cells, char style,
                   const std::string& clientId, const std::filesystem::path& folder) {
  constexpr int kSide = 1200;
  if (!core::MakePrivateFolders(folder)) {
    throw CommandFailed("The folder " + folder.string() + " could not be made.");
  }
  const ui::OffscreenPainting painting;
  core::StagedFiles files;
  for (const auto& [name, picture] : {std::pair{"Rashi-", report::RashiPicture(cells, style)},
                                      std::pair{"Chalit-", report::ChalitPicture(cells, style)}}) {
    const std::string file = (folder / (name + clientId)).string();
    for (const auto& [ending, format] :
         {std::pair{".bmp", ui::PictureFormat::Bmp}, std::pair{".png", ui::PictureFormat::Png},
          std::pair{".svg", ui::PictureFormat::Svg}}) {
      core::CheckFileToWrite(session, file + ending);
      files.Add(file + ending, ui::ChartPictureBytes(picture, format, kSide));
    }
  }
  files.Commit();
}

void RunCharts(Context& context, const ChartStyleOptions& options, const std::string& pictures) {
  const horoscope::OpenedHoroscope opened = OpenHoroscope(context, options.Id);
  const report::ChartCells cells = report::BuildChartCells(opened.Model);
  if (!pictures.empty()) {
    WritePictures(context.Reading(), cells, StyleOf(context, options),
                  core::WholeText(opened.Model.ClientId), pictures);
  }
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

void AddChartsCommands(Command app, Context& context) {
  auto options = std::make_shared<ChartStyleOptions>();
  auto pictures = std::make_shared<std::string>();
  Command command =
      AddCommand(app, "charts", "the cells of a client's charts",
                 [&context, options, pictures] { RunCharts(context, *options, *pictures); });
  AddStyleOptions(command, *options);
  command.add_option("--picture", *pictures, "a folder: the charts there as BMP, PNG and SVG");
}

}  // namespace orvex::cli
