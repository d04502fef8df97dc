// The significators of each house in four grades, and which of them the nodes stand for.
#pragma once

#include <array>
#include <vector>

#include "chart/horoscope_model.h"
#include "judgement/matters.h"

namespace orvex::judgement {

// From the strongest on: A in the star of an occupant, B occupant, C in the star of the owner,
// D owner.
enum class Grade { A, B, C, D };
inline constexpr std::array<const char*, 4> kGradeNames = {"A", "B", "C", "D"};

// The rows of the planet table by grade, each ascending. A planet may stand in several.
using Graded = std::array<std::vector<std::size_t>, 4>;

// The grades of a house, 1 to 12. Occupants are the planets whose "In" it is, its owner is that of
// the sign of its cusp. Together they are the planets of "Planet(s) Sig".
Graded GradesOf(const chart::HoroscopeModel& model, int house);

enum class HouseGradeColumn { House, A, B, C, D, Nodes };

// A row for each house of the matter: main cusp, supporting, denying. Planets are codes in the
// order of the planet table. Nodes: "RA for SU MO, KE for VE", those of A to D that a node stands
// for.
core::Table BuildHouseGrades(const chart::HoroscopeModel& model, const Matter& matter);

}  // namespace orvex::judgement
