// Sunrise and sunset by the two-pass series of the NOAA solar calculator (Meeus, Astronomical
// Algorithms, low precision), without the ephemeris.
//
// The conversions between degrees and radians use 3.14 in place of pi, the inverse functions a true
// pi. All shown sun times, and what hangs on them, depend on both.
#pragma once

#include "core/application_state.h"
#include "core/date_text.h"

namespace orvex::astro {

// Writes SunriseText and SunsetText of the state: local clock times as "6:21 AM" and "6:49 PM".
// The hour is rebuilt from two decimals of an hour and truncated. Sunrise always carries AM, sunset
// has 12 hours taken off without any test. Only the date of `date` counts; the zone is in hours
// east, latitude and longitude in degrees north and east. Where the Sun does not rise or set the
// texts are "0:00 AM" and "-12:00 PM".
void ComputeSunTimes(core::ApplicationState& state, core::DateTime date, float zoneHours,
                     float latitude, float longitude);

// Local time of the event in minutes after midnight. Latitudes beyond 89.8 are taken as 89.8.
// std::domain_error at polar day and night.
double CalcSunriseLocal(double latitude, double longitude, int year, int month, int day,
                        double zoneHours, double daylightHours);
double CalcSunsetLocal(double latitude, double longitude, int year, int month, int day,
                       double zoneHours, double daylightHours);

// Julian day of midnight by the Gregorian calendar, also before 1582.
double CalcJulianDay(int year, int month, int day);

// T counts Julian centuries of 36525 days from JD 2451545.0.
double CalcJulianCentury(double julianDay);
double CalcJulianDayFromCentury(double t);

// Degrees, for a Julian century T.
double CalcGeomMeanLongSun(double t);
double CalcGeomMeanAnomalySun(double t);
double CalcSunEqOfCenter(double t);
double CalcSunTrueLong(double t);
double CalcSunApparentLong(double t);
double CalcMeanObliquityOfEcliptic(double t);
double CalcObliquityCorrection(double t);
double CalcSunDeclination(double t);

// Without unit.
double CalcEccentricityEarthOrbit(double t);

// Minutes.
double CalcEquationOfTime(double t);

// Radians; latitude and declination in degrees. std::domain_error where the Sun does not cross the
// horizon.
double CalcHourAngleSunrise(double latitude, double declination);
double CalcHourAngleSunset(double latitude, double declination);

// Minutes after 0h UT; longitude in degrees, west positive.
double CalcSunriseUtc(double julianDay, double latitude, double longitudeWest);
double CalcSunsetUtc(double julianDay, double latitude, double longitudeWest);

double RadToDeg(double radians);
double DegToRad(double degrees);

// std::domain_error beyond -1 to 1.
double ArcCos(double x);
double ArcSin(double x);

}  // namespace orvex::astro
