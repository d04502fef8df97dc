#include "chart/client_saving.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "chart/chart_moment.h"
#include "chart/client_checks.h"
#include "chart/zodiac_lookups.h"
#include "core/exact_numbers.h"
#include "core/settings.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using core::DateLiteral;
using core::Quoted;

constexpr std::size_t kLongestName = 100;
constexpr std::size_t kLongestQuestion = 100;

// The columns of a statement with their values as they stand in it.
using ColumnValues = std::vector<std::pair<std::string, std::string>>;

AscendantChoice ChoiceOf(const ClientForm& form) {
  if (form.Horary) {
    return AscendantChoice::Horary;
  }
  return form.AscendantByHand ? AscendantChoice::ByHand : AscendantChoice::Computed;
}

// A number entered as text, as it stands in a statement.
std::string NumberValue(const std::string& text) { return core::Trim(text); }

std::string HoraryNumberValue(const ClientForm& form) {
  return form.Horary ? core::WholeText(core::ParseWhole(form.HoraryNumber).value()) : "0";
}

std::string QuestionValue(const ClientForm& form) {
  const std::string question = form.Horary ? core::Trim(form.HoraryQuestion) : "";
  return Quoted(core::FirstCharacters(question, kLongestQuestion));
}

std::string NameValue(const ClientForm& form) {
  return Quoted(core::FirstCharacters(core::Trim(form.FullName), kLongestName));
}

void AppendCusps(const ChartResult& chart, ColumnValues& values) {
  for (const CuspRow& cusp : chart.Cusps) {
    values.emplace_back("CuspDegree" + core::WholeText(cusp.Cusp), cusp.DegStart);
  }
}

// From "email" to "ascdegreetype", the run that both paths write in one order.
void AppendPersonAndQuery(const ClientForm& form, ColumnValues& values) {
  values.insert(values.end(),
                {{"email", Quoted(form.Email)},
                 {"mobile", Quoted(form.Mobile)},
                 {"gender", Quoted(form.Gender)},
                 {"horary", form.Horary ? "true" : "false"},
                 {"horaryno", HoraryNumberValue(form)},
                 {"horaryquestion", QuestionValue(form)},
                 {"comments", Quoted(form.Comments)},
                 {"ascdegreetype", form.AscendantByHand && !form.Horary ? "'M'" : "'A'"}});
}

// The clients that were created in a second, the first one first.
core::Result CreatedIn(const core::Store& store, core::DateTime second) {
  return store.Query("Select id from client_master where createddate = " + DateLiteral(second));
}

ColumnValues InsertValues(const ClientRecord& record, const std::string& created) {
  const ClientForm& form = record.Form;
  ColumnValues values = {{"fullname", NameValue(form)},
                         {"cityid", core::WholeText(form.CityId)},
                         {"groupid", core::WholeText(record.GroupId)},
                         {"birthdate", DateLiteral(form.Birth)},
                         {"latitude", NumberValue(form.Latitude)},
                         {"longitude", NumberValue(form.Longitude)},
                         {"offset", NumberValue(form.Offset)},
                         {"firstrashihouse", core::WholeText(record.Chart.FirstRashiHouse)}};
  AppendPersonAndQuery(form, values);
  values.emplace_back("createddate", created);
  AppendCusps(record.Chart, values);
  return values;
}

ColumnValues UpdateValues(const ClientForm& form, const ChartResult& chart) {
  ColumnValues values = {{"fullname", NameValue(form)},
                         {"cityid", core::WholeText(form.CityId)},
                         {"birthdate", DateLiteral(form.Birth)},
                         {"offset", NumberValue(form.Offset)},
                         {"latitude", NumberValue(form.Latitude)},
                         {"longitude", NumberValue(form.Longitude)},
                         {"firstrashihouse", core::WholeText(chart.FirstRashiHouse)}};
  AppendPersonAndQuery(form, values);
  AppendCusps(chart, values);
  return values;
}

// The values of a planet's row. A house that stayed empty, as in the far north where neither a
// planet's sign nor the next one holds a cusp, is stored empty.
ColumnValues PlanetValues(const PlanetRow& planet) {
  const auto house = [](const std::optional<int>& number) {
    return number ? core::WholeText(*number) : std::string("Null");
  };
  return {{"rashihouse", house(planet.RashiHouse)},
          {"chalithouse", house(planet.ChalitHouse)},
          {"degree", core::SingleText(core::ToSingle(planet.Degree))},
          {"starlord", "'" + planet.StarLord + "'"},
          {"sublord", "'" + planet.SubLord + "'"},
          {"inretro", planet.InRetro}};
}

std::string InsertStatement(const std::string& table, const ColumnValues& values) {
  std::string columns;
  std::string places;
  for (const auto& [column, value] : values) {
    columns += (columns.empty() ? "" : ", ") + column;
    places += (places.empty() ? "" : ", ") + value;
  }
  return "Insert into " + table + " (" + columns + ") values (" + places + ")";
}

std::string UpdateStatement(const std::string& table, const ColumnValues& values,
                            const std::string& condition) {
  std::string changes;
  for (const auto& [column, value] : values) {
    changes += (changes.empty() ? "" : ", ") + column + " = " + value;
  }
  return "Update " + table + " set " + changes + " where " + condition;
}

int PlanetId(const core::Session& session, const PlanetRow& planet) {
  return PlanetOfName(session.Reference, planet.Planet).Id;
}

void InsertPlanets(core::Session& session, std::int32_t clientId, const ChartResult& chart) {
  for (const PlanetRow& planet : chart.Planets) {
    ColumnValues values = {{"clientid", core::WholeText(clientId)},
                           {"planetid", core::WholeText(PlanetId(session, planet))}};
    const ColumnValues rest = PlanetValues(planet);
    values.insert(values.end(), rest.begin(), rest.end());
    session.StoreConnection.Execute(InsertStatement("client_planets", values));
  }
}

void UpdateClient(core::Session& session, const ClientForm& form, const ChartResult& chart,
                  std::int32_t clientId) {
  core::Store& store = session.StoreConnection;
  const std::string id = core::WholeText(clientId);
  core::Batch batch(store);
  store.Execute(UpdateStatement("client_master", UpdateValues(form, chart), "id = " + id));
  SyncStore(store);
  store.Execute("Update client_planets set inretro = 0 where clientid = " + id);
  SyncStore(store);
  for (const PlanetRow& planet : chart.Planets) {
    store.Execute(UpdateStatement(
        "client_planets", PlanetValues(planet),
        "planetid = " + core::WholeText(PlanetId(session, planet)) + " and clientid = " + id));
  }
  SyncStore(store);
  batch.Commit();
}

core::Refusal CouldNotUpdate() { return {core::kCouldNotUpdate, core::MessageIcon::Stop, ""}; }

ChartInput InputOf(const core::Session& session, const ClientForm& form) {
  return {form.Birth,
          form.Offset,
          form.Latitude,
          form.Longitude,
          core::ToDouble(PlaceOfCity(session, form.CityId).value().Offset),
          ChoiceOf(form),
          static_cast<int>(core::ParseWhole(form.HoraryNumber).value_or(0)),
          form.AscendantDegree};
}

// Checks the form, computes its chart and hands it to `write`.
template <typename Write>
core::SaveResult Save(core::Session& session, const ClientForm& form, Write write) {
  CheckedChart checked = CheckAndCompute(session, form);
  if (checked.Refused) {
    return {0, std::move(checked.Refused)};
  }
  try {
    return {write(checked.Chart), std::nullopt};
  } catch (const std::exception&) {
    return {0, CouldNotUpdate()};
  }
}

}  // namespace

std::optional<CityPlace> PlaceOfCity(const core::Session& session, std::int32_t cityId) {
  const core::Result city = session.StoreConnection.Query(
      "Select cm.*, tm.countrycode from city_master cm, timezone_master tm "
      "where cm.timezone = tm.timezone and cm.id = " +
      core::WholeText(cityId));
  if (city.AtEnd()) {
    return std::nullopt;
  }
  return CityPlace{city.Text("latitude"), city.Text("longitude"), city.Text("offset")};
}

void SelectCity(const core::Session& session, std::int32_t cityId, ClientForm& form) {
  form.CityId = cityId;
  if (const std::optional<CityPlace> place = PlaceOfCity(session, cityId)) {
    form.Latitude = place->Latitude;
    form.Longitude = place->Longitude;
    form.Offset = place->Offset;
  }
}

ClientForm OpenAddClient(const core::Session& session) {
  ClientForm form;
  form.Birth = session.Time.Now();
  SelectCity(session, session.State.UserCityId, form);
  return form;
}

std::optional<ClientForm> OpenEditClient(core::Session& session, std::int32_t clientId) {
  const core::Result row = session.StoreConnection.Query("Select * from client_master where id = " +
                                                         core::WholeText(clientId));
  if (row.AtEnd()) {
    return core::TellRecordGone(session);
  }
  ClientForm form;
  form.Horary = row.Flag("horary");
  if (form.Horary) {
    form.HoraryNumber = row.Text("horaryno");
    form.HoraryQuestion = row.Text("horaryquestion");
  }
  form.FullName = row.Text("fullname");
  form.Email = row.Text("email");
  form.Mobile = row.Text("mobile");
  form.Comments = row.Text("comments");
  form.Birth = row.Moment("birthdate").value_or(session.Time.Now());
  form.CityId = static_cast<std::int32_t>(row.Integer("cityid"));
  form.Offset = row.Text("offset");
  form.Latitude = row.Text("latitude");
  form.Longitude = row.Text("longitude");
  const std::string gender = row.Text("gender");
  form.Gender = gender == "F" || gender == "O" ? gender : "M";
  form.AscendantByHand = row.Text("ascdegreetype") == "M";
  form.AscendantDegree = form.AscendantByHand ? row.Text("cuspdegree1") : "";
  return form;
}

std::optional<core::DateTime> MomentUtOf(const core::Session& session, const ClientForm& form) {
  const std::optional<CityPlace> city = PlaceOfCity(session, form.CityId);
  if (!city || !core::IsNumeric(form.Offset) || !core::IsNumeric(form.Longitude)) {
    return std::nullopt;
  }
  try {
    return ChosenMomentUt(core::BirthMomentOf(session), form.Birth, core::Trim(form.Offset),
                          core::Trim(form.Longitude), core::ToDouble(city->Offset));
  } catch (const core::DateRangeError&) {
    return std::nullopt;
  }
}

CheckedChart CheckAndCompute(core::Session& session, const ClientForm& form) {
  if (std::optional<core::Refusal> refused = CheckClient(session, form)) {
    return {{}, std::move(refused)};
  }
  try {
    return {ComputeChart(session, InputOf(session, form)), std::nullopt};
  } catch (const core::DateRangeError&) {
    return {{},
            core::Refusal{"The moment lies outside the years 100 to 9999.",
                          core::MessageIcon::Information, "birth"}};
  } catch (const std::exception&) {
    return {{}, CouldNotUpdate()};
  }
}

std::int32_t InsertClientRows(core::Session& session, const ClientRecord& record) {
  core::Store& store = session.StoreConnection;
  const std::string created = DateLiteral(session.Time.Now());
  store.Execute(InsertStatement("client_master", InsertValues(record, created)));
  const std::int32_t id = core::LastId(store, "client_master");
  InsertPlanets(session, id, record.Chart);
  return id;
}

std::int32_t InsertClient(core::Session& session, const ClientRecord& record, Creation creation) {
  core::Store& store = session.StoreConnection;
  core::DateTime second = session.Time.Now();
  while (creation == Creation::InASecondOfItsOwn && !CreatedIn(store, second).AtEnd()) {
    second += std::chrono::seconds(1);
  }
  core::Batch batch(store);
  store.Execute(InsertStatement("client_master", InsertValues(record, DateLiteral(second))));
  SyncStore(store);
  // Found again by its second: of two clients of one second the first row is taken.
  const auto id = static_cast<std::int32_t>(CreatedIn(store, second).Integer("id"));
  InsertPlanets(session, id, record.Chart);
  SyncStore(store);
  batch.Commit();
  return id;
}

core::SaveResult SaveNewClient(core::Session& session, const ClientForm& form, std::int32_t groupId,
                               Creation creation) {
  return Save(session, form, [&](const ChartResult& chart) {
    return InsertClient(session, {form, groupId, chart}, creation);
  });
}

core::SaveResult SaveClientChanges(core::Session& session, const ClientForm& form,
                                   std::int32_t clientId) {
  return Save(session, form, [&](const ChartResult& chart) {
    UpdateClient(session, form, chart, clientId);
    return clientId;
  });
}

}  // namespace orvex::chart
