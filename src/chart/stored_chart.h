// The stored rows of a client: the chart itself, and the tables that are copied from it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/session.h"

namespace orvex::chart {

// A row of client_planets with its planet.
struct StoredPlanet {
  std::string Id;
  std::string Name;
  std::string Code;
  std::string AstroNumber;
  std::string DashaYears;
  double Degree = 0;
  std::string ChalitHouse;
  std::string StarLord;
  std::string SubLord;
  bool InRetro = false;
};

enum class PlanetOrder {
  Stored,      // as the rows were written
  RashiHouse,  // by the house of the sign, within one as written
  Dasha        // by the sequence of the periods
};

// The planets of a client. Rows that are missing are missing here too.
std::vector<StoredPlanet> LoadPlanets(const core::Session& session, std::int32_t clientId,
                                      PlanetOrder order);

}  // namespace orvex::chart
