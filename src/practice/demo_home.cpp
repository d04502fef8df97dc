#include "practice/demo_home.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "core/csv.h"
#include "core/dialect.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "practice/client_import.h"
#include "practice/groups.h"
#include "practice/remedies.h"

namespace orvex::practice {

namespace {

constexpr const char* kClients = "DemoClients.csv";
constexpr const char* kRemedies = "DemoRemedies.csv";

std::filesystem::path FilledMark(const core::Home& home) { return home.Folder / "Demo filled"; }

[[noreturn]] void Fail(const char* file, const std::string& reason) {
  throw std::runtime_error(std::string("The demonstration could not be filled from ") + file +
                           ": " + reason);
}

std::string LineText(std::size_t line) { return core::WholeText(static_cast<int>(line)); }

// The records below a line of captions, each value under its caption.
class Records {
 public:
  Records(const char* file, const std::string& text) : file_(file), records_(core::ReadCsv(text)) {
    if (records_.empty()) {
      Fail(file_, "it is empty");
    }
  }

  std::size_t Count() const { return records_.size() - 1; }

  const std::string& Value(std::size_t record, const std::string& caption) const {
    const std::vector<std::string>& captions = records_.front().Fields;
    const auto place = static_cast<std::size_t>(
        std::find(captions.begin(), captions.end(), caption) - captions.begin());
    const std::vector<std::string>& fields = records_.at(record + 1).Fields;
    if (place >= fields.size()) {
      Fail(file_, "no " + caption + " on line " + LineText(records_.at(record + 1).Line));
    }
    return fields[place];
  }

 private:
  const char* file_;
  std::vector<core::CsvRecord> records_;
};

// A group that is there already is refused, and that is well.
void AddGroupsOf(core::Session& session, const Records& clients) {
  std::set<std::string> names;
  for (std::size_t i = 0; i < clients.Count(); ++i) {
    names.insert(clients.Value(i, "group"));
  }
  for (const std::string& name : names) {
    AddGroup(session, name);
  }
}

void ImportAll(core::Session& session, const std::string& text) {
  const ImportReport report =
      ImportClients(session, {text, session.State.InstantChartGroupId, false},
                    [](std::size_t /*done*/, std::size_t /*all*/) {});
  if (!report.Refused.empty()) {
    const RefusedLine& line = report.Refused.front();
    Fail(kClients, "line " + LineText(line.Line) + ": " + line.Reason);
  }
}

std::int32_t PlanetId(const core::Session& session, const std::string& name) {
  for (const PlanetChoice& planet : RemedyPlanets(session)) {
    if (planet.Name == name) {
      return planet.Id;
    }
  }
  Fail(kRemedies, "there is no planet " + name);
}

std::int32_t ClientId(const core::Session& session, const std::string& name) {
  const core::Result client = session.StoreConnection.Query(
      "Select id from client_master where fullname = " + core::Quoted(name));
  if (client.AtEnd()) {
    Fail(kRemedies, "there is no client " + name);
  }
  return static_cast<std::int32_t>(client.Integer("id"));
}

bool HasRemedy(const core::Session& session, std::int32_t clientId, const std::string& problem) {
  const core::Table given = LoadRemedies(session, clientId);
  return std::any_of(given.Rows.begin(), given.Rows.end(), [&](const core::Row& row) {
    return row.Cells.at(core::Table::Index(RemedyColumn::Problem)).Text == problem;
  });
}

void AddRemedies(core::Session& session, const Records& remedies) {
  for (std::size_t i = 0; i < remedies.Count(); ++i) {
    const std::int32_t clientId = ClientId(session, remedies.Value(i, "client"));
    RemedyForm form{PlanetId(session, remedies.Value(i, "planet")), remedies.Value(i, "problem"),
                    remedies.Value(i, "remedy")};
    form.Date = core::ParseDateTime(remedies.Value(i, "date")).value();
    if (HasRemedy(session, clientId, form.Problem)) {
      continue;
    }
    if (const core::SaveResult saved = SaveNewRemedy(session, form, clientId); saved.Refused) {
      Fail(kRemedies, saved.Refused->Text);
    }
  }
}

}  // namespace

core::StartupPlan DemoPlan(core::StartMode mode) {
  const std::filesystem::path folder = core::UserDataFolder() / "orvex-demo";
  return {core::Home{folder}, core::ShippedDataFolder(), folder / "settings.json", mode};
}

bool NeedsDemoClients(const core::Home& home) { return !std::filesystem::exists(FilledMark(home)); }

void FillDemo(core::Session& session, const std::filesystem::path& shippedData) {
  const std::string clients = core::ReadTextFile(shippedData / kClients);
  AddGroupsOf(session, Records(kClients, clients));
  ImportAll(session, clients);
  AddRemedies(session, Records(kRemedies, core::ReadTextFile(shippedData / kRemedies)));
  core::WriteFileSafely(FilledMark(session.Place),
                        "This folder is the demonstration of Orvex+. Delete it, and the next start "
                        "with --demo fills it anew.\n");
}

}  // namespace orvex::practice
