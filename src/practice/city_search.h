// The search of the city field: over all cities in memory, by the beginnings of words.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "core/session.h"

namespace orvex::practice {

struct FoundCity {
  std::int32_t Id = 0;
  std::string Name;       // as in the lists
  std::string OtherName;  // the one by which it was found: "Bombay"; "" for its own
  std::string Region;     // where other cities of the country have the same name, else ""
  std::string Country;    // two letters
  std::string Zone;
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
  int Clients = 0;  // how many clients use it
};

// "Hyderabad, Sindh, PK": a city as the field shows it, told apart from those of its name.
std::string CityText(const FoundCity& city);

// "18.52 N 73.86 E", to hundredths of a degree.
std::string CoordinatesText(const FoundCity& city);

// A city by its id as the search tells it, without its clients; an empty one, with the id 0, where
// there is none. Takes no time but where others of its country have its name.
FoundCity CityOf(const core::Session& session, const std::filesystem::path& shippedData,
                 std::int32_t id);

class CitySearch {
 public:
  struct Result {
    std::vector<FoundCity> Best;
    std::size_t Count = 0;  // of all that were found
  };

  // Reads the cities of the store, their clients, and the other names and regions of the shipped
  // gazetteer for the rows that still carry its names. Without the gazetteer there are none.
  CitySearch(const core::Session& session, const std::filesystem::path& shippedData);

  // The best `most` cities for a text: each word of it begins a word, the first one in a name,
  // those after it in what follows there, in the region or in the country. Case, marks and signs
  // count for nothing. First come the cities that clients use, most clients first, then those of
  // the own country (that of the user city); of these the ones with just that name, then those
  // whose name begins with it, then the rest; of equals the one with more other names, as larger
  // places have; last the order of the gazetteer. Nothing for an empty text.
  Result Find(const std::string& text, std::size_t most) const;

  // A city by its id; an empty one, with the id 0, where there is none.
  FoundCity Of(std::int32_t id) const;

 private:
  struct Entry {
    std::size_t Begin = 0;    // of its line in keys_
    std::size_t NameEnd = 0;  // where the words of the region and the country begin
    std::size_t City = 0;     // its place in cities_
    std::string OtherName;
  };
  struct Rank;

  void ReadCities(const core::Session& session);
  void CountClients(const core::Session& session);
  void MarkRepeatedNames();
  void AddEntry(std::size_t city, const std::string& name, bool isOther);
  bool FollowsIn(const Entry& entry, std::size_t from, const std::vector<std::string>& words) const;
  Rank RankOf(const Entry& entry, std::size_t at, const std::string& text) const;
  std::vector<Rank> Matches(const std::string& text) const;

  std::string ownCountry_;
  std::vector<FoundCity> cities_;  // in the order of their ids, regions known of all
  std::vector<std::string> others_;
  std::vector<bool> isRepeated_;
  std::string keys_;  // a line an entry: the name's words, each after a blank, a tab, the rest
  std::vector<Entry> entries_;
};

}  // namespace orvex::practice
