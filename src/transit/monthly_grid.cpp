#include "transit/monthly_grid.h"

#include <stdexcept>

#include "astro/sky_bodies.h"
#include "chart/chart_moment.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "transit/month_name.h"

namespace orvex::transit {

namespace {

constexpr const char* kHighlight = "EEEDF5";

core::Table EmptyGrid(const core::Session& session) {
  core::Table grid{{{"Date", 95}}, {}};
  for (const core::PlanetInfo& planet : session.Reference.Planets) {
    grid.Columns.push_back({planet.PlanetName, 90});
  }
  return grid;
}

void AddDay(core::Table& grid, core::DateTime date, core::DateTime today) {
  core::Row& row = grid.AddRow();
  row.Tag = core::WholeText(core::PartsOf(date).Day) + "*" + core::LongDateText(date, false);
  row.Cells.front().Text = core::WeekdayName(date) + " " + core::LongDateText(date, true);
  if (date == today) {
    for (core::Cell& cell : row.Cells) {
      cell.Background = core::kGoodColor;
    }
  }
}

// The row's date stays whatever the offset does; only the time of day is that of UT.
core::DateTime InstantOf(const GridView& view, core::DateTime date) {
  const core::DateTime shifted = chart::PlainMomentUt(view.TransitTime, view.ZoneHours);
  return core::DateOnly(date) + (shifted - core::DateOnly(shifted));
}

void FillCell(const core::Session& session, const astro::SkyBody& body, const std::string& number,
              core::Cell& cell) {
  const int rashi = chart::RashiOfSingle(body.Degree);
  const std::string degree = core::TwoDecimals(body.Degree - static_cast<float>(30 * (rashi - 1)));
  const std::string sign = core::WholeText(rashi);
  cell.Text = "   " + sign + (sign.size() == 1 ? "     " : "   ") + degree;
  cell.Tag = "Planet*" + number;
  cell.SortKey = core::TwoDecimals(body.Degree);
  cell.Foreground = body.Retrograde ? core::kRed : "";
  core::Attempt([&] {
    const chart::StarAndPada star =
        chart::StarOfSignDegree(session.Reference, rashi, core::ToDouble(degree));
    cell.Tooltip = body.Name + " in " + chart::RashiName(rashi) +
                   " (Nakshatra: " + star.Star->StarName +
                   ", Pada: " + core::WholeText(star.Pada->Pada) + ")";
  });
}

void CalcDayPositions(core::Session& session, const GridView& view, core::DateTime date,
                      core::Table& grid) {
  const astro::EphemerisMoment moment = session.Ephemeris.PrepareMoment(InstantOf(view, date));
  const std::string nodeMode = NodeMode(session.State);
  std::vector<core::Cell>& cells = grid.Rows.back().Cells;
  for (const astro::SkyBody& body :
       astro::SkyBodiesAt(session.Ephemeris, moment.JulianDayET, nodeMode)) {
    const bool known = body.Name != "Ketu" || astro::NodeNumber(nodeMode) != 0;
    for (std::size_t column = 1; known && column < cells.size(); ++column) {
      if (core::LowerCase(grid.Columns[column].Caption) == core::LowerCase(body.Name)) {
        FillCell(session, body, core::WholeText(static_cast<std::int64_t>(column)), cells[column]);
      }
    }
  }
}

MonthLink LinkTo(core::DateTime first) {
  const int year = core::PartsOf(first).Year;
  return {MonthAndYear(first), MonthAndYear(first, false, "*"),
          year >= kFirstGridYear && year <= kLastGridYear};
}

void AddLinks(core::DateTime first, core::DateTime today, MonthGrid& month) {
  month.Next = LinkTo(core::DateAdd(core::DateInterval::Months, 1, first));
  month.Next.Caption += " &>";
  month.Previous = LinkTo(core::DateAdd(core::DateInterval::Months, -1, first));
  month.Previous.Caption.insert(0, "&< ");
  month.MonthLabel = MonthAndYear(first);
  month.ThisMonth = {MonthAndYear(today, true), MonthAndYear(today, false, "*"),
                     MonthAndYear(today) != month.MonthLabel};
}

}  // namespace

GridView UserCityView(const core::Session& session) {
  return {session.State.UserCityName, session.State.UserCityOffset, session.Time.Now()};
}

MonthGrid CreateGrid(core::Session& session, const GridView& view, int month, int year) {
  const std::optional<core::DateTime> first = core::MakeDateTime({year, month, 1});
  if (!first || year < kFirstGridYear || year > kLastGridYear) {
    throw std::out_of_range("Value should be a month of the years 1500 to 2500.");
  }
  const core::DateTime today = session.Time.Today();
  const core::DateTime nextFirst = core::DateAdd(core::DateInterval::Months, 1, *first);
  MonthGrid result;
  result.Grid = EmptyGrid(session);
  for (core::DateTime date = *first; date < nextFirst; date += std::chrono::days(1)) {
    AddDay(result.Grid, date, today);
    CalcDayPositions(session, view, date, result.Grid);
  }
  session.Ephemeris.Close();
  AddLinks(*first, today, result);
  result.Title =
      "Planetary Transit in " + view.CityName + " at " + core::ShortTimeText(view.TransitTime);
  return result;
}

core::Table GridOfDay(core::Session& session, const GridView& view, core::DateTime date) {
  core::Table grid = EmptyGrid(session);
  AddDay(grid, core::DateOnly(date), session.Time.Today());
  CalcDayPositions(session, view, date, grid);
  session.Ephemeris.Close();
  return grid;
}

std::optional<core::DateTime> MonthOfTag(const std::string& tag) {
  return core::ParseLongDateText("1 " + core::ReplaceAll(tag, "*", " "));
}

std::optional<Planet> PlanetOfCell(const std::string& tag) {
  const std::vector<std::string> fields = core::Split(tag, '*');
  const std::optional<std::int64_t> number = core::ParseWhole(fields.back());
  if (fields.size() != 2 || fields.front() != "Planet" || !number || *number < 1 ||
      *number > kPlanetCount) {
    return std::nullopt;
  }
  return static_cast<Planet>(*number);
}

std::optional<core::DateTime> DateOfRow(const std::string& tag) {
  return core::ParseLongDateText(core::Split(tag, '*').back());
}

std::optional<CellPlace> HighlightCell(core::Table& grid, const std::string& dateText,
                                       const std::string& planetName) {
  std::optional<CellPlace> place;
  for (std::size_t row = 0; row < grid.Rows.size(); ++row) {
    if (core::Split(grid.Rows[row].Tag, '*').back() != dateText) {
      continue;
    }
    for (std::size_t column = 1; column < grid.Columns.size(); ++column) {
      if (core::Contains(planetName, grid.Columns[column].Caption)) {
        grid.Rows[row].Cells[column].Background = kHighlight;
        place = CellPlace{row, column};
      }
    }
  }
  return place;
}

}  // namespace orvex::transit
