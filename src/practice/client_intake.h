// What every import asks before it takes a client: the checks of the client dialog, a chart, and
// whether the client is stored already.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <variant>

#include "chart/client_saving.h"
#include "core/session.h"

namespace orvex::practice {

// A client of a file as the dialog would hold it.
struct IncomingClient {
  chart::ClientForm Form;
  std::int32_t GroupId = 0;
};

// A line of a file, from 1, and why its client is not taken.
struct RefusedLine {
  std::size_t Line = 0;
  std::string Reason;
};

// What tells clients apart, as the store holds it.
struct ClientIdentity {
  std::string Name;
  std::string Birth;
  std::string Latitude;
  std::string Longitude;
  std::string Offset;
  std::string HoraryNumber;  // "0" for a birth
  std::string GroupId;
};

// Two clients with the same text are the same.
using IdentityText = std::function<std::string(const ClientIdentity&)>;

// Name, moment, place, query and group, all to the last digit.
std::string WholeIdentity(const ClientIdentity& client);

class ClientIntake {
 public:
  // Knows the clients that are stored when it is made.
  ClientIntake(core::Session& session, IdentityText identity);

  // The chart of a client that may be stored, or why it is refused. Nothing is written.
  std::variant<chart::ChartResult, std::string> Check(const IncomingClient& client) const;

  bool IsStored(const IncomingClient& client) const;

 private:
  core::Session& session_;
  IdentityText identity_;
  std::set<std::string> stored_;
};

}  // namespace orvex::practice
