// The one sheet that a client takes home: the birth by the reading to the second, with one figure
// of cusps and planets, their lords, the significators of the houses, the ruling planets and the
// periods that run.
#pragma once

#include <optional>
#include <string>

#include "horoscope/create_horoscope.h"
#include "report/report_content.h"

namespace orvex::report {

// Shown where no period runs: before the birth, or after the last of the nine Dashas.
inline constexpr const char* kNoPeriod = "No period runs at present";

// "House", "Position", four lords, "Significators".
enum class SheetCuspColumn {
  House,
  Position,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord,
  Significators
};

// "Planet", "R", "Position", "House", four lords.
enum class SheetPlanetColumn {
  Planet,
  R,
  Position,
  House,
  SignLord,
  StarLord,
  SubLord,
  SubSubLord
};

// "Period", "Planet", "From", "Until": Dasha, Bhukti, Antara, Sookshma.
enum class SheetPeriodColumn { Period, Planet, From, Until };

struct KpSheet {
  std::string Name;
  std::string Question;
  std::string Astrologer;
  std::string Organization;
  std::string Contact;
  std::string Date;  // of today
  ReportFacts Facts;
  ChartPicture Figure;  // by longitude within each sign: cusps in brackets, planets
  std::string Message;  // in the place of the cusps where no chart has the Ascendant, else empty
  core::Table Planets;
  core::Table Cusps;
  core::Table RulingPlanets;
  core::Table Periods;
  std::optional<ReportSection> Matter;  // the matter that the sheet carries: tables
};

// The sheet of a client in that style ('N', 'E', else 'S'). Cusps and planets are those of the
// birth, whatever house the open horoscope is rotated to.
KpSheet SheetOf(core::Session& session, const horoscope::OpenedHoroscope& opened, char style);

// The running periods of a moment.
core::Table RunningPeriods(const core::ReferenceData& reference, const chart::HoroscopeModel& model,
                           core::DateTime now);

}  // namespace orvex::report
