#include "practice/client_csv.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/csv.h"
#include "core/exact_numbers.h"
#include "core/letter_case.h"
#include "core/text.h"
#include "core/unicode_text.h"

namespace orvex::practice {

namespace {

using core::Quoted;

// The captions in the order of CsvColumn.
constexpr std::array<const char*, kCsvColumnCount> kCaptions = {
    "name",   "birth", "city id", "city",     "country", "latitude", "longitude", "offset",
    "gender", "email", "mobile",  "comments", "horary",  "question", "ascendant", "group"};

// Carries the reason why a line is no client to the one place where it is given back.
struct LineRefusal {
  std::string Reason;
};

std::size_t Index(CsvColumn column) { return static_cast<std::size_t>(column); }

std::string Shown(const std::string& text) {
  constexpr std::size_t kLongest = 40;
  return "\"" + core::FirstCharacters(text, kLongest) + "\"";
}

std::vector<std::string> LineOf(const core::Result& row) {
  const bool horary = row.Flag("horary");
  const bool byHand = row.Text("ascdegreetype") == "M" && !horary;
  const auto text = [&row](const char* field) { return core::GuardedText(row.Text(field)); };
  return {text("fullname"),
          row.Text("birthdate"),
          row.Text("cityid"),
          text("cityname"),
          row.Text("countrycode"),
          row.Text("latitude"),
          row.Text("longitude"),
          row.Text("offset"),
          row.Text("gender"),
          text("email"),
          text("mobile"),
          text("comments"),
          horary ? row.Text("horaryno") : "",
          text("horaryquestion"),
          byHand ? core::TwoDecimals(row.Number("cuspdegree1")) : "",
          text("groupname")};
}

// The fields of one line by column.
class Line {
 public:
  Line(const CsvPlaces& places, const std::vector<std::string>& fields)
      : places_(places), fields_(fields) {}

  // "" for a column that the file has not.
  std::string Text(CsvColumn column) const {
    const std::optional<std::size_t>& place = places_.at(Index(column));
    return place ? core::UnguardedText(fields_.at(*place)) : "";
  }

  std::string Trimmed(CsvColumn column) const { return core::Trim(Text(column)); }

 private:
  const CsvPlaces& places_;
  const std::vector<std::string>& fields_;
};

core::DateTime BirthOf(const Line& line) {
  constexpr std::size_t kDateAlone = 10;
  const std::string text = line.Trimmed(CsvColumn::Birth);
  const std::optional<core::DateTime> birth = core::ParseDateTime(text);
  if (!birth || text.size() <= kDateAlone) {
    throw LineRefusal{"birth: " + Shown(text) +
                      " is no moment of the years 100 to 9999 in the form YYYY-MM-DD HH:MM"};
  }
  return *birth;
}

std::int32_t CityById(const core::Session& session, const Line& line, const std::string& text) {
  const std::optional<std::int64_t> id = core::ParseWhole(text);
  const core::Result city = session.StoreConnection.Query(
      "Select id, cityname from city_master where id = " + core::WholeText(id.value_or(0)));
  if (city.AtEnd()) {
    throw LineRefusal{"city id: there is no city " + Shown(text)};
  }
  const std::string name = line.Trimmed(CsvColumn::City);
  if (!name.empty() && core::LowerCase(name) != core::LowerCase(city.Text("cityname"))) {
    throw LineRefusal{"city id: city " + text + " is " + Shown(city.Text("cityname")) + ", not " +
                      Shown(name)};
  }
  return static_cast<std::int32_t>(city.Integer("id"));
}

std::int32_t CityByName(const core::Session& session, const Line& line) {
  const std::string name = line.Trimmed(CsvColumn::City);
  const std::string country = line.Trimmed(CsvColumn::Country);
  std::vector<std::int64_t> found;
  for (core::Result city = session.StoreConnection.Query(
           "Select cm.id from city_master cm, timezone_master tm where cm.timezone = tm.timezone "
           "and cm.cityname = " +
           Quoted(name) +
           (country.empty() ? ""
                            : " and ucase(tm.countrycode) = " + Quoted(core::UpperCase(country))));
       !city.AtEnd(); city.Next()) {
    found.push_back(city.Integer("id"));
  }
  if (found.empty()) {
    throw LineRefusal{"city: there is no city " + Shown(name) +
                      (country.empty() ? "" : " in " + Shown(country))};
  }
  if (found.size() > 1) {
    throw LineRefusal{"city: " + core::WholeText(static_cast<std::int64_t>(found.size())) +
                      " cities are named " + Shown(name) + "; please give the " +
                      (country.empty() ? "country or the city id" : "city id")};
  }
  return static_cast<std::int32_t>(found.front());
}

std::int32_t CityOfLine(const core::Session& session, const Line& line) {
  const std::string id = line.Trimmed(CsvColumn::CityId);
  if (!id.empty()) {
    return CityById(session, line, id);
  }
  return line.Trimmed(CsvColumn::City).empty() ? 0 : CityByName(session, line);
}

std::string GenderOf(const Line& line) {
  const std::string text = core::UpperCase(line.Trimmed(CsvColumn::Gender));
  if (text.empty() || text == "M" || text == "MALE") {
    return "M";
  }
  if (text == "F" || text == "FEMALE") {
    return "F";
  }
  if (text == "O" || text == "OTHER") {
    return "O";
  }
  throw LineRefusal{"gender: " + Shown(text) + " is none of M, F and O"};
}

std::int32_t GroupOfLine(const core::Session& session, const Line& line, std::int32_t groupId) {
  const std::string name = line.Trimmed(CsvColumn::Group);
  if (name.empty()) {
    return groupId;
  }
  const core::Result group = session.StoreConnection.Query(
      "Select id from group_master where ucase(groupname) = " + Quoted(core::UpperCaseOfAll(name)));
  if (group.AtEnd()) {
    throw LineRefusal{"group: there is no group " + Shown(name)};
  }
  return static_cast<std::int32_t>(group.Integer("id"));
}

void TakeIfGiven(const std::string& text, std::string& field) {
  if (!text.empty()) {
    field = text;
  }
}

void TakeQuery(const Line& line, chart::ClientForm& form) {
  const std::string number = line.Trimmed(CsvColumn::Horary);
  form.AscendantDegree = line.Trimmed(CsvColumn::Ascendant);
  form.AscendantByHand = !form.AscendantDegree.empty();
  form.Horary = !number.empty();
  if (form.Horary && form.AscendantByHand) {
    throw LineRefusal{"ascendant: a horary query takes no Ascendant by hand"};
  }
  form.HoraryQuestion = line.Text(CsvColumn::Question);
  TakeIfGiven(number, form.HoraryNumber);
}

// Refuses fields that are no line of the file.
void CheckFields(const CsvPlaces& places, const std::vector<std::string>& fields) {
  const auto columns = std::count_if(places.begin(), places.end(),
                                     [](const auto& place) { return place.has_value(); });
  if (fields.size() != static_cast<std::size_t>(columns)) {
    throw LineRefusal{"the line has not as many fields as the first one"};
  }
  if (!std::all_of(fields.begin(), fields.end(), core::IsUtf8Text)) {
    throw LineRefusal{"the line is not text in UTF-8"};
  }
}

IncomingClient ReadLine(const core::Session& session, const Line& line, std::int32_t groupId) {
  IncomingClient client;
  chart::ClientForm& form = client.Form;
  form.FullName = line.Text(CsvColumn::Name);
  form.Birth = BirthOf(line);
  chart::SelectCity(session, CityOfLine(session, line), form);
  TakeIfGiven(line.Trimmed(CsvColumn::Latitude), form.Latitude);
  TakeIfGiven(line.Trimmed(CsvColumn::Longitude), form.Longitude);
  TakeIfGiven(line.Trimmed(CsvColumn::Offset), form.Offset);
  form.Gender = GenderOf(line);
  form.Email = line.Text(CsvColumn::Email);
  form.Mobile = line.Text(CsvColumn::Mobile);
  form.Comments = line.Text(CsvColumn::Comments);
  TakeQuery(line, form);
  client.GroupId = GroupOfLine(session, line, groupId);
  return client;
}

}  // namespace

std::string ClientsAsCsv(const core::Session& session, std::optional<std::int32_t> groupId) {
  std::string csv = core::CsvLine({kCaptions.begin(), kCaptions.end()});
  for (core::Result row = session.StoreConnection.Query(
           "Select cm.*, ct.cityname, tm.countrycode, gm.groupname from client_master cm "
           "left join city_master ct on ct.id = cm.cityid "
           "left join timezone_master tm on tm.timezone = ct.timezone "
           "left join group_master gm on gm.id = cm.groupid" +
           (groupId ? " where cm.groupid = " + core::WholeText(*groupId) : "") + " order by cm.id");
       !row.AtEnd(); row.Next()) {
    csv += core::CsvLine(LineOf(row));
  }
  return csv;
}

CsvPlaces PlacesOf(const std::vector<std::string>& captions) {
  CsvPlaces places(kCsvColumnCount);
  for (std::size_t place = 0; place < captions.size(); ++place) {
    const std::string caption = core::LowerCase(core::Trim(captions[place]));
    const auto* known = std::find(kCaptions.begin(), kCaptions.end(), caption);
    if (known == kCaptions.end()) {
      throw std::runtime_error("There is no column " + Shown(caption) + "; the columns are: " +
                               core::Join({kCaptions.begin(), kCaptions.end()}, ", ") + ".");
    }
    std::optional<std::size_t>& column =
        places[static_cast<std::size_t>(known - kCaptions.begin())];
    if (column) {
      throw std::runtime_error("The column " + Shown(caption) + " stands there twice.");
    }
    column = place;
  }
  const bool city = places[Index(CsvColumn::CityId)] || places[Index(CsvColumn::City)];
  if (!places[Index(CsvColumn::Name)] || !places[Index(CsvColumn::Birth)] || !city) {
    throw std::runtime_error(
        "The first line must name the columns, among them name, birth and city id or city.");
  }
  return places;
}

std::variant<IncomingClient, std::string> ClientOfLine(const core::Session& session,
                                                       const CsvPlaces& places,
                                                       const std::vector<std::string>& fields,
                                                       std::int32_t groupId) {
  try {
    CheckFields(places, fields);
    return ReadLine(session, Line(places, fields), groupId);
  } catch (const LineRefusal& refusal) {
    return refusal.Reason;
  }
}

}  // namespace orvex::practice
