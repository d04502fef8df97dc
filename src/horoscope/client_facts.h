// What a horoscope keeps of the client's row, and the captions made from it.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "chart/horoscope_model.h"
#include "core/session.h"

namespace orvex::horoscope {

// Reads the client's row into the model. False where there is no such client. The cusp degrees come
// as stored.
bool TakeClient(const core::Session& session, std::int32_t clientId, chart::HoroscopeModel& model,
                std::array<std::string, chart::kHouses>& cuspDegrees);

// A column of the client's row as the record names it: lower case but for "CuspDegree1" to 12.
std::string ClientColumnName(const std::string& field);

// Sunrise and sunset of the birth date at the birth place; overwrites those of the session.
void WriteSunTimes(core::Session& session, chart::HoroscopeModel& model);

// Date and place captions.
void WriteDateAndPlace(chart::HoroscopeModel& model);

// The degrees of Sun and Moon as texts, the captions of the nodes.
void KeepLights(chart::HoroscopeModel& model);
void WriteNodes(chart::HoroscopeModel& model);

// Tithi, karan and yoga of birth.
void WriteTithiAndYoga(const core::Session& session, chart::HoroscopeModel& model);

// The Moon's star, quarter and sign.
void WriteNakshatra(chart::HoroscopeModel& model);

// The running year of life at a date, 1 to 120.
int RunningYearOf(core::DateTime birth, core::DateTime today);

}  // namespace orvex::horoscope
