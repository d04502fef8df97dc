// The marks of a planet that weaken it as a giver.
#pragma once

#include <string>

#include "chart/horoscope_model.h"

namespace orvex::judgement {

inline constexpr const char* kStarOfRetrograde = "star of R";
inline constexpr const char* kSubOfRetrograde = "sub of R";

// The nodes always go back, so their own motion tells nothing: neither they nor what stands in
// their stars and subs is marked for it.
bool CountsAsRetrograde(const std::string& planet, bool retrograde);

// What is known of a planet; "R" stands for retrograde by CountsAsRetrograde.
struct PlanetMarks {
  bool Retrograde = false;
  bool StarLordRetrograde = false;
  bool SubLordRetrograde = false;
  bool Combust = false;
};

// "R", "star of R", "sub of R", "C" in this order, joined with ", ".
std::string MarksText(const PlanetMarks& marks);

// The marks of a row of the planet table by the stored chart.
PlanetMarks StoredMarks(const chart::HoroscopeModel& model, std::size_t planetRow);

}  // namespace orvex::judgement
