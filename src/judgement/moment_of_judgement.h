// When and where a judgement is made.
#pragma once

#include "chart/horoscope_model.h"
#include "core/session.h"
#include "exact/exact_sky.h"

namespace orvex::judgement {

struct MomentOfJudgement {
  core::DateTime Local{};  // clock of the place
  exact::Place Where;
  double Offset = 0;  // hours east of Greenwich
};

// The moment in UT.
core::DateTime UtOf(const MomentOfJudgement& moment);

// A moment of the user city's clock, and now there.
MomentOfJudgement AtUserCity(const core::Session& session, core::DateTime local);
MomentOfJudgement NowAtUserCity(const core::Session& session);

// The birth, or the moment in which a query was put, at its own place.
MomentOfJudgement AtBirth(const chart::HoroscopeModel& model);

}  // namespace orvex::judgement
