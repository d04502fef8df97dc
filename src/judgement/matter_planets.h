// The nine planets as givers of a matter: their grade, the houses they signify, whether they rule
// at the moment of judgement, and which are fruitful.
#pragma once

#include <set>
#include <string>

#include "chart/horoscope_model.h"
#include "judgement/matters.h"

namespace orvex::judgement {

enum class MatterPlanetColumn { Planet, Grade, Supporting, Denying, Ruling, Marks, Fruitful };

inline constexpr const char* kFruitful = "Yes";

// Nine rows in the order of the planet table. `houseGrades` and `rulers` are the tables of those
// names. Grade: the best in any main or supporting house. Supporting (with the main cusp) and
// Denying: the houses signified, ascending. Ruling: the planet's roles. Fruitful: it signifies a
// supporting house, rules, and stands in no star or sub of a retrograde planet.
core::Table BuildMatterPlanets(const chart::HoroscopeModel& model, const Matter& matter,
                               const core::Table& houseGrades, const core::Table& rulers);

// The names of the fruitful planets.
std::set<std::string> FruitfulPlanets(const core::Table& matterPlanets);

}  // namespace orvex::judgement
