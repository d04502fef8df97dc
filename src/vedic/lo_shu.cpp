#include "vedic/lo_shu.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>

#include "core/cell_colors.h"
#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/lo_shu_tables.h"

namespace orvex::vedic {

namespace {

core::Table EmptyGrid() {
  core::Table table;
  table.Columns.resize(kLoShuSide);
  for (std::size_t row = 0; row < kLoShuSide; ++row) {
    table.AddRow();
  }
  return table;
}

core::Table PlanesTable() {
  core::Table table;
  table.Columns = {{"Seq", 40}, {"Plane", 100}, {"Description", 400}};
  for (const LoShuPlane& plane : kLoShuPlanes) {
    const std::size_t row = table.Rows.size();
    table.AddRow();
    table.At(row, LoShuPlaneColumn::Seq).Text = plane.Seq;
    table.At(row, LoShuPlaneColumn::Plane).Text = plane.Plane;
    table.At(row, LoShuPlaneColumn::Description).Text = plane.Description;
  }
  return table;
}

core::Table AnalysisTable() {
  core::Table table;
  table.Columns = {{"No.", 30}, {"Element", 70}, {"Direction", 90}, {"Meaning", 300}};
  for (const LoShuNumber& number : kLoShuNumbers) {
    const std::size_t row = table.Rows.size();
    table.AddRow();
    table.At(row, LoShuAnalysisColumn::No).Text = number.No;
    table.At(row, LoShuAnalysisColumn::Element).Text = number.Element;
    table.At(row, LoShuAnalysisColumn::Direction).Text = number.Direction;
    table.At(row, LoShuAnalysisColumn::Meaning).Text = number.Meaning;
  }
  return table;
}

core::Cell& GridCell(chart::HoroscopeModel& model, std::size_t place) {
  return model.LoShuGrid.At(place / kLoShuSide, static_cast<LoShuGridColumn>(place % kLoShuSide));
}

// The place of a number in the grid, row by row; nothing for other than 1 to 9.
std::optional<std::size_t> PlaceOf(int number) {
  const auto* found =
      std::find_if(kLoShuCells.begin(), kLoShuCells.end(),
                   [number](const LoShuCell& cell) { return cell.Number == number; });
  return found == kLoShuCells.end()
             ? std::nullopt
             : std::optional(static_cast<std::size_t>(found - kLoShuCells.begin()));
}

bool IsPresent(chart::HoroscopeModel& model, int number) {
  const std::optional<std::size_t> place = PlaceOf(number);
  return place && GridCell(model, *place).Background == kPresentColor;
}

void CountDigits(chart::HoroscopeModel& model) {
  model.LoShuCount.fill(0);
  for (std::size_t place = 0; place < kLoShuCells.size(); ++place) {
    const int number = kLoShuCells.at(place).Number;
    const std::string& digits = model.Captions.NumerologyTag;
    const auto count = std::count(digits.begin(), digits.end(), static_cast<char>('0' + number));
    model.LoShuCount.at(static_cast<std::size_t>(number)) = static_cast<int>(count);
    if (count > 0) {
      GridCell(model, place).Background = kPresentColor;
    }
  }
}

// A table of numbers or planes in its final view: what is marked loses the mark, all else is red.
template <typename ColumnName>
void ShowMarks(core::Table& table, std::initializer_list<ColumnName> firstTwo) {
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    core::Cell& first = table.At(row, *firstTwo.begin());
    if (first.Background == kPresentColor) {
      first.Background = core::kNeutralColor;
      continue;
    }
    for (const ColumnName column : firstTwo) {
      table.At(row, column).Foreground = core::kRed;
    }
  }
}

}  // namespace

void CalcGrid(const core::ReferenceData& reference, chart::HoroscopeModel& model) {
  model.LoShuGrid = EmptyGrid();
  model.LoShuPlanes = PlanesTable();
  model.LoShuAnalysis = AnalysisTable();
  model.LoShuCellText.fill("");
  CountDigits(model);
  for (const core::PlanetInfo& planet : reference.Planets) {
    const std::optional<std::size_t> place = PlaceOf(planet.AstroNumber);
    if (!place) {
      continue;
    }
    const auto number = static_cast<std::size_t>(planet.AstroNumber);
    const LoShuNumber& facts = kLoShuNumbers.at(number - 1);
    const std::vector<std::string> lines = {core::WholeText(planet.AstroNumber) + " (" +
                                                core::WholeText(model.LoShuCount.at(number)) + ")",
                                            facts.Direction, planet.PlanetName, facts.Element};
    GridCell(model, *place).Text = core::Join(lines, "\n");
    model.LoShuCellText.at(number) = core::Join(lines, "*");
  }
}

void CalcPlanes(chart::HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.LoShuPlanes.Rows.size(); ++row) {
    core::Cell& seq = model.LoShuPlanes.At(row, LoShuPlaneColumn::Seq);
    if (std::all_of(seq.Text.begin(), seq.Text.end(),
                    [&](char digit) { return IsPresent(model, digit - '0'); })) {
      seq.Background = kPresentColor;
    }
  }
}

void AnalyzeGrid(chart::HoroscopeModel& model) {
  for (std::size_t row = 0; row < model.LoShuAnalysis.Rows.size(); ++row) {
    if (IsPresent(model, static_cast<int>(row) + 1)) {
      model.LoShuAnalysis.At(row, LoShuAnalysisColumn::No).Background = kPresentColor;
    }
  }
}

void ShowLoShu(chart::HoroscopeModel& model) {
  ShowMarks(model.LoShuAnalysis, {LoShuAnalysisColumn::No, LoShuAnalysisColumn::Element});
  ShowMarks(model.LoShuPlanes, {LoShuPlaneColumn::Seq, LoShuPlaneColumn::Plane});
  for (std::size_t place = 0; place < kLoShuCells.size(); ++place) {
    GridCell(model, place).Background = kLoShuCells.at(place).Background;
    GridCell(model, place).Foreground = kLoShuCells.at(place).Foreground;
  }
  const core::DateParts birth = core::PartsOf(model.Birth);
  model.Captions.LoShuDate = core::WholeText(birth.Day) + "/" + core::WholeText(birth.Month) + "/" +
                             core::WholeText(birth.Year);
  model.Captions.LoShuTitle =
      "Lo Shu Grid for Birth Date " + model.Captions.LoShuDate + " (DD/MM/YYYY)";
}

void BuildLoShu(const core::ReferenceData& reference, chart::HoroscopeModel& model) {
  CalcGrid(reference, model);
  CalcPlanes(model);
  AnalyzeGrid(model);
  ShowLoShu(model);
}

}  // namespace orvex::vedic
