#include "practice/remedies.h"

#include <algorithm>

#include "core/exact_numbers.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

using core::HasRow;
using core::LastId;
using core::Quoted;
using core::WriteBatch;

constexpr std::size_t kLongestText = 1000;
constexpr const char* kTooLong = "Text cannot exceed more than 1000 characters.";

std::optional<core::Refusal> CheckRemedy(const RemedyForm& form) {
  if (core::Trim(form.Problem).empty()) {
    return core::RefusalOf("Problem/Symptom is a mandatory field.", "problem");
  }
  if (core::CharacterCount(form.Problem) > kLongestText) {
    return core::RefusalOf(kTooLong, "problem");
  }
  if (core::Trim(form.Remedy).empty()) {
    return core::RefusalOf("Remedy/Solution is a mandatory field.", "remedy");
  }
  if (core::CharacterCount(form.Remedy) > kLongestText) {
    return core::RefusalOf(kTooLong, "remedy");
  }
  return std::nullopt;
}

// The name of a planet by its id; another number keeps the name before it.
void NamePlanet(const core::ReferenceData& reference, std::int64_t id, std::string& name) {
  if (id == 0) {
    name = "None";
    return;
  }
  const auto planet = std::find_if(reference.Planets.begin(), reference.Planets.end(),
                                   [id](const core::PlanetInfo& row) { return row.Id == id; });
  if (planet != reference.Planets.end()) {
    name = planet->PlanetName;
  }
}

}  // namespace

std::string RemedyCaption(const std::string& clientName) {
  return "Remedy given to: " + clientName;
}

core::Table LoadRemedies(const core::Session& session, std::int32_t clientId) {
  core::Table table{
      {{"Problem", 250}, {"Solution", 250}, {"For Planet", 100}, {"Remedy Date", 150}}, {}};
  std::string planet;
  for (core::Result remedy = session.StoreConnection.Query(
           "Select * from client_remedy where clientid = " + core::WholeText(clientId) +
           " order by remedydate");
       !remedy.AtEnd(); remedy.Next()) {
    table.AddRow().Tag = remedy.Text("id");
    const std::size_t row = table.Rows.size() - 1;
    NamePlanet(session.Reference, remedy.Integer("forplanetid"), planet);
    table.At(row, RemedyColumn::Problem).Text = remedy.Text("problem");
    table.At(row, RemedyColumn::Solution).Text = remedy.Text("remedy");
    table.At(row, RemedyColumn::ForPlanet).Text = planet;
    if (const std::optional<core::DateTime> date = remedy.Moment("remedydate")) {
      core::Cell& cell = table.At(row, RemedyColumn::RemedyDate);
      cell.Text = core::LongDateText(*date, false);
      cell.SortKey = core::StoredDateTimeText(*date);
    }
  }
  return table;
}

std::vector<PlanetChoice> RemedyPlanets(const core::Session& session) {
  std::vector<PlanetChoice> planets = {{0, "None"}};
  for (core::Result row = session.StoreConnection.Query(
           "Select id, planetname from planet_master order by planetname");
       !row.AtEnd(); row.Next()) {
    planets.push_back({static_cast<std::int32_t>(row.Integer("id")), row.Text("planetname")});
  }
  return planets;
}

RemedyForm OpenAddRemedy(const core::Session& session) { return {0, "", "", session.Time.Today()}; }

std::optional<RemedyForm> OpenEditRemedy(core::Session& session, std::int32_t remedyId) {
  const core::Result remedy = session.StoreConnection.Query(
      "Select * from client_remedy where id = " + core::WholeText(remedyId));
  if (remedy.AtEnd()) {
    return core::TellRecordGone(session);
  }
  return RemedyForm{static_cast<std::int32_t>(remedy.Integer("forplanetid")),
                    remedy.Text("problem"), remedy.Text("remedy"),
                    remedy.Moment("remedydate").value_or(session.Time.Today())};
}

core::SaveResult SaveNewRemedy(core::Session& session, const RemedyForm& form,
                               std::int32_t clientId) {
  if (std::optional<core::Refusal> refused = CheckRemedy(form)) {
    return {0, std::move(refused)};
  }
  if (!HasRow(session.StoreConnection, "client_master", clientId)) {
    return {0, core::Refusal{core::kNoClientWithId, core::MessageIcon::Stop, ""}};
  }
  return WriteBatch(session, [&form, clientId](core::Store& store) {
    store.Execute(
        "Insert into client_remedy (clientid, forplanetid, problem, remedy, remedydate) values (" +
        core::WholeText(clientId) + ", " + core::WholeText(form.PlanetId) + ", " +
        Quoted(form.Problem) + ", " + Quoted(form.Remedy) + ", " + core::DateLiteral(form.Date) +
        ")");
    return LastId(store, "client_remedy");
  });
}

core::SaveResult SaveRemedyChanges(core::Session& session, const RemedyForm& form,
                                   std::int32_t remedyId) {
  if (std::optional<core::Refusal> refused = CheckRemedy(form)) {
    return {0, std::move(refused)};
  }
  return WriteBatch(session, [&form, remedyId](core::Store& store) {
    store.Execute("Update client_remedy set forplanetid = " + core::WholeText(form.PlanetId) +
                  ", problem = " + Quoted(form.Problem) + ", remedy = " + Quoted(form.Remedy) +
                  ", remedydate = " + core::DateLiteral(form.Date) +
                  " where id = " + core::WholeText(remedyId));
    return remedyId;
  });
}

std::string DeleteRemedyQuestion(const core::Session& session, std::int32_t remedyId) {
  const core::Result client = session.StoreConnection.Query(
      "Select cm.fullname from client_master cm, client_remedy cr where cm.id = cr.clientid and "
      "cr.id = " +
      core::WholeText(remedyId));
  return kDeleteRemedyQuestion + (client.AtEnd() ? "" : "\n\n" + client.Text("fullname"));
}

core::SaveResult DeleteRemedy(core::Session& session, std::int32_t remedyId) {
  if (!HasRow(session.StoreConnection, "client_remedy", remedyId)) {
    return {0, core::Refusal{core::kRecordGone, core::MessageIcon::Stop, ""}};
  }
  return WriteBatch(session, [remedyId](core::Store& store) {
    store.Execute("Delete from client_remedy where id = " + core::WholeText(remedyId));
    return remedyId;
  });
}

}  // namespace orvex::practice
