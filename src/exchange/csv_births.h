// Clients of CSV files as births of an import.
#pragma once

#include <map>
#include <string>
#include <variant>
#include <vector>

#include "core/csv.h"
#include "exchange/exchange_import.h"
#include "practice/client_csv.h"

namespace orvex::exchange {

struct CsvFile {
  practice::CsvPlaces Places;
  std::vector<core::CsvRecord> Records;  // without the line of captions
};

// The records of a CSV text. std::runtime_error where there are none, a quote is not closed or the
// captions are not those of clients.
CsvFile ReadCsvFile(const std::string& text);

class CsvBirths {
 public:
  // Clients that name no group go to that of the source.
  CsvBirths(core::Session& session, const ImportSource& source);

  // The client of a record with its chart, or why it is refused. Whether it is stored counts as in
  // an import of CSV: name, moment, place, offset, query and group to the last digit. Its offset is
  // the one with which it is saved, also where the file leaves it to the city.
  std::variant<PlannedBirth, std::string> Of(const CsvFile& file, const core::CsvRecord& record);

 private:
  const practice::FoundCity& City(std::int32_t id);

  core::Session& session_;
  const ImportSource& source_;
  practice::ClientIntake intake_;
  std::map<std::int32_t, practice::FoundCity> cities_;
};

}  // namespace orvex::exchange
