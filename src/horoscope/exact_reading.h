// The reading to the second of a client's birth, beside the stored chart. It changes nothing: the
// stored rows and all tables made from them stay as they are.
#pragma once

#include <string>

#include "chart/horoscope_model.h"
#include "chart/rotation.h"
#include "core/session.h"
#include "exact/exact_sky.h"

namespace orvex::horoscope {

// The background of the cells in which the stored chart says otherwise.
inline constexpr const char* kDiffersColor = "FFFBB3";

struct ExactReading {
  std::string Moment;        // "1990-07-05 09:00:00 UT": the clock's time less the stored offset
  std::string StoredMoment;  // the moment of the stored chart, seconds 00
  std::string Ayanamsa;      // 23°37'53"
  std::string Reading;       // "KP" or "KP new"
  std::string Message;       // shown in the place of the cusps where there are none, else empty
  core::Table Cusps;         // columns of exact::ExactCuspColumn; no rows where there are none
  core::Table Planets;       // columns of exact::ExactPlanetColumn
};

// The moment in UT of a client's birth or query, to the second: the stored offset counts on both
// sides of Greenwich. core::DateRangeError outside the years 100 to 9999.
core::DateTime ExactMomentUt(const chart::HoroscopeModel& model);

// Reads a client by one ayanamsa. `birth` are the client's tables before any rotation: in them the
// stored lords are looked up, bare names, and the Moon's stored sub-sub lord is not compared, as it
// is another thing.
ExactReading ReadToTheSecond(core::Session& session, const chart::HoroscopeModel& model,
                             const chart::BirthTables& birth, exact::Reading reading);

}  // namespace orvex::horoscope
