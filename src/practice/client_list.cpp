#include "practice/client_list.h"

#include "core/exact_numbers.h"

namespace orvex::practice {

namespace {

core::Table EmptyList() {
  core::Table table;
  table.Columns = {{"Client Name", 140},
                   {"Gen", 60},
                   {"Birth/Horary Date", 150},
                   {"#", 50},
                   {"City", 195},
                   {"Created On", 100},
                   {"Mobile", 120},
                   {"Email", 150},
                   {"Comments", 200}};
  return table;
}

core::Cell DateCell(const core::Result& row, std::string_view field) {
  core::Cell cell;
  if (const std::optional<core::DateTime> moment = row.Moment(field)) {
    cell.Text = core::LongDateText(*moment, false);
    cell.SortKey = core::StoredDateTimeText(*moment);
  }
  return cell;
}

void AddClient(const core::Result& row, core::Table& table) {
  table.AddRow().Tag = row.Text("id");
  const std::size_t at = table.Rows.size() - 1;
  table.At(at, ClientColumn::ClientName).Text = row.Text("fullname");
  table.At(at, ClientColumn::Gender).Text = row.Text("gender");
  table.At(at, ClientColumn::BirthDate) = DateCell(row, "birthdate");
  if (row.Flag("horary")) {
    core::Cell& number = table.At(at, ClientColumn::HoraryNumber);
    number.Text = row.Text("horaryno");
    number.Tooltip = row.Text("horaryquestion");
  }
  core::Cell& city = table.At(at, ClientColumn::City);
  city.Text = row.Text("cityname");
  city.Tooltip = "Lat: " + row.Text("latitude") + " | Lon: " + row.Text("longitude") +
                 " | Off: " + row.Text("offset");
  table.At(at, ClientColumn::CreatedOn) = DateCell(row, "createddate");
  table.At(at, ClientColumn::Mobile).Text = row.Text("mobile");
  table.At(at, ClientColumn::Email).Text = row.Text("email");
  table.At(at, ClientColumn::Comments).Text = row.Text("comments");
}

}  // namespace

core::Table LoadClientsOfGroup(const core::Session& session, std::optional<std::int32_t> groupId) {
  const std::string ofGroup =
      groupId ? "cm.groupid = " + core::PaddedWhole(*groupId, 1) + " and " : "";
  core::Table table = EmptyList();
  for (core::Result row = session.StoreConnection.Query(
           "Select cm.*, ct.cityname from client_master cm, city_master ct where " + ofGroup +
           "cm.cityid = ct.id order by " + session.State.SortColumn);
       !row.AtEnd(); row.Next()) {
    AddClient(row, table);
  }
  return table;
}

}  // namespace orvex::practice
