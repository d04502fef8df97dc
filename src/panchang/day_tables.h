// Season, month, year, bird and Ganapathi of a day.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/date_text.h"

namespace orvex::panchang {

// The season and the solar month of the Sun's longitude in degrees with two decimals; "" where the
// longitude has no sign.
std::string RituOf(double sunDegree);
std::string MasaOf(double sunDegree);

// The year of the Vikram era. It changes on 16 April, not by any lunar reckoning.
int VikramSamvatYear(core::DateTime today);

// The bird of a star in the bright half ("S") or the dark one ("K"); "" for an unknown star.
std::string PanchaPakshiBird(std::string_view starName, char paksha);

struct Ganapathi {
  const char* Tithi;
  const char* Name;
  const char* Ruling;
};

// The Ganapathi of a tithi's exact name; null where there is none. Both half-months share it.
const Ganapathi* TithiGanapathi(std::string_view tithiName);

}  // namespace orvex::panchang
