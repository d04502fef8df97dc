// A matter judged in a horoscope: all tables of the page in one call.
#pragma once

#include "chart/horoscope_model.h"
#include "judgement/matter_periods.h"
#include "judgement/matters.h"
#include "judgement/moment_of_judgement.h"

namespace orvex::judgement {

struct Judgement {
  core::Table MatterChain;
  core::Table MatterCusps;
  core::Table HouseGrades;
  core::Table MatterPlanets;
  core::Table MatterPeriods;
  core::Table Rulers;
};

// Reads the tables of the horoscope as they stand, rotation included, and writes nothing. The
// ruling planets are those of `moment`, the periods those of `window`.
Judgement JudgeMatter(core::Session& session, const chart::HoroscopeModel& model,
                      const Matter& matter, const MomentOfJudgement& moment,
                      const PeriodWindow& window);

}  // namespace orvex::judgement
