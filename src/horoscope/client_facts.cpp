#include "horoscope/client_facts.h"

#include "astro/sun_events.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "panchang/tithi.h"

namespace orvex::horoscope {

namespace {

using chart::PlanetColumn;
using chart::PlanetPlace;

const std::string& MoonText(const chart::HoroscopeModel& model, PlanetColumn column) {
  return chart::PlanetText(model, chart::RowOf(PlanetPlace::Moon), column);
}

std::string NodeCaption(const chart::HoroscopeModel& model, PlanetPlace node, const char* name) {
  return std::string(name) + " = " +
         chart::PlanetText(model, chart::RowOf(node), PlanetColumn::SignLord) + " + " +
         chart::PlanetText(model, chart::RowOf(node), PlanetColumn::StarLord);
}

}  // namespace

std::string ClientColumnName(const std::string& field) {
  return core::LowerCase(field).starts_with("cuspdegree") ? field : core::LowerCase(field);
}

bool TakeClient(const core::Session& session, std::int32_t clientId, chart::HoroscopeModel& model,
                std::array<std::string, chart::kHouses>& cuspDegrees) {
  const core::Result row = session.StoreConnection.Query(
      "Select cm.*, ct.cityname from client_master cm, city_master ct where cm.cityid = ct.id "
      "and cm.id = " +
      core::WholeText(clientId));
  if (row.AtEnd()) {
    return false;
  }
  for (const std::string& field : row.FieldNames()) {
    model.Client.emplace_back(ClientColumnName(field), row.Text(field));
  }
  model.ClientId = clientId;
  model.Horary = row.Flag("horary");
  model.HoraryNo = row.Text("horaryno");
  model.HoraryQuestion = row.Text("horaryquestion");
  model.Comments = row.Text("comments");
  model.Name = row.Text("fullname");
  model.Birth = row.Moment("birthdate").value_or(core::DateTime{});
  model.Gender = row.Text("gender");
  model.City = row.Text("cityname");
  model.Offset = row.Text("offset");
  model.Latitude = row.Text("latitude");
  model.Longitude = row.Text("longitude");
  model.CuspDegree1 = row.Text("cuspdegree1");
  model.FirstRashiHouse = static_cast<int>(row.Integer("firstrashihouse"));
  for (std::size_t cusp = 0; cusp < cuspDegrees.size(); ++cusp) {
    cuspDegrees.at(cusp) =
        row.Text("cuspdegree" + core::WholeText(static_cast<std::int64_t>(cusp) + 1));
  }
  return true;
}

void WriteSunTimes(core::Session& session, chart::HoroscopeModel& model) {
  astro::ComputeSunTimes(session.State, model.Birth, core::ToSingle(model.Offset),
                         core::ToSingle(model.Latitude), core::ToSingle(model.Longitude));
  model.Captions.Sunrise = session.State.SunriseText;
  model.Captions.Sunset = session.State.SunsetText;
}

void WriteDateAndPlace(chart::HoroscopeModel& model) {
  chart::HoroscopeCaptions& captions = model.Captions;
  captions.Title = "Horoscope for " + model.Name;
  captions.Date = core::LongDateText(model.Birth, false) + " " + core::TimeAmPm(model.Birth) +
                  (model.Horary ? " # " + model.HoraryNo : "");
  captions.City = model.City;
  captions.Offset = " (GMT " + model.Offset + ")";
  captions.Latitude = model.Latitude;
  captions.Longitude = model.Longitude;
}

void KeepLights(chart::HoroscopeModel& model) {
  model.SunDegree = chart::PlanetText(model, chart::RowOf(PlanetPlace::Sun), PlanetColumn::Degree);
  model.MoonDegree = MoonText(model, PlanetColumn::Degree);
}

void WriteNodes(chart::HoroscopeModel& model) {
  model.Captions.Rahu = NodeCaption(model, PlanetPlace::Rahu, "Rahu");
  model.Captions.Ketu = NodeCaption(model, PlanetPlace::Ketu, "Ketu");
}

void WriteTithiAndYoga(const core::Session& session, chart::HoroscopeModel& model) {
  const float moon = core::ToSingle(model.MoonDegree);
  const float sun = core::ToSingle(model.SunDegree);
  const std::vector<std::string> tithiAndKaran =
      core::Split(panchang::TithiKaranOf(session.Reference, moon, sun), '*');
  model.Captions.Tithi = tithiAndKaran.at(0);
  model.Captions.YogaKaran = panchang::YogaOf(sun, moon) + " - " + tithiAndKaran.at(1);
}

void WriteNakshatra(chart::HoroscopeModel& model) {
  const std::string& star = MoonText(model, PlanetColumn::Nakshatra);
  const std::string& pada = MoonText(model, PlanetColumn::Pada);
  const std::string& rashi = MoonText(model, PlanetColumn::Rashi);
  const std::string& lord =
      chart::PlanetTag(model, chart::RowOf(PlanetPlace::Moon), PlanetColumn::StarLord);
  model.Captions.Nakshatra = star + " (" + lord + "), Pada " + pada + " - " + rashi;
  model.Captions.NakshatraTag = star + "*" + rashi + "*" + pada;
}

int RunningYearOf(core::DateTime birth, core::DateTime today) {
  return core::AgeText(birth, today).Years % 120 + 1;
}

}  // namespace orvex::horoscope
