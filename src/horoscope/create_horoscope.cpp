#include "horoscope/create_horoscope.h"

#include <stdexcept>

#include "chart/aspect_grid.h"
#include "chart/aspects.h"
#include "chart/combustion.h"
#include "chart/cusp_table.h"
#include "chart/dasha.h"
#include "chart/dba_summary.h"
#include "chart/four_step_check.h"
#include "chart/house_table.h"
#include "chart/planet_table.h"
#include "chart/ruling_planets.h"
#include "chart/significators.h"
#include "chart/status_line.h"
#include "chart/stored_chart.h"
#include "chart/transit_now.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "horoscope/client_facts.h"
#include "practice/remedies.h"
#include "vedic/ashtakavarga.h"
#include "vedic/birth_star.h"
#include "vedic/bnn.h"
#include "vedic/karakas.h"
#include "vedic/lal_kitab.h"
#include "vedic/lo_shu.h"
#include "vedic/numerology.h"
#include "vedic/vastu.h"

namespace orvex::horoscope {

namespace {

using chart::HoroscopeModel;
using chart::PlanetOrder;
using core::Attempt;

constexpr int kLastYear = 120;

// Houses, cusps and planets from the stored rows.
void BuildChartTables(const core::Session& session, HoroscopeModel& model) {
  const core::ReferenceData& reference = session.Reference;
  const auto planets = [&](PlanetOrder order) {
    return chart::LoadPlanets(session, model.ClientId, order);
  };
  Attempt([&] { chart::FillCuspTable(reference, model); });
  Attempt([&] { chart::FillBcPlanets(model, planets(PlanetOrder::Stored)); });
  Attempt([&] { chart::FillRashis(reference, model); });
  Attempt([&] { chart::FillRcPlanets(model, planets(PlanetOrder::RashiHouse)); });
  Attempt([&] { chart::FillPlanetTable(reference, model, planets(PlanetOrder::Dasha)); });
  Attempt([&] { chart::MarkCombust(model); });
  Attempt([&] { chart::AppendOwnedHouses(model); });
  Attempt([&] { chart::FillRashiLords(reference, model); });
  Attempt([&] { chart::FillSignLords(model); });
  Attempt([&] { KeepLights(model); });
  Attempt([&] { chart::FillTenancy(model); });
  Attempt([&] { WriteNodes(model); });
}

// Aspects and what counts houses.
void BuildHouseAnalyses(const core::ApplicationState& state, HoroscopeModel& model) {
  Attempt([&] { chart::LoadPlanetAspects(model, state.AspectBands, ""); });
  Attempt([&] { chart::BuildAspectGrid(model, state.AspectBands); });
  Attempt([&] { chart::HouseAspectSummary(model); });
  Attempt([&] { chart::CuspSignificators(model); });
  Attempt([&] { chart::NadiSignificators(model); });
  Attempt([&] { chart::PlanetLevels(model); });
}

// The classical side tables, in their order.
void BuildVedicTables(const core::Session& session, HoroscopeModel& model) {
  Attempt([&] { vedic::ComputeAshtakavarga(model); });
  Attempt([&] { vedic::FillBirthStarAttributes(session.Reference, model); });
  Attempt([&] { vedic::BuildKarakaTable(model); });
  Attempt([&] { vedic::BuildBnnTable(model); });
  Attempt([&] { vedic::BuildLoShu(session.Reference, model); });
  Attempt([&] { vedic::VastuImpactAnalysis(model, session.State.AspectBands); });
}

// The order of the steps is part of the design: later ones read cells of earlier ones.
void Assemble(core::Session& session, HoroscopeModel& model,
              const std::array<std::string, chart::kHouses>& cuspDegrees) {
  const core::ReferenceData& reference = session.Reference;
  Attempt([&] { chart::BuildTransitNow(session, model); });
  Attempt([&] { chart::FillStarTable(reference, model); });
  Attempt([&] { chart::AddHouseRows(model); });
  Attempt([&] { WriteSunTimes(session, model); });
  Attempt([&] { chart::FillCusps(model, cuspDegrees); });
  Attempt([&] { WriteDateAndPlace(model); });
  BuildChartTables(session, model);
  Attempt([&] { chart::BuildRulingPlanets(model); });
  Attempt([&] { chart::FillDignity(reference, model); });
  Attempt([&] { vedic::FillNumerology(reference, model); });
  Attempt([&] {
    const auto rashi = core::ParseWhole(HouseText(model, 0, chart::HouseColumn::Rashi));
    model.Captions.AscendantSign = chart::RashiName(static_cast<int>(rashi.value()));
  });
  Attempt([&] { chart::BuildDashaList(session, model); });
  Attempt([&] { chart::WritePartOfFortune(reference, model); });
  Attempt([&] { chart::WriteBadhakHouse(model); });
  BuildHouseAnalyses(session.State, model);
  Attempt([&] { WriteTithiAndYoga(session, model); });
  BuildVedicTables(session, model);
  Attempt([&] { model.RunningYear = RunningYearOf(model.Birth, session.Time.Today()); });
  Attempt(
      [&] { vedic::ShowLalKitabYear(model.HouseTable, model.RunningYear, model.LalKitabYear); });
  Attempt([&] { chart::AppendDashaTooltips(model); });
  Attempt([&] { vedic::AppendBnnTooltips(model); });
  Attempt([&] { WriteNakshatra(model); });
  Attempt([&] { chart::BuildFourStep(model); });
  chart::WriteStatusLine(model, session.State.StatusBarDegreeCalc);
  Attempt([&] { chart::SelectCurrentPeriods(session, model); });
  Attempt([&] { chart::ShowDBA(session, model); });
  Attempt([&] { chart::WriteCurrentDba(model); });
  model.Captions.RunningYear = core::WholeText(model.RunningYear);
  Attempt([&] { model.RemedyTable = practice::LoadRemedies(session, model.ClientId); });
}

}  // namespace

std::optional<OpenedHoroscope> CreateHoroscope(core::Session& session, std::int32_t clientId) {
  OpenedHoroscope opened;
  std::array<std::string, chart::kHouses> cuspDegrees;
  if (!TakeClient(session, clientId, opened.Model, cuspDegrees)) {
    return std::nullopt;
  }
  Assemble(session, opened.Model, cuspDegrees);
  opened.Birth = chart::TakeBirthTables(opened.Model);
  return opened;
}

void RotateNow(const core::Session& session, OpenedHoroscope& horoscope, int house) {
  if (house < 1 || house > static_cast<int>(chart::kHouses)) {
    throw std::invalid_argument("a rotation to a house beyond 1 to 12");
  }
  HoroscopeModel& model = horoscope.Model;
  chart::RotateTables(session.Reference, horoscope.Birth, model, house);
  Attempt([&] { WriteNodes(model); });
  BuildHouseAnalyses(session.State, model);
  BuildVedicTables(session, model);
  Attempt([&] { chart::BuildFourStep(model); });
  chart::WriteStatusLine(model, session.State.StatusBarDegreeCalc);
  Attempt([&] { chart::ShowDBA(session, model); });
}

void ShowYear(OpenedHoroscope& horoscope, int year) {
  if (year < 1 || year > kLastYear) {
    throw std::invalid_argument("a year of life beyond 1 to 120");
  }
  HoroscopeModel& model = horoscope.Model;
  model.RunningYear = year;
  model.Captions.RunningYear = core::WholeText(year);
  vedic::ShowLalKitabYear(horoscope.Birth.HouseTable, year, model.LalKitabYear);
  chart::WriteCurrentDba(model);
}

}  // namespace orvex::horoscope
