// What a report shows, piece by piece, for both of its forms: the page that fills the template and
// the PDF. How a piece is written is the business of each form.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::report {

// How deep the tables of periods go: 81, 729 or 6561 rows.
enum class ReportDetail { DB, DBA, DBAS };

// The inks of good and hard aspects in a report.
inline constexpr const char* kGoodInk = "008000";
inline constexpr const char* kHardInk = "FF0000";

// Shown where a client has no remedies.
inline constexpr const char* kNoRemedies = "No records found";

// A text under the name that the template knows it by.
struct ReportScalar {
  const char* Name;
  std::string Text;
  bool Typed = false;  // by a user, so it may hold anything
};

// The texts of a horoscope in the order in which the template takes them, FULLNAME to COMMENTS.
std::vector<ReportScalar> ScalarsOf(const chart::HoroscopeModel& model);

// The astrologer's profile: ASTROLOGERNAME, ASTROLOGERORGANIZATION, ASTROLOGERCONTACTDETAILS.
std::vector<ReportScalar> ProfileOf(const core::ApplicationState& state);

// The text of that name; "" where the list has none.
std::string TextOf(const std::vector<ReportScalar>& scalars, const std::string& name);

// The planets with the degree within the sign behind the degree.
core::Table PlanetsOfReport(const chart::HoroscopeModel& model);

// The aspects between planets: good ones first, then hard ones, the cells in their inks.
core::Table PlanetAspectsOfReport(const core::ApplicationState& state,
                                  const chart::HoroscopeModel& model);

// "Plane", "Description"; what is missing in the grid is red.
core::Table LoShuPlanesOfReport(const chart::HoroscopeModel& model);

// "Element", "Direction", "Meaning"; element and direction of a missing number are red.
core::Table LoShuNumbersOfReport(const chart::HoroscopeModel& model);

// All periods of a life in three tables, each of three of the nine Dashas: the planet of each level
// and the end date of the lowest one.
std::array<core::Table, 3> PeriodsOfReport(const core::ReferenceData& reference,
                                           const chart::HoroscopeModel& model, ReportDetail detail);

// Some columns of a table in that order, the cells as they are.
template <typename ColumnName>
core::Table ColumnsOf(const core::Table& table, const std::vector<ColumnName>& columns) {
  core::Table chosen;
  for (const ColumnName column : columns) {
    chosen.Columns.push_back({table.Columns.at(core::Table::Index(column)).Caption});
  }
  for (std::size_t row = 0; row < table.Rows.size(); ++row) {
    core::Row& added = chosen.AddRow();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      added.Cells[i] = table.At(row, columns[i]);
    }
  }
  return chosen;
}

// The columns of a table that are shown: those whose width is not 0.
std::vector<std::size_t> ShownColumns(const core::Table& table);

}  // namespace orvex::report
