// The fields of the Astrological Exchange Format, read and written. An empty one is "*".
#pragma once

#include <optional>
#include <string>

#include "core/typed_moment.h"
#include "exchange/file_birth.h"

namespace orvex::exchange {

inline constexpr const char* kEmptyField = "*";

// "5.7.1990": day, month, year of three or four digits. With "g" behind it by the Gregorian
// calendar, with "j" by the Julian one; without either the Julian one counts before 15 October
// 1582. Nothing for any other text and outside the years 100 to 9999.
std::optional<core::DateTime> ReadAafDate(const std::string& text);
std::string AafDate(core::DateTime date);  // with "g" where it needs it

// "14:30" and "14:30:05", 24-hour clock.
std::optional<core::TimeOfDay> ReadAafTime(const std::string& text);
std::string AafTime(core::DateTime moment);  // seconds where there are some

// "5hE30", "4hW56:02": hours east of Greenwich. Nothing for any other text.
std::optional<double> ReadAafZone(const std::string& text);
std::string AafZone(double hours);

// What summer time adds: "0", "1", "2" hours, up to 3, halves too.
std::optional<double> ReadAafSummer(const std::string& text);

// "2448078.12500": days in UT.
std::optional<JulianMoment> ReadAafJulianDay(const std::string& text);
std::string AafJulianDay(core::DateTime ut);

// "18N31:12" and "73E51": degrees, minutes, whole seconds where there are some. They are read by
// core::ReadTypedLatitude and ReadTypedLongitude. "*" beyond 90 (180) degrees.
std::string AafLatitude(double degrees);
std::string AafLongitude(double degrees);

// A text as a field can hold it: commas as semicolons, control characters and line breaks as
// blanks; "*" for an empty one, "**" for a star.
std::string AafText(const std::string& text);

}  // namespace orvex::exchange
