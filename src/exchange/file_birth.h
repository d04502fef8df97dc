// A birth as an exchange file tells it, before a city and an offset are found for it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/date_text.h"
#include "practice/client_intake.h"

namespace orvex::exchange {

// The moment in UT of a Julian day, and by how many seconds it may be off: what its last decimal
// leaves open.
struct JulianMoment {
  core::DateTime Ut;
  int SecondsOpen = 0;
};

struct FileBirth {
  std::size_t Line = 0;  // of the file, from 1, on which the birth begins
  std::string Name;
  std::string Gender = "O";  // "M", "F" or, where the file does not tell, "O"
  std::string Place;
  std::string Country;
  std::string Comments;
  std::optional<core::DateTime> Local;  // by the clock of the place
  std::optional<JulianMoment> Julian;   // goes before Local
  std::string Latitude;                 // degrees north as a decimal text; "" where not told
  std::string Longitude;                // degrees east, likewise
  std::optional<double> ZoneHours;      // hours east of Greenwich, without summer time
  std::optional<double> SummerHours;    // what summer time adds
  std::string ZoneName;                 // "Asia/Kolkata"; "" where not told
};

// What was read of a file. A line that is refused takes the birth that it belongs to with it.
struct FileReading {
  std::vector<FileBirth> Births;
  std::vector<practice::RefusedLine> Refused;
};

// A text in a sentence: in quotes, cut where it is long.
std::string Shown(const std::string& text);

}  // namespace orvex::exchange
