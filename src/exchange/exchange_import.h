// Births of exchange files as clients: first what would be saved, then the saving.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/session.h"
#include "exchange/birth_clock.h"
#include "practice/client_intake.h"

namespace orvex::exchange {

struct ImportSource {
  std::vector<std::filesystem::path> Paths;  // files, also CSV, and folders
  std::int32_t GroupId = 0;                  // of the new clients
  std::filesystem::path ShippedData;         // the folder of the gazetteer
};

// A birth that passed every check, with its chart.
struct PlannedBirth {
  std::string File;  // its name
  std::size_t Line = 0;
  practice::IncomingClient Client;
  chart::ChartResult Chart;
  BirthPlace Place;
  BirthClock Clock;
  bool IsStored = false;  // before the import, in whatever group; it is passed over
};

struct RefusedBirth {
  std::string File;
  std::size_t Line = 0;
  std::string Reason;
};

struct ImportPlan {
  std::vector<PlannedBirth> Births;
  std::vector<RefusedBirth> Refused;
  bool IsCanceled = false;

  std::size_t StoredCount() const;
  std::size_t NewCount() const { return Births.size() - StoredCount(); }
};

// Called now and then with the births done and all births, both 0 while files are still read; false
// cancels.
using ExchangeProgress = std::function<bool(std::size_t done, std::size_t all)>;

// Reads the files and takes every birth through the checks of the client dialog. Nothing is
// written. A client counts as stored where one has its name, moment, place and offset as far as an
// exchange file can tell them: coordinates and offset to the second, the name as AafText writes it;
// of CSV see CsvBirths. std::runtime_error where a file or a folder can't be read or holds no
// births.
ImportPlan PlanImport(core::Session& session, const ImportSource& source,
                      const ExchangeProgress& progress);

enum class WithRefused { SaveNothing, LeaveOut };

// Writes the new births of a plan in one transaction: a crash, a failing store or a cancel leaves
// none of them. Gives how many were written; 0 where some were refused and are not to be left out,
// and where it was canceled. StoreError where the store fails.
std::size_t SaveImport(core::Session& session, const ImportPlan& plan, WithRefused refused,
                       const ExchangeProgress& progress);

}  // namespace orvex::exchange
