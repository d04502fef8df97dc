#include "practice/client_intake.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::practice {

namespace {

constexpr std::size_t kLongestClientName = 100;

// As the store will hold it; a form that was checked has numbers in its fields.
ClientIdentity IdentityOf(const IncomingClient& client) {
  const chart::ClientForm& form = client.Form;
  const auto number = [](const std::string& text) {
    return core::DoubleText(core::ToDouble(text));
  };
  return {core::FirstCharacters(core::Trim(form.FullName), kLongestClientName),
          core::StoredDateTimeText(form.Birth),
          number(form.Latitude),
          number(form.Longitude),
          number(form.Offset),
          form.Horary ? number(form.HoraryNumber) : "0",
          core::WholeText(client.GroupId)};
}

std::set<std::string> StoredIdentities(const core::Store& store, const IdentityText& identity) {
  std::set<std::string> stored;
  for (core::Result row =
           store.Query("Select fullname, birthdate, latitude, longitude, offset, horaryno, groupid "
                       "from client_master");
       !row.AtEnd(); row.Next()) {
    stored.insert(identity({row.Text("fullname"), row.Text("birthdate"), row.Text("latitude"),
                            row.Text("longitude"), row.Text("offset"), row.Text("horaryno"),
                            row.Text("groupid")}));
  }
  return stored;
}

}  // namespace

std::string WholeIdentity(const ClientIdentity& client) {
  return core::Join({client.Name, client.Birth, client.Latitude, client.Longitude, client.Offset,
                     client.HoraryNumber, client.GroupId},
                    "\n");
}

ClientIntake::ClientIntake(core::Session& session, IdentityText identity)
    : session_(session),
      identity_(std::move(identity)),
      stored_(StoredIdentities(session.StoreConnection, identity_)) {}

std::variant<chart::ChartResult, std::string> ClientIntake::Check(
    const IncomingClient& client) const {
  chart::CheckedChart checked = chart::CheckAndCompute(session_, client.Form);
  if (checked.Refused) {
    return checked.Refused->Text;
  }
  return std::move(checked.Chart);
}

bool ClientIntake::IsStored(const IncomingClient& client) const {
  return stored_.contains(identity_(IdentityOf(client)));
}

}  // namespace orvex::practice
