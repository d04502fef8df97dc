// The birth of a .jhd file: one value a line.
#pragma once

#include <string>
#include <string_view>

#include "exchange/file_birth.h"

namespace orvex::exchange {

// A number whose minutes stand in the first two places behind the point and whose seconds in the
// two after those: "-5.300000" is -5.5, "14.3045" is 14.5125. Nothing for any other text and where
// minutes or seconds are 60 or more. Noise behind the sixth place is rounded away.
std::optional<double> ReadMinutesBehindPoint(const std::string& text);

// The birth of a file; `name` is the client's, for the file holds none. Its lines are: 1 month,
// 2 day, 3 year, 4 time, 5 zone with summer time in it (west positive), 6 longitude (west
// positive), 7 latitude, 13 place, 14 country; all others are passed over. Time, zone, longitude
// and latitude have their minutes behind the point. The calendar is the Gregorian one: a date
// before 15 October 1582, of which the file does not say by which calendar, is refused.
FileReading ReadJhd(std::string_view bytes, const std::string& name);

}  // namespace orvex::exchange
