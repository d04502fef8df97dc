#include "horoscope/recalculation.h"

#include "chart/chart_computation.h"
#include "chart/client_saving.h"
#include "chart/place_checks.h"
#include "chart/sub_sub_lord.h"
#include "chart/zodiac_lookups.h"
#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "horoscope/unsaved_horoscope.h"

namespace orvex::horoscope {

namespace {

std::string HouseText(const std::optional<int>& house) {
  return house ? core::WholeText(*house) : "";
}

// The lords of a degree into four columns that stand side by side.
template <typename ColumnName>
void FillLords(const core::ReferenceData& reference, const std::string& degree, core::Table& table,
               std::size_t row, ColumnName signLord) {
  core::Attempt([&] {
    const double longitude = core::ToDouble(degree);
    const core::SubRow& sub = chart::SubOfDegree(reference, longitude);
    const std::array<std::string, 4> lords = {sub.RashiLord, sub.StarLord, sub.SubLord,
                                              chart::SubSubLord(reference, longitude)};
    for (std::size_t i = 0; i < lords.size(); ++i) {
      table.Rows.at(row).Cells.at(core::Table::Index(signLord) + i).Text = lords.at(i);
    }
  });
}

core::Table CuspTable(const core::ReferenceData& reference, const chart::ChartResult& chart) {
  core::Table table{
      {{"Cusp"}, {"Degree"}, {"Sign Lord"}, {"Star Lord"}, {"Sub Lord"}, {"Sub Sub Lord"}}, {}};
  for (const chart::CuspRow& cusp : chart.Cusps) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, WorkCuspColumn::Cusp).Text = core::WholeText(cusp.Cusp);
    table.At(row, WorkCuspColumn::Degree).Text = cusp.DegStart;
    FillLords(reference, cusp.DegStart, table, row, WorkCuspColumn::SignLord);
  }
  return table;
}

core::Table PlanetTable(const core::ReferenceData& reference, const chart::ChartResult& chart) {
  core::Table table{{{"Planet"},
                     {"Degree"},
                     {"Rashi House"},
                     {"Chalit House"},
                     {"Sign Lord"},
                     {"Star Lord"},
                     {"Sub Lord"},
                     {"Sub Sub Lord"},
                     {"R"}},
                    {}};
  for (const chart::PlanetRow& planet : chart.Planets) {
    table.AddRow();
    const std::size_t row = table.Rows.size() - 1;
    table.At(row, WorkPlanetColumn::Planet).Text = planet.Planet;
    table.At(row, WorkPlanetColumn::Degree).Text = planet.Degree;
    table.At(row, WorkPlanetColumn::RashiHouse).Text = HouseText(planet.RashiHouse);
    table.At(row, WorkPlanetColumn::ChalitHouse).Text = HouseText(planet.ChalitHouse);
    table.At(row, WorkPlanetColumn::R).Text = planet.InRetro == "1" ? "R" : "";
    FillLords(reference, planet.Degree, table, row, WorkPlanetColumn::SignLord);
  }
  return table;
}

// The Dasha list of the Moon of the new chart and its balance at the new birth.
void WriteDashas(const core::Session& session, const chart::ChartResult& chart,
                 Recalculation& result) {
  const chart::HoroscopeModel moved = UnsavedHoroscope(session, result.Birth, chart);
  result.Dashas = moved.Periods.DashaList;
  result.DashaBalance = moved.Captions.DashaBalance;
}

std::string ClientText(const chart::HoroscopeModel& model, const std::string& column) {
  for (const auto& [name, text] : model.Client) {
    if (name == column) {
      return text;
    }
  }
  return "";
}

}  // namespace

std::optional<core::Refusal> CheckRecalculation(const RecalculationForm& form) {
  if (std::optional<core::Refusal> refused = chart::CheckOffset(form.Offset)) {
    return refused;
  }
  if (std::optional<core::Refusal> refused = chart::CheckLatitude(form.Latitude)) {
    return refused;
  }
  return chart::CheckLongitude(form.Longitude);
}

chart::ChartInput ChartInputOf(const core::Session& session, const chart::HoroscopeModel& model,
                               const RecalculationForm& form) {
  chart::ChartInput input{ShiftedBirth(model.Birth, form.Shift), form.Offset, form.Latitude,
                          form.Longitude};
  const auto cityId = core::ParseWhole(ClientText(model, "cityid")).value_or(0);
  const auto place = chart::PlaceOfCity(session, static_cast<std::int32_t>(cityId));
  input.CityOffset = core::ToDouble(place ? place->Offset : form.Offset);
  if (model.Horary) {
    input.Ascendant = chart::AscendantChoice::Horary;
    input.HoraryNumber = static_cast<int>(core::ParseWhole(model.HoraryNo).value());
  } else if (ClientText(model, "ascdegreetype") == "M") {
    input.Ascendant = chart::AscendantChoice::ByHand;
    input.AscendantDegree = model.CuspDegree1;
  }
  return input;
}

RecalculationForm OpenRecalculation(const chart::HoroscopeModel& model) {
  return {model.Offset, model.Latitude, model.Longitude, {}};
}

core::DateTime ShiftedBirth(core::DateTime birth, const BirthShift& shift) {
  const core::DateTime days = core::DateAdd(core::DateInterval::Days, shift.Days, birth);
  const core::DateTime hours = core::DateAdd(core::DateInterval::Hours, shift.Hours, days);
  const core::DateTime minutes = core::DateAdd(core::DateInterval::Minutes, shift.Minutes, hours);
  return core::DateAdd(core::DateInterval::Seconds, shift.Seconds, minutes);
}

Recalculation Recalculate(core::Session& session, const chart::HoroscopeModel& model,
                          const RecalculationForm& form) {
  Recalculation result;
  result.Refused = CheckRecalculation(form);
  if (result.Refused) {
    return result;
  }
  try {
    const chart::ChartInput input = ChartInputOf(session, model, form);
    const chart::ChartResult chart = chart::ComputeChart(session, input);
    result.Birth = input.Birth;
    result.Cusps = CuspTable(session.Reference, chart);
    result.Planets = PlanetTable(session.Reference, chart);
    WriteDashas(session, chart, result);
  } catch (const core::DateRangeError&) {
    result.Refused = core::Refusal{"The moment lies outside the years 100 to 9999.",
                                   core::MessageIcon::Information, "birth"};
  } catch (const std::exception&) {
    result.Refused = core::Refusal{"The chart could not be computed for these values.",
                                   core::MessageIcon::Stop, ""};
  }
  return result;
}

}  // namespace orvex::horoscope
