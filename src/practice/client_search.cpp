#include "practice/client_search.h"

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/list_cells.h"

namespace orvex::practice {

namespace {

// A typed text goes into the statement as it is and can make one that never ends.
constexpr std::chrono::milliseconds kLongestSearch{2000};

std::string WholeText(std::int64_t number) { return core::PaddedWhole(number, 1); }

// The clauses that both modes share, each "" where its filter says any.
struct Clauses {
  std::string Tables;
  std::string Retrograde;
  std::string Groups;
  std::string Gender;
  std::string Ascendant;
};

std::string GroupClause(const SearchFilter& filter) {
  if (!filter.GroupIds) {
    return "";
  }
  std::vector<std::string> ids;
  for (const std::int32_t id : *filter.GroupIds) {
    ids.push_back(WholeText(id));
  }
  return " and cm.groupid in (" + core::Join(ids, ",") + ")";
}

// The first cusp lies in the sign, which for degrees of two decimals ends 0.01 below the next.
std::string AscendantClause(int rashi) {
  constexpr double kSignWidth = 30;
  constexpr double kLeast = 0.01;
  if (rashi == 0) {
    return "";
  }
  const double end = kSignWidth * rashi;
  return " and (cm.cuspdegree1 >= " + core::TwoDecimals(end - kSignWidth) +
         " and cm.cuspdegree1 <= " + core::TwoDecimals(end - kLeast) + ") ";
}

Clauses ClausesOf(const SearchFilter& filter) {
  Clauses clauses;
  clauses.Groups = GroupClause(filter);
  if (!filter.Gender.empty()) {
    clauses.Gender = " and cm.gender = '" + filter.Gender + "'";
  }
  if (filter.RetrogradePlanetId != 0) {
    clauses.Tables = ", client_planets cp";
    clauses.Retrograde =
        " and cp.clientid = cm.id and cp.planetid = " + WholeText(filter.RetrogradePlanetId) +
        " and cp.inretro = true ";
  }
  clauses.Ascendant = AscendantClause(filter.AscendantRashi);
  return clauses;
}

std::string DateClause(const SearchFilter& filter, const std::string& column) {
  const std::string from = core::DateLiteral(filter.From);
  switch (filter.Dates) {
    case DateRange::After:
      return " " + column + " > " + from;
    case DateRange::Before:
      return " " + column + " < " + from;
    case DateRange::Between:
      return " " + column + " between " + from + " and " + core::DateLiteral(filter.To);
    default:
      return " " + column + " is not null";
  }
}

std::string ClientStatement(const SearchFilter& filter, const Clauses& clauses) {
  const std::string text = core::Trim(filter.Text);
  return "Select cm.id, cm.fullname, cm.gender, cm.email, cm.mobile, cm.birthdate, cm.comments, "
         "cm.horary, cm.horaryno, cm.latitude, cm.longitude, cm.offset, gm.groupname, "
         "ctm.cityname from client_master cm, group_master gm, city_master ctm" +
         clauses.Tables + " where cm.cityid = ctm.id and cm.groupid = gm.id and" +
         DateClause(filter, "cm.birthdate") +
         (text.empty() ? "" : " and cm.comments like '%" + text + "%'") + clauses.Retrograde +
         clauses.Groups + clauses.Gender + clauses.Ascendant + " order by cm.fullname";
}

std::string RemedyStatement(const SearchFilter& filter, const Clauses& clauses) {
  const std::string text = core::Trim(filter.Text);
  return "Select cm.id, cm.fullname, cm.gender, cm.email, cm.mobile, gm.groupname, cr.remedydate, "
         "cr.problem, cr.remedy from client_master cm, group_master gm, client_remedy cr" +
         clauses.Tables + " where cm.id = cr.clientid and cm.groupid = gm.id and" +
         DateClause(filter, "cr.remedydate") +
         (text.empty()
              ? ""
              : " and (cr.problem like '%" + text + "%' or cr.remedy like '%" + text + "%')") +
         clauses.Retrograde +
         (filter.ForPlanetId ? " and cr.forplanetid = " + WholeText(*filter.ForPlanetId) : "") +
         clauses.Groups + clauses.Gender + clauses.Ascendant + " order by cm.fullname";
}

std::string GenderText(const std::string& letter) {
  if (letter == "F") {
    return "Female";
  }
  return letter == "O" ? "Other" : "Male";
}

// The cells that both modes begin with. The enums name the same places.
void AddPerson(const core::Result& row, core::Table& table) {
  table.AddRow().Tag = row.Text("id");
  const std::size_t at = table.Rows.size() - 1;
  table.At(at, ClientResultColumn::ClientName).Text = row.Text("fullname");
  table.At(at, ClientResultColumn::Gender).Text = GenderText(row.Text("gender"));
  table.At(at, ClientResultColumn::GroupName).Text = row.Text("groupname");
  table.At(at, ClientResultColumn::Email).Text = row.Text("email");
  table.At(at, ClientResultColumn::Mobile).Text = row.Text("mobile");
}

void AddClientRow(const core::Result& row, core::Table& table) {
  AddPerson(row, table);
  const std::size_t at = table.Rows.size() - 1;
  core::Cell& birth = table.At(at, ClientResultColumn::BirthDate) = DateCell(row, "birthdate");
  if (row.Flag("horary")) {
    birth.Text += " (" + row.Text("horaryno") + ")";
  }
  table.At(at, ClientResultColumn::City).Text = row.Text("cityname");
  table.At(at, ClientResultColumn::Latitude) = NumberCell(row, "latitude");
  table.At(at, ClientResultColumn::Longitude) = NumberCell(row, "longitude");
  table.At(at, ClientResultColumn::Offset) = NumberCell(row, "offset");
  table.At(at, ClientResultColumn::Comments).Text = row.Text("comments");
}

void AddRemedyRow(const core::Result& row, core::Table& table) {
  AddPerson(row, table);
  const std::size_t at = table.Rows.size() - 1;
  table.At(at, RemedyResultColumn::RemedyDate) = DateCell(row, "remedydate");
  table.At(at, RemedyResultColumn::Problem).Text = row.Text("problem");
  table.At(at, RemedyResultColumn::Remedy).Text = row.Text("remedy");
}

std::string ResultLine(std::size_t count) {
  const std::string found = "Found " + WholeText(static_cast<std::int64_t>(count)) + " record(s).";
  return count == 0 ? found : found + " Double click on a record to View Horoscope.";
}

}  // namespace

core::Table ResultTable(SearchMode mode) {
  core::Table table{{{"Client Name", 105}, {"Gender", 55}, {"Group Name", 90}}, {}};
  const bool clients = mode == SearchMode::Clients;
  table.Columns.push_back({clients ? "Birth Date" : "Remedy Date", 110});
  table.Columns.push_back({"Email", 140});
  table.Columns.push_back({"Mobile", 90});
  const std::vector<core::Column> rest =
      clients ? std::vector<core::Column>{{"City", 100},
                                          {"Latitude", 80},
                                          {"Longitude", 80},
                                          {"Offset", 50},
                                          {"Comments", 120}}
              : std::vector<core::Column>{{"Problem", 100}, {"Remedy", 100}};
  table.Columns.insert(table.Columns.end(), rest.begin(), rest.end());
  return table;
}

SearchResult SearchClients(const core::Session& session, const SearchFilter& filter) {
  SearchResult result{ResultTable(filter.Mode)};
  if (filter.GroupIds && filter.GroupIds->empty()) {
    result.Refused = core::Refusal{"You need to select at least one Group from the list.",
                                   core::MessageIcon::Information, "groups"};
    return result;
  }
  const bool clients = filter.Mode == SearchMode::Clients;
  const Clauses clauses = ClausesOf(filter);
  const bool typed = !core::Trim(filter.Text).empty();
  const bool done = core::Attempt([&] {
    std::optional<core::StatementLimit> limit;
    if (typed) {
      limit.emplace(session.StoreConnection, kLongestSearch);
    }
    const std::string statement =
        clients ? ClientStatement(filter, clauses) : RemedyStatement(filter, clauses);
    for (core::Result row = session.StoreConnection.Query(statement); !row.AtEnd(); row.Next()) {
      clients ? AddClientRow(row, result.Results) : AddRemedyRow(row, result.Results);
    }
  });
  if (!done) {
    result.Results.Rows.clear();
  }
  result.ResultLine = ResultLine(result.Results.Rows.size());
  return result;
}

}  // namespace orvex::practice
