#include "chart/dasha_periods.h"

#include "chart/dasha_cycle.h"
#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::chart {

namespace {

using core::DateAdd;
using core::DateInterval;
using core::DateOnly;

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
