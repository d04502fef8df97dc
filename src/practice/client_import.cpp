#include "practice/client_import.h"

#include <optional>
#include <stdexcept>

#include "core/csv.h"
#include "practice/client_csv.h"

namespace orvex::practice {

namespace {

constexpr std::size_t kProgressEvery = 200;

// One import on its way through the lines.
class Import {
 public:
  Import(core::Session& session, const ImportRequest& request, CsvPlaces places)
      : session_(session),
        request_(request),
        places_(std::move(places)),
        intake_(session, WholeIdentity) {}

  void Take(const core::CsvRecord& record) {
    if (std::optional<std::string> reason = TryTake(record.Fields)) {
      report_.Refused.push_back({record.Line, *std::move(reason)});
    }
  }

  ImportReport Report() && { return std::move(report_); }

 private:
  // The reason why a line is refused; nothing where it was taken or is stored already.
  std::optional<std::string> TryTake(const std::vector<std::string>& fields) {
    const auto read = ClientOfLine(session_, places_, fields, request_.GroupId);
    if (const auto* reason = std::get_if<std::string>(&read)) {
      return *reason;
    }
    return TryStore(std::get<IncomingClient>(read));
  }

  std::optional<std::string> TryStore(const IncomingClient& client) {
    const auto checked = intake_.Check(client);
    if (const auto* reason = std::get_if<std::string>(&checked)) {
      return *reason;
    }
    if (intake_.IsStored(client)) {
      ++report_.AlreadyStored;
      return std::nullopt;
    }
    if (!request_.DryRun) {
      chart::InsertClientRows(session_,
                              {client.Form, client.GroupId, std::get<chart::ChartResult>(checked)});
    }
    ++report_.Imported;
    return std::nullopt;
  }

  core::Session& session_;
  const ImportRequest& request_;
  CsvPlaces places_;
  ClientIntake intake_;
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
