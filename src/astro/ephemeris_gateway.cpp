#include "astro/ephemeris_gateway.h"

#include <swephexp.h>

#include "astro/sidereal.h"
#include "core/text.h"

namespace orvex::astro {

namespace {

constexpr int kHouseSystem = 'P';
// Its first cusp is the Ascendant too, and it needs no search for the others.
constexpr int kEqualHouses = 'E';
constexpr std::size_t kLongestName = 10;

// What the library writes for a position: longitude, latitude, distance and their speeds.
using SixNumbers = std::array<double, 6>;
constexpr std::size_t kLongitudeAt = 0;
constexpr std::size_t kSpeedAt = 3;

}  // namespace

void EphemerisGateway::Look(int returnedFlags) {
  failed_ = failed_ || returnedFlags < 0;
  fellBack_ = fellBack_ || (returnedFlags >= 0 && (returnedFlags & SEFLG_MOSEPH) != 0);
}

EphemerisMoment EphemerisGateway::PrepareMoment(core::DateTime momentUt) {
  constexpr double kMinutesOfHour = 60.0;
  const core::DateParts parts = core::PartsOf(momentUt);
  EphemerisMoment moment{parts.Year, parts.Month, parts.Day, parts.Hour, parts.Minute, {}, {}};
  const double hour = parts.Hour + parts.Minute / kMinutesOfHour;

  swe_set_sid_mode(SE_SIDM_KRISHNAMURTI, 0, 0);
  moment.JulianDayUT.Days = swe_julday(parts.Year, parts.Month, parts.Day, hour, SE_GREG_CAL);
  swe_date_conversion(parts.Year, parts.Month, parts.Day, hour, 'g', &moment.JulianDayUT.Days);
  moment.JulianDayET.Days = moment.JulianDayUT.Days + swe_deltat(moment.JulianDayUT.Days);
  return moment;
}

void SetSiderealMode(int ayanamsa) { swe_set_sid_mode(ayanamsa, 0, 0); }

Position EphemerisGateway::CalcUt(JulianDayUt day, int planet, int flags) {
  SixNumbers numbers{};
  char error[AS_MAXCH];
  Look(swe_calc_ut(day.Days, planet, flags, numbers.data(), error));
  return {numbers[kLongitudeAt], numbers[kSpeedAt]};
}

Position EphemerisGateway::Calc(JulianDayEt day, int planet, int flags) {
  SixNumbers numbers{};
  char error[AS_MAXCH];
  Look(swe_calc(day.Days, planet, flags, numbers.data(), error));
  return {numbers[kLongitudeAt], numbers[kSpeedAt]};
}

std::string EphemerisGateway::PlanetName(int planet) const {
  char name[AS_MAXCH];
  swe_get_planet_name(planet, name);
  return core::FirstCharacters(core::CutAtNul(std::string_view(name, sizeof name)), kLongestName);
}

double EphemerisGateway::Obliquity(JulianDayUt day) {
  SixNumbers numbers{};
  char error[AS_MAXCH];
  Look(swe_calc_ut(day.Days, SE_ECL_NUT, 0, numbers.data(), error));
  return numbers[0];
}

Cusps EphemerisGateway::SiderealHouses(JulianDayUt day, double latitude, double longitude) const {
  Cusps cusps{};
  std::array<double, 10> angles{};
  swe_houses_ex(day.Days, SEFLG_SIDEREAL, latitude, longitude, kHouseSystem, cusps.data(),
                angles.data());
  return cusps;
}

double SiderealAscendant(JulianDayUt day, double latitude, double longitude) {
  Cusps cusps{};
  std::array<double, 10> angles{};
  swe_houses_ex(day.Days, SEFLG_SIDEREAL, latitude, longitude, kEqualHouses, cusps.data(),
                angles.data());
  return cusps[1];
}

double Ayanamsa(JulianDayUt day) {
  double ayanamsa = 0;
  char error[AS_MAXCH];
  swe_get_ayanamsa_ex_ut(day.Days, SEFLG_SWIEPH, &ayanamsa, error);
  return ayanamsa;
}

Cusps EphemerisGateway::TropicalHouses(double armc, double latitude, double obliquity) const {
  Cusps cusps{};
  std::array<double, 10> angles{};
  swe_houses_armc(armc, latitude, obliquity, kHouseSystem, cusps.data(), angles.data());
  return cusps;
}

void EphemerisGateway::Close() const { swe_close(); }

}  // namespace orvex::astro
