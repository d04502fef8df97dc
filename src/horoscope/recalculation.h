// The chart of an open horoscope computed anew for a changed place, offset or birth time. Nothing
// is saved: the results stand in work tables beside the model.
#pragma once

#include <optional>

#include "chart/chart_computation.h"
#include "chart/horoscope_model.h"
#include "core/save_result.h"
#include "core/session.h"

namespace orvex::horoscope {

// The background of the cells that differ from those of the birth.
inline constexpr const char* kMovedColor = "FEFA85";

enum class WorkCuspColumn { Cusp, Degree, SignLord, StarLord, SubLord, SubSubLord };

enum class WorkPlanetColumn {
  Planet,
  Degree,
  RashiHouse,
  ChalitHouse,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord,
  R
};

// By how much the birth time is moved.
struct BirthShift {
  std::int64_t Days = 0;
  std::int64_t Hours = 0;
  std::int64_t Minutes = 0;
  std::int64_t Seconds = 0;
};

// What is changed; texts as typed.
struct RecalculationForm {
  std::string Offset;
  std::string Latitude;
  std::string Longitude;
  BirthShift Shift;
};

struct Recalculation {
  core::DateTime Birth{};
  core::Table Cusps;
  core::Table Planets;
  core::Table Dashas;  // as the Dasha list of a horoscope
  std::string DashaBalance;
  std::optional<core::Refusal> Refused;  // the tables are empty then
};

// The form of an open horoscope: its place and offset, no shift.
RecalculationForm OpenRecalculation(const chart::HoroscopeModel& model);

// The first of offset, latitude and longitude that is refused as the client dialog refuses it.
std::optional<core::Refusal> CheckRecalculation(const RecalculationForm& form);

// A birth time moved by a shift. core::DateRangeError outside the years 100 to 9999.
core::DateTime ShiftedBirth(core::DateTime birth, const BirthShift& shift);

// The client's chart as it would be computed and stored for a form: kind of Ascendant, city's
// offset. std::invalid_argument for a horary chart without a number.
chart::ChartInput ChartInputOf(const core::Session& session, const chart::HoroscopeModel& model,
                               const RecalculationForm& form);

// Computes the chart with the client's kind of Ascendant. Seconds of the moved time are dropped in
// the computation, so a step of seconds shows when the minute changes.
Recalculation Recalculate(core::Session& session, const chart::HoroscopeModel& model,
                          const RecalculationForm& form);

}  // namespace orvex::horoscope
