// The city of the store for the place of a birth.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/session.h"
#include "exchange/file_birth.h"
#include "practice/city_search.h"

namespace orvex::exchange {

struct BirthPlace {
  practice::FoundCity City;
  bool IsNamed = true;   // the file's place is the city; else it is the nearest one
  int Kilometres = 0;    // from the file's place to the city
  std::string Latitude;  // of the birth, as typed into the dialog
  std::string Longitude;
};

class BirthPlaces {
 public:
  BirthPlaces(const core::Session& session, const std::filesystem::path& shippedData);

  // The city of a birth, or why there is none. With latitude and longitude it is the nearest of
  // the cities within 100 km that have the place's name, also one of their other names; else of
  // those whose name the place begins; else the nearest of all within 500 km. The birth keeps its
  // own latitude and longitude, but for those that are the city's to the arc second. Without them
  // the place must be the name of just one city, by its country where that is a code of two
  // letters.
  std::variant<BirthPlace, std::string> Of(const FileBirth& birth);

 private:
  using Direction = std::array<double, 3>;  // of a place from the middle of the Earth, of length 1
  using Found = std::variant<BirthPlace, std::string>;

  static Direction DirectionOf(double latitude, double longitude);
  static double KilometresBetween(const Direction& one, const Direction& other);
  Found Find(const FileBirth& birth);
  Found FindByName(const FileBirth& birth);
  const std::vector<practice::FoundCity>& Named(const std::string& place);
  std::optional<BirthPlace> NamedNear(const std::string& place, const Direction& at);
  std::optional<BirthPlace> NearestTo(const Direction& at);

  const core::Session& session_;
  practice::CitySearch search_;
  std::map<std::string, Found> known_;
  std::map<std::string, std::vector<practice::FoundCity>> named_;  // by the place as it is written
  std::vector<std::pair<std::int32_t, Direction>> cities_;         // filled when first asked for
};

}  // namespace orvex::exchange
