#include "astro/sun_events.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "core/attempt.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::astro {

namespace {

// Not pi: the shown times depend on this value.
constexpr double kHalfTurn = 3.14;

// Zenith distance of the upper limb on the horizon, with refraction.
constexpr double kZenithDistance = 90.833;
constexpr double kFarthestLatitude = 89.8;
constexpr double kMinutesOfDay = 1440;

double QuarterTurn() { return std::atan(1.0) + std::atan(1.0); }

double Whole(double value) { return std::floor(value); }

using HourAngle = double (*)(double latitude, double declination);

double EventUtcAt(double t, double latitude, double longitudeWest, HourAngle hourAngle) {
  const double angle = hourAngle(latitude, CalcSunDeclination(t));
  const double delta = longitudeWest - RadToDeg(angle);
  return 720 + 4 * delta - CalcEquationOfTime(t);
}

// Two passes, no more: the second at the time that the first gives.
double EventUtc(double julianDay, double latitude, double longitudeWest, HourAngle hourAngle) {
  const double t = CalcJulianCentury(julianDay);
  const double first = EventUtcAt(t, latitude, longitudeWest, hourAngle);
  const double nearer = CalcJulianCentury(CalcJulianDayFromCentury(t) + first / kMinutesOfDay);
  return EventUtcAt(nearer, latitude, longitudeWest, hourAngle);
}

double NearestLatitude(double latitude) {
  return std::clamp(latitude, -kFarthestLatitude, kFarthestLatitude);
}

// The angle by which the Moon's node shifts the series.
double NodeTerm(double t) { return DegToRad(125.04 - 1934.136 * t); }

struct ClockTime {
  std::int64_t Hour = 0;
  std::string MinuteText;
};

// The hour with two decimals, its decimals made minutes again and truncated.
ClockTime ClockTimeOf(std::int64_t minutes) {
  const std::string hoursText = core::TwoDecimals(static_cast<double>(minutes) / 60);
  const double decimals = core::ToDouble(core::Split(hoursText, '.').at(1));
  return {core::Floor(core::ToDouble(hoursText)),
          core::PaddedWhole(core::Floor(decimals / 100 * 60), 2)};
}

}  // namespace

double RadToDeg(double radians) { return radians * 180 / kHalfTurn; }

double DegToRad(double degrees) { return degrees * kHalfTurn / 180; }

double ArcCos(double x) {
  if (x < -1 || x > 1) {
    throw std::domain_error("the arc cosine of a value beyond 1");
  }
  if (x == -1) {
    return std::atan(1.0) * 4;
  }
  if (x == 0) {
    return QuarterTurn();
  }
  return x == 1 ? 0 : std::atan(-x / std::sqrt(1 - x * x)) + QuarterTurn();
}

double ArcSin(double x) {
  if (x < -1 || x > 1) {
    throw std::domain_error("the arc sine of a value beyond 1");
  }
  if (x == -1) {
    return -QuarterTurn();
  }
  if (x == 0) {
    return 0;
  }
  return x == 1 ? QuarterTurn() : std::atan(x / std::sqrt(1 - x * x));
}

double CalcJulianDay(int year, int month, int day) {
  if (month <= 2) {
    year -= 1;
    month += 12;
  }
  const double a = Whole(year / 100.0);
  const double b = 2 - a + Whole(a / 4);
  return Whole(365.25 * (year + 4716)) + Whole(30.6001 * (month + 1)) + day + b - 1524.5;
}

double CalcJulianCentury(double julianDay) { return (julianDay - 2451545.0) / 36525.0; }

double CalcJulianDayFromCentury(double t) { return t * 36525.0 + 2451545.0; }

double CalcGeomMeanLongSun(double t) {
  double longitude = 280.46646 + t * (36000.76983 + 0.0003032 * t);
  while (longitude > 360) {
    longitude -= 360;
  }
  while (longitude < 0) {
    longitude += 360;
  }
  return longitude;
}

double CalcGeomMeanAnomalySun(double t) { return 357.52911 + t * (35999.05029 - 0.0001537 * t); }

double CalcEccentricityEarthOrbit(double t) {
  return 0.016708634 - t * (0.000042037 + 0.0000001267 * t);
}

double CalcSunEqOfCenter(double t) {
  const double m = DegToRad(CalcGeomMeanAnomalySun(t));
  return std::sin(m) * (1.914602 - t * (0.004817 + 0.000014 * t)) +
         std::sin(m + m) * (0.019993 - 0.000101 * t) + std::sin(m + m + m) * 0.000289;
}

double CalcSunTrueLong(double t) { return CalcGeomMeanLongSun(t) + CalcSunEqOfCenter(t); }

double CalcSunApparentLong(double t) {
  return CalcSunTrueLong(t) - 0.00569 - 0.00478 * std::sin(NodeTerm(t));
}

double CalcMeanObliquityOfEcliptic(double t) {
  const double seconds = 21.448 - t * (46.815 + t * (0.00059 - t * 0.001813));
  return 23 + (26 + seconds / 60) / 60;
}

double CalcObliquityCorrection(double t) {
  return CalcMeanObliquityOfEcliptic(t) + 0.00256 * std::cos(NodeTerm(t));
}

double CalcSunDeclination(double t) {
  const double sine =
      std::sin(DegToRad(CalcObliquityCorrection(t))) * std::sin(DegToRad(CalcSunApparentLong(t)));
  return RadToDeg(ArcSin(sine));
}

double CalcEquationOfTime(double t) {
  const double l0 = DegToRad(CalcGeomMeanLongSun(t));
  const double e = CalcEccentricityEarthOrbit(t);
  const double m = DegToRad(CalcGeomMeanAnomalySun(t));
  const double tangent = std::tan(DegToRad(CalcObliquityCorrection(t)) / 2);
  const double y = tangent * tangent;
  const double minutesAsAngle = y * std::sin(2 * l0) - 2 * e * std::sin(m) +
                                4 * e * y * std::sin(m) * std::cos(2 * l0) -
                                0.5 * y * y * std::sin(4 * l0) - 1.25 * e * e * std::sin(2 * m);
  return RadToDeg(minutesAsAngle) * 4;
}

double CalcHourAngleSunrise(double latitude, double declination) {
  const double phi = DegToRad(latitude);
  const double delta = DegToRad(declination);
  return ArcCos(std::cos(DegToRad(kZenithDistance)) / (std::cos(phi) * std::cos(delta)) -
                std::tan(phi) * std::tan(delta));
}

double CalcHourAngleSunset(double latitude, double declination) {
  return -CalcHourAngleSunrise(latitude, declination);
}

double CalcSunriseUtc(double julianDay, double latitude, double longitudeWest) {
  return EventUtc(julianDay, latitude, longitudeWest, CalcHourAngleSunrise);
}

double CalcSunsetUtc(double julianDay, double latitude, double longitudeWest) {
  return EventUtc(julianDay, latitude, longitudeWest, CalcHourAngleSunset);
}

double CalcSunriseLocal(double latitude, double longitude, int year, int month, int day,
                        double zoneHours, double daylightHours) {
  const double julianDay = CalcJulianDay(year, month, day);
  return CalcSunriseUtc(julianDay, NearestLatitude(latitude), -longitude) + 60 * zoneHours +
         60 * daylightHours;
}

double CalcSunsetLocal(double latitude, double longitude, int year, int month, int day,
                       double zoneHours, double daylightHours) {
  const double julianDay = CalcJulianDay(year, month, day);
  return CalcSunsetUtc(julianDay, NearestLatitude(latitude), -longitude) + 60 * zoneHours +
         60 * daylightHours;
}

void ComputeSunTimes(core::ApplicationState& state, core::DateTime date, float zoneHours,
                     float latitude, float longitude) {
  const core::DateParts day = core::PartsOf(date);

  // No sunrise leaves the minutes at 0, and so does no sunset.
  std::int64_t sunrise = 0;
  core::Attempt([&] {
    sunrise = core::Floor(
        CalcSunriseLocal(latitude, longitude, day.Year, day.Month, day.Day, zoneHours, 0));
  });
  const ClockTime rise = ClockTimeOf(sunrise);
  state.SunriseText = core::WholeText(rise.Hour) + ":" + rise.MinuteText + " AM";

  std::int64_t sunset = 0;
  core::Attempt([&] {
    sunset = core::Floor(
        CalcSunsetLocal(latitude, longitude, day.Year, day.Month, day.Day, zoneHours, 0));
  });
  const ClockTime set = ClockTimeOf(sunset);
  state.SunsetText = core::WholeText(set.Hour - 12) + ":" + set.MinuteText + " PM";
}

}  // namespace orvex::astro
