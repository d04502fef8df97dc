// The attributes of birth that the Moon's sign and star give, and the Bhrigu Bindu.
#pragma once

#include <string>

#include "chart/horoscope_model.h"
#include "core/reference_data.h"

namespace orvex::vedic {

// Signs and stars are named as in the reference tables; of an unknown one the part stays empty.

// "Kshatriya - Devta".
std::string VarnaGanaText(const core::ReferenceData& reference, const std::string& moonRashi,
                          const std::string& moonStar);

// "Adi - Horse (Ashwa)".
std::string NadiYoniText(const std::string& moonStar);

// "Chatushpad - Shiro". `sign` is the number of `moonRashi`, `moonDegree` the longitude; both
// settle the halves of Sagittarius and Capricorn.
std::string VasyaRajjuText(const std::string& moonRashi, int sign, double moonDegree,
                           const std::string& moonStar);

// The point midway between the Moon and Rahu, degrees with two decimals, from longitudes in
// degrees.
float BhriguBinduDegree(float moonDegree, float rahuDegree);

// Writes the captions VarnaGana, NadiYoni, VasyaRajju and BhriguBindu and keeps the point. One that
// fails leaves its caption empty.
void FillBirthStarAttributes(const core::ReferenceData& reference, chart::HoroscopeModel& model);

}  // namespace orvex::vedic
