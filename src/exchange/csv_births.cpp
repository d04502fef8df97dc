#include "exchange/csv_births.h"

#include <stdexcept>

#include "core/exact_numbers.h"
#include "practice/offset_offer.h"
#include "practice/zone_clock.h"

namespace orvex::exchange {

namespace {

// The offset of a form beside what the clocks of its city showed.
BirthClock ClockOfForm(const chart::ClientForm& form, const std::string& zone) {
  BirthClock clock;
  clock.Local = form.Birth;
  clock.Offset = form.Offset;
  clock.OffsetInFile = form.Offset;
  try {
    const practice::ZoneClock shown =
        practice::ClocksOf(zone, form.Birth, core::ToDouble(form.Longitude));
    clock.OffsetOfClocks = practice::OffsetText(shown.OffsetInForce);
    clock.AgreesWithClocks = practice::IsOffsetOfClocks(form.Offset, shown);
  } catch (const practice::ZoneError&) {
    clock.OffsetOfClocks = "";
  }
  return clock;
}

}  // namespace

CsvFile ReadCsvFile(const std::string& text) {
  CsvFile file;
  file.Records = core::ReadCsv(text);
  if (file.Records.empty()) {
    throw std::runtime_error("The file is empty.");
  }
  file.Places = practice::PlacesOf(file.Records.front().Fields);
  file.Records.erase(file.Records.begin());
  return file;
}

CsvBirths::CsvBirths(core::Session& session, const ImportSource& source)
    : session_(session), source_(source), intake_(session, practice::WholeIdentity) {}

std::variant<PlannedBirth, std::string> CsvBirths::Of(const CsvFile& file,
                                                      const core::CsvRecord& record) {
  auto read = practice::ClientOfLine(session_, file.Places, record.Fields, source_.GroupId);
  if (auto* reason = std::get_if<std::string>(&read)) {
    return std::move(*reason);
  }
  PlannedBirth birth;
  birth.Line = record.Line;
  birth.Client = std::get<practice::IncomingClient>(std::move(read));
  auto checked = intake_.Check(birth.Client);
  if (auto* reason = std::get_if<std::string>(&checked)) {
    return std::move(*reason);
  }
  birth.Chart = std::get<chart::ChartResult>(std::move(checked));
  const chart::ClientForm& form = birth.Client.Form;
  birth.Place = {City(form.CityId), true, 0, form.Latitude, form.Longitude};
  birth.Clock = ClockOfForm(form, birth.Place.City.Zone);
  birth.IsStored = intake_.IsStored(birth.Client);
  return birth;
}

// Cities come again and again.
const practice::FoundCity& CsvBirths::City(std::int32_t id) {
  const auto known = cities_.find(id);
  return known != cities_.end()
             ? known->second
             : cities_.emplace(id, practice::CityOf(session_, source_.ShippedData, id))
                   .first->second;
}

}  // namespace orvex::exchange
