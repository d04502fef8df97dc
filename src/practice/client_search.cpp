#include "practice/client_search.h"

#include <chrono>
#include <memory>
#include <unordered_map>

#include "core/attempt.h"
#include "core/dialect.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/list_cells.h"

namespace orvex::practice {

namespace {

// A typed text goes into the statement as it is and can make one that never ends.
std::unique_ptr<core::StatementLimit> LimitOf(const core::Session& session,
                                              const SearchFilter& filter) {
  constexpr std::chrono::milliseconds kLongestSearch{2000};
  if (core::Trim(filter.Text).empty()) {
    return nullptr;
  }
  return std::make_unique<core::StatementLimit>(session.StoreConnection, kLongestSearch);
}

// The clauses that both modes share, each "" where its filter says any.
struct Clauses {
  std::string Tables;
  std::string Retrograde;
  std::string Groups;
  std::string Gender;
  std::string Ascendant;
  std::string Name;
};

std::string GroupClause(const SearchFilter& filter) {
  if (!filter.GroupIds) {
    return "";
  }
  std::vector<std::string> ids;
  for (const std::int32_t id : *filter.GroupIds) {
    ids.push_back(core::WholeText(id));
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
  // Stores that came from elsewhere hold -1 for true.
  if (filter.RetrogradePlanetId != 0) {
    clauses.Tables = ", client_planets cp";
    clauses.Retrograde =
        " and cp.clientid = cm.id and cp.planetid = " + core::WholeText(filter.RetrogradePlanetId) +
        " and cp.inretro <> 0 ";
  }
  clauses.Ascendant = AscendantClause(filter.AscendantRashi);
  if (const std::string name = core::Trim(filter.Name); !name.empty()) {
    clauses.Name = " and cm.fullname like " + core::Quoted("%" + name + "%");
  }
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

constexpr const char* kClientFields =
    "cm.id, cm.fullname, cm.gender, cm.email, cm.mobile, cm.birthdate, cm.comments, cm.horary, "
    "cm.horaryno, cm.latitude, cm.longitude, cm.offset, gm.groupname, ctm.cityname";
constexpr const char* kRemedyFields =
    "cm.id, cm.fullname, cm.gender, cm.email, cm.mobile, gm.groupname, cr.remedydate, cr.problem, "
    "cr.remedy";
constexpr const char* kByName = " order by cm.fullname collate names";

std::string ClientsThatFit(const SearchFilter& filter, const Clauses& clauses) {
  const std::string text = core::Trim(filter.Text);
  return " from client_master cm, group_master gm, city_master ctm" + clauses.Tables +
         " where cm.cityid = ctm.id and cm.groupid = gm.id and" +
         DateClause(filter, "cm.birthdate") +
         (text.empty() ? "" : " and cm.comments like '%" + text + "%'") + clauses.Retrograde +
         clauses.Groups + clauses.Gender + clauses.Ascendant + clauses.Name;
}

std::string RemediesThatFit(const SearchFilter& filter, const Clauses& clauses) {
  const std::string text = core::Trim(filter.Text);
  return " from client_master cm, group_master gm, client_remedy cr" + clauses.Tables +
         " where cm.id = cr.clientid and cm.groupid = gm.id and" +
         DateClause(filter, "cr.remedydate") +
         (text.empty()
              ? ""
              : " and (cr.problem like '%" + text + "%' or cr.remedy like '%" + text + "%')") +
         clauses.Retrograde +
         (filter.ForPlanetId ? " and cr.forplanetid = " + core::WholeText(*filter.ForPlanetId)
                             : "") +
         clauses.Groups + clauses.Gender + clauses.Ascendant + clauses.Name;
}

bool OfClients(const SearchFilter& filter) { return filter.Mode == SearchMode::Clients; }

// The field of a row's own id.
const char* KeyOf(const SearchFilter& filter) { return OfClients(filter) ? "cm.id" : "cr.id"; }

// "Select ... from ... where ...", with the row's own id as rowkey.
std::string SelectThatFit(const SearchFilter& filter, const char* fields) {
  const Clauses clauses = ClausesOf(filter);
  return std::string("Select ") + KeyOf(filter) + " as rowkey, " + fields +
         (OfClients(filter) ? ClientsThatFit(filter, clauses) : RemediesThatFit(filter, clauses));
}

std::string SelectCells(const SearchFilter& filter) {
  return SelectThatFit(filter, OfClients(filter) ? kClientFields : kRemedyFields);
}

std::optional<core::Refusal> CheckGroups(const SearchFilter& filter) {
  if (!filter.GroupIds || !filter.GroupIds->empty()) {
    return std::nullopt;
  }
  return core::Refusal{"You need to select at least one Group from the list.",
                       core::MessageIcon::Information, "groups"};
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
  const std::string found =
      "Found " + core::WholeText(static_cast<std::int64_t>(count)) + " record(s).";
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

FoundRows FindRows(const core::Session& session, const SearchFilter& filter) {
  FoundRows found;
  if ((found.Refused = CheckGroups(filter))) {
    return found;
  }
  const bool done = core::Attempt([&] {
    const auto limit = LimitOf(session, filter);
    const std::string statement = SelectThatFit(filter, "cm.id") + kByName;
    for (core::Result row = session.StoreConnection.Query(statement); !row.AtEnd(); row.Next()) {
      found.Rows.push_back({static_cast<std::int32_t>(row.Integer("rowkey")),
                            static_cast<std::int32_t>(row.Integer("id"))});
    }
  });
  if (!done) {
    found.Rows.clear();
  }
  found.ResultLine = ResultLine(found.Rows.size());
  return found;
}

std::vector<core::Row> ReadFoundRows(const core::Session& session, const SearchFilter& filter,
                                     const std::vector<FoundRow>& rows) {
  std::vector<std::string> ids;
  std::unordered_map<std::int64_t, std::size_t> places;
  for (const FoundRow& row : rows) {
    places.emplace(row.Id, ids.size());
    ids.push_back(core::WholeText(row.Id));
  }
  std::vector<core::Row> read(rows.size());
  core::Attempt([&] {
    const auto limit = LimitOf(session, filter);
    core::Table one = ResultTable(filter.Mode);
    const std::string statement =
        SelectCells(filter) + " and " + KeyOf(filter) + " in (" + core::Join(ids, ",") + ")";
    for (core::Result row = session.StoreConnection.Query(statement); !row.AtEnd(); row.Next()) {
      one.Rows.clear();
      OfClients(filter) ? AddClientRow(row, one) : AddRemedyRow(row, one);
      read[places.at(row.Integer("rowkey"))] = std::move(one.Rows.front());
    }
  });
  for (std::size_t at = 0; at < rows.size(); ++at) {
    if (const std::size_t first = places.at(rows[at].Id); first != at) {
      read[at] = read[first];
    }
  }
  return read;
}

SearchResult SearchClients(const core::Session& session, const SearchFilter& filter) {
  SearchResult result{ResultTable(filter.Mode)};
  if ((result.Refused = CheckGroups(filter))) {
    return result;
  }
  const bool done = core::Attempt([&] {
    const auto limit = LimitOf(session, filter);
    const std::string statement = SelectCells(filter) + kByName;
    for (core::Result row = session.StoreConnection.Query(statement); !row.AtEnd(); row.Next()) {
      OfClients(filter) ? AddClientRow(row, result.Results) : AddRemedyRow(row, result.Results);
    }
  });
  if (!done) {
    result.Results.Rows.clear();
  }
  result.ResultLine = ResultLine(result.Results.Rows.size());
  return result;
}

}  // namespace orvex::practice
