#include "exchange/exchange_import.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "core/exact_numbers.h"
#include "core/text.h"
#include "exchange/aaf_fields.h"
#include "exchange/csv_births.h"
#include "exchange/exchange_files.h"

namespace orvex::exchange {

namespace {

constexpr std::size_t kProgressEvery = 10;

// What an exchange file can tell of a client.
std::string ExchangeIdentity(const practice::ClientIdentity& client) {
  const auto seconds = [](const std::string& text) {
    constexpr double kFar = 1e6;
    const double value = std::clamp(core::ParseNumber(text).value_or(0), -kFar, kFar);
    return core::WholeText(core::RoundToWhole(value * core::kSecondsOfHour));
  };
  return core::Join({AafText(client.Name), client.Birth, seconds(client.Latitude),
                     seconds(client.Longitude), seconds(client.Offset)},
                    "\n");
}

// Where the city is not the place that the file names, the comments keep that.
std::string CommentsOf(const FileBirth& birth, const BirthPlace& place) {
  if (place.IsNamed || birth.Place.empty()) {
    return birth.Comments;
  }
  return birth.Comments + (birth.Comments.empty() ? "" : "\n") + "Place: " + birth.Place +
         (birth.Country.empty() ? "" : ", " + birth.Country);
}

practice::IncomingClient ClientOf(const FileBirth& birth, const BirthPlace& place,
                                  const BirthClock& clock, std::int32_t groupId) {
  practice::IncomingClient client;
  client.GroupId = groupId;
  client.Form.FullName = birth.Name;
  client.Form.Gender = birth.Gender;
  client.Form.Comments = CommentsOf(birth, place);
  client.Form.Birth = clock.Local;
  client.Form.CityId = place.City.Id;
  client.Form.Latitude = place.Latitude;
  client.Form.Longitude = place.Longitude;
  client.Form.Offset = clock.Offset;
  return client;
}

// A file that was read, by its kind.
struct ReadFile {
  std::string Name;
  FileReading Reading;
  CsvFile Csv;

  std::size_t Count() const { return Reading.Births.size() + Csv.Records.size(); }
};

// The path of a file below the folder that was named, or the file's name.
std::string NameBelow(const std::filesystem::path& source, const std::filesystem::path& file) {
  std::string name;
  for (const std::filesystem::path& part : file.lexically_relative(source)) {
    name += (name.empty() ? "" : "/") + FileNameText(part);
  }
  return file == source ? FileNameText(file) : name;
}

ReadFile ReadOne(const std::filesystem::path& source, const std::filesystem::path& file) {
  ReadFile read{NameBelow(source, file), {}, {}};
  if (!IsCsvFile(file)) {
    read.Reading = ReadExchangeFile(file);
    return read;
  }
  const std::string text = ReadBoundedFile(file);
  try {
    read.Csv = ReadCsvFile(text);
  } catch (const std::runtime_error& unread) {
    throw std::runtime_error(read.Name + ": " + unread.what());
  }
  return read;
}

// Nothing where it was canceled.
std::optional<std::vector<ReadFile>> ReadAll(const ImportSource& source,
                                             const ExchangeProgress& progress) {
  std::vector<ReadFile> files;
  bool isEmpty = true;
  for (const std::filesystem::path& path : source.Paths) {
    for (const std::filesystem::path& file : ExchangeFilesOf(path)) {
      files.push_back(ReadOne(path, file));
      isEmpty = isEmpty && files.back().Count() == 0 && files.back().Reading.Refused.empty();
      if (files.size() % kProgressEvery == 0 && !progress(0, 0)) {
        return std::nullopt;
      }
    }
  }
  if (isEmpty) {
    throw std::runtime_error("There are no births in it.");
  }
  return files;
}

// One import on its way through the births.
class Planning {
 public:
  Planning(core::Session& session, const ImportSource& source)
      : intake_(session, ExchangeIdentity),
        csv_(session, source),
        places_(session, source.ShippedData),
        groupId_(source.GroupId) {}

  void Refuse(const std::string& file, const practice::RefusedLine& line) {
    plan_.Refused.push_back({file, line.Line, line.Reason});
  }

  void Take(const std::string& file, const FileBirth& birth) {
    const auto place = places_.Of(birth);
    if (const auto* reason = std::get_if<std::string>(&place)) {
      Refuse(file, {birth.Line, *reason});
      return;
    }
    const auto clock = ClockOf(birth, std::get<BirthPlace>(place));
    if (const auto* reason = std::get_if<std::string>(&clock)) {
      Refuse(file, {birth.Line, *reason});
      return;
    }
    Check(file, birth, std::get<BirthPlace>(place), std::get<BirthClock>(clock));
  }

  void TakeLine(const ReadFile& file, const core::CsvRecord& record) {
    auto birth = csv_.Of(file.Csv, record);
    if (const auto* reason = std::get_if<std::string>(&birth)) {
      Refuse(file.Name, {record.Line, *reason});
      return;
    }
    plan_.Births.push_back(std::get<PlannedBirth>(std::move(birth)));
    plan_.Births.back().File = file.Name;
  }

  void Cancel() { plan_.IsCanceled = true; }

  // Refused lines in the order of the files, as they were read.
  ImportPlan Plan() && { return std::move(plan_); }

 private:
  void Check(const std::string& file, const FileBirth& birth, const BirthPlace& place,
             const BirthClock& clock) {
    PlannedBirth planned{file, birth.Line, ClientOf(birth, place, clock, groupId_)};
    auto checked = intake_.Check(planned.Client);
    if (const auto* reason = std::get_if<std::string>(&checked)) {
      Refuse(file, {birth.Line, *reason});
      return;
    }
    planned.Chart = std::get<chart::ChartResult>(std::move(checked));
    planned.Place = place;
    planned.Clock = clock;
    planned.IsStored = intake_.IsStored(planned.Client);
    plan_.Births.push_back(std::move(planned));
  }

  practice::ClientIntake intake_;
  CsvBirths csv_;
  BirthPlaces places_;
  std::int32_t groupId_;
  ImportPlan plan_;
};

// Takes what a file holds. `goesOn` is asked after each birth; false where it said no.
bool TakeFile(const ReadFile& file, Planning& planning, const std::function<bool()>& goesOn) {
  for (const practice::RefusedLine& line : file.Reading.Refused) {
    planning.Refuse(file.Name, line);
  }
  for (const FileBirth& birth : file.Reading.Births) {
    planning.Take(file.Name, birth);
    if (!goesOn()) {
      return false;
    }
  }
  for (const core::CsvRecord& record : file.Csv.Records) {
    planning.TakeLine(file, record);
    if (!goesOn()) {
      return false;
    }
  }
  return true;
}

bool IsTimeToTell(std::size_t done, std::size_t all) {
  return done % kProgressEvery == 0 || done == all;
}

}  // namespace

std::size_t ImportPlan::StoredCount() const {
  return static_cast<std::size_t>(std::count_if(
      Births.begin(), Births.end(), [](const PlannedBirth& birth) { return birth.IsStored; }));
}

ImportPlan PlanImport(core::Session& session, const ImportSource& source,
                      const ExchangeProgress& progress) {
  const std::optional<std::vector<ReadFile>> files = ReadAll(source, progress);
  if (!files) {
    ImportPlan canceled;
    canceled.IsCanceled = true;
    return canceled;
  }
  std::size_t all = 0;
  for (const ReadFile& file : *files) {
    all += file.Count();
  }
  std::size_t done = 0;
  const auto goesOn = [&] {
    ++done;
    return !IsTimeToTell(done, all) || progress(done, all);
  };
  Planning planning(session, source);
  const bool isWhole = std::all_of(files->begin(), files->end(), [&](const ReadFile& file) {
    return TakeFile(file, planning, goesOn);
  });
  if (!isWhole) {
    planning.Cancel();
  }
  return std::move(planning).Plan();
}

std::size_t SaveImport(core::Session& session, const ImportPlan& plan, WithRefused refused,
                       const ExchangeProgress& progress) {
  if (plan.IsCanceled || (refused == WithRefused::SaveNothing && !plan.Refused.empty())) {
    return 0;
  }
  const std::size_t all = plan.NewCount();
  std::size_t done = 0;
  core::Batch batch(session.StoreConnection);
  try {
    for (const PlannedBirth& birth : plan.Births) {
      if (birth.IsStored) {
        continue;
      }
      chart::InsertClientRows(session, {birth.Client.Form, birth.Client.GroupId, birth.Chart});
      ++done;
      if (IsTimeToTell(done, all) && !progress(done, all)) {
        batch.Undo();
        return 0;
      }
    }
    SyncStore(session.StoreConnection);
    batch.Commit();
    return all;
  } catch (...) {
    batch.Undo();
    throw;
  }
}

}  // namespace orvex::exchange
