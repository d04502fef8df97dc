// The search for clients or remedies by filters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/date_text.h"
#include "core/save_result.h"
#include "core/session.h"
#include "core/table.h"

namespace orvex::practice {

enum class SearchMode { Clients, Remedies };
enum class DateRange { Any, After, Before, Between };

// clang-format off
enum class ClientResultColumn {
  ClientName, Gender, GroupName, BirthDate, Email, Mobile, City, Latitude, Longitude, Offset,
  Comments
};
enum class RemedyResultColumn {
  ClientName, Gender, GroupName, RemedyDate, Email, Mobile, Problem, Remedy
};
// clang-format on

inline constexpr const char* kEmptyResultLine = "Search Result(s):";

// The planets that can be searched for as retrograde: planet_master.id of Mercury and of Saturn,
// and all between.
inline constexpr int kFirstRetrogradeId = 3;
inline constexpr int kLastRetrogradeId = 7;

struct SearchFilter {
  SearchMode Mode = SearchMode::Clients;
  std::optional<std::vector<std::int32_t>> GroupIds;  // nothing: all groups
  std::string Gender;                                 // "M", "F", "O"; "" any
  int RetrogradePlanetId = 0;                         // planet_master.id; 0 is passed over
  int AscendantRashi = 0;                             // 1 to 12; 0 any
  std::string Name;  // a part of the client's name, taken letter for letter but for %
  std::string Text;  // as typed
  DateRange Dates = DateRange::Any;
  core::DateTime From{};
  core::DateTime To{};
  std::optional<int> ForPlanetId;  // remedies only; nothing: any
};

struct SearchResult {
  core::Table Results;
  std::string ResultLine = kEmptyResultLine;
  std::optional<core::Refusal> Refused;  // no search was run
};

// The empty result table of a mode.
core::Table ResultTable(SearchMode mode);

// A row that was found: the client's or the remedy's own id, and the client's.
struct FoundRow {
  std::int32_t Id = 0;
  std::int32_t ClientId = 0;
};

// What was found, without its cells: of 100,000 rows a screen shows forty.
struct FoundRows {
  std::vector<FoundRow> Rows;
  std::string ResultLine = kEmptyResultLine;
  std::optional<core::Refusal> Refused;  // no search was run
};

// Runs the search as SearchClients does and finds the same rows in the same order.
FoundRows FindRows(const core::Session& session, const SearchFilter& filter);

// The cells of some of the rows that a search found, in the order asked for. A row that fits the
// filter no more has none.
std::vector<core::Row> ReadFoundRows(const core::Session& session, const SearchFilter& filter,
                                     const std::vector<FoundRow>& rows);

// Runs the search. The tag of a row is the client's id; dates and numbers carry sort keys. The text
// goes into the statement as typed, so one with a quote makes it fail: a statement that fails gives
// an empty list. Refused where groups are to be selected and none is.
SearchResult SearchClients(const core::Session& session, const SearchFilter& filter);

}  // namespace orvex::practice
