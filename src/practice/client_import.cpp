#include "practice/client_import.h"

#include <algorithm>
#include <optional>
#include <set>
#include <stdexcept>

#include "core/csv.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "core/unicode_text.h"
#include "practice/client_csv.h"

namespace orvex::practice {

namespace {

constexpr std::size_t kProgressEvery = 200;
constexpr std::size_t kLongestName = 100;

// What makes two records the same client: name, moment, place, query and group.
std::string Identity(const std::vector<std::string>& parts) { return core::Join(parts, "\n"); }

std::string IdentityOf(const CsvClient& client) {
  const chart::ClientForm& form = client.Form;
  const auto number = [](const std::string& text) {
    return core::DoubleText(core::ToDouble(text));
  };
  return Identity({core::FirstCharacters(core::Trim(form.FullName), kLongestName),
                   core::StoredDateTimeText(form.Birth), number(form.Latitude),
                   number(form.Longitude), number(form.Offset),
                   form.Horary ? number(form.HoraryNumber) : "0", core::WholeText(client.GroupId)});
}

std::set<std::string> StoredIdentities(const core::Store& store) {
  std::set<std::string> stored;
  for (core::Result row =
           store.Query("Select fullname, birthdate, latitude, longitude, offset, horaryno, groupid "
                       "from client_master");
       !row.AtEnd(); row.Next()) {
    stored.insert(Identity({row.Text("fullname"), row.Text("birthdate"), row.Text("latitude"),
                            row.Text("longitude"), row.Text("offset"), row.Text("horaryno"),
                            row.Text("groupid")}));
  }
  return stored;
}

bool HasAllHouses(const chart::ChartResult& chart) {
  return std::all_of(chart.Planets.begin(), chart.Planets.end(),
                     [](const chart::PlanetRow& planet) {
                       return planet.RashiHouse.has_value() && planet.ChalitHouse.has_value();
                     });
}

// One import on its way through the lines.
class Import {
 public:
  Import(core::Session& session, const ImportRequest& request, CsvPlaces places)
      : session_(session),
        request_(request),
        places_(std::move(places)),
        stored_(StoredIdentities(session.StoreConnection)) {}

  void Take(const core::CsvRecord& record) {
    if (std::optional<std::string> reason = TryTake(record.Fields)) {
      report_.Refused.push_back({record.Line, *std::move(reason)});
    }
  }

  ImportReport Report() && { return std::move(report_); }

 private:
  // The reason why a line is refused; nothing where it was taken or is stored already.
  std::optional<std::string> TryTake(const std::vector<std::string>& fields) {
    if (fields.size() !=
        static_cast<std::size_t>(std::count_if(
            places_.begin(), places_.end(), [](const auto& place) { return place.has_value(); }))) {
      return "the line has not as many fields as the first one";
    }
    if (!std::all_of(fields.begin(), fields.end(), core::IsUtf8Text)) {
      return "the line is not text in UTF-8";
    }
    const auto read = ClientOfLine(session_, places_, fields, request_.GroupId);
    if (const auto* reason = std::get_if<std::string>(&read)) {
      return *reason;
    }
    return TryStore(std::get<CsvClient>(read));
  }

  std::optional<std::string> TryStore(const CsvClient& client) {
    const chart::CheckedChart checked = chart::CheckAndCompute(session_, client.Form);
    if (checked.Refused) {
      return checked.Refused->Text;
    }
    if (!HasAllHouses(checked.Chart)) {
      return core::kCouldNotUpdate;
    }
    if (stored_.contains(IdentityOf(client))) {
      ++report_.AlreadyStored;
      return std::nullopt;
    }
    if (!request_.DryRun) {
      chart::InsertClientRows(session_, {client.Form, client.GroupId, checked.Chart});
    }
    ++report_.Imported;
    return std::nullopt;
  }

  core::Session& session_;
  const ImportRequest& request_;
  CsvPlaces places_;
  std::set<std::string> stored_;
  ImportReport report_;
};

ImportReport TakeAll(Import import, const std::vector<core::CsvRecord>& records,
                     const ImportProgress& progress) {
  const std::size_t all = records.size() - 1;
  for (std::size_t line = 1; line <= all; ++line) {
    import.Take(records[line]);
    if (line % kProgressEvery == 0 || line == all) {
      progress(line, all);
    }
  }
  return std::move(import).Report();
}

}  // namespace

ImportReport ImportClients(core::Session& session, const ImportRequest& request,
                           const ImportProgress& progress) {
  const std::vector<core::CsvRecord> records = core::ReadCsv(request.Text);
  if (records.empty()) {
    throw std::runtime_error("The file is empty.");
  }
  Import import(session, request, PlacesOf(records.front().Fields));
  if (request.DryRun) {
    return TakeAll(std::move(import), records, progress);
  }
  core::Batch batch(session.StoreConnection);
  try {
    ImportReport report = TakeAll(std::move(import), records, progress);
    SyncStore(session.StoreConnection);
    batch.Commit();
    return report;
  } catch (...) {
    batch.Undo();
    throw;
  }
}

}  // namespace orvex::practice
