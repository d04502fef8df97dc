#include "transit/transit_calendar.h"

#include "chart/chart_moment.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "transit/month_series.h"

namespace orvex::transit {

namespace {

std::string Slug(const std::string& text) {
  return core::ReplaceAll(core::LowerCase(text), " ", "-");
}

std::string DateOf(core::DateTime date) {
  return core::FirstCharacters(core::StoredDateTimeText(date), 10);
}

// The positions of a row, a planet a line.
std::string PositionsOf(const core::Table& grid, const core::Row& row, const std::string& title) {
  std::string text = title;
  for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
    text += "\n" + grid.Columns[column].Caption + " " +
            core::Join(core::SplitWords(row.Cells[column].Text), " / ");
  }
  return text;
}

}  // namespace

std::vector<CalendarEvent> GridEvents(core::Session& session, const GridView& view, int month,
                                      int year) {
  MonthGrid grid = CreateGrid(session, view, month, year);
  const core::DateTime before = core::MakeDateTime({year, month, 1}).value() - std::chrono::days(1);
  std::vector<core::Row>& rows = grid.Grid.Rows;
  rows.insert(rows.begin(), GridOfDay(session, view, before).Rows.front());
  std::vector<CalendarEvent> events;
  for (const PlanetSeries& series : MonthSeries(grid.Grid)) {
    for (const SeriesMark& mark : series.Marks) {
      const core::DateTime date = before + std::chrono::days(mark.Row);
      events.push_back({DateOf(date) + "-" + Slug(mark.Text) + "@orvexplus", date, true, mark.Text,
                        PositionsOf(grid.Grid, rows.at(mark.Row), grid.Title)});
    }
  }
  return events;
}

std::vector<CalendarEvent> PassageEvents(const core::Session& session,
                                         const std::vector<FindResult>& results) {
  std::vector<CalendarEvent> events;
  for (const FindResult& result : results) {
    if (result.End != SearchEnd::Found) {
      continue;
    }
    const std::string summary = core::ReplaceAll(
        result.Result.substr(0, result.Result.find(" on ")), " will get to ", " - ");
    const core::DateTime start = chart::PlainMomentUt(result.Hour, session.State.UserCityOffset);
    events.push_back({DateOf(result.Hour) + "-" + core::ShortTimeText(result.Hour) + "-" +
                          Slug(summary) + "@orvexplus",
                      start, false, summary, result.Result + "\n" + session.State.UserCityName});
  }
  return events;
}

}  // namespace orvex::transit
