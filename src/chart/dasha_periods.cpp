#include "chart/dasha_periods.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using core::DateAdd;
using core::DateInterval;
using core::DateOnly;

constexpr double kStarMinutes = 800;
constexpr double kQuarterMinutes = 200;
constexpr double kDaysOfMonth = 30.4375;
constexpr double kDaysOfYear = 365.25;
constexpr double kCycleYears = 120;

double Hundredths(double value) { return core::ToDouble(core::TwoDecimals(value)); }

int SmallWhole(std::int64_t number) { return static_cast<int>(number); }

// Days as months of thirty days and the days that are left.
DashaBalance OfDays(int years, std::int64_t truncatedMonths, std::int64_t days) {
  return {years, SmallWhole(truncatedMonths), SmallWhole(days % 30)};
}

DashaBalance BelowOneYear(double days) {
  if (days < 30) {
    return {0, 0, SmallWhole(core::RoundToWhole(days))};
  }
  return OfDays(0, core::Truncate(days / 30), core::RoundToWhole(days));
}

DashaBalance FromYears(float years) {
  const std::vector<std::string> pieces = core::Split(core::SingleText(years), '.');
  const int whole = SmallWhole(core::ParseWhole(pieces.front()).value());
  if (pieces.size() < 2) {
    return {whole, 0, 0};
  }
  const double rest = core::ToDouble("0." + pieces[1].substr(0, 2)) * kDaysOfYear;
  if (rest < 30) {
    return {whole, 0, SmallWhole(core::RoundToWhole(rest))};
  }
  return OfDays(whole, core::Truncate(rest / 30), core::RoundToWhole(rest));
}

// The last part takes up what the roundings of all parts lost or won.
void CloseAt(std::vector<Period>& parts, core::DateTime end) {
  if (!parts.empty()) {
    parts.back().End = end;
  }
}

// Parts that follow each other from `start`; `endOf` gives the end of one from its begin.
template <typename EndOf>
std::vector<Period> PartsOf(const DashaCycle& rotation, core::DateTime start, EndOf endOf) {
  std::vector<Period> parts;
  for (const DashaPlanet& planet : rotation) {
    const core::DateTime end = DateOnly(endOf(planet, start));
    parts.push_back({planet, start, end});
    start = end;
  }
  return parts;
}

// The whole part of a quotient, cut from its text in single precision.
std::int64_t CutQuotient(int dividend, int divisor) {
  const auto quotient = static_cast<float>(static_cast<double>(dividend) / divisor);
  return core::ParseWhole(core::Split(core::SingleText(quotient), '.').front()).value();
}

}  // namespace

DashaBalance BalanceAtBirth(double moonDegree, double quarterBegin, int quarter, int years) {
  const float traversed = core::ToSingle(core::TwoDecimals(moonDegree - quarterBegin)) * 60.0F;
  const double left = kStarMinutes - kQuarterMinutes * (quarter - 1);
  const double remaining = Hundredths(left - static_cast<double>(traversed));
  const double months = Hundredths(remaining / kStarMinutes * (years * 12));
  const double days = core::RoundHalfEven(months * kDaysOfMonth);
  const auto yearsFloat = static_cast<float>(days / kDaysOfYear);
  return yearsFloat < 1 ? BelowOneYear(days) : FromYears(yearsFloat);
}

std::vector<Period> DashaPeriods(const DashaCycle& cycle, const DashaPlanet& first,
                                 core::DateTime birth, const DashaBalance& balance) {
  core::DateTime end = DateOnly(DateAdd(DateInterval::Years, balance.Years, birth));
  end = DateAdd(DateInterval::Months, balance.Months, end);
  end = DateOnly(DateAdd(DateInterval::Days, balance.Days, end));
  const core::DateTime start = DateAdd(DateInterval::Years, -first.Years, end);
  const auto yearsOn = [](const DashaPlanet& planet, core::DateTime from) {
    return DateAdd(DateInterval::Years, planet.Years, from);
  };
  std::vector<Period> parts = {{first, start, end}};
  DashaCycle rest = RotationFrom(cycle, first.Name);
  rest.erase(rest.begin());
  for (const Period& part : PartsOf(rest, end, yearsOn)) {
    parts.push_back(part);
  }
  return parts;
}

std::vector<Period> BhuktiPeriods(const DashaCycle& cycle, const Period& dasha) {
  const core::DateTime start =
      DateOnly(DateAdd(DateInterval::Years, -dasha.Planet.Years, dasha.End));
  std::vector<Period> parts = PartsOf(
      RotationFrom(cycle, dasha.Planet.Name), start,
      [&dasha](const DashaPlanet& planet, core::DateTime from) {
        const int p = dasha.Planet.Years * planet.Years;
        const core::DateTime months = DateAdd(DateInterval::Months, CutQuotient(p, 10), from);
        return DateAdd(DateInterval::Days, std::int64_t{p % 10} * 3, months);
      });
  CloseAt(parts, dasha.End);
  return parts;
}

std::vector<Period> AntaraPeriods(const DashaCycle& cycle, const Period& dasha,
                                  const Period& bhukti) {
  std::vector<Period> parts = PartsOf(
      RotationFrom(cycle, bhukti.Planet.Name), bhukti.Start,
      [&](const DashaPlanet& planet, core::DateTime from) {
        const int product = dasha.Planet.Years * bhukti.Planet.Years * planet.Years;
        // The first planet of the cycle cuts its days, all others round them.
        const std::int64_t days = bhukti.Planet.Sequence == 1 ? CutQuotient(product, 40)
                                                              : core::RoundToWhole(product / 40.0);
        return DateAdd(DateInterval::Days, days, from);
      });
  CloseAt(parts, bhukti.End);
  return parts;
}

std::vector<Period> SookshmaPeriods(const DashaCycle& cycle, const Period& antara) {
  const auto span = static_cast<double>(core::DaysBetween(antara.Start, antara.End));
  std::vector<Period> parts =
      PartsOf(RotationFrom(cycle, antara.Planet.Name), antara.Start,
              [span](const DashaPlanet& planet, core::DateTime from) {
                const auto days = static_cast<float>(planet.Years / kCycleYears * span);
                return DateAdd(DateInterval::Days, core::RoundToWhole(days), from);
              });
  CloseAt(parts, antara.End);
  return parts;
}

}  // namespace orvex::chart
