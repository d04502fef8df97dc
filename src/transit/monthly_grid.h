// The monthly grid: a row a day, a column a planet, each at one time of day.
#pragma once

#include <optional>

#include "core/session.h"
#include "core/table.h"
#include "transit/transit_position.h"

namespace orvex::transit {

inline constexpr int kFirstGridYear = 1500;
inline constexpr int kLastGridYear = 2500;

// Column 0 is the date. A planet stands in the column of its number (Planet); the sort key of its
// cell is its longitude, degrees with two decimals.
enum class GridColumn { Date };

// What the grid is made for.
struct GridView {
  std::string CityName;
  float ZoneHours = 0;           // hours east of Greenwich
  core::DateTime TransitTime{};  // its time of day counts
};

// The view of the user city at the present time.
GridView UserCityView(const core::Session& session);

// A button or a link to a month: its tag is the month, "*", the year.
struct MonthLink {
  std::string Caption;
  std::string Tag;
  bool Offered = true;  // a button is enabled, a link is shown
};

struct MonthGrid {
  std::string Title;
  core::Table Grid;  // tag of a row: day, "*", long date text
  MonthLink Next;
  MonthLink Previous;
  MonthLink ThisMonth;
  std::string MonthLabel;
};

// The grid of a month, 1 to 12. std::out_of_range for a year outside 1500 to 2500 or another month.
MonthGrid CreateGrid(core::Session& session, const GridView& view, int month, int year);

// The row of one date alone, in a grid of its own.
core::Table GridOfDay(core::Session& session, const GridView& view, core::DateTime date);

// The first of the month of a tag of a MonthLink; nothing for another text.
std::optional<core::DateTime> MonthOfTag(const std::string& tag);

// The planet of a cell's tag, and the date of a row's tag; nothing for another text.
std::optional<Planet> PlanetOfCell(const std::string& tag);
std::optional<core::DateTime> DateOfRow(const std::string& tag);

struct CellPlace {
  std::size_t Row = 0;
  std::size_t Column = 0;
};

// Marks the cells of a date (long text) whose planet's name `planetName` holds, and gives the last
// of them; nothing where there is none.
std::optional<CellPlace> HighlightCell(core::Table& grid, const std::string& dateText,
                                       const std::string& planetName);

}  // namespace orvex::transit
