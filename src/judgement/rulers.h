// The ruling planets of a moment and place, in full.
#pragma once

#include <array>
#include <string>

#include "core/table.h"
#include "exact/exact_sky.h"
#include "judgement/day_lord.h"

namespace orvex::judgement {

inline constexpr std::size_t kStrongestRulers = 5;  // the rows before the sub lords

// What the rulers of a moment are read from. Planets stand in the order of exact::kPlanets.
struct RulerSky {
  exact::Units Ascendant = 0;
  std::array<exact::Units, 9> Planets{};
  std::array<bool, 9> Retrograde{};  // by speed
  LordOfDay Day;
};

// The sky of a moment by the exact reading of the settings.
RulerSky RulerSkyOf(core::Session& session, const MomentOfJudgement& moment);

enum class RulerColumn { Role, Planet, Marks };

// "Asc Star", "Asc Sign", "Moon Star", "Moon Sign", "Day", "Asc Sub", "Moon Sub", then "Node" for
// Rahu and for Ketu where the node is agent of one of the first five: its sign's lord is among
// them, or one of them stands in its sign or aspects it by whole signs. Marks: of the day, where it
// is not that of the calendar, "calendar day: Moon"; then "R", "star of R", "sub of R" of that
// moment.
core::Table BuildRulers(const exact::ExactZodiac& zodiac, const RulerSky& sky);

// Both in one.
core::Table RulersAt(core::Session& session, const MomentOfJudgement& moment);

}  // namespace orvex::judgement
