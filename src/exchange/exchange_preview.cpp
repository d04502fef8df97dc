#include "exchange/exchange_preview.h"

#include "core/cell_colors.h"
#include "core/exact_numbers.h"

namespace orvex::exchange {

namespace {

std::string NumberText(std::size_t number) {
  return core::WholeText(static_cast<std::int64_t>(number));
}

std::string PlaceText(const BirthPlace& place) {
  return (place.IsNamed ? "" : "nearest city, ") + core::WholeText(place.Kilometres) + " km";
}

std::string RestText(const ImportPlan& plan) {
  return NumberText(plan.StoredCount()) + " already stored, " + NumberText(plan.Refused.size()) +
         " refused";
}

void FillNumber(core::Cell& cell, const std::string& number) {
  cell.Text = number;
  cell.SortKey = number;
}

void FillOffsets(const BirthClock& clock, core::Cell& inFile, core::Cell& ofClocks) {
  FillNumber(inFile, clock.OffsetInFile);
  FillNumber(ofClocks, clock.OffsetOfClocks);
  if (clock.OffsetInFile.empty()) {
    inFile.Tooltip = "The file gives none: that of the clocks is taken.";
  } else if (!clock.AgreesWithClocks) {
    for (core::Cell* cell : {&inFile, &ofClocks}) {
      cell->Background = core::kHardColor;
      cell->Bold = true;
      cell->Tooltip = "The clocks of the city showed another offset; that of the file is taken.";
    }
  }
}

}  // namespace

core::Table PreviewTable(const ImportPlan& plan) {
  core::Table table{{{"Client Name", 175},
                     {"Birth", 140},
                     {"City", 150},
                     {"Place", 120},
                     {"Latitude", 80},
                     {"Longitude", 80},
                     {"Offset in File", 90},
                     {"Offset of Clocks", 100},
                     {"State", 100},
                     {"File", 120},
                     {"Line", 50}},
                    {}};
  for (const PlannedBirth& birth : plan.Births) {
    const chart::ClientForm& form = birth.Client.Form;
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, PreviewColumn::Name).Text = form.FullName;
    core::Cell& moment = table.At(row, PreviewColumn::Birth);
    moment.Text = core::LongDateText(form.Birth, true) + " " + core::TimeSecondsAmPm(form.Birth);
    moment.SortKey = core::StoredDateTimeText(form.Birth);
    table.At(row, PreviewColumn::City).Text = practice::CityText(birth.Place.City);
    table.At(row, PreviewColumn::Place).Text = PlaceText(birth.Place);
    FillNumber(table.At(row, PreviewColumn::Latitude), form.Latitude);
    FillNumber(table.At(row, PreviewColumn::Longitude), form.Longitude);
    FillOffsets(birth.Clock, table.At(row, PreviewColumn::OffsetInFile),
                table.At(row, PreviewColumn::OffsetOfClocks));
    table.At(row, PreviewColumn::State).Text = birth.IsStored ? "stored already" : "new";
    table.At(row, PreviewColumn::File).Text = birth.File;
    FillNumber(table.At(row, PreviewColumn::Line), NumberText(birth.Line));
  }
  return table;
}

core::Table RefusedTable(const ImportPlan& plan) {
  core::Table table{{{"File", 150}, {"Line", 50}, {"Reason", 500}}, {}};
  for (const RefusedBirth& refused : plan.Refused) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, RefusedColumn::File).Text = refused.File;
    FillNumber(table.At(row, RefusedColumn::Line), NumberText(refused.Line));
    table.At(row, RefusedColumn::Reason).Text = refused.Reason;
  }
  return table;
}

std::string PlanText(const ImportPlan& plan) {
  return NumberText(plan.NewCount()) + " new, " + RestText(plan);
}

std::string CountText(std::size_t imported, const ImportPlan& plan) {
  return NumberText(imported) + " imported, " + RestText(plan);
}

}  // namespace orvex::exchange
