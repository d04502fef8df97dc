#include "exchange/aaf_writing.h"

#include <set>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/text_encoding.h"
#include "exchange/aaf_fields.h"
#include "practice/zone_clock.h"

namespace orvex::exchange {

namespace {

constexpr const char* kLineEnd = "\r\n";

// A name parted before its last word, so that "Ravi Kumar" becomes "Kumar,Ravi". One that would
// not read back the same stands whole, without a first name.
std::string NameFields(const std::string& fullName) {
  const std::string name = AafText(fullName);
  const std::size_t blank = name.rfind(' ');
  if (blank == std::string::npos || name[blank - 1] == ' ' || name.front() == '*' ||
      name.back() == '*') {
    return name + "," + kEmptyField;
  }
  return name.substr(blank + 1) + "," + name.substr(0, blank);
}

std::string SexField(const std::string& gender) {
  return gender == "M" ? "m" : gender == "F" ? "f" : kEmptyField;
}

// Zone and summer time: those of the clocks where they showed the offset and put whole hours
// forward, else the offset whole.
std::string ZoneFields(const std::string& zone, core::DateTime birth, double longitude,
                       double offset) {
  double summer = 0;
  try {
    const practice::ZoneClock clock = practice::ClocksOf(zone, birth, longitude);
    const double saved = clock.OffsetInForce - clock.StandardOffset;
    const bool isWhole = saved > 0 && core::RoundHalfEven(saved) == saved;
    summer = isWhole && clock.OffsetInForce == offset ? saved : 0;
  } catch (const practice::ZoneError&) {
    summer = 0;
  }
  return AafZone(offset - summer) + "," + core::WholeText(core::RoundToWhole(summer));
}

std::string CommentLines(const std::string& comments) {
  std::string lines;
  if (!comments.empty()) {
    for (const std::string& line : core::Split(core::ReplaceAll(comments, "\r\n", "\n"), '\n')) {
      lines += "#COM:" + core::WithoutControlCharacters(line) + kLineEnd;
    }
  }
  return lines;
}

// What makes the chart another one than that of the moment.
std::string QueryLine(const core::Result& client) {
  if (client.Flag("horary")) {
    return CommentLines("Horary number " + client.Text("horaryno") + ": " +
                        core::WithoutControlCharacters(client.Text("horaryquestion")));
  }
  return client.Text("ascdegreetype") == "M"
             ? CommentLines("Ascendant by hand: " + core::TwoDecimals(client.Number("cuspdegree1")))
             : "";
}

std::string PlaceLine(const core::Result& client, core::DateTime birth) {
  const double offset = client.Number("offset");
  const double longitude = client.Number("longitude");
  const core::DateTime ut =
      birth - std::chrono::seconds(core::RoundToWhole(offset * core::kSecondsOfHour));
  return "#B93:" + AafJulianDay(ut) + "," + AafLatitude(client.Number("latitude")) + "," +
         AafLongitude(longitude) + "," +
         ZoneFields(client.Text("timezone"), birth, longitude, offset) + kLineEnd;
}

std::string RecordLinesOf(const core::Result& client, core::DateTime birth) {
  const std::string zone = AafText(client.Text("timezone"));
  return "#A93:" + NameFields(client.Text("fullname")) + "," + SexField(client.Text("gender")) +
         "," + AafDate(birth) + "," + AafTime(birth) + "," + AafText(client.Text("cityname")) +
         "," + AafText(client.Text("countrycode")) + kLineEnd + PlaceLine(client, birth) +
         (zone == kEmptyField ? "" : "#ZNAM:" + zone + kLineEnd) + QueryLine(client) +
         CommentLines(client.Text("comments"));
}

core::Result ClientRow(const core::Session& session, std::int32_t id) {
  return session.StoreConnection.Query(
      "Select cm.*, ct.cityname, ct.timezone, tm.countrycode from client_master cm "
      "left join city_master ct on ct.id = cm.cityid "
      "left join timezone_master tm on tm.timezone = ct.timezone where cm.id = " +
      core::WholeText(id));
}

}  // namespace

std::optional<std::string> ClientsAsAaf(const core::Session& session,
                                        const std::vector<std::int32_t>& clientIds,
                                        const ExchangeProgress& progress) {
  constexpr std::size_t kProgressEvery = 100;
  std::string text = std::string("#: Astrological Exchange Format, UTF-8") + kLineEnd;
  std::set<std::int32_t> written;
  std::size_t done = 0;
  for (const std::int32_t id : clientIds) {
    if (written.insert(id).second) {
      const core::Result client = ClientRow(session, id);
      const auto birth = client.AtEnd() ? std::nullopt : client.Moment("birthdate");
      text += birth ? RecordLinesOf(client, *birth) : "";
    }
    ++done;
    if ((done % kProgressEvery == 0 || done == clientIds.size()) &&
        !progress(done, clientIds.size())) {
      return std::nullopt;
    }
  }
  return text;
}

std::vector<std::int32_t> ClientIdsOf(const core::Table& list) {
  std::vector<std::int32_t> ids;
  for (const core::Row& row : list.Rows) {
    if (const std::optional<std::int64_t> id = core::ParseWhole(row.Tag)) {
      ids.push_back(static_cast<std::int32_t>(*id));
    }
  }
  return ids;
}

std::optional<core::Refusal> ExportAaf(const core::Session& session,
                                       const std::vector<std::int32_t>& clientIds,
                                       const std::filesystem::path& file,
                                       const ExchangeProgress& progress) {
  try {
    if (const std::optional<std::string> text = ClientsAsAaf(session, clientIds, progress)) {
      core::WriteFileSafely(file, *text);
    }
    return std::nullopt;
  } catch (const std::exception&) {
    return core::Refusal{"The file " + file.string() + " could not be written.",
                         core::MessageIcon::Stop, ""};
  }
}

}  // namespace orvex::exchange
