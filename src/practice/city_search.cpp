#include "practice/city_search.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <tuple>

#include "core/exact_numbers.h"
#include "core/plain_letters.h"
#include "core/text.h"
#include "core/tsv.h"

namespace orvex::practice {

namespace {

constexpr char kLineEnd = '\n';
constexpr char kRestBegins = '\t';

// The degrees of a coordinate to hundredths, with the letter of its half.
std::string HalfText(const std::string& degrees, const char* positive, const char* negative) {
  const double value = core::ToDouble(degrees);
  return core::TwoDecimals(value < 0 ? -value : value) + " " + (value < 0 ? negative : positive);
}

constexpr const char* kCities =
    "Select cm.*, tm.countrycode from city_master cm, timezone_master tm "
    "where cm.timezone = tm.timezone";

FoundCity CityOfRow(const core::Result& row) {
  FoundCity city;
  city.Id = static_cast<std::int32_t>(row.Integer("id"));
  city.Name = row.Text("cityname");
  city.Country = row.Text("countrycode");
  city.Zone = row.Text("timezone");
  city.Latitude = row.Text("latitude");
  city.Longitude = row.Text("longitude");
  city.Offset = row.Text("offset");
  return city;
}

// Regions and other names. A row of the gazetteer is the city whose id is its number, unless that
// was renamed.
void ReadGazetteer(const std::filesystem::path& shippedData, std::vector<FoundCity>& cities,
                   std::vector<std::string>& otherNames) {
  try {
    core::TsvTable table = core::ReadTsv(shippedData / "city_master.tsv");
    const std::size_t name = table.ColumnOf("cityname");
    const std::size_t region = table.ColumnOf("region");
    const std::size_t others = table.ColumnOf("othernames");
    for (std::size_t city = 0; city < cities.size(); ++city) {
      const auto row = static_cast<std::size_t>(cities[city].Id) - 1;
      if (row < table.Rows.size() && table.Rows[row][name] == cities[city].Name) {
        cities[city].Region = std::move(table.Rows[row][region]);
        otherNames[city] = std::move(table.Rows[row][others]);
      }
    }
  } catch (const std::runtime_error&) {
    return;  // cities are found by their own names then
  }
}

}  // namespace

// How well a city fits: the smaller the better.
struct CitySearch::Rank {
  int Unused = 0;  // minus the number of clients
  bool IsAbroad = false;
  int Fit = 0;    // 0 the whole name, 1 its beginning, 2 a later word
  int Known = 0;  // minus the number of other names
  std::int32_t Id = 0;
  std::size_t Entry = 0;

  auto Key() const { return std::tie(Unused, IsAbroad, Fit, Known, Id); }
};

std::string CityText(const FoundCity& city) {
  return city.Name + (city.Region.empty() ? "" : ", " + city.Region) + ", " + city.Country;
}

std::string CoordinatesText(const FoundCity& city) {
  return HalfText(city.Latitude, "N", "S") + " " + HalfText(city.Longitude, "E", "W");
}

FoundCity CityOf(const core::Session& session, const std::filesystem::path& shippedData,
                 std::int32_t id) {
  const core::Result row = session.StoreConnection.Query(
      std::string(kCities) + " and cm.id = " + core::PaddedWhole(id, 1));
  if (row.AtEnd()) {
    return {};
  }
  std::vector<FoundCity> city = {CityOfRow(row)};
  const core::Result same = session.StoreConnection.Query(
      "Select count(cm.id) as cnt from city_master cm, timezone_master tm "
      "where cm.timezone = tm.timezone and cm.cityname = " +
      core::Quoted(city.front().Name) +
      " and tm.countrycode = " + core::Quoted(city.front().Country));
  if (same.Integer("cnt") > 1) {
    std::vector<std::string> otherNames(1);
    ReadGazetteer(shippedData, city, otherNames);
  }
  return city.front();
}

CitySearch::CitySearch(const core::Session& session, const std::filesystem::path& shippedData) {
  ReadCities(session);
  CountClients(session);
  ReadGazetteer(shippedData, cities_, others_);
  MarkRepeatedNames();
  for (std::size_t city = 0; city < cities_.size(); ++city) {
    AddEntry(city, cities_[city].Name, false);
    if (!others_[city].empty()) {
      for (const std::string& name : core::Split(others_[city], ';')) {
        AddEntry(city, name, true);
      }
    }
  }
  keys_ += kLineEnd;
  ownCountry_ = Of(session.State.UserCityId).Country;
}

void CitySearch::ReadCities(const core::Session& session) {
  core::Result row = session.StoreConnection.Query(std::string(kCities) + " order by cm.id");
  for (; !row.AtEnd(); row.Next()) {
    cities_.push_back(CityOfRow(row));
  }
  others_.resize(cities_.size());
}

void CitySearch::CountClients(const core::Session& session) {
  std::map<std::int64_t, int> clients;
  core::Result row = session.StoreConnection.Query("Select cityid from client_master");
  for (; !row.AtEnd(); row.Next()) {
    ++clients[row.Integer("cityid")];
  }
  for (FoundCity& city : cities_) {
    const auto found = clients.find(city.Id);
    city.Clients = found == clients.end() ? 0 : found->second;
  }
}

void CitySearch::MarkRepeatedNames() {
  std::map<std::string, int> names;
  for (const FoundCity& city : cities_) {
    ++names[city.Name + kRestBegins + city.Country];
  }
  for (const FoundCity& city : cities_) {
    isRepeated_.push_back(names[city.Name + kRestBegins + city.Country] > 1);
  }
}

void CitySearch::AddEntry(std::size_t city, const std::string& name, bool isOther) {
  const std::string words = core::PlainWords(name);
  const FoundCity& of = cities_[city];
  if (words.empty() || (isOther && words == core::PlainWords(of.Name))) {
    return;
  }
  keys_ += kLineEnd;
  Entry entry{keys_.size(), 0, city, isOther ? name : ""};
  keys_ += " " + words;
  entry.NameEnd = keys_.size();
  keys_ += kRestBegins + (" " + core::PlainWords(of.Region + " " + of.Country));
  entries_.push_back(std::move(entry));
}

// Whether the words after the first one begin words of the entry, one behind the other.
bool CitySearch::FollowsIn(const Entry& entry, std::size_t from,
                           const std::vector<std::string>& words) const {
  const std::size_t lineEnd = keys_.find(kLineEnd, entry.Begin);
  std::string_view rest = std::string_view(keys_).substr(from, lineEnd - from);
  for (const std::string& word : words) {
    const std::size_t at = rest.find(" " + word);
    if (at == std::string_view::npos) {
      return false;
    }
    rest.remove_prefix(at + 1 + word.size());
  }
  return true;
}

CitySearch::Rank CitySearch::RankOf(const Entry& entry, std::size_t at,
                                    const std::string& text) const {
  const FoundCity& city = cities_[entry.City];
  const bool begins = at == entry.Begin;
  const bool whole = begins && entry.NameEnd - entry.Begin == text.size() + 1 &&
                     keys_.compare(at + 1, text.size(), text) == 0;
  const std::string& others = others_[entry.City];
  const auto known = std::count(others.begin(), others.end(), ';') + (others.empty() ? 0 : 1);
  return {-city.Clients,
          city.Country != ownCountry_,
          whole    ? 0
          : begins ? 1
                   : 2,
          -static_cast<int>(known),
          city.Id,
          static_cast<std::size_t>(&entry - entries_.data())};
}

// The best match of each city, in no order.
std::vector<CitySearch::Rank> CitySearch::Matches(const std::string& text) const {
  const std::vector<std::string> words = core::SplitWords(text);
  const std::string first = " " + words.front();
  std::vector<Rank> ranks;
  auto entry = entries_.begin();
  std::size_t at = keys_.find(first);
  while (at != std::string::npos) {
    entry =
        std::find_if(entry, entries_.end(), [at](const Entry& one) { return at < one.NameEnd; });
    if (entry == entries_.end()) {
      break;
    }
    if (at < entry->Begin) {
      at = keys_.find(first, entry->Begin);
      continue;
    }
    if (FollowsIn(*entry, at, words)) {
      const Rank rank = RankOf(*entry, at, text);
      const bool again = !ranks.empty() && ranks.back().Id == rank.Id;
      if (!again) {
        ranks.push_back(rank);
      } else if (rank.Key() < ranks.back().Key()) {
        ranks.back() = rank;
      }
    }
    at = keys_.find(first, at + 1);
  }
  return ranks;
}

CitySearch::Result CitySearch::Find(const std::string& text, std::size_t most) const {
  const std::string plain = core::PlainWords(text);
  if (plain.empty()) {
    return {};
  }
  std::vector<Rank> ranks = Matches(plain);
  const std::size_t shown = std::min(most, ranks.size());
  std::partial_sort(ranks.begin(), ranks.begin() + static_cast<std::ptrdiff_t>(shown), ranks.end(),
                    [](const Rank& one, const Rank& other) { return one.Key() < other.Key(); });
  Result result;
  result.Count = ranks.size();
  for (std::size_t i = 0; i < shown; ++i) {
    const Entry& entry = entries_[ranks[i].Entry];
    result.Best.push_back(Of(cities_[entry.City].Id));
    result.Best.back().OtherName = entry.OtherName;
  }
  return result;
}

FoundCity CitySearch::Of(std::int32_t id) const {
  const auto found =
      std::lower_bound(cities_.begin(), cities_.end(), id,
                       [](const FoundCity& city, std::int32_t wanted) { return city.Id < wanted; });
  if (found == cities_.end() || found->Id != id) {
    return {};
  }
  FoundCity city = *found;
  if (!isRepeated_[static_cast<std::size_t>(found - cities_.begin())]) {
    city.Region.clear();
  }
  return city;
}

}  // namespace orvex::practice
