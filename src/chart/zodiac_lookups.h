// Sign, star, quarter and lords of a longitude. Degrees reach these lookups with two decimals; all
// rows and bands count both borders in, and the first row that holds a value is the answer.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "core/reference_data.h"

namespace orvex::chart {

inline constexpr int kSignCount = 12;

// A degree that no row of a reference table holds.
class LookupError : public std::out_of_range {
 public:
  using std::out_of_range::out_of_range;
};

// The name and the lord of a sign 1 to 12; "" for any other number.
std::string RashiName(int rashi);
std::string RashiLordName(int rashi);

// The sign of a longitude, 1 to 12; 0 for a value between two bands (29.99 to 30 and so on) and for
// one outside 0 to 359.99.
int RashiOfDegree(double degree);

// The same in single precision, value and borders. 0 as above.
int RashiOfSingle(float degree);

// The name of the planet with a number of the numerology tables. LookupError where there is none.
std::string PlanetNameOfAstroNumber(const core::ReferenceData& reference, int number);

// The longitude that the text of a single-precision value names: what the lookups compare.
double LookupDegree(float degree);

// The sub that holds a longitude. LookupError where none does.
const core::SubRow& SubOfDegree(const core::ReferenceData& reference, double degree);

// The longitude at which the sub of a horary number (1 to 249) begins. LookupError where there is
// no such number.
double BeginOfSub(const core::ReferenceData& reference, int horaryNumber);

// A quarter of a star and the star itself.
struct StarAndPada {
  const core::StarRow* Star = nullptr;
  const core::PadaRow* Pada = nullptr;
};

// The quarter that holds a longitude. LookupError where none does.
StarAndPada StarOfDegree(const core::ReferenceData& reference, double degree);

// The quarter of the sign that holds a cumulative longitude; nothing where none does.
std::optional<StarAndPada> StarInSign(const core::ReferenceData& reference, int rashi,
                                      double degree);

// The quarter of the sign that holds a degree within the sign. LookupError where none does.
StarAndPada StarOfSignDegree(const core::ReferenceData& reference, int rashi, double degreeInSign);

// The planet of a name. LookupError where there is none.
const core::PlanetInfo& PlanetOfName(const core::ReferenceData& reference, const std::string& name);

// The code of a planet: the first two letters of its name in upper case.
std::string PlanetCode(const std::string& planetName);

}  // namespace orvex::chart
