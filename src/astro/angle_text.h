// How an angle is written.
#pragma once

#include <string>

namespace orvex::astro {

// Degrees, minutes and seconds of an angle in degrees: "005°30'00.0000". The seconds are not
// carried into the minutes. A negative angle has a minus before its whole degrees; where those are
// zero the sign is lost.
std::string DegreeText(double degrees);

// The same without leading zeros of the degrees: "5°30'00.0000".
std::string LongitudeText(double degrees);

// The degree of a chart: whole degrees and whole minutes of DegreeText, the seconds thrown away, as
// decimal degrees with two decimals. 29 degrees 59 minutes 59 seconds is "29.98".
std::string ChartDegreeText(double degrees);

// The degree of the sky and the transit tools: whole degrees and whole minutes of DegreeText, the
// seconds thrown away, as decimal degrees in single precision.
float DegreeToTheMinute(double degrees);

}  // namespace orvex::astro
