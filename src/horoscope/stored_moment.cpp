#include "horoscope/stored_moment.h"

#include <algorithm>
#include <array>

#include "chart/chart_moment.h"
#include "core/exact_numbers.h"
#include "core/settings.h"
#include "horoscope/recalculation.h"

namespace orvex::horoscope {

namespace {

core::DateTime ToTheMinute(core::DateTime moment) {
  return std::chrono::floor<std::chrono::minutes>(moment);
}

const std::string* MoonDegree(const chart::ChartResult& chart) {
  const auto moon = std::find_if(chart.Planets.begin(), chart.Planets.end(),
                                 [](const auto& row) { return row.Planet == "Moon"; });
  return moon == chart.Planets.end() ? nullptr : &moon->Degree;
}

// The Moon tells minutes apart, the Ascendant seconds; a given one does not depend on the moment.
bool GivesTheStored(core::Session& session, const chart::HoroscopeModel& model,
                    const chart::ChartInput& input, core::DateTime momentUt) {
  const chart::ChartResult chart = chart::ComputeChartAt(
      session, momentUt, core::ToDouble(input.Latitude), core::ToDouble(input.Longitude));
  const std::string* moon = MoonDegree(chart);
  const bool sameMoon =
      moon != nullptr && core::ToDouble(*moon) == core::ToDouble(model.MoonDegree);
  return sameMoon &&
         (input.Ascendant != chart::AscendantChoice::Computed ||
          core::ToDouble(chart.Cusps.front().DegStart) == core::ToDouble(model.CuspDegree1));
}

}  // namespace

core::DateTime StoredMomentUt(core::Session& session, const chart::HoroscopeModel& model) {
  const chart::ChartInput input = ChartInputOf(session, model, OpenRecalculation(model));
  const auto chosen = [&](char choice) {
    return ToTheMinute(chart::ChosenMomentUt(choice, input.Birth, input.Offset, input.Longitude,
                                             input.CityOffset));
  };
  const char now = core::BirthMomentOf(session);
  const std::array<core::DateTime, 3> moments = {
      chosen(now), chosen(now == 'C' ? 'S' : 'C'),
      ToTheMinute(chart::InstantMomentUt(input.Birth, core::ToSingle(input.Offset),
                                         core::ToSingle(input.Longitude)))};
  if (moments[0] == moments[1] && moments[0] == moments[2]) {
    return moments[0];
  }
  const auto* found = std::find_if(moments.begin(), moments.end(), [&](core::DateTime momentUt) {
    return GivesTheStored(session, model, input, momentUt);
  });
  return found == moments.end() ? moments[0] : *found;
}

}  // namespace orvex::horoscope
