#include "judgement/moment_of_judgement.h"

#include "core/exact_numbers.h"
#include "exact/crossings_table.h"

namespace orvex::judgement {

core::DateTime UtOf(const MomentOfJudgement& moment) {
  return core::DateAdd(core::DateInterval::Seconds, -exact::OffsetOf(moment.Offset).count(),
                       moment.Local);
}

MomentOfJudgement AtUserCity(const core::Session& session, core::DateTime local) {
  const core::ApplicationState& state = session.State;
  return {
      local,
      {static_cast<double>(state.UserCityLatitude), static_cast<double>(state.UserCityLongitude)},
      static_cast<double>(state.UserCityOffset)};
}

MomentOfJudgement NowAtUserCity(const core::Session& session) {
  return AtUserCity(session, session.Time.Now());
}

MomentOfJudgement AtBirth(const chart::HoroscopeModel& model) {
  return {model.Birth,
          {core::ToDouble(model.Latitude), core::ToDouble(model.Longitude)},
          core::ToDouble(model.Offset)};
}

}  // namespace orvex::judgement
