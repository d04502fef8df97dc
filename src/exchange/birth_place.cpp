#include "exchange/birth_place.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/exact_numbers.h"
#include "core/plain_letters.h"
#include "core/text.h"
#include "exchange/aaf_fields.h"

namespace orvex::exchange {

namespace {

constexpr double kEarthRadius = 6371;  // kilometres
constexpr double kNear = 100;
constexpr double kFarthest = 500;
constexpr std::size_t kMostOfName = 500;  // more cities than have one name

// Takes the city's own latitude and longitude where those of the file are theirs, rounded.
void TakeCoordinates(const FileBirth& birth, BirthPlace& place) {
  const auto latitude = [](const std::string& text) { return AafLatitude(core::ToDouble(text)); };
  const auto longitude = [](const std::string& text) { return AafLongitude(core::ToDouble(text)); };
  const bool isCity =
      birth.Latitude.empty() || (latitude(birth.Latitude) == latitude(place.City.Latitude) &&
                                 longitude(birth.Longitude) == longitude(place.City.Longitude));
  place.Latitude = isCity ? place.City.Latitude : birth.Latitude;
  place.Longitude = isCity ? place.City.Longitude : birth.Longitude;
}

bool IsNameOf(const std::string& plain, const practice::FoundCity& city) {
  return plain == core::PlainWords(city.Name) ||
         (!city.OtherName.empty() && plain == core::PlainWords(city.OtherName));
}

bool IsCountryCode(const std::string& country) {
  return country.size() == 2 && core::UpperCase(country) != core::LowerCase(country);
}

}  // namespace

BirthPlaces::BirthPlaces(const core::Session& session, const std::filesystem::path& shippedData)
    : session_(session), search_(session, shippedData) {}

BirthPlaces::Direction BirthPlaces::DirectionOf(double latitude, double longitude) {
  constexpr double kRadians = std::numbers::pi / 180;
  const double ring = std::cos(latitude * kRadians);
  return {ring * std::cos(longitude * kRadians), ring * std::sin(longitude * kRadians),
          std::sin(latitude * kRadians)};
}

double BirthPlaces::KilometresBetween(const Direction& one, const Direction& other) {
  const double chord = std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]);
  return 2 * std::asin(std::min(chord / 2, 1.0)) * kEarthRadius;
}

std::variant<BirthPlace, std::string> BirthPlaces::Of(const FileBirth& birth) {
  const std::string key =
      core::Join({birth.Place, birth.Country, birth.Latitude, birth.Longitude}, "\n");
  const auto known = known_.find(key);
  return known == known_.end() ? known_.emplace(key, Find(birth)).first->second : known->second;
}

BirthPlaces::Found BirthPlaces::Find(const FileBirth& birth) {
  if (birth.Latitude.empty() != birth.Longitude.empty()) {
    return "the place needs both latitude and longitude, or neither";
  }
  if (birth.Latitude.empty()) {
    return FindByName(birth);
  }
  const Direction at = DirectionOf(core::ToDouble(birth.Latitude), core::ToDouble(birth.Longitude));
  std::optional<BirthPlace> place = NamedNear(birth.Place, at);
  if (!place) {
    place = NearestTo(at);
  }
  if (!place) {
    return "place: there is no city within 500 km of " + birth.Latitude + ", " + birth.Longitude +
           "; please add one first";
  }
  TakeCoordinates(birth, *place);
  return *place;
}

BirthPlaces::Found BirthPlaces::FindByName(const FileBirth& birth) {
  const std::string plain = core::PlainWords(birth.Place);
  if (plain.empty()) {
    return "place: there is neither a name nor a latitude and longitude";
  }
  std::vector<practice::FoundCity> named = Named(birth.Place);
  const std::string country = IsCountryCode(birth.Country) ? core::UpperCase(birth.Country) : "";
  std::erase_if(named, [&](const practice::FoundCity& city) {
    return !IsNameOf(plain, city) || (!country.empty() && city.Country != country);
  });
  if (named.size() != 1) {
    return "place: " +
           (named.empty()
                ? std::string("there is no city")
                : core::WholeText(static_cast<std::int64_t>(named.size())) + " cities are") +
           " named " + Shown(birth.Place) + ", and there is no latitude and longitude";
  }
  BirthPlace place{named.front()};
  TakeCoordinates(birth, place);
  return place;
}

const std::vector<practice::FoundCity>& BirthPlaces::Named(const std::string& place) {
  const auto known = named_.find(place);
  return known == named_.end()
             ? named_.emplace(place, search_.Find(place, kMostOfName).Best).first->second
             : known->second;
}

std::optional<BirthPlace> BirthPlaces::NamedNear(const std::string& place, const Direction& at) {
  const std::string plain = core::PlainWords(place);
  std::optional<BirthPlace> best;
  bool isBestWhole = false;
  double bestDistance = kNear;
  for (const practice::FoundCity& city : Named(place)) {
    const double distance = KilometresBetween(
        at, DirectionOf(core::ToDouble(city.Latitude), core::ToDouble(city.Longitude)));
    const bool isWhole = IsNameOf(plain, city);
    const bool isBetter = isWhole == isBestWhole ? distance <= bestDistance : isWhole;
    if (distance <= kNear && isBetter) {
      best = BirthPlace{city, true, static_cast<int>(core::RoundToWhole(distance)), "", ""};
      isBestWhole = isWhole;
      bestDistance = distance;
    }
  }
  return best;
}

std::optional<BirthPlace> BirthPlaces::NearestTo(const Direction& at) {
  if (cities_.empty()) {
    for (core::Result city = session_.StoreConnection.Query(
             "Select cm.id, cm.latitude, cm.longitude from city_master cm, timezone_master tm "
             "where cm.timezone = tm.timezone");
         !city.AtEnd(); city.Next()) {
      cities_.emplace_back(static_cast<std::int32_t>(city.Integer("id")),
                           DirectionOf(city.Number("latitude"), city.Number("longitude")));
    }
  }
  const auto closeness = [&at](const auto& city) {
    return at[0] * city.second[0] + at[1] * city.second[1] + at[2] * city.second[2];
  };
  const auto nearest = std::max_element(
      cities_.begin(), cities_.end(),
      [&](const auto& one, const auto& other) { return closeness(one) < closeness(other); });
  if (nearest == cities_.end()) {
    return std::nullopt;
  }
  const double distance = KilometresBetween(at, nearest->second);
  return distance > kFarthest
             ? std::nullopt
             : std::optional(BirthPlace{search_.Of(nearest->first), false,
                                        static_cast<int>(core::RoundToWhole(distance)), "", ""});
}

}  // namespace orvex::exchange
