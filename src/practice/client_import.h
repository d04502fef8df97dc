// Clients from a file of comma-separated text.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/session.h"
#include "practice/client_intake.h"

namespace orvex::practice {

struct ImportRequest {
  std::string Text;          // of the file
  std::int32_t GroupId = 0;  // of lines that name no group
  bool DryRun = false;       // check and compute, write nothing
};

struct ImportReport {
  std::size_t Imported = 0;
  std::size_t AlreadyStored = 0;  // passed over, so that a second import changes nothing
  std::vector<RefusedLine> Refused;
};

// Called now and then with the lines done and all lines.
using ImportProgress = std::function<void(std::size_t done, std::size_t all)>;

// Takes every line through the checks of the client dialog, computes the charts, and writes all
// lines that pass in one transaction: a crash or a failing store leaves none of them. A line whose
// client was stored before the import is passed over. std::runtime_error where the file as a whole
// can't be read; StoreError where the store fails. Nothing is written then.
ImportReport ImportClients(core::Session& session, const ImportRequest& request,
                           const ImportProgress& progress);

}  // namespace orvex::practice
