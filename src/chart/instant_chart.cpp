#include "chart/instant_chart.h"

#include "chart/chart_moment.h"
#include "core/exact_numbers.h"
#include "core/settings.h"

namespace orvex::chart {

namespace {

ClientForm InstantForm(const core::ApplicationState& state, core::DateTime now) {
  ClientForm form;
  form.FullName =
      "Instant Chart - " + core::LongDateText(now, true) + " " + core::ShortTimeText(now);
  form.Birth = now;
  form.Gender = "O";
  form.CityId = state.UserCityId;
  form.Latitude = core::SingleText(state.UserCityLatitude);
  form.Longitude = core::SingleText(state.UserCityLongitude);
  form.Offset = core::SingleText(state.UserCityOffset);
  return form;
}

}  // namespace

core::SaveResult CreateInstantChart(core::Session& session, Creation creation) {
  const core::ApplicationState& state = session.State;
  if (state.InstantChartGroupId == 0) {
    return {0, core::Refusal{kInstantChartQuestion, core::MessageIcon::Question, ""}};
  }
  try {
    const core::DateTime now = session.Time.Now();
    const core::DateTime momentUt =
        core::BirthMomentOf(session) == 'C'
            ? PlainMomentUt(now, state.UserCityOffset)
            : InstantMomentUt(now, state.UserCityOffset, state.UserCityLongitude);
    const ChartResult chart =
        ComputeChartAt(session, momentUt, static_cast<double>(state.UserCityLatitude),
                       static_cast<double>(state.UserCityLongitude));
    return {InsertClient(session, {InstantForm(state, now), state.InstantChartGroupId, chart},
                         creation),
            std::nullopt};
  } catch (const std::exception&) {
    return {0, core::Refusal{core::kCouldNotUpdate, core::MessageIcon::Stop, ""}};
  }
}

}  // namespace orvex::chart
