#include "panchang/planet_positions.h"

#include <algorithm>

#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::panchang {

namespace {

std::vector<PlanetPosition> LoadPositions(const core::Store& store) {
  std::vector<PlanetPosition> rows;
  core::Result row = store.Query("Select * from planet_positions");
  for (; !row.AtEnd(); row.Next()) {
    rows.push_back({row.Text("planetname"), row.Flag("inretro"),
                    static_cast<int>(row.Integer("rashi")), row.Number("degree")});
  }
  return rows;
}

void WritePositions(core::Store& store, const std::vector<PlanetPosition>& rows) {
  core::Batch batch(store);
  for (const PlanetPosition& row : rows) {
    core::Attempt([&] {
      store.Execute(
          "Update planet_positions set inretro = " + std::string(row.InRetro ? "1" : "0") +
          ", rashi = " + core::WholeText(row.Rashi) + ", degree = " + core::DoubleText(row.Degree) +
          " where planetname = " + core::Quoted(row.PlanetName));
    });
  }
  batch.Commit();
}

}  // namespace

std::vector<PlanetPosition> UpdatePlanetPositions(core::Session& session,
                                                  const std::vector<astro::SkyBody>& bodies) {
  std::vector<PlanetPosition> rows = LoadPositions(session.StoreConnection);
  for (PlanetPosition& row : rows) {
    const auto body = std::find_if(bodies.begin(), bodies.end(), [&row](const auto& candidate) {
      return candidate.Name == row.PlanetName;
    });
    if (body != bodies.end()) {
      const double degree = chart::LookupDegree(body->Degree);
      row = {row.PlanetName, body->Retrograde, chart::RashiOfDegree(degree), degree};
    }
  }
  if (session.Lock) {
    core::Attempt([&] { WritePositions(session.StoreConnection, rows); });
  }
  return rows;
}

}  // namespace orvex::panchang
