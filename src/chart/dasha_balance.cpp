#include "chart/dasha_balance.h"

#include <vector>

#include "core/date_text.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

constexpr double kStarMinutes = 800;
constexpr double kQuarterMinutes = 200;

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
  const double rest = core::ToDouble("0." + pieces[1].substr(0, 2)) * core::kDaysOfYear;
  if (rest < 30) {
    return {whole, 0, SmallWhole(core::RoundToWhole(rest))};
  }
  return OfDays(whole, core::Truncate(rest / 30), core::RoundToWhole(rest));
}

}  // namespace

DashaBalance BalanceAtBirth(double moonDegree, double quarterBegin, int quarter, int years) {
  const float traversed = core::ToSingle(core::TwoDecimals(moonDegree - quarterBegin)) * 60.0F;
  const double left = kStarMinutes - kQuarterMinutes * (quarter - 1);
  const double remaining = Hundredths(left - static_cast<double>(traversed));
  const double months = Hundredths(remaining / kStarMinutes * (years * 12));
  const double days = core::RoundHalfEven(months * core::kDaysOfMonth);
  const auto yearsFloat = static_cast<float>(days / core::kDaysOfYear);
  return yearsFloat < 1 ? BelowOneYear(days) : FromYears(yearsFloat);
}

std::string BalanceText(const std::string& planet, const DashaBalance& balance) {
  return planet + " Dasha balance at birth: " + core::WholeText(balance.Years) + " Year(s), " +
         core::WholeText(balance.Months) + " Month(s), " + core::WholeText(balance.Days) +
         " Day(s)";
}

}  // namespace orvex::chart
