// The scratch table of the sky view: one row a planet, the Sun first, the Moon second.
#pragma once

#include <string>
#include <vector>

#include "astro/sky_bodies.h"
#include "core/session.h"

namespace orvex::panchang {

struct PlanetPosition {
  std::string PlanetName;
  bool InRetro = false;
  int Rashi = 0;
  double Degree = 0;
};

// Writes the bodies into the rows of their names and gives all rows in table order. A row whose
// body is not among them stays as it was.
//
// The update works on the rows in memory, and a session that holds the home's lock writes them to
// the store too. A session that only reads runs beside an open workbench, whose rows it must not
// touch; it shows the same view from its own copy.
std::vector<PlanetPosition> UpdatePlanetPositions(core::Session& session,
                                                  const std::vector<astro::SkyBody>& bodies);

}  // namespace orvex::panchang
