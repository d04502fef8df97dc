// Clients as comma-separated text: the columns, one client as a line, one line as a client.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/session.h"
#include "practice/client_intake.h"

namespace orvex::practice {

enum class CsvColumn {
  Name,
  Birth,
  CityId,
  City,
  Country,
  Latitude,
  Longitude,
  Offset,
  Gender,
  Email,
  Mobile,
  Comments,
  Horary,
  Question,
  Ascendant,
  Group
};
inline constexpr std::size_t kCsvColumnCount = 16;

// The clients of a group, or of all groups, with a line of captions first. Texts that a spreadsheet
// would run are guarded (core/csv.h).
std::string ClientsAsCsv(const core::Session& session, std::optional<std::int32_t> groupId);

// Where each column stands in the file; nothing for one that is not there.
using CsvPlaces = std::vector<std::optional<std::size_t>>;

// The places of the columns that a line of captions names, in any order and case.
// std::runtime_error for an unknown or repeated caption and where name, birth or city is missing.
CsvPlaces PlacesOf(const std::vector<std::string>& captions);

// The client of a line, or why it is none. `groupId` is the group of lines that name none.
std::variant<IncomingClient, std::string> ClientOfLine(const core::Session& session,
                                                       const CsvPlaces& places,
                                                       const std::vector<std::string>& fields,
                                                       std::int32_t groupId);

}  // namespace orvex::practice
