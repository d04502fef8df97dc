#include "practice/cities.h"

#include "chart/place_checks.h"
#include "core/exact_numbers.h"
#include "core/store_write.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

using core::LastId;
using core::Quoted;
using core::WriteBatch;

constexpr std::size_t kLongestCityName = 100;

core::Table CityList(const core::Session& session, const std::string& statement) {
  core::Table table{
      {{"City Name", 175}, {"Country", 70}, {"Latitude", 80}, {"Longitude", 80}, {"Offset", 0}},
      {}};
  for (core::Result city = session.StoreConnection.Query(statement); !city.AtEnd(); city.Next()) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    core::Cell& name = table.At(row, CityColumn::CityName);
    name.Text = city.Text("cityname");
    name.Tag = city.Text("id");
    table.At(row, CityColumn::Country).Text = city.Text("countrycode");
    table.At(row, CityColumn::Latitude).Text = city.Text("latitude");
    table.At(row, CityColumn::Longitude).Text = city.Text("longitude");
    table.At(row, CityColumn::Offset).Text = city.Text("offset");
  }
  return table;
}

std::optional<core::Refusal> CheckCity(const core::Session& session, const CityForm& form,
                                       bool isNew) {
  const std::string name = core::Trim(form.CityName);
  if (name.empty()) {
    return core::RefusalOf("City Name is a mandatory field.", "cityName");
  }
  if (core::CharacterCount(name) > kLongestCityName) {
    return core::RefusalOf("City Name cannot exceed 100 characters.", "cityName");
  }
  if (isNew && !OffsetOfZone(session, form.TimeZone)) {
    return core::RefusalOf("Please select a Time Zone from the list.", "timeZone");
  }
  if (std::optional<core::Refusal> refused = chart::CheckLatitude(form.Latitude)) {
    return refused;
  }
  if (std::optional<core::Refusal> refused = chart::CheckLongitude(form.Longitude)) {
    return refused;
  }
  return chart::CheckOffset(form.Offset);
}

}  // namespace

core::Table LoadCities(const core::Session& session) {
  return CityList(session,
                  "Select cm.*, tm.countrycode from city_master cm, timezone_master tm "
                  "where cm.timezone = tm.timezone order by cm.cityname collate names");
}

core::Table PreviouslyUsedCities(const core::Session& session) {
  return CityList(
      session,
      "Select distinct cm.id, cm.cityname, cm.latitude, cm.longitude, cm.offset, "
      "tm.countrycode from city_master cm, timezone_master tm, client_master clm "
      "where cm.id = clm.cityid and cm.timezone = tm.timezone order by cm.cityname collate names");
}

core::Table SearchCities(const core::Session& session, const std::string& text) {
  return CityList(session,
                  "Select cm.*, tm.countrycode from city_master cm, timezone_master tm "
                  "where cm.timezone = tm.timezone and cm.cityname like '%" +
                      core::ReplaceAll(text, "'", "''") + "%' order by cm.cityname collate names");
}

std::optional<core::Refusal> CheckPickedCity(std::int32_t cityId) {
  return cityId == 0 ? std::optional(core::RefusalOf(core::kNoCityChosen, "cityList"))
                     : std::nullopt;
}

core::Table LoadTimeZones(const core::Session& session) {
  core::Table table{{{"Time Zone", 300}, {"Country", 70}, {"Offset", 50}}, {}};
  for (core::Result zone =
           session.StoreConnection.Query("Select * from timezone_master order by timezone");
       !zone.AtEnd(); zone.Next()) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, ZoneColumn::TimeZone).Text = zone.Text("timezone");
    table.Rows[row].Tag = zone.Text("timezone");
    table.At(row, ZoneColumn::Country).Text = zone.Text("countrycode");
    table.At(row, ZoneColumn::Offset).Text = zone.Text("offset");
  }
  return table;
}

std::optional<std::string> OffsetOfZone(const core::Session& session, const std::string& zone) {
  const core::Result row = session.StoreConnection.Query(
      "Select offset from timezone_master where timezone = " + Quoted(zone));
  return row.AtEnd() ? std::nullopt : std::optional(row.Text("offset"));
}

std::string ZoneOfCity(const core::Session& session, std::int32_t cityId) {
  const core::Result city = session.StoreConnection.Query(
      "Select timezone from city_master where id = " + core::WholeText(cityId));
  return city.AtEnd() ? "" : city.Text("timezone");
}

std::optional<core::Table> OpenAddCity(core::Session& session) {
  core::Table zones = LoadTimeZones(session);
  if (zones.Rows.empty()) {
    session.Shown.ShowMessage("Cannot add a City.", core::MessageButtons::Ok,
                              core::MessageIcon::Stop);
    return std::nullopt;
  }
  return zones;
}

std::optional<CityForm> OpenEditCity(core::Session& session, std::int32_t cityId) {
  const core::Result city = session.StoreConnection.Query("Select * from city_master where id = " +
                                                          core::WholeText(cityId));
  if (city.AtEnd()) {
    return core::TellRecordGone(session);
  }
  return CityForm{city.Text("cityname"), city.Text("timezone"), city.Text("offset"),
                  city.Text("latitude"), city.Text("longitude")};
}

core::SaveResult SaveNewCity(core::Session& session, const CityForm& form) {
  if (std::optional<core::Refusal> refused = CheckCity(session, form, true)) {
    return {0, std::move(refused)};
  }
  return WriteBatch(session, [&form](core::Store& store) {
    store.Execute(
        "Insert into city_master (cityname, timezone, offset, latitude, longitude) "
        "values (" +
        Quoted(core::Trim(form.CityName)) + ", " + Quoted(form.TimeZone) + ", " +
        core::Trim(form.Offset) + ", " + core::Trim(form.Latitude) + ", " +
        core::Trim(form.Longitude) + ")");
    return LastId(store, "city_master");
  });
}

core::SaveResult SaveCityChanges(core::Session& session, const CityForm& form,
                                 std::int32_t cityId) {
  if (std::optional<core::Refusal> refused = CheckCity(session, form, false)) {
    return {0, std::move(refused)};
  }
  return WriteBatch(session, [&form, cityId](core::Store& store) {
    store.Execute(
        "Update city_master set cityname = " + Quoted(core::Trim(form.CityName)) +
        ", offset = " + core::Trim(form.Offset) + ", latitude = " + core::Trim(form.Latitude) +
        ", longitude = " + core::Trim(form.Longitude) + " where id = " + core::WholeText(cityId));
    return cityId;
  });
}

}  // namespace orvex::practice
