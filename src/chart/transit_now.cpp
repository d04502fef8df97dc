#include "chart/transit_now.h"

#include "astro/angle_text.h"
#include "chart/chart_computation.h"
#include "chart/chart_moment.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"

namespace orvex::chart {

namespace {

// Both nodes count as retrograde in the sky, though a stored chart has them direct.
bool IsNode(const std::string& planet) { return planet == "Rahu" || planet == "Ketu"; }

}  // namespace

void BuildTransitNow(core::Session& session, HoroscopeModel& model) {
  core::Table& table = model.TransitNow;
  table = {{{"Planet"}, {"Degree"}, {"Rashi"}, {"Star Lord"}, {"Sub Lord"}, {"R"}}, {}};
  const core::DateTime now = PlainMomentUt(session.Time.Now(), session.State.UserCityOffset);
  const astro::EphemerisMoment moment = session.Ephemeris.PrepareMoment(now);
  for (const PlanetRow& planet : PlanetsAt(session, moment.JulianDayUT, astro::kTransitFlags)) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, TransitNowColumn::Planet).Text = planet.Planet;
    table.At(row, TransitNowColumn::Degree).Text = planet.Degree;
    table.At(row, TransitNowColumn::R).Text =
        planet.InRetro == "1" || IsNode(planet.Planet) ? "R" : "";
    core::Attempt([&] {
      const double degree = core::ToDouble(planet.Degree);
      table.At(row, TransitNowColumn::Rashi).Text = RashiName(RashiOfDegree(degree));
      const core::SubRow& sub = SubOfDegree(session.Reference, degree);
      table.At(row, TransitNowColumn::StarLord).Text = sub.StarLord;
      table.At(row, TransitNowColumn::SubLord).Text = sub.SubLord;
    });
  }
  session.Ephemeris.Close();
}

}  // namespace orvex::chart
